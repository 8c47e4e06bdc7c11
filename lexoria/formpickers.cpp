#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *caption = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *baseTip = "Background color and bottom gradient";
constexpr const char *topTip = "Top gradient color";
} // namespace

// The swatches that open the colour pickers; the picture is set by the window, since a row
// carries no pixmap. On the tabs they stand two by two at the left, each over its caption.
const WidgetRow pickerFormRows[] = {
    {Label, "colorPickerE", "tab1111", 45, 44, 45, 45, "", "", "English Key", ScaledContents},
    {Label, "colorPickerECaption", "tab1111", 20, 92, 95, 16, "English", caption, "", Center},
    {Label, "colorPickerD", "tab1111", 155, 44, 45, 45, "", "", "Russian Key", ScaledContents},
    {Label, "colorPickerDCaption", "tab1111", 130, 92, 95, 16, "Russian", caption, "", Center},
    {Label, "colorPickerBg", "tab1111", 45, 134, 45, 45, "", "", baseTip, ScaledContents},
    {Label, "colorPickerBgCaption", "tab1111", 20, 182, 95, 16, "Background", caption, "", Center},
    {Label, "colorPickerGradBottom1", "tab1111", 155, 134, 45, 45, "", "", topTip, ScaledContents},
    {Label, "colorPickerGradBottom1Caption", "tab1111", 130, 182, 95, 16, "Top gradient", caption,
        "", Center},

    {Label, "colorPickerKpE", "tab2111", 45, 44, 45, 45, "", "", "Key Press English",
        ScaledContents},
    {Label, "colorPickerKpECaption", "tab2111", 20, 92, 95, 16, "English", caption, "", Center},
    {Label, "colorPickerKpD", "tab2111", 155, 44, 45, 45, "", "", "Key Press Russian",
        ScaledContents},
    {Label, "colorPickerKpDCaption", "tab2111", 130, 92, 95, 16, "Russian", caption, "", Center},
    {Label, "colorPickerKpBg", "tab2111", 45, 134, 45, 45, "", "", baseTip, ScaledContents},
    {Label, "colorPickerKpBgCaption", "tab2111", 20, 182, 95, 16, "Background", caption, "",
        Center},
    {Label, "colorPickerGradBottom2", "tab2111", 155, 134, 45, 45, "", "", topTip, ScaledContents},
    {Label, "colorPickerGradBottom2Caption", "tab2111", 130, 182, 95, 16, "Top gradient", caption,
        "", Center},

    {Label, "colorPickerMoE", "tab3", 45, 44, 45, 45, "", "", "Mouseover English", ScaledContents},
    {Label, "colorPickerMoECaption", "tab3", 20, 92, 95, 16, "English", caption, "", Center},
    {Label, "colorPickerMoD", "tab3", 155, 44, 45, 45, "", "", "Mouseover Russian", ScaledContents},
    {Label, "colorPickerMoDCaption", "tab3", 130, 92, 95, 16, "Russian", caption, "", Center},
    {Label, "colorPickerMoBg", "tab3", 45, 134, 45, 45, "", "", baseTip, ScaledContents},
    {Label, "colorPickerMoBgCaption", "tab3", 20, 182, 95, 16, "Background", caption, "", Center},
    {Label, "colorPickerGradBottom3", "tab3", 155, 134, 45, 45, "", "", topTip, ScaledContents},
    {Label, "colorPickerGradBottom3Caption", "tab3", 130, 182, 95, 16, "Top gradient", caption, "",
        Center},

    {Label, "colorPickerHiE", "tab_4", 45, 44, 45, 45, "", "", "English Highlight", ScaledContents},
    {Label, "colorPickerHiECaption", "tab_4", 20, 92, 95, 16, "English", caption, "", Center},
    {Label, "colorPickerHiD", "tab_4", 155, 44, 45, 45, "", "", "Russian Highlight",
        ScaledContents},
    {Label, "colorPickerHiDCaption", "tab_4", 130, 92, 95, 16, "Russian", caption, "", Center},
    {Label, "colorPickerHiBg", "tab_4", 45, 134, 45, 45, "", "", baseTip, ScaledContents},
    {Label, "colorPickerHiBgCaption", "tab_4", 20, 182, 95, 16, "Background", caption, "", Center},
    {Label, "colorPickerGradBottom4", "tab_4", 155, 134, 45, 45, "", "", topTip, ScaledContents},
    {Label, "colorPickerGradBottom4Caption", "tab_4", 130, 182, 95, 16, "Top gradient", caption, "",
        Center},

    {Label, "colorPickerF", "tab_5", 45, 44, 45, 45, "", "", "Finished Keys", ScaledContents},
    {Label, "colorPickerFCaption", "tab_5", 20, 92, 95, 16, "Letters", caption, "", Center},
    {Label, "colorPickerFBg", "tab_5", 45, 134, 45, 45, "", "", baseTip, ScaledContents},
    {Label, "colorPickerFBgCaption", "tab_5", 20, 182, 95, 16, "Background", caption, "", Center},
    {Label, "colorPickerGradBottom5", "tab_5", 155, 134, 45, 45, "", "", topTip, ScaledContents},
    {Label, "colorPickerGradBottom5Caption", "tab_5", 130, 182, 95, 16, "Top gradient", caption, "",
        Center},

    // Right of the two line samples, left of the lines' gradient controls.
    {Label, "colorPickerKeyboard", "frameLinehighlight", 265, 50, 45, 45, "", "",
        "Colour of the lines", ScaledContents},
    {Label, "colorPickerKeyboardCaption", "frameLinehighlight", 240, 98, 95, 16, "Lines", caption,
        "", Center},
    {Label, "colorPickerGradBottom6", "frameLinehighlight", 265, 140, 45, 45, "", "", topTip,
        ScaledContents},
    {Label, "colorPickerGradBottom6Caption", "frameLinehighlight", 240, 188, 95, 16, "Top gradient",
        caption, "", Center},

    {Label, "colorPickerWallpaper", "frameWallpaper", 40, 44, 45, 45, "", "", baseTip,
        ScaledContents},
    {Label, "colorPickerWallpaperCaption", "frameWallpaper", 16, 92, 94, 16, "Background", caption,
        "", Center},
    {Label, "colorPickerGradBottom7", "frameWallpaper", 40, 134, 45, 45, "", "", topTip,
        ScaledContents},
    {Label, "colorPickerGradBottom7Caption", "frameWallpaper", 16, 182, 94, 16, "Top gradient",
        caption, "", Center},

    // The game play box is low: its three swatches stand in a row.
    {Label, "colorPicker27", "frameWallpaper_2", 20, 36, 45, 45, "", "", baseTip, ScaledContents},
    {Label, "colorPicker27Caption", "frameWallpaper_2", 0, 84, 86, 16, "Background", caption, "",
        Center},
    {Label, "colorPickerGradBottom27", "frameWallpaper_2", 110, 36, 45, 45, "", "", topTip,
        ScaledContents},
    {Label, "colorPickerGradBottom27Caption", "frameWallpaper_2", 90, 84, 86, 16, "Top gradient",
        caption, "", Center},
    {Label, "colorPicker29", "frameWallpaper_2", 200, 36, 45, 45, "", "",
        "Colour of the letters in the game fields", ScaledContents},
    {Label, "colorPicker29Caption", "frameWallpaper_2", 180, 84, 86, 16, "Letters", caption, "",
        Center},

    {Label, "textShadowColorBox", "frameShadows", 1006, 8, 45, 45, "", "",
        "Colour of every checked shadow", ScaledContents},
    {Label, "colorPicker30", "frameGamePlayS", 410, 8, 45, 45, "", "",
        "Colour of the game play shadows", ScaledContents},
};

const std::size_t pickerFormRowCount = sizeof(pickerFormRows) / sizeof(pickerFormRows[0]);

} // namespace formtable
