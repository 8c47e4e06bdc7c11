#include "lexoria/keyboardtheme.h"

#include <QBuffer>
#include <QTextCodec>

#include <cstdint>
#include <cstdlib>

// Any bytes at all must read without a crash, give lines no longer than a valid line can be,
// and a theme that reads back the same after the program has written it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace keyboardtheme;
    const QByteArray bytes
        = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    const Theme theme = read(bytes);
    QTextCodec *codec = QTextCodec::codecForLocale();
    bool rewritable = true;
    for (const QString &line : theme.lines) {
        if (line.size() > longestLine)
            std::abort();
        if (line.contains(QLatin1Char('\n')))
            std::abort();
        rewritable = rewritable && codec->canEncode(line)
            && codec->fromUnicode(line).size() <= longestLine;
    }
    if (theme.notKeyboardTheme != (theme.line(1) != kindMarker)
        || theme.notEnglishTheme != (theme.line(2) != languageMarker))
        std::abort();

    QBuffer written;
    written.open(QIODevice::WriteOnly);
    if (!write(written, theme))
        std::abort();
    const Theme again = read(written.data());
    if (again.notKeyboardTheme || again.notEnglishTheme)
        std::abort();
    if (rewritable) {
        for (int number = 3; number <= lineCount; ++number) {
            if (again.line(number) != theme.line(number))
                std::abort();
        }
    }
    return 0;
}
