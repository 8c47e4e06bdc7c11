#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *note = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *mustBeOpen = "color: rgb(170, 0, 0); font: bold 9pt \"MS Shell Dlg 2\";";
constexpr const char *step = "color: black; font: 10pt \"MS Shell Dlg 2\";";
constexpr const char *themeName = "color: black; font: bold 10pt \"MS Shell Dlg 2\";";
constexpr const char *themeWarning = "color: rgb(170, 0, 0); font: 10pt \"MS Shell Dlg 2\";";
} // namespace

// The Paint tab's text targets, the instructions page and the paint half of Save / Open.
const WidgetRow rainbowFormRows[] = {
    {Label, "colorPickerRainbowBg", "tab_3111", 45, 44, 45, 45, "", "", "Gradient 1",
        ScaledContents},
    {Label, "colorPickerRainbowBgCaption", "tab_3111", 20, 92, 95, 16, "Gradient 1", note, "",
        Center},
    {Label, "colorPickerGradBottom8", "tab_3111", 155, 44, 45, 45, "", "", "Gradient 2",
        ScaledContents},
    {Label, "colorPickerGradBottom8Caption", "tab_3111", 130, 92, 95, 16, "Gradient 2", note, "",
        Center},
    {Label, "rainbowMustBeOpen", "tab_3111", 580, 118, 400, 20,
        "Color Picker box must be open to paint", mustBeOpen, "", 0},
    {Label, "rainbowTextCaption", "tab_3111", 810, 40, 180, 18, "Paint the text", note, "", 0},
    {RadioButton, "rainbowEnglish", "tab_3111", 810, 60, 110, 20, "English", "", "", 0},
    {RadioButton, "rainbowUppercase", "tab_3111", 810, 82, 110, 20, "Uppercase", "", "", 0},
    {RadioButton, "rainbowLowercase", "tab_3111", 810, 104, 110, 20, "Lowercase", "", "", 0},
    // Kept in the targets' group as a place for the check when none is wanted.
    {RadioButton, "rainbowEnglish_3", "tab_3111", 228, 230, 17, 17, "", "", "", Hidden},
    {CheckBox, "rainbowBoth", "tab_3111", 810, 150, 60, 20, "Both", "", "", 0},
    {Label, "rainbowBothNote", "tab_3111", 872, 142, 120, 54,
        "Both targets\naffected when\nmousing over", note, "", 0},

    {Label, "instructionsMustBeOpen", "tab_6", 160, 14, 400, 20,
        "Color Picker box must be open to paint", mustBeOpen, "", 0},
    {Label, "instructionsStep1", "tab_6", 30, 46, 380, 20, "1. Select key part", step, "", 0},
    {Label, "instructionsStep2", "tab_6", 30, 72, 380, 20, "2. Color Picker box will open", step,
        "", 0},
    {Label, "instructionsStep3", "tab_6", 30, 98, 380, 20, "3. Choose color", step, "", 0},
    {Label, "instructionsStep4", "tab_6", 30, 124, 380, 20,
        "4. Move mouse over keyboard to color that part", step, "", 0},
    {Label, "instructionsStep5", "tab_6", 30, 150, 380, 20, "5. Repeat often", step, "", 0},
    {Label, "instructionsStep6", "tab_6", 440, 46, 400, 40,
        "6. Closing Color Picker will turn off\n     that feature", step, "", 0},
    {Label, "instructionsStep7", "tab_6", 440, 96, 400, 40,
        "7. Select Background, then Gradient 1 or 2.\n    Do same with Border", step, "", 0},
    {Label, "instructionsStep8", "tab_6", 440, 146, 400, 40,
        "8. Check Both to paint keyboard with\n    Background and Border", step, "", 0},

    {Label, "paintHalfCaption", "tab_4111", 698, 40, 298, 20, "Painted keys", themeName, "", 0},
    {PushButton, "openPaint", "tab_4111", 797, 70, 101, 23, "Open Paint", "", "", 0},
    {PushButton, "savePaint", "tab_4111", 797, 104, 101, 23, "Save Paint", "", "", 0},
    {Label, "paintTheme_3", "tab_4111", 698, 140, 298, 20, "Not a Paint theme", themeWarning, "",
        Hidden | Center},
    {Label, "paintTheme_2", "tab_4111", 797, 166, 101, 16, "Current Theme", note, "",
        Hidden | Center},
    {Label, "paintTheme", "tab_4111", 698, 186, 298, 20, "", themeName, "", Hidden | Center},
};

const std::size_t rainbowFormRowCount = sizeof(rainbowFormRows) / sizeof(rainbowFormRows[0]);

} // namespace formtable
