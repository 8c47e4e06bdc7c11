#include "bench/framepacing.h"
#include "lexoria/lexoria.h"

#include <QCheckBox>

#include <memory>
#include <vector>

using namespace framepacing;

class bench_Fades : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fadeAllPacing();
    void allFadeInPacing();
    void keyPressAfterFades_data();
    void keyPressAfterFades();

private:
    std::unique_ptr<lexoria> window;
};

void bench_Fades::init()
{
    window = std::make_unique<lexoria>();
    window->openLexoria();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    frameClock()->watched = window.get();
    // The first paint of the whole window is no part of the figures.
    QTest::qWait(300);
}

void bench_Fades::cleanup()
{
    frameClock()->watched = nullptr;
    window.reset();
}

// All 54 keys out and back in column by column: about 250 animations alive at once, then the
// drop shadows coming back.
void bench_Fades::fadeAllPacing()
{
    window->fadeAll();
    const Pacing pacing = measurePacing(shortRun() ? 2600 : 6600);
    QVERIFY(pacing.frames > 0);
    report(pacing);
}

// The 47 character keys, faded away beforehand, come back in the sweep of an Everything game.
void bench_Fades::allFadeInPacing()
{
    for (int k = 1; k <= 47; ++k)
        window->fadeOut(k);
    QTest::qWait(1200);
    window->allFadeIn();
    const Pacing pacing = measurePacing(shortRun() ? 2200 : 5200);
    QVERIFY(pacing.frames > 0);
    report(pacing);
}

void bench_Fades::keyPressAfterFades_data()
{
    QTest::addColumn<int>("fadedWith");
    QTest::newRow("fresh keyboard") << 0;
    QTest::newRow("after fadeAll, opacity only") << 1;
    QTest::newRow("after fadeAll, drop shadows") << 2;
}

// A press of а, up to its painted frame, on a keyboard whose every layer went through a fade.
void bench_Fades::keyPressAfterFades()
{
    QFETCH(int, fadedWith);
    if (fadedWith != 0) {
        window->findChild<QCheckBox *>("shadow3dOn")->setChecked(fadedWith == 2);
        window->fadeAll();
        QTest::qWait(shortRun() ? 500 : 6600);
    }
    timeKeyPresses(window.get(), shortRun() ? 3 : 400);
}

int main(int argc, char **argv)
{
    FrameClockApplication app(argc, argv);
    bench_Fades benchmark;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&benchmark, argc, argv);
}

#include "bench_fades.moc"
