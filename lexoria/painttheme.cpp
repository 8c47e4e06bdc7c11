#include "lexoria/painttheme.h"

#include <QIODevice>
#include <QSaveFile>
#include <QTextStream>

#include <iterator>

namespace painttheme {

namespace {

constexpr int firstEnglish = 3 + 94;
constexpr int firstBg = firstEnglish + 54;
constexpr int firstBorder = firstBg + 54;
constexpr int firstTail = firstBorder + 54;

// Lines 259 to 279, in file order.
constexpr QString Theme::*tail[] = {
    &Theme::englishText,
    &Theme::upperText,
    &Theme::lowerText,
    &Theme::backgroundText,
    &Theme::borderText,
    &Theme::borderShape,
    &Theme::bgShape,
    &Theme::keysBorderWidth,
    &Theme::gradOpened,
    &Theme::bgStopPos,
    &Theme::borderStopPos,
    &Theme::englishColorStyle,
    &Theme::upperColorStyle,
    &Theme::lowerColorStyle,
    &Theme::rainbowBorderWidth,
    &Theme::underscoreLeftColor,
    &Theme::underscoreRightColor,
    &Theme::englishFontStyle,
    &Theme::upperFontStyle,
    &Theme::fontEnglishText,
    &Theme::fontUpperText,
};
static_assert(firstTail + std::size(tail) - 1 == lineCount, "every line has its member");

// Hands out the lines of a device, each of at most longestLine bytes and without its end; a
// longer line is skipped to its end and comes back empty. Reads in blocks, as a file might be
// unbuffered, and stops looking after the bytes that lineCount lines can fill: every further
// line is empty, however much follows.
class LineReader
{
public:
    explicit LineReader(QIODevice &device)
        : device(device)
    {
    }

    QByteArray next()
    {
        bool tooLong = false;
        for (;;) {
            const int end = pending.indexOf('\n', from);
            if (end >= 0) {
                QByteArray line = tooLong ? QByteArray() : pending.mid(from, end - from);
                from = end + 1;
                return clean(line);
            }
            if (pending.size() - from > longestLine + 1) {
                tooLong = true;
                from = pending.size();
            }
            if (!fill()) {
                QByteArray rest = tooLong ? QByteArray() : pending.mid(from);
                from = pending.size();
                return clean(rest);
            }
        }
    }

private:
    bool fill()
    {
        if (budget <= 0)
            return false;
        pending.remove(0, from);
        from = 0;
        const QByteArray block = device.read(qMin<qint64>(blockSize, budget));
        if (block.isEmpty())
            return false;
        budget -= block.size();
        pending += block;
        return true;
    }

    static QByteArray clean(QByteArray line)
    {
        if (line.size() > longestLine)
            return {};
        // No text of ours holds a NUL; what follows one is not a style.
        const int nul = line.indexOf('\0');
        if (nul >= 0)
            line.truncate(nul);
        // Written on another system, a line ends in a carriage return too.
        while (line.endsWith('\r'))
            line.chop(1);
        return line;
    }

    static constexpr qint64 blockSize = 16 * 1024;
    QIODevice &device;
    QByteArray pending;
    int from = 0;
    qint64 budget = qint64(lineCount) * (longestLine + 2);
};

} // namespace

QString &line(Theme &theme, int number)
{
    Q_ASSERT(number >= 1 && number <= lineCount);
    switch (number) {
    case 1:
        return theme.kindMarker;
    case 2:
        return theme.languageMarker;
    }
    if (number < firstEnglish)
        return theme.charColor[number - 3];
    if (number < firstBg)
        return theme.englishColor[number - firstEnglish];
    if (number < firstBorder)
        return theme.bgStyle[number - firstBg];
    if (number < firstTail)
        return theme.borderStyle[number - firstBorder];
    return theme.*tail[number - firstTail];
}

const QString &line(const Theme &theme, int number)
{
    return line(const_cast<Theme &>(theme), number);
}

Reading read(QIODevice &device)
{
    Reading reading;
    LineReader lines(device);
    for (int number = 1; number <= lineCount; ++number)
        line(reading.theme, number) = QString::fromUtf8(lines.next());
    reading.notPaintTheme = reading.theme.kindMarker != QLatin1String("1");
    reading.notEnglish = reading.theme.languageMarker != QLatin1String("1");
    return reading;
}

bool write(const Theme &theme, QIODevice &device)
{
    QTextStream out(&device);
    // The same bytes on every system, whatever its locale: family names need not be ASCII.
    out.setCodec("UTF-8");
    for (int number = 1; number <= lineCount; ++number)
        out << line(theme, number) << '\n';
    out.flush();
    return out.status() == QTextStream::Ok;
}

bool save(const Theme &theme, const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    if (!write(theme, file)) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

} // namespace painttheme
