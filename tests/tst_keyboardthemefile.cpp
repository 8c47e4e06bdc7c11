#include "lexoria/keyboardtheme.h"

#include <QBuffer>
#include <QDir>
#include <QTextCodec>
#include <QtTest>

using namespace keyboardtheme;

namespace {

// An endless file: the same bytes over and over, counting how many were taken.
class EndlessDevice : public QIODevice
{
public:
    explicit EndlessDevice(QByteArray pattern)
        : pattern(std::move(pattern))
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    qint64 taken = 0;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        for (qint64 i = 0; i < size; ++i)
            data[i] = pattern.at(int((taken + i) % pattern.size()));
        taken += size;
        return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray pattern;
};

// Lines 1 and 2 hold what a theme starts with; the others name their own number.
QByteArray numberedLines(int count, const char *end = "\n")
{
    QByteArray bytes;
    for (int n = 1; n <= count; ++n)
        bytes += (n <= 2 ? QByteArray::number(n - 1) : "line " + QByteArray::number(n)) + end;
    return bytes;
}

} // namespace

class tst_KeyboardThemeFile : public QObject
{
    Q_OBJECT

private slots:
    void readsLines_data();
    void readsLines();
    void readsNoMoreThanItNeeds_data();
    void readsNoMoreThanItNeeds();
    void corpusReadsBackAfterWriting_data();
    void corpusReadsBackAfterWriting();
};

void tst_KeyboardThemeFile::readsLines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("expected");

    const QByteArray lf = numberedLines(lineCount);
    QTest::newRow("plain") << lf << 126 << "line 126";
    QTest::newRow("windows line ends") << numberedLines(lineCount, "\r\n") << 42 << "line 42";
    QTest::newRow("no line end at the end") << lf.chopped(1) << 126 << "line 126";
    QTest::newRow("byte order mark of an editor") << "\xEF\xBB\xBF" + lf << 1 << "0";
    QTest::newRow("short file: missing lines are empty") << numberedLines(10) << 11 << "";
    QTest::newRow("lines behind 126 are not read") << numberedLines(200) << 126 << "line 126";
    QTest::newRow("utf-8 text") << QByteArray(
        "0\n1\nfont-family: \xD0\x90\xD1\x80\xD0\xB8\xD0\xB0\xD0\xBB;\n")
                                << 3 << QString::fromUtf8("font-family: Ариал;");

    QByteArray longest = "0\n1\n" + QByteArray(longestLine, 'a') + "\nnext\n";
    QTest::newRow("the longest line is kept") << longest << 3 << QString(longestLine, 'a');
    QByteArray overlong = "0\n1\n" + QByteArray(longestLine + 1, 'a') + "\nnext\n";
    QTest::newRow("a longer line reads empty") << overlong << 3 << "";
    QTest::newRow("and the next line is still read") << overlong << 4 << "next";
    QTest::newRow("an overlong last line without line end")
        << "0\n1\n" + QByteArray(3 * longestLine, 'b') << 3 << "";
}

void tst_KeyboardThemeFile::readsLines()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, line);
    QFETCH(QString, expected);
    if (line == 3 && expected.contains(QChar(0x0410))
        && QTextCodec::codecForLocale()->mibEnum() != 106)
        QSKIP("the locale's codec is not UTF-8");
    QCOMPARE(read(bytes).line(line), expected);
}

void tst_KeyboardThemeFile::readsNoMoreThanItNeeds_data()
{
    QTest::addColumn<QByteArray>("pattern");
    QTest::addColumn<qint64>("mostBytes");

    // A huge file without line breaks stops at the bytes any valid theme fits in.
    QTest::newRow("no line breaks") << QByteArray("x") << readLimit;
    QTest::newRow("zeros") << QByteArray(1, '\0') << readLimit;
    // Short lines: the reader stops at line 126, give or take one chunk read ahead.
    QTest::newRow("endless short lines") << QByteArray("ab\n") << qint64(64 * 1024);
}

void tst_KeyboardThemeFile::readsNoMoreThanItNeeds()
{
    QFETCH(QByteArray, pattern);
    QFETCH(qint64, mostBytes);
    EndlessDevice device(pattern);
    const Theme theme = read(device);
    QVERIFY2(device.taken <= mostBytes, QByteArray::number(device.taken));
    QVERIFY(theme.notKeyboardTheme);
}

// Every file the fuzzer ever failed on stays in its corpus, and so in this test.
void tst_KeyboardThemeFile::corpusReadsBackAfterWriting_data()
{
    QTest::addColumn<QString>("path");
    const QDir corpus(QStringLiteral(VORTIC_KEYBOARD_THEME_CORPUS));
    const QStringList files = corpus.entryList(QDir::Files);
    QVERIFY(files.size() >= 5);
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << corpus.filePath(file);
}

void tst_KeyboardThemeFile::corpusReadsBackAfterWriting()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const Theme theme = read(file);
    QBuffer written;
    written.open(QIODevice::WriteOnly);
    QVERIFY(write(written, theme));
    const Theme again = read(written.data());
    QCOMPARE(warning(again), QString());
    QTextCodec *codec = QTextCodec::codecForLocale();
    for (int number = 3; number <= lineCount; ++number) {
        const QString &line = theme.line(number);
        if (codec->canEncode(line) && codec->fromUnicode(line).size() <= longestLine)
            QCOMPARE(again.line(number), line);
    }
}

QTEST_MAIN(tst_KeyboardThemeFile)
#include "tst_keyboardthemefile.moc"
