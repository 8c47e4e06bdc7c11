// Clicks go through the platform layer, so that underMouse() holds for the thumbnail under the
// pointer, which is how the main window finds the shape that was clicked.
#define QTEST_QPA_MOUSE_HANDLING

#include "paneldriver.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>

#include <memory>

namespace {
const QString radius = "border-radius: 10px;";
const QString gameBorder = "border: 1px solid #6e6e6e;";
} // namespace

class tst_Gradients : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(Start::Pointed); }
    void cleanup() { closeWindow(); }

    void startPiecesAreTheVerticalShapeOfTheStartColours();
    void keysShapesReachTheWholeBoard_data();
    void keysShapesReachTheWholeBoard();
    void borderShapeLeavesTheBackgroundAlone_data();
    void borderShapeLeavesTheBackgroundAlone();
    void gamePlayShapesColourTheFields_data();
    void gamePlayShapesColourTheFields();
    void radialShapeKeepsItsOwnColours();
    void stopSliderWritesTheStopAndKeepsThePositionAtZero();
    void swapExchangesTheSelectedSideAndBack();
    void thumbnailsChooseTheShapeOfTheSelectedSide();
    void lineHighlightBothGivesEveryLineTheVerticalLook();
    void wallpaperAndHeadersTakeTheirLooks();
    void animateGradientSwingsAndFreezes();

private:
    void check(const QString &name) { window->findChild<QAbstractButton *>(name)->click(); }
    // What the key-background pickers would have written.
    void setKeysColours(const QString &top, const QString &base, const QString &radialTop,
        const QString &radialBase)
    {
        window->targets.keys.bg = {base, top, radialBase, radialTop, 1, 5};
    }
};

void tst_Gradients::startPiecesAreTheVerticalShapeOfTheStartColours()
{
    auto vertical = [](const QString &c) {
        return "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " + c
            + ", stop: .5  " + c + ");";
    };
    QCOMPARE(style("bg1"), radius + vertical("black"));
    QCOMPARE(style("demoLetterRightBg"), radius + vertical("gold"));
    QCOMPARE(style("demoLetterCenterBG"),
        radius + vertical("black")
            + "border-style:none; border-width:0px;  border-color: transparent;");
}

void tst_Gradients::keysShapesReachTheWholeBoard_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QString>("piece");
    const QString tail = ", stop: .5  rgba(0, 0, 255, 255 ) );";
    QTest::newRow("off") << 0 << "background-color: rgba(0, 0, 255, 255 ) ; ";
    QTest::newRow("vertical") << 1
                              << "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                                 "stop: 0 rgba(255, 0, 0, 255 ) "
            + tail;
    QTest::newRow("horizontal") << 2
                                << "background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: "
                                   "0, stop: 0 rgba(255, 0, 0, 255 ) "
            + tail;
    QTest::newRow("diagonal") << 3
                              << "background-color: qlineargradient(x1: .8, y1: .8, x2: 0, y2: "
                                 "0, stop: 0 rgba(255, 0, 0, 255 ) "
            + tail;
    QTest::newRow("radial") << 4
                            << "background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, "
                               "fx:0.5, fy:0.5, stop : 0 #ff0000, stop: .5  #0000ff);";
    QTest::newRow("repeating")
        << 5
        << "background-color: qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, "
           "fy:0.5,   stop : 0 rgba(255, 0, 0, 255 ) "
            + tail;
}

void tst_Gradients::keysShapesReachTheWholeBoard()
{
    QFETCH(int, shape);
    QFETCH(QString, piece);
    setKeysColours("rgba(255, 0, 0, 255 ) ", "rgba(0, 0, 255, 255 ) ", "#ff0000", "#0000ff");
    slider("hoSlider1")->setValue(shape == 1 ? 0 : 1);
    slider("hoSlider1")->setValue(shape);

    for (const char *face :
        {"bg1", "bg26", "bg47", "bgSpacebar", "aKeysMap5", "r1bg", "r94bg", "demoLetter1Bg"})
        QCOMPARE(style(face), radius + piece);
}

void tst_Gradients::borderShapeLeavesTheBackgroundAlone_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QString>("piece");
    QTest::newRow("off") << 0 << "border-style:solid; border-width: 0px; border-color: black;";
    QTest::newRow("vertical, width 0")
        << 1
        << "border-style:solid; border-width:0px; border-color: qlineargradient(x1: 0, y1: 0, x2: "
           "0, y2: 1, stop: 0 black, stop: .5  black);";
    QTest::newRow("radial") << 4
                            << "border-style:solid; border-width:0px; border-color: "
                               "qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, "
                               "stop : 0 black, stop: .5  black);";
}

void tst_Gradients::borderShapeLeavesTheBackgroundAlone()
{
    QFETCH(int, shape);
    QFETCH(QString, piece);
    const QString background = style("bg1");
    check("borderLeft");
    slider("hoSlider1")->setValue(shape == 1 ? 0 : 1);
    slider("hoSlider1")->setValue(shape);
    QCOMPARE(style("bg1"), background + piece);
    QCOMPARE(style("r1bg"), background);

    // Back on the background, the shape slider no longer touches the border.
    check("backgroundLeft");
    slider("hoSlider1")->setValue(2);
    QVERIFY(style("bg1").endsWith(piece));
    QVERIFY(style("bg1").contains("x2: 1, y2: 0"));
}

void tst_Gradients::gamePlayShapesColourTheFields_data()
{
    QTest::addColumn<int>("shape");
    QTest::addColumn<QString>("piece");
    QTest::newRow("off") << 0 << "background-color: white; ";
    QTest::newRow("horizontal") << 2
                                << "background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: "
                                   "0, stop: 0 white, stop: .5  white);";
    QTest::newRow("repeating") << 5
                               << "background-color: qradialgradient(spread:repeat, cx:  .5, cy:  "
                                  ".5, radius: .1,fx:0.5, fy:0.5,   stop : 0 white, stop: .5  "
                                  "white);";
}

void tst_Gradients::gamePlayShapesColourTheFields()
{
    QFETCH(int, shape);
    QFETCH(QString, piece);
    slider("hoSlider27")->setValue(shape);
    QCOMPARE(style("leMatchBg"), radius + piece + gameBorder);
    QCOMPARE(style("leUserBg"), radius + piece + gameBorder);
    // Only the fields: the keys' look is not the game play's.
    QCOMPARE(style("bg1").contains("white"), false);

    check("matchThisCm");
    slider("hoSlider27")->setValue(shape == 3 ? 1 : 3);
    QVERIFY(style("leMatchBg").contains("x1: .8, y1: .8") == (shape != 3));
    QCOMPARE(style("leUserBg"), radius + piece + gameBorder);
}

// A picker that writes only the plain pair leaves the radial shape with the old colours.
void tst_Gradients::radialShapeKeepsItsOwnColours()
{
    window->targets.keys.bg.color = "rgba(255, 0, 0, 255 ) ";
    window->targets.keys.bg.gradColor = "rgba(255, 0, 0, 255 ) ";
    slider("hoSlider1")->setValue(4);
    QVERIFY(style("bg1").contains("stop : 0 black, stop: .5  black"));
    slider("hoSlider1")->setValue(1);
    QVERIFY(
        style("bg1").contains("stop: 0 rgba(255, 0, 0, 255 ) , stop: .5  rgba(255, 0, 0, 255 ) "));
}

void tst_Gradients::stopSliderWritesTheStopAndKeepsThePositionAtZero()
{
    slider("slider1")->setValue(8);
    QCOMPARE(window->targets.keys.bg.stopPos, 8);
    QVERIFY(style("bg1").contains(", stop: .8  black"));
    QVERIFY(style("r50bg").contains(", stop: .8  black"));

    slider("slider1")->setValue(0);
    QVERIFY(style("bg1").contains(", stop: 0  black"));
    QCOMPARE(window->targets.keys.bg.stopPos, 8);
    slider("slider1")->setValue(10);
    QVERIFY(style("bg1").contains(", stop: 1  black"));
    QCOMPARE(window->targets.keys.bg.stopPos, 10);

    check("borderLeft");
    slider("slider1")->setValue(3);
    QCOMPARE(window->targets.keys.border.stopPos, 3);
    QCOMPARE(window->targets.keys.bg.stopPos, 10);

    // The rainbow target keeps no position at all; the keypress sample follows its stop.
    slider("slider8")->setValue(2);
    QCOMPARE(window->targets.rainbow.bg.stopPos, 5);
    slider("slider2")->setValue(9);
    QVERIFY(style("demoLetterCenterBG").contains(", stop: .9  black"));
}

void tst_Gradients::swapExchangesTheSelectedSideAndBack()
{
    setKeysColours("rgba(255, 0, 0, 255 ) ", "rgba(0, 0, 255, 255 ) ", "#ff0000", "#0000ff");
    window->targets.keys.border = {"green", "yellow", "#008000", "#ffff00", 1, 5};
    slider("hoSlider1")->setValue(4);
    const QString before = style("bg1");
    QVERIFY(before.contains("stop : 0 #ff0000, stop: .5  #0000ff"));

    game->click("swapGradient1");
    QVERIFY(style("bg1").contains("stop : 0 #0000ff, stop: .5  #ff0000"));
    QCOMPARE(style("r10bg"), radius + window->pieces.keysBgStyle);
    QCOMPARE(window->targets.keys.bg.color, QString("rgba(255, 0, 0, 255 ) "));
    QCOMPARE(window->targets.keys.border.color, QString("green"));

    game->click("swapGradient1");
    QCOMPARE(style("bg1"), before);

    check("borderLeft");
    game->click("swapGradient1");
    QCOMPARE(window->targets.keys.border.color, QString("yellow"));
    QCOMPARE(window->targets.keys.border.radialGradColor, QString("#008000"));
    QCOMPARE(window->targets.keys.bg.color, QString("rgba(0, 0, 255, 255 ) "));
}

void tst_Gradients::thumbnailsChooseTheShapeOfTheSelectedSide()
{
    game->click("options");
    game->click("menuColorMadness");
    QTRY_VERIFY(widget("grad14")->isVisible());
    clickLabel("grad14");
    QCOMPARE(slider("hoSlider1")->value(), 4);
    QCOMPARE(window->targets.keys.bg.shape, 4);
    QVERIFY(style("bg30").contains("qradialgradient( cx: .5"));
    QVERIFY(style("demoLetter1Bg").contains("qradialgradient( cx: .5"));

    check("borderLeft");
    clickLabel("grad10");
    QCOMPARE(slider("hoSlider1")->value(), 0);
    QCOMPARE(window->targets.keys.border.shape, 0);
    QCOMPARE(window->targets.keys.bg.shape, 4);
    QVERIFY(style("bg30").endsWith("border-style:solid; border-width: 0px; border-color: black;"));

    // Another tab's thumbnails run their own target only.
    clickLabel("labelTab3");
    QTRY_VERIFY(widget("grad32")->isVisible());
    clickLabel("grad32");
    QCOMPARE(slider("hoSlider3")->value(), 2);
    QVERIFY(style("demoLetterRightBg").contains("x2: 1, y2: 0, stop: 0 gold"));
    QVERIFY(style("bg30").contains("qradialgradient( cx: .5"));
}

void tst_Gradients::lineHighlightBothGivesEveryLineTheVerticalLook()
{
    window->pieces.lineVerticalGradColor = "red";
    slider("hoSlider6")->setValue(2);
    const QString look = "background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 "
                         "red, stop: .5  blue);";
    for (const char *line : {"h1", "h4_2", "v1", "v15_2", "liHordisplay", "lhVertDisplay"})
        QCOMPARE(style(line), look);
    QCOMPARE(window->pieces.lineHighHorizontalStyle, look);

    check("lhHorizontalRadio");
    game->click("swapGradient6");
    QCOMPARE(style("h1"),
        QString("background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 blue, "
                "stop: .5  blue);"));
    QCOMPARE(style("v1"), look);
}

void tst_Gradients::wallpaperAndHeadersTakeTheirLooks()
{
    slider("hoSlider7")->setValue(0);
    QCOMPARE(style("wallpaper"), QString("background-color: white; "));
    QCOMPARE(style("pbQuit"),
        QString("font: 16pt 'MS Shell Dlg 2';  color: rgb(85, 0, 0); background-color: "
                "transparent; "));
    check("borderWallpaper");
    slider("hoSlider7")->setValue(4);
    QCOMPARE(style("wallpaper"),
        QString("background-color: white; border-style:solid; border-width:0px; border-color: "
                "qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 rgb(115, "
                "115, 115), stop: .5  rgb(115, 115, 115));"));

    check("gamePlayCb");
    QCOMPARE(style("matchThisBg"), window->pieces.gamePlayBgStyle);
    QCOMPARE(style("yourEntryBg"), window->pieces.gamePlayBgStyle);
    check("gamePlayCb");
    QCOMPARE(style("matchThis"),
        QString("background-color: transparent;  color: black;  font: 12pt 'MS Shell Dlg 2';"));
    QCOMPARE(style("yourEntryBg"), radius + "background-color: rgb(255, 255, 255); border: none;");
}

void tst_Gradients::animateGradientSwingsAndFreezes()
{
    check("pulsateOnGamePlay");
    // The first tick shows the stop it starts from, the next ones 0.01 further each.
    QTRY_VERIFY_WITH_TIMEOUT(style("leMatchBg").contains("stop: 0.03  white"), 10000);
    QVERIFY(!style("leMatchBg").startsWith(radius));
    QCOMPARE(style("leUserBg"), style("leMatchBg"));

    check("animateGradientBothGamePlay");
    QTRY_VERIFY_WITH_TIMEOUT(
        style("leMatchBg").endsWith(", stop: " + window->targets.gamePlay.gradStop + "  black);"),
        10000);
    QVERIFY(style("leMatchBg").contains("border-style:solid; border-width:0px; border-color: "));

    // After 80 ticks up the stop turns at 0.9 and comes down again.
    window->pulsate.pulsateStop = 0.88f;
    QTRY_VERIFY_WITH_TIMEOUT(window->pulsate.pulsateFalling, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(style("leMatchBg").contains("stop: 0.87  white"), 10000);

    check("pulsateOffGamePlay");
    const QString frozen = style("leMatchBg");
    QTest::qWait(400);
    QCOMPARE(style("leMatchBg"), frozen);
    QCOMPARE(window->pulsate.pulsateTimerId, 0);
}

QTEST_MAIN(tst_Gradients)
#include "tst_gradients.moc"
