// Any bytes at all, read as a paint theme: no crash, no read past the bound, and what was read
// stores and reads back the same.
#include "lexoria/painttheme.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size));
    QBuffer input(&bytes);
    input.open(QIODevice::ReadOnly);
    const painttheme::Reading first = painttheme::read(input);
    if (input.pos() > qint64(painttheme::lineCount) * (painttheme::longestLine + 2))
        std::abort();

    QByteArray stored;
    QBuffer output(&stored);
    output.open(QIODevice::WriteOnly);
    if (!painttheme::write(first.theme, output))
        std::abort();
    output.close();
    output.open(QIODevice::ReadOnly);
    const painttheme::Reading second = painttheme::read(output);
    if (second.notPaintTheme != first.notPaintTheme || second.notEnglish != first.notEnglish)
        std::abort();
    for (int number = 1; number <= painttheme::lineCount; ++number) {
        const QString &before = painttheme::line(first.theme, number);
        // Undecodable bytes come back as replacement characters, which may make a line that
        // was just short enough too long to be read again.
        if (before.toUtf8().size() <= painttheme::longestLine
            && painttheme::line(second.theme, number) != before)
            std::abort();
    }
    return 0;
}
