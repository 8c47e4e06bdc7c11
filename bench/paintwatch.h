#ifndef PAINTWATCH_H
#define PAINTWATCH_H

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <QtTest>

#include <algorithm>
#include <vector>

// Counts the paint events of one top-level window and everything in it. A frame is done when
// processEvents() returns after the first of them: Qt paints the whole dirty region into the
// backing store and hands it to the window system in one synchronous pass.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *window)
        : window(window)
    {
        qApp->installEventFilter(this);
    }
    ~PaintWatch() override { qApp->removeEventFilter(this); }

    int frames() const { return paints; }

    // Runs the event loop until the window has painted after frame count `before`. A generous
    // guard only keeps a broken build from hanging CI; it judges no speed.
    bool waitForFrameSince(int before)
    {
        bool gaveUp = false;
        QTimer guard;
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, [&gaveUp] { gaveUp = true; });
        guard.start(10000);
        frameStart = before;
        while (paints == before && !gaveUp)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return paints != before;
    }

    bool waitForFrame() { return waitForFrameSince(paints); }

    // When set, the time of the first paint of the awaited frame on this clock: what came
    // before it is the restyle, what came after is painting.
    QElapsedTimer *clock = nullptr;
    qint64 firstPaintAt = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()
            && static_cast<QWidget *>(watched)->window() == window) {
            if (clock && paints == frameStart)
                firstPaintAt = clock->nsecsElapsed();
            ++paints;
        }
        return false;
    }

private:
    QWidget *window;
    int paints = 0;
    int frameStart = 0;
};

namespace paintwatch {

// VORTIC_BENCH_SHORT=1 runs every benchmark once, so that CI proves they still work without
// spending minutes on figures nobody reads there.
inline bool shortRun()
{
    return qEnvironmentVariableIntValue("VORTIC_BENCH_SHORT") == 1;
}

// Where every round needs an untimed setup (a fresh window, keys to restore), QBENCHMARK
// cannot keep that setup out of its loop. These rounds are timed one by one and QtTest gets
// their median in nanoseconds, since its own walltime counts whole milliseconds; with
// -median N it reports the median of N such medians.
template <class Setup, class Body, class Teardown>
void measureRounds(int rounds, Setup setup, Body body, Teardown teardown)
{
    if (shortRun())
        rounds = 1;
    std::vector<qint64> nanoseconds;
    for (int round = 0; round < rounds; ++round) {
        setup();
        QElapsedTimer timer;
        timer.start();
        body();
        nanoseconds.push_back(timer.nsecsElapsed());
        teardown();
        if (QTest::currentTestFailed())
            return;
    }
    std::sort(nanoseconds.begin(), nanoseconds.end());
    // The tenth percentile shows a difference of a fraction of a millisecond that a loaded
    // machine hides in the median.
    qInfo("%d rounds: median %.3f ms, 10th percentile %.3f ms, range %.3f .. %.3f ms", rounds,
        nanoseconds[rounds / 2] / 1e6, nanoseconds[rounds / 10] / 1e6, nanoseconds.front() / 1e6,
        nanoseconds.back() / 1e6);
    QTest::setBenchmarkResult(nanoseconds[rounds / 2], QTest::WalltimeNanoseconds);
}

template <class Setup, class Body> void measureRounds(int rounds, Setup setup, Body body)
{
    measureRounds(rounds, setup, body, [] {});
}

} // namespace paintwatch

#endif
