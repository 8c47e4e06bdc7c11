// Frame pacing while one gif plays on every key of the keyboard during a game, and how long a
// key press takes to reach the screen meanwhile.
#include "bench/framepacing.h"
#include "lexoria/lexoria.h"

#include <QPushButton>
#include <QRadioButton>

#include <memory>

using namespace framepacing;

class bench_Pictures : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void gifOnEveryKey_data();
    void gifOnEveryKey();
    void keyPressUnderAGif();

private:
    void layGif(const QString &radio);

    std::unique_ptr<lexoria> window;
};

void bench_Pictures::init()
{
    window = std::make_unique<lexoria>();
    window->openLexoria();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    frameClock()->watched = window.get();
    QTest::qWait(300);
}

void bench_Pictures::cleanup()
{
    frameClock()->watched = nullptr;
    window.reset();
}

// The gif goes on the keys at rest, a game starts with the highlight on, the menu stays shut.
void bench_Pictures::layGif(const QString &radio)
{
    const bool fill = radio.endsWith(" filled");
    window->findChild<QRadioButton *>(QString(radio).remove(" filled"))->click();
    if (fill)
        window->findChild<QRadioButton *>("expandGif")->click();
    window->findChild<QPushButton *>("animationOff")->click();
    window->findChild<QPushButton *>("pbForwardAll")->click();
    window->findChild<QPushButton *>("start")->click();
    window->findChild<QPushButton *>("goldenHighlight")->click();
    QTest::qWait(300);
}

void bench_Pictures::gifOnEveryKey_data()
{
    QTest::addColumn<QString>("radio");
    QTest::newRow("no picture") << "radioNone";
    QTest::newRow("rain, 60 frames, own size") << "radioRain";
    QTest::newRow("sheep, scaled") << "radioSheep";
    QTest::newRow("swirl, scaled") << "radioSwirl";
    QTest::newRow("rain, Fill Size on the wide keys") << "radioRain filled";
}

void bench_Pictures::gifOnEveryKey()
{
    QFETCH(QString, radio);
    layGif(radio);
    const Pacing pacing = measurePacing(shortRun() ? 1500 : 6000);
    QVERIFY(pacing.frames > 0);
    report(pacing, Judge::OwnRunningGap);
}

// A press of а, until its frame is painted, while rain plays on all 54 keys.
void bench_Pictures::keyPressUnderAGif()
{
    layGif("radioRain");
    timeKeyPresses(window.get(), shortRun() ? 5 : 300);
}

int main(int argc, char **argv)
{
    FrameClockApplication app(argc, argv);
    bench_Pictures bench;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&bench, argc, argv);
}

#include "bench_pictures.moc"
