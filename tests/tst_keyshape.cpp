#include "paneldriver.h"

#include <QFontComboBox>
#include <QSlider>

#include <memory>

using keycatalogue::keyRect;

class tst_KeyShape : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(Start::Shown); }
    void cleanup() { closeWindow(); }

    void fontBoxChangesItsLetters_data();
    void fontBoxChangesItsLetters();
    void familiesQtWouldSplitAreQuoted_data();
    void familiesQtWouldSplitAreQuoted();
    void circleAndBack();
    void circleKeepsTheGameOnTheBoard();

private:
    QFontComboBox *combo(const QString &name) const
    {
        return window->findChild<QFontComboBox *>(name);
    }
    // Another family than the one the box shows.
    QString otherFamily(QFontComboBox *box) const
    {
        for (int i = 0; i < box->count(); ++i) {
            // One written bare, as the form's own families are.
            const QString family = box->itemText(i);
            const bool bare = QRegularExpression("^[A-Za-z ]+$").match(family).hasMatch();
            if (family != box->currentText() && bare)
                return family;
        }
        return {};
    }
    void setShape(int position)
    {
        auto *slider = window->findChild<QSlider *>("sliderKeyShape");
        slider->setSliderPosition(position);
    }
};

void tst_KeyShape::fontBoxChangesItsLetters_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QStringList>("changed"); // widget: colour piece before the family
    QTest::addColumn<QStringList>("unchanged");

    QTest::newRow("English") << "fontComboBoxEnglish"
                             << QStringList {"r6_3", "labelSpacebar", "underscore_left"}
                             << QStringList {"r1_2", "r34"};
    QTest::newRow("Russian upper case")
        << "fontComboBoxUppercase" << QStringList {"r34_2", "r34", "r94_2"}
        << QStringList {"r1_2", "r6_3"};
    QTest::newRow("Russian lower case")
        << "fontComboBoxLowercase" << QStringList {"r1_2", "r1", "r92"}
        << QStringList {"r34_2", "r6_3"};
}

void tst_KeyShape::fontBoxChangesItsLetters()
{
    QFETCH(QString, box);
    QFETCH(QStringList, changed);
    QFETCH(QStringList, unchanged);

    QMap<QString, QString> before;
    for (const QString &name : unchanged)
        before[name] = game->style(name);

    QFontComboBox *fonts = combo(box);
    const QString family = otherFamily(fonts);
    QVERIFY(!family.isEmpty());
    fonts->setCurrentText(family);
    const QString piece = "font-family: " + family + ";";
    for (const QString &name : changed) {
        QVERIFY2(game->style(name).contains(piece), qPrintable(name + ": " + game->style(name)));
        QVERIFY(game->style(name).contains("color: white;"));
    }
    for (const QString &name : unchanged)
        QCOMPARE(game->style(name), before[name]);
}

void tst_KeyShape::familiesQtWouldSplitAreQuoted_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("piece");

    QTest::newRow("plain words") << "Liberation Sans" << "font-family: Liberation Sans;";
    QTest::newRow("kept quoted") << "Old English Text MT" << "font-family: 'Old English Text MT';";
    QTest::newRow("digits and a dot") << "Modern No. 20" << "font-family: 'Modern No. 20';";
    // How the Linux font list names a family that two foundries make.
    QTest::newRow("foundry") << "C059 [UKWN]" << "font-family: 'C059 [UKWN]';";
    QTest::newRow("apostrophe") << "Pete's Hand" << "font-family: 'Pete\\'s Hand';";
}

void tst_KeyShape::familiesQtWouldSplitAreQuoted()
{
    QFETCH(QString, family);
    QFETCH(QString, piece);

    QFontComboBox *fonts = combo("fontComboBoxEnglish");
    fonts->addItem(family);
    fonts->setCurrentText(family);
    QCOMPARE(game->style("r6_3"), piece + "color: white;");
    // A sheet Qt cannot parse is dropped whole, and the letter keeps its old font.
    auto *letter = window->findChild<QLabel *>("r6_3");
    letter->ensurePolished();
    QCOMPARE(letter->font().family(), family);
}

void tst_KeyShape::circleAndBack()
{
    const QStringList controls = {"bgCapsLock", "labelCapsLock", "imgCapsLock", "bgSpacebar",
        "labelSpacebar", "imgSpacebar", "displayNone54", "bgEnter", "labelEnter", "bgBackSpace",
        "labelBackSpace", "bgTab", "labelTab", "displayNone49", "bgShiftLeft", "labelShiftLeft",
        "bgShiftRight", "labelShiftRight", "displayNone53", "bg42", "img42", "r92_2", "r94_2",
        "aKeysMap5"};
    QMap<QString, QRect> before;
    for (const QString &name : controls)
        before[name] = rect(name);
    for (int k = 1; k <= keycatalogue::characterKeyCount; ++k) {
        for (const char *layer : {"bg%1", "shield%1", "displayNone%1"})
            before[QString(layer).arg(k)] = rect(QString(layer).arg(k));
    }

    setShape(1);
    QCOMPARE(rect("bg1"), keyRect(1).adjusted(-4, -4, 4, 4));
    QCOMPARE(rect("shield1"), rect("bg1"));
    QCOMPARE(rect("displayNone27"), keyRect(27).adjusted(-4, -4, 4, 4));
    QCOMPARE(rect("bg42").size(), QSize(62, 62));
    QCOMPARE(rect("r92_2").size(), QSize(54, 54));
    QCOMPARE(rect("labelSpacebar"), QRect(545, 632, 62, 62));
    QCOMPARE(rect("aKeysMap5"), QRect(1107, 400, 62, 62));
    QCOMPARE(game->text("labelSpacebar"), QString("Space"));
    QCOMPARE(game->text("labelBackSpace"), QString("Back\nspace"));
    QVERIFY(game->style("bg1").startsWith("border-radius: 31px;"));
    QVERIFY(game->style("bgTab").startsWith("border-radius: 31px;"));
    QVERIFY(game->style("r1bg").startsWith("border-radius: 14px;"));
    QVERIFY(game->style("dem1").startsWith("border-radius: 17px;"));
    QVERIFY(game->style("leMatchBg").startsWith("border-radius: 30px;"));

    setShape(0);
    for (auto it = before.cbegin(); it != before.cend(); ++it)
        QCOMPARE(rect(it.key()), it.value());
    QCOMPARE(game->text("labelSpacebar"), QString("Spacebar"));
    QCOMPARE(game->text("labelCapsLock"), QString("Caps Lock"));
    QVERIFY(game->style("bg1").startsWith("border-radius: 10px;"));
    QVERIFY(game->style("r1bg").startsWith("border-radius: 10px;"));
    QVERIFY(game->style("leMatchBg").startsWith("border-radius:  10px; "));
}

void tst_KeyShape::circleKeepsTheGameOnTheBoard()
{
    game->startGame("pbForwardVarious");
    game->type(1);
    game->space();
    QTRY_COMPARE(game->field("leMatch")->text(), QString("б"));
    const QString finished = game->style("r1");
    QVERIFY(!finished.isEmpty());
    setShape(1);
    QCOMPARE(game->style("r1"), finished);
}

QTEST_MAIN(tst_KeyShape)
#include "tst_keyshape.moc"
