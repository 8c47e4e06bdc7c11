#include "lexoria/lexoria.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

bool shortRun()
{
    return qEnvironmentVariableIntValue("VORTIC_BENCH_SHORT") == 1;
}

// A zero-interval timer fires on every turn of the event loop; the longest time between two
// of its shots is the longest the window could not answer the player (a slide's step and
// its paint, or a click's handler and the repaint it causes).
class LoopGap
{
public:
    LoopGap()
    {
        probe.setInterval(0);
        QObject::connect(&probe, &QTimer::timeout, [this] {
            const qint64 now = clock.nsecsElapsed();
            longest = std::max(longest, now - last);
            last = now;
        });
    }

    // Runs the event loop for ms milliseconds, doing the step first, and returns the gap.
    template <class Step> qint64 during(int ms, Step step)
    {
        QEventLoop loop;
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        longest = 0;
        clock.start();
        last = 0;
        probe.start();
        step();
        loop.exec();
        probe.stop();
        return longest;
    }

private:
    QTimer probe;
    QElapsedTimer clock;
    qint64 last = 0;
    qint64 longest = 0;
};

void report(std::vector<qint64> gaps)
{
    std::sort(gaps.begin(), gaps.end());
    qInfo("%d rounds: longest gap, median %.2f ms, range %.2f .. %.2f ms", int(gaps.size()),
        gaps[gaps.size() / 2] / 1e6, gaps.front() / 1e6, gaps.back() / 1e6);
    QTest::setBenchmarkResult(gaps[gaps.size() / 2], QTest::WalltimeNanoseconds);
}

} // namespace

class bench_Options : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void menuSlides_data();
    void menuSlides();
    void hideAndShow_data();
    void hideAndShow();

private:
    void click(const char *name) { window->findChild<QPushButton *>(QLatin1String(name))->click(); }
    int rounds(int full) const { return shortRun() ? 1 : full; }
    // In short mode a glimpse of each slide proves the benchmark works.
    int span(int ms) const { return shortRun() ? ms / 8 : ms; }
    std::unique_ptr<lexoria> window;
};

void bench_Options::init()
{
    window = std::make_unique<lexoria>();
    window->openLexoria();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QTest::qWait(300);
}

void bench_Options::cleanup()
{
    window.reset();
}

void bench_Options::menuSlides_data()
{
    QTest::addColumn<QString>("part");
    // What the machine alone costs: the loop runs as long, and nothing moves.
    QTest::newRow("idle") << "idle";
    QTest::newRow("in") << "in";
    QTest::newRow("out") << "out";
}

// The whole way in (1900 ms with the arrows and texts) or out (1300 ms).
void bench_Options::menuSlides()
{
    QFETCH(QString, part);
    LoopGap gap;
    std::vector<qint64> gaps;
    for (int round = 0; round < rounds(8); ++round) {
        if (part == QLatin1String("idle")) {
            gaps.push_back(gap.during(span(1900), [] {}));
            continue;
        }
        const qint64 opening = gap.during(span(1900), [this] { click("options"); });
        const qint64 closing = gap.during(span(1300), [this] { click("closeX"); });
        gaps.push_back(part == QLatin1String("in") ? opening : closing);
    }
    report(gaps);
}

void bench_Options::hideAndShow_data()
{
    QTest::addColumn<bool>("hide");
    QTest::newRow("hide") << true;
    QTest::newRow("show") << false;
}

void bench_Options::hideAndShow()
{
    QFETCH(bool, hide);
    LoopGap gap;
    std::vector<qint64> gaps;
    for (int round = 0; round < rounds(30); ++round) {
        const qint64 hiding = gap.during(100, [this] { click("hideNonVitals"); });
        const qint64 showing = gap.during(100, [this] { click("hideNonVitals"); });
        gaps.push_back(hide ? hiding : showing);
    }
    report(gaps);
}

QTEST_MAIN(bench_Options)

#include "bench_options.moc"
