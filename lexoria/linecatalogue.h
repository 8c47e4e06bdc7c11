#ifndef LINECATALOGUE_H
#define LINECATALOGUE_H

#include "lexoria/keycatalogue.h"

// The guide lines: two thin bars crossing on the key of the letter to find. Each key row has
// a low bar (through the lower-row letters) and a high one (through the shifted letters); each
// key has the vertical bar that runs over its caps.
namespace linecatalogue {

constexpr const char *horizontalLineNames[]
    = {"h1", "h2", "h3", "h4", "h1_2", "h2_2", "h3_2", "h4_2"};

// There is no v13_2: no key of the staggered rows sits under it.
constexpr const char *verticalLineNames[] = {"v1", "v2", "v3", "v4", "v5", "v6", "v7", "v8", "v9",
    "v10", "v11", "v12", "v13", "v14", "v15", "v1_2", "v2_2", "v3_2", "v4_2", "v5_2", "v6_2",
    "v7_2", "v8_2", "v9_2", "v10_2", "v11_2", "v12_2", "v14_2", "v15_2"};

struct KeyLine
{
    int k;
    const char *vertical;
};

// By key rows, left to right. The backslash key is wider than the others, so it takes v15.
constexpr KeyLine keyLines[keycatalogue::characterKeyCount] = {
    {27, "v1"},
    {28, "v2"},
    {29, "v3"},
    {30, "v4"},
    {31, "v5"},
    {32, "v6"},
    {33, "v7"},
    {34, "v8"},
    {35, "v9"},
    {36, "v10"},
    {37, "v11"},
    {38, "v12"},
    {39, "v13"},

    {17, "v1_2"},
    {23, "v2_2"},
    {5, "v3_2"},
    {18, "v4_2"},
    {20, "v5_2"},
    {25, "v6_2"},
    {21, "v7_2"},
    {9, "v8_2"},
    {15, "v9_2"},
    {16, "v10_2"},
    {40, "v11_2"},
    {41, "v12_2"},
    {42, "v15"},

    {1, "v3"},
    {19, "v4"},
    {4, "v5"},
    {6, "v6"},
    {7, "v7"},
    {8, "v8"},
    {10, "v9"},
    {11, "v10"},
    {12, "v11"},
    {43, "v12"},
    {44, "v13"},

    {26, "v2_2"},
    {24, "v3_2"},
    {3, "v4_2"},
    {22, "v5_2"},
    {2, "v6_2"},
    {14, "v7_2"},
    {13, "v8_2"},
    {45, "v9_2"},
    {46, "v10_2"},
    {47, "v11_2"},
};

constexpr const char *verticalLineOfKey(int k)
{
    for (const KeyLine &line : keyLines) {
        if (line.k == k)
            return line.vertical;
    }
    return nullptr;
}

// Rows count from the number row (0) down to the bottom row (3), as the keys lie on screen.
inline int keyRow(int k)
{
    return (keycatalogue::characterKey(k).y - keycatalogue::characterKey(27).y)
        / (keycatalogue::characterKey(17).y - keycatalogue::characterKey(27).y);
}

inline const char *horizontalLineOfLetter(int n)
{
    const int row = keyRow(keycatalogue::keyOfLetter(n));
    return horizontalLineNames[row + (keycatalogue::isUpperRow(n) ? 4 : 0)];
}

} // namespace linecatalogue

#endif
