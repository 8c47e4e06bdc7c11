#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *caption = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *highlightTip = "Highlights letter to be matched";
constexpr const char *sampleFace = "border-radius: 10px; background-color: black;";
constexpr const char *sampleLine = "background-color: blue;";
} // namespace

// The help a player gets during a game: the buttons under "Can't find it?", the guide lines
// laid across the whole window, and the panel where the lines are set up.
const WidgetRow aidFormRows[] = {
    {PushButton, "goldenHighlight", nullptr, 898, 58, 68, 23, "Highlight", "", highlightTip,
        Disabled},
    {PushButton, "lineHighlight", nullptr, 866, 84, 44, 22, "Lines", "", highlightTip, Disabled},
    {PushButton, "lineHighOptions", nullptr, 930, 84, 56, 22, "Options", "", "", 0},
    // Beyond the window's right edge: the flashing hint is reached by code, not by the mouse.
    {PushButton, "hint", nullptr, 1500, 58, 43, 23, "Hint", "",
        "Letter to be matched flashes 3 times.", Checkable | Disabled},

    {Label, "h1", nullptr, 0, 434, 1211, 5, "", "", "", Hidden},
    {Label, "h2", nullptr, 0, 494, 1211, 5, "", "", "", Hidden},
    {Label, "h3", nullptr, 0, 556, 1211, 5, "", "", "", Hidden},
    {Label, "h4", nullptr, 0, 614, 1211, 5, "", "", "", Hidden},
    {Label, "h1_2", nullptr, 0, 404, 1211, 5, "", "", "", Hidden},
    {Label, "h2_2", nullptr, 0, 463, 1211, 5, "", "", "", Hidden},
    {Label, "h3_2", nullptr, 0, 524, 1211, 5, "", "", "", Hidden},
    {Label, "h4_2", nullptr, 0, 584, 1211, 5, "", "", "", Hidden},
    {Label, "v1", nullptr, 186, 0, 5, 695, "", "", "", Hidden},
    {Label, "v2", nullptr, 246, 0, 5, 695, "", "", "", Hidden},
    {Label, "v3", nullptr, 310, 0, 5, 695, "", "", "", Hidden},
    {Label, "v4", nullptr, 372, 0, 5, 695, "", "", "", Hidden},
    {Label, "v5", nullptr, 438, 0, 5, 695, "", "", "", Hidden},
    {Label, "v6", nullptr, 496, 0, 5, 695, "", "", "", Hidden},
    {Label, "v7", nullptr, 558, 0, 5, 695, "", "", "", Hidden},
    {Label, "v8", nullptr, 620, 0, 5, 695, "", "", "", Hidden},
    {Label, "v9", nullptr, 682, 0, 5, 695, "", "", "", Hidden},
    {Label, "v10", nullptr, 744, 0, 5, 695, "", "", "", Hidden},
    {Label, "v11", nullptr, 806, 0, 5, 695, "", "", "", Hidden},
    {Label, "v12", nullptr, 868, 0, 5, 695, "", "", "", Hidden},
    {Label, "v13", nullptr, 930, 0, 5, 695, "", "", "", Hidden},
    {Label, "v14", nullptr, 992, 0, 5, 695, "", "", "", Hidden},
    {Label, "v15", nullptr, 1040, 0, 5, 695, "", "", "", Hidden},
    {Label, "v1_2", nullptr, 278, 0, 5, 695, "", "", "", Hidden},
    {Label, "v2_2", nullptr, 338, 0, 5, 695, "", "", "", Hidden},
    {Label, "v3_2", nullptr, 402, 0, 5, 695, "", "", "", Hidden},
    {Label, "v4_2", nullptr, 464, 0, 5, 695, "", "", "", Hidden},
    {Label, "v5_2", nullptr, 528, 0, 5, 695, "", "", "", Hidden},
    {Label, "v6_2", nullptr, 588, 0, 5, 695, "", "", "", Hidden},
    {Label, "v7_2", nullptr, 650, 0, 5, 695, "", "", "", Hidden},
    {Label, "v8_2", nullptr, 712, 0, 5, 695, "", "", "", Hidden},
    {Label, "v9_2", nullptr, 774, 0, 5, 695, "", "", "", Hidden},
    {Label, "v10_2", nullptr, 836, 0, 5, 695, "", "", "", Hidden},
    {Label, "v11_2", nullptr, 898, 0, 5, 695, "", "", "", Hidden},
    {Label, "v12_2", nullptr, 960, 0, 5, 695, "", "", "", Hidden},
    {Label, "v14_2", nullptr, 1084, 0, 5, 695, "", "", "", Hidden},
    {Label, "v15_2", nullptr, 1132, 0, 5, 695, "", "", "", Hidden},

    // The Lines options, parked far to the right until lineHighOptions brings them in.
    {Frame, "frameLinehighlight", nullptr, 5044, 0, 876, 271, "",
        "QFrame#frameLinehighlight { background-color: rgb(236, 236, 236); }", "", Hidden},
    {Label, "linePositionCaption", "frameLinehighlight", 24, 14, 120, 20, "Line Position", caption,
        "", 0},
    // Creation order is stacking order; the constructor then lowers the lines of the first
    // sample under its key, so the two samples show the lines behind and over the keys.
    {Label, "linePosition1BG", "frameLinehighlight", 34, 50, 54, 54, "", sampleFace, "", 0},
    {Label, "liHordisplay_2", "frameLinehighlight", 24, 74, 74, 5, "", sampleLine, "", 0},
    {Label, "lhVertDisplay_3", "frameLinehighlight", 58, 40, 5, 74, "", sampleLine, "", 0},
    {Label, "linePosition1English", "frameLinehighlight", 34, 50, 54, 54, " Z", "",
        "Lines run behind the keys", TopLeft},
    {Label, "linePosition2BG", "frameLinehighlight", 134, 50, 54, 54, "", sampleFace, "", 0},
    {Label, "linePosition2Lowercase", "frameLinehighlight", 134, 50, 54, 54, "я ", "",
        "Lines run over the keys", BottomRight},
    {Label, "liHordisplay_3", "frameLinehighlight", 124, 74, 74, 5, "", sampleLine, "", 0},
    {Label, "lhVertDisplay_2", "frameLinehighlight", 158, 40, 5, 74, "", sampleLine, "", 0},
    {PushButton, "swapGradient6", nullptr, 1464, 103, 30, 27, "D", "font: 14pt \"Wingdings 3\";",
        "", 0},

    // Belongs to the pictures panel; it is made here so that its state is there before the
    // panel is, and moves into the panel once that exists.
    {CheckBox, "checkBox", "framePhotos", 430, 163, 154, 18, "Keypress overrides highlight", "", "",
        0},
};

const std::size_t aidFormRowCount = sizeof(aidFormRows) / sizeof(aidFormRows[0]);

} // namespace formtable
