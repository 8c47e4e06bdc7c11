// Clicks go through the platform layer, so that underMouse() holds for the tab label under
// the pointer, which is how the main window finds the tab that was clicked.
#define QTEST_QPA_MOUSE_HANDLING

#include "paneldriver.h"

#include <QCheckBox>
#include <QGraphicsDropShadowEffect>
#include <QRadioButton>
#include <QTabWidget>

#include <memory>

namespace {

const char *const menuButtons[] = {"menuColorMadness", "menuVorticKeyboard", "menuFonts",
    "menuPhotos", "menuShadows", "menuAudio", "menuGamePlay"};

const QString tabActive
    = "border: 3px solid  qradialgradient( cx:  .5,    cy:  .5,    radius: .5,     fx:0.5,     "
      "fy:0.5,stop: 0 gold,      stop: 1 black);background-color: qlineargradient(x1: 0, y1: 0, "
      "x2: 0, y2: 1,stop: 0 gold,      stop: 1  black);font: 10pt 'MS Shell Dlg 2';";
const QString tabRed
    = "border: none; background-color: rgb(170, 0, 0);  font: 10pt 'MS Shell Dlg 2';";
const QString tabBlue
    = "border: none; background-color: blue;           font: 10pt 'MS Shell Dlg 2';";
const QString tabRedHover
    = "border: 3px solid purple; background-color: rgb(170, 0, 0);  font: 10pt 'MS Shell Dlg 2';";
const QString tabBlueHover
    = "border: 3px solid purple; background-color: blue;  font: 10pt 'MS Shell Dlg 2';";

// Where each part of the menu comes to rest when it is open and when it is closed.
const struct
{
    const char *name;
    QRect open, closed;
} menuParts[] = {{"tableOfContents", {1070, 0, 142, 695}, {1215, 0, 142, 695}},
    {"closeX", {890, 629, 90, 66}, {1364, 629, 90, 99}},
    {"optionsShield", {-4, -75, 1211, 337}, {-4, -266, 1211, 258}},
    {"optionsArrow1", {890, 4, 70, 56}, {890, -72, 70, 56}},
    {"optionsArrow2", {890, 74, 70, 56}, {890, -72, 70, 56}},
    {"optionsArrow3", {890, 144, 70, 56}, {890, -72, 70, 56}},
    {"optionsText1", {890, 204, 180, 23}, {1215, 214, 180, 23}},
    {"optionsText2", {890, 228, 180, 23}, {1215, 238, 104, 36}}};

} // namespace

class tst_Options : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(Start::Pointed); }
    void cleanup() { closeWindow(); }

    void menuSlidesInAndOut();
    void reopeningWaitsForTheMenuToClose();
    void oneEntryOpensItsPanelAndClosesTheOthers_data();
    void oneEntryOpensItsPanelAndClosesTheOthers();
    void fontsParkTheirCombosWhenClosed();
    void tabsAnswerClicksAndHover();
    void hideAndShowGiveBackWhatWasThere();
    void xRayIsUndoneWhenTheColourPanelCloses();
    void bridgesLieOverTheKeysWhileChecked();

private:
    bool visible(const QString &name) const { return widget(name)->isVisible(); }
};

void tst_Options::menuSlidesInAndOut()
{
    QCOMPARE(rect("tableOfContents"), QRect(1215, 0, 142, 695));
    game->click("options");
    QCOMPARE(
        game->style("letterOfAlphabet2"), QString("color: white;   font: 10pt 'MS Shell Dlg 2';"));
    // The second text is the last to arrive, 1000 + 200 + 500 ms after the click.
    for (const auto &part : menuParts)
        QTRY_COMPARE_WITH_TIMEOUT(rect(part.name), part.open, 10000);
    QVERIFY(visible("optionsShield"));

    // A click on the open menu changes nothing.
    game->click("options");
    QCOMPARE(rect("tableOfContents"), QRect(1070, 0, 142, 695));

    game->click("closeX");
    QCOMPARE(game->style("letterOfAlphabet2"),
        QString("color: #6e6e6e;   font: 10pt 'MS Shell Dlg 2';"));
    for (const auto &part : menuParts)
        QTRY_COMPARE_WITH_TIMEOUT(rect(part.name), part.closed, 10000);
}

void tst_Options::reopeningWaitsForTheMenuToClose()
{
    game->click("options");
    QTRY_COMPARE_WITH_TIMEOUT(rect("optionsText2"), QRect(890, 228, 180, 23), 10000);

    game->click("closeX");
    game->click("options"); // too early: ignored
    QTRY_COMPARE_WITH_TIMEOUT(rect("tableOfContents"), QRect(1215, 0, 142, 695), 10000);

    game->click("closeX");
    QTest::qWait(100);
    game->click("options");
    // The slide-out still pending from closeX must not carry the reopened menu away, nor
    // may the arrows of the first opening arrive late.
    QTRY_COMPARE_WITH_TIMEOUT(rect("optionsText2"), QRect(890, 228, 180, 23), 10000);
    QTest::qWait(1200);
    for (const auto &part : menuParts)
        QCOMPARE(rect(part.name), part.open);
}

void tst_Options::oneEntryOpensItsPanelAndClosesTheOthers_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QString>("marker");

    const char *const panels[][2] = {{"tabWidget", "markerCm"}, {"frameVorticKeyboard", "markerEk"},
        {"frameFonts", "markerFonts"}, {"framePhotos", "markerPictures"},
        {"frameShadows", "markerShadows"}, {"frameAudio", "markerAudio"},
        {"frameGamePlayS", "markerExtra"}};
    for (int entry = 0; entry < 7; ++entry)
        QTest::newRow(menuButtons[entry]) << entry << panels[entry][0] << panels[entry][1];
}

void tst_Options::oneEntryOpensItsPanelAndClosesTheOthers()
{
    QFETCH(int, entry);
    QFETCH(QString, frame);
    QFETCH(QString, marker);
    const QString button = menuButtons[entry];
    // The entry above (or below, for the first) is open before ours is clicked.
    const QString previous = menuButtons[entry == 0 ? 1 : entry - 1];

    openPanel(previous);
    QCOMPARE(game->button(previous)->text(), QString("Close"));
    game->click(button);
    QVERIFY(visible(frame));
    QCOMPARE(rect(frame).topLeft(), QPoint(0, 0));
    QVERIFY(visible(marker));
    for (const char *other : menuButtons)
        QCOMPARE(game->button(other)->text(), QString(other == button ? "Close" : "Open"));
    QCOMPARE(visible("optionsShield"), button != "menuGamePlay");

    game->click(button);
    QVERIFY(!visible(frame));
    QVERIFY(!visible(marker));
    QVERIFY(visible("optionsShield"));
    for (const char *other : menuButtons)
        QCOMPARE(game->button(other)->text(), QString("Open"));

    game->click(button);
    game->click("closeX");
    QVERIFY(!visible(frame));
    QCOMPARE(game->button(button)->text(), QString("Open"));
}

void tst_Options::fontsParkTheirCombosWhenClosed()
{
    const QStringList combos {
        "fontComboBoxEnglish", "fontComboBoxUppercase", "fontComboBoxLowercase"};
    const int xs[] = {10, 308, 606};
    QCOMPARE(rect("frameFonts").topLeft(), QPoint(0, 1500));

    openPanel("menuFonts");
    for (int i = 0; i < combos.size(); ++i) {
        QCOMPARE(rect(combos[i]).topLeft(), QPoint(xs[i], 100));
        QVERIFY(widget(combos[i])->isEnabled());
        QVERIFY(visible(combos[i]));
    }
    game->click("menuShadows");
    QCOMPARE(rect("frameFonts").topLeft(), QPoint(0, 1500));
    for (int i = 0; i < combos.size(); ++i) {
        QCOMPARE(rect(combos[i]).topLeft(), QPoint(xs[i], 1500));
        QVERIFY(!widget(combos[i])->isEnabled());
    }
}

void tst_Options::tabsAnswerClicksAndHover()
{
    for (int tab = 1; tab <= 10; ++tab) {
        auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(
            widget(QString("labelTab%1").arg(tab))->graphicsEffect());
        QVERIFY(shadow);
        QCOMPARE(shadow->offset(), QPointF(4, 4));
    }
    openPanel("menuColorMadness");
    QCOMPARE(rect("frameTabShield").topLeft(), QPoint(980, -2));
    QCOMPARE(game->style("labelTab1"), tabActive);
    QCOMPARE(game->style("labelTab2"), tabBlue);
    QCOMPARE(game->style("labelTab3"), tabRed);

    hover("labelTab3", QEvent::Enter);
    QCOMPARE(game->style("labelTab3"), tabRedHover);
    hover("labelTab3", QEvent::Leave);
    QCOMPARE(game->style("labelTab3"), tabRed);
    hover("labelTab4", QEvent::Enter);
    QCOMPARE(game->style("labelTab4"), tabBlueHover);
    hover("labelTab4", QEvent::Leave);
    hover("labelTab1", QEvent::Enter);
    QCOMPARE(game->style("labelTab1"), tabActive);
    hover("labelTab1", QEvent::Leave);

    auto *tabs = window->findChild<QTabWidget *>("tabWidget");
    clickLabel("labelTab6");
    QCOMPARE(tabs->currentIndex(), 5);
    QVERIFY(visible("frameWallpaper"));
    QCOMPARE(rect("frameWallpaper").topLeft(), QPoint(383, 0));
    QCOMPARE(game->style("labelTab6"), tabActive);
    QCOMPARE(game->style("labelTab1"), tabRed);
    QCOMPARE(game->style("labelTab4"), tabBlue);
    hover("labelTab6", QEvent::Leave);
    QCOMPARE(game->style("labelTab6"), tabActive);

    // The page stays when the panel closes, and brings its frame back with the panel.
    game->click("menuColorMadness");
    QVERIFY(!visible("frameWallpaper"));
    game->click("menuColorMadness");
    QVERIFY(visible("frameWallpaper"));

    clickLabel("labelTab9");
    QCOMPARE(tabs->currentIndex(), 8);
    QVERIFY(!visible("frameWallpaper"));
    QCOMPARE(game->style("labelTab6"), tabBlue);
}

void tst_Options::hideAndShowGiveBackWhatWasThere()
{
    game->click("buttonInstructionsLeft"); // the player put the left pane away
    QVERIFY(!visible("labelInstructionsLeft"));
    const QStringList cleared {"lcd", "start", "options", "labelOptions", "pbForwardAll",
        "piclabel1", "displaySoft", "checkBoth", "labelInstructionsRight", "aKeysMap2"};

    game->click("hideNonVitals");
    QCOMPARE(game->button("hideNonVitals")->text(), QString("Show"));
    for (const QString &name : cleared)
        QVERIFY2(!visible(name), qPrintable(name));
    QVERIFY(visible("bg1"));
    QVERIFY(visible("r1_2"));
    QVERIFY(visible("leMatch"));

    game->click("hideNonVitals");
    QCOMPARE(game->button("hideNonVitals")->text(), QString("Hide"));
    for (const QString &name : cleared)
        QVERIFY2(visible(name), qPrintable(name));
    for (const char *stayed :
        {"labelInstructionsLeft", "displayStrict", "checkNone", "shieldStart"})
        QVERIFY2(!visible(stayed), stayed);
}

void tst_Options::xRayIsUndoneWhenTheColourPanelCloses()
{
    openPanel("menuColorMadness");
    clickLabel("labelTab6");
    auto *xRayOn = window->findChild<QRadioButton *>("xRayColorMadnessOff");
    QCOMPARE(xRayOn->text(), QString("On"));
    xRayOn->click();
    for (const char *gone :
        {"lcd", "options", "tabWidget", "frameTabShield", "optionsShield", "optionsText1"})
        QVERIFY2(!visible(gone), gone);
    QVERIFY(visible("frameWallpaper"));

    game->click("menuColorMadness");
    QVERIFY(xRayOn->isChecked());
    for (const char *back : {"lcd", "options", "optionsShield", "optionsText1"})
        QVERIFY2(visible(back), back);
    QVERIFY(!visible("tabWidget"));

    // The radio "Off" gives the view back without closing anything.
    game->click("menuColorMadness");
    xRayOn->click();
    window->findChild<QRadioButton *>("xRayColorMadnessOn")->click();
    QVERIFY(visible("tabWidget"));
    QVERIFY(visible("lcd"));
}

void tst_Options::bridgesLieOverTheKeysWhileChecked()
{
    openPanel("menuColorMadness");
    clickLabel("labelTab7");
    auto *top = window->findChild<QCheckBox *>("bridgeTop");
    auto *bottom = window->findChild<QCheckBox *>("bridgeBottom");
    top->click();
    QVERIFY(visible("bridge1"));
    QVERIFY(!visible("bridge2"));
    QCOMPARE(rect("bridge1"), QRect(130, 451, 942, 60));
    bottom->click();
    QCOMPARE(rect("bridge2"), QRect(130, 511, 942, 60));
    QVERIFY(visible("bridge2"));
    top->click();
    QVERIFY(!visible("bridge1"));

    game->click("menuFonts");
    QVERIFY(!visible("bridge2"));
    QVERIFY(!bottom->isChecked());
}

QTEST_MAIN(tst_Options)
#include "tst_options.moc"
