#ifndef FADETABLES_H
#define FADETABLES_H

#include "lexoria/effecttables.h"

// The fades as data: the order in which the keys of the keyboard fade back, the rows that say
// which wave ends which run of letters.
// A fade key number N is a character key 1..47 or one of the seven control keys 48..54.
namespace fadetables {

using effecttables::Direction;
using effecttables::Group;
using effecttables::Span;
using effecttables::span;

enum ControlKeyNumber { BackSpace = 48, Tab, CapsLock, Enter, ShiftLeft, ShiftRight, SpaceBar };

constexpr int fadeOutMs = 1000;
constexpr int controlFadeInMs = 1000;
constexpr int waveStepMs = 50;
// A Fade Out/In key starts back this long after it started to go.
constexpr int fadeBackMs = 1100;
constexpr int shadowAfterFadeInMs = 1100;
constexpr int controlShadowAfterFadeInMs = 1000;
constexpr int finaleFadeOutMs = 2450;
constexpr int finaleFadeInMs = 3450;
constexpr int finaleShadowsOnMs = 2300;
constexpr int shadowsOnForMs = 7500;
constexpr int exampleEveryMs = 5000;

// The 33 letter keys by rising x position.
constexpr int letterSweep[] = {27, 17, 1, 26, 23, 19, 24, 5, 4, 3, 18, 6, 22, 20, 7, 2, 25, 8, 14,
    21, 10, 13, 9, 11, 45, 15, 12, 46, 16, 43, 40, 44, 41};
constexpr int numberSweep[] = {28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 47, 42};
constexpr int allKeySweep[]
    = {27, 28, 17, 1, 26, 29, 23, 19, 24, 5, 4, 30, 3, 18, 6, 31, 22, 20, 7, 32, 2, 25, 8, 33, 14,
        21, 10, 34, 13, 9, 11, 35, 45, 15, 12, 36, 46, 16, 43, 37, 47, 40, 44, 38, 41, 42, 39};
constexpr int numberKeysUp[] = {28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39};
constexpr int numberKeysDown[] = {39, 38, 37, 36, 35, 34, 33, 32, 31, 30, 29, 28};
constexpr int numberLineBack[] = {47, 42, 39, 38, 37, 36, 35, 34, 33, 32, 31, 30, 29, 28};
constexpr int numberLineFinale[] = {42, 47, 39, 38, 37, 36, 35, 34, 33, 32, 31, 30, 29, 28};
constexpr int endKeysBack[] = {47, 42};

// allKeySweep pauses after its first 30 keys.
constexpr int allFadeInFirstMs = 500;
constexpr int allFadeInSecondMs = 2050;
constexpr int allFadeInFirstCount = 30;

struct Timed
{
    int key;
    int ms;
};

constexpr Timed allFadeInReverseShots[] = {{39, 450}, {42, 500}, {41, 550}, {38, 600}, {44, 650},
    {40, 700}, {47, 750}, {37, 800}, {43, 850}, {16, 900}, {46, 950}, {36, 1000}, {12, 1050},
    {15, 1100}, {45, 1150}, {35, 1200}, {11, 1300}, {9, 1350}, {13, 1400}, {34, 1450}, {10, 1500},
    {21, 1550}, {14, 1600}, {33, 1650}, {8, 1700}, {25, 1750}, {2, 1800}, {32, 1850}, {7, 1900},
    {20, 1950}, {22, 2000}, {31, 2050}, {6, 2100}, {18, 2150}, {3, 2200}, {30, 2250}, {4, 2300},
    {5, 2350}, {24, 2500}, {19, 2550}, {23, 2600}, {29, 2600}, {26, 2700}, {1, 2750}, {17, 2800},
    {28, 2850}, {27, 2900}};

// A stopped reverse Everything game brings its keys back a little sooner from key 24 on.
constexpr Timed resetReverseAllShots[] = {{39, 450}, {42, 500}, {41, 550}, {38, 600}, {44, 650},
    {40, 700}, {47, 750}, {37, 800}, {43, 850}, {16, 900}, {46, 950}, {36, 1000}, {12, 1050},
    {15, 1100}, {45, 1150}, {35, 1200}, {11, 1300}, {9, 1350}, {13, 1400}, {34, 1450}, {10, 1500},
    {21, 1550}, {14, 1600}, {33, 1650}, {8, 1700}, {25, 1750}, {2, 1800}, {32, 1850}, {7, 1900},
    {20, 1950}, {22, 2000}, {31, 2050}, {6, 2100}, {18, 2150}, {3, 2200}, {30, 2250}, {4, 2300},
    {5, 2350}, {24, 2400}, {19, 2450}, {23, 2500}, {29, 2500}, {26, 2600}, {1, 2650}, {17, 2700},
    {28, 2750}, {27, 2800}};

// The whole keyboard in 14 columns from left to right; 0 ends a short column.
constexpr int fadeAllColumnCount = 14;
constexpr int fadeAllColumns[fadeAllColumnCount][5] = {
    {27, Tab, CapsLock, ShiftLeft},
    {28, 17, 1, 26},
    {29, 23, 19, 24},
    {30, 5, 4, 3, SpaceBar},
    {31, 18, 6, 22},
    {32, 20, 7, 2},
    {33, 25, 8, 14},
    {34, 21, 10, 13},
    {35, 9, 11, 45},
    {36, 15, 12, 46},
    {37, 16, 43, 47},
    {38, 40, 44, ShiftRight},
    {39, 41, Enter},
    {BackSpace, 42},
};
constexpr int fadeAllOutMs = 2000;
constexpr int fadeAllInMs = 3000;
constexpr int fadeAllColumnStepMs = 100;

enum class Wave { Keys, AllFadeIn, AllFadeInReverse, FadeAll, FadeAllReverse };

// What follows the fade of letter n in a game of that direction and group; the first row
// that matches a letter is the one that runs.
struct Row
{
    int letter;
    Direction direction;
    Group group;
    Wave wave;
    int fromMs;
    Span<int> keys;
    bool backwards;
};

using effecttables::AnyGroup;
using effecttables::Everything;
using effecttables::Forward;
using effecttables::Lowercase;
using effecttables::NumberLine;
using effecttables::Reverse;
using effecttables::Uppercase;

// Fade Out: the keys of a finished run come back before the next run needs them.
constexpr Row fadeOutRows[] = {
    {1, Reverse, Everything, Wave::AllFadeInReverse, 0, {}, false},
    {1, Reverse, Lowercase, Wave::Keys, 450, span(letterSweep), true},
    {33, Forward, AnyGroup, Wave::Keys, 450, span(letterSweep), false},
    {34, Reverse, AnyGroup, Wave::Keys, 450, span(letterSweep), true},
    {66, Forward, Uppercase, Wave::Keys, 450, span(letterSweep), false},
    {67, Reverse, NumberLine, Wave::Keys, 500, span(numberLineBack), false},
    {78, Forward, AnyGroup, Wave::Keys, 500, span(numberKeysUp), false},
    {79, Reverse, AnyGroup, Wave::Keys, 500, span(numberKeysDown), false},
    {92, Forward, AnyGroup, Wave::Keys, 1100, span(endKeysBack), false},
    {93, Reverse, AnyGroup, Wave::Keys, 1100, span(endKeysBack), false},
    {94, Forward, Everything, Wave::AllFadeIn, 0, {}, false},
    {94, Forward, AnyGroup, Wave::Keys, 500, span(numberSweep), false},
};

// Fade Out/In: the last letter of a game sweeps the keyboard out and back in.
constexpr Row finaleRows[] = {
    {1, Reverse, Everything, Wave::FadeAllReverse, 0, {}, false},
    {1, Reverse, Lowercase, Wave::Keys, finaleFadeOutMs, span(letterSweep), true},
    {33, Forward, Lowercase, Wave::Keys, finaleFadeOutMs, span(letterSweep), false},
    {34, Reverse, Uppercase, Wave::Keys, finaleFadeOutMs, span(letterSweep), true},
    {66, Forward, Uppercase, Wave::Keys, finaleFadeOutMs, span(letterSweep), false},
    {67, Reverse, NumberLine, Wave::Keys, finaleFadeOutMs, span(numberLineFinale), false},
    {94, Forward, Everything, Wave::FadeAll, 0, {}, false},
    {94, Forward, AnyGroup, Wave::Keys, finaleFadeOutMs, span(numberSweep), false},
};

} // namespace fadetables

#endif
