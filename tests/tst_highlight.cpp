#include "paneldriver.h"

#include <QRadioButton>

#include <memory>

namespace {

QString gradient(const QString &colour)
{
    return "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " + colour
        + ", stop: .5  " + colour + ");";
}

const QString radius = "border-radius: 10px;";
const QString goldFace = radius + gradient("gold");
const QString restFace = radius + gradient("black");
const QString upperFont = "font-family: Arial Unicode MS;";
const QString calibri = "font-family: Calibri;";

QString fontOf(int n)
{
    return keycatalogue::isUpperRow(n) ? upperFont : QString();
}

QString faceOf(int n)
{
    return QStringLiteral("bg%1").arg(keycatalogue::keyOfLetter(n));
}

QString englishOf(int n)
{
    return QStringLiteral("r%1_3").arg(keycatalogue::keyOfLetter(n));
}

} // namespace

class tst_Highlight : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(); }
    void cleanup() { closeWindow(); }

    void aidButtonsLiveOnlyDuringAGame();
    void highlightPaintsKeyAndBarCell_data();
    void highlightPaintsKeyAndBarCell();
    void highlightFollowsRightEntries_data();
    void highlightFollowsRightEntries();
    void pressOnTheGoldKeyKeepsTheGold();
    void linesCrossOnTheLetter_data();
    void linesCrossOnTheLetter();
    void hintFlashesTheKeyThreeTimes();
    void instructorStirsEveryTwentySeconds();

private:
    QStringList shownLines() const;
};

QStringList tst_Highlight::shownLines() const
{
    QStringList shown;
    const QRegularExpression lineName("^(h|v)\\d+(_2)?$");
    for (QLabel *label : window->findChildren<QLabel *>(lineName)) {
        if (!label->isHidden())
            shown.append(label->objectName());
    }
    shown.sort();
    return shown;
}

void tst_Highlight::aidButtonsLiveOnlyDuringAGame()
{
    for (const char *aid : {"goldenHighlight", "lineHighlight", "hint"})
        QVERIFY2(!game->button(aid)->isEnabled(), aid);
    QCOMPARE(game->style("goldenHighlight"), goldFace + "color: #6e6e6e");

    game->startGame("pbForwardAll");
    for (const char *aid : {"goldenHighlight", "lineHighlight", "hint"})
        QVERIFY2(game->button(aid)->isEnabled(), aid);
    QCOMPARE(game->style("hint"), QString(" color: blue;  "));
    QCOMPARE(game->style("goldenHighlight"), goldFace + "color: black;");

    game->click("stop");
    QVERIFY(!game->button("goldenHighlight")->isEnabled());
    QVERIFY(!game->button("lineHighlight")->isEnabled());
    QCOMPARE(game->style("goldenHighlight"), goldFace + "color: #6e6e6e");
}

void tst_Highlight::highlightPaintsKeyAndBarCell_data()
{
    QTest::addColumn<QString>("gameButton");
    QTest::addColumn<int>("n");

    QTest::newRow("lower row а on F") << "pbForwardAll" << 1;
    QTest::newRow("upper row А on F") << "pbForwardConsonants" << 34;
    QTest::newRow("number line 1") << "pbForwardNumberLine" << 67;
    QTest::newRow("reverse / on the wide key") << "pbReverseNumberLine" << 94;
}

void tst_Highlight::highlightPaintsKeyAndBarCell()
{
    QFETCH(QString, gameButton);
    QFETCH(int, n);
    game->startGame(gameButton);
    QCOMPARE(game->field("leMatch")->text(), keycatalogue::letterText(n));
    const QString font = fontOf(n);
    const QString onKey = QStringLiteral("r%1_2").arg(n);
    const QString inBar = QStringLiteral("r%1").arg(n);
    const QString cell = QStringLiteral("r%1bg").arg(n);

    game->click("goldenHighlight");
    QCOMPARE(game->style(onKey), "color: black;" + font);
    QCOMPARE(game->style(englishOf(n)), "color: black;" + calibri);
    QCOMPARE(game->style(faceOf(n)), goldFace);
    QCOMPARE(game->style(cell), goldFace);
    QCOMPARE(game->style(inBar), "color: black;" + font);
    QVERIFY(!game->button("hint")->isEnabled());
    QCOMPARE(game->style("hint"), QString(" color: #6e6e6e; "));
    QCOMPARE(game->text("letterOfAlphabet2"), QString());

    game->click("goldenHighlight");
    QCOMPARE(game->style(onKey), "color: white;" + font);
    QCOMPARE(game->style(englishOf(n)), "color: white;" + calibri);
    QCOMPARE(game->style(faceOf(n)), restFace);
    QCOMPARE(game->style(cell), restFace);
    QCOMPARE(game->style(inBar), "color: white;" + font);
    QVERIFY(game->button("hint")->isEnabled());
    QCOMPARE(game->style("hint"), QString(" color: blue; "));
}

void tst_Highlight::highlightFollowsRightEntries_data()
{
    QTest::addColumn<bool>("strict");
    QTest::newRow("soft") << false;
    QTest::newRow("strict") << true;
}

void tst_Highlight::highlightFollowsRightEntries()
{
    QFETCH(bool, strict);
    game->click(strict ? "strict" : "soft");
    game->startGame("pbForwardAll");
    game->click("goldenHighlight");
    auto enter = [&](int n) {
        game->type(n);
        if (!strict)
            game->space();
    };

    enter(3); // в, wrong: the gold stays on а
    QCOMPARE(game->style(faceOf(1)), goldFace);
    QCOMPARE(game->style("r1bg"), goldFace);

    enter(1);
    QCOMPARE(game->field("leMatch")->text(), QString("б"));
    QCOMPARE(game->style(faceOf(2)), goldFace);
    QCOMPARE(game->style("r2bg"), goldFace);
    QCOMPARE(game->style("r2_2"), QString("color: black;"));
    QCOMPARE(game->style(faceOf(1)), restFace);
    QCOMPARE(game->style("r1_2"), QString("color: white;"));
    // а is finished: the bar shows it, the keyboard does not.
    QCOMPARE(game->style("r1bg"), radius + gradient("rgb(115, 115, 115)"));

    enter(2);
    QCOMPARE(game->style(faceOf(3)), goldFace);
    QCOMPARE(game->style(faceOf(2)), restFace);
}

void tst_Highlight::pressOnTheGoldKeyKeepsTheGold()
{
    game->startGame("pbForwardAll");
    game->click("goldenHighlight");

    QTest::keyPress(window.get(), Qt::Key_F);
    QCOMPARE(game->style("bg6"), goldFace);
    QCOMPARE(game->style("r1_2"), QString("color: blue;"));
    QCOMPARE(game->style("r6_3"), "color: blue;" + calibri);
    QCOMPARE(game->style("r1bg"), goldFace);
    QCOMPARE(game->style("r1"), QString("color: blue;"));
    QTest::keyRelease(window.get(), Qt::Key_F);
    QCOMPARE(game->style("bg6"), goldFace);
    QCOMPARE(game->style("r1_2"), QString("color: black;"));
    QCOMPARE(game->style("r6_3"), "color: black;" + calibri);
    QCOMPARE(game->style("r1"), QString("color: black;"));

    // The other case on the same key keeps the gold face, but its bar cell is pressed.
    QTest::keyPress(window.get(), Qt::Key_F, Qt::ShiftModifier);
    QCOMPARE(game->style("bg6"), goldFace);
    QCOMPARE(game->style("r34_2"), "color: blue;" + upperFont);
    QCOMPARE(game->style("r34bg"), restFace);
    QTest::keyRelease(window.get(), Qt::Key_F, Qt::ShiftModifier);
    QCOMPARE(game->style("r34_2"), "color: white;" + upperFont);
    QCOMPARE(game->style("r1bg"), goldFace);
}

void tst_Highlight::linesCrossOnTheLetter_data()
{
    QTest::addColumn<QString>("gameButton");
    QTest::addColumn<int>("n");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("nextLines");
    QTest::addColumn<QPoint>("crossing");

    QTest::newRow("lower row а") << "pbForwardAll" << 1 << QStringList {"h3", "v6"}
                                 << QStringList {"h4", "v9_2"} << QPoint(496, 556);
    QTest::newRow("upper row А") << "pbForwardConsonants" << 34 << QStringList {"h3_2", "v6"}
                                 << QStringList {"h4_2", "v9_2"} << QPoint(496, 524);
    QTest::newRow("number line 1, next on the same row")
        << "pbForwardNumberLine" << 67 << QStringList {"h1", "v2"} << QStringList {"h1", "v3"}
        << QPoint(246, 434);
    QTest::newRow("/ on the wide key") << "pbReverseNumberLine" << 94 << QStringList {"h2_2", "v15"}
                                       << QStringList {"h4_2", "v11_2"} << QPoint(1040, 463);
}

void tst_Highlight::linesCrossOnTheLetter()
{
    QFETCH(QString, gameButton);
    QFETCH(int, n);
    QFETCH(QStringList, lines);
    QFETCH(QStringList, nextLines);
    QFETCH(QPoint, crossing);

    game->startGame(gameButton);
    QCOMPARE(shownLines(), QStringList());
    game->click("lineHighlight");
    QCOMPARE(shownLines(), lines);
    const QRect across = game->label(lines[0])->geometry();
    const QRect down = game->label(lines[1])->geometry();
    QCOMPARE(across, QRect(0, crossing.y(), 1211, 5));
    QCOMPARE(down, QRect(crossing.x(), 0, 5, 695));
    QVERIFY(window->findChild<QWidget *>(faceOf(n))->geometry().contains(crossing));
    // Behind the keys, over the wallpaper.
    const QObjectList stack = window->centralWidget()->children();
    QVERIFY(stack.indexOf(game->label("wallpaper")) < stack.indexOf(game->label(lines[1])));
    QVERIFY(stack.indexOf(game->label(lines[0])) < stack.indexOf(game->label(faceOf(n))));

    game->type(n);
    game->space();
    QCOMPARE(shownLines(), nextLines);

    game->click("stop");
    QCOMPARE(shownLines(), QStringList());
}

void tst_Highlight::hintFlashesTheKeyThreeTimes()
{
    window->findChild<QRadioButton *>("keyFlash")->click();
    game->startGame("pbForwardAll");
    game->click("hint");
    QVERIFY(!game->button("goldenHighlight")->isEnabled());
    QVERIFY(!game->button("lineHighlight")->isEnabled());
    QCOMPARE(game->style("goldenHighlight"), goldFace + "color: #6e6e6e; ");
    QVERIFY(game->button("hint")->isChecked());

    // Count the times the face of F lights up until the aids come back.
    const QString pressed = radius + gradient("black")
        + "border-style:none; border-width:0px;  border-color: transparent;";
    int flashes = 0;
    bool lit = false;
    QElapsedTimer clock;
    clock.start();
    while (!game->button("goldenHighlight")->isEnabled() && clock.elapsed() < 10000) {
        const bool nowLit = game->style("bg6") == pressed;
        if (nowLit && !lit)
            ++flashes;
        lit = nowLit;
        QTest::qWait(20);
    }
    QCOMPARE(flashes, 3);
    QVERIFY(game->button("lineHighlight")->isEnabled());
    QVERIFY(!game->button("hint")->isChecked());
    QCOMPARE(game->style("goldenHighlight"), goldFace + "color: black;");
    QCOMPARE(game->field("leUser")->text(), QString());
    QCOMPARE(game->field("leMatch")->text(), QString("а"));
    QCOMPARE(game->text("labelCorrect"), QString());
}

void tst_Highlight::instructorStirsEveryTwentySeconds()
{
    QLabel *figure = game->label("piclabel1");
    auto shows = [figure](const char *pose) {
        return figure->pixmap(Qt::ReturnByValue).toImage()
            == QPixmap(QStringLiteral(":/new/prefix1/%1.png").arg(QLatin1String(pose))).toImage();
    };
    game->startGame("pbForwardAll");
    QVERIFY(shows("chdown"));
    QTRY_VERIFY_WITH_TIMEOUT(shows("chup"), 30000);
    QTRY_VERIFY_WITH_TIMEOUT(shows("chmiddle"), 4000);
    QTRY_VERIFY_WITH_TIMEOUT(shows("chup"), 4000);
    QTRY_VERIFY_WITH_TIMEOUT(shows("chdown"), 4000);
}

QTEST_MAIN(tst_Highlight)
#include "tst_highlight.moc"
