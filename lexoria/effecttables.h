#ifndef EFFECTTABLES_H
#define EFFECTTABLES_H

#include <cstddef>

// What a located key does, as data: which keys come back when a run of letters ends, the
// order of the sweeps that end a game, and the gifs a player can choose.
namespace effecttables {

constexpr int pulseMs = 900;
constexpr int endGameStepMs = 100;
constexpr int endChainDelayMs = 2000;

template <class T> struct Span
{
    const T *items;
    std::size_t count;
    const T *begin() const { return items; }
    const T *end() const { return items + count; }
};

template <class T, std::size_t N> constexpr Span<T> span(const T (&items)[N])
{
    return {items, N};
}

// Key numbers of the three families of keys that come back together.
constexpr int letterKeys[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20,
    21, 22, 23, 24, 25, 26, 27, 40, 41, 43, 44, 45, 46};
constexpr int numberLineKeys[] = {28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39};
constexpr int endKeys[] = {42, 47};
constexpr int allCharacterKeys[]
    = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25,
        26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47};

enum class MoveBack { None, Letters, NumberLine, EndKeys };

// A sweep of pulses: the m-th key pulses m steps after the start.
struct ChainStep
{
    int m;
    int key;
};

struct Chain
{
    Span<ChainStep> steps;
    int stopAllAt; // step at which every movie is stopped
};

constexpr ChainStep endGame1_66Steps[] = {{1, 6}, {2, 45}, {3, 4}, {4, 21}, {5, 12}, {6, 20},
    {7, 27}, {8, 43}, {9, 16}, {10, 2}, {11, 17}, {12, 18}, {13, 11}, {14, 22}, {15, 25}, {16, 10},
    {17, 7}, {18, 8}, {19, 3}, {20, 14}, {21, 5}, {22, 1}, {23, 40}, {24, 23}, {25, 24}, {26, 9},
    {27, 15}, {28, 41}, {29, 19}, {30, 13}, {31, 44}, {32, 46}, {33, 26}};
constexpr ChainStep endGame67_94Steps[] = {{1, 28}, {2, 29}, {3, 30}, {4, 31}, {5, 32}, {6, 33},
    {7, 34}, {8, 35}, {9, 36}, {10, 37}, {11, 38}, {12, 39}, {14, 47}, {16, 42}};
constexpr ChainStep endGame94_67Steps[] = {{1, 42}, {2, 47}, {3, 39}, {4, 38}, {5, 37}, {6, 36},
    {7, 35}, {8, 34}, {9, 33}, {10, 32}, {11, 31}, {12, 30}, {13, 29}, {14, 28}};

enum ChainId { EndGame1_66, EndGame67_94, EndGame94_67 };
constexpr Chain chains[] = {
    {span(endGame1_66Steps), 50},
    {span(endGame67_94Steps), 30},
    {span(endGame94_67Steps), 25},
};

// What the end of the pulse of a letter does besides hiding it. The first row of a letter
// whose radios match wins; a letter with no matching row just leaves its key's place empty.
enum Direction { AnyDirection, Forward, Reverse };
enum Group { AnyGroup, Everything, Lowercase, Uppercase, NumberLine };

struct RunEnd
{
    int letter;
    Direction direction;
    Group group;
    int chain; // -1: no chain, the keys below come back at once
    Span<int> keys;
    MoveBack moveBack;
    int firstShown, lastShown; // letter labels r<n>_2 shown again
};

constexpr RunEnd runEnds[] = {
    {1, Reverse, Lowercase, EndGame1_66, {}, MoveBack::None, 0, -1},
    {33, Forward, Lowercase, EndGame1_66, {}, MoveBack::None, 0, -1},
    {33, Forward, AnyGroup, -1, span(allCharacterKeys), MoveBack::Letters, 1, 66},
    {34, Reverse, Uppercase, EndGame1_66, {}, MoveBack::None, 0, -1},
    {34, Reverse, Everything, -1, span(letterKeys), MoveBack::Letters, 1, 66},
    {66, Forward, Uppercase, EndGame1_66, {}, MoveBack::None, 0, -1},
    {67, Reverse, NumberLine, EndGame94_67, {}, MoveBack::None, 0, -1},
    {78, Forward, AnyGroup, -1, span(numberLineKeys), MoveBack::NumberLine, 67, 94},
    {79, Reverse, AnyGroup, -1, span(numberLineKeys), MoveBack::NumberLine, 67, 90},
    {92, Forward, AnyGroup, -1, span(endKeys), MoveBack::EndKeys, 91, 94},
    {93, Reverse, AnyGroup, -1, span(endKeys), MoveBack::EndKeys, 91, 94},
    {94, Forward, NumberLine, EndGame67_94, {}, MoveBack::None, 0, -1},
};

// The Everything finale: the control keys blow up one by one, then all 54 keys pulse back
// column by column, left to right. Times from the last correct entry; the finale of pulses
// from the start of gameAllIn.
struct Shot
{
    int ms;
    int key;
};

constexpr Shot controlKeyExplosions[]
    = {{3000, 49}, {3200, 50}, {3400, 52}, {3600, 54}, {3800, 53}, {4000, 51}, {4200, 48}};
constexpr int whatAMessMs = 7000;
constexpr int gameAllInMs = 8000;

constexpr Shot gameAllInShots[] = {{2000, 27}, {2000, 49}, {2000, 50}, {2000, 52}, {2100, 28},
    {2100, 17}, {2100, 1}, {2100, 26}, {2200, 29}, {2200, 23}, {2200, 19}, {2200, 24}, {2300, 30},
    {2300, 5}, {2300, 4}, {2300, 3}, {2300, 54}, {2400, 31}, {2400, 18}, {2400, 6}, {2400, 22},
    {2500, 32}, {2500, 20}, {2500, 7}, {2500, 2}, {2600, 33}, {2600, 25}, {2600, 8}, {2600, 14},
    {2700, 34}, {2700, 21}, {2700, 10}, {2700, 13}, {2800, 35}, {2800, 9}, {2800, 11}, {2800, 45},
    {2900, 36}, {2900, 15}, {2900, 12}, {2900, 46}, {3000, 37}, {3000, 16}, {3000, 43}, {3000, 47},
    {3100, 38}, {3100, 40}, {3100, 44}, {3100, 53}, {3200, 39}, {3200, 41}, {3200, 51}, {3300, 48},
    {3300, 42}};
constexpr int gameAllInStopMs = 4000;

// The supplied effect gifs. Width and height are the scaled size of the 94 pulse movies.
struct EffectGif
{
    const char *radio;
    const char *resource;
    int width, height;
    int entryClearMs;
    const char *sound;
};

constexpr EffectGif effectGifs[] = {
    {"angryE", ":/new/prefix1/angryEmotion2.gif", 96, 60, 100, ":/new/prefix1/machineGun2.wav"},
    {"birdsdancing", ":/new/prefix1/birdsdance2.gif", 96, 60, 100, ":/new/prefix1/silence.wav"},
    {"butterfly", ":/new/prefix1/butterfly1.gif", 96, 76, 100, ":/new/prefix1/silence.wav"},
    {"explosion", ":/new/prefix1/explodeAll2.gif", 96, 90, 300, ":/new/prefix1/explosion1.wav"},
};

constexpr const char *blankGif = ":/new/prefix1/blank.gif";
constexpr const char *silenceWav = ":/new/prefix1/silence.wav";

// Animated thumbnails and flags of the panels; they run for as long as the window lives.
struct Thumbnail
{
    const char *label;
    const char *resource;
    int speed;
};

constexpr Thumbnail thumbnails[] = {
    {"tnAngryE", ":/new/prefix1/angryEmotion2.gif", 100},
    {"tnBirdsDancing", ":/new/prefix1/birdsdance2.gif", 100},
    {"tnButterfly", ":/new/prefix1/butterfly1.gif", 200},
    {"tnExplode", ":/new/prefix1/explodeAll2.gif", 300},
    {"tnSwirl1", ":/new/prefix1/swirl1.gif", 100},
    {"tnKittyWalk", ":/new/prefix1/kittyWalk.gif", 100},
    {"tnPulsingLight", ":/new/prefix1/pulsingLightSmall.gif", 100},
    {"tnSnow", ":/new/prefix1/snowSmall.gif", 100},
    {"tnRain", ":/new/prefix1/rain.gif", 100},
    {"tnSheep", ":/new/prefix1/bouncingSheepSmall.gif", 100},
    {"tnSnowFall", ":/new/prefix1/snowfall.gif", 100},
    {"imgRussianGp", ":/new/prefix1/russianFlag.gif", 100},
    {"imgRussianAbc", ":/new/prefix1/russianFlag.gif", 100},
    {"imgRussianRainbow", ":/new/prefix1/russianFlag.gif", 100},
    {"imgRussianHighlight", ":/new/prefix1/russianFlag.gif", 100},
    {"imgRussian", ":/new/prefix1/russianFlag.gif", 100},
    {"imgRussian_2", ":/new/prefix1/russianFlag.gif", 100},
    {"imgRussian_3", ":/new/prefix1/russianFlag.gif", 100},
    {"imgRussian_4", ":/new/prefix1/russianFlag.gif", 100},
    {"imgEnglishRainbow", ":/new/prefix1/english.gif", 100},
    {"imgEnglishHighlight", ":/new/prefix1/english.gif", 100},
    {"imgEnglish_5", ":/new/prefix1/english.gif", 100},
    {"imgEnglish", ":/new/prefix1/english.gif", 100},
    {"imgEnglish_2", ":/new/prefix1/english.gif", 100},
    {"imgEnglish_3", ":/new/prefix1/english.gif", 100},
};

// The gifs a player can lay on the keys as pictures; a size of -1 keeps the gif's own.
struct KeyPictureGif
{
    const char *radio;
    const char *resource;
    int width, height;
};

constexpr KeyPictureGif keyPictureGifs[] = {
    {"radioSwirl", ":/new/prefix1/swirl1.gif", 54, 54},
    {"radioKittyWalk", ":/new/prefix1/kittyWalk.gif", -1, -1},
    {"radioPulsingLight", ":/new/prefix1/pulsingLightSmall.gif", -1, -1},
    {"radioSnow", ":/new/prefix1/snowSmall.gif", -1, -1},
    {"radioRain", ":/new/prefix1/rain.gif", -1, -1},
    {"radioSheep", ":/new/prefix1/bouncingSheepSmall.gif", 34, 54},
    {"radioMarbleTransparent", ":/new/prefix1/marbleTransparentSmall.gif", -1, -1},
    {"radioSnowFall", ":/new/prefix1/snowfall.gif", 54, 54},
};

// The four places a key picture can go, with the widgets that show which one is chosen:
// radioLine marks the target of the supplied gifs, radioLine..._2 the target of a file of
// the player's own.
enum Target { Keys, Keypress, Highlight, Mouseover };
struct PictureTarget
{
    const char *radio;
    const char *radioLine;
    const char *display;
    const char *ownLine;
    const char *openButton;
    const char *openFolder;
    const char *clearButton;
};

constexpr PictureTarget pictureTargets[] = {
    {"radioKeys", "radioLineKeys", "displayKeys", "radioLineKeys_2", "openImageKeys",
        "openFolderKeys", "clearKeysImage"},
    {"radioKeypress", "radioLineKeypress", "displayKeypress", "radioLineKeypress_2",
        "openImageKeypress", "openFolderKeypress", "clearKeypressImage"},
    {"radioHighlight", "radioLineHighlight", "displayHighlight", "radioLineHighlight_2",
        "openImageHighlight", "openFolderHighlight", "clearHighlightImage"},
    {"radioMouseover", "radioLineMouseover", "displayMouseover", "radioLineMouseover_2",
        "openImageMouseover", "openFolderMouseover", "clearMouseoverImage"},
};

} // namespace effecttables

#endif
