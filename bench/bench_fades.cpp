#include "lexoria/lexoria.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QTimer>
#include <QtTest>

#include <time.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

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

// Times every repaint of the main window, which the toolkit does in one pass per update
// request.
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

double percentile(std::vector<qint64> values, double p)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, std::size_t(p * values.size()))] / 1e6;
}

// The time between two shots of a zero timer is how long the event loop was kept from the
// player; it is taken in wall time and in this thread's own running time, since the cores
// are shared with other programs.
void measurePacing(int ms)
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
        return std::count_if(v.begin(), v.end(), [](qint64 g) { return g > frameNs; });
    };
    const std::vector<qint64> &paints = frameClock()->paintNs;
    qInfo("longest gap %.2f ms wall (%ld over 16.7 ms), %.2f ms own running (%ld over); "
          "%zu frames, paint median %.2f ms, longest %.2f ms",
        percentile(gaps, 1.0), long(over(gaps)), percentile(busy, 1.0), long(over(busy)),
        paints.size(), percentile(paints, 0.5), percentile(paints, 1.0));
    QVERIFY(!paints.empty());
    QTest::setBenchmarkResult(percentile(gaps, 1.0) * 1e6, QTest::WalltimeNanoseconds);
}

// Runs the loop until the main window has painted once more.
bool waitForFrame()
{
    const std::size_t before = frameClock()->paintNs.size();
    QElapsedTimer guard;
    guard.start();
    while (frameClock()->paintNs.size() == before && guard.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return frameClock()->paintNs.size() != before;
}

} // namespace

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
    measurePacing(shortRun() ? 2600 : 6600);
}

// The 47 character keys, faded away beforehand, come back in the sweep of an Everything game.
void bench_Fades::allFadeInPacing()
{
    for (int k = 1; k <= 47; ++k)
        window->fadeOut(k);
    QTest::qWait(1200);
    window->allFadeIn();
    measurePacing(shortRun() ? 2200 : 5200);
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
    const int rounds = shortRun() ? 3 : 400;
    std::vector<qint64> times;
    bool painted = true;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        QTest::keyPress(window.get(), Qt::Key_F);
        painted = waitForFrame() && painted;
        times.push_back(timer.nsecsElapsed());
        QTest::keyRelease(window.get(), Qt::Key_F);
        painted = waitForFrame() && painted;
    }
    QVERIFY(painted);
    qInfo("key press until painted: median %.3f ms, range %.3f .. %.3f ms, %d rounds",
        percentile(times, 0.5), percentile(times, 0.0), percentile(times, 1.0), rounds);
    QTest::setBenchmarkResult(percentile(times, 0.5) * 1e6, QTest::WalltimeNanoseconds);
}

int main(int argc, char **argv)
{
    FrameClockApplication app(argc, argv);
    bench_Fades benchmark;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&benchmark, argc, argv);
}

#include "bench_fades.moc"
