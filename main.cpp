#include "lexoria/hidpi.h"
#include "lexoria/lexoria.h"

#include <QApplication>
#include <QSplashScreen>

int main(int argc, char *argv[])
{
    // Nothing here draws with OpenGL; skipping the GL integration makes the first window
    // come up sooner and smaller on X11.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");

    hidpi::enableScaling();
    QApplication app(argc, argv);
    lexoria::initResources();
    QSplashScreen splash(QPixmap(QStringLiteral(":/new/prefix1/vorticTypingBrelom.png")));
    splash.show();
    lexoria w;
    // The main window stays hidden until "Start"; the splash gives way to the opening window.
    splash.finish(w.findChild<QMainWindow *>(QStringLiteral("openingWindow")));
    return app.exec();
}
