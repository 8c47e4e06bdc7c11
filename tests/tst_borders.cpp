// Clicks and pointer moves go through the platform layer, as a user's do, so that a theme's
// sample finds the click and a bridge keeps the keys under it from seeing the pointer.
#define QTEST_QPA_MOUSE_HANDLING

#include "paneldriver.h"

#include <QSpinBox>

namespace {

const QString radius = "border-radius: 10px;";

// The five layers a rainbow picker paints on are one choice; Both comes on top of it.
const char *const paintLayers[] = {
    "rainbowBackground", "rainbowBorder", "rainbowEnglish", "rainbowLowercase", "rainbowUppercase"};

QString rgbOf(const QColor &colour)
{
    return QStringLiteral("rgba(%1, %2, %3,")
        .arg(colour.red())
        .arg(colour.green())
        .arg(colour.blue());
}

} // namespace

class tst_Borders : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init()
    {
        makeWindow(Start::Pointed);
        game->click("animationOff");
    }
    void cleanup() { closeWindow(); }

    void widthControlsFollowEachOther_data();
    void widthControlsFollowEachOther();
    void themesDressTheWholeKeyboard_data();
    void themesDressTheWholeKeyboard();
    void keysBorderSideShowsTheThemeOnce();
    void paintingFollowsThePointer_data();
    void paintingFollowsThePointer();
    void paintedKeysComeBackAtRest();
    void controlKeysAndTheKeyMapTakePaint();
    void bridgesKeepTheirRowUnpainted();

private:
    // Chooses the Paint tab's layer, made while the tab may be hidden, and opens the picker.
    QColorDialog *startPainting(const char *layer, bool both = false);
};

QColorDialog *tst_Borders::startPainting(const char *layer, bool both)
{
    for (const char *other : paintLayers)
        find<QAbstractButton>(other)->setChecked(false);
    auto *chosen = find<QAbstractButton>(layer);
    if (chosen->isVisible())
        chosen->click();
    else
        chosen->setChecked(true);
    find<QAbstractButton>("rainbowBoth")->setChecked(both);
    if (!openPicker())
        window->enableColor(23);
    return openPicker();
}

void tst_Borders::widthControlsFollowEachOther_data()
{
    QTest::addColumn<int>("control");
    QTest::addColumn<bool>("bySlider");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("slider");
    QTest::addColumn<int>("spin");

    QTest::newRow("keys, slider") << 1 << true << 7 << 7 << 7;
    QTest::newRow("keys, eleven") << 1 << false << 11 << 10 << 11;
    QTest::newRow("keys, past the largest") << 1 << false << 120 << 10 << 99;
    QTest::newRow("wallpaper") << 5 << false << 1500 << 10 << 1500;
    QTest::newRow("game play") << 27 << false << 250 << 10 << 199;
}

void tst_Borders::widthControlsFollowEachOther()
{
    QFETCH(int, control);
    QFETCH(bool, bySlider);
    QFETCH(int, value);
    QFETCH(int, slider);
    QFETCH(int, spin);

    auto *widthSlider = find<QSlider>(QStringLiteral("sliderBorderWidth%1").arg(control));
    auto *widthSpin = find<QSpinBox>(QStringLiteral("spinBox%1").arg(control));

    if (bySlider)
        widthSlider->setValue(value);
    else
        widthSpin->setValue(value);
    QCOMPARE(widthSlider->value(), slider);
    QCOMPARE(widthSpin->value(), spin);
}

void tst_Borders::themesDressTheWholeKeyboard_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QString>("face");
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<int>("width");

    const QString goldOverBlack = "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                                  "stop: 0 #ffd700, stop: 1  black);";
    const QString goldGlow = "background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, "
                             "fx:0.5, fy:0.5, stop : 0 #ffd700, stop: .6  black);";
    const QString blueGlow = "background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, "
                             "fx:0.5, fy:0.5, stop : 0 blue, stop: .3  black);";
    const QString rings = "border-style:solid; border-width:10px; border-color: "
                          "qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, "
                          "fy:0.5,   stop : 0 #ffd700, stop: .8 black);";
    const QString round = "border-style:solid; border-width:6px; border-color: qradialgradient( "
                          "cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 #ffd700, "
                          "stop: .8  black);";
    const QString none = "border-style:solid; border-width:0px; border-color: qradialgradient( "
                         "cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 black, stop: .3  "
                         "black);";
    const QString calibri = "font-family: Calibri;";

    // clang-format off
    QTest::newRow("theme 1") << 1 << radius + goldOverBlack + rings << radius + goldOverBlack
        << "background-color: transparent; color: white;" + calibri << "color: white;" << 10;
    QTest::newRow("theme 2") << 2 << radius + goldGlow + round << radius + goldGlow
        << "background-color: transparent; color: yellow;" + calibri << "color: yellow;" << 6;
    QTest::newRow("theme 3") << 3 << radius + blueGlow + none << radius + blueGlow + none
        << "background-color: transparent; color: #65307f;" + calibri << "color: #00557f;" << 0;
    // clang-format on
}

void tst_Borders::themesDressTheWholeKeyboard()
{
    QFETCH(int, theme);
    QFETCH(QString, face);
    QFETCH(QString, cell);
    QFETCH(QString, english);
    QFETCH(QString, colour);
    QFETCH(int, width);
    const QString letter = colour + "font-family: Arial Unicode MS;";

    const QString wallpaperBefore = style("wallpaper");
    find<QSpinBox>("spinBox1")->setValue(3);
    openColourTab(10);
    clickLabel(QStringLiteral("theme%1").arg(theme));

    // A character key, a control key and the key of "A key's map" alike.
    for (const char *name : {"bg1", "bg42", "bgSpacebar", "aKeysMap5"})
        QCOMPARE(style(name), face);
    for (const char *name : {"r1bg", "r66bg", "r94bg"})
        QCOMPARE(style(name), cell);
    for (const char *name : {"r5_3", "labelEnter", "underscore_left"})
        QCOMPARE(style(name), english);
    // Both rows of the keys and the bar take the one letter colour.
    for (const char *name : {"r1_2", "r34_2", "r94", "r21"})
        QCOMPARE(style(name), letter);
    QCOMPARE(find<QSpinBox>("spinBox1")->value(), width);
    QCOMPARE(slider("sliderBorderWidth1")->value(), width);

    // Only the third theme brings a wallpaper of its own.
    if (theme == 3)
        QCOMPARE(style("wallpaper"),
            QString("background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 "
                    "#00557f, stop: .3  #34004f);"));
    else
        QCOMPARE(style("wallpaper"), wallpaperBefore);

    // A key pressed and released comes back in the theme's look, its lower case in its own font.
    game->type(1);
    QCOMPARE(style("r1_2"), colour);
    QCOMPARE(style("bg6"), face);
}

// After theme 1 the keys' border side shows that theme's rings and stop, the first time and
// after it, and a width set there reaches the keyboard.
void tst_Borders::keysBorderSideShowsTheThemeOnce()
{
    QRadioButton *background = radio("backgroundLeft");
    QRadioButton *border = radio("borderLeft");
    QSlider *shape = slider("hoSlider1");
    QSlider *stop = slider("slider1");
    openColourTab(10);
    clickLabel("theme1");
    clickLabel("labelTab1");
    border->click();
    QCOMPARE(shape->value(), 5);
    QCOMPARE(stop->value(), 8);
    find<QSpinBox>("spinBox1")->setValue(3);
    QVERIFY2(style("bg1").contains("border-width:3px"), qPrintable(style("bg1")));

    background->click();
    QCOMPARE(shape->value(), 1);
    border->click();
    QCOMPARE(shape->value(), 5);
    QCOMPARE(stop->value(), 8);
}

void tst_Borders::paintingFollowsThePointer_data()
{
    QTest::addColumn<QString>("layer");
    QTest::addColumn<bool>("both");
    QTest::addColumn<QStringList>("painted"); // take the colour
    QTest::addColumn<QStringList>("untouched"); // keep their look

    // Key E (5) carries у (21) and У (54).
    // clang-format off
    QTest::newRow("background") << "rainbowBackground" << false
        << QStringList {"bg5", "r21bg", "r54bg"} << QStringList {"r5_3", "r21_2", "r54_2"};
    QTest::newRow("border") << "rainbowBorder" << false << QStringList {"bg5"}
        << QStringList {"r21bg", "r5_3", "r21_2"};
    QTest::newRow("English") << "rainbowEnglish" << false << QStringList {"r5_3"}
        << QStringList {"bg5", "r21_2", "r54_2"};
    QTest::newRow("Both") << "rainbowBackground" << true << QStringList {"bg5", "r21bg", "r54bg"}
        << QStringList {"r5_3"};
    QTest::newRow("lower case") << "rainbowLowercase" << false << QStringList {"r21_2", "r21"}
        << QStringList {"r54_2", "bg5", "r5_3"};
    QTest::newRow("upper case") << "rainbowUppercase" << false << QStringList {"r54_2", "r54"}
        << QStringList {"r21_2", "bg5"};
    // clang-format on
}

// Each key the pointer enters takes the picker's colour at that moment; leaving changes nothing.
void tst_Borders::paintingFollowsThePointer()
{
    QFETCH(QString, layer);
    QFETCH(bool, both);
    QFETCH(QStringList, painted);
    QFETCH(QStringList, untouched);

    QColorDialog *picker = startPainting(qPrintable(layer), both);
    QMap<QString, QString> before;
    for (const QString &name : untouched)
        before[name] = style(name);

    const QColor red(200, 20, 30);
    pick(picker, red);
    enter("shield5");
    for (const QString &name : painted)
        QVERIFY2(style(name).contains(rgbOf(red)), qPrintable(name + ": " + style(name)));
    for (const QString &name : untouched)
        QCOMPARE(style(name), before[name]);
    leave("shield5");
    for (const QString &name : painted)
        QVERIFY2(style(name).contains(rgbOf(red)), qPrintable(name + " after the leave"));

    // The next key gets the next colour and the first keeps its own.
    const QColor green(10, 180, 40);
    pick(picker, green);
    enter("r55");
    leave("r55");
    enter("shield6");
    for (const QString &name : painted)
        QVERIFY(style(name).contains(rgbOf(red)));
}

void tst_Borders::paintedKeysComeBackAtRest()
{
    QColorDialog *picker = startPainting("rainbowBackground");
    const QColor blue(20, 40, 210);
    pick(picker, blue);
    enter("shield5");
    leave("shield5");
    picker->accept();

    // Not painting any more: the key lights under the mouse and is painted again at rest.
    enter("shield5");
    QVERIFY(!style("bg5").contains(rgbOf(blue)));
    leave("shield5");
    QVERIFY(style("bg5").contains(rgbOf(blue)));
    QTest::keyPress(window.get(), Qt::Key_E);
    QVERIFY(!style("bg5").contains(rgbOf(blue)));
    QTest::keyRelease(window.get(), Qt::Key_E);
    QVERIFY(style("bg5").contains(rgbOf(blue)));
    QVERIFY(style("r21bg").contains(rgbOf(blue)));

    // A built-in theme takes the paint off.
    openColourTab(10);
    clickLabel("theme2");
    QVERIFY(!style("bg5").contains(rgbOf(blue)));
}

void tst_Borders::controlKeysAndTheKeyMapTakePaint()
{
    QColorDialog *picker = startPainting("rainbowBackground");
    const QColor orange(250, 140, 10);
    pick(picker, orange);
    const QString mapBefore = style("aKeysMap5");
    enter("labelSpacebar");
    QVERIFY(style("bgSpacebar").contains(rgbOf(orange)));
    QVERIFY(!style("bgTab").contains(rgbOf(orange)));
    QCOMPARE(style("aKeysMap5"), mapBefore);
    // Key Z is the one "A key's map" shows; its capital in the bar paints it as well.
    enter("r66");
    QVERIFY(style("bg26").contains(rgbOf(orange)));
    QCOMPARE(style("aKeysMap5"), style("bg26"));
}

void tst_Borders::bridgesKeepTheirRowUnpainted()
{
    openColourTab(7);
    clickLabel("bridgeTop");
    QVERIFY(widget("bridge1")->isVisible());
    QColorDialog *picker = startPainting("rainbowBackground");
    const QColor violet(120, 20, 200);
    pick(picker, violet);
    // The pointer crosses the row of Q under the bridge, then the row of A below it.
    const QPoint q = widget("shield17")->geometry().center();
    const QPoint a = widget("shield1")->geometry().center();
    QTest::mouseMove(window.get(), q + QPoint(-8, 0));
    QTest::mouseMove(window.get(), q);
    QTest::mouseMove(window.get(), a);
    QVERIFY(!style("bg17").contains(rgbOf(violet)));
    QTRY_VERIFY(style("bg1").contains(rgbOf(violet)));
}

QTEST_MAIN(tst_Borders)
#include "tst_borders.moc"
