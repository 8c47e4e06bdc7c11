#include "lexoria/lexoria.h"
#include "paneldriver.h"

#include <QFontComboBox>
#include <QSlider>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QString defaultKeysBg = verticalGradient("black", ".5", "black");

QList<QByteArray> linesOf(const QByteArray &bytes)
{
    QList<QByteArray> lines = bytes.split('\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

class tst_KeyboardTheme : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init()
    {
        makeWindow(Start::Shown);
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(dir->isValid());
        // Nothing of this test may ever reach a real dialog.
        window->setFileAsker([](const lexoria::FileQuestion &) -> QStringList {
            qFatal("a file dialog was opened");
        });
    }
    void cleanup()
    {
        closeWindow();
        dir.reset();
    }

    void savedDefaultTheme();
    void openingAppliesEveryLineAndSavesItBack();
    void changedGradientComesBack();
    void cancelledDialogsChangeNothing();
    void failures_data();
    void failures();
    void anyFileOpensSafely_data();
    void anyFileOpensSafely();
    void failedSaveKeepsTheOldFile();

private:
    QString save(const QString &name)
    {
        const QString path = name.isEmpty() ? QString() : dir->filePath(name);
        window->setFileAsker([this, path](const lexoria::FileQuestion &question) {
            asked = QStringList {question.caption, question.path, question.filter};
            return QStringList {path};
        });
        game->click(QStringLiteral("saveKeyboard"));
        return path;
    }
    void open(const QString &path)
    {
        window->setFileAsker([this, path](const lexoria::FileQuestion &question) {
            asked = QStringList {question.caption, question.path, question.filter};
            return QStringList {path};
        });
        game->click(QStringLiteral("openKeyboard"));
    }
    // The default theme with some lines replaced, written where the test can open it.
    QString editedTheme(const QString &name, const QMap<int, QByteArray> &changes)
    {
        QList<QByteArray> lines = linesOf(fileBytes(save(QStringLiteral("default.txt"))));
        for (auto change = changes.cbegin(); change != changes.cend(); ++change)
            lines[change.key() - 1] = change.value();
        const QString path = dir->filePath(name);
        writeBytes(path, lines.join('\n') + '\n');
        return path;
    }

    std::unique_ptr<QTemporaryDir> dir;
    QStringList asked;
};

void tst_KeyboardTheme::savedDefaultTheme()
{
    const QList<QByteArray> lines = linesOf(fileBytes(save(QStringLiteral("saved.txt"))));
    QCOMPARE(asked, QStringList({"Save Keyboard", "./Keyboard Theme.txt", "Text Files (*.txt)"}));
    QCOMPARE(lines.size(), 126);
    const std::pair<int, QString> pinned[] = {{4, "black"}, {102, "rgb(115, 115, 115)"}, {33, ".5"},
        {42, defaultKeysBg}, {51, "color: white;"},
        {62, "border-style:none; border-width:0px;  border-color: transparent;"}, {67, "1"},
        {78, "5"}, {110, "white"}, {126, "color: black;"},
        {124, window->findChild<QFontComboBox *>("fontComboBoxEnglish")->currentText()}};
    for (const auto &[line, text] : pinned)
        QCOMPARE(QString::fromUtf8(lines[line - 1]), text);
}

void tst_KeyboardTheme::openingAppliesEveryLineAndSavesItBack()
{
    const QByteArray redKeys = "background-color: qlineargradient(spread:pad, x1:0, y1:0, x2:0, "
                               "y2:1, stop:0 rgba(200, 0, 0, 255), stop:.3 red, stop:1 red);";
    const QByteArray border = "border-style: solid; border-width: 3px; border-color: green;";
    const QString path = editedTheme(QStringLiteral("Red Keys.txt"),
        {{3, "rgba(200, 0, 0, 255)"}, {4, "red"}, {33, ".3"}, {42, redKeys}, {47, "3"},
            {51, "color: yellow;"}, {52, "color: pink;"}, {53, "color: cyan;"}, {61, border},
            {66, "background-color: navy;"}, {122, "font-family: Arial;"},
            {123, "font-family: Courier;"}, {109, "spare text"}, {119, "color: orange;"}, {72, "9"},
            {76, "x"}});
    open(path);
    QCOMPARE(asked, QStringList({"Open Keyboard Theme", ".", "Text Files (*.txt)"}));

    QCOMPARE(label("keyboardTheme")->text(), QString("Red Keys"));
    QVERIFY(!label("keyboardTheme")->isHidden());
    QVERIFY(!label("keyboardTheme_2")->isHidden());
    QVERIFY(label("keyboardTheme_3")->isHidden());

    const QString face = "border-radius: 10px;" + redKeys + border;
    QCOMPARE(game->style("bg1"), face);
    QCOMPARE(game->style("bgSpacebar"), face);
    QCOMPARE(game->style("r1bg"), "border-radius: 10px;" + redKeys);
    QCOMPARE(game->style("r1_3"), QString("color: yellow;font-family: Arial;"));
    QCOMPARE(game->style("r34_2"), QString("color: cyan;font-family: Courier;"));
    QCOMPARE(game->style("r1_2"), QString("color: pink;"));
    QCOMPARE(game->style("underscore_left"), QString("color: yellow;font-family: Arial;"));
    QCOMPARE(game->style("wallpaper"), QString("background-color: navy;"));
    QCOMPARE(game->style("aKeysMap5"), face);

    // A key pressed and released again comes back in the theme's look.
    const QString keyOfA = QStringLiteral("bg%1").arg(keycatalogue::keyOfLetter(1));
    game->type(1);
    QTRY_COMPARE(game->style(keyOfA), face);

    // Saved again, it is the same file, but for the shape and position texts the program does
    // not know: those left the ints as they were.
    QList<QByteArray> expected = linesOf(fileBytes(path));
    expected[71] = "1";
    expected[75] = "5";
    QCOMPARE(linesOf(fileBytes(save(QStringLiteral("again.txt")))), expected);
}

void tst_KeyboardTheme::changedGradientComesBack()
{
    const QString defaults = save(QStringLiteral("default.txt"));
    const QString defaultFace = game->style("bg1");
    auto *shape = window->findChild<QSlider *>("hoSlider1");
    auto *stop = window->findChild<QSlider *>("slider1");
    shape->setValue(3);
    stop->setValue(7);
    const QString face = game->style("bg1");
    const QString cell = game->style("r5bg");
    QVERIFY(face != defaultFace);
    const QString mine = save(QStringLiteral("mine.txt"));

    open(defaults);
    QCOMPARE(shape->value(), 1);
    QCOMPARE(stop->value(), 5);
    QCOMPARE(game->style("bg1"), defaultFace);

    open(mine);
    QCOMPARE(shape->value(), 3);
    QCOMPARE(stop->value(), 7);
    QCOMPARE(game->style("bg1"), face);
    QCOMPARE(game->style("bgTab"), face);
    QCOMPARE(game->style("r5bg"), cell);
    QCOMPARE(fileBytes(save(QStringLiteral("again.txt"))), fileBytes(mine));
}

void tst_KeyboardTheme::cancelledDialogsChangeNothing()
{
    const QString themePath = editedTheme(QStringLiteral("First.txt"), {{42, "color: red;"}});
    open(themePath);
    const QString face = game->style("bg1");
    const QStringList before = QDir(dir->path()).entryList(QDir::Files);

    save(QString());
    QCOMPARE(QDir(dir->path()).entryList(QDir::Files), before);
    QCOMPARE(QDir::current().entryList({"*.txt"}, QDir::Files), QStringList());

    label("keyboardTheme")->setText("something else");
    open(QString());
    QCOMPARE(label("keyboardTheme")->text(), QString("First"));
    QVERIFY(label("keyboardTheme_3")->isHidden());
    QCOMPARE(game->style("bg1"), face);
}

void tst_KeyboardTheme::failures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shownName");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<QString>("keyFace");

    const QString untouched = "border-radius: 10px;" + defaultKeysBg;
    const QByteArray red = "color: red;";
    QByteArray paint = "1\n1\n";
    for (int line = 3; line <= 126; ++line)
        paint += (line == 42 ? red : QByteArray("0")) + '\n';

    QTest::newRow("file cannot be opened") << "missing.txt" << QByteArray() << "missing"
                                           << "" << untouched;
    QTest::newRow("a paint theme: warned and applied") << "Painted.txt" << paint << "Painted"
                                                       << "This is not a Keyboard theme"
                                                       << "border-radius: 10px;color: red;0";
    QTest::newRow("second marker wrong") << "lang.txt" << QByteArray("0\n2\n") << "lang"
                                         << "This is not an English Theme."
                                         << "border-radius: 10px;";
    QTest::newRow("both wrong: the second text stands")
        << "both.txt" << QByteArray("x\ny\nz\n") << "both"
        << "This is not an English Theme."
        << "border-radius: 10px;";
    QTest::newRow("short file: empty pieces") << "short.txt" << QByteArray("0\n1\nred\n") << "short"
                                              << ""
                                              << "border-radius: 10px;";
    QTest::newRow("name without .txt loses four characters all the same")
        << "My theme" << QByteArray("0\n1\n") << "My t"
        << ""
        << "border-radius: 10px;";
}

void tst_KeyboardTheme::failures()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, shownName);
    QFETCH(QString, warning);
    QFETCH(QString, keyFace);
    const QString path = dir->filePath(name);
    if (!bytes.isEmpty())
        writeBytes(path, bytes);
    open(path);
    QCOMPARE(label("keyboardTheme")->text(), shownName);
    QCOMPARE(label("keyboardTheme_3")->isHidden(), warning.isEmpty());
    if (!warning.isEmpty())
        QCOMPARE(label("keyboardTheme_3")->text(), warning);
    QCOMPARE(game->style("bg1"), keyFace);
    // Whatever was read, what is saved next carries the program's own markers.
    const QList<QByteArray> saved = linesOf(fileBytes(save(QStringLiteral("saved.txt"))));
    QCOMPARE(saved.size(), 126);
    QCOMPARE(saved[0] + saved[1], QByteArray("01"));
}

void tst_KeyboardTheme::anyFileOpensSafely_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("empty") << "empty";
    QTest::newRow("binary") << "binary";
    QTest::newRow("200 MB without line breaks") << "huge";
    QTest::newRow("a pipe nobody writes to") << "pipe";
    QTest::newRow("a folder") << "folder";
}

void tst_KeyboardTheme::anyFileOpensSafely()
{
    QFETCH(QString, kind);
    const QString path = dir->filePath(kind + ".txt");
    makeStrangeFile(path, kind);
    QElapsedTimer clock;
    clock.start();
    open(path);
    qInfo("opened in %lld ms", clock.elapsed());
    QCOMPARE(label("keyboardTheme")->text(), kind);

    // The window still plays.
    game->type(1);
    QVERIFY(window->isVisible());
    QCOMPARE(window->findChild<QLineEdit *>("leUser")->text(), QString());
}

void tst_KeyboardTheme::failedSaveKeepsTheOldFile()
{
    const QString path = dir->filePath("theme.txt");
    writeBytes(path, "the old theme\n");

    onFullDisk([this] { save("theme.txt"); });

    QCOMPARE(fileBytes(path), QByteArray("the old theme\n"));
    QCOMPARE(QDir(dir->path()).entryList(QDir::Files), QStringList {"theme.txt"});
    QVERIFY(label("keyboardTheme_3")->isHidden());

    save("theme.txt");
    QCOMPARE(linesOf(fileBytes(path)).size(), 126);
}

QTEST_MAIN(tst_KeyboardTheme)
#include "tst_keyboardtheme.moc"
