#include "lexoria/cachedshadow.h"

#include <QLabel>
#include <QPainter>
#include <QPixmapCache>

namespace shading {

// Everything a label's picture depends on. Other widgets (the game fields with their cursor
// and changing text) are not cached.
QString CachedShadow::fingerprint() const
{
    const auto *label = qobject_cast<const QLabel *>(parent());
    if (!label || label->movie() || label->graphicsEffect() != this)
        return {};
    // The window's rules by object name only matter to a label without a sheet of its own.
    const QString sheet = label->styleSheet().isEmpty() ? label->objectName() : label->styleSheet();
    return QLatin1String("vortic-shadow\n") + sheet + QLatin1Char('\n') + label->text()
        + QLatin1Char('\n') + QString::number(label->width()) + QLatin1Char('x')
        + QString::number(label->height()) + QLatin1Char(' ') + QString::number(label->isEnabled())
        + QString::number(label->alignment()) + QLatin1Char(' ')
        + QString::number(label->pixmap(Qt::ReturnByValue).cacheKey()) + QLatin1Char(' ')
        + color().name(QColor::HexArgb) + QString::number(color().isValid()) + QLatin1Char(' ')
        + QString::number(offset().x()) + QLatin1Char(',') + QString::number(offset().y())
        + QLatin1Char(' ') + QString::number(blurRadius()) + QLatin1Char(' ') + label->font().key()
        + QLatin1Char(' ') + label->palette().color(label->foregroundRole()).name(QColor::HexArgb)
        + QString::number(label->margin()) + QString::number(label->indent())
        + QString::number(label->wordWrap());
}

void CachedShadow::draw(QPainter *painter)
{
    const QString print = fingerprint();
    const QTransform transform = painter->worldTransform();
    if (print.isEmpty() || !transform.isAffine() || transform.isScaling()
        || transform.isRotating()) {
        QGraphicsDropShadowEffect::draw(painter);
        return;
    }
    const auto *widget = static_cast<const QWidget *>(parent());
    const QRect device = transform.mapRect(boundingRectFor(QRectF(widget->rect()))).toAlignedRect();
    // Qt clips the picture of a label at the window's edge; such a picture is not shared.
    const QPaintDevice *target = painter->device();
    if (!QRect(0, 0, target->width(), target->height()).contains(device)) {
        QGraphicsDropShadowEffect::draw(painter);
        return;
    }
    const QString key = print + QLatin1Char(' ') + QString::number(device.width())
        + QLatin1Char('x') + QString::number(device.height());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        // Qt's drop shadow draws in device coordinates; a window onto the picture's rectangle
        // lands it at the picture's origin.
        picture = QPixmap(device.size());
        picture.fill(Qt::transparent);
        QPainter onPicture(&picture);
        onPicture.setWindow(device);
        onPicture.setViewport(QRect(QPoint(0, 0), device.size()));
        QGraphicsDropShadowEffect::draw(&onPicture);
        onPicture.end();
        QPixmapCache::insert(key, picture);
    }
    painter->setWorldTransform(QTransform());
    painter->drawPixmap(device.topLeft(), picture);
    painter->setWorldTransform(transform);
}

} // namespace shading
