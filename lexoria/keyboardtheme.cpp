#include "lexoria/keyboardtheme.h"

#include <QBuffer>
#include <QSaveFile>
#include <QTextCodec>
#include <QTextStream>

#include <cstring>

namespace keyboardtheme {

namespace {

// Splits bytes into lines without ever holding more than one valid line: a line that grows
// past longestLine is only counted, not kept.
class LineSplitter
{
public:
    explicit LineSplitter(Theme &theme)
        : theme(theme)
        , codec(QTextCodec::codecForLocale())
    {
    }

    bool full() const { return done == lineCount; }

    void feed(const char *data, qint64 size)
    {
        while (size > 0 && !full()) {
            const void *end = std::memchr(data, '\n', std::size_t(size));
            const qint64 taken = end ? static_cast<const char *>(end) - data : size;
            append(data, taken);
            if (!end)
                return;
            finishLine();
            data += taken + 1;
            size -= taken + 1;
        }
    }

    // A last line without a line end counts; an empty rest after the last line end does not.
    void finish()
    {
        if (!full() && (!pending.isEmpty() || overlong))
            finishLine();
    }

private:
    void append(const char *data, qint64 size)
    {
        if (overlong)
            return;
        if (pending.size() + size > longestLine + 1) {
            overlong = true;
            pending.clear();
            return;
        }
        pending.append(data, int(size));
    }

    void finishLine()
    {
        // The program never writes a byte order mark, but an editor may add one.
        if (done == 0 && pending.startsWith("\xEF\xBB\xBF"))
            pending.remove(0, 3);
        int size = pending.size();
        while (size > 0 && pending.at(size - 1) == '\r')
            --size;
        if (!overlong && size <= longestLine) {
            // Each line decodes on its own, and a mark inside the file is text, not a header.
            QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
            QString &text = theme.lines[std::size_t(done)];
            text = codec->toUnicode(pending.constData(), size, &state);
            // A sequence cut off by the line end would be held for more bytes that never come.
            if (state.remainingChars > 0)
                text.append(QChar::ReplacementCharacter);
        }
        ++done;
        pending.clear();
        overlong = false;
    }

    Theme &theme;
    QTextCodec *codec;
    QByteArray pending;
    bool overlong = false;
    int done = 0;
};

} // namespace

Theme startTheme()
{
    Theme theme;
    theme.line(1) = kindMarker;
    theme.line(2) = languageMarker;
    theme.line(109) = QStringLiteral("white");
    theme.line(110) = QStringLiteral("white");
    return theme;
}

Theme read(QIODevice &device)
{
    Theme theme;
    LineSplitter splitter(theme);
    char chunk[16 * 1024];
    qint64 total = 0;
    while (!splitter.full() && total < readLimit) {
        const qint64 got = device.read(chunk, qMin<qint64>(sizeof chunk, readLimit - total));
        if (got <= 0)
            break;
        total += got;
        splitter.feed(chunk, got);
    }
    splitter.finish();
    theme.notKeyboardTheme = theme.line(1) != kindMarker;
    theme.notEnglishTheme = theme.line(2) != languageMarker;
    return theme;
}

Theme read(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return read(buffer);
}

QString warning(const Theme &theme)
{
    if (theme.notEnglishTheme)
        return QStringLiteral("This is not an English Theme.");
    if (theme.notKeyboardTheme)
        return QStringLiteral("This is not a Keyboard theme");
    return {};
}

bool write(QIODevice &device, const Theme &theme)
{
    QTextStream out(&device);
    out << kindMarker << '\n' << languageMarker << '\n';
    for (int number = 3; number <= lineCount; ++number) {
        // A line break inside a text would shift every later line by one.
        QString text = theme.line(number);
        text.replace(QLatin1Char('\n'), QLatin1Char(' '));
        while (text.endsWith(QLatin1Char('\r')))
            text.chop(1);
        out << text << '\n';
    }
    out.flush();
    return out.status() == QTextStream::Ok;
}

bool save(const QString &fileName, const Theme &theme)
{
    if (fileName.isEmpty())
        return false;
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    // QSaveFile would still commit after a failed flush, so the stream's own status decides.
    if (!write(file, theme)) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

} // namespace keyboardtheme
