// Clicks go through the platform layer, as a user's do, so that underMouse() holds for the
// label under the pointer, which is how the main window finds what was clicked.
#define QTEST_QPA_MOUSE_HANDLING

#include "paneldriver.h"

#include <QApplication>

#include <memory>

using Styles = QMap<QString, QString>;
Q_DECLARE_METATYPE(Styles)

namespace {

const QString gold = "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                     "stop: 0 gold, stop: .5  gold);";
const QString lit = "border-radius: 10px;" + gold;
const QString blue = " color: blue; ";
const QString upperFont = "font-family: Arial Unicode MS;";
const QString litEnglish = blue + "font-family: Calibri;";
const QString barFont = " font: 13.5pt; ";
const QString keyFont = " font: 13.25pt 'arial unicode ms'; ";
const QString captionLit = " color:blue; font: 9pt 'MS Shell Dlg 2' ; ";
const QString captionDark = " color:black; font: 9pt 'MS Shell Dlg 2' ; ";

struct Mode
{
    const char *sample;
    const char *caption;
};
const Mode modes[]
    = {{"rcNone", "none"}, {"rcRussian", "russian2"}, {"rcEnglish", "english"}, {"rcBoth", "both"}};

} // namespace

class tst_Mouse : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(Start::Pointed); }
    void cleanup() { closeWindow(); }

    void hoverLightsAndLeaveRestores_data();
    void hoverLightsAndLeaveRestores();
    void letterNumberFollowsTheMouse_data();
    void letterNumberFollowsTheMouse();
    void leaveRestoresAFinishedLetter();
    void leaveBringsTheHighlightBack();
    void sampleHoverLightsItsCaption();
    void startAndStopKeepTheirLookUnderTheMouse();

    void lettersDisplayed_data();
    void lettersDisplayed();
    void startGoesBackToBoth();
    void onlyAPlainLeftClickCounts_data();
    void onlyAPlainLeftClickCounts();
    void clickOnKeyOrBarChangesNothing();
    void linePositionSamplesMoveTheLines();

private:
    Styles allStyles() const;
    QStringList visibleMarks() const;
    void moveTo(const QString &name);
    void clickOn(const QString &name);
};

Styles tst_Mouse::allStyles() const
{
    Styles styles;
    for (QWidget *each : window->findChildren<QWidget *>())
        styles.insert(each->objectName(), each->styleSheet());
    return styles;
}

QStringList tst_Mouse::visibleMarks() const
{
    QStringList marks;
    for (const char *mark : {"checkNone", "checkRussian", "checkEnglish", "checkBoth"}) {
        if (label(mark)->isVisible())
            marks.append(mark);
    }
    return marks;
}

void tst_Mouse::moveTo(const QString &name)
{
    auto *widget = window->findChild<QWidget *>(name);
    QTest::mouseMove(widget, widget->rect().center());
}

void tst_Mouse::clickOn(const QString &name)
{
    moveTo(name);
    auto *widget = window->findChild<QWidget *>(name);
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, widget->rect().center());
}

void tst_Mouse::hoverLightsAndLeaveRestores_data()
{
    QTest::addColumn<QString>("watched");
    QTest::addColumn<Styles>("looks");

    // Bar hover: one character in both places with the size pieces; its key's other letter and
    // the key's underscore stay at rest.
    QTest::newRow("bar, lower row а")
        << "r1"
        << Styles {{"r1bg", lit}, {"r1", blue + barFont}, {"r1_2", blue + keyFont},
               {"r6_3", litEnglish}, {"bg6", lit}, {"r34", "color: white;" + upperFont},
               {"r34_2", "color: white;" + upperFont},
               {"underscore_left", "color: white;font-family: Calibri;"}};
    QTest::newRow("bar, upper row Ж")
        << "r41"
        << Styles {{"r41bg", lit}, {"r41", blue + barFont + upperFont},
               {"r41_2", blue + keyFont + upperFont}, {"r43_3", litEnglish}, {"bg43", lit},
               {"r8_2", "color: white;"}};
    QTest::newRow("bar, number line \"")
        << "r80"
        << Styles {{"r80bg", lit}, {"r80", blue + barFont + upperFont},
               {"r80_2", blue + keyFont + upperFont}, {"r29_3", litEnglish}, {"bg29", lit},
               {"r68_2", "color: white;"}};

    // Key hover: both characters in both places, without the size pieces.
    QTest::newRow("key F with its underscore")
        << "shield6"
        << Styles {{"r1bg", lit}, {"r34bg", lit}, {"r1", blue}, {"r1_2", blue},
               {"r34", blue + upperFont}, {"r34_2", blue + upperFont}, {"r6_3", litEnglish},
               {"underscore_left", litEnglish}, {"bg6", lit},
               {"underscore_right", "color: white;font-family: Calibri;"}};
    QTest::newRow("key 2 without one")
        << "shield29"
        << Styles {{"r68bg", lit}, {"r80bg", lit}, {"r68_2", blue}, {"r80", blue + upperFont},
               {"r29_3", litEnglish}, {"bg29", lit}};
}

void tst_Mouse::hoverLightsAndLeaveRestores()
{
    QFETCH(QString, watched);
    QFETCH(Styles, looks);

    const Styles rest = allStyles();
    hover(label(watched), QEvent::Enter);
    const Styles during = allStyles();
    for (auto it = looks.cbegin(); it != looks.cend(); ++it)
        QCOMPARE(qMakePair(it.key(), during.value(it.key())), qMakePair(it.key(), it.value()));

    hover(label(watched), QEvent::Leave);
    QCOMPARE(allStyles(), rest);
}

void tst_Mouse::letterNumberFollowsTheMouse_data()
{
    QTest::addColumn<QString>("watched");
    QTest::addColumn<int>("number"); // 0: the line is cleared

    QTest::newRow("bar ё") << "r7" << 7;
    QTest::newRow("bar Ё, the same place") << "r40" << 7;
    QTest::newRow("bar digit") << "r67" << 0;
    QTest::newRow("key ё in the number row") << "shield27" << 7;
    QTest::newRow("digit key") << "shield28" << 0;
}

void tst_Mouse::letterNumberFollowsTheMouse()
{
    QFETCH(QString, watched);
    QFETCH(int, number);

    // Start from a number on show, so that clearing it can be seen.
    hover(label("r20"), QEvent::Enter);
    hover(label("r20"), QEvent::Leave);
    QCOMPARE(label("letterOfAlphabet2")->text(), QString("Letter-number: 20"));

    hover(label(watched), QEvent::Enter);
    QCOMPARE(label("letterOfAlphabet2")->text(),
        number ? QStringLiteral("Letter-number: %1").arg(number) : QString());
}

void tst_Mouse::leaveRestoresAFinishedLetter()
{
    GameDriver game(window.get());
    game.startGame("pbForwardVarious");
    game.type(1);
    game.space();
    const QString finishedCell = label("r1bg")->styleSheet();
    QVERIFY(finishedCell.contains("rgb(115, 115, 115)"));

    // The mouse on the key lights the finished cell too; leaving brings the finished look back.
    for (const char *watched : {"r1", "shield6"}) {
        hover(label(watched), QEvent::Enter);
        QCOMPARE(label("r1bg")->styleSheet(), lit);
        hover(label(watched), QEvent::Leave);
        QCOMPARE(label("r1bg")->styleSheet(), finishedCell);
        QCOMPARE(label("r1")->styleSheet(), QString(" color: white; "));
    }
}

void tst_Mouse::leaveBringsTheHighlightBack()
{
    GameDriver game(window.get());
    game.startGame("pbForwardVarious");
    game.click("goldenHighlight");
    const Styles gold = allStyles();
    QCOMPARE(label("r1_2")->styleSheet(), QString("color: black;"));

    for (const char *watched : {"shield6", "r1"}) {
        hover(label(watched), QEvent::Enter);
        QVERIFY(label("r1_2")->styleSheet().startsWith(blue));
        hover(label(watched), QEvent::Leave);
        QCOMPARE(allStyles(), gold);
    }
}

void tst_Mouse::sampleHoverLightsItsCaption()
{
    for (const auto &[sample, caption] : modes) {
        moveTo(sample);
        QCOMPARE(label(caption)->styleSheet(), captionLit);
        moveTo("labelOptions");
        QCOMPARE(label(caption)->styleSheet(), captionDark);
    }
}

void tst_Mouse::startAndStopKeepTheirLookUnderTheMouse()
{
    auto *start = window->findChild<QPushButton *>("start");
    auto *stop = window->findChild<QPushButton *>("stop");
    const QString idleStart = start->styleSheet();
    const QString idleStop = stop->styleSheet();

    moveTo("stop");
    QCOMPARE(
        stop->styleSheet(), idleStop + " font-weight: bold; color: maroon;  text-align: center;");
    moveTo("start");
    QCOMPARE(stop->styleSheet(), idleStop);
    QCOMPARE(start->styleSheet(),
        idleStart + " font-weight: bold; color: rgb(0, 94, 0);  text-align: center;");

    // The click restyles Start for the running game; leaving must not bring the idle look back.
    QTest::mouseClick(start, Qt::LeftButton);
    const QString runningStart = start->styleSheet();
    QVERIFY(runningStart.contains("font-size: 16pt"));
    moveTo("labelOptions");
    QCOMPARE(start->styleSheet(), runningStart);
    QVERIFY(runningStart != idleStart);
}

void tst_Mouse::lettersDisplayed_data()
{
    QTest::addColumn<QString>("clicked");
    QTest::addColumn<QString>("mark");
    QTest::addColumn<bool>("russian");
    QTest::addColumn<bool>("english");
    QTest::addColumn<bool>("covers");

    // None is entered from English, whose hidden letters it must leave alone; the others are
    // entered from None, whose covers they must take away.
    const struct
    {
        const char *mark;
        bool russian, english, covers;
    } shows[] = {{"checkNone", false, true, true}, {"checkRussian", true, false, false},
        {"checkEnglish", false, true, false}, {"checkBoth", true, true, false}};
    for (int i = 0; i < 4; ++i) {
        for (const char *clicked : {modes[i].sample, modes[i].caption})
            QTest::newRow(clicked) << clicked << shows[i].mark << shows[i].russian
                                   << shows[i].english << shows[i].covers;
    }
}

void tst_Mouse::lettersDisplayed()
{
    QFETCH(QString, clicked);
    QFETCH(QString, mark);
    QFETCH(bool, russian);
    QFETCH(bool, english);
    QFETCH(bool, covers);

    QCOMPARE(visibleMarks(), QStringList {"checkBoth"});
    clickOn(covers ? "english" : "none");
    // A key left lit by the mouse is repainted by every mode but None, which touches nothing.
    hover(label("shield6"), QEvent::Enter);

    clickOn(clicked);
    QCOMPARE(visibleMarks(), QStringList {mark});
    for (int n : {1, 40, 67, 94})
        QCOMPARE(label(QStringLiteral("r%1_2").arg(n))->isVisible(), russian);
    for (int k : {1, 27, 42, 47})
        QCOMPARE(label(QStringLiteral("r%1_3").arg(k))->isVisible(), english);
    for (int cover : {1, 47, 48, 54})
        QCOMPARE(label(QStringLiteral("displayNone%1").arg(cover))->isVisible(), covers);
    QCOMPARE(label("bg6")->styleSheet() == label("bg7")->styleSheet(), !covers);
    // The bar, the control captions and the underscores never hide, and the bar still
    // answers the mouse over a covered key.
    for (const char *always : {"r1", "r94", "labelTab", "labelSpacebar", "underscore_left"})
        QVERIFY2(label(always)->isVisible(), always);
    hover(label("shield10"), QEvent::Enter);
    QCOMPARE(label("r16bg")->styleSheet(), lit);
}

void tst_Mouse::startGoesBackToBoth()
{
    for (const char *mode : {"rcNone", "rcEnglish", "rcRussian"}) {
        clickOn(mode);
        window->findChild<QPushButton *>("start")->click();
        QCOMPARE(visibleMarks(), QStringList {"checkBoth"});
        QVERIFY(!label("displayNone1")->isVisible());
        QVERIFY(label("r1_2")->isVisible());
        QVERIFY(label("r1_3")->isVisible());
    }
}

void tst_Mouse::onlyAPlainLeftClickCounts_data()
{
    QTest::addColumn<QList<int>>("buttons");
    QTest::addColumn<QString>("mark");

    QTest::newRow("left") << QList<int> {Qt::LeftButton} << "checkEnglish";
    QTest::newRow("right") << QList<int> {Qt::RightButton} << "checkBoth";
    QTest::newRow("right, then left with right held")
        << QList<int> {Qt::RightButton, Qt::LeftButton} << "checkBoth";
}

void tst_Mouse::onlyAPlainLeftClickCounts()
{
    QFETCH(QList<int>, buttons);
    QFETCH(QString, mark);

    QLabel *sample = label("rcEnglish");
    moveTo("rcEnglish");
    for (int button : buttons)
        QTest::mousePress(sample, Qt::MouseButton(button), Qt::NoModifier, sample->rect().center());
    QCOMPARE(visibleMarks(), QStringList {mark});
    for (int button : buttons)
        QTest::mouseRelease(
            sample, Qt::MouseButton(button), Qt::NoModifier, sample->rect().center());
}

void tst_Mouse::clickOnKeyOrBarChangesNothing()
{
    for (const char *target : {"shield5", "r3", "shield42", "r90"}) {
        moveTo(target);
        const Styles before = allStyles();
        clickOn(target);
        QCOMPARE(allStyles(), before);
        QCOMPARE(visibleMarks(), QStringList {"checkBoth"});
    }
}

void tst_Mouse::linePositionSamplesMoveTheLines()
{
    window->findChild<QPushButton *>("lineHighOptions")->click();
    auto raised = [this] {
        const QObjectList stack = window->centralWidget()->children();
        return stack.indexOf(label("h1")) > stack.indexOf(label("shield1"));
    };
    QVERIFY(!raised());
    for (const char *sample : {"linePosition2Lowercase", "linePosition1English", "lhVertDisplay_2",
             "linePosition1English", "liHordisplay_3"}) {
        clickOn(sample);
        QCOMPARE(raised(), qstrcmp(sample, "linePosition1English") != 0);
    }
}

QTEST_MAIN(tst_Mouse)
#include "tst_mouse.moc"
