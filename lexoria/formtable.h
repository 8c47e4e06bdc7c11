#ifndef LEXORIA_FORMTABLE_H
#define LEXORIA_FORMTABLE_H

#include <cstddef>

namespace formtable {

enum Kind {
    Label,
    PushButton,
    RadioButton,
    CheckBox,
    Frame,
    GroupBox,
    LineEdit,
    Lcd,
    Table,
    Widget,
    TabWidget, // rows whose parent is a tab widget become its pages, titled by their text
    FontComboBox,
    Slider, // upright when taller than wide; its text may hold "minimum maximum value"
    // Borders
    SpinBox,
};

enum Flag {
    Hidden = 1,
    Disabled = 2,
    Checkable = 4,
    Checked = 8,
    Center = 16, // text centred both ways
    ScaledContents = 32,
    TopRight = 64, // where a key shows its upper-row letter
    BottomRight = 128, // and its lower-row letter
    TopLeft = 256, // and its English label
};

// One widget of the main window's form, read by a loop in setupUi. A null parent is the
// central widget; otherwise the parent is a row that stands earlier in the tables. A row whose
// parent is not built yet waits hidden on the central widget until the parent is made.
struct WidgetRow
{
    Kind kind;
    const char *name;
    const char *parent;
    int x, y, w, h;
    const char *text;
    const char *style;
    const char *toolTip;
    int flags;
};

extern const WidgetRow mainFormRows[];
extern const std::size_t mainFormRowCount;
extern const WidgetRow aidFormRows[];
extern const std::size_t aidFormRowCount;
extern const WidgetRow progressFormRows[];
extern const std::size_t progressFormRowCount;

// The advanced options menu, its panels and the tabs of the colour panel.
extern const WidgetRow optionsFormRows[];
extern const std::size_t optionsFormRowCount;
// The panel of key-press sounds and the controls of the pulse sound.
extern const WidgetRow audioFormRows[];
extern const std::size_t audioFormRowCount;

// The boxes and arrows of the guided tour.
extern const WidgetRow demoFormRows[];
extern const std::size_t demoFormRowCount;
// The "Key located effects" panel and the gifs that can be laid on the keys.
extern const WidgetRow effectsFormRows[];
extern const std::size_t effectsFormRowCount;
// Shadows: the groups' controls, laid out from the group table, and the panels of fonts and
// key shape.
const WidgetRow *shadowFormRows();
std::size_t shadowFormRowCount();
// The swatches of the colour pickers on the colour tabs and frames.
extern const WidgetRow pickerFormRows[];
extern const std::size_t pickerFormRowCount;
// Pictures: the player's own key pictures, their sizes and the wallpaper's picture.
extern const WidgetRow picturesFormRows[];
extern const std::size_t picturesFormRowCount;
// Borders: the width controls of the colour targets and the built-in themes' page.
extern const WidgetRow borderFormRows[];
extern const std::size_t borderFormRowCount;

// The gradients of the Color Madness targets: their controls and sample keys. Made on first
// use, since each target's controls follow one pattern.
const WidgetRow *gradientFormRows(std::size_t *count);
// Rainbow: the Paint tab's text targets, the instructions page, the paint theme buttons.
extern const WidgetRow rainbowFormRows[];
extern const std::size_t rainbowFormRowCount;
// The keyboard theme's Save and Open on the "Save / Open" tab.
extern const WidgetRow themeFileFormRows[];
extern const std::size_t themeFileFormRowCount;

} // namespace formtable

#endif
