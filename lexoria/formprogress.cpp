#include "lexoria/formtable.h"

namespace formtable {

// Under the scoreboard, above the first game caption: the numbers of past games belong with
// the score of this one, and the strip is free of every other widget.
const WidgetRow progressFormRows[] = {
    {PushButton, "yourProgress", nullptr, 31, 210, 125, 19, "Your progress", "",
        "Misses, find times and accuracy of all your games", 0},
};

const std::size_t progressFormRowCount = sizeof(progressFormRows) / sizeof(progressFormRows[0]);

} // namespace formtable
