// Frame pacing while one gif plays on every key of the keyboard during a game, and how long a
// key press takes to reach the screen meanwhile.
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

// Times every repaint of the main window and counts the labels painted in it.
class PaintClockApplication : public QApplication
{
public:
    using QApplication::QApplication;

    QWidget *watched = nullptr;
    std::vector<qint64> paintNs;
    std::vector<qint64> paintCpuNs;
    long labelPaints = 0;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<QLabel *>(receiver))
            ++labelPaints;
        if (receiver != watched || event->type() != QEvent::UpdateRequest)
            return QApplication::notify(receiver, event);
        QElapsedTimer timer;
        timer.start();
        const qint64 cpu = threadCpuNs();
        const bool handled = QApplication::notify(receiver, event);
        paintNs.push_back(timer.nsecsElapsed());
        paintCpuNs.push_back(threadCpuNs() - cpu);
        return handled;
    }
};

PaintClockApplication *paintClock()
{
    return static_cast<PaintClockApplication *>(qApp);
}

double percentile(std::vector<qint64> values, double p)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, std::size_t(p * values.size()))] / 1e6;
}

// The gap between two shots of a zero timer is how long the loop was kept from the player,
// in wall time and in this thread's own running time (the cores are shared).
void measurePacing(int ms)
{
    paintClock()->paintNs.clear();
    paintClock()->paintCpuNs.clear();
    paintClock()->labelPaints = 0;
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
    const std::vector<qint64> &paints = paintClock()->paintNs;
    qInfo("longest gap %.2f ms wall (%ld over 16.7 ms), %.2f ms own running (%ld over); "
          "%zu frames, paint median %.2f ms (own running %.2f), longest %.2f ms (own running "
          "%.2f), %.1f labels painted a frame",
        percentile(gaps, 1.0), long(over(gaps)), percentile(busy, 1.0), long(over(busy)),
        paints.size(), percentile(paints, 0.5), percentile(paintClock()->paintCpuNs, 0.5),
        percentile(paints, 1.0), percentile(paintClock()->paintCpuNs, 1.0),
        paints.empty() ? 0.0 : double(paintClock()->labelPaints) / paints.size());
    QVERIFY(!paints.empty());
    QTest::setBenchmarkResult(percentile(busy, 1.0) * 1e6, QTest::WalltimeNanoseconds);
}

bool waitForFrame()
{
    const std::size_t before = paintClock()->paintNs.size();
    QElapsedTimer guard;
    guard.start();
    while (paintClock()->paintNs.size() == before && guard.elapsed() < 10000)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return paintClock()->paintNs.size() != before;
}

} // namespace

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
    paintClock()->watched = window.get();
    QTest::qWait(300);
}

void bench_Pictures::cleanup()
{
    paintClock()->watched = nullptr;
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
    measurePacing(shortRun() ? 1500 : 6000);
}

// A press of а, until its frame is painted, while rain plays on all 54 keys.
void bench_Pictures::keyPressUnderAGif()
{
    layGif("radioRain");
    const int rounds = shortRun() ? 5 : 300;
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
    PaintClockApplication app(argc, argv);
    bench_Pictures bench;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&bench, argc, argv);
}

#include "bench_pictures.moc"
