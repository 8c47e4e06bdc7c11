#ifndef SHADOWTABLES_H
#define SHADOWTABLES_H

#include <cstddef>

// The drop shadows as data: the thirteen groups with their controls and the widgets each one
// shades, the dial of corners, the keys that the tricks turn, and the four shadow themes.
namespace shadowtables {

enum Group {
    English,
    Upper,
    Lower,
    BarUpper,
    BarLower,
    CellUpper,
    CellLower,
    Odd,
    Even,
    MatchText,
    MatchBg,
    EntryText,
    EntryBg,
    GroupCount
};

// What a group shades, besides the header of a game play group.
enum Shaded {
    EnglishLabels, // every English label and the control keys' captions
    UpperKeyLetters, // the upper-case characters on the keys
    LowerKeyLetters,
    UpperBarLetters, // the upper-case characters of the alphabet bar
    LowerBarLetters,
    UpperBarCells,
    LowerBarCells,
    OddFaces,
    EvenFaces,
    Field, // one game play widget
};

struct GroupRow
{
    const char *checkBox;
    const char *text;
    const char *slider;
    const char *suffix; // of the dial's radio buttons and corner labels
    int nearest; // distance in pixels at slider position 0
    const char *display; // 26 x 26 swatch of the group's colour
    const char *startColor;
    Shaded shaded;
    const char *widget; // the field of a game play group, or the key map's layer
    const char *header; // shaded too while headerBox is checked
    const char *headerBox;
    const char *frame; // where the controls stand
    int x, y; // top left of the group's controls in that frame
};

// The game play background groups start with a colour text that names no colour; the shadow
// draws as an invalid QColor until the player picks one.
constexpr GroupRow groups[GroupCount] = {
    {"textShadowEnglish", " English", "sliderTextShadowEng", "Eng", 2, "textShadowEnglishDisplay",
        "#484848", EnglishLabels, "aKeysMap4", nullptr, nullptr, "frame_29", 6, 20},
    {"textShadowLexoria", "Russian Upper", "sliderTextShadowLexKey", "LexKey", 2,
        "textShadowLexoriaDisplay", "#484848", UpperKeyLetters, "aKeysMap2", nullptr, nullptr,
        "frame_29", 106, 20},
    {"textShadowLexoriaLow", "Russian Lower", "sliderTextShadowLexLowKey", "LexLowKey", 2,
        "textShadowLexoriaLowDisplay", "#484848", LowerKeyLetters, "aKeysMap3", nullptr, nullptr,
        "frame_29", 206, 20},
    {"textShadowLexoriaAbc", "Upper", "sliderTextShadowLexAbc", "LexAbc", 2,
        "textShadowLexoriaAbcDisplay", "#484848", UpperBarLetters, nullptr, nullptr, nullptr,
        "frame_33", 6, 20},
    {"textShadowLexoriaLowAbc", "Lower", "sliderTextShadowLexLowAbc", "LexLowAbc", 2,
        "textShadowLexoriaLowAbcDisplay", "#484848", LowerBarLetters, nullptr, nullptr, nullptr,
        "frame_33", 106, 20},
    {"textShadowLexoriaAbcBg", "Upper", "sliderTextShadowAbcBg", "Abc", 1,
        "textShadowLexoriaAbcBgDisplay", "#484848", UpperBarCells, nullptr, nullptr, nullptr,
        "frame_35", 6, 20},
    {"textShadowLexoriaLowAbcBg", "Lower", "sliderTextShadowLowAbcBg", "LowAbc", 1,
        "textShadowLexoriaLowAbcBgDisplay", "#484848", LowerBarCells, nullptr, nullptr, nullptr,
        "frame_35", 106, 20},
    {"shadowKeys", "Odd", "sliderTextShadowKeyboardBg", "", 2, "textShadowEnglishBgDisplay",
        "#484848", OddFaces, nullptr, nullptr, nullptr, "frame_30", 6, 20},
    {"shadowKeys_2", "Even", "sliderTextShadowKeyboardBg_2", "_2", 2,
        "textShadowEnglishBgDisplay_2", "#484848", EvenFaces, "aKeysMap5", nullptr, nullptr,
        "frame_30", 106, 20},
    {"tsGamePlayText", "Text", "sliderTsGpText", "GpText", 1, "tsDisplayGpText", "#484848", Field,
        "leMatch", "matchThis", "matchThisCb", "frameGamePlayS", 40, 104},
    {"tsGamePlayBg", "Bg", "sliderTsGpBg", "GpBg", 2, "tsDisplayGpBg", "484848", Field, "leMatchBg",
        "matchThisBg", "matchThisCb", "frameGamePlayS", 150, 104},
    {"tsGamePlayText_2", "Text", "sliderTsGpText_2", "GpText_2", 1, "tsDisplayGpText_2", "#484848",
        Field, "leUser", "yourEntry", "yourEntryCb", "frameGamePlayS_2", 20, 104},
    {"tsGamePlayBg_2", "Bg", "sliderTsGpBg_2", "GpBg_2", 2, "tsDisplayGpBg_2", "484848", Field,
        "leUserBg", "yourEntryBg", "yourEntryCb", "frameGamePlayS_2", 130, 104},
};

// The keyboard and bar groups that the "All Shadow Colors" picker colours; the rest are the
// game play groups of the "Game Play Shadow" picker.
constexpr int keyboardGroupCount = MatchText;

// The order in which "shadows off" unchecks and reruns the groups.
constexpr Group clearOrder[GroupCount] = {BarUpper, BarLower, Upper, Lower, English, CellUpper,
    CellLower, Odd, Even, MatchText, MatchBg, EntryText, EntryBg};

enum Corner { TopRight, TopLeft, BottomRight, BottomLeft, CornerCount };

struct CornerRow
{
    const char *name; // of the radio button <name><suffix> and of its label <name>Lab<suffix>
    int x, y; // offset in distances
    // Where the Tricks set of Odd or Even casts instead, at tricks slider position 1 and 2.
    int trick1x, trick1y, trick2x, trick2y;
    // The dial: place of the radio button in the group's controls; the label lies outside it.
    int dialX, dialY, labelX;
    const char *arrow;
};

constexpr CornerRow corners[CornerCount] = {
    {"topRight", 1, -1, -1, -1, 1, 1, 36, 22, 54, "\u2197"},
    {"topLeft", -1, -1, 1, -1, -1, 1, 18, 22, 2, "\u2196"},
    {"bottomRight", 1, 1, -1, 1, -1, -1, 36, 42, 54, "\u2198"},
    {"bottomLeft", -1, 1, 1, 1, 1, -1, 18, 42, 2, "\u2199"},
};

// Faces by name after "bg": character keys by number, control keys by their suffix.
constexpr const char *oddFaces[] = {"1", "4", "6", "7", "8", "10", "11", "12", "19", "27", "28",
    "29", "30", "31", "32", "33", "34", "35", "36", "37", "38", "39", "43", "44", "BackSpace",
    "CapsLock", "Enter", "Spacebar"};
constexpr const char *evenFaces[]
    = {"2", "3", "5", "9", "13", "14", "15", "16", "17", "18", "20", "21", "22", "23", "24", "25",
        "26", "40", "41", "42", "45", "46", "47", "Tab", "ShiftLeft", "ShiftRight"};
constexpr const char *oddTricks[] = {"6", "8", "11", "19", "27", "29", "31", "33", "35", "37", "39",
    "43", "CapsLock", "Enter", "Spacebar"};
constexpr const char *evenTricks[]
    = {"9", "14", "16", "18", "22", "23", "24", "25", "41", "45", "47", "Tab", "ShiftLeft"};

// A group's setting in a shadow theme. A slider of -1 is left where it stands.
struct ThemeGroup
{
    Group group;
    bool on;
    int slider;
    const char *color;
};

// In the order a theme applies them.
constexpr Group themeGroupOrder[GroupCount] = {MatchText, MatchBg, EntryText, EntryBg, CellUpper,
    CellLower, Odd, Even, BarUpper, BarLower, Upper, Lower, English};

// One side of a gradient target as a theme sets it: shape by the gradient table, and the
// position the panel's shape slider shows (which need not be that shape).
struct ThemeSide
{
    const char *top;
    const char *base;
    const char *stop; // null: the target's stop is left alone
    int shape;
    int hoSlider; // -1: not moved
    bool radialToo; // the radial pair takes the same colours
};

struct ShadowTheme
{
    const char *swatch;
    bool allBottomRight; // keyboard and bar groups; game play groups too when gamePlayBottomRight
    bool gamePlayBottomRight;
    bool headers; // "Include Header" of both game play boxes
    ThemeGroup groups[GroupCount]; // by themeGroupOrder
    const char *displayOverride; // the four game play swatches, if not the shadow colour
    const char *textColor; // english, upper and lower colour pieces
    ThemeSide wallpaperBg;
    ThemeSide wallpaperBorder;
    const char *keysBg; // a literal piece, or null for keysBgSide
    ThemeSide keysBgSide;
    const char *gamePlayBg;
    ThemeSide gamePlayBgSide;
    const char *gamePlayBorder;
    ThemeSide gamePlayBorderSide;
    const char *keypressText;
    ThemeSide keypressBg;
    const char *keypressBorder; // null: unchanged
    const char *finishedColor;
    ThemeSide finishedBg;
    int slider5; // -1: not moved
    const char *mouseoverText;
    ThemeSide mouseoverBg;
    const char *highlightText;
    ThemeSide highlightBg;
    const char *highlightBorder; // a literal piece, or null for highlightBorderSide
    const char *highlightBorderWidth;
    ThemeSide highlightBorderSide;
    const char *fieldText;
    bool gamePlayCb;
    const char *matchThis;
    const char *yourEntry;
    const char *headerBg; // null: the game play background piece
};

constexpr const char *none = "border: none;";
constexpr const char *header = "color: #aa0000; background-color: transparent; font: 12pt 'MS "
                               "Shell Dlg 2';";
constexpr ThemeSide untouched {nullptr, nullptr, nullptr, 0, -1, false};

constexpr ShadowTheme themes[] = {
    {"shadowTheme1", true, false, true,
        {{MatchText, false, 3, "#484848"}, {MatchBg, true, -1, "#aa0000"},
            {EntryText, false, 3, "#484848"}, {EntryBg, true, -1, "#aa0000"},
            {CellUpper, true, -1, "#aa0000"}, {CellLower, true, -1, "#aa0000"},
            {Odd, true, -1, "#aa0000"}, {Even, true, -1, "#aa0000"},
            {BarUpper, false, 2, "#484848"}, {BarLower, false, 2, "#484848"},
            {Upper, false, 2, "#484848"}, {Lower, false, 2, "#484848"},
            {English, false, 2, "#484848"}},
        nullptr, "color: #aa0000;", {"#ffff00", "#ffff00", nullptr, 1, 1, false},
        {"#ffff00", "#ffff00", nullptr, 1, -1, false}, "background-color: #ffff00;", untouched,
        "background-color: #ffff00;", untouched, none, untouched, "color: #ffff00;",
        {"#ffff00", "#ffff00", nullptr, 1, 1, false}, nullptr, "color: #ffff00;",
        {"#550000", "#550000", nullptr, 1, 1, false}, -1, "color: blue;",
        {"gold", "gold", ".5", 1, 1, false}, "color: #005500;",
        {"#ffff00", "#ffff00", ".8", 0, 0, false}, nullptr, "4",
        {"#ffff00", "#aa0000", nullptr, 3, -1, false}, "color: #aa0000;", true, header, header,
        nullptr},
    {"shadowTheme2", true, false, false,
        {{MatchText, true, 3, "maroon"}, {MatchBg, true, -1, "maroon"},
            {EntryText, true, 3, "maroon"}, {EntryBg, true, -1, "maroon"},
            {CellUpper, true, -1, "#aa0000"}, {CellLower, true, -1, "#aa0000"},
            {Odd, true, -1, "#aa0000"}, {Even, true, -1, "#aa0000"}, {BarUpper, true, 0, "#aa0000"},
            {BarLower, true, 0, "#aa0000"}, {Upper, true, 0, "#aa0000"},
            {Lower, true, 0, "#aa0000"}, {English, true, 0, "#aa0000"}},
        nullptr, "color: black;", {"#aa0000", "black", ".5", 3, 3, false},
        {"#aa0000", "black", nullptr, 1, -1, false}, nullptr, {"#aa0000", "black", "1", 4, 4, true},
        nullptr, {"#aa0000", "black", "1", 4, 4, true}, none, untouched, "color: black;",
        {"#aa0000", "black", ".5", 1, 4, false}, nullptr, "color: black;",
        {"black", "#aa0000", ".8", 1, 4, false}, -1, "color: #aa0000;",
        {"black", "black", ".5", 1, 1, false}, "color: #ffd700;",
        {"#ffd700", "black", ".7", 4, 4, true}, none, nullptr, untouched, "color: #aa0000;", false,
        header, "color: #aa0000;  background-color: transparent; font: 12pt 'MS Shell Dlg 2';",
        "background-color: black;"},
    {"shadowTheme3", false, false, true,
        {{MatchText, false, 3, "#484848"}, {MatchBg, false, -1, "#484848"},
            {EntryText, false, 3, "#484848"}, {EntryBg, false, -1, "#484848"},
            {CellUpper, false, -1, "#484848"}, {CellLower, false, -1, "#484848"},
            {Odd, true, 4, "white"}, {Even, true, 4, "black"}, {BarUpper, false, 2, "#484848"},
            {BarLower, false, 2, "#484848"}, {Upper, false, 2, "#484848"},
            {Lower, false, 2, "#484848"}, {English, false, 2, "#484848"}},
        nullptr, "color: white;", {"#3e3e3e", "#3e3e3e", nullptr, 1, 1, false},
        {"#3e3e3e", "#3e3e3e", nullptr, 1, -1, false}, "background-color: black;", untouched,
        nullptr, {"#3e3e3e", "#3e3e3e", "0", 1, 1, false}, nullptr,
        {"white", "white", nullptr, 1, 1, false}, "color: blue;",
        {"black", "black", nullptr, 1, 1, false}, none, "color: black;",
        {"#fefefe", "#3e3e3e", ".5", 4, 4, true}, 5, "color: black;",
        {"white", "white", ".5", 1, 1, false}, "color: black;",
        {"yellow", "yellow", ".5", 0, 1, false}, nullptr, "0",
        {"yellow", "yellow", nullptr, 3, -1, false}, "color: black;", false, nullptr, nullptr,
        nullptr},
    {"shadowTheme4", true, true, false,
        {{MatchText, true, 0, "#e60000"}, {MatchBg, true, 2, "#e60000"},
            {EntryText, true, 0, "#e60000"}, {EntryBg, true, 2, "#e60000"},
            {CellUpper, true, 1, "#e60000"}, {CellLower, true, 1, "#e60000"},
            {Odd, true, 4, "#e60000"}, {Even, true, 4, "#e60000"}, {BarUpper, true, 0, "#e60000"},
            {BarLower, true, 0, "#e60000"}, {Upper, true, 0, "#e60000"},
            {Lower, true, 0, "#e60000"}, {English, true, 0, "#e60000"}},
        "#00d3d3", "color: #00d3d3;", {"#00d3d3", "#00d3d3", "0", 3, 0, true},
        {"#00d3d3", "#00d3d3", nullptr, 1, -1, false}, nullptr,
        {"#00d3d3", "#00d3d3", "0", 4, 0, true}, nullptr, {"#00d3d3", "#00d3d3", "0", 4, 0, true},
        none, untouched, "color: #00d3d3;", {"#e60000", "#00d3d3", "1", 1, 5, false}, nullptr,
        "color: #00d3d3;", {"#00ffff", "#00ffff", ".8", 1, 0, false}, -1, "color: #e60000;",
        {"#00d3d3", "#00d3d3", ".5", 1, 0, false}, "color: #00d3d3;",
        {"#00d3d3", "#e60000", "1", 4, 4, true}, none, nullptr, untouched, "color: #00d3d3;", false,
        "color: #aa0000;  font: 12pt 'MS Shell Dlg 2';",
        "color: #aa0000;  font: 12pt 'MS Shell Dlg 2';", "background-color: #00d3d3;"},
};
constexpr int themeCount = int(sizeof(themes) / sizeof(themes[0]));

} // namespace shadowtables

#endif
