#ifndef LEXORIA_KEYSOUND_H
#define LEXORIA_KEYSOUND_H

#include <QMetaType>

namespace sound {

// What the game knows about a key press when its sound is chosen.
struct KeyPress
{
    bool isShownLetter; // the letter the game asks for
    bool strict;
    bool finished; // already found in this game
    bool gifEffectOn;
    bool effectNone; // no fade chosen
};

// Whether a key press plays silence instead of the chosen key-press sound. In Strict play with
// a gif the right key is the entry itself, and the pulse sound plays for it; a finished key
// has been blown or faded away by the effect, so pressing it again stays quiet.
inline bool isSilentKeyPress(const KeyPress &press)
{
    if (press.isShownLetter && press.gifEffectOn && press.strict)
        return true;
    return press.finished && (press.gifEffectOn || !press.effectNone);
}

} // namespace sound

Q_DECLARE_METATYPE(sound::KeyPress)

#endif
