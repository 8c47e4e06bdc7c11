#include "lexoria/keycatalogue.h"

#include <array>

namespace keycatalogue {

namespace {

const QString &letters()
{
    static const QString all = QStringLiteral("абвгдеёжзийклмнопрстуфхцчшщъыьэюя"
                                              "АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
                                              "1234567890-="
                                              "!\"№;%:?*()_+"
                                              ".\\,/");
    return all;
}

constexpr auto rowOfKey = [] {
    std::array<int, characterKeyCount + 1> rows {};
    for (int i = 0; i < characterKeyCount; ++i)
        rows[characterKeys[i].k] = i;
    return rows;
}();

constexpr auto keyOfLetterTable = [] {
    std::array<int, letterCount + 1> keys {};
    for (const CharacterKey &key : characterKeys) {
        keys[key.lower] = key.k;
        keys[key.upper] = key.k;
    }
    return keys;
}();

constexpr bool isLetterKey(int k)
{
    return k <= 26;
}

} // namespace

QString letterText(int n)
{
    return letters().mid(n - 1, 1);
}

const CharacterKey &characterKey(int k)
{
    return characterKeys[rowOfKey[k]];
}

const ControlKey &controlKeyByNumber(int number)
{
    for (const ControlKey &key : controlKeys) {
        if (key.number == number)
            return key;
    }
    return controlKeys[0];
}

int keyOfLetter(int n)
{
    return keyOfLetterTable[n];
}

bool isUpperRow(int n)
{
    return (n >= 34 && n <= 66) || (n >= 79 && n <= 90) || n == 93 || n == 94;
}

int alphabetPosition(int n)
{
    if (n <= 33)
        return n;
    if (n <= 66)
        return n - 33;
    return 0;
}

int letterForKeyCode(int code, Qt::KeyboardModifiers modifiers)
{
    for (const CharacterKey &key : characterKeys) {
        if (isLetterKey(key.k)) {
            if (code == key.plainCode)
                return modifiers == Qt::ShiftModifier ? key.upper : key.lower;
        } else if (code == key.plainCode) {
            return key.lower;
        } else if (code == key.shiftedCode) {
            return key.upper;
        }
    }
    return 0;
}

QRect keyRect(int k)
{
    const CharacterKey &key = characterKey(k);
    return QRect(key.x, key.y, k == 42 ? 74 : keySize, keySize);
}

QRect barRect(int n)
{
    int row = 0;
    int column = 0;
    if (n <= 33) {
        row = 294, column = n - 1;
    } else if (n <= 66) {
        row = 266, column = n - 34;
    } else if (n <= 78) {
        row = 358, column = n - 67;
    } else if (n <= 90) {
        row = 330, column = n - 79;
    } else {
        // . and \ under , and /, one column left empty after the number line
        row = (n <= 92) ? 358 : 330;
        column = 13 + (n - 91) % 2;
    }
    return QRect(144 + 28 * column, row, 28, 28);
}

int barMargin(int n)
{
    if (n == 1 || (n >= 3 && n <= 33) || n == 87 || n == 88)
        return 4;
    return n == 2 ? 3 : 2;
}

QRect keyLetterRect(int n)
{
    if (n == 29)
        return QRect(332, 512, keySize, keySize); // the form has ы two pixels high
    return keyRect(keyOfLetter(n));
}

QString keyLetterText(int n)
{
    const bool twoBlanks = n == 8 || n == 80 || n == 92;
    return letterText(n) + (twoBlanks ? QStringLiteral("  ") : QStringLiteral(" "));
}

QString keyEnglishText(int k)
{
    return (k == 44 ? QStringLiteral("  ") : QStringLiteral(" "))
        + QString::fromLatin1(characterKey(k).english);
}

} // namespace keycatalogue
