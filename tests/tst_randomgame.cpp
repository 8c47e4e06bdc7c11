#include "lexoria/linecatalogue.h"
#include "paneldriver.h"

#include <cstdlib>
#include <memory>

namespace {

const QString italicScore = "background-color: transparent; font-style:italic;";

int letterOf(const QString &text)
{
    for (int n = 1; n <= keycatalogue::letterCount; ++n) {
        if (keycatalogue::letterText(n) == text)
            return n;
    }
    return 0;
}

} // namespace

class tst_RandomGame : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(); }
    void cleanup() { closeWindow(); }

    void firstLetterInsideItsGroup_data();
    void firstLetterInsideItsGroup();
    void drawReplaysFromASeed();
    void strictGameEndsAtTwoHundred();

private:
};

void tst_RandomGame::firstLetterInsideItsGroup_data()
{
    QTest::addColumn<QString>("gameButton");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");

    QTest::newRow("everything") << "pbRandomAll" << 1 << 94;
    QTest::newRow("lowercase") << "pbRandomVarious" << 1 << 33;
    QTest::newRow("uppercase") << "pbRandomConsonants" << 34 << 66;
    QTest::newRow("number line") << "pbRandomNumberLine" << 67 << 94;
}

void tst_RandomGame::firstLetterInsideItsGroup()
{
    QFETCH(QString, gameButton);
    QFETCH(int, first);
    QFETCH(int, last);

    game->startGame(gameButton);
    QCOMPARE(game->text("direction"), QString("Random"));
    for (int start = 0; start < 25; ++start) {
        game->click("start");
        const int n = letterOf(game->field("leMatch")->text());
        QVERIFY2(n >= first && n <= last, qPrintable(game->field("leMatch")->text()));
    }
}

void tst_RandomGame::drawReplaysFromASeed()
{
    // The draw as the player's manual tells it: rand() % modulus until it falls on a letter of
    // the game (the program's give-up after modulus + 1 misses never comes for Everything).
    auto draw = [](int modulus) {
        int r = std::rand() % modulus;
        while (r > 93)
            r = std::rand() % modulus;
        return r;
    };
    std::srand(4242);
    const int firstIndex = draw(100000);
    const int nextIndex = draw(900000);

    std::srand(4242);
    game->startGame("pbRandomAll");
    QCOMPARE(game->field("leMatch")->text(), keycatalogue::letterText(firstIndex + 1));
    game->type(firstIndex + 1);
    game->space();
    QCOMPARE(game->field("leMatch")->text(), keycatalogue::letterText(nextIndex + 1));
    QCOMPARE(game->text("labelCorrect"), QString("1"));
}

void tst_RandomGame::strictGameEndsAtTwoHundred()
{
    game->click("strict");
    // Lowercase letters need no Shift, whose own press would be judged in Strict.
    game->startGame("pbRandomVarious");
    game->click("goldenHighlight");
    game->click("lineHighlight");

    int shown = letterOf(game->field("leMatch")->text());
    game->type(shown == 1 ? 2 : 1);
    QCOMPARE(game->text("labelIncorrect"), QString("1"));

    for (int entry = 1; entry < 200; ++entry) {
        shown = letterOf(game->field("leMatch")->text());
        QVERIFY(shown >= 1 && shown <= 33);
        game->type(shown);
        const int next = letterOf(game->field("leMatch")->text());
        // The aids follow the new letter.
        QCOMPARE(game->style(QStringLiteral("bg%1").arg(keycatalogue::keyOfLetter(next))),
            "border-radius: 10px;background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
            "stop: 0 gold, stop: .5  gold);");
        QVERIFY(!game->label(QString::fromLatin1(
                                 linecatalogue::verticalLineOfKey(keycatalogue::keyOfLetter(next))))
                     ->isHidden());
    }
    QCOMPARE(game->text("labelCorrect"), QString("199"));

    const int last = letterOf(game->field("leMatch")->text());
    game->type(last);
    QCOMPARE(game->field("leMatch")->text(), keycatalogue::letterText(last));
    QCOMPARE(game->field("leUser")->text(), keycatalogue::letterText(last));
    QVERIFY(game->style("leMatch").contains("font-style: italic;"));
    QCOMPARE(game->text("labelCorrect"), QString("200"));
    QCOMPARE(game->text("labelIncorrect"), QString("1"));
    QCOMPARE(game->style("labelIncorrect"), italicScore);
    QVERIFY(!game->button("goldenHighlight")->isEnabled());

    // No finished marks and no highlight are left: every key and bar cell is at rest.
    const QString restFace = "border-radius: 10px;background-color: qlineargradient(x1: 0, y1: "
                             "0, x2: 0, y2: 1, stop: 0 black, stop: .5  black);";
    for (int n = 1; n <= keycatalogue::letterCount; ++n) {
        QCOMPARE(game->style(QStringLiteral("r%1bg").arg(n)), restFace);
        QCOMPARE(game->style(QStringLiteral("bg%1").arg(keycatalogue::keyOfLetter(n))), restFace);
    }

    for (QLabel *line : window->findChildren<QLabel *>(QRegularExpression("^(h|v)\\d+(_2)?$")))
        QVERIFY2(line->isHidden(), qPrintable(line->objectName()));

    // A key after the end changes nothing.
    const QString user = game->field("leUser")->text();
    game->type(last == 5 ? 6 : 5);
    QCOMPARE(game->field("leMatch")->text(), keycatalogue::letterText(last));
    QCOMPARE(game->field("leUser")->text(), user);
    QCOMPARE(game->text("labelCorrect"), QString("200"));
    QCOMPARE(game->text("labelIncorrect"), QString("1"));

    QTRY_COMPARE_WITH_TIMEOUT(
        game->text("display2"), QString("Would you like\nto play again?"), 5000);
}

QTEST_MAIN(tst_RandomGame)
#include "tst_randomgame.moc"
