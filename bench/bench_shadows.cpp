#include "bench/paintwatch.h"
#include "lexoria/lexoria.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <vector>

using namespace paintwatch;

namespace {

std::unique_ptr<lexoria> mainWindowShown()
{
    auto w = std::make_unique<lexoria>();
    w->openLexoria();
    if (!QTest::qWaitForWindowExposed(w.get()))
        return nullptr;
    QTest::qWait(200);
    return w;
}

int enabledShadows(const lexoria &w)
{
    int count = 0;
    for (const QWidget *widget : w.findChildren<QWidget *>()) {
        auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(widget->graphicsEffect());
        if (shadow && shadow->isEnabled())
            ++count;
    }
    return count;
}

enum Look { NoShadows, EveryGroupOn, ShadowsCleared };

void giveLook(lexoria &w, Look look)
{
    if (look == NoShadows)
        return;
    // Theme 4 checks all thirteen groups.
    w.shadowTh(4);
    if (look == ShadowsCleared)
        w.shadowThClear();
}

} // namespace

class bench_Shadows : public QObject
{
    Q_OBJECT

private slots:
    void keyPressUntilPainted_data();
    void keyPressUntilPainted();
    void everyGroupUntilPainted();
    void pickerMoveUntilPainted_data();
    void pickerMoveUntilPainted();
};

void bench_Shadows::keyPressUntilPainted_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("no shadows") << int(NoShadows);
    QTest::newRow("every group on") << int(EveryGroupOn);
    QTest::newRow("every group cleared") << int(ShadowsCleared);
}

// The press is timed up to its painted frame; the release is painted untimed.
void bench_Shadows::keyPressUntilPainted()
{
    QFETCH(int, look);
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    giveLook(*w, Look(look));
    PaintWatch watch(w.get());
    watch.waitForFrame();
    qInfo("enabled drop shadows: %d", enabledShadows(*w));
    bool painted = true;
    measureRounds(
        400,
        [&] {
            QTest::keyRelease(w.get(), Qt::Key_F);
            watch.waitForFrame();
        },
        [&] {
            QTest::keyPress(w.get(), Qt::Key_F);
            painted = watch.waitForFrame() && painted;
        });
    QVERIFY(painted);
}

// All thirteen groups applied at once, as a theme does, with the whole window repainted.
void bench_Shadows::everyGroupUntilPainted()
{
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    PaintWatch watch(w.get());
    bool painted = true;
    int theme = 0;
    measureRounds(
        20, [] {},
        [&] {
            // Two themes in turn, so that every round changes every group.
            w->shadowTh(theme % 2 ? 2 : 4);
            ++theme;
            painted = watch.waitForFrame() && painted;
        });
    QVERIFY(painted);
}

void bench_Shadows::pickerMoveUntilPainted_data()
{
    QTest::addColumn<int>("picker");
    QTest::newRow("All Shadow Colors, OK") << 26;
    QTest::newRow("Game Play Shadow, live") << 30;
}

// With every group on, a colour chosen in the picker, up to the painted frame.
void bench_Shadows::pickerMoveUntilPainted()
{
    QFETCH(int, picker);
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    giveLook(*w, EveryGroupOn);
    PaintWatch watch(w.get());
    watch.waitForFrame();
    bool painted = true;
    int step = 0;
    measureRounds(
        60, [] {},
        [&] {
            const QColor colour = QColor::fromHsv((step++ * 37) % 360, 255, 200);
            if (picker == 26)
                w->newColor26(colour);
            else
                w->ako30(colour);
            painted = watch.waitForFrame() && painted;
        });
    QVERIFY(painted);
}

QTEST_MAIN(bench_Shadows)
#include "bench_shadows.moc"
