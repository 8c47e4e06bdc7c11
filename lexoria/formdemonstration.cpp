#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *box = "border: 1px solid gray;";
constexpr const char *gameArrow = "image: url(:/new/prefix1/arrow2.png);";
} // namespace

// The boxes behind the four steps of the banner, and the arrows of the tour. The boxes are
// lowered behind their step when the window is made; the arrows stay on top of what they show.
const WidgetRow demoFormRows[] = {
    {Label, "demo1", nullptr, 192, 2, 215, 108, "", box, "", 0},
    {Label, "demo2", nullptr, 430, 2, 179, 108, "", box, "", 0},
    {Label, "demo3", nullptr, 636, 2, 204, 108, "", box, "", 0},
    {Label, "demo4", nullptr, 868, 2, 127, 108, "", box, "", 0},
    {Label, "arrow1", nullptr, 8, 178, 55, 63, "", gameArrow, "", Hidden},
    {Label, "arrow2", nullptr, 52, 178, 55, 63, "", gameArrow, "", Hidden},
    {Label, "arrow3", nullptr, 96, 178, 55, 63, "", gameArrow, "", Hidden},
    {Label, "arrow6", nullptr, 938, 42, 69, 59, "_", "font: 58pt \"Wingdings 3\"; color: red;", "",
        Center | Hidden},
};

const std::size_t demoFormRowCount = sizeof(demoFormRows) / sizeof(demoFormRows[0]);

} // namespace formtable
