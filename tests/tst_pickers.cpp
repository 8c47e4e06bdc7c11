// Clicks go through the platform layer, so that underMouse() holds for the swatch under the
// pointer, which is how the main window finds the picker to open.
#define QTEST_QPA_MOUSE_HANDLING
#include "paneldriver.h"

using keycatalogue::keyOfLetter;

namespace {

const QString T = "background-color: transparent;";

QString englishLabelOf(int n)
{
    return QString("r%1_3").arg(keyOfLetter(n));
}

} // namespace

class tst_Pickers : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(Start::Pointed); }
    void cleanup() { closeWindow(); }
    void pickersAreMadeAsListed_data();
    void pickersAreMadeAsListed();
    void swatchOpensItsPicker();
    void liveColourReachesTheBoard_data();
    void liveColourReachesTheBoard();
    void stateColoursShowWhenTheStateComes();
    void secondColourRule();
    void topPickerCancelledBeforeOkTurnsTheGradientSolid();
    void baseRulesOfTheOtherTargets();
    void okHandsTheKeysColoursToThePaint();
    void chosenColoursOfTheHighlightAndTheGamePlay();
    void cancelGivesBackTheOldColour();
    void cancelOfANeverAcceptedPickerRestores();
    void okKeepsTheColourAndEndsPainting();
    void severalOpenAndTheMenuClosesAllButTheLinesGradient();
    void closingTheWindowClosesEveryPicker();

private:
    QColorDialog *open(int N)
    {
        window->enableColor(N);
        return window->picker(N);
    }
    // One move in the colour field of picker N; the window follows in the same event-loop turn.
    void openAndMove(int N, const QColor &colour) { pick(open(N), colour); }
};

void tst_Pickers::pickersAreMadeAsListed_data()
{
    QTest::addColumn<int>("picker");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("alpha");
    QTest::addColumn<QColor>("start");

    // clang-format off
    QTest::newRow("1 English") << 1 << "colorPickerE" << "English Key" << QPoint(0, 0) << true
        << QColor(Qt::white);
    QTest::newRow("12 lines, typo kept") << 12 << "colorPickerKeyboard"
        << "ImgBack availiable color picker" << QPoint(339, 339) << false << QColor(Qt::white);
    QTest::newRow("26 shadows") << 26 << "textShadowColorBox" << "All Shadow Colors"
        << QPoint(28, 32) << false << QColor("#484848");
    // clang-format on
}

void tst_Pickers::pickersAreMadeAsListed()
{
    QFETCH(int, picker);
    QFETCH(QString, name);
    QFETCH(QString, title);
    QFETCH(QPoint, position);
    QFETCH(bool, alpha);
    QFETCH(QColor, start);

    QColorDialog *dialog = open(picker);
    QVERIFY(dialog->isVisible());
    QVERIFY(!dialog->parent());
    QCOMPARE(dialog->objectName(), name);
    QCOMPARE(dialog->windowTitle(), title);
    QCOMPARE(dialog->pos(), position);
    QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), alpha);
    QCOMPARE(dialog->currentColor(), start);
    // Opened, not executed: the main window still takes keys and clicks.
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
}

void tst_Pickers::swatchOpensItsPicker()
{
    openPanel("menuColorMadness");
    QWidget *swatch = widget("colorPickerE");
    QTRY_VERIFY_WITH_TIMEOUT(swatch->isVisible() && swatch->mapTo(window.get(), QPoint()).y() > 0
            && swatch->mapTo(window.get(), QPoint()).y() < 695,
        10000);
    QVERIFY(!label("colorPickerE")->pixmap(Qt::ReturnByValue).isNull());
    clickLabel("colorPickerE");
    QVERIFY(window->picker(1)->isVisible());
    QVERIFY(!window->picker(2)->isVisible());
}

void tst_Pickers::liveColourReachesTheBoard_data()
{
    QTest::addColumn<int>("picker");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("style");

    const QString calibri = "font-family: Calibri;";
    const QString arial = "font-family: Arial Unicode MS;";
    // clang-format off
    QTest::newRow("English label") << 1 << QColor(255, 0, 0) << englishLabelOf(1)
        << T + "color: rgba(255, 0, 0, 255 );;" + calibri;
    QTest::newRow("English label, half transparent") << 1 << QColor(0, 128, 255, 128)
        << englishLabelOf(40) << T + "color: rgba(0, 128, 255, 128 );;" + calibri;
    QTest::newRow("Russian letter on its key") << 2 << QColor(0, 255, 0) << "r34_2"
        << "color: rgba(0, 255, 0, 255 );;" + arial;
    QTest::newRow("Russian letter in the bar, half transparent") << 2 << QColor(0, 255, 0, 10)
        << "r34" << "color: rgba(0, 255, 0, 10 );;" + arial;
    QTest::newRow("finished sample") << 10 << QColor(7, 8, 9) << "dem1"
        << "border-radius: 10px;" "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, " "y2: 1, stop: 0 rgb(115, 115, 115), stop: .5  rgb(115, " "115, 115)); color: rgba(7, 8, 9, 255 ) ; " "font-size: 20pt; font-family: 'Arial Unicode MS'; ";
    // clang-format on
}

void tst_Pickers::liveColourReachesTheBoard()
{
    QFETCH(int, picker);
    QFETCH(QColor, colour);
    QFETCH(QString, widget);
    QFETCH(QString, style);

    openAndMove(picker, colour);
    QCOMPARE(game->style(widget), style);
}

// The key-press, mouse-over and highlight colours are not on the board until a key is in that
// state.
void tst_Pickers::stateColoursShowWhenTheStateComes()
{
    open(4)->setCurrentColor(QColor(0, 0, 255, 200));
    window->picker(4)->accept();
    QTest::keyPress(window.get(), Qt::Key_F);
    QCOMPARE(game->style(englishLabelOf(1)), "color: rgba(0, 0, 255, 200 );;font-family: Calibri;");
    QTest::keyRelease(window.get(), Qt::Key_F);

    openAndMove(7, QColor(10, 20, 30));
    const QString shield = QString("shield%1").arg(keyOfLetter(1));
    enter(shield);
    QCOMPARE(
        game->style(englishLabelOf(1)), "color: rgba(10, 20, 30, 255 ) ;font-family: Calibri;");

    open(25)->setCurrentColor(QColor(40, 50, 60));
    window->picker(25)->accept();
    QCOMPARE(game->style("goldenHighlight"),
        "border-radius: 10px;background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: "
        "0 gold, stop: .5  gold);color: rgba(40, 50, 60, 255 ) ;");
}

// Until the top picker of the keys was opened, the base picker writes both colours; after, the
// top colour is the user's own.
void tst_Pickers::secondColourRule()
{
    const GradientSide &keys = window->targets.keys.bg;
    openAndMove(3, QColor(255, 0, 0));
    QCOMPARE(keys.color, QString("rgba(255, 0, 0, 255 ) "));
    QCOMPARE(keys.gradColor, QString("rgba(255, 0, 0, 255 ) "));
    // The shape is not radial, so the radial pair keeps its colours.
    QCOMPARE(keys.radialColor, QString("black"));
    QCOMPARE(keys.radialGradColor, QString("black"));
    // The board follows through the keys' gradient: solid red in the vertical shape.
    const QString red = "rgba(255, 0, 0, 255 ) ";
    QCOMPARE(game->style(QString("bg%1").arg(keyOfLetter(1))),
        "border-radius: 10px;background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: "
        "0 " + red
            + ", stop: .5  " + red + ");");
    window->picker(3)->accept();
    QVERIFY(!window->pickerState.keysGradOpened);

    open(14);
    QVERIFY(window->pickerState.keysGradOpened);
    pick(window->picker(14), QColor(0, 0, 255, 100));
    QCOMPARE(keys.gradColor, QString("rgba(0, 0, 255, 100 ) "));
    QCOMPARE(keys.radialGradColor, QString("#0000ff"));
    window->picker(14)->accept();

    openAndMove(3, QColor(0, 255, 0));
    QCOMPARE(keys.color, QString("rgba(0, 255, 0, 255 ) "));
    QCOMPARE(keys.gradColor, QString("rgba(0, 0, 255, 100 ) "));
    // Cancel gives the keys back the red of the first OK, by the picker's own signal.
    window->picker(3)->reject();
    QCOMPARE(keys.color, QString("rgba(255, 0, 0, 255 ) "));
    QCOMPARE(keys.gradColor, QString("rgba(0, 0, 255, 100 ) "));
    QVERIFY(!window->pickerState.pickerAccepted[1]);
    QVERIFY(window->pickerState.pickerAccepted[3]);
}

void tst_Pickers::topPickerCancelledBeforeOkTurnsTheGradientSolid()
{
    const GradientSide &keys = window->targets.keys.bg;
    openAndMove(3, QColor(10, 10, 10));
    window->picker(3)->accept();
    openAndMove(14, QColor(200, 0, 0));
    window->picker(14)->reject();
    QCOMPARE(keys.gradColor, keys.color);
    QCOMPARE(game->style("r1bg"),
        "border-radius: 10px;background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: "
        "0 rgba(10, 10, 10, 255 ) , stop: .5  rgba(10, 10, 10, 255 ) );");
    QCOMPARE(keys.radialGradColor, keys.radialColor);
    QVERIFY(window->pickerState.keysGradOpened);
}

void tst_Pickers::baseRulesOfTheOtherTargets()
{
    // The mouse-over's base picker lets only the plain top colour follow.
    const GradientSide &mouseover = window->targets.mouseover.bg;
    openAndMove(9, QColor(1, 2, 3));
    QCOMPARE(mouseover.color, QString("rgba(1, 2, 3, 255 ) "));
    QCOMPARE(mouseover.gradColor, QString("rgba(1, 2, 3, 255 ) "));
    QCOMPARE(mouseover.radialColor, QString("#010203"));
    QCOMPARE(mouseover.radialGradColor, QString("gold"));

    // The keypress base picker writes all four while its top picker was never opened.
    const GradientSide &keypress = window->targets.keypress.bg;
    openAndMove(6, QColor(4, 5, 6));
    QCOMPARE(keypress.gradColor, QString("rgba(4, 5, 6, 255 ) "));
    QCOMPARE(keypress.radialGradColor, QString("#040506"));

    // Both line directions are chosen at start: the lines' colours are the vertical set.
    openAndMove(12, QColor(7, 8, 9, 10));
    QCOMPARE(window->pieces.lineVerticalColor, QString("rgba(7, 8, 9, 255 ) "));
    QCOMPARE(window->pieces.lineHorizontalColor, QString("blue"));
    window->picker(12)->accept();
    open(21)->reject();
    QCOMPARE(window->pieces.lineHorizontalColor, QString(" transparent"));
    QCOMPARE(window->pieces.lineHorizontalGradColor, QString(" transparent"));
}

void tst_Pickers::okHandsTheKeysColoursToThePaint()
{
    openAndMove(3, QColor(0, 128, 0));
    window->picker(3)->accept();
    QCOMPARE(window->targets.rainbow.bg.color, QString("rgba(0, 128, 0, 255 ) "));
    QCOMPARE(window->targets.rainbow.bg.gradColor, QString("rgba(0, 128, 0, 255 ) "));
    QCOMPARE(window->pieces.rainbowBgStyle, window->pieces.keysBgStyle);
    QCOMPARE(window->painted.paintBackgroundText, QString("0"));
}

void tst_Pickers::chosenColoursOfTheHighlightAndTheGamePlay()
{
    // OK writes the highlight's Russian colour in a form of its own.
    openAndMove(15, QColor(1, 1, 1));
    QCOMPARE(window->pieces.highlightRussianColorStyle, QString("color: rgba(1, 1, 1, 255 ) ;"));
    window->picker(15)->accept();
    QCOMPARE(window->pieces.highlightRussianColorStyle, QString(" color: rgba(1, 1, 1, 255 ) ; "));

    openAndMove(29, QColor(2, 2, 2));
    QCOMPARE(window->pieces.matchTextColorStyle, QString("color: rgba(2, 2, 2, 255 ) ;"));
    window->picker(29)->accept();
    QCOMPARE(window->pieces.userTextColorStyle, QString(" color: rgba(2, 2, 2, 255 ) ;"));
}

void tst_Pickers::cancelGivesBackTheOldColour()
{
    QColorDialog *english = open(1);
    english->setCurrentColor(QColor(255, 0, 0));
    english->reject();
    QCOMPARE(english->currentColor(), QColor(Qt::white));
    // The live path writes the old colour in its own form; the rest look follows.
    QCOMPARE(
        game->style(englishLabelOf(1)), "color: rgba(255, 255, 255, 255 );;font-family: Calibri;");
    QCOMPARE(
        game->style("aKeysMap4"), T + "color: rgba(255, 255, 255, 255 );;font-family: Calibri;");

    // A second opening remembers what OK kept.
    english = open(1);
    english->setCurrentColor(QColor(0, 0, 255));
    english->accept();
    english = open(1);
    english->setCurrentColor(QColor(0, 255, 0));
    english->reject();
    QCOMPARE(game->style(englishLabelOf(1)), "color: rgba(0, 0, 255, 255 );;font-family: Calibri;");
}

void tst_Pickers::cancelOfANeverAcceptedPickerRestores()
{
    const QString wallpaperGrey = " background-color:  #E0E0E0; border:none;";
    QColorDialog *wallpaper = open(13);
    wallpaper->setCurrentColor(QColor(1, 2, 3));
    wallpaper->reject();
    QCOMPARE(game->style("wallpaper"), wallpaperGrey);

    // Once accepted, Cancel leaves the wallpaper to the colour given back.
    game->label("wallpaper")->setStyleSheet("background-color: white;");
    open(13)->accept();
    open(13)->reject();
    QCOMPARE(game->style("wallpaper"), QString("background-color: white;"));
}

void tst_Pickers::okKeepsTheColourAndEndsPainting()
{
    const int k = keyOfLetter(1);
    const QString face = QString("bg%1").arg(k);
    const QString rest = game->style(face);

    // OK of the paint picker paints the layer the Paint tab has selected, the background at
    // start: a key at rest now shows its own paint slot, which starts as the keys' colour.
    QColorDialog *paint = open(23);
    paint->accept();
    QVERIFY(!paint->isVisible());
    QVERIFY(window->painted.paintBackgroundOn);
    QCOMPARE(window->painted.paintBackgroundText, QString("1"));
    window->painted.paintBgStyle[k] = "background-color: red;";
    game->type(1);
    QCOMPARE(game->style(face), QString("border-radius: 10px;background-color: red;"));

    // OK of the keys' background picker hands the board back to the keys' colours.
    open(3)->accept();
    game->type(1);
    QCOMPARE(game->style(face), rest);
}

void tst_Pickers::severalOpenAndTheMenuClosesAllButTheLinesGradient()
{
    game->click("options");
    QColorDialog *keypress = open(4);
    QColorDialog *lines = open(21);
    QColorDialog *english = open(1);
    QVERIFY(keypress->isVisible() && lines->isVisible() && english->isVisible());

    english->setCurrentColor(QColor(255, 0, 0));
    game->click("closeX");
    QVERIFY(!keypress->isVisible());
    QVERIFY(!english->isVisible());
    QCOMPARE(english->result(), int(QDialog::Rejected));
    QCOMPARE(english->currentColor(), QColor(Qt::white));
    QVERIFY(lines->isVisible());
}

void tst_Pickers::closingTheWindowClosesEveryPicker()
{
    QList<QColorDialog *> dialogs;
    for (int N : {1, 12, 21, 30})
        dialogs.append(open(N));
    window->close();
    for (QColorDialog *dialog : dialogs) {
        QVERIFY(!dialog->isVisible());
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
    }
}

QTEST_MAIN(tst_Pickers)
#include "tst_pickers.moc"
