#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/keyshapetables.h"
#include "lexoria/restyle.h"

#include <QAbstractButton>
#include <QFontComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QSlider>

#include <iterator>

using namespace keyshapetables;
using keycatalogue::characterKeyCount;
using keycatalogue::controlKeys;
using keycatalogue::isUpperRow;
using keycatalogue::letterCount;
using keycatalogue::paintKeyCount;

namespace {

const char *const transparentText = "background-color: transparent;";

struct FontRow
{
    const char *combo;
    const char *startFamily;
    QString StylePieces::*piece;
};

constexpr FontRow fontRows[] = {
    {"fontComboBoxEnglish", "Calibri", &StylePieces::englishFontStyle},
    {"fontComboBoxUppercase", "Arial Unicode MS", &StylePieces::upperFontStyle},
    {"fontComboBoxLowercase", "Calibri", &StylePieces::lowerFontStyle},
};

// A family name is written bare, as the form writes its own, when every word of it is a style
// sheet identifier. Anything else would make Qt drop the whole sheet: the two Windows families
// the panel has always quoted, and on Linux the foundry-qualified entries of the font list
// ("C059 [UKWN]") and names with digits or dots.
QString familyPiece(const QString &family)
{
    static const QRegularExpression identifiers(
        QStringLiteral("^[\\p{L}_-][\\p{L}\\d_-]*( [\\p{L}_-][\\p{L}\\d_-]*)*$"));
    if (family == QLatin1String("Old English Text MT") || !identifiers.match(family).hasMatch()) {
        QString quoted = family;
        quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
        quoted.replace(QLatin1Char('\''), QLatin1String("\\'"));
        return "font-family: '" + quoted + "';";
    }
    return "font-family: " + family + ";";
}

// The sample keys of the colour panel's tabs: the letter sample, the colour it shows and the
// demo size piece before the family.
struct TextSample
{
    const char *name;
    QString StylePieces::*color;
    QString StylePieces::*demoFont;
};

constexpr TextSample englishSamples[] = {
    {"demoLetter1_2", &StylePieces::englishColorStyle, &StylePieces::demoEnglishFontStyle},
    {"demoLetter1", &StylePieces::keypressEnglishColorStyle, &StylePieces::demoEnglishFontStyle},
    {"demoLetter1_3", &StylePieces::mouseoverEnglishColorStyle, &StylePieces::demoEnglishFontStyle},
    {"demoLetterHiE", &StylePieces::highlightEnglishColorStyle, &StylePieces::demoEnglishFontStyle},
    {"demoLetter4English", &StylePieces::englishColorStyle, &StylePieces::demoEnglishFontStyle},
};

// Every Russian sample shows the family chosen last, whichever case it was chosen for.
constexpr TextSample russianSamples[] = {
    {"demoLetter2_2", &StylePieces::upperColorStyle, &StylePieces::demoUpperFontStyle},
    {"demoLetter3_2", &StylePieces::lowerColorStyle, &StylePieces::demoUpperFontStyle},
    {"demoLetter2", &StylePieces::keypressRussianColorStyle, &StylePieces::demoUpperFontStyle},
    {"demoLetter3", &StylePieces::keypressRussianColorStyle, &StylePieces::demoUpperFontStyle},
    {"demoLetter2_3", &StylePieces::mouseoverRussianColorStyle, &StylePieces::demoUpperFontStyle},
    {"demoLetter3_3", &StylePieces::mouseoverRussianColorStyle, &StylePieces::demoUpperFontStyle},
    {"demoLetterHiUpD", &StylePieces::highlightRussianColorStyle, &StylePieces::demoLowerFontStyle},
    {"demoLetterHiLowD", &StylePieces::highlightRussianColorStyle,
        &StylePieces::demoLowerFontStyle},
    {"demoLetter4UpperCase", &StylePieces::upperColorStyle, &StylePieces::demoUpperFontStyle},
    {"demoLetter4LowerCase", &StylePieces::lowerColorStyle, &StylePieces::demoUpperFontStyle},
};

// The built-in themes' samples show the family in a colour of their own.
struct ThemeText
{
    const char *name;
    bool english;
    const char *color;
};

constexpr ThemeText themeTexts[] = {
    {"theme2_2", true, "color: white;"},
    {"theme2_3", true, "color: yellow;"},
    {"theme3_4", true, "color: #65307f;"},
    {"theme3_5", false, "color: white;"},
    {"theme1", false, "color: white;"},
    {"theme2", false, "color: yellow;"},
    {"theme3_6", false, "color: yellow;"},
    {"theme3_8", false, "color: #00557f;"},
    {"theme3", false, "color: #00557f;"},
};

// The sample faces by tab, radius first.
struct FaceSample
{
    const char *name;
    QString StylePieces::*bg;
    QString StylePieces::*border;
};

constexpr FaceSample faceSamples[] = {
    {"demoLetter1Bg", &StylePieces::keysBgStyle, &StylePieces::keysBorderStyle},
    {"demoLetterCenterBG", &StylePieces::keypressBgStyle, &StylePieces::keypressBorderStyle},
    {"demoLetterRightBg", &StylePieces::mouseoverBgStyle, &StylePieces::mouseoverBorderStyle},
    {"demoLetter4Bg", &StylePieces::rainbowBgStyle, &StylePieces::rainbowBorderStyle},
    {"demoLetterHiBg", &StylePieces::highlightBgStyle, &StylePieces::highlightBorderStyle},
};

} // namespace

void lexoria::setUpFontsAndShape()
{
    // The boxes show the form's families before they are connected, so nothing runs at start.
    for (int kind = EnglishFont; kind <= LowerFont; ++kind) {
        auto *combo = ui->find<QFontComboBox>(QLatin1String(fontRows[kind].combo));
        combo->setCurrentFont(QFont(QLatin1String(fontRows[kind].startFamily)));
        connect(combo, QOverload<int>::of(&QFontComboBox::currentIndexChanged), this,
            [this, kind] { newFont(kind); });
    }
    connect(ui->find<QSlider>(QStringLiteral("sliderKeyShape")), &QSlider::valueChanged, this,
        &lexoria::makeCircle);
}

void lexoria::newFont(int kind)
{
    const FontRow &row = fontRows[kind];
    QString &piece = pieces.*row.piece;
    piece = familyPiece(ui->find<QFontComboBox>(QLatin1String(row.combo))->currentText());
    auto byName = [this](const char *name) { return ui->widget(QLatin1String(name)); };
    auto restyleNamed = [&](const char *name, const QString &sheet) {
        if (QWidget *widget = byName(name))
            restyle(widget, sheet);
    };

    if (kind == EnglishFont) {
        if (painted.paintEnglishOn) {
            for (int i = 0; i < paintKeyCount; ++i) {
                const int K
                    = i < characterKeyCount ? i + 1 : controlKeys[i - characterKeyCount].number;
                restyle(keyEnglishLabels[i], painted.paintEnglishColor[K] + piece);
            }
            restyle(ui->underscore_left, painted.paintUnderscoreLeftColor + piece);
            restyle(ui->underscore_right, painted.paintUnderscoreRightColor + piece);
            restyleNamed("aKeysMap4", transparentText + painted.paintEnglishColor[26] + piece);
        } else {
            const QString english = piece + pieces.englishColorStyle;
            for (QLabel *label : qAsConst(keyEnglishLabels))
                restyle(label, english);
            restyle(ui->underscore_left, english);
            restyle(ui->underscore_right, english);
            restyleNamed("aKeysMap4", transparentText + pieces.englishColorStyle + piece);
        }
    } else {
        const bool upper = kind == UpperFont;
        const bool paintedRows = painted.paintLowerOn || painted.paintUpperOn;
        for (int n = 1; n <= letterCount; ++n) {
            if (isUpperRow(n) != upper)
                continue;
            const QString letter
                = (paintedRows ? painted.paintCharColor[n] : colourPiece(n)) + piece;
            restyle(keyLetterLabels[n - 1], letter);
            restyle(barLabels[n - 1],
                letterDone[n] && !paintedRows ? pieces.finishedColorStyle + piece : letter);
        }
        const QString &upperColour
            = paintedRows ? painted.paintCharColor[66] : pieces.upperColorStyle;
        const QString &lowerColour
            = paintedRows ? painted.paintCharColor[33] : pieces.lowerColorStyle;
        restyleNamed("aKeysMap2", transparentText + upperColour + pieces.upperFontStyle);
        restyleNamed("aKeysMap3", transparentText + lowerColour + pieces.lowerFontStyle);
    }
    bgColorLoops();
    restyleFontSamples(kind);
    if (kind != EnglishFont) {
        set_dem_StyleSheet();
        set_Match_StyleSheet();
    }
    for (const ThemeText &sample : themeTexts) {
        if (sample.english != (kind == EnglishFont))
            continue;
        restyleNamed(sample.name,
            (sample.english ? QStringLiteral("background-color: transparent; ")
                            : QLatin1String(transparentText))
                + piece + QLatin1String(sample.color));
    }
}

void lexoria::restyleFontSamples(int kind)
{
    const bool paint = kind == EnglishFont ? painted.paintEnglishOn
                                           : painted.paintLowerOn || painted.paintUpperOn;
    const QString &family = pieces.*fontRows[kind].piece;
    const bool english = kind == EnglishFont;
    auto restyleSample = [&](const TextSample &sample, const QString &colour) {
        if (QWidget *widget = ui->widget(QLatin1String(sample.name)))
            restyle(widget, transparentText + colour + pieces.*sample.demoFont + family);
    };
    if (english) {
        for (const TextSample &sample : englishSamples) {
            const bool fromPaint = paint && sample.color == &StylePieces::englishColorStyle;
            restyleSample(sample, fromPaint ? painted.paintEnglishColor[1] : pieces.*sample.color);
        }
        return;
    }
    for (const TextSample &sample : russianSamples) {
        QString colour = pieces.*sample.color;
        if (paint && sample.color == &StylePieces::upperColorStyle)
            colour = painted.paintCharColor[55];
        else if (paint && sample.color == &StylePieces::lowerColorStyle)
            colour = painted.paintCharColor[22];
        restyleSample(sample, colour);
    }
}

void lexoria::restyleFaceSamples()
{
    for (const FaceSample &sample : faceSamples) {
        if (QWidget *widget = ui->widget(QLatin1String(sample.name)))
            restyle(widget, pieces.demoRadiusStyle + pieces.*sample.bg + pieces.*sample.border);
    }
}

void lexoria::makeCircle(int)
{
    setKeyShape(ui->find<QSlider>(QStringLiteral("sliderKeyShape"))->sliderPosition() == 1);
}

void lexoria::setKeyShape(bool circle)
{
    pieces.keyRadiusStyle = circle ? "border-radius: 31px;" : "border-radius: 10px;";
    pieces.barRadiusStyle = circle ? "border-radius: 14px;" : "border-radius: 10px;";
    pieces.demoRadiusStyle = circle ? "border-radius: 39px;" : "border-radius: 10px;";
    pieces.demRadiusStyle = circle ? "border-radius: 17px;" : "border-radius: 10px;";
    pieces.gamePlayRadiusStyle = circle ? "border-radius: 30px;" : "border-radius: 10px;";

    // Every key grows or shrinks about its centre; the slider only reports a change of shape,
    // so the relative moves stay in step with it.
    const int shift = circle ? -circleGrowth : circleGrowth;
    const int side = circle ? circleSize : squareSize;
    auto reshape = [shift, side](QWidget *widget) {
        widget->setGeometry(widget->x() + shift, widget->y() + shift, side, side);
    };
    const QString restFace = pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle;
    for (QLabel *face : qAsConst(keyBgLabels)) {
        restyle(face, restFace);
        reshape(face);
    }
    const QString cover = pieces.keyRadiusStyle + QStringLiteral("background-color: black;");
    for (QLabel *label : qAsConst(displayNoneLabels)) {
        restyle(label, cover);
        reshape(label);
    }
    for (QLabel *cell : qAsConst(barBgLabels))
        restyle(cell, pieces.barRadiusStyle + pieces.keysBgStyle);
    if (circle)
        set_Match_StyleSheet();

    auto place = [this](const Place *first, const Place *last) {
        for (const Place *each = first; each != last; ++each) {
            QWidget *widget = ui->widget(QLatin1String(each->widget));
            if (!widget)
                continue;
            if (each->x == unchanged)
                widget->resize(each->w, each->h);
            else
                widget->setGeometry(each->x, each->y, each->w, each->h);
        }
    };
    auto write = [this](const Caption *first, const Caption *last) {
        for (const Caption *each = first; each != last; ++each)
            ui->find<QLabel>(QLatin1String(each->label))->setText(QString::fromUtf8(each->text));
    };
    if (circle) {
        place(std::begin(circleControls), std::end(circleControls));
        write(std::begin(circleCaptions), std::end(circleCaptions));
    } else {
        for (const keycatalogue::ControlKey &key : controlKeys) {
            const QRect home(key.x, key.y, key.w, key.h);
            for (const char *layer : {"label", "bg", "img"})
                ui->widget(QLatin1String(layer) + QLatin1String(key.suffix))->setGeometry(home);
            displayNoneLabels[key.number - 1]->setGeometry(home);
        }
        place(std::begin(normalControls), std::end(normalControls));
        write(std::begin(normalCaptions), std::end(normalCaptions));
    }
    // A shield covers its face exactly, the wide key too.
    for (int k = 0; k < characterKeyCount; ++k)
        keyShields[k]->setGeometry(keyBgLabels[k]->geometry());
    restyle(ui->aKeysMap5,
        (circle ? QStringLiteral("border-radius: 31px;") : QStringLiteral("border-radius: 10px;"))
            + pieces.keysBgStyle + pieces.keysBorderStyle);
    for (const ThemeSample &sample : themeSamples) {
        if (QWidget *widget = ui->widget(QLatin1String(sample.widget)))
            restyle(widget,
                QLatin1String(circle ? sample.circleRadius : sample.normalRadius)
                    + QLatin1String(sample.look));
    }

    // The game fields: the circle's radius comes from its piece, the square's is written out.
    const QString radius
        = circle ? pieces.gamePlayRadiusStyle : QStringLiteral("border-radius:  10px; ");
    const QString field = radius + pieces.gamePlayBgStyle + pieces.gamePlayBorderStyle;
    auto *headers = ui->find<QAbstractButton>(QStringLiteral("gamePlayCb"));
    auto *matchOnly = ui->find<QAbstractButton>(QStringLiteral("matchThisCm"));
    auto *entryOnly = ui->find<QAbstractButton>(QStringLiteral("yourEntryCm"));
    const bool match = !(entryOnly && entryOnly->isChecked());
    const bool entry = !(matchOnly && matchOnly->isChecked());
    if (headers && headers->isChecked()) {
        if (match)
            restyle(ui->widget(QStringLiteral("matchThisBg")),
                pieces.gamePlayBgStyle + (circle ? pieces.gamePlayBorderStyle : QString()));
        if (entry)
            restyle(ui->widget(QStringLiteral("yourEntryBg")), pieces.gamePlayBgStyle);
    }
    restyle(ui->widget(QStringLiteral("leMatchBg")), field);
    restyle(ui->widget(QStringLiteral("leUserBg")), field);

    restyleFaceSamples();
    set_dem_StyleSheet();
    allChangeColorBack();
    for (int i = characterKeyCount; i < paintKeyCount; ++i) {
        const int K = controlKeys[i - characterKeyCount].number;
        if (painted.paintEnglishOn)
            restyle(keyEnglishLabels[i], painted.paintEnglishColor[K] + pieces.englishFontStyle);
        if (painted.paintBackgroundOn || painted.paintBorderOn)
            restyle(keyBgLabels[i],
                pieces.keyRadiusStyle + painted.paintBgStyle[K] + painted.paintBorderStyle[K]);
    }
    if (painted.paintBackgroundOn || painted.paintBorderOn)
        restyle(ui->aKeysMap5,
            pieces.keyRadiusStyle + painted.paintBgStyle[26] + painted.paintBorderStyle[26]);
    if (goldHighActive)
        goldHighOn();
}

void lexoria::styleSheetExtended()
{
    for (QLabel *letter : qAsConst(keyLetterLabels))
        restyle(letter, QStringLiteral("color: white;"));
    for (int k = 0; k < characterKeyCount; ++k)
        restyle(keyEnglishLabels[k],
            QStringLiteral("color: white; font-family: Calibri;  font-size: 20px; "));
}
