#ifndef KEYBOARDTHEME_H
#define KEYBOARDTHEME_H

#include <QByteArray>
#include <QString>

#include <array>

class QIODevice;

// The keyboard theme file: one text to a line, the position of a line is its meaning. This unit
// knows only lines and bytes, so that it can be tested and fuzzed without a window.
namespace keyboardtheme {

constexpr int lineCount = 126;
// No line the program writes comes near this; a longer one is garbage and reads as empty.
constexpr int longestLine = 64 * 1024;
// Every file of lineCount valid lines fits in this many bytes, so nothing behind it is read.
constexpr qint64 readLimit = qint64(lineCount) * (longestLine + 2);

const QString kindMarker = QStringLiteral("0");
const QString languageMarker = QStringLiteral("1");

struct Theme
{
    std::array<QString, lineCount> lines;
    bool notKeyboardTheme = false;
    bool notEnglishTheme = false;

    // Lines are counted from 1, as in the file.
    QString &line(int number) { return lines[std::size_t(number - 1)]; }
    const QString &line(int number) const { return lines[std::size_t(number - 1)]; }
};

// What the program holds before any theme was saved or opened: the markers and the two spare
// colours; every other line is filled from the window when saved.
Theme startTheme();

// Reads at most lineCount lines and at most readLimit bytes; missing lines are empty. Never fails:
// a device that cannot be read gives an empty theme with both warnings.
Theme read(QIODevice &device);
Theme read(const QByteArray &bytes);

// The warning line to show, empty when the markers are right. When both are wrong the second
// one is shown.
QString warning(const Theme &theme);

// Writes all lines, the markers always as the program's own. False when the stream failed.
bool write(QIODevice &device, const Theme &theme);
// Replaces the file only when every byte was written: the old file survives a full disk.
bool save(const QString &fileName, const Theme &theme);

} // namespace keyboardtheme

#endif
