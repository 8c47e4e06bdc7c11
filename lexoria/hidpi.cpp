#include "lexoria/hidpi.h"

#include <QFileInfo>
#include <QGuiApplication>

namespace hidpi {

void enableScaling()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

QPixmap pixmap(const QString &path)
{
    if (qApp && qApp->devicePixelRatio() > 1.0) {
        const QFileInfo file(path);
        QPixmap sharp(file.path() + QLatin1Char('/') + file.completeBaseName()
            + QLatin1String("@2x.") + file.suffix());
        if (!sharp.isNull()) {
            sharp.setDevicePixelRatio(2.0);
            return sharp;
        }
    }
    return QPixmap(path);
}

} // namespace hidpi
