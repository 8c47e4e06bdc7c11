#ifndef STATS_ENTRY_H
#define STATS_ENTRY_H

#include <QtGlobal>

namespace stats {

// One judged entry of a game, as the judge saw it. Letters are letter numbers (1..94); a
// game is named by the moment its Start was pressed, so its entries stay together.
struct Entry
{
    qint64 game = 0; // ms since the epoch at Start
    qint64 playedAt = 0; // ms since the epoch at the entry
    int asked = 0;
    int typed = 0; // 0 when what stood in the field was no letter
    bool right = false;
    int findMs = 0; // from the letter appearing to the entry
    int group = 0;
    int direction = 0;
    bool strict = false;
};

} // namespace stats

#endif
