#ifndef BENCH_FRAMEPACING_H
#define BENCH_FRAMEPACING_H

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <QtTest>

#include <time.h>

#include <algorithm>
#include <vector>

// How long the event loop is kept from the player while effects play, and what each repaint
// of the main window costs.
namespace framepacing {

// Time this thread has run: a gap in it is work of ours, while a gap in wall time also
// counts the moments other programs had the shared cores.
inline qint64 threadCpuNs()
{
    timespec t;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return qint64(t.tv_sec) * 1000000000 + t.tv_nsec;
}

inline bool shortRun()
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

inline FrameClockApplication *frameClock()
{
    return static_cast<FrameClockApplication *>(qApp);
}

inline double percentile(std::vector<qint64> values, double p)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, std::size_t(p * values.size()))] / 1e6;
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

// Runs the event loop for the given time with a zero timer, which fires whenever the loop is
// free: the time between two of its shots is how long the loop was kept from the player.
inline Pacing measurePacing(int ms)
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

    constexpr qint64 frameNs = 16700000;
    auto over = [](const std::vector<qint64> &v) {
        return std::size_t(std::count_if(v.begin(), v.end(), [](qint64 g) { return g > frameNs; }));
    };
    Pacing pacing;
    pacing.longestGapMs = percentile(gaps, 1.0);
    pacing.longestBusyMs = percentile(busy, 1.0);
    pacing.gapsOverFrame = over(gaps);
    pacing.busyOverFrame = over(busy);
    pacing.medianPaintMs = percentile(frameClock()->paintNs, 0.5);
    pacing.longestPaintMs = percentile(frameClock()->paintNs, 1.0);
    pacing.frames = frameClock()->paintNs.size();
    return pacing;
}

// Prints the figures and gives QtTest the longest wall gap as the benchmark's result.
inline void report(const Pacing &pacing)
{
    qInfo("longest gap %.2f ms wall (%zu over 16.7 ms), %.2f ms of our own running (%zu over); "
          "%zu frames, paint median %.2f ms, longest %.2f ms",
        pacing.longestGapMs, pacing.gapsOverFrame, pacing.longestBusyMs, pacing.busyOverFrame,
        pacing.frames, pacing.medianPaintMs, pacing.longestPaintMs);
    QTest::setBenchmarkResult(pacing.longestGapMs * 1e6, QTest::WalltimeNanoseconds);
}

// Runs the loop until the main window has painted once more.
inline bool waitForFrame()
{
    const std::size_t before = frameClock()->paintNs.size();
    QElapsedTimer guard;
    guard.start();
    while (frameClock()->paintNs.size() == before && guard.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return frameClock()->paintNs.size() != before;
}

} // namespace framepacing

#endif
