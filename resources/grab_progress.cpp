// vortic-progress-screen: plays three games as a newcomer would, each a little faster and
// with fewer slips, then photographs "Your progress" and the button that opens it.
//
//     vortic-progress-screen [folder]
//
// The games are recorded in a temporary history that goes away afterwards.

#include "lexoria/keycatalogue.h"
#include "lexoria/lexoria.h"
#include "stats/recorder.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <memory>

namespace {

void type(lexoria &window, int n)
{
    const keycatalogue::CharacterKey &key
        = keycatalogue::characterKey(keycatalogue::keyOfLetter(n));
    const bool shifted = key.upper == n;
    const int code = (shifted && key.k > 26) ? key.shiftedCode : key.plainCode;
    QTest::keyClick(&window, Qt::Key(code), shifted ? Qt::ShiftModifier : Qt::NoModifier);
}

void click(lexoria &window, const char *name)
{
    window.findChild<QPushButton *>(QLatin1String(name))->click();
}

struct Game
{
    int pauseMs; // the player's search for each letter
    QList<QPair<int, int>> slips; // letter asked, letter typed instead
};

// Ш for Щ, Э for Ж and the like: the neighbours a learner mixes up.
const Game games[] = {
    {170, {{26, 27}, {8, 31}, {31, 8}, {14, 20}, {26, 27}, {11, 24}, {19, 29}, {25, 33}}},
    {110, {{26, 27}, {8, 31}, {11, 24}, {31, 8}}},
    {70, {{26, 27}, {8, 31}}},
};

bool play(lexoria &window, const Game &game)
{
    click(window, "animationOff");
    click(window, "strict");
    click(window, "pbForwardVarious");
    click(window, "start");
    QLineEdit *entry = window.findChild<QLineEdit *>(QStringLiteral("leUser"));
    for (int n = 1; n <= 33; ++n) {
        for (const auto &slip : game.slips) {
            if (slip.first != n)
                continue;
            QTest::qWait(game.pauseMs);
            type(window, slip.second);
            if (!QTest::qWaitFor([entry] { return entry->text().isEmpty(); }, 2000))
                return false;
        }
        QTest::qWait(game.pauseMs);
        type(window, n);
        if (n < 33 && !QTest::qWaitFor([entry] { return entry->text().isEmpty(); }, 2000))
            return false;
    }
    return true;
}

bool save(QWidget *widget, const QRect &region, const QString &file)
{
    const QPixmap shot = region.isNull() ? widget->grab() : widget->grab(region);
    if (shot.save(file))
        return true;
    std::fprintf(stderr, "vortic-progress-screen: cannot write %s\n", qPrintable(file));
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QApplication app(argc, argv);
    const QDir folder(app.arguments().value(1, QStringLiteral("docs")));
    if (!QDir().mkpath(folder.path()))
        return 1;

    QTemporaryDir history;
    auto window = std::make_unique<lexoria>();
    window->statistics()->setDatabasePath(history.filePath(QStringLiteral("history.sqlite")));
    window->openLexoria();
    for (const Game &game : games) {
        if (!play(*window, game)) {
            std::fprintf(stderr, "vortic-progress-screen: a game did not go as played\n");
            return 1;
        }
    }
    QTest::qWait(300);
    if (!save(window.get(), QRect(0, 0, 470, 320), folder.filePath("progress-button.png")))
        return 1;
    click(*window, "yourProgress");
    QWidget *progress = window->findChild<QWidget *>(QStringLiteral("progressWindow"));
    QTest::qWait(300);
    if (!progress || !save(progress, QRect(), folder.filePath("progress.png")))
        return 1;
    return 0;
}
