#include "paneldriver.h"

namespace {

const QString keysGradient = "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, "
                             "stop: 0 black, stop: .5  black);";
const QString restFace = "border-radius: 10px;" + keysGradient;
const QString pressedFace
    = restFace + "border-style:none; border-width:0px;  border-color: transparent;";
const QString upperFont = "font-family: Arial Unicode MS;";

} // namespace

class tst_Keyboard : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(Start::Built); }
    void cleanup() { closeWindow(); }

    void keyMap_data();
    void keyMap();
    void unmappedKeysChangeNothing();
    void pressedAndRestLooks_data();
    void pressedAndRestLooks();
    void flashRestoresAfterDelay();
    void letterNumberLine_data();
    void letterNumberLine();
    void keyLayersStackFacesUnderLetters();
    void keyboardAndBarGeometry();
    void windowIsFixedAndHelpShowsOpeningWindow();
    void readingWindowsOpenAndClose_data();
    void readingWindowsOpenAndClose();
    void panesHideAndShow_data();
    void panesHideAndShow();
    void exitOnOpeningWindowEndsProgram();

private:
    QMap<QString, QString> allLabelStyles() const;
    int letterNumberOf(const QString &character) const;
};

QMap<QString, QString> tst_Keyboard::allLabelStyles() const
{
    QMap<QString, QString> styles;
    for (QLabel *each : window->findChildren<QLabel *>())
        styles.insert(each->objectName(), each->styleSheet());
    return styles;
}

int tst_Keyboard::letterNumberOf(const QString &character) const
{
    for (int n = 1; n <= 94; ++n) {
        if (label(QStringLiteral("r%1").arg(n))->text() == character)
            return n;
    }
    return 0;
}

// code, modifiers, the Russian character it must give, and the key k that must light up
void tst_Keyboard::keyMap_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("character");
    QTest::addColumn<int>("keyNumber");

    const QString plainLetters = "фисвуапршолдьтщзйкыегмцчня";
    const QString shiftedLetters = "ФИСВУАПРШОЛДЬТЩЗЙКЫЕГМЦЧНЯ";
    for (int k = 1; k <= 26; ++k) {
        const char english = char('A' + k - 1);
        QTest::addRow("%c", english)
            << (Qt::Key_A + k - 1) << int(Qt::NoModifier) << plainLetters.mid(k - 1, 1) << k;
        QTest::addRow("Shift+%c", english)
            << (Qt::Key_A + k - 1) << int(Qt::ShiftModifier) << shiftedLetters.mid(k - 1, 1) << k;
    }
    struct Sign
    {
        int k;
        int plainCode;
        const char *plain;
        int shiftedCode;
        const char *shifted;
    };
    // The keys whose Russian signs differ from the English ones, and one that keeps them.
    const Sign signs[] = {
        {27, '`', "ё", '~', "Ё"},
        {29, '2', "2", '@', "\""},
        {30, '3', "3", '#', "№"},
        {31, '4', "4", '$', ";"},
        {33, '6', "6", '^', ":"},
        {34, '7', "7", '&', "?"},
        {39, '=', "=", '+', "+"},
        {40, '[', "х", '{', "Х"},
        {41, ']', "ъ", '}', "Ъ"},
        {42, '\\', "\\", '|', "/"},
        {43, ';', "ж", ':', "Ж"},
        {44, '\'', "э", '"', "Э"},
        {45, ',', "б", '<', "Б"},
        {46, '.', "ю", '>', "Ю"},
        {47, '/', ".", '?', ","},
    };
    for (const Sign &sign : signs) {
        QTest::addRow("%c", sign.plainCode)
            << sign.plainCode << int(Qt::NoModifier) << QString::fromUtf8(sign.plain) << sign.k;
        // Shift is in the code for these keys; the modifier must not matter.
        QTest::addRow("%c", sign.shiftedCode) << sign.shiftedCode << int(Qt::ShiftModifier)
                                              << QString::fromUtf8(sign.shifted) << sign.k;
    }
    QTest::newRow("Ctrl+F is plain") << int(Qt::Key_F) << int(Qt::ControlModifier) << "а" << 6;
    QTest::newRow("Shift+Ctrl+F is plain")
        << int(Qt::Key_F) << int(Qt::ShiftModifier | Qt::ControlModifier) << "а" << 6;
    QTest::newRow("Alt+Shift+Z is plain")
        << int(Qt::Key_Z) << int(Qt::ShiftModifier | Qt::AltModifier) << "я" << 26;
    QTest::newRow("Ctrl+1 is 1") << int(Qt::Key_1) << int(Qt::ControlModifier) << "1" << 28;
}

void tst_Keyboard::keyMap()
{
    QFETCH(int, code);
    QFETCH(int, modifiers);
    QFETCH(QString, character);
    QFETCH(int, keyNumber);

    const int n = letterNumberOf(character);
    QVERIFY(n > 0);
    const QMap<QString, QString> before = allLabelStyles();
    QTest::keyPress(window.get(), Qt::Key(code), Qt::KeyboardModifiers(modifiers));

    QVERIFY(label(QStringLiteral("r%1").arg(n))->styleSheet().startsWith("color: blue;"));
    QCOMPARE(label(QStringLiteral("bg%1").arg(keyNumber))->styleSheet(), pressedFace);
    // Exactly one letter lights up, on exactly one key.
    int litLetters = 0;
    int litFaces = 0;
    const QMap<QString, QString> after = allLabelStyles();
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        if (it.value() == before.value(it.key()))
            continue;
        if (QRegularExpression("^r\\d+$").match(it.key()).hasMatch())
            ++litLetters;
        if (QRegularExpression("^bg\\d+$").match(it.key()).hasMatch())
            ++litFaces;
    }
    QCOMPARE(litLetters, 1);
    QCOMPARE(litFaces, 1);

    QTest::keyRelease(window.get(), Qt::Key(code), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(allLabelStyles(), before);
}

void tst_Keyboard::unmappedKeysChangeNothing()
{
    const QMap<QString, QString> before = allLabelStyles();
    const QString number = label("letterOfAlphabet2")->text();
    for (int code :
        {int(Qt::Key_Tab), int(Qt::Key_Return), int(Qt::Key_Backspace), int(Qt::Key_Shift),
            int(Qt::Key_F1), int(Qt::Key_Left), 0x0430 /* а from a Russian layout */}) {
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier);
        QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &press);
        QApplication::sendEvent(window.get(), &release);
    }
    QCOMPARE(allLabelStyles(), before);
    QCOMPARE(label("letterOfAlphabet2")->text(), number);
    QCOMPARE(window->findChild<QLineEdit *>("leUser")->text(), QString());
}

void tst_Keyboard::pressedAndRestLooks_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("n");
    QTest::addColumn<int>("other"); // the other letter on the same key
    QTest::addColumn<int>("k");
    QTest::addColumn<QString>("pressedLetter");
    QTest::addColumn<QString>("restLetter");

    // clang-format off
    QTest::newRow("lower row а") << int(Qt::Key_F) << int(Qt::NoModifier) << 1 << 34 << 6
        << "color: blue;" << "color: white;";
    QTest::newRow("lower row ж") << int(Qt::Key_Semicolon) << 0 << 8 << 41 << 43 << "color: blue;"
        << "color: white;";
    QTest::newRow("upper row Ж") << int(Qt::Key_Colon) << int(Qt::ShiftModifier) << 41 << 8 << 43
        << "color: blue;" + upperFont << "color: white;" + upperFont;
    QTest::newRow("sign \"") << int(Qt::Key_At) << int(Qt::ShiftModifier) << 80 << 68 << 29
        << "color: blue;" + upperFont << "color: white;" + upperFont;
    // clang-format on
}

void tst_Keyboard::pressedAndRestLooks()
{
    QFETCH(int, code);
    QFETCH(int, modifiers);
    QFETCH(int, n);
    QFETCH(int, other);
    QFETCH(int, k);
    QFETCH(QString, pressedLetter);
    QFETCH(QString, restLetter);

    const QString otherRest = label(QStringLiteral("r%1").arg(other))->styleSheet();
    QTest::keyPress(window.get(), Qt::Key(code), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(label(QStringLiteral("bg%1").arg(k))->styleSheet(), pressedFace);
    QCOMPARE(label(QStringLiteral("r%1_3").arg(k))->styleSheet(),
        QString("color: blue;font-family: Calibri;"));
    QCOMPARE(label(QStringLiteral("r%1").arg(n))->styleSheet(), pressedLetter);
    QCOMPARE(label(QStringLiteral("r%1_2").arg(n))->styleSheet(), pressedLetter);
    QCOMPARE(
        label(QStringLiteral("r%1bg").arg(n))->styleSheet(), "border-radius: 10px;" + keysGradient);

    // Release without the modifier: both letters of the key come back to rest.
    QTest::keyRelease(window.get(), Qt::Key(code), Qt::NoModifier);
    QCOMPARE(label(QStringLiteral("bg%1").arg(k))->styleSheet(), restFace);
    QCOMPARE(label(QStringLiteral("r%1_3").arg(k))->styleSheet(),
        QString("color: white;font-family: Calibri;"));
    QCOMPARE(label(QStringLiteral("r%1").arg(n))->styleSheet(), restLetter);
    QCOMPARE(label(QStringLiteral("r%1_2").arg(n))->styleSheet(), restLetter);
    QCOMPARE(label(QStringLiteral("r%1").arg(other))->styleSheet(), otherRest);
}

void tst_Keyboard::flashRestoresAfterDelay()
{
    radio("keyFlash")->setChecked(true);
    QTest::keyPress(window.get(), Qt::Key_F);
    QTest::keyRelease(window.get(), Qt::Key_F);
    QCOMPARE(label("bg6")->styleSheet(), pressedFace);
    QCOMPARE(label("r1")->styleSheet(), QString("color: blue;"));
    QTest::qWait(150);
    QCOMPARE(label("bg6")->styleSheet(), pressedFace);
    QTRY_COMPARE(label("bg6")->styleSheet(), restFace);
    QCOMPARE(label("r1")->styleSheet(), QString("color: white;"));
}

void tst_Keyboard::letterNumberLine_data()
{
    QTest::addColumn<QList<int>>("codes");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("expected");

    // clang-format off
    QTest::newRow("а") << QList<int> {Qt::Key_F} << 0 << "Letter-number: 1";
    QTest::newRow("Ж") << QList<int> {Qt::Key_Colon} << int(Qt::ShiftModifier)
        << "Letter-number: 8";
    QTest::newRow("ё") << QList<int> {Qt::Key_QuoteLeft} << 0 << "Letter-number: 7";
    QTest::newRow("Я") << QList<int> {Qt::Key_Z} << int(Qt::ShiftModifier) << "Letter-number: 33";
    QTest::newRow("digit keeps the number") << QList<int> {Qt::Key_T, Qt::Key_5} << 0
        << "Letter-number: 6";
    // clang-format on
}

void tst_Keyboard::letterNumberLine()
{
    QFETCH(QList<int>, codes);
    QFETCH(int, modifiers);
    QFETCH(QString, expected);

    for (int code : codes)
        QTest::keyClick(window.get(), Qt::Key(code), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(label("letterOfAlphabet2")->text(), expected);
}

void tst_Keyboard::keyLayersStackFacesUnderLetters()
{
    const QObjectList stack = widget("centralWidget")->children();
    auto z = [&stack, this](const char *name) { return stack.indexOf(label(name)); };
    QVERIFY(z("wallpaper") == 0);
    QVERIFY(z("bg6") < z("img6"));
    QVERIFY(z("img6") < z("r1_2"));
    QVERIFY(z("img6") < z("r34_2"));
    QVERIFY(z("img6") < z("r6_3"));
    QVERIFY(z("r1_2") < z("displayNone6"));
    QVERIFY(z("pulsate6") < z("displayNone6"));
    QVERIFY(z("displayNone6") < z("shield6"));
    QVERIFY(z("bgCapsLock") < z("labelCapsLock"));
    QVERIFY(z("r1bg") < z("r1"));
    QVERIFY(!label("pulsate6")->isVisibleTo(window.get()));
    QVERIFY(!label("displayNone6")->isVisibleTo(window.get()));
}

void tst_Keyboard::keyboardAndBarGeometry()
{
    // Letters sit on their key (one exception, drawn two pixels high), bar cells in rows.
    QCOMPARE(label("r1_2")->geometry(), QRect(456, 514, 54, 54));
    QCOMPARE(label("r29_2")->geometry(), QRect(332, 512, 54, 54));
    QCOMPARE(label("r34")->geometry(), QRect(144, 266, 28, 28));
    QCOMPARE(label("r33")->geometry(), QRect(144 + 32 * 28, 294, 28, 28));
    QCOMPARE(label("r92")->geometry(), QRect(144 + 14 * 28, 358, 28, 28));
    QCOMPARE(label("bgSpacebar")->geometry(), QRect(474, 634, 228, 54));
    QCOMPARE(label("displayNone48")->geometry(), QRect(952, 394, 102, 54)); // Backspace
    QCOMPARE(label("pulsate54")->geometry(), QRect(538, 608, 96, 96));
}

void tst_Keyboard::windowIsFixedAndHelpShowsOpeningWindow()
{
    QCOMPARE(window->minimumSize(), QSize(1211, 695));
    QCOMPARE(window->maximumSize(), QSize(1211, 695));
    QCOMPARE(window->windowTitle(), QString("Vortic-Typing: Russian"));

    auto *opening = window->findChild<QMainWindow *>("openingWindow");
    QVERIFY(opening);
    QVERIFY(opening->isVisible());
    QVERIFY(!window->isVisible());
    opening->findChild<QPushButton *>("startLearnRussianTyping")->click();
    QVERIFY(window->isVisible());
    QVERIFY(!opening->isVisible());

    window->findChild<QPushButton *>("helpButton")->click();
    QVERIFY(opening->isVisible());
    QVERIFY(window->isVisible());
}

void tst_Keyboard::readingWindowsOpenAndClose_data()
{
    QTest::addColumn<QString>("opener");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("closer");

    // clang-format off
    QTest::newRow("instructions") << "openInstructions" << "instructions" << "mgExitButton";
    QTest::newRow("self-explore") << "owInstructionsForSE" << "selfExplore" << "seExitbutton";
    QTest::newRow("about") << "owAboutButton" << "aboutWindow" << "awExitButton";
    // clang-format on
}

void tst_Keyboard::readingWindowsOpenAndClose()
{
    QFETCH(QString, opener);
    QFETCH(QString, window);
    QFETCH(QString, closer);

    auto *opening = this->window->findChild<QMainWindow *>("openingWindow");
    opening->findChild<QPushButton *>(opener)->click();
    auto *reading = this->window->findChild<QMainWindow *>(window);
    QVERIFY(reading);
    QVERIFY(reading->isVisible());
    QVERIFY(reading->windowFlags() & Qt::CustomizeWindowHint);
    QVERIFY(!(reading->windowFlags() & Qt::WindowCloseButtonHint));

    reading->findChild<QPushButton *>(closer)->click();
    QVERIFY(!reading->isVisible());
    QVERIFY(opening->isVisible());

    // A second opening finds the same window again.
    opening->findChild<QPushButton *>(opener)->click();
    QCOMPARE(this->window->findChild<QMainWindow *>(window), reading);
    QVERIFY(reading->isVisible());
    // Start on the opening window closes every reading window.
    opening->findChild<QPushButton *>("startLearnRussianTyping")->click();
    QVERIFY(!reading->isVisible());
}

void tst_Keyboard::panesHideAndShow_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("panes");

    // clang-format off
    QTest::newRow("left instructions") << "buttonInstructionsLeft"
        << QStringList {"labelInstructionsLeft"};
    QTest::newRow("right instructions") << "buttonInstructionsRight"
        << QStringList {"labelInstructionsRight"};
    QTest::newRow("a key's map") << "aKeysMap"
        << QStringList {"aKeysMap2", "aKeysMap3", "aKeysMap4", "aKeysMap5", "aKeysMapShift", "aKeysMapNormal", "aKeysMapText"};
    // clang-format on
}

void tst_Keyboard::panesHideAndShow()
{
    QFETCH(QString, button);
    QFETCH(QStringList, panes);

    window->openLexoria();
    auto *toggle = window->findChild<QPushButton *>(button);
    for (bool shown : {false, true}) {
        toggle->click();
        QCOMPARE(toggle->text(), shown ? QString("<") : QString(">>>"));
        for (const QString &pane : panes)
            QCOMPARE(label(pane)->isVisible(), shown);
    }
}

void tst_Keyboard::exitOnOpeningWindowEndsProgram()
{
    // The application quits when no window is left on screen; the main window was never shown.
    window->findChild<QMainWindow *>("openingWindow")
        ->findChild<QPushButton *>("owExitPushButton")
        ->click();
    for (QWidget *topLevel : QApplication::topLevelWidgets())
        QVERIFY2(!topLevel->isVisible(), qPrintable(topLevel->objectName()));
}

QTEST_MAIN(tst_Keyboard)
#include "tst_keyboard.moc"
