#ifndef GAMECATALOGUE_H
#define GAMECATALOGUE_H

#include <array>
#include <cstddef>

// The twelve games: three directions times four groups of letters.
namespace gamecatalogue {

enum Direction { Forward, Reverse, Random };
enum Group { Everything, Lowercase, Uppercase, NumberLine };

struct GroupInfo
{
    const char *radio; // the hidden radio that holds the choice
    const char *typeText;
    int gameLength;
    int firstLetter, lastLetter; // letter numbers, in forward order
    int forwardFirstIndex, reverseFirstIndex;
    int reverseTop; // reverse games mark letter reverseTop - correctCount + 1
    int forwardFinalLetter, reverseFinalLetter;
    int sampleLetter; // first of the three letters of the finished-letter preview
};

constexpr GroupInfo groups[] = {
    {"rbAll", "Everything !!", 94, 1, 94, 0, 93, 94, 94, 1, 1},
    {"rbVarious", "Lowercase", 33, 1, 33, 0, 32, 33, 33, 1, 1},
    {"rbConsonants", "Uppercase", 33, 34, 66, 33, 65, 66, 66, 34, 34},
    {"rbNumberLine", "Number Line", 28, 67, 94, 66, 93, 94, 94, 67, 67},
};

constexpr const char *directionWords[] = {"Forward", "Reverse", "Random"};
constexpr const char *directionRadios[] = {"rbForward_2", "rbReverse_2", "rbRandom_2"};

// The random games sweep the bar in a fixed scrambled order of their own.
constexpr int randomAllWave[] = {70, 23, 51, 29, 38, 55, 53, 25, 6, 14, 54, 71, 42, 1, 3, 5, 17, 30,
    74, 22, 86, 58, 67, 85, 47, 59, 77, 80, 48, 72, 65, 44, 31, 46, 2, 34, 10, 60, 7, 4, 94, 35, 28,
    9, 37, 12, 11, 26, 78, 73, 81, 57, 13, 27, 76, 18, 45, 63, 69, 66, 24, 50, 68, 43, 49, 64, 84,
    33, 56, 15, 82, 79, 83, 32, 36, 52, 40, 39, 19, 20, 61, 16, 62, 41};
constexpr int randomUppercaseWave[] = {38, 34, 39, 60, 35, 62, 42, 66, 37, 47, 55, 50, 58, 44, 53,
    64, 45, 63, 65, 41, 46, 64, 51, 52, 61, 48, 49, 54, 56, 57, 43, 59, 36, 40};
constexpr int randomLowercaseWave[] = {20, 11, 28, 12, 27, 13, 1, 16, 33, 23, 5, 29, 32, 10, 18, 26,
    31, 19, 22, 2, 14, 17, 3, 9, 25, 24, 30, 15, 8, 26};
constexpr int randomNumberLineWave[] = {87, 92, 83, 80, 94, 79, 85, 91, 90, 69, 84, 82, 77, 89, 72,
    81, 70, 88, 74, 73, 67, 90, 71, 75, 68, 93, 78, 76, 86};

struct Wave
{
    const int *letters;
    std::size_t count;
};

template <std::size_t N> constexpr Wave wave(const int (&letters)[N])
{
    return {letters, N};
}

struct Game
{
    const char *button;
    Direction direction;
    Group group;
    int captionRow; // row of `table` holding the game's caption
    Wave randomWave;
};

constexpr Game games[] = {
    {"pbForwardAll", Forward, Everything, 4, {}},
    {"pbReverseAll", Reverse, Everything, 9, {}},
    {"pbRandomAll", Random, Everything, 14, wave(randomAllWave)},
    {"pbForwardVarious", Forward, Lowercase, 2, {}},
    {"pbReverseVarious", Reverse, Lowercase, 7, {}},
    {"pbRandomVarious", Random, Lowercase, 12, wave(randomLowercaseWave)},
    {"pbForwardConsonants", Forward, Uppercase, 1, {}},
    {"pbReverseConsonants", Reverse, Uppercase, 6, {}},
    {"pbRandomConsonants", Random, Uppercase, 11, wave(randomUppercaseWave)},
    {"pbForwardNumberLine", Forward, NumberLine, 3, {}},
    {"pbReverseNumberLine", Reverse, NumberLine, 8, {}},
    {"pbRandomNumberLine", Random, NumberLine, 13, wave(randomNumberLineWave)},
};

// What the instructor says when a game reaches a letter (by list index).
struct Comment
{
    int index;
    const char *label;
};

constexpr Comment comments[] = {
    {0, "mes1"},
    {33, "mes1"},
    {6, "mes2"},
    {39, "mes2"},
    {11, "mes3"},
    {44, "mes3"},
    {16, "mes4"},
    {49, "mes4"},
    {18, "mes5"},
    {51, "mes5"},
    {27, "mes6"},
    {60, "mes6"},
    {32, "mes7"},
    {65, "mes7"},
    {80, "mes8"},
    {90, "mes9"},
};

} // namespace gamecatalogue

#endif
