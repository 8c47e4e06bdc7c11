#include "lexoria/lexoria.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QtTest>

#include <time.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

// Time this thread has run: a gap in it is work of ours, while a gap in wall time also
// counts the moments other programs had the shared cores.
qint64 threadCpuNs()
{
    timespec t;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return qint64(t.tv_sec) * 1000000000 + t.tv_nsec;
}

bool shortRun()
{
    return qEnvironmentVariableIntValue("VORTIC_BENCH_SHORT") == 1;
}

// Times every repaint of the main window: the toolkit paints all dirty widgets of a window
// in one pass when the window receives its update request.
class FrameClockApplication : public QApplication
{
public:
    using QApplication::QApplication;

    QWidget *watched = nullptr;
    std::vector<qint64> paintNs;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (receiver != watched || event->type() != QEvent::UpdateRequest)
            return QApplication::notify(receiver, event);
        QElapsedTimer timer;
        timer.start();
        const bool handled = QApplication::notify(receiver, event);
        paintNs.push_back(timer.nsecsElapsed());
        return handled;
    }
};

FrameClockApplication *frameClock()
{
    return static_cast<FrameClockApplication *>(qApp);
}

struct Pacing
{
    double longestGapMs = 0;
    double longestBusyMs = 0; // the same gaps in this thread's own running time
    std::size_t gapsOverFrame = 0;
    std::size_t busyOverFrame = 0;
    double medianPaintMs = 0;
    double longestPaintMs = 0;
    std::size_t frames = 0;
};

double percentile(std::vector<qint64> values, double p)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, std::size_t(p * values.size()))] / 1e6;
}

// Runs the event loop for the given time with a zero timer, which fires whenever the loop is
// free: the time between two of its shots is how long the loop was kept from the player.
Pacing measurePacing(int ms)
{
    frameClock()->paintNs.clear();
    std::vector<qint64> gaps;
    std::vector<qint64> busy;
    QElapsedTimer clock;
    clock.start();
    qint64 last = 0;
    qint64 lastCpu = threadCpuNs();
    QTimer idle;
    idle.setInterval(0);
    QObject::connect(&idle, &QTimer::timeout, [&] {
        const qint64 now = clock.nsecsElapsed();
        const qint64 cpu = threadCpuNs();
        gaps.push_back(now - last);
        busy.push_back(cpu - lastCpu);
        last = now;
        lastCpu = cpu;
    });
    idle.start();
    QEventLoop loop;
    QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    idle.stop();

    Pacing pacing;
    constexpr qint64 frameNs = 16700000;
    pacing.longestGapMs = percentile(gaps, 1.0);
    pacing.longestBusyMs = percentile(busy, 1.0);
    pacing.gapsOverFrame
        = std::count_if(gaps.begin(), gaps.end(), [](qint64 g) { return g > frameNs; });
    pacing.busyOverFrame
        = std::count_if(busy.begin(), busy.end(), [](qint64 g) { return g > frameNs; });
    pacing.medianPaintMs = percentile(frameClock()->paintNs, 0.5);
    pacing.longestPaintMs = percentile(frameClock()->paintNs, 1.0);
    pacing.frames = frameClock()->paintNs.size();
    return pacing;
}

void report(const Pacing &pacing)
{
    qInfo("longest gap %.2f ms wall (%zu over 16.7 ms), %.2f ms of our own running (%zu over); "
          "%zu frames, paint median %.2f ms, longest %.2f ms",
        pacing.longestGapMs, pacing.gapsOverFrame, pacing.longestBusyMs, pacing.busyOverFrame,
        pacing.frames, pacing.medianPaintMs, pacing.longestPaintMs);
    QTest::setBenchmarkResult(pacing.longestGapMs * 1e6, QTest::WalltimeNanoseconds);
}

} // namespace

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
