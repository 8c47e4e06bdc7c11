#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/painttheme.h"
#include "lexoria/restyle.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

using namespace keycatalogue;

namespace {

const QString transparent = QStringLiteral("background-color: transparent;");

// Shapes and stop positions have no text for 0: such a value leaves the text of the last save.
void numberText(QString &text, int value, int highest)
{
    if (value >= 1 && value <= highest)
        text = QString::number(value);
}

void numberFromText(int &value, const QString &text, int highest)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    if (ok && number >= 1 && number <= highest && text == QString::number(number))
        value = number;
}

// The samples belong to other tabs' tables, which a build may lack.
void restyleLoadedSample(const Ui::lexoria *ui, const char *name, const QString &sheet)
{
    if (QWidget *widget = ui->widget(QLatin1String(name)))
        restyle(widget, sheet);
}

} // namespace

void lexoria::setUpPaintFile()
{
    if (auto *save = ui->find<QPushButton>(QStringLiteral("savePaint")))
        connect(save, &QPushButton::clicked, this, &lexoria::savePaint_Function);
    if (auto *open = ui->find<QPushButton>(QStringLiteral("openPaint")))
        connect(open, &QPushButton::clicked, this, &lexoria::openPaint_Function);
}

void lexoria::gatherPaintTheme()
{
    painttheme::Theme &theme = paintFile.texts;
    theme.kindMarker = QStringLiteral("1");
    theme.languageMarker = QStringLiteral("1");
    for (int n = 1; n <= letterCount; ++n)
        theme.charColor[n - 1] = painted.paintCharColor[n];
    for (int K = 1; K <= paintKeyCount; ++K) {
        theme.englishColor[K - 1] = painted.paintEnglishColor[K];
        theme.bgStyle[K - 1] = painted.paintBgStyle[K];
        theme.borderStyle[K - 1] = painted.paintBorderStyle[K];
    }
    // A flag that is off keeps its text: the pickers' OK has already put it at "0".
    const std::pair<bool Painted::*, QString Painted::*> flags[] = {
        {&Painted::paintEnglishOn, &Painted::paintEnglishText},
        {&Painted::paintUpperOn, &Painted::paintUpperText},
        {&Painted::paintLowerOn, &Painted::paintLowerText},
        {&Painted::paintBackgroundOn, &Painted::paintBackgroundText},
        {&Painted::paintBorderOn, &Painted::paintBorderText},
    };
    for (const auto &[flag, text] : flags) {
        if (painted.*flag)
            painted.*text = QStringLiteral("1");
    }
    theme.englishText = painted.paintEnglishText;
    theme.upperText = painted.paintUpperText;
    theme.lowerText = painted.paintLowerText;
    theme.backgroundText = painted.paintBackgroundText;
    theme.borderText = painted.paintBorderText;
    numberText(theme.borderShape, targets.rainbow.border.shape, 5);
    numberText(theme.bgShape, targets.rainbow.bg.shape, 5);
    theme.keysBorderWidth = targets.keys.borderWidth;
    theme.gradOpened = pickerState.rainbowGradOpened ? QStringLiteral("1") : QStringLiteral("0");
    numberText(theme.bgStopPos, targets.rainbow.bg.stopPos, 10);
    numberText(theme.borderStopPos, targets.rainbow.border.stopPos, 10);
    theme.englishColorStyle = pieces.englishColorStyle;
    theme.upperColorStyle = pieces.upperColorStyle;
    theme.lowerColorStyle = pieces.lowerColorStyle;
    theme.rainbowBorderWidth = targets.rainbow.borderWidth;
    theme.underscoreLeftColor = painted.paintUnderscoreLeftColor;
    theme.underscoreRightColor = painted.paintUnderscoreRightColor;
    theme.englishFontStyle = pieces.englishFontStyle;
    theme.upperFontStyle = pieces.upperFontStyle;
    if (auto *english = ui->find<QComboBox>(QStringLiteral("fontComboBoxEnglish")))
        theme.fontEnglishText = english->currentText();
    if (auto *upper = ui->find<QComboBox>(QStringLiteral("fontComboBoxUppercase")))
        theme.fontUpperText = upper->currentText();
}

void lexoria::savePaint_Function()
{
    const QString name = askFile({FileQuestion::Save, QStringLiteral("Save Paint"),
        QStringLiteral("./Paint Theme.txt"), QStringLiteral("Text Files (*.txt)")});
    gatherPaintTheme();
    if (name.isEmpty())
        return;
    // Like a cancelled dialog, a file that cannot be written shows nothing; the file that was
    // there stays as it was.
    painttheme::save(paintFile.texts, name);
}

void lexoria::openPaint_Function()
{
    const QString name = askFile({FileQuestion::Open, QStringLiteral("Open Paint Theme"),
        QStringLiteral("."), QStringLiteral("Text Files (*.txt)")});
    QString &current = paintFile.currentThemeName;
    if (name.isEmpty()) {
        current = paintFile.lastThemeName;
    } else {
        current = name.mid(name.lastIndexOf(QLatin1Char('/')) + 1);
        current.chop(4);
        paintFile.lastThemeName = current;
    }
    auto *title = ui->find<QLabel>(QStringLiteral("paintTheme"));
    auto *warning = ui->find<QLabel>(QStringLiteral("paintTheme_3"));
    if (title)
        title->setText(current);
    if (warning)
        warning->hide();
    if (name.isEmpty())
        return;

    // Only a plain file: a pipe or a device named like a theme would hang the read.
    QFile file(name);
    if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    const painttheme::Reading reading = painttheme::read(file);
    file.close();
    if (warning && (reading.notPaintTheme || reading.notEnglish)) {
        warning->setText(reading.notEnglish ? QStringLiteral("This is not an English Theme.")
                                            : QStringLiteral("This is not a Paint theme"));
        warning->show();
    }
    paintFile.texts = reading.theme;

    for (const char *name : {"paintTheme", "paintTheme_2"}) {
        if (QWidget *label = ui->widget(QLatin1String(name)))
            label->show();
    }
    for (const char *name : {"keyboardTheme", "keyboardTheme_2", "keyboardTheme_3"}) {
        if (QWidget *label = ui->widget(QLatin1String(name)))
            label->hide();
    }
    if (auto *keyboardTitle = ui->find<QLabel>(QStringLiteral("keyboardTheme")))
        keyboardTitle->clear();

    applyPaintTheme(reading.theme);
}

// The members take the texts as they stand; what a text means is worked out by the loads.
void lexoria::applyPaintTheme(const painttheme::Theme &theme)
{
    for (int n = 1; n <= letterCount; ++n)
        painted.paintCharColor[n] = theme.charColor[n - 1];
    for (int K = 1; K <= paintKeyCount; ++K) {
        painted.paintEnglishColor[K] = theme.englishColor[K - 1];
        painted.paintBgStyle[K] = theme.bgStyle[K - 1];
        painted.paintBorderStyle[K] = theme.borderStyle[K - 1];
    }
    painted.paintEnglishText = theme.englishText;
    painted.paintUpperText = theme.upperText;
    painted.paintLowerText = theme.lowerText;
    painted.paintBackgroundText = theme.backgroundText;
    painted.paintBorderText = theme.borderText;
    targets.keys.borderWidth = theme.keysBorderWidth;
    pieces.englishColorStyle = theme.englishColorStyle;
    pieces.upperColorStyle = theme.upperColorStyle;
    pieces.lowerColorStyle = theme.lowerColorStyle;
    targets.rainbow.borderWidth = theme.rainbowBorderWidth;
    painted.paintUnderscoreLeftColor = theme.underscoreLeftColor;
    painted.paintUnderscoreRightColor = theme.underscoreRightColor;
    pieces.englishFontStyle = theme.englishFontStyle;
    pieces.upperFontStyle = theme.upperFontStyle;
    loadPaint1();
    loadPaint2();
    loadPaint3();
}

void lexoria::loadPaint1()
{
    const painttheme::Theme &theme = paintFile.texts;
    pieces.keysBgStyle = painted.paintBgStyle[1];
    pieces.keysBorderStyle = painted.paintBorderStyle[1];
    shadowThClear();

    const int width = qBound(0, theme.rainbowBorderWidth.toInt(), 99);
    targets.rainbowBorderWidthValue = width;
    if (auto *slider = ui->find<QSlider>(QStringLiteral("sliderBorderWidth8")))
        slider->setValue(width);
    if (auto *spin = ui->find<QSpinBox>(QStringLiteral("spinBox8")))
        spin->setValue(width);

    const QLatin1String on("1");
    painted.paintEnglishOn = painted.paintEnglishText == on;
    painted.paintUpperOn = painted.paintUpperText == on;
    painted.paintLowerOn = painted.paintLowerText == on;
    painted.paintBackgroundOn = painted.paintBackgroundText == on;
    painted.paintBorderOn = painted.paintBorderText == on;

    numberFromText(targets.rainbow.border.shape, theme.borderShape, 5);
    numberFromText(targets.rainbow.bg.shape, theme.bgShape, 5);
    // The slider writes the side that is chosen, so both shapes are taken before it moves.
    const int borderShape = targets.rainbow.border.shape;
    const int bgShape = targets.rainbow.bg.shape;
    if (auto *shape = ui->find<QSlider>(QStringLiteral("hoSlider8"))) {
        shape->setValue(borderShape);
        shape->setValue(bgShape);
    }
    targets.rainbow.border.shape = borderShape;
    targets.rainbow.bg.shape = bgShape;
    pickerState.rainbowGradOpened = theme.gradOpened != QLatin1String("0");
    numberFromText(targets.rainbow.bg.stopPos, theme.bgStopPos, 10);
    numberFromText(targets.rainbow.border.stopPos, theme.borderStopPos, 10);
    const int borderStop = targets.rainbow.border.stopPos;
    if (auto *stop = ui->find<QSlider>(QStringLiteral("slider8")))
        stop->setValue(targets.rainbow.bg.stopPos);
    targets.rainbow.border.stopPos = borderStop;

    // The samples of the Keys and Paint tabs and the key's map show keys 1 and 26 as painted.
    const QString face1
        = pieces.demoRadiusStyle + painted.paintBgStyle[1] + painted.paintBorderStyle[1];
    restyleLoadedSample(ui, "demoLetter4Bg", face1);
    restyleLoadedSample(ui, "demoLetter1Bg", face1);
    restyle(ui->aKeysMap5,
        pieces.keyRadiusStyle + painted.paintBgStyle[26] + painted.paintBorderStyle[26]);
    const QString english = transparent + painted.paintEnglishColor[1] + pieces.demoEnglishFontStyle
        + pieces.englishFontStyle;
    restyleLoadedSample(ui, "demoLetter4English", english);
    restyleLoadedSample(ui, "demoLetter1_2", english);
    const QString upper = transparent + painted.paintCharColor[55] + pieces.demoUpperFontStyle
        + pieces.upperFontStyle;
    const QString lower = transparent + painted.paintCharColor[22] + pieces.demoUpperFontStyle
        + pieces.lowerFontStyle;
    restyleLoadedSample(ui, "demoLetter4UpperCase", upper);
    restyleLoadedSample(ui, "demoLetter2_2", upper);
    restyleLoadedSample(ui, "demoLetter4LowerCase", lower);
    restyleLoadedSample(ui, "demoLetter3_2", lower);
    restyleLoadedSample(
        ui, "aKeysMap4", transparent + painted.paintEnglishColor[26] + pieces.englishFontStyle);
    restyleLoadedSample(
        ui, "aKeysMap2", transparent + painted.paintCharColor[66] + pieces.upperFontStyle);
    restyleLoadedSample(
        ui, "aKeysMap3", transparent + painted.paintCharColor[33] + pieces.lowerFontStyle);

    for (int i = 0; i < paintKeyCount - characterKeyCount; ++i) {
        const int K = controlKeys[i].number;
        const QString suffix = QLatin1String(controlKeys[i].suffix);
        restyle(keyBgLabels[characterKeyCount + i],
            pieces.keyRadiusStyle + painted.paintBgStyle[K] + painted.paintBorderStyle[K]);
        restyle(keyEnglishLabels[characterKeyCount + i],
            painted.paintEnglishColor[K] + pieces.englishFontStyle);
    }
}

void lexoria::loadPaint2()
{
    for (int n = 1; n <= letterCount; ++n)
        restyle(barLabels[n - 1], painted.paintCharColor[n] + pieces.upperFontStyle);
    for (int k = 1; k <= characterKeyCount; ++k)
        restyle(keyEnglishLabels[k - 1], painted.paintEnglishColor[k] + pieces.englishFontStyle);
    for (const CharacterKey &key : characterKeys) {
        for (int n : {key.lower, key.upper})
            restyle(barBgLabels[n - 1], pieces.barRadiusStyle + painted.paintBgStyle[key.k]);
    }
}

void lexoria::loadPaint3()
{
    const painttheme::Theme &theme = paintFile.texts;
    for (int k = 1; k <= characterKeyCount; ++k)
        restyle(keyBgLabels[k - 1],
            pieces.keyRadiusStyle + painted.paintBgStyle[k] + painted.paintBorderStyle[k]);
    for (int n = 1; n <= letterCount; ++n)
        restyle(keyLetterLabels[n - 1], painted.paintCharColor[n] + pieces.upperFontStyle);
    restyle(ui->underscore_left, painted.paintUnderscoreLeftColor + pieces.englishFontStyle);
    restyle(ui->underscore_right, painted.paintUnderscoreRightColor + pieces.englishFontStyle);
    restyle(ui->goldenHighlight,
        pieces.keyRadiusStyle + pieces.highlightBgStyle + pieces.highlightEnglishColorStyle);
    bgColorLoops();
    if (auto *english = ui->find<QComboBox>(QStringLiteral("fontComboBoxEnglish")))
        english->setCurrentText(theme.fontEnglishText);
    if (auto *upper = ui->find<QComboBox>(QStringLiteral("fontComboBoxUppercase")))
        upper->setCurrentText(theme.fontUpperText);
}
