#include "bench/framepacing.h"
#include "lexoria/lexoria.h"

#include <QRadioButton>

#include <memory>

using namespace framepacing;

class bench_Effects : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void gameAllInPacing();
    void endChainPacing();

private:
    std::unique_ptr<lexoria> window;
};

// The heaviest supplied gif: 96 × 90, 30 frames, three times its own speed.
void bench_Effects::init()
{
    window = std::make_unique<lexoria>();
    window->openLexoria();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    frameClock()->watched = window.get();
    window->findChild<QRadioButton *>("explosion")->click();
    window->loadVorticKeyboardGame();
    // The first paint of the whole window is no part of the figures.
    QTest::qWait(300);
}

void bench_Effects::cleanup()
{
    frameClock()->watched = nullptr;
    window.reset();
}

// 54 movies start within 1.3 s and play over the whole keyboard.
void bench_Effects::gameAllInPacing()
{
    window->gameAllIn();
    const Pacing pacing = measurePacing(shortRun() ? 2600 : 4500);
    QVERIFY(pacing.frames > 0);
    report(pacing);
}

// A Lowercase game's end: 33 keys pulse back one every 100 ms.
void bench_Effects::endChainPacing()
{
    window->endGame1_66();
    const Pacing pacing = measurePacing(shortRun() ? 600 : 4400);
    QVERIFY(pacing.frames > 0);
    report(pacing);
}

int main(int argc, char **argv)
{
    FrameClockApplication app(argc, argv);
    bench_Effects benchmark;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&benchmark, argc, argv);
}

#include "bench_effects.moc"
