// Clicks go through the platform layer, so that underMouse() holds for the swatch clicked.
#define QTEST_QPA_MOUSE_HANDLING

#include "paneldriver.h"

#include <QColorDialog>
#include <QRadioButton>
#include <QTemporaryDir>

#include <memory>

class tst_Rainbow : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init()
    {
        makeWindow(Start::Shown);
        window->setFileAsker(
            [this](const lexoria::FileQuestion &) { return QStringList {dir.filePath("t.txt")}; });
    }
    void cleanup() { closeWindow(); }

    void aTextTargetTurnsItsLayerOn_data();
    void aTextTargetTurnsItsLayerOn();
    void swatchesDoNothingForATextTarget();
    void anotherTargetOnlyRetitlesTheOpenPicker();

private:
    QColorDialog *picker(const char *swatch) const
    {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1String(swatch))
                return qobject_cast<QColorDialog *>(top);
        }
        return nullptr;
    }
    // The paint flags as a save writes them, English, upper, lower, background, border.
    QStringList savedFlags();

    QTemporaryDir dir;
};

QStringList tst_Rainbow::savedFlags()
{
    game->click("savePaint");
    QFile file(dir.filePath("t.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split('\n').mid(258, 5);
}

void tst_Rainbow::aTextTargetTurnsItsLayerOn_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("flags");
    QTest::newRow("English") << "rainbowEnglish" << QStringList({"1", "0", "0", "0", "0"});
    QTest::newRow("Uppercase") << "rainbowUppercase" << QStringList({"0", "1", "0", "0", "0"});
    QTest::newRow("Lowercase") << "rainbowLowercase" << QStringList({"0", "0", "1", "0", "0"});
}

void tst_Rainbow::aTextTargetTurnsItsLayerOn()
{
    QFETCH(QString, target);
    QCOMPARE(savedFlags(), QStringList({"0", "0", "0", "0", "0"}));
    radio(target.toLatin1())->click();
    QTEST(savedFlags(), "flags");

    // One target is chosen at a time; the flags already on stay on.
    const char *next = target == "rainbowEnglish" ? "rainbowLowercase" : "rainbowEnglish";
    radio(next)->click();
    QVERIFY(!radio(target.toLatin1())->isChecked());
    QCOMPARE(savedFlags().count("1"), 2);
}

void tst_Rainbow::swatchesDoNothingForATextTarget()
{
    game->click("options");
    game->click("menuColorMadness");
    window->selectColorMadnessTab(7);
    radio("rainbowUppercase")->click();
    QTRY_VERIFY(window->findChild<QWidget *>("colorPickerRainbowBg")->isVisible());
    clickLabel("colorPickerRainbowBg");
    clickLabel("colorPickerGradBottom8");
    QVERIFY(radio("rainbowUppercase")->isChecked());
    QCOMPARE(savedFlags(), QStringList({"0", "1", "0", "0", "0"}));
}

void tst_Rainbow::anotherTargetOnlyRetitlesTheOpenPicker()
{
    game->click("options");
    game->click("menuColorMadness");
    window->selectColorMadnessTab(7);
    radio("rainbowLowercase")->click();
    QColorDialog *paint = picker("colorPickerRainbowBg");
    if (!paint)
        QSKIP("the colour pickers are not in this build");
    QVERIFY(paint->isVisible());
    QCOMPARE(paint->windowTitle(), QString("Rainbow Lowercase"));
    QCOMPARE(paint->pos(), QPoint(978, 24));
    radio("rainbowEnglish")->click();
    QVERIFY(paint->isVisible());
    QCOMPARE(paint->windowTitle(), QString("Rainbow English"));
    QCOMPARE(paint->pos(), QPoint(22, 24));
    QVERIFY(!radio("rainbowLowercase")->isChecked());
    QCOMPARE(savedFlags(), QStringList({"1", "0", "1", "0", "0"}));
}

QTEST_MAIN(tst_Rainbow)
#include "tst_rainbow.moc"
