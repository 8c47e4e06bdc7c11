#include "paneldriver.h"

#include "lexoria/painttheme.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace {

// Every line different, so that a line read into the wrong member shows.
painttheme::Theme paintedTheme(const QString &tag)
{
    painttheme::Theme theme;
    for (int n = 1; n <= 94; ++n)
        theme.charColor[n - 1] = QStringLiteral("color: rgb(%1, %2, 0);").arg(n).arg(tag.size());
    for (int K = 1; K <= 54; ++K) {
        theme.englishColor[K - 1] = QStringLiteral("color: rgb(0, %1, 9);").arg(K);
        theme.bgStyle[K - 1] = QStringLiteral("background-color: qlineargradient(x1: 0, y1: 0, "
                                              "x2: 0, y2: 1,stop: 0 %1,      stop: .5  rgb(%2, "
                                              "0, 0));")
                                   .arg(tag)
                                   .arg(K);
        theme.borderStyle[K - 1]
            = QStringLiteral("border: %1px solid rgb(0, 0, %2);").arg(K % 4).arg(K);
    }
    theme.englishText = "1";
    theme.upperText = "1";
    theme.lowerText = "0";
    theme.backgroundText = "1";
    theme.borderText = "1";
    theme.borderShape = "3";
    theme.bgShape = "2";
    theme.keysBorderWidth = "4";
    theme.gradOpened = "1";
    theme.bgStopPos = "7";
    theme.borderStopPos = "9";
    theme.englishColorStyle = "color: " + tag + ";";
    theme.upperColorStyle = "color: yellow;";
    theme.lowerColorStyle = "color: orange;";
    theme.rainbowBorderWidth = "6";
    theme.underscoreLeftColor = "color: rgb(1, 2, 3);";
    theme.underscoreRightColor = "color: rgb(3, 2, 1);";
    theme.englishFontStyle = "font-family: Calibri;";
    theme.upperFontStyle = "font-family: Arial Unicode MS;";
    return theme;
}

QStringList fileLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split('\n');
}

} // namespace

class tst_PaintTheme : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init()
    {
        makeWindow(Start::Built);
        window->setFileAsker([this](const lexoria::FileQuestion &question) {
            questions.append(question);
            return QStringList {answer};
        });
        dir = std::make_unique<QTemporaryDir>();
        questions.clear();
    }
    void cleanup()
    {
        closeWindow();
        dir.reset();
    }

    void linesGoBackToTheirMembers();
    void readingIsBoundedWhateverTheInput_data();
    void readingIsBoundedWhateverTheInput();

    void aPaintedKeyboardComesBackAsItWas();
    void savingAtStartStoresTheGeneralColours();
    void wrongFilesWarnAndAreAppliedAllTheSame_data();
    void wrongFilesWarnAndAreAppliedAllTheSame();
    void cancelledOrUnreadableOpenReadsNothing();
    void badFilesOpenWithoutHarm_data();
    void badFilesOpenWithoutHarm();
    void aFailedSaveLeavesTheOldFile();
    void openingAPaintThemeTakesOverFromTheKeyboardTheme();

private:
    QStringList keyboardLooks() const;
    void open(const QString &path)
    {
        answer = path;
        game->click("openPaint");
    }
    void save(const QString &path)
    {
        answer = path;
        game->click("savePaint");
    }

    std::unique_ptr<QTemporaryDir> dir;
    QString answer;
    QList<lexoria::FileQuestion> questions;
};

// What the user sees of the keyboard: every face, letter, label and bar cell.
QStringList tst_PaintTheme::keyboardLooks() const
{
    QStringList looks;
    for (int k = 1; k <= 47; ++k)
        looks << game->style(QString("bg%1").arg(k)) << game->style(QString("r%1_3").arg(k));
    for (int n = 1; n <= 94; ++n)
        looks << game->style(QString("r%1").arg(n)) << game->style(QString("r%1_2").arg(n))
              << game->style(QString("r%1bg").arg(n));
    for (const auto &key : keycatalogue::controlKeys)
        looks << game->style(QString("bg") + key.suffix)
              << game->style(QString("label") + key.suffix);
    looks << game->style("underscore_left") << game->style("underscore_right")
          << game->style("aKeysMap5");
    return looks;
}

void tst_PaintTheme::linesGoBackToTheirMembers()
{
    const painttheme::Theme theme = paintedTheme("red");
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(painttheme::write(theme, buffer));
    QCOMPARE(bytes.count('\n'), painttheme::lineCount);
    const QList<QByteArray> lines = bytes.split('\n');
    QCOMPARE(lines[0], QByteArray("1"));
    QCOMPARE(lines[2], theme.charColor[0].toUtf8());
    QCOMPARE(lines[96], theme.englishColor[0].toUtf8());
    QCOMPARE(lines[150], theme.bgStyle[0].toUtf8());
    QCOMPARE(lines[257], theme.borderStyle[53].toUtf8());
    QCOMPARE(lines[263], QByteArray("3"));
    QCOMPARE(lines[272], QByteArray("6"));

    // Written elsewhere, the lines may end in CR LF.
    bytes.replace("\n", "\r\n");
    QBuffer input(&bytes);
    input.open(QIODevice::ReadOnly);
    const painttheme::Reading reading = painttheme::read(input);
    QVERIFY(!reading.notPaintTheme);
    QVERIFY(!reading.notEnglish);
    for (int number = 1; number <= painttheme::lineCount; ++number)
        QCOMPARE(painttheme::line(reading.theme, number), painttheme::line(theme, number));
}

void tst_PaintTheme::readingIsBoundedWhateverTheInput_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("line3");
    QTest::addColumn<QString>("line4");
    QTest::addColumn<bool>("notPaintTheme");
    QTest::addColumn<bool>("notEnglish");

    const QByteArray tooLong(painttheme::longestLine + 1, 'x');
    const QByteArray justFits(painttheme::longestLine, 'y');
    // clang-format off
    QTest::newRow("empty") << QByteArray() << "" << "" << true << true;
    QTest::newRow("keyboard theme") << QByteArray("0\n1\nwhite\nblack\n") << "white" << "black"
        << true << false;
    QTest::newRow("second marker") << QByteArray("1\n0\na\n") << "a" << "" << false << true;
    QTest::newRow("line too long") << "1\n1\n" + tooLong + "\nnext\n" << "" << "next" << false
        << false;
    QTest::newRow("longest line") << "1\n1\n" + justFits + "\nnext" << QString(justFits) << "next"
        << false << false;
    QTest::newRow("binary") << QByteArray("\x00\xff\xfe\n\x01", 5) << "" << "" << true << true;
    QTest::newRow("no line ends") << QByteArray(40 * 1024 * 1024, '1') << "" << "" << true << true;
    QTest::newRow("endless short lines") << QByteArray(4 * 1024 * 1024, '\n') << "" << "" << true
        << true;
    // clang-format on
}

void tst_PaintTheme::readingIsBoundedWhateverTheInput()
{
    QFETCH(QByteArray, bytes);
    QBuffer input(&bytes);
    input.open(QIODevice::ReadOnly);
    const painttheme::Reading reading = painttheme::read(input);
    QFETCH(QString, line3);
    QFETCH(QString, line4);
    QCOMPARE(painttheme::line(reading.theme, 3), line3);
    QCOMPARE(painttheme::line(reading.theme, 4), line4);
    QCOMPARE(painttheme::line(reading.theme, painttheme::lineCount), QString());
    QTEST(reading.notPaintTheme, "notPaintTheme");
    QTEST(reading.notEnglish, "notEnglish");
    // However big the file, no more than the lines that can matter is looked at.
    QVERIFY(input.pos() <= qint64(painttheme::lineCount) * (painttheme::longestLine + 2));
}

void tst_PaintTheme::aPaintedKeyboardComesBackAsItWas()
{
    const QString painted = dir->filePath("Rainbow.txt");
    QVERIFY(painttheme::save(paintedTheme("red"), painted));
    open(painted);
    QCOMPARE(questions.last().caption, QString("Open Paint Theme"));
    QCOMPARE(questions.last().path, QString("."));
    QCOMPARE(questions.last().filter, QString("Text Files (*.txt)"));

    // Each key shows its own slots, control keys by their paint numbers.
    const painttheme::Theme theme = paintedTheme("red");
    const QString radius = "border-radius: 10px;";
    QCOMPARE(game->style("bg1"), radius + theme.bgStyle[0] + theme.borderStyle[0]);
    QCOMPARE(game->style("bgBackSpace"), radius + theme.bgStyle[47] + theme.borderStyle[47]);
    QCOMPARE(game->style("bgSpacebar"), radius + theme.bgStyle[53] + theme.borderStyle[53]);
    QCOMPARE(game->style("labelTab"), theme.englishColor[48] + theme.englishFontStyle);
    QCOMPARE(game->style("r55_2"), theme.charColor[54] + theme.upperFontStyle);
    QCOMPARE(game->style("r22bg"), radius + theme.bgStyle[0]);
    QCOMPARE(game->style("underscore_left"), theme.underscoreLeftColor + theme.englishFontStyle);
    QCOMPARE(game->style("aKeysMap5"), radius + theme.bgStyle[25] + theme.borderStyle[25]);
    QCOMPARE(game->text("paintTheme"), QString("Rainbow"));
    QVERIFY(!game->label("paintTheme")->isHidden());
    QVERIFY(!game->label("paintTheme_2")->isHidden());
    QVERIFY(game->label("paintTheme_3")->isHidden());

    const QStringList opened = keyboardLooks();
    // A key returning to rest keeps its paint, the flags being on; the lower row is not.
    game->type(22);
    QCOMPARE(game->style("bg1"), radius + theme.bgStyle[0] + theme.borderStyle[0]);
    QCOMPARE(game->style("r22_2"), QString("color: orange;"));

    // Saved, changed by another theme, opened back: the same keyboard, the same file.
    const QString saved = dir->filePath("Saved.txt");
    save(saved);
    QCOMPARE(questions.last().caption, QString("Save Paint"));
    QCOMPARE(questions.last().path, QString("./Paint Theme.txt"));
    QStringList savedLines = fileLines(saved);
    QStringList paintedLines = fileLines(painted);
    QCOMPARE(savedLines.size(), painttheme::lineCount + 1);
    // The font boxes say what the system has of the families.
    for (QStringList *lines : {&savedLines, &paintedLines})
        lines->erase(lines->end() - 3, lines->end() - 1);
    QCOMPARE(savedLines, paintedLines);

    const QString other = dir->filePath("Other.txt");
    QVERIFY(painttheme::save(paintedTheme("blue"), other));
    open(other);
    QVERIFY(keyboardLooks() != opened);
    open(saved);
    QCOMPARE(keyboardLooks(), opened);
    QCOMPARE(game->text("paintTheme"), QString("Saved"));
}

void tst_PaintTheme::savingAtStartStoresTheGeneralColours()
{
    const QString path = dir->filePath("Start.txt");
    save(path);
    const QStringList lines = fileLines(path);
    QCOMPARE(lines.size(), painttheme::lineCount + 1);
    QCOMPARE(lines.mid(0, 2), QStringList({"1", "1"}));
    // Nothing painted yet: every slot holds the general piece of its layer, every flag is off.
    for (int n = 1; n <= 94; ++n)
        QCOMPARE(lines[n + 1], QString("color: white;"));
    for (int K = 1; K <= 54; ++K) {
        QCOMPARE(lines[95 + K], QString("color: white;"));
        QVERIFY(lines[149 + K].startsWith("background-color: qlineargradient"));
        QCOMPARE(lines[204 + K - 1], lines[204]);
    }
    QCOMPARE(lines.mid(258, 5), QStringList({"0", "0", "0", "0", "0"}));
    QCOMPARE(lines[266], QString("0")); // the rainbow's top colour not chosen yet
    QVERIFY(game->label("paintTheme")->isHidden());

    // Cancel writes nothing.
    QVERIFY(QFile::remove(path));
    save(QString());
    QVERIFY(!QFile::exists(path));
}

void tst_PaintTheme::wrongFilesWarnAndAreAppliedAllTheSame_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("warning");
    // clang-format off
    QTest::newRow("keyboard theme") << QByteArray("0\n1\n") + QByteArray(124, '\n')
        << "This is not a Paint theme";
    QTest::newRow("other language") << QByteArray("1\n0\n") << "This is not an English Theme.";
    QTest::newRow("neither") << QByteArray("x\ny\n") << "This is not an English Theme.";
    // clang-format on
}

void tst_PaintTheme::wrongFilesWarnAndAreAppliedAllTheSame()
{
    QFETCH(QByteArray, bytes);
    const QString path = dir->filePath("Wrong.txt");
    writeBytes(path, bytes);
    open(path);
    QTEST(game->text("paintTheme_3"), "warning");
    QVERIFY(!game->label("paintTheme_3")->isHidden());
    // Applied: the lines behind the file's end are empty, so the faces lose their colour.
    QCOMPARE(game->style("bg5"), QString("border-radius: 10px;"));

    // The next good file takes the warning away.
    const QString good = dir->filePath("Good.txt");
    QVERIFY(painttheme::save(paintedTheme("red"), good));
    open(good);
    QVERIFY(game->label("paintTheme_3")->isHidden());
}

void tst_PaintTheme::cancelledOrUnreadableOpenReadsNothing()
{
    const QString good = dir->filePath("First.txt");
    QVERIFY(painttheme::save(paintedTheme("red"), good));
    open(good);
    const QStringList looks = keyboardLooks();

    open(QString());
    QCOMPARE(game->text("paintTheme"), QString("First"));
    QCOMPARE(keyboardLooks(), looks);

    open(dir->filePath("Missing.txt"));
    QCOMPARE(game->text("paintTheme"), QString("Missing"));
    QCOMPARE(keyboardLooks(), looks);
}

void tst_PaintTheme::badFilesOpenWithoutHarm_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("empty") << "empty";
    QTest::newRow("binary") << "binary";
    QTest::newRow("200 MB") << "huge";
    QTest::newRow("folder") << "folder";
    QTest::newRow("pipe") << "pipe";
}

void tst_PaintTheme::badFilesOpenWithoutHarm()
{
    QFETCH(QString, kind);
    const QString path = dir->filePath("Bad.txt");
    makeStrangeFile(path, kind);
    open(path);
    QCOMPARE(game->text("paintTheme"), QString("Bad"));
    // The panel still works: the next good file paints the keyboard.
    const QString good = dir->filePath("Good.txt");
    QVERIFY(painttheme::save(paintedTheme("red"), good));
    open(good);
    QCOMPARE(game->style("r26_3"), paintedTheme("red").englishColor[25] + "font-family: Calibri;");
}

void tst_PaintTheme::aFailedSaveLeavesTheOldFile()
{
    const QString path = dir->filePath("Kept.txt");
    writeBytes(path, "the old theme\n");
    onFullDisk([this, path] { save(path); });
    QCOMPARE(fileLines(path), QStringList({"the old theme", ""}));
    QCOMPARE(QDir(dir->path()).entryList(QDir::Files), QStringList({"Kept.txt"}));

    save(path);
    QCOMPARE(fileLines(path).size(), painttheme::lineCount + 1);
}

void tst_PaintTheme::openingAPaintThemeTakesOverFromTheKeyboardTheme()
{
    auto *keyboardName = game->label("keyboardTheme");
    keyboardName->setText("Keys");
    keyboardName->show();
    const QString path = dir->filePath("Painted.txt");
    QVERIFY(painttheme::save(paintedTheme("red"), path));
    open(path);
    QVERIFY(keyboardName->isHidden());
    QVERIFY(keyboardName->text().isEmpty());
    QCOMPARE(game->text("paintTheme"), QString("Painted"));
}

QTEST_MAIN(tst_PaintTheme)
#include "tst_painttheme.moc"
