#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *note = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *warningLine = "color: rgb(170, 0, 0); font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *themeName = "color: black; font: bold 10pt \"MS Shell Dlg 2\";";
} // namespace

const WidgetRow themeFileFormRows[] = {
    {PushButton, "openKeyboard", "tab_4111", 40, 56, 101, 23, "Open Keyboard", "", "", 0},
    {PushButton, "saveKeyboard", "tab_4111", 40, 96, 101, 23, "Save Keyboard", "", "", 0},
    {Label, "keyboardThemeNote", "tab_4111", 156, 52, 320, 70,
        "The colours, gradients, borders and fonts of the keyboard, kept in a text file. "
        "Keys painted one by one are kept in a Paint theme.",
        note, "", 0},
    {Label, "keyboardTheme_3", "tab_4111", 40, 136, 298, 20, "Not a Keyboard theme", warningLine,
        "", Hidden},
    {Label, "keyboardTheme_2", "tab_4111", 40, 164, 101, 16, "Current Theme", note, "", Hidden},
    {Label, "keyboardTheme", "tab_4111", 40, 184, 298, 20, "", themeName, "", Hidden},
};
const std::size_t themeFileFormRowCount = sizeof(themeFileFormRows) / sizeof(themeFileFormRows[0]);

} // namespace formtable
