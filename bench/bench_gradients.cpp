// Clicks go through the platform layer, so that the thumbnail under the pointer is found by
// underMouse(), as a real click finds it.
#define QTEST_QPA_MOUSE_HANDLING

#include "bench/paintwatch.h"
#include "lexoria/hidpi.h"
#include "lexoria/lexoria.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <vector>

using namespace paintwatch;

namespace {

// Every step is timed on its own, from the user's action until the window has painted it; the
// median and the worst step are what a player feels while dragging.
template <class Step> void measureSteps(int steps, Step step)
{
    if (shortRun())
        steps = 2;
    std::vector<qint64> nanoseconds;
    for (int i = 0; i < steps; ++i) {
        QElapsedTimer timer;
        timer.start();
        if (!step(i))
            QFAIL("no frame was painted");
        nanoseconds.push_back(timer.nsecsElapsed());
    }
    std::sort(nanoseconds.begin(), nanoseconds.end());
    qInfo("%d steps: median %.3f ms, 90th percentile %.3f ms, worst %.3f ms", steps,
        nanoseconds[steps / 2] / 1e6, nanoseconds[steps * 9 / 10] / 1e6, nanoseconds.back() / 1e6);
    QTest::setBenchmarkResult(nanoseconds[steps / 2], QTest::WalltimeNanoseconds);
}

std::unique_ptr<lexoria> colourPanelOpen()
{
    auto w = std::make_unique<lexoria>();
    w->openLexoria();
    if (!QTest::qWaitForWindowExposed(w.get()))
        return {};
    // The first move only tells Qt where the pointer is; enter and leave follow from the next.
    QTest::mouseMove(w.get(), QPoint(600, 30));
    QTest::mouseMove(w.get(), QPoint(601, 30));
    w->findChild<QPushButton *>(QStringLiteral("options"))->click();
    w->findChild<QPushButton *>(QStringLiteral("menuColorMadness"))->click();
    QTest::qWait(200);
    return w;
}

} // namespace

class bench_Gradients : public QObject
{
    Q_OBJECT

public:
    static void initMain() { hidpi::enableScaling(); }

private slots:
    void stopSliderDrag();
    void shapeThumbnailClick();
};

// Each step of the keys' stop slider restyles 54 faces and 94 bar cells, all of which change.
void bench_Gradients::stopSliderDrag()
{
    std::unique_ptr<lexoria> w = colourPanelOpen();
    QVERIFY(w);
    auto *slider = w->findChild<QSlider *>(QStringLiteral("slider1"));
    PaintWatch watch(w.get());
    // To and fro over the whole range, as a hand drags it.
    measureSteps(400, [&](int i) {
        const int phase = i % 20;
        const int before = watch.frames();
        slider->setValue(phase <= 10 ? phase : 20 - phase);
        return watch.waitForFrameSince(before);
    });
}

// The thumbnails of the keys' shapes, clicked in turn: each click changes every face and cell.
void bench_Gradients::shapeThumbnailClick()
{
    std::unique_ptr<lexoria> w = colourPanelOpen();
    QVERIFY(w);
    PaintWatch watch(w.get());
    std::vector<QLabel *> thumbnails;
    for (int shape = 0; shape < 6; ++shape)
        thumbnails.push_back(w->findChild<QLabel *>(QStringLiteral("grad1%1").arg(shape)));
    measureSteps(300, [&](int i) {
        QLabel *thumbnail = thumbnails[(i + 2) % 6];
        const int before = watch.frames();
        QTest::mouseMove(thumbnail, thumbnail->rect().center());
        QTest::mouseClick(thumbnail, Qt::LeftButton, Qt::NoModifier, thumbnail->rect().center());
        return watch.waitForFrameSince(before);
    });
}

QTEST_MAIN(bench_Gradients)
#include "bench_gradients.moc"
