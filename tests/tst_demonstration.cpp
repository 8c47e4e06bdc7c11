#include "paneldriver.h"

#include <QElapsedTimer>

#include <memory>

namespace {

const char *const boxes[] = {"demo1", "demo2", "demo3", "demo4"};
const char *const arrows[] = {"arrow1", "arrow2", "arrow3", "arrow6"};
const QString litTwoBlanks = "background-color: lightsteelblue;  border: 1px solid black;";
const QString litOneBlank = "background-color: lightsteelblue; border: 1px solid black;";
const QString dark = "background-color: transparent;";

// Generous: the machine running the tests may be busy, and a step comes every 3.5 s.
constexpr int stepTimeout = 12000;

} // namespace

class tst_Demonstration : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(Start::Shown); }
    void cleanup() { closeWindow(); }

    void tourLightsEachStepAndHideEndsIt();
    void startDuringTheTourEndsItForGood();

private:
    bool lit(const char *box) const
    {
        const QString style = game->style(box);
        return style == (QByteArray(box) == "demo4" ? litOneBlank : litTwoBlanks);
    }
    // What the player sees of the tour: lit boxes, and arrows standing inside the window.
    QStringList showing() const
    {
        QStringList seen;
        for (const char *box : boxes) {
            // Dark boxes carry no more than a transparent background.
            if (widget(box)->isVisible() && !game->style(box).startsWith(dark))
                seen << box;
        }
        for (const char *arrow : arrows) {
            if (widget(arrow)->isVisible() && window->rect().intersects(widget(arrow)->geometry()))
                seen << arrow;
        }
        return seen;
    }
    void nothingShowsFor(int ms)
    {
        QElapsedTimer watched;
        watched.start();
        while (watched.elapsed() < ms) {
            QTest::qWait(50);
            QVERIFY2(showing().isEmpty(), qPrintable(showing().join(' ')));
            for (const char *box : boxes)
                QVERIFY2(!lit(box), box);
        }
    }
};

void tst_Demonstration::tourLightsEachStepAndHideEndsIt()
{
    for (const char *box : boxes) {
        QVERIFY(widget(box)->isVisible());
        QCOMPARE(game->style(box),
            QString("background-color: transparent; border: 0px solid transparent;"));
    }
    QVERIFY(showing().isEmpty());

    QTRY_VERIFY_WITH_TIMEOUT(lit("demo1"), stepTimeout);
    QCOMPARE(showing(), QStringList({"demo1", "arrow1", "arrow2", "arrow3"}));
    QCOMPARE(widget("arrow1")->pos(), QPoint(8, 178));
    // Clicks on the game buttons go through the arrows that point at them.
    QVERIFY(widget("arrow1")->testAttribute(Qt::WA_TransparentForMouseEvents));

    QTRY_VERIFY_WITH_TIMEOUT(lit("demo2"), stepTimeout);
    QCOMPARE(showing(), QStringList({"demo2"}));
    QCOMPARE(game->style("demo1"), dark);
    QTRY_VERIFY_WITH_TIMEOUT(lit("demo3"), stepTimeout);
    QCOMPARE(showing(), QStringList({"demo3"}));
    QTRY_VERIFY_WITH_TIMEOUT(lit("demo4"), stepTimeout);
    QCOMPARE(showing(), QStringList({"demo4"}));

    // Between two rounds only the red arrow to the options stands.
    QTRY_VERIFY_WITH_TIMEOUT(widget("arrow6")->isVisible(), stepTimeout);
    QCOMPARE(showing(), QStringList({"arrow6"}));
    QCOMPARE(widget("arrow6")->geometry(), QRect(938, 42, 69, 59));
    QCOMPARE(game->text("arrow6"), QString("_"));

    QTRY_VERIFY_WITH_TIMEOUT(lit("demo1"), stepTimeout);
    QCOMPARE(showing(), QStringList({"demo1", "arrow1", "arrow2", "arrow3"}));

    game->click("hideNonVitals");
    for (const char *name : boxes)
        QVERIFY2(!widget(name)->isVisible(), name);
    QVERIFY(showing().isEmpty());

    // Show brings the step labels back on dark boxes; the arrows stand above the window.
    game->click("hideNonVitals");
    for (const char *box : boxes) {
        QVERIFY2(widget(box)->isVisible(), box);
        QCOMPARE(game->style(box), dark);
    }
    for (const char *arrow : arrows)
        QVERIFY2(widget(arrow)->y() < 0, arrow);
    nothingShowsFor(18000);
    for (const char *box : boxes)
        QVERIFY2(widget(box)->isVisible(), box);
}

void tst_Demonstration::startDuringTheTourEndsItForGood()
{
    QTRY_VERIFY_WITH_TIMEOUT(lit("demo2"), 2 * stepTimeout);
    game->click("start");
    for (const char *name : boxes)
        QVERIFY2(!widget(name)->isVisible(), name);
    for (const char *name : arrows)
        QVERIFY2(!widget(name)->isVisible(), name);

    // The shots of the round under way still come, and the end of the game brings nothing back.
    game->click("stop");
    nothingShowsFor(15000);
    for (const char *name : boxes)
        QVERIFY2(!widget(name)->isVisible(), name);
}

QTEST_MAIN(tst_Demonstration)
#include "tst_demonstration.moc"
