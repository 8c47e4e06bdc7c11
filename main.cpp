#include "lexoria/hidpi.h"
#include "lexoria/lexoria.h"

#include <QApplication>
#include <QSplashScreen>

#include <cstdio>
#include <cstring>

namespace {

// Answered before QApplication exists, so that they work on a terminal without a display.
// Every other argument is left to Qt (-platform, -style ...), as it always was.
bool answeredOnTerminal(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--version") == 0) {
            std::printf("vortic-typing-russian %s\n", VORTIC_VERSION);
            return true;
        }
        if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
            std::printf("Usage: vortic-typing-russian [--version] [--help]\n"
                        "Vortic-Typing: Russian, a typing tutor and matching game that teaches\n"
                        "where the Russian characters lie on an English keyboard.\n");
            return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    if (answeredOnTerminal(argc, argv))
        return 0;

    // Nothing here draws with OpenGL; skipping the GL integration makes the first window
    // come up sooner and smaller on X11.
    if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"))
        qputenv("QT_XCB_GL_INTEGRATION", "none");

    hidpi::enableScaling();
    QApplication app(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral(VORTIC_VERSION));
    // Lets Wayland compositors and docks match the windows to the menu entry and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral(VORTIC_APP_ID));
    lexoria::initResources();
    QSplashScreen splash(QPixmap(QStringLiteral(":/new/prefix1/vorticTypingBrelom.png")));
    splash.show();
    lexoria w;
    // The main window stays hidden until "Start"; the splash gives way to the opening window.
    splash.finish(w.findChild<QMainWindow *>(QStringLiteral("openingWindow")));
    return app.exec();
}
