#include "paneldriver.h"

#include <QLCDNumber>
#include <QRadioButton>

#include <memory>

namespace {

const QString finishedGradient = "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                                 "stop: 0 rgb(115, 115, 115), stop: .5  rgb(115, 115, 115));";
const QString upperFont = "font-family: Arial Unicode MS;";
const QString italicScore = "background-color: transparent; font-style:italic;";
const QString normalScore = "background-color: transparent; font-style:normal;";

QString fontOf(int n)
{
    return keycatalogue::isUpperRow(n) ? upperFont : QString();
}

QList<int> range(int from, int to)
{
    QList<int> letters;
    const int step = from <= to ? 1 : -1;
    for (int n = from; n != to + step; n += step)
        letters.append(n);
    return letters;
}

} // namespace

class tst_Game : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(); }
    void cleanup() { closeWindow(); }

    void fullStrictGame_data();
    void fullStrictGame();
    void softEntriesWaitForSpace();
    void strictJudgesEveryKey();
    void stopKeepsTheScoreAndFreezesTheClock();
    void clockRadiosPauseAndResume();
    void instructorCommentsAndClears();

private:
    int lcd() const { return window->findChild<QLCDNumber *>("lcd")->intValue(); }
};

void tst_Game::fullStrictGame_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QList<int>>("letters");

    QTest::newRow("forward Lowercase") << "pbForwardVarious" << range(1, 33);
    QTest::newRow("reverse Uppercase") << "pbReverseConsonants" << range(66, 34);
    QTest::newRow("forward Number Line") << "pbForwardNumberLine" << range(67, 94);
}

void tst_Game::fullStrictGame()
{
    QFETCH(QString, button);
    QFETCH(QList<int>, letters);

    game->click("strict");
    game->startGame(button);
    QCOMPARE(game->text("labelCorrect"), QString());
    for (int n : letters) {
        // At a player's pace: Shift pressed while the last entry still stands would be judged.
        QTRY_COMPARE(game->field("leUser")->text(), QString());
        game->type(n);
    }

    const QString last = game->text(QStringLiteral("r%1").arg(letters.last()));
    QCOMPARE(game->text("labelCorrect"), QString::number(letters.size()));
    QCOMPARE(game->text("labelIncorrect"), QString("0"));
    QCOMPARE(game->style("labelCorrect"), italicScore);
    QCOMPARE(game->field("leMatch")->text(), last);
    QCOMPARE(game->field("leUser")->text(), last);
    const QString italic = "background-color: transparent; font-style: italic; "
        + fontOf(letters.last()) + "color: black; font-size: 24pt; border: none;";
    QCOMPARE(game->style("leMatch"), italic);
    QCOMPARE(game->style("leUser"), italic);

    // Every letter of the game is finished in the bar; the release of each key has put its
    // letter into the finished rest look.
    for (int n : letters) {
        const QString cell = QStringLiteral("r%1").arg(n);
        QCOMPARE(game->style(cell + "bg"), "border-radius: 10px;" + finishedGradient);
        QCOMPARE(game->style(cell), " color: white; " + fontOf(n));
    }
    // The game is over: keys no longer make entries.
    game->type(letters.first());
    QCOMPARE(game->field("leUser")->text(), last);
    QCOMPARE(game->text("labelCorrect"), QString::number(letters.size()));

    // A restart within two seconds of the finish still gets the question.
    game->click("start");
    QCOMPARE(game->text("labelCorrect"), QString());
    QCOMPARE(game->style("labelCorrect"), normalScore);
    QTRY_COMPARE_WITH_TIMEOUT(
        game->text("display2"), QString("Would you like\nto play again?"), 2500);
}

void tst_Game::softEntriesWaitForSpace()
{
    game->startGame("pbForwardVarious");
    game->space(); // nothing typed yet: no entry
    QCOMPARE(game->text("labelIncorrect"), QString());

    game->type(10); // и
    QCOMPARE(game->field("leUser")->text(), QString("и"));
    QCOMPARE(game->text("labelIncorrect"), QString());
    game->space();
    QCOMPARE(game->text("labelIncorrect"), QString("1"));
    QCOMPARE(game->text("labelCorrect"), QString("0"));
    QTRY_COMPARE(game->field("leUser")->text(), QString());

    game->type(17); // п, then thought better of it
    game->type(1);
    QCOMPARE(game->field("leUser")->text(), QString("а"));
    game->space();
    QCOMPARE(game->text("labelCorrect"), QString("1"));
    QCOMPARE(game->field("leMatch")->text(), QString("б"));
    QCOMPARE(game->style("r1"), QString(" color: white; ")); // а is finished
    QCOMPARE(game->style("r1bg"), "border-radius: 10px;" + finishedGradient);
    QTRY_COMPARE(game->field("leUser")->text(), QString());
    game->space();
    QCOMPARE(game->text("labelCorrect"), QString("1"));
    QCOMPARE(game->text("labelIncorrect"), QString("1"));
}

void tst_Game::strictJudgesEveryKey()
{
    game->click("strict");
    QVERIFY(game->label("displayStrict")->isVisible());
    QVERIFY(!game->label("displaySoft")->isVisible());
    game->startGame("pbForwardConsonants");
    QCOMPARE(game->field("leMatch")->text(), QString("А"));
    game->type(34);
    QCOMPARE(game->text("labelCorrect"), QString("1"));
    // Shift alone within the clearing delay finds the old entry and judges it against Б.
    QTest::keyClick(window.get(), Qt::Key_Shift);
    QCOMPARE(game->text("labelIncorrect"), QString("1"));
    QTRY_COMPARE(game->field("leUser")->text(), QString());
    QTest::keyClick(window.get(), Qt::Key_F1); // nothing to judge now
    QCOMPARE(game->text("labelIncorrect"), QString("1"));
    game->type(2); // б without Shift is wrong in the Uppercase game
    QCOMPARE(game->text("labelIncorrect"), QString("2"));
    game->type(35);
    QCOMPARE(game->text("labelCorrect"), QString("2"));
}

void tst_Game::stopKeepsTheScoreAndFreezesTheClock()
{
    game->startGame("pbForwardVarious");
    game->type(1);
    game->space();
    QTRY_VERIFY_WITH_TIMEOUT(lcd() >= 1, 2500);
    game->click("stop");
    const int stoppedAt = lcd();
    QTest::qWait(1200);
    QCOMPARE(lcd(), stoppedAt);
    QCOMPARE(game->text("labelCorrect"), QString("1"));
    QCOMPARE(game->field("leMatch")->text(), QString("б"));
    QCOMPARE(game->style("labelCorrect"), normalScore);
    QCOMPARE(game->style("stop"),
        QString("font-size: 16pt; font-family: 'MS Shell Dlg 2';  color: maroon;"));

    // After Stop keys no longer make entries.
    game->type(2);
    QCOMPARE(game->field("leUser")->text(), QString());

    game->click("start");
    QCOMPARE(game->text("labelCorrect"), QString()); // empty, not "0"
    QCOMPARE(game->text("labelIncorrect"), QString());
    QCOMPARE(lcd(), 0);
    QCOMPARE(game->field("leMatch")->text(), QString("а"));
    QCOMPARE(game->style("r1"), QString("color: white;")); // the last game's marks are gone
    QCOMPARE(game->style("start"),
        QString("font-size: 16pt; font-family: 'MS Shell Dlg 2'; color: rgb(0, 94, 0);"));
}

void tst_Game::clockRadiosPauseAndResume()
{
    game->startGame("pbForwardAll");
    QTRY_VERIFY_WITH_TIMEOUT(lcd() >= 1, 2500);
    window->findChild<QRadioButton *>("off")->click();
    const int pausedAt = lcd();
    QTest::qWait(1200);
    QCOMPARE(lcd(), pausedAt);
    game->type(1); // entries are still judged while the clock stands
    game->space();
    QCOMPARE(game->text("labelCorrect"), QString("1"));
    window->findChild<QRadioButton *>("on")->click();
    QTRY_VERIFY_WITH_TIMEOUT(lcd() == pausedAt + 1, 2500);
}

void tst_Game::instructorCommentsAndClears()
{
    QVERIFY(game->label("display3")->isVisible());
    game->click("strict");
    game->startGame("pbForwardVarious");
    QVERIFY(!game->label("display3")->isVisible());
    QCOMPARE(game->text("display2"), game->text("mes1"));
    for (int n = 1; n <= 6; ++n)
        game->type(n);
    QCOMPARE(game->field("leMatch")->text(), QString("ё"));
    QCOMPARE(game->text("display2"), game->text("mes2"));
    // The comment from Start clears after seven seconds and takes the later one with it.
    QTRY_COMPARE_WITH_TIMEOUT(game->text("display2"), QString(), 7500);
}

QTEST_MAIN(tst_Game)
#include "tst_game.moc"
