#ifndef PAINTTHEME_H
#define PAINTTHEME_H

#include <QString>

#include <array>

class QIODevice;

// A painted keyboard on disk: one text per line, the position of a line being its meaning.
// Reading and writing know nothing of the window; the window gathers into a Theme and applies
// one, so the file code can be tried on any bytes at all.
namespace painttheme {

constexpr int lineCount = 279;
// No line the program writes comes near this; a longer one is not ours and reads as empty.
constexpr int longestLine = 64 * 1024;

struct Theme
{
    QString kindMarker = QStringLiteral("1");
    QString languageMarker = QStringLiteral("1");
    std::array<QString, 94> charColor; // letter n at n - 1
    std::array<QString, 54> englishColor; // paint key K at K - 1
    std::array<QString, 54> bgStyle;
    std::array<QString, 54> borderStyle;
    QString englishText;
    QString upperText;
    QString lowerText;
    QString backgroundText;
    QString borderText;
    QString borderShape;
    QString bgShape;
    QString keysBorderWidth;
    QString gradOpened;
    QString bgStopPos;
    QString borderStopPos;
    QString englishColorStyle;
    QString upperColorStyle;
    QString lowerColorStyle;
    QString rainbowBorderWidth;
    QString underscoreLeftColor;
    QString underscoreRightColor;
    QString englishFontStyle;
    QString upperFontStyle;
    QString fontEnglishText;
    QString fontUpperText;
};

// Line 1..lineCount of the file.
QString &line(Theme &theme, int number);
const QString &line(const Theme &theme, int number);

struct Reading
{
    Theme theme;
    bool notPaintTheme = false; // a keyboard theme, or no theme at all
    bool notEnglish = false;
};

// Reads the first lineCount lines; missing ones are empty. However large or strange the input,
// at most about lineCount * longestLine bytes are looked at.
Reading read(QIODevice &device);

// Writes the lines to an open device; false when any of it could not be written.
bool write(const Theme &theme, QIODevice &device);

// Replaces the file at path only once the whole theme is written: a failed save leaves the
// file that was there.
bool save(const Theme &theme, const QString &path);

} // namespace painttheme

#endif
