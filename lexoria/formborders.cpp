#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *caption = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *range = "color: #6e6e6e; font: 8pt \"MS Shell Dlg 2\";";
constexpr const char *settings = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *whiteEnglish
    = "background-color: transparent; font-family: Calibri;color: white;";
constexpr const char *whiteLetter
    = "background-color: transparent;font-family: Arial Unicode MS;color: white;";
constexpr const char *yellowEnglish
    = "background-color: transparent; font-family: Calibri;color: yellow;";
constexpr const char *yellowLetter
    = "background-color: transparent;font-family: Arial Unicode MS;color: yellow;";
constexpr const char *purpleEnglish
    = "background-color: transparent; font-family: Calibri;color: #65307f;";
constexpr const char *blueLetter
    = "background-color: transparent;font-family: Arial Unicode MS;color: #00557f;";
} // namespace

// Each width control: a caption, the slider 0..10, the spin box for wider borders and the
// range it takes. Ranges and start values are set by the code from its width table.
const WidgetRow borderFormRows[] = {
    {Label, "captionBorderWidth1", "tab1111", 580, 40, 200, 18, "Border width", caption, "", 0},
    {Slider, "sliderBorderWidth1", "tab1111", 580, 62, 141, 27, "", "", "", 0},
    {SpinBox, "spinBox1", "tab1111", 730, 64, 50, 22, "", "", "", 0},
    {Label, "rangeBorderWidth1", "tab1111", 700, 90, 90, 16, "Range: 0-99", range, "", 0},

    {Label, "captionBorderWidth2", "tab2111", 580, 40, 200, 18, "Border width", caption, "", 0},
    {Slider, "sliderBorderWidth2", "tab2111", 580, 62, 141, 27, "", "", "", 0},
    {SpinBox, "spinBox2", "tab2111", 730, 64, 50, 22, "", "", "", 0},
    {Label, "rangeBorderWidth2", "tab2111", 700, 90, 90, 16, "Range: 0-99", range, "", 0},

    {Label, "captionBorderWidth3", "tab3", 580, 40, 200, 18, "Border width", caption, "", 0},
    {Slider, "sliderBorderWidth3", "tab3", 580, 62, 141, 27, "", "", "", 0},
    {SpinBox, "spinBox3", "tab3", 730, 64, 50, 22, "", "", "", 0},
    {Label, "rangeBorderWidth3", "tab3", 700, 90, 90, 16, "Range: 0-99", range, "", 0},

    {Label, "captionBorderWidth4", "tab_4", 580, 40, 200, 18, "Border width", caption, "", 0},
    {Slider, "sliderBorderWidth4", "tab_4", 580, 62, 141, 27, "", "", "", 0},
    {SpinBox, "spinBox4", "tab_4", 730, 64, 50, 22, "", "", "", 0},
    {Label, "rangeBorderWidth4", "tab_4", 700, 90, 90, 16, "Range: 0-99", range, "", 0},

    {Label, "captionBorderWidth5", "frameWallpaper", 300, 40, 180, 18, "Border width", caption, "",
        0},
    {Slider, "sliderBorderWidth5", "frameWallpaper", 300, 62, 120, 27, "", "", "", 0},
    {SpinBox, "spinBox5", "frameWallpaper", 426, 64, 56, 22, "", "", "", 0},
    {Label, "rangeBorderWidth5", "frameWallpaper", 390, 90, 96, 16, "Range: 0-1500", range, "", 0},

    {Label, "captionBorderWidth8", "tab_3111", 580, 40, 200, 18, "Border width", caption, "", 0},
    {Slider, "sliderBorderWidth8", "tab_3111", 580, 62, 141, 27, "", "", "", 0},
    {SpinBox, "spinBox8", "tab_3111", 730, 64, 50, 22, "", "", "", 0},
    {Label, "rangeBorderWidth8", "tab_3111", 700, 90, 90, 16, "Range: 0-99", range, "", 0},

    {Slider, "sliderBorderWidth27", "frameWallpaper_2", 530, 94, 110, 27, "", "", "", 0},
    {SpinBox, "spinBox27", "frameWallpaper_2", 644, 96, 56, 22, "", "", "", Disabled},
    {Label, "rangeBorderWidth27", "frameWallpaper_2", 704, 99, 74, 16, "Range: 0-199", range, "",
        0},

    // The three built-in themes: each shows a sample key beside the list of what it sets.
    // The letter laid last over a sample is the one the click finds.
    {Label, "theme1Bg", "tabThemesPage", 124, 70, 54, 54, "",
        "border-radius: 10px; background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,stop: "
        "0 gold, stop: 1 black);border-width:10px;  border-style: solid;border-color:  "
        "qradialgradient(spread:repeat, cx:  .5,    cy:  .5,    radius: .1,fx:0.5,     fy:0.5,    "
        "  stop: 0 gold,      stop: 1 black);",
        "", 0},
    {Label, "theme2_2", "tabThemesPage", 124, 70, 54, 54, " Z", whiteEnglish, "", TopLeft},
    {Label, "theme3_5", "tabThemesPage", 124, 70, 54, 54, "Я ", whiteLetter, "", TopRight},
    {Label, "theme1", "tabThemesPage", 124, 70, 54, 54, "я ", whiteLetter, "Click to apply",
        BottomRight},
    {Label, "themeSettings1", "tabThemesPage", 194, 62, 230, 70,
        "Gold over black\nRings of gold around, 10 pixels\nWhite letters", settings, "", 0},

    {Label, "theme2Bg", "tabThemesPage", 446, 70, 54, 54, "",
        "border-radius: 10px; background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, "
        "fx:0.5, fy:0.5,stop: 0  gold, stop: .6  black);border-width: 6px; border-style: "
        "solid;border-color:  qradialgradient( cx:  .5,    cy:  .5,    radius: .5,     fx:0.5,    "
        " fy:0.5,  stop: 0 gold,      stop: 1 black);",
        "", 0},
    {Label, "theme2_3", "tabThemesPage", 446, 70, 54, 54, " Z", yellowEnglish, "", TopLeft},
    {Label, "theme3_6", "tabThemesPage", 446, 70, 54, 54, "Я ", yellowLetter, "", TopRight},
    {Label, "theme2", "tabThemesPage", 446, 70, 54, 54, "я ", yellowLetter, "Click to apply",
        BottomRight},
    {Label, "themeSettings2", "tabThemesPage", 516, 62, 230, 70,
        "A glow of gold in black\nA round gold border, 6 pixels\nYellow letters", settings, "", 0},

    {Label, "theme3_7", "tabThemesPage", 760, 62, 70, 70, "",
        "border-radius: 10px; background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,stop: "
        "0 #00557f,  stop:  .3 #34004f );  color: #00557f;",
        "", 0},
    {Label, "theme3Bg", "tabThemesPage", 768, 70, 54, 54, "",
        "border-radius: 31px; background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, "
        "fx:0.5, fy:0.5 stop : 0 blue, stop: .3  black);",
        "", 0},
    {Label, "theme3_4", "tabThemesPage", 768, 70, 54, 54, " Z", purpleEnglish, "", TopLeft},
    {Label, "theme3_8", "tabThemesPage", 768, 70, 54, 54, "Я ", blueLetter, "", TopRight},
    {Label, "theme3", "tabThemesPage", 768, 70, 54, 54, "я ", blueLetter, "Click to apply",
        BottomRight},
    {Label, "themeSettings3", "tabThemesPage", 840, 62, 160, 70,
        "A blue glow, no border\nA purple wallpaper\nBlue and purple letters", settings, "", 0},
    {Label, "themesHint", "tabThemesPage", 20, 160, 600, 20,
        "Click a sample key to dress the whole keyboard in its theme.", caption, "", 0},
};

const std::size_t borderFormRowCount = sizeof(borderFormRows) / sizeof(borderFormRows[0]);

} // namespace formtable
