#include "paneldriver.h"

#include <QRadioButton>

#include <memory>

namespace {

const QString litCell = "background-color: black; color:blue;";

// Records every moment a bar cell takes the lit look of the wave, in order.
class WaveRecorder : public QObject
{
public:
    explicit WaveRecorder(lexoria *window)
    {
        for (int n = 1; n <= 94; ++n) {
            QLabel *cell = window->findChild<QLabel *>(QStringLiteral("r%1").arg(n));
            cell->setProperty("letter", n);
            cell->installEventFilter(this);
        }
    }
    QList<int> lit;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::StyleChange
            && static_cast<QWidget *>(watched)->styleSheet().startsWith(litCell))
            lit.append(watched->property("letter").toInt());
        return false;
    }
};

QList<int> range(int from, int to)
{
    QList<int> letters;
    for (int n = from; from <= to ? n <= to : n >= to; n += (from <= to ? 1 : -1))
        letters.append(n);
    return letters;
}

} // namespace

class tst_GameSelection : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(); }
    void cleanup() { closeWindow(); }

    void buttonsChooseTheGame_data();
    void buttonsChooseTheGame();
    void waveLightsTheGameInOrder_data();
    void waveLightsTheGameInOrder();
    void noWaveWhenOffOrDuringAGame();
    void animationSwitchLooks();

private:
    bool shielded(const char *shield, const char *under) const;
};

bool tst_GameSelection::shielded(const char *shield, const char *under) const
{
    QWidget *central = window->findChild<QWidget *>("centralWidget");
    const QPoint centre = window->findChild<QWidget *>(under)->geometry().center();
    return central->childAt(centre) == window->findChild<QWidget *>(shield);
}

void tst_GameSelection::buttonsChooseTheGame_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("groupRadio");
    QTest::addColumn<QString>("directionRadio");
    QTest::addColumn<QString>("firstLetter");

    struct Group
    {
        const char *button, *type, *radio, *captions[3], *firstLetters[2];
    };
    const Group groups[] = {
        {"All", "Everything !!", "rbAll", {"а - /", "/ - а", "э Я )"}, {"а", "/"}},
        {"Various", "Lowercase", "rbVarious", {"а - я", "я - а", "х я й"}, {"а", "я"}},
        {"Consonants", "Uppercase", "rbConsonants", {"А - Я", "Я - А", "Ж Ы Н"}, {"А", "Я"}},
        {"NumberLine", "Number Line", "rbNumberLine", {"1 - /", "/ - 1", "№ 9 !"}, {"1", "/"}},
    };
    const char *const directions[] = {"Forward", "Reverse", "Random"};
    for (const Group &group : groups) {
        for (int d = 0; d < 3; ++d) {
            const QString direction = directions[d];
            QTest::addRow("%s %s", directions[d], group.type)
                << "pb" + direction + group.button << group.type << direction << group.captions[d]
                << group.radio << "rb" + direction + "_2" << (d < 2 ? group.firstLetters[d] : "");
        }
    }
}

void tst_GameSelection::buttonsChooseTheGame()
{
    QFETCH(QString, button);
    QFETCH(QString, direction);
    QFETCH(QString, groupRadio);
    QFETCH(QString, directionRadio);

    // The window opens on forward Everything.
    QCOMPARE(game->text("type"), QString("Everything !!"));
    QCOMPARE(game->text("direction"), QString("Forward"));
    QCOMPARE(game->text("typeOfGame"), QString("а - /"));

    game->startGame(button);
    QTEST(game->text("type"), "type");
    QCOMPARE(game->text("direction"), direction);
    QTEST(game->text("typeOfGame"), "caption");
    QVERIFY(window->findChild<QRadioButton *>(groupRadio)->isChecked());
    QVERIFY(window->findChild<QRadioButton *>(directionRadio)->isChecked());
    if (direction != "Random")
        QTEST(game->field("leMatch")->text(), "firstLetter");
}

void tst_GameSelection::waveLightsTheGameInOrder_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QList<int>>("order");

    QTest::newRow("forward Lowercase") << "pbForwardVarious" << range(1, 33);
    QTest::newRow("reverse Uppercase") << "pbReverseConsonants" << range(66, 34);
    QTest::newRow("forward Number Line") << "pbForwardNumberLine" << range(67, 94);
    // Fixed and scrambled, with ш twice.
    QTest::newRow("random Lowercase")
        << "pbRandomVarious"
        << QList<int> {20, 11, 28, 12, 27, 13, 1, 16, 33, 23, 5, 29, 32, 10, 18, 26, 31, 19, 22, 2,
               14, 17, 3, 9, 25, 24, 30, 15, 8, 26};
}

void tst_GameSelection::waveLightsTheGameInOrder()
{
    QFETCH(QString, button);
    QFETCH(QList<int>, order);

    const QString restFirst = game->style(QStringLiteral("r%1").arg(order.first()));
    WaveRecorder recorder(window.get());
    game->click(button);
    QVERIFY(shielded("shieldStart", "start"));
    QVERIFY(shielded("shieldConsonants", "pbForwardConsonants"));
    QVERIFY(shielded("shieldEverything", "pbRandomAll"));

    QTRY_VERIFY_WITH_TIMEOUT(!window->findChild<QLabel *>("shieldStart")->isVisible(), 8000);
    QCOMPARE(recorder.lit, order);
    QVERIFY(!shielded("shieldStart", "start"));
    QVERIFY(!window->findChild<QLabel *>("shieldNumberLine")->isVisible());
    for (int n : order)
        QVERIFY(!game->style(QStringLiteral("r%1").arg(n)).startsWith(litCell));
    QCOMPARE(game->style(QStringLiteral("r%1").arg(order.first())), restFirst);
}

void tst_GameSelection::noWaveWhenOffOrDuringAGame()
{
    WaveRecorder recorder(window.get());
    game->click("animationOff");
    game->click("pbForwardVarious");
    QVERIFY(!window->findChild<QLabel *>("shieldStart")->isVisible());
    QCOMPARE(game->text("typeOfGame"), QString("а - я"));

    game->click("animationOn");
    game->click("start");
    game->click("pbReverseConsonants");
    QCOMPARE(game->text("typeOfGame"), QString("Я - А"));
    QCOMPARE(game->field("leMatch")->text(), QString("а")); // the game in play keeps its letter
    QVERIFY(!window->findChild<QLabel *>("shieldStart")->isVisible());
    QTest::qWait(200);
    QVERIFY(recorder.lit.isEmpty());
}

void tst_GameSelection::animationSwitchLooks()
{
    QCOMPARE(game->style("animationOn"), QString("color:  blue;"));
    QCOMPARE(game->style("animationOff"), QString("color: black;"));
    game->click("animationOff");
    QCOMPARE(game->style("animationOn"), QString("color: black;"));
    QCOMPARE(game->style("animationOff"), QString("color: blue;"));
    QVERIFY(game->button("animationOff")->isChecked());

    game->click("start");
    QCOMPARE(game->style("animationOn"), QString("color: #6e6e6e;"));
    QVERIFY(!game->button("animationOn")->isEnabled());
    game->click("stop");
    QVERIFY(game->button("animationOn")->isEnabled());
    QCOMPARE(game->style("animationOn"), QString("color: blue;"));
    QCOMPARE(game->style("animationOff"), QString("color: black;"));
    // Stop turns the wave back on whatever it was before the game.
    WaveRecorder recorder(window.get());
    game->click("pbForwardNumberLine");
    QTRY_VERIFY(!recorder.lit.isEmpty());
}

QTEST_MAIN(tst_GameSelection)
#include "tst_gameselection.moc"
