#include "bench/paintwatch.h"
#include "lexoria/lexoria.h"

#include <QColorDialog>
#include <QElapsedTimer>
#include <QPushButton>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

// VORTIC_BENCH_SHORT=1 drags through a few colours only, so that CI proves the benchmark
// still works without spending time on figures nobody reads there.
int colourCount()
{
    return qEnvironmentVariableIntValue("VORTIC_BENCH_SHORT") == 1 ? 3 : 100;
}

std::unique_ptr<lexoria> mainWindowShown()
{
    auto w = std::make_unique<lexoria>();
    PaintWatch watch(w.get());
    w->findChild<QMainWindow *>(QStringLiteral("openingWindow"))
        ->findChild<QPushButton *>(QStringLiteral("startLearnRussianTyping"))
        ->click();
    if (!watch.waitForFrame())
        return nullptr;
    return w;
}

} // namespace

class bench_Pickers : public QObject
{
    Q_OBJECT

private slots:
    void makeOnePicker();
    void dragUntilPainted_data();
    void dragUntilPainted();
};

// What one picker costs to make: thirty of these in the constructor would be paid by every
// start, which is why each picker is made on its first opening instead.
void bench_Pickers::makeOnePicker()
{
    std::vector<std::unique_ptr<QColorDialog>> made;
    QBENCHMARK
    {
        auto dialog = std::make_unique<QColorDialog>();
        dialog->setOption(QColorDialog::DontUseNativeDialog);
        dialog->setOption(QColorDialog::ShowAlphaChannel);
        dialog->setCurrentColor(Qt::black);
        made.push_back(std::move(dialog));
    }
}

void bench_Pickers::dragUntilPainted_data()
{
    QTest::addColumn<int>("picker");
    QTest::newRow("1 English labels") << 1;
    QTest::newRow("2 Russian letters") << 2;
    QTest::newRow("3 key background") << 3;
    QTest::newRow("14 key background gradient") << 14;
}

// Each step is one move of the picker's colour field: the live colour is restyled into the
// board and the main window has painted it.
void bench_Pickers::dragUntilPainted()
{
    QFETCH(int, picker);
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    w->enableColor(picker);
    QColorDialog *dialog = w->picker(picker);
    QCoreApplication::processEvents();

    PaintWatch watch(w.get());
    std::vector<qint64> nanoseconds;
    std::vector<qint64> beforePaint;
    bool painted = true;
    const int colours = colourCount();
    for (int i = 0; i < colours; ++i) {
        const QColor colour = QColor::fromHsv(i * 359 / colours, 255, 80 + i % 150, 255 - i % 60);
        QElapsedTimer timer;
        timer.start();
        dialog->setCurrentColor(colour);
        watch.clock = &timer;
        painted = watch.waitForFrame() && painted;
        nanoseconds.push_back(timer.nsecsElapsed());
        beforePaint.push_back(watch.firstPaintAt);
    }
    QVERIFY(painted);
    std::sort(nanoseconds.begin(), nanoseconds.end());
    std::sort(beforePaint.begin(), beforePaint.end());
    qInfo("picker %d, %d colours: restyled and painted: median %.3f ms, worst %.3f ms; "
          "restyled, until the paint starts: median %.3f ms, worst %.3f ms",
        picker, colours, nanoseconds[nanoseconds.size() / 2] / 1e6, nanoseconds.back() / 1e6,
        beforePaint[beforePaint.size() / 2] / 1e6, beforePaint.back() / 1e6);
    QTest::setBenchmarkResult(nanoseconds[nanoseconds.size() / 2], QTest::WalltimeNanoseconds);
    dialog->accept();
}

QTEST_MAIN(bench_Pickers)
#include "bench_pickers.moc"
