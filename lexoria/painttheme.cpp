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

// One line of at most longestLine bytes, without its end. A longer line is skipped to its end
// and comes back empty. budget is what is left to look at of the whole file; at 0 every
// further line is empty, however much follows.
QByteArray boundedLine(QIODevice &device, qint64 &budget)
{
    QByteArray line;
    bool tooLong = false;
    char chunk[4096];
    while (budget > 0) {
        const qint64 got = device.readLine(chunk, qMin<qint64>(sizeof chunk, budget + 1));
        if (got <= 0)
            break;
        budget -= got;
        const bool ended = chunk[got - 1] == '\n';
        if (!tooLong) {
            line.append(chunk, int(got));
            if (line.size() > longestLine + 2) {
                tooLong = true;
                line.clear();
            }
        }
        if (ended)
            break;
    }
    if (line.endsWith('\n'))
        line.chop(1);
    // Written on another system, a line may end in a carriage return too.
    if (line.endsWith('\r'))
        line.chop(1);
    if (line.size() > longestLine)
        line.clear();
    return line;
}

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
    qint64 budget = qint64(lineCount) * (longestLine + 2);
    for (int number = 1; number <= lineCount; ++number)
        line(reading.theme, number) = QString::fromUtf8(boundedLine(device, budget));
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
