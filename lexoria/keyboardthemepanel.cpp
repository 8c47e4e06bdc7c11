#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/gradientcatalogue.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QFile>
#include <QFileInfo>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

using keyboardtheme::lineCount;

namespace {

const QString transparent = QLatin1String(gradientcatalogue::transparent);

// The lines that hold an int as text: shapes 1..5, then stop positions 1..10. Any other text
// leaves the int alone, and an int of 0 leaves the text alone.
constexpr int firstShapeLine = 67;
constexpr int firstStopPosLine = 75;
constexpr int lastIntLine = 82;

int intLineLimit(int line)
{
    return line < firstStopPosLine ? 5 : 10;
}

// The gradient sliders that show a target's background shape and stop position.
struct SliderRow
{
    int target;
    GradientTarget ColorTargets::*member;
};
constexpr SliderRow sliderRows[] = {{1, &ColorTargets::keys}, {2, &ColorTargets::keypress},
    {3, &ColorTargets::mouseover}, {4, &ColorTargets::highlight}, {7, &ColorTargets::wallpaper},
    {8, &ColorTargets::rainbow}, {27, &ColorTargets::gamePlay}};

} // namespace

void lexoria::setUpKeyboardTheme()
{
    ui->find<QLabel>(QStringLiteral("keyboardThemeNote"))->setWordWrap(true);
    connect(ui->find<QPushButton>(QStringLiteral("saveKeyboard")), &QPushButton::clicked, this,
        &lexoria::saveKeyboard_Function);
    connect(ui->find<QPushButton>(QStringLiteral("openKeyboard")), &QPushButton::clicked, this,
        &lexoria::openKeyboard_Function);
}

// Where each line of the file lives in the window's state, by line number; null for the lines
// that are not plain texts of a member.
std::array<QString *, lineCount + 1> lexoria::keyboardThemeTexts()
{
    std::array<QString *, lineCount + 1> texts {};
    int line = 3;
    auto next = [&texts, &line](QString &member) { texts[std::size_t(line++)] = &member; };
    auto gradPair = [&next](GradientSide &side) {
        next(side.gradColor);
        next(side.color);
    };
    auto radialPair = [&next](GradientSide &side) {
        next(side.radialColor);
        next(side.radialGradColor);
    };
    ColorTargets &t = targets;
    StylePieces &p = pieces;

    for (GradientTarget *target : {&t.keys, &t.keypress, &t.mouseover, &t.highlight, &t.finished})
        gradPair(target->bg);
    next(p.lineHorizontalGradColor);
    next(p.lineHorizontalColor);
    for (GradientTarget *target : {&t.wallpaper, &t.rainbow, &t.gamePlay})
        gradPair(target->bg);

    const std::array<GradientTarget *, 6> bordered
        = {&t.keys, &t.keypress, &t.mouseover, &t.highlight, &t.rainbow, &t.gamePlay};
    for (GradientTarget *target : bordered)
        next(target->border.color);
    for (GradientTarget *target : bordered)
        next(target->border.gradColor);

    for (GradientTarget *target : {&t.keys, &t.keypress, &t.mouseover, &t.highlight, &t.finished})
        next(target->gradStop);
    next(p.lineGradStop);
    for (GradientTarget *target : {&t.wallpaper, &t.rainbow, &t.gamePlay})
        next(target->gradStop);

    for (QString *piece : {&p.keysBgStyle, &p.keypressBgStyle, &p.mouseoverBgStyle,
             &p.highlightBgStyle, &p.finishedBgStyle})
        next(*piece);
    for (GradientTarget *target : {&t.keys, &t.keypress, &t.mouseover, &t.rainbow})
        next(target->borderWidth);
    for (QString *piece : {&p.englishColorStyle, &p.lowerColorStyle, &p.upperColorStyle,
             &p.keypressEnglishColorStyle, &p.keypressRussianColorStyle,
             &p.mouseoverEnglishColorStyle, &p.mouseoverRussianColorStyle, &p.finishedColorStyle,
             &p.highlightRussianColorStyle, &p.highlightEnglishColorStyle, &p.keysBorderStyle,
             &p.keypressBorderStyle, &p.mouseoverBorderStyle, &p.highlightBorderStyle,
             &p.wallpaperBorderStyle, &p.wallpaperBgStyle})
        next(*piece);

    line = lastIntLine + 1;
    for (GradientTarget *target : {&t.keys, &t.keypress, &t.mouseover, &t.highlight}) {
        radialPair(target->bg);
        radialPair(target->border);
    }
    radialPair(t.finished.bg);
    radialPair(t.wallpaper.border);
    next(p.lineHorizontalRadialColor);
    next(p.lineHorizontalRadialGradColor);
    next(p.lineVerticalRadialColor);
    next(p.lineVerticalRadialGradColor);
    radialPair(t.wallpaper.bg);
    line += 2; // the spare colours, which nothing else reads
    for (GradientTarget *target : {&t.rainbow, &t.gamePlay}) {
        radialPair(target->bg);
        radialPair(target->border);
    }
    for (QString *piece : {&p.matchTextColorStyle, &p.gamePlayBorderStyle, &p.gamePlayBgStyle,
             &p.englishFontStyle, &p.upperFontStyle})
        next(*piece);
    line += 2; // the families shown in the font boxes
    next(p.userTextColorStyle);
    Q_ASSERT(line == lineCount + 1);
    return texts;
}

namespace {

std::array<int *, lastIntLine - firstShapeLine + 1> themeInts(ColorTargets &t)
{
    return {&t.keys.border.shape, &t.keypress.border.shape, &t.mouseover.border.shape,
        &t.highlight.border.shape, &t.keys.bg.shape, &t.keypress.bg.shape, &t.mouseover.bg.shape,
        &t.highlight.bg.shape, &t.keys.bg.stopPos, &t.keypress.bg.stopPos, &t.mouseover.bg.stopPos,
        &t.highlight.bg.stopPos, &t.keys.border.stopPos, &t.keypress.border.stopPos,
        &t.mouseover.border.stopPos, &t.highlight.border.stopPos};
}

QFontComboBox *fontBox(const Ui::lexoria *ui, int line)
{
    return ui->find<QFontComboBox>(line == 124 ? QStringLiteral("fontComboBoxEnglish")
                                               : QStringLiteral("fontComboBoxUppercase"));
}

} // namespace

void lexoria::gatherKeyboardTheme()
{
    const auto texts = keyboardThemeTexts();
    for (int line = 3; line <= lineCount; ++line) {
        if (texts[std::size_t(line)])
            keyboardThemeFile.line(line) = *texts[std::size_t(line)];
    }
    const auto ints = themeInts(targets);
    for (int line = firstShapeLine; line <= lastIntLine; ++line) {
        const int value = *ints[std::size_t(line - firstShapeLine)];
        if (value >= 1 && value <= intLineLimit(line))
            keyboardThemeFile.line(line) = QString::number(value);
    }
    for (int line : {124, 125}) {
        if (QFontComboBox *box = fontBox(ui, line))
            keyboardThemeFile.line(line) = box->currentText();
    }
}

void lexoria::applyKeyboardThemeTexts(const keyboardtheme::Theme &theme)
{
    const auto texts = keyboardThemeTexts();
    for (int line = 3; line <= lineCount; ++line) {
        if (texts[std::size_t(line)])
            *texts[std::size_t(line)] = theme.line(line);
    }
    keyboardThemeFile = theme;
}

void lexoria::saveKeyboard_Function()
{
    const QString fileName = askFile({FileQuestion::Save, QStringLiteral("Save Keyboard"),
        QStringLiteral("./Keyboard Theme.txt"), QStringLiteral("Text Files (*.txt)")});
    gatherKeyboardTheme();
    // Saving shows nothing: a failed save leaves the old file as it was.
    keyboardtheme::save(fileName, keyboardThemeFile);
}

void lexoria::openKeyboard_Function()
{
    const QString fileName = askFile({FileQuestion::Open, QStringLiteral("Open Keyboard Theme"),
        QStringLiteral("."), QStringLiteral("Text Files (*.txt)")});
    currentThemeName = fileName.mid(fileName.lastIndexOf(QLatin1Char('/')) + 1);
    currentThemeName.chop(4);
    if (fileName.isEmpty())
        currentThemeName = lastThemeName;
    else
        lastThemeName = currentThemeName;
    QLabel *name = ui->find<QLabel>(QStringLiteral("keyboardTheme"));
    QLabel *warning = ui->find<QLabel>(QStringLiteral("keyboardTheme_3"));
    name->setText(currentThemeName);
    warning->hide();
    if (fileName.isEmpty())
        return;
    // A pipe or a device would block the window or never end; a theme is a plain file.
    if (!QFileInfo(fileName).isFile())
        return;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const keyboardtheme::Theme theme = keyboardtheme::read(file);
    file.close();
    if (!keyboardtheme::warning(theme).isEmpty()) {
        warning->setText(keyboardtheme::warning(theme));
        warning->show();
    }
    applyKeyboardThemeTexts(theme);
    loadKeyboard();

    name->show();
    ui->widget(QStringLiteral("keyboardTheme_2"))->show();
    for (const char *paint : {"paintTheme", "paintTheme_2", "paintTheme_3"}) {
        if (QWidget *label = ui->widget(QLatin1String(paint)))
            label->hide();
    }
    if (QLabel *paintName = ui->find<QLabel>(QStringLiteral("paintTheme")))
        paintName->clear();
}

void lexoria::loadKeyboard()
{
    shadowThClear();

    const auto ints = themeInts(targets);
    for (int line = firstShapeLine; line <= lastIntLine; ++line) {
        const QString &text = keyboardThemeFile.line(line);
        for (int value = 1; value <= intLineLimit(line); ++value) {
            if (text == QString::number(value))
                *ints[std::size_t(line - firstShapeLine)] = value;
        }
    }

    restyle(ui->wallpaper, pieces.wallpaperBgStyle + pieces.wallpaperBorderStyle);

    for (const SliderRow &row : sliderRows) {
        const GradientSide &bg = (targets.*row.member).bg;
        if (QSlider *shape = ui->find<QSlider>(QStringLiteral("hoSlider%1").arg(row.target)))
            shape->setValue(bg.shape);
        if (QSlider *stop = ui->find<QSlider>(QStringLiteral("slider%1").arg(row.target)))
            stop->setValue(bg.stopPos);
    }

    // Every letter and key in its rest look with its own row's colour and font; the control
    // keys carry no letter, so they are done apart.
    allChangeColorBack();
    for (int k = keycatalogue::characterKeyCount + 1; k <= keycatalogue::paintKeyCount; ++k)
        restKeyFace(k);

    restyleKeyboardSamples();
    set_dem_StyleSheet();

    if (ui->goldenHighlight->isEnabled())
        restyle(ui->goldenHighlight,
            pieces.keyRadiusStyle + pieces.highlightBgStyle + pieces.highlightEnglishColorStyle);
    else
        restyle(ui->goldenHighlight,
            pieces.keyRadiusStyle + pieces.highlightBgStyle + QStringLiteral("color: #6e6e6e"));

    set_Match_StyleSheet();
    set_User_StyleSheet();
    gamePlayFields();

    for (int line : {124, 125}) {
        QFontComboBox *box = fontBox(ui, line);
        const QString &family = keyboardThemeFile.line(line);
        if (!box || family.isEmpty() || box->currentText() == family)
            continue;
        // Choosing the item, where there is one, runs the font slots as a user's choice does.
        const int index = box->findText(family);
        if (index >= 0)
            box->setCurrentIndex(index);
        else
            box->setCurrentText(family);
    }

    bgColorLoops();

    restyle(ui->pbQuit,
        QStringLiteral(
            "font: 16pt 'MS Shell Dlg 2';  color: rgb(85, 0, 0); background-color: transparent; "));
    if (QWidget *hide = ui->widget(QStringLiteral("hideNonVitals")))
        restyle(hide,
            QStringLiteral("font: 10pt 'MS Shell Dlg 2';   color: rgb(85, 0, 0); "
                           "background-color: transparent;"));
}

// The sample keys of the colour tabs and the key's map show the pieces just read.
void lexoria::restyleKeyboardSamples()
{
    auto restyleNamed = [this](const char *name, const QString &sheet) {
        if (QWidget *widget = ui->widget(QLatin1String(name)))
            restyle(widget, sheet);
    };
    const StylePieces &p = pieces;
    for (int sample : {gradientcatalogue::KeysSample, gradientcatalogue::KeypressSample,
             gradientcatalogue::MouseoverSample, gradientcatalogue::HighlightSample}) {
        restyleSample(sample, gradientcatalogue::AllParts);
    }
    restyleNamed("aKeysMap5", p.keyRadiusStyle + p.keysBgStyle + p.keysBorderStyle);
    // The map's letters keep the sizes they were drawn for; only colour and family follow.
    restyleNamed("aKeysMap4",
        transparent + p.englishColorStyle + QStringLiteral(" font-size: 20px; ")
            + p.englishFontStyle);
    restyleNamed("aKeysMap2",
        transparent + p.upperColorStyle + QStringLiteral(" font-size: 13.5pt; ")
            + p.upperFontStyle);
    restyleNamed("aKeysMap3",
        transparent + p.lowerColorStyle + QStringLiteral(" font-size: 14pt; ") + p.lowerFontStyle);

    restyleNamed(
        "demoLetter4Bg", p.demoRadiusStyle + painted.paintBgStyle[1] + p.rainbowBorderStyle);
    restyleNamed("demoLetter4English",
        transparent + painted.paintEnglishColor[1] + p.demoEnglishFontStyle + p.englishFontStyle);
    restyleNamed("demoLetter4UpperCase",
        transparent + painted.paintCharColor[55] + p.demoUpperFontStyle + p.upperFontStyle);
    restyleNamed("demoLetter4LowerCase",
        transparent + painted.paintCharColor[22] + p.demoUpperFontStyle + p.lowerFontStyle);
}
