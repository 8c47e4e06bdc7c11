#include "lexoria/formtable.h"
#include "lexoria/shadowtables.h"

#include <QByteArray>

#include <deque>
#include <vector>

namespace formtable {

namespace {
constexpr const char *title = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *control = "color: black; font: 8pt \"MS Shell Dlg 2\";";
constexpr const char *cornerLook = "color: black; font: 9pt \"MS Shell Dlg 2\";"
                                   " background-color: transparent; border: none;";
constexpr const char *frameLook = "background-color: white;";
constexpr const char *tricksTip
    = "Tricks:\n   1. Make selection with slider\n   2. Click radio dial";

// The panels' fixed widgets; the groups' own controls are laid out below from the group table.
// A slider's text is its range and start, "minimum maximum value".
const WidgetRow fixedRows[] = {
    {Label, "hintShadows", "frameShadows", 90, 28, 290, 30,
        "To save a groups color settings:\nuncheck the group before choosing a color", control, "",
        0},
    {Frame, "frame_29", "frameShadows", 8, 84, 308, 116, "", frameLook, "", 0},
    {Label, "titleFrame_29", "frame_29", 10, 2, 200, 16, "Keyboard Text", title, "", 0},
    {Frame, "frame_33", "frameShadows", 322, 84, 208, 116, "", frameLook, "", 0},
    {Label, "titleFrame_33", "frame_33", 10, 2, 180, 16, "ABC Bar Text", title, "", 0},
    {Frame, "frame_35", "frameShadows", 536, 84, 208, 116, "", frameLook, "", 0},
    {Label, "titleFrame_35", "frame_35", 10, 2, 180, 16, "ABC bar Background ", title, "", 0},
    {Frame, "frame_30", "frameShadows", 750, 84, 208, 172, "", frameLook, "", 0},
    {Label, "titleFrame_30", "frame_30", 10, 2, 180, 16, "Keyboard Background", title, "", 0},
    {Label, "titleTricks", "frame_30", 8, 114, 92, 16, "Tricks for Odd", control, tricksTip, 0},
    {Slider, "sliderTricks", "frame_30", 10, 132, 80, 20, "0 2 0", "", tricksTip, 0},
    {Label, "titleTricks_2", "frame_30", 108, 114, 92, 16, "Tricks for Even", control, tricksTip,
        0},
    {Slider, "sliderTricks_2", "frame_30", 110, 132, 80, 20, "0 2 0", "", tricksTip, 0},
    {Label, "headingShadowThemes", "frameShadows", 966, 84, 90, 18, "Themes", title, "", 0},
    {Label, "shadowTheme1", "frameShadows", 966, 106, 26, 26, "",
        "background-color: #aa0000; border: 1px solid black; border-radius: 4px;", "", 0},
    {Label, "shadowTheme2", "frameShadows", 996, 106, 26, 26, "",
        "background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 "
        "#aa0000, stop: 1  black); border: 1px solid black; border-radius: 4px;",
        "", 0},
    {Label, "shadowTheme3", "frameShadows", 1026, 106, 26, 26, "",
        "background-color: #3e3e3e; border: 1px solid black; border-radius: 4px;", "", 0},
    {Label, "shadowTheme4", "frameShadows", 966, 140, 50, 27, "",
        "background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 #e60000, stop: 1 "
        "#00d3d3); border: 1px solid black; border-radius: 4px;",
        "", 0},

    {Label, "titleGamePlayS", "frameGamePlayS", 40, 82, 220, 18, "Match This shadows", title, "",
        0},
    {CheckBox, "matchThisCb", "frameGamePlayS", 262, 120, 120, 20, "Include Header", control, "",
        0},
    {Label, "titleGamePlayS_2", "frameGamePlayS_2", 20, 82, 220, 18, "Your Entry shadows", title,
        "", 0},
    {CheckBox, "yourEntryCb", "frameGamePlayS_2", 20, 200, 120, 20, "Include Header", control, "",
        0},

    {Label, "labelFontEnglish", "frameFonts", 10, 80, 240, 18, "English", title, "", 0},
    {Label, "labelFontUppercase", "frameFonts", 308, 80, 240, 18, "Russian Uppercase", title, "",
        0},
    {Label, "labelFontLowercase", "frameFonts", 606, 80, 240, 18, "Russian Lowercase", title, "",
        0},
    {Label, "f1", "frameFonts", 20, 150, 90, 40, "Fonts", "font: 22pt 'Calibri';", "", 0},
    {Label, "f2", "frameFonts", 130, 150, 90, 40, "Fonts", "font: italic 20pt 'Calibri';", "", 0},
    {Label, "f3", "frameFonts", 240, 150, 100, 40, "Fonts", "font: bold 20pt 'Arial Unicode MS';",
        "", 0},
    {Label, "f4", "frameFonts", 360, 150, 100, 40, "Fonts", "font: 18pt 'MS Shell Dlg 2';", "", 0},
    {Label, "f5", "frameFonts", 480, 150, 100, 40, "Fonts",
        "font: italic bold 18pt 'MS Shell Dlg 2';", "", 0},
    {Label, "f6", "frameFonts", 600, 150, 100, 40, "Fonts", "font: 20pt 'Arial Unicode MS';", "",
        0},
    {Label, "f7", "frameFonts", 720, 150, 90, 40, "Fonts", "font: bold 16pt 'Calibri';", "", 0},
    {Label, "f8", "frameFonts", 840, 150, 100, 40, "Fonts", "font: italic 18pt 'Arial Unicode MS';",
        "", 0},
    {Label, "f12_2", "frameFonts", 960, 150, 90, 40, "Fonts", "font: 14pt 'MS Shell Dlg 2';", "",
        0},

    {Frame, "frameKeyShape", nullptr, 1104, 18, 98, 106, "", "", "", 0},
    {Label, "labelCircle", "frameKeyShape", 4, 2, 90, 16, "Circle", control, "", Center},
    {Slider, "sliderKeyShape", "frameKeyShape", 38, 20, 22, 64, "0 1 0", "", "", 0},
    {Label, "labelNormal", "frameKeyShape", 4, 86, 90, 16, "Normal", control, "", Center},
};

// Names made up from the group table live as long as the program.
const char *keep(const QByteArray &name)
{
    static std::deque<QByteArray> names;
    names.push_back(name);
    return names.back().constData();
}

std::vector<WidgetRow> layOutRows()
{
    using namespace shadowtables;
    std::vector<WidgetRow> rows(std::begin(fixedRows), std::end(fixedRows));
    for (const GroupRow &group : groups) {
        // Radio buttons exclude one another among siblings, so each dial has a box of its own.
        const char *box = keep(QByteArray(group.checkBox) + "Controls");
        rows.push_back({Widget, box, group.frame, group.x, group.y, 98, 88, "", "", "", 0});
        rows.push_back({CheckBox, group.checkBox, box, 0, 0, 98, 18, group.text, control, "", 0});
        for (const CornerRow &corner : corners) {
            const QByteArray name = QByteArray(corner.name) + group.suffix;
            const QByteArray label = QByteArray(corner.name) + "Lab" + group.suffix;
            rows.push_back({RadioButton, keep(name), box, corner.dialX, corner.dialY, 18, 18, "",
                "", "", corner.x == 1 && corner.y == 1 ? Checked : 0});
            rows.push_back({Label, keep(label), box, corner.labelX, corner.dialY, 14, 18,
                corner.arrow, cornerLook, "", Center});
        }
        rows.push_back({Label, group.display, box, 72, 30, 26, 26, "", "", "", 0});
        rows.push_back({Slider, group.slider, box, 2, 66, 90, 20, "0 4 2", "", "", 0});
    }
    return rows;
}

const std::vector<WidgetRow> &shadowRows()
{
    static const std::vector<WidgetRow> rows = layOutRows();
    return rows;
}

} // namespace

const WidgetRow *shadowFormRows()
{
    return shadowRows().data();
}

std::size_t shadowFormRowCount()
{
    return shadowRows().size();
}

} // namespace formtable
