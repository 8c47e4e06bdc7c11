#ifndef GRADIENTCATALOGUE_H
#define GRADIENTCATALOGUE_H

#include "lexoria/colortargets.h"
#include "lexoria/stylepieces.h"

#include <QString>

// The nine gradient targets and the controls of their panels. Logic in lexoria/gradients.cpp
// reads these; the widgets themselves are rows of lexoria/formgradients.cpp.
namespace gradientcatalogue {

enum Target {
    Keys = 1,
    Keypress = 2,
    Mouseover = 3,
    Highlight = 4,
    Finished = 5,
    LineHighlight = 6,
    Wallpaper = 7,
    Rainbow = 8,
    GamePlay = 27,
};

constexpr int shapeCount = 6;
constexpr int stopPositions = 11;

struct TargetRow
{
    int number;
    // The "Target to Affect" pair; the finished target and the lines have none.
    const char *bgRadio;
    const char *borderRadio;
    GradientTarget ColorTargets::*colors; // null for the line highlight
    QString StylePieces::*bgStyle;
    QString StylePieces::*borderStyle; // null where there is no border
    bool storesStopPosition;
};

constexpr TargetRow targetRows[] = {
    {Keys, "backgroundLeft", "borderLeft", &ColorTargets::keys, &StylePieces::keysBgStyle,
        &StylePieces::keysBorderStyle, true},
    {Keypress, "backgroundCenter", "borderCenter", &ColorTargets::keypress,
        &StylePieces::keypressBgStyle, &StylePieces::keypressBorderStyle, true},
    {Mouseover, "backgroundRight", "borderRight", &ColorTargets::mouseover,
        &StylePieces::mouseoverBgStyle, &StylePieces::mouseoverBorderStyle, true},
    {Highlight, "backgroundHi", "borderHi", &ColorTargets::highlight,
        &StylePieces::highlightBgStyle, &StylePieces::highlightBorderStyle, true},
    {Finished, nullptr, nullptr, &ColorTargets::finished, &StylePieces::finishedBgStyle, nullptr,
        false},
    {LineHighlight, nullptr, nullptr, nullptr, &StylePieces::lineHighVerticalStyle, nullptr, false},
    {Wallpaper, "backgroundWallpaper", "borderWallpaper", &ColorTargets::wallpaper,
        &StylePieces::wallpaperBgStyle, &StylePieces::wallpaperBorderStyle, true},
    {Rainbow, "rainbowBackground", "rainbowBorder", &ColorTargets::rainbow,
        &StylePieces::rainbowBgStyle, &StylePieces::rainbowBorderStyle, false},
    {GamePlay, "backgroundGamePlay", "borderGamePlay", &ColorTargets::gamePlay,
        &StylePieces::gamePlayBgStyle, &StylePieces::gamePlayBorderStyle, true},
};

// Null for a number that is no gradient target.
constexpr const TargetRow *targetRow(int number)
{
    for (const TargetRow &row : targetRows) {
        if (row.number == number)
            return &row;
    }
    return nullptr;
}

// The stop slider's position as the text a gradient takes.
constexpr const char *stopTexts[stopPositions]
    = {"0", ".1", ".2", ".3", ".4", ".5", ".6", ".7", ".8", ".9", "1"};

// A sample key of a Color Madness tab: its face, its three letters and the pieces they show.
struct SampleRow
{
    const char *face;
    const char *english;
    const char *upper;
    const char *lower;
    QString StylePieces::*bgStyle;
    QString StylePieces::*borderStyle;
    QString StylePieces::*englishColor;
    QString StylePieces::*upperColor;
    QString StylePieces::*lowerColor;
    QString StylePieces::*russianDemoFont;
    const char *englishTransparent; // the keypress sample's has a blank behind its semicolon
};

constexpr const char *transparent = "background-color: transparent;";

enum Sample { KeysSample, KeypressSample, MouseoverSample, HighlightSample, RainbowSample };
enum SamplePart { Face = 1, English = 2, Russian = 4, AllParts = Face | English | Russian };

constexpr SampleRow samples[] = {
    {"demoLetter1Bg", "demoLetter1_2", "demoLetter2_2", "demoLetter3_2", &StylePieces::keysBgStyle,
        &StylePieces::keysBorderStyle, &StylePieces::englishColorStyle,
        &StylePieces::upperColorStyle, &StylePieces::lowerColorStyle,
        &StylePieces::demoUpperFontStyle, transparent},
    {"demoLetterCenterBG", "demoLetter1", "demoLetter2", "demoLetter3",
        &StylePieces::keypressBgStyle, &StylePieces::keypressBorderStyle,
        &StylePieces::keypressEnglishColorStyle, &StylePieces::keypressRussianColorStyle,
        &StylePieces::keypressRussianColorStyle, &StylePieces::demoUpperFontStyle,
        "background-color: transparent; "},
    {"demoLetterRightBg", "demoLetter1_3", "demoLetter2_3", "demoLetter3_3",
        &StylePieces::mouseoverBgStyle, &StylePieces::mouseoverBorderStyle,
        &StylePieces::mouseoverEnglishColorStyle, &StylePieces::mouseoverRussianColorStyle,
        &StylePieces::mouseoverRussianColorStyle, &StylePieces::demoUpperFontStyle, transparent},
    {"demoLetterHiBg", "demoLetterHiE", "demoLetterHiUpD", "demoLetterHiLowD",
        &StylePieces::highlightBgStyle, &StylePieces::highlightBorderStyle,
        &StylePieces::highlightEnglishColorStyle, &StylePieces::highlightRussianColorStyle,
        &StylePieces::highlightRussianColorStyle, &StylePieces::demoLowerFontStyle, transparent},
    {"demoLetter4Bg", "demoLetter4English", "demoLetter4UpperCase", "demoLetter4LowerCase",
        &StylePieces::rainbowBgStyle, &StylePieces::rainbowBorderStyle,
        &StylePieces::englishColorStyle, &StylePieces::upperColorStyle,
        &StylePieces::lowerColorStyle, &StylePieces::demoUpperFontStyle, transparent},
};

// The pieces a shape makes of a side's colours. The texts are kept exactly as the theme files
// store them, blanks included.
QString backgroundPiece(const GradientSide &side, int shape, const QString &stop);
QString borderPiece(const GradientSide &side, int shape, const QString &stop, const QString &width);

} // namespace gradientcatalogue

#endif
