#ifndef KEYCATALOGUE_H
#define KEYCATALOGUE_H

#include <QRect>
#include <QString>
#include <Qt>

// Two numberings run through the whole program: the letter number n (1..94, alphabet order)
// and the key number k (1..47, by the English character on the key; 48..54 are the control
// keys when painting). Everything that goes from one to the other reads these tables.
namespace keycatalogue {

constexpr int letterCount = 94;
constexpr int characterKeyCount = 47;
constexpr int paintKeyCount = 54;
constexpr int keySize = 54;

struct CharacterKey
{
    int k;
    int x, y;
    const char *english;
    int lower, upper; // letter numbers of the plain and the shifted character
    int pulseX, pulseY;
    int plainCode, shiftedCode; // Qt key codes; equal on letter keys, where Shift is a modifier
};

// Screen order, row by row, as the keys lie on the on-screen keyboard.
constexpr CharacterKey characterKeys[characterKeyCount] = {
    {27, 146, 394, "`", 7, 40, 126, 373, 96, 126},
    {28, 208, 394, "1", 67, 79, 184, 373, 49, 33},
    {29, 270, 394, "2", 68, 80, 248, 373, 50, 64},
    {30, 332, 394, "3", 69, 81, 312, 373, 51, 35},
    {31, 394, 394, "4", 70, 82, 372, 373, 52, 36},
    {32, 456, 394, "5", 71, 83, 434, 373, 53, 37},
    {33, 518, 394, "6", 72, 84, 498, 373, 54, 94},
    {34, 580, 394, "7", 73, 85, 556, 373, 55, 38},
    {35, 642, 394, "8", 74, 86, 626, 373, 56, 42},
    {36, 704, 394, "9", 75, 87, 682, 373, 57, 40},
    {37, 766, 394, "0", 76, 88, 746, 373, 48, 41},
    {38, 828, 394, "-", 77, 89, 808, 373, 45, 95},
    {39, 890, 394, "=", 78, 90, 868, 373, 61, 43},
    {17, 238, 454, "Q", 11, 44, 218, 434, 81, 81},
    {23, 300, 454, "W", 24, 57, 280, 434, 87, 87},
    {5, 362, 454, "E", 21, 54, 342, 434, 69, 69},
    {18, 424, 454, "R", 12, 45, 404, 434, 82, 82},
    {20, 486, 454, "T", 6, 39, 466, 434, 84, 84},
    {25, 548, 454, "Y", 15, 48, 526, 434, 89, 89},
    {21, 610, 454, "U", 4, 37, 588, 434, 85, 85},
    {9, 672, 454, "I", 26, 59, 652, 434, 73, 73},
    {15, 734, 454, "O", 27, 60, 714, 434, 79, 79},
    {16, 796, 454, "P", 9, 42, 776, 434, 80, 80},
    {40, 858, 454, "[", 23, 56, 836, 434, 91, 123},
    {41, 920, 454, "]", 28, 61, 898, 434, 93, 125},
    {42, 982, 454, "\\", 92, 94, 972, 434, 92, 124},
    {1, 270, 514, "A", 22, 55, 250, 496, 65, 65},
    {19, 332, 514, "S", 29, 62, 308, 496, 83, 83},
    {4, 394, 514, "D", 3, 36, 372, 496, 68, 68},
    {6, 456, 514, "F", 1, 34, 432, 496, 70, 70},
    {7, 518, 514, "G", 17, 50, 494, 496, 71, 71},
    {8, 580, 514, "H", 18, 51, 556, 496, 72, 72},
    {10, 642, 514, "J", 16, 49, 618, 496, 74, 74},
    {11, 704, 514, "K", 13, 46, 680, 496, 75, 75},
    {12, 766, 514, "L", 5, 38, 742, 496, 76, 76},
    {43, 828, 514, ";", 8, 41, 804, 496, 59, 58},
    {44, 890, 514, "'", 31, 64, 866, 496, 39, 34},
    {26, 300, 574, "Z", 33, 66, 282, 554, 90, 90},
    {24, 362, 574, "X", 25, 58, 342, 552, 88, 88},
    {3, 424, 574, "C", 19, 52, 404, 554, 67, 67},
    {22, 486, 574, "V", 14, 47, 466, 554, 86, 86},
    {2, 548, 574, "B", 10, 43, 528, 554, 66, 66},
    {14, 610, 574, "N", 20, 53, 590, 554, 78, 78},
    {13, 672, 574, "M", 30, 63, 652, 554, 77, 77},
    {45, 734, 574, ",", 2, 35, 714, 554, 44, 60},
    {46, 796, 574, ".", 32, 65, 776, 554, 46, 62},
    {47, 858, 574, "/", 91, 93, 836, 554, 47, 63},
};

// The seven control keys carry no letter. They sit at 48..54 of the face, image and English
// lists in this order, while their displayNone/pulsate/paint number is a different one.
struct ControlKey
{
    const char *suffix; // bg<suffix>, img<suffix>, label<suffix>
    const char *caption;
    int x, y, w, h;
    int number;
    int pulseX, pulseY;
};

constexpr ControlKey controlKeys[paintKeyCount - characterKeyCount] = {
    {"CapsLock", "Caps Lock", 145, 514, 118, 54, 50, 156, 496},
    {"Spacebar", "Spacebar", 474, 634, 228, 54, 54, 538, 608},
    {"Enter", "Enter", 952, 514, 102, 54, 51, 952, 496},
    {"ShiftRight", "Shift", 920, 574, 134, 54, 53, 936, 554},
    {"ShiftLeft", "Shift", 146, 574, 148, 54, 52, 168, 554},
    {"BackSpace", "Backspace", 952, 394, 102, 54, 48, 946, 373},
    {"Tab", "Tab", 146, 454, 84, 54, 49, 140, 434},
};

// The 94 characters in letter-number order; the bar labels are made from it and the game
// reads them back from the labels.
QString letterText(int n);

const CharacterKey &characterKey(int k);
const ControlKey &controlKeyByNumber(int number);
int keyOfLetter(int n);
bool isUpperRow(int n);
// Position of the letter in its alphabet (n, or n - 33 for capitals); 0 for signs.
int alphabetPosition(int n);
// 0 when the code is not one of the 94 codes of the key map.
int letterForKeyCode(int code, Qt::KeyboardModifiers modifiers);

QRect keyRect(int k);
QRect barRect(int n);
int barMargin(int n);
QRect keyLetterRect(int n);
QString keyLetterText(int n);
QString keyEnglishText(int k);

} // namespace keycatalogue

#endif
