#include "lexoria/keycatalogue.h"
#include "lexoria/lexoria.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QElapsedTimer>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

bool shortRun()
{
    return qEnvironmentVariableIntValue("VORTIC_BENCH_SHORT") == 1;
}

QColorDialog *openPicker()
{
    for (QWidget *top : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<QColorDialog *>(top); dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

void report(const char *what, std::vector<qint64> times)
{
    std::sort(times.begin(), times.end());
    qInfo("%s: %d Enters, median %.3f ms, 90%% %.3f ms, longest %.3f ms", what, int(times.size()),
        times[times.size() / 2] / 1e6, times[times.size() * 9 / 10] / 1e6, times.back() / 1e6);
    QTest::setBenchmarkResult(times[times.size() / 2], QTest::WalltimeNanoseconds);
}

} // namespace

// The pointer sweeping over the keyboard while a rainbow picker is open: every Enter paints a
// key in a colour it did not have, so no restyle is skipped as unchanged.
class bench_Painting : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void enterPaints_data();
    void enterPaints();

private:
    void choose(const char *name, bool checked);

    std::unique_ptr<lexoria> window;
};

void bench_Painting::init()
{
    window = std::make_unique<lexoria>();
    window->openLexoria();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void bench_Painting::cleanup()
{
    if (QColorDialog *dialog = openPicker())
        dialog->reject();
    window.reset();
}

// The Paint tab's choices, or stand-ins where the form has none.
void bench_Painting::choose(const char *name, bool checked)
{
    auto *button = window->findChild<QAbstractButton *>(QLatin1String(name));
    if (!button) {
        button = new QCheckBox(window->centralWidget());
        button->setObjectName(QLatin1String(name));
        button->hide();
    }
    button->setChecked(checked);
}

void bench_Painting::enterPaints_data()
{
    QTest::addColumn<QString>("layer");
    QTest::addColumn<bool>("both");
    QTest::addColumn<QString>("cells");

    // Both with the upper case is the most an Enter can restyle: face, two bar cells, two
    // labels of the letter.
    QTest::newRow("keys, Both and upper case") << "rainbowUppercase" << true << "shield%1";
    QTest::newRow("bar cells, Both and upper case") << "rainbowUppercase" << true << "r%1";
    QTest::newRow("keys, background") << "rainbowBackground" << false << "shield%1";
}

void bench_Painting::enterPaints()
{
    QFETCH(QString, layer);
    QFETCH(bool, both);
    QFETCH(QString, cells);

    for (const char *name : {"rainbowBackground", "rainbowBorder", "rainbowEnglish",
             "rainbowLowercase", "rainbowUppercase"})
        choose(name, false);
    choose(qPrintable(layer), true);
    choose("rainbowBoth", both);
    window->enableColor(23);
    QColorDialog *picker = openPicker();
    if (!picker)
        QSKIP("the rainbow picker is not part of this build");

    const int count
        = cells.startsWith('r') ? keycatalogue::letterCount : keycatalogue::characterKeyCount;
    const int rounds = shortRun() ? 1 : 5;
    std::vector<qint64> handler;
    std::vector<qint64> withPaint;
    QElapsedTimer clock;
    for (int round = 0; round < rounds; ++round) {
        for (int i = 1; i <= count; ++i) {
            picker->setCurrentColor(QColor::fromHsv((round * 37 + i * 7) % 360, 220, 230));
            QWidget *cell = window->findChild<QWidget *>(cells.arg(i));
            QApplication::processEvents();
            QEvent enter(QEvent::Enter);
            clock.start();
            QApplication::sendEvent(cell, &enter);
            handler.push_back(clock.nsecsElapsed());
            // What the user waits for: the handler, then the polish and repaint of the labels it
            // restyled, which the event loop does next.
            QApplication::processEvents();
            withPaint.push_back(clock.nsecsElapsed());
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(cell, &leave);
        }
    }
    report("handler", handler);
    report("handler and repaint", withPaint);
}

QTEST_MAIN(bench_Painting)
#include "bench_painting.moc"
