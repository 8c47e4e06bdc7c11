#include "lexoria/formtable.h"

#include <QByteArray>

#include <deque>
#include <vector>

namespace formtable {

namespace {

constexpr const char *caption = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *swapLook = "font: 14pt \"Wingdings 3\";";
constexpr const char *radioLook = "color: black; font: 9pt \"MS Shell Dlg 2\";";

struct RadioSpec
{
    const char *name;
    const char *text;
    int x, y, w;
    bool checked;
};

// Where the controls of one target stand. A panel without a box puts its radio buttons
// straight on the page, so that they share their exclusivity with the page's other ones.
struct PanelSpec
{
    int number;
    const char *parent;
    const char *box; // null: no box
    int boxX, boxY, boxW, boxH;
    RadioSpec radios[3];
    int shapesX, shapesY, sliderW;
    bool ownSwap; // false where the swap button is a parked widget of the main window
    int swapX, swapY;
};

constexpr PanelSpec panelSpecs[] = {
    {1, "tab1111", "gradientTargetBox1", 240, 56, 220, 20,
        {{"backgroundLeft", "Background", 0, 0, 100, true},
            {"borderLeft", "Border", 104, 0, 100, false}},
        240, 84, 175, true, 425, 136},
    {2, "tab2111", "gradientTargetBox2", 240, 56, 220, 20,
        {{"backgroundCenter", "Background", 0, 0, 100, true},
            {"borderCenter", "Border", 104, 0, 100, false}},
        240, 84, 175, true, 425, 136},
    {3, "tab3", "gradientTargetBox3", 240, 56, 220, 20,
        {{"backgroundRight", "Background", 0, 0, 100, true},
            {"borderRight", "Border", 104, 0, 100, false}},
        240, 84, 175, true, 425, 136},
    {4, "tab_4", "gradientTargetBox4", 240, 56, 220, 20,
        {{"backgroundHi", "Background", 0, 0, 100, true},
            {"borderHi", "Border", 104, 0, 100, false}},
        240, 84, 175, true, 425, 136},
    {5, "tab_5", nullptr, 0, 0, 0, 0, {}, 240, 84, 175, true, 425, 136},
    {6, "frameLinehighlight", "gradientTargetBox6", 330, 40, 290, 20,
        {{"lhVerticalRadio", "Vertical", 0, 0, 80, false},
            {"lhHorizontalRadio", "Horizontal", 84, 0, 90, false},
            {"lhBothRadio", "Both", 178, 0, 70, true}},
        330, 66, 125, false, 0, 0},
    {7, "frameWallpaper", "gradientTargetBox7", 112, 36, 186, 20,
        {{"backgroundWallpaper", "Background", 0, 0, 92, true},
            {"borderWallpaper", "Border", 96, 0, 80, false}},
        112, 60, 180, false, 0, 0},
    {8, "tab_3111", nullptr, 0, 0, 0, 0,
        {{"rainbowBackground", "Background", 240, 56, 100, true},
            {"rainbowBorder", "Border", 344, 56, 100, false}},
        240, 84, 175, true, 425, 136},
    {27, "frameWallpaper_2", "gradientTargetBox27", 300, 18, 180, 20,
        {{"backgroundGamePlay", "Background", 0, 0, 92, true},
            {"borderGamePlay", "Border", 96, 0, 80, false}},
        530, 6, 175, false, 0, 0},
};

// The Color Madness tabs that show a sample key, with the tab it stands on.
struct SampleSpec
{
    const char *parent;
    const char *face;
    const char *english;
    const char *upper;
    const char *lower;
};

constexpr SampleSpec sampleSpecs[] = {
    {"tab1111", "demoLetter1Bg", "demoLetter1_2", "demoLetter2_2", "demoLetter3_2"},
    {"tab2111", "demoLetterCenterBG", "demoLetter1", "demoLetter2", "demoLetter3"},
    {"tab3", "demoLetterRightBg", "demoLetter1_3", "demoLetter2_3", "demoLetter3_3"},
    {"tab_4", "demoLetterHiBg", "demoLetterHiE", "demoLetterHiUpD", "demoLetterHiLowD"},
    {"tab_3111", "demoLetter4Bg", "demoLetter4English", "demoLetter4UpperCase",
        "demoLetter4LowerCase"},
};

// The Game Play box's own colours: which field they go to and the Animate Gradient frame. It
// lies over the top rows of the keyboard while the Game Play panel is open, under its heading
// strip frameGamePlayCM, and keeps the play fields themselves in sight.
const WidgetRow gamePlayRows[] = {
    {Frame, "frameWallpaper_2", nullptr, 1300, 1600, 986, 128, "",
        "QFrame#frameWallpaper_2{ background-color: white; border: 1px solid black; "
        "border-radius: 15px; }",
        "", Hidden},
    {Label, "gradientTargetCaption27", "frameWallpaper_2", 300, 2, 180, 16, "Target to Affect",
        caption, "", 0},
    {Label, "gamePlayFieldCaption", "frameWallpaper_2", 300, 40, 180, 16, "Color goes to", caption,
        "", 0},
    {Widget, "gamePlayFieldBox", "frameWallpaper_2", 300, 56, 182, 40, "", "", "", 0},
    {RadioButton, "matchThisCm", "gamePlayFieldBox", 0, 0, 90, 20, "Match This", radioLook, "", 0},
    {RadioButton, "yourEntryCm", "gamePlayFieldBox", 90, 0, 90, 20, "Your Entry", radioLook, "", 0},
    {RadioButton, "yourEntryCm_2", "gamePlayFieldBox", 0, 20, 90, 20, "Both", radioLook, "",
        Checked},
    {CheckBox, "gamePlayCb", "frameWallpaper_2", 300, 100, 180, 20, "Include Header", radioLook,
        "Colors the captions above the fields too", 0},
    {Frame, "frame_10", "frameWallpaper_2", 780, 4, 200, 80, "",
        "QFrame#frame_10{ background-color: white; }", "", 0},
    {Label, "animateGradientHeading", "frame_10", 8, 4, 184, 18, "Animate Gradient", caption, "",
        0},
    {RadioButton, "pulsateOnGamePlay", "frame_10", 8, 24, 60, 20, "On", radioLook, "", 0},
    {RadioButton, "pulsateOffGamePlay", "frame_10", 72, 24, 60, 20, "Off", radioLook, "", Checked},
    {CheckBox, "animateGradientBothGamePlay", "frame_10", 8, 50, 186, 20,
        "Both Background and Border", radioLook, "", 0},
    // Parked with their panels; the options menu brings them in.
    {PushButton, "swapGradient7", nullptr, 1503, 145, 30, 27, "D", swapLook,
        "Swap the two gradient colors", Hidden},
    {PushButton, "swapGradient27", nullptr, 1572, 456, 30, 27, "D", swapLook,
        "Swap the two gradient colors", Hidden},
    // The gradient of the guide lines, across and down.
    {Label, "liHordisplay", "frameLinehighlight", 330, 156, 125, 6, "", "", "", 0},
    {Label, "lhVertDisplay", "frameLinehighlight", 520, 40, 6, 116, "", "", "", 0},
};

class Builder
{
public:
    const char *name(const QByteArray &text)
    {
        names.push_back(text);
        return names.back().constData();
    }
    void add(const WidgetRow &row) { rows.push_back(row); }

    std::vector<WidgetRow> rows;

private:
    std::deque<QByteArray> names; // stable addresses for the rows' names
};

void addPanel(Builder &b, const PanelSpec &p)
{
    const QByteArray n = QByteArray::number(p.number);
    const char *radioParent = p.parent;
    if (p.box) {
        // The wallpaper frame's heading leaves no room for a caption over its buttons.
        if (p.boxY - 18 >= 34)
            b.add({Label, b.name("gradientTargetCaption" + n), p.parent, p.boxX, p.boxY - 18, 200,
                16, "Target to Affect", caption, "", 0});
        b.add({Widget, p.box, p.parent, p.boxX, p.boxY, p.boxW, p.boxH, "", "", "", 0});
        radioParent = p.box;
    } else if (p.radios[0].name) {
        b.add({Label, b.name("gradientTargetCaption" + n), p.parent, p.radios[0].x,
            p.radios[0].y - 18, 200, 16, "Target to Affect", caption, "", 0});
    }
    for (const RadioSpec &radio : p.radios) {
        if (!radio.name)
            continue;
        b.add({RadioButton, radio.name, radioParent, radio.x, radio.y, radio.w, 20, radio.text,
            radioLook, "", radio.checked ? Checked : 0});
    }
    for (int shape = 0; shape < 6; ++shape)
        b.add({Label, b.name("grad" + n + QByteArray::number(shape)), p.parent,
            p.shapesX + 30 * shape, p.shapesY, 25, 25, shape == 0 ? "Off" : "", "",
            "Shape of the gradient", Center});
    b.add({Slider, b.name("hoSlider" + n), p.parent, p.shapesX, p.shapesY + 28, p.sliderW, 22, "",
        "", "Shape of the gradient", 0});
    b.add({Slider, b.name("slider" + n), p.parent, p.shapesX, p.shapesY + 54, p.sliderW, 26, "", "",
        "Where the second color begins", 0});
    if (p.ownSwap)
        b.add({PushButton, b.name("swapGradient" + n), p.parent, p.swapX, p.swapY, 30, 27, "D",
            swapLook, "Swap the two gradient colors", 0});
}

void buildRows(Builder &b)
{
    for (const WidgetRow &row : gamePlayRows)
        b.add(row);
    for (const PanelSpec &panel : panelSpecs)
        addPanel(b, panel);
    for (const SampleSpec &s : sampleSpecs) {
        b.add({Label, s.face, s.parent, 478, 60, 80, 80, "", "", "", 0});
        b.add({Label, s.english, s.parent, 478, 60, 80, 80, " F", "", "", TopLeft});
        b.add({Label, s.upper, s.parent, 478, 60, 80, 80, "А ", "", "", TopRight});
        b.add({Label, s.lower, s.parent, 478, 60, 80, 80, "а ", "", "", BottomRight});
    }
}

} // namespace

const WidgetRow *gradientFormRows(std::size_t *count)
{
    static Builder built;
    if (built.rows.empty())
        buildRows(built);
    *count = built.rows.size();
    return built.rows.data();
}

} // namespace formtable
