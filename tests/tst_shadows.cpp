// Clicks go through the platform layer, so that underMouse() holds for the label under the
// pointer, which is how the main window finds a corner label or a theme that was clicked.
#define QTEST_QPA_MOUSE_HANDLING

#include "paneldriver.h"

#include <QGraphicsDropShadowEffect>

class tst_Shadows : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(Start::Pointed); }
    void cleanup() { closeWindow(); }

    void groupCastsItsShadow_data();
    void groupCastsItsShadow();
    void uncheckedGroupKeepsItsColourAndCorner();
    void tricksTurnPartOfTheFaces_data();
    void tricksTurnPartOfTheFaces();
    void headerTakesPartOnlyWhileIncluded();
    void gamePlayPickerReappliesAtOnce();
    void cornerLabelsTurnTheDial_data();
    void cornerLabelsTurnTheDial();
    void themeSetsEveryGroupAndClearTurnsThemOff();
    void themeThreeCastsOddAndEvenApart();

private:
    QGraphicsDropShadowEffect *shadow(const QString &name) const
    {
        return qobject_cast<QGraphicsDropShadowEffect *>(widget(name)->graphicsEffect());
    }
    void openShadows()
    {
        openPanel("menuShadows");
        QTRY_COMPARE(widget("frameShadows")->pos(), QPoint(0, 0));
        QTRY_VERIFY(widget("frameShadows")->isVisible());
    }
    // Shows a shadow as the player would see it, or "none" when there is nothing to see.
    QString seen(const QString &name) const
    {
        const QGraphicsDropShadowEffect *effect = shadow(name);
        if (!effect || !effect->isEnabled() || effect->color().alpha() == 0)
            return QStringLiteral("none");
        return QStringLiteral("%1 at %2,%3")
            .arg(effect->color().isValid() ? effect->color().name() : QStringLiteral("invalid"))
            .arg(effect->offset().x())
            .arg(effect->offset().y());
    }
};

void tst_Shadows::groupCastsItsShadow_data()
{
    QTest::addColumn<QString>("checkBox");
    QTest::addColumn<QString>("dial"); // radio button of the corner
    QTest::addColumn<QString>("distance"); // slider
    QTest::addColumn<int>("position");
    QTest::addColumn<QStringList>("shaded");
    QTest::addColumn<QString>("notShaded");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("English, start corner and size") << "textShadowEnglish" << "bottomRightEng"
        << "sliderTextShadowEng" << 2 << QStringList {"r6_3", "labelEnter", "aKeysMap4"} << "r1_2"
        << "#484848 at 4,4";
    QTest::newRow("Russian upper, top right, far") << "textShadowLexoria" << "topRightLexKey"
        << "sliderTextShadowLexKey" << 4 << QStringList {"r34_2", "r94_2", "aKeysMap2"} << "r1_2"
        << "#484848 at 6,-6";
    QTest::newRow("Russian lower, bottom left") << "textShadowLexoriaLow" << "bottomLeftLexLowKey"
        << "sliderTextShadowLexLowKey" << 1 << QStringList {"r1_2", "r92_2", "aKeysMap3"} << "r34_2"
        << "#484848 at -3,3";
    QTest::newRow("bar upper letters, top left") << "textShadowLexoriaAbc" << "topLeftLexAbc"
        << "sliderTextShadowLexAbc" << 3 << QStringList {"r34", "r79"} << "r1"
        << "#484848 at -5,-5";
    QTest::newRow("bar lower letters") << "textShadowLexoriaLowAbc" << "bottomRightLexLowAbc"
        << "sliderTextShadowLexLowAbc" << 0 << QStringList {"r1", "r92"} << "r34"
        << "#484848 at 2,2";
    QTest::newRow("bar upper cells start one nearer") << "textShadowLexoriaAbcBg" << "topRightAbc"
        << "sliderTextShadowAbcBg" << 0 << QStringList {"r34bg", "r93bg"} << "r1bg"
        << "#484848 at 1,-1";
    QTest::newRow("bar lower cells") << "textShadowLexoriaLowAbcBg" << "bottomLeftLowAbc"
        << "sliderTextShadowLowAbcBg" << 4 << QStringList {"r1bg", "r67bg"} << "r34bg"
        << "#484848 at -5,5";
    QTest::newRow("Odd faces") << "shadowKeys" << "bottomLeft" << "sliderTextShadowKeyboardBg" << 2
        << QStringList {"bg1", "bgCapsLock", "bgBackSpace"} << "bg2" << "#484848 at -4,4";
    QTest::newRow("Even faces and the key map") << "shadowKeys_2" << "topLeft_2"
        << "sliderTextShadowKeyboardBg_2" << 0 << QStringList {"bg2", "bgTab", "aKeysMap5"} << "bg1"
        << "#484848 at -2,-2";
    QTest::newRow("Match This text") << "tsGamePlayText" << "bottomRightGpText" << "sliderTsGpText"
        << 0 << QStringList {"leMatch"} << "leUser" << "#484848 at 1,1";
    // The start colour of the game play backgrounds lacks its hash and names no colour.
    QTest::newRow("Your Entry background") << "tsGamePlayBg_2" << "topLeftGpBg_2"
        << "sliderTsGpBg_2" << 4
        << QStringList {"leUserBg"} << "leMatchBg" << "invalid at -6,-6";
    // clang-format on
}

void tst_Shadows::groupCastsItsShadow()
{
    QFETCH(QString, checkBox);
    QFETCH(QString, dial);
    QFETCH(QString, distance);
    QFETCH(int, position);
    QFETCH(QStringList, shaded);
    QFETCH(QString, notShaded);
    QFETCH(QString, expected);

    // Nothing casts a shadow until a group is first touched.
    for (const QString &name : shaded)
        QVERIFY(!widget(name)->graphicsEffect());
    slider(distance)->setValue(position);
    radio(dial)->click();
    for (const QString &name : shaded)
        QCOMPARE(seen(name), QString("none"));
    box(checkBox)->click();
    for (const QString &name : shaded)
        QCOMPARE(seen(name), expected);
    QVERIFY(!widget(notShaded)->graphicsEffect());
}

void tst_Shadows::uncheckedGroupKeepsItsColourAndCorner()
{
    box("textShadowEnglish")->click();
    radio("topLeftEng")->click();
    window->newColor26(QColor("#123456"));
    QCOMPARE(seen("r6_3"), QString("#123456 at -4,-4"));
    QCOMPARE(game->style("textShadowEnglishDisplay"), QString("background-color: #123456;"));

    box("textShadowEnglish")->click();
    QCOMPARE(seen("r6_3"), QString("none"));
    // With nothing checked the colour of all shadows changes nothing.
    window->newColor26(QColor("#ff0000"));
    QCOMPARE(game->style("textShadowEnglishDisplay"), QString("background-color: #123456;"));
    box("textShadowEnglish")->click();
    QCOMPARE(seen("r6_3"), QString("#123456 at -4,-4"));

    // The live colour reaches the swatch only; the shadow follows when the picker is closed.
    window->akoKeysEng_26(QColor("#00ff00"));
    QCOMPARE(game->style("textShadowEnglishDisplay"), QString("background-color: #00ff00;"));
    QCOMPARE(seen("r6_3"), QString("#123456 at -4,-4"));
}

void tst_Shadows::tricksTurnPartOfTheFaces_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("dial");
    QTest::addColumn<QString>("tricks");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("turned");
    QTest::addColumn<QString>("turnedSeen");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("keptSeen");

    // clang-format off
    QTest::newRow("Odd, 1, bottom right") << "shadowKeys" << "bottomRight" << "sliderTricks" << 1
        << "bgCapsLock" << "#484848 at -4,4" << "bg1" << "#484848 at 4,4";
    QTest::newRow("Odd, 2, top left") << "shadowKeys" << "topLeft" << "sliderTricks" << 2
        << "bg6" << "#484848 at -4,4" << "bg4" << "#484848 at -4,-4";
    QTest::newRow("Even, 1, top right") << "shadowKeys_2" << "topRight_2" << "sliderTricks_2" << 1
        << "bgTab" << "#484848 at -4,-4" << "bgShiftRight" << "#484848 at 4,-4";
    QTest::newRow("Even, 2, bottom left") << "shadowKeys_2" << "bottomLeft_2" << "sliderTricks_2"
        << 2
        << "bg9" << "#484848 at 4,-4" << "bg2" << "#484848 at -4,4";
    QTest::newRow("Even, 0: all alike") << "shadowKeys_2" << "bottomLeft_2" << "sliderTricks_2" << 0
        << "bg9" << "#484848 at -4,4" << "bg2" << "#484848 at -4,4";
    // clang-format on
}

void tst_Shadows::tricksTurnPartOfTheFaces()
{
    QFETCH(QString, group);
    QFETCH(QString, dial);
    QFETCH(QString, tricks);
    QFETCH(int, position);
    QFETCH(QString, turned);
    QFETCH(QString, turnedSeen);
    QFETCH(QString, kept);
    QFETCH(QString, keptSeen);

    box(group)->click();
    radio(dial)->click();
    slider(tricks)->setValue(position);
    QCOMPARE(seen(turned), turnedSeen);
    QCOMPARE(seen(kept), keptSeen);
}

void tst_Shadows::headerTakesPartOnlyWhileIncluded()
{
    box("matchThisCb")->click();
    box("tsGamePlayText")->click();
    QCOMPARE(seen("leMatch"), QString("#484848 at 3,3"));
    QCOMPARE(seen("matchThis"), QString("#484848 at 3,3"));
    QVERIFY(!widget("yourEntry")->graphicsEffect());

    box("matchThisCb")->click();
    QCOMPARE(seen("matchThis"), QString("none"));
    QCOMPARE(seen("leMatch"), QString("#484848 at 3,3"));
}

void tst_Shadows::gamePlayPickerReappliesAtOnce()
{
    box("tsGamePlayBg")->click();
    box("tsGamePlayBg_2")->click();
    box("textShadowEnglish")->click();
    window->ako30(QColor("#0000ff"));
    QCOMPARE(seen("leMatchBg"), QString("#0000ff at 4,4"));
    QCOMPARE(seen("leUserBg"), QString("#0000ff at 4,4"));
    QCOMPARE(game->style("tsDisplayGpBg"), QString("background-color: #0000ff;"));
    QCOMPARE(game->style("tsDisplayGpText"), QString("background-color: #484848;"));
    QCOMPARE(seen("r6_3"), QString("#484848 at 4,4"));
}

void tst_Shadows::cornerLabelsTurnTheDial_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("dial");
    QTest::addColumn<QString>("checkBox");
    QTest::addColumn<QString>("shaded");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("English") << "topLeftLabEng" << "topLeftEng" << "textShadowEnglish" << "r6_3"
        << "#484848 at -4,-4";
    QTest::newRow("Odd, no suffix") << "topRightLab" << "topRight" << "shadowKeys" << "bg1"
        << "#484848 at 4,-4";
    QTest::newRow("Even") << "bottomLeftLab_2" << "bottomLeft_2" << "shadowKeys_2" << "bg2"
        << "#484848 at -4,4";
    QTest::newRow("bar cells") << "topLeftLabLowAbc" << "topLeftLowAbc"
        << "textShadowLexoriaLowAbcBg" << "r1bg" << "#484848 at -3,-3";
    // clang-format on
}

void tst_Shadows::cornerLabelsTurnTheDial()
{
    QFETCH(QString, label);
    QFETCH(QString, dial);
    QFETCH(QString, checkBox);
    QFETCH(QString, shaded);
    QFETCH(QString, expected);

    openShadows();
    box(checkBox)->click();
    clickLabel(label);
    QVERIFY(radio(dial)->isChecked());
    QCOMPARE(seen(shaded), expected);
}

void tst_Shadows::themeSetsEveryGroupAndClearTurnsThemOff()
{
    openShadows();
    radio("topLeftEng")->click();
    clickLabel("shadowTheme4");
    QVERIFY(radio("bottomRightEng")->isChecked());
    QVERIFY(radio("bottomRightGpText")->isChecked());
    QVERIFY(!box("matchThisCb")->isChecked());
    QCOMPARE(seen("r6_3"), QString("#e60000 at 2,2"));
    QCOMPARE(seen("bg1"), QString("#e60000 at 6,6"));
    QCOMPARE(seen("r34bg"), QString("#e60000 at 2,2"));
    QCOMPARE(seen("leMatch"), QString("#e60000 at 1,1"));
    QCOMPARE(seen("leUserBg"), QString("#e60000 at 4,4"));
    QCOMPARE(game->style("tsDisplayGpText"), QString("background-color: #00d3d3;"));
    QCOMPARE(game->style("textShadowEnglishDisplay"), QString("background-color: #e60000;"));
    // The keyboard takes the theme's colours.
    QCOMPARE(game->style("r6_3"),
        QString("background-color: transparent;color: #00d3d3;font-family: Calibri;"));
    QVERIFY(
        game->style("bg1").startsWith("border-radius: 10px;background-color: qradialgradient("));
    QVERIFY(game->style("bg1").endsWith("border: none;"));
    QCOMPARE(game->style("leMatchBg"), game->style("leUserBg"));
    QCOMPARE(game->style("yourEntryBg"), QString("background-color: #00d3d3;"));

    window->shadowThClear();
    for (const char *name : {"r6_3", "bg1", "bg2", "r34bg", "r1", "r34_2", "leMatch", "leUserBg"})
        QCOMPARE(seen(name), QString("none"));
    for (const char *name : {"textShadowEnglish", "shadowKeys", "tsGamePlayBg_2"})
        QVERIFY(!box(name)->isChecked());
    // Sizes, corners and colours stay for the next time a group is checked.
    QCOMPARE(slider("sliderTextShadowKeyboardBg")->value(), 4);
    box("shadowKeys")->click();
    QCOMPARE(seen("bg1"), QString("#e60000 at 6,6"));
}

void tst_Shadows::themeThreeCastsOddAndEvenApart()
{
    openShadows();
    slider("sliderTricks")->setValue(2);
    clickLabel("shadowTheme3");
    QCOMPARE(slider("sliderTricks")->value(), 0);
    QVERIFY(radio("topLeft")->isChecked());
    QVERIFY(radio("topRight_2")->isChecked());
    QCOMPARE(seen("bg6"), QString("#ffffff at -6,-6"));
    QCOMPARE(seen("bg2"), QString("#000000 at 6,-6"));
    QCOMPARE(seen("r6_3"), QString("none"));
    QVERIFY(box("matchThisCb")->isChecked());
    QCOMPARE(
        game->style("bg1"), QString("border-radius: 10px;background-color: black;border: none;"));
}

QTEST_MAIN(tst_Shadows)
#include "tst_shadows.moc"
