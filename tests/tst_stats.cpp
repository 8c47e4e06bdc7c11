#include "paneldriver.h"
#include "stats/missmap.h"
#include "stats/progresswindow.h"
#include "stats/queries.h"
#include "stats/recorder.h"

#include <QMessageBox>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>

using namespace stats;

namespace {

constexpr qint64 day = 24 * 3600 * 1000;
constexpr qint64 now = 1800000000000;

int letterOf(const QString &text)
{
    for (int n = 1; n <= keycatalogue::letterCount; ++n) {
        if (keycatalogue::letterText(n) == text)
            return n;
    }
    return 0;
}

Entry entry(qint64 game, qint64 at, int asked, int typed, int findMs)
{
    return {game, at, asked, typed, asked == typed, findMs};
}

// What the file holds, read through a connection of its own.
QList<QVariantList> storedRows(const QString &path)
{
    QList<QVariantList> rows;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "reader");
        db.setDatabaseName(path);
        db.open();
        QSqlQuery query("SELECT game, asked, typed, is_right, find_ms, game_group, direction, "
                        "strict FROM entries ORDER BY id",
            db);
        while (query.next()) {
            QVariantList row;
            for (int i = 0; i < 8; ++i)
                row.append(query.value(i));
            rows.append(row);
        }
    }
    QSqlDatabase::removeDatabase("reader");
    return rows;
}

// Answers the confirmation that "Forget my history" asks, once it is up.
void answerConfirmation(bool forget)
{
    QTimer::singleShot(0, [forget] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        if (forget)
            box->findChild<QPushButton *>("forgetConfirmed")->click();
        else
            box->button(QMessageBox::Cancel)->click();
    });
}

} // namespace

class tst_Stats : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init()
    {
        dir = std::make_unique<QTemporaryDir>();
        makeWindow(Start::Built);
        window->statistics()->setDatabasePath(path());
        window->openLexoria();
    }
    void cleanup()
    {
        closeWindow();
        dir.reset();
    }

    void playedGameLeavesItsEntries_data();
    void playedGameLeavesItsEntries();
    void figuresFromKnownEntries();
    void periodsNarrowTheFigures();
    void windowWithEmptyAndFullHistory();
    void forgetAsksFirst();
    void brokenHistoryLeavesTheGamePlayable_data();
    void brokenHistoryLeavesTheGamePlayable();

private:
    void recordKnownGames();
    QString path() const { return dir->filePath("history.sqlite"); }

    std::unique_ptr<QTemporaryDir> dir;
};

// Games in the past: а found fast and never missed, б missed for ф twice and found slowly,
// в asked once and typed as а.
void tst_Stats::recordKnownGames()
{
    Recorder *recorder = window->statistics();
    const qint64 old = now - 30 * day;
    recorder->record(entry(old, old + 1000, 1, 1, 400));
    recorder->record(entry(old, old + 2000, 2, 22, 900));
    recorder->record(entry(old, old + 3000, 2, 2, 3000));
    const qint64 recent = now - day;
    recorder->record(entry(recent, recent + 1000, 1, 1, 600));
    recorder->record(entry(recent, recent + 2000, 2, 22, 700));
    QVERIFY(recorder->flush()); // a pause in the middle of a game
    recorder->record(entry(recent, recent + 4000, 2, 2, 2000));
    recorder->record(entry(recent, recent + 5000, 3, 1, 800));
    recorder->record(entry(recent, recent + 6000, 3, 3, 1000));
    QVERIFY(recorder->flush());
}

void tst_Stats::playedGameLeavesItsEntries_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("strict");
    QTest::addColumn<QString>("plays"); // r: the letter on show, w: a wrong one
    QTest::addColumn<int>("direction");

    QTest::newRow("forward Lowercase, Strict") << "pbForwardVarious" << true << "rrwrwwr" << 0;
    QTest::newRow("reverse Uppercase, Soft") << "pbReverseConsonants" << false << "rwr" << 1;
    QTest::newRow("random Number Line, Strict") << "pbRandomNumberLine" << true << "wrrwr" << 2;
}

void tst_Stats::playedGameLeavesItsEntries()
{
    QFETCH(QString, button);
    QFETCH(bool, strict);
    QFETCH(QString, plays);
    QFETCH(int, direction);

    if (strict)
        game->click("strict");
    game->startGame(button);
    QList<QPair<int, int>> expected;
    for (QChar play : plays) {
        QTRY_COMPARE(game->field("leUser")->text(), QString());
        const int asked = letterOf(game->field("leMatch")->text());
        // The key left of the one asked for, within the same group.
        const int typed = play == 'r' ? asked : (asked % 33 == 1 ? asked + 1 : asked - 1);
        game->type(typed);
        if (!strict)
            game->space();
        expected.append({asked, typed});
    }
    game->click("stop");
    // A key after Stop is judged by nobody and recorded by nobody.
    game->type(expected.first().first);
    game->space();
    QVERIFY(window->statistics()->flush());

    const QList<QVariantList> rows = storedRows(path());
    QCOMPARE(rows.size(), expected.size());
    for (int i = 0; i < rows.size(); ++i) {
        const QVariantList &row = rows[i];
        QCOMPARE(row[0], rows[0][0]); // one game
        QCOMPARE(row[1].toInt(), expected[i].first);
        QCOMPARE(row[2].toInt(), expected[i].second);
        QCOMPARE(row[3].toBool(), plays[i] == 'r');
        QVERIFY(row[4].toInt() >= 0);
        QCOMPARE(row[6].toInt(), direction);
        QCOMPARE(row[7].toBool(), strict);
    }
}

void tst_Stats::figuresFromKnownEntries()
{
    recordKnownGames();
    const Summary all = summarize(window->statistics()->database(), Period::AllTime, now);
    QCOMPARE(all.entries, 8);
    QCOMPARE(all.letters.size(), 3);
    const LetterFigure &b = all.letters[1];
    QCOMPARE(b.letter, 2);
    QCOMPARE(b.entries, 4);
    QCOMPARE(b.misses, 2);
    QCOMPARE(b.meanFindMs, 2500.0); // wrong entries are no find time
    QCOMPARE(all.letters[0].missRate(), 0.0);

    const QVector<LetterFigure> slow = slowestLetters(all.letters);
    QCOMPARE(slow.size(), 3);
    QCOMPARE(slow[0].letter, 2);
    QCOMPARE(slow[1].letter, 3);
    QCOMPARE(slow[2].letter, 1);

    QCOMPARE(all.confused.size(), 2);
    QCOMPARE(all.confused[0].asked, 2);
    QCOMPARE(all.confused[0].typed, 22);
    QCOMPARE(all.confused[0].count, 2);
    QCOMPARE(all.confused[1].asked, 3);
    QCOMPARE(all.confused[1].typed, 1);

    // б and Б share a key with nothing else asked; а is key F.
    const QVector<KeyFigure> keys = keyFigures(all.letters);
    const KeyFigure &comma = keys[keycatalogue::keyOfLetter(2) - 1];
    QCOMPARE(comma.entries, 4);
    QCOMPARE(comma.missRate(), 0.5);
    QCOMPARE(comma.meanFindMs, 2500.0);
    QVERIFY(MissMap::colourOf(comma).hue() < MissMap::colourOf(keys[5]).hue());
    QCOMPARE(keys[keycatalogue::keyOfLetter(1) - 1].meanFindMs, 500.0);
    QCOMPARE(keys[0].entries, 0);

    QCOMPARE(all.games.size(), 2);
    QCOMPARE(all.games[0].accuracy(), 200.0 / 3);
    QCOMPARE(all.games[1].accuracy(), 60.0);
    QCOMPARE(all.games[1].lettersPerMinute(), 3 * 60000.0 / 6000);
}

void tst_Stats::periodsNarrowTheFigures()
{
    recordKnownGames();
    QSqlDatabase db = window->statistics()->database();
    const Summary week = summarize(db, Period::LastWeek, now);
    QCOMPARE(week.entries, 5);
    QCOMPARE(week.confused.size(), 2);
    QCOMPARE(week.confused[0].count, 1);
    QCOMPARE(week.games.size(), 2); // the chart always shows every game

    const Summary last = summarize(db, Period::LastGame, now);
    QCOMPARE(last.entries, 5);
    QCOMPARE(summarize(db, Period::LastGame, now + 100 * day).entries, 5);
    QCOMPARE(summarize(db, Period::LastWeek, now + 100 * day).entries, 0);
}

void tst_Stats::windowWithEmptyAndFullHistory()
{
    game->click("yourProgress");
    auto *progress = window->findChild<ProgressWindow *>("progressWindow");
    QVERIFY(progress);
    QVERIFY(progress->isVisible());
    QVERIFY(progress->findChild<QLabel *>("progressNote")->text().startsWith("No games"));
    QCOMPARE(progress->findChild<QTableWidget *>("slowestLetters")->rowCount(), 0);
    QVERIFY(!progress->findChild<QPushButton *>("forgetHistory")->isEnabled());

    progress->close();
    recordKnownGames();
    game->click("yourProgress");
    QVERIFY(progress->isVisible());
    auto *confused = progress->findChild<QTableWidget *>("confusedPairs");
    QCOMPARE(confused->rowCount(), 2);
    QCOMPARE(confused->item(0, 0)->text(), QString("б"));
    QCOMPARE(confused->item(0, 1)->text(), QString("ф"));
    QCOMPARE(confused->item(0, 2)->text(), QString("2"));
    QCOMPARE(
        progress->findChild<QTableWidget *>("slowestLetters")->item(0, 0)->text(), QString("б"));
    const auto series
        = progress->findChild<QtCharts::QChartView *>("progressChart")->chart()->series();
    QCOMPARE(series.size(), 2);
    QCOMPARE(static_cast<QtCharts::QLineSeries *>(series[0])->count(), 2);
    QCOMPARE(progress->findChild<MissMap *>("missMap")->figures().size(), 47);

    // Choosing the last game narrows the map and the lists at once.
    progress->findChild<QRadioButton *>("periodLastGame")->click();
    QCOMPARE(progress->period(), Period::LastGame);
    QCOMPARE(confused->item(0, 2)->text(), QString("1"));
}

void tst_Stats::forgetAsksFirst()
{
    recordKnownGames();
    game->click("yourProgress");
    auto *progress = window->findChild<ProgressWindow *>("progressWindow");
    auto *forget = progress->findChild<QPushButton *>("forgetHistory");
    QVERIFY(forget->isEnabled());

    answerConfirmation(false);
    forget->click();
    QCOMPARE(storedRows(path()).size(), 8);

    answerConfirmation(true);
    forget->click();
    QCOMPARE(storedRows(path()).size(), 0);
    QCOMPARE(progress->findChild<QTableWidget *>("confusedPairs")->rowCount(), 0);
    QVERIFY(!forget->isEnabled());

    // Recording goes on into the emptied file.
    game->click("strict");
    game->startGame("pbForwardVarious");
    game->type(1);
    QVERIFY(window->statistics()->flush());
    QCOMPARE(storedRows(path()).size(), 1);
}

void tst_Stats::brokenHistoryLeavesTheGamePlayable_data()
{
    QTest::addColumn<QString>("damage");
    QTest::newRow("not a database") << "garbage";
    QTest::newRow("folder cannot be made") << "file in the way";
    QTest::newRow("written by a newer version") << "newer";
    QTest::newRow("locked by another program") << "locked";
}

void tst_Stats::brokenHistoryLeavesTheGamePlayable()
{
    QFETCH(QString, damage);
    QString file = path();
    if (damage == "garbage") {
        QFile junk(file);
        QVERIFY(junk.open(QIODevice::WriteOnly));
        junk.write(QByteArray(4096, 'x'));
    } else if (damage == "file in the way") {
        QFile blocker(dir->filePath("data"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        file = dir->filePath("data/history.sqlite");
    } else if (damage == "locked") {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "locker");
        db.setDatabaseName(file);
        QVERIFY(db.open());
        QVERIFY(QSqlQuery(db).exec("CREATE TABLE other (x)"));
        QVERIFY(QSqlQuery(db).exec("BEGIN EXCLUSIVE"));
    } else {
        {
            QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "newer");
            db.setDatabaseName(file);
            QVERIFY(db.open());
            QSqlQuery(db).exec("PRAGMA user_version = 99");
        }
        QSqlDatabase::removeDatabase("newer");
    }
    window->statistics()->setDatabasePath(file);
    window->statistics()->setWriteDelay(0);
    QSignalSpy turnedOff(window->statistics(), &Recorder::turnedOff);

    game->click("strict");
    game->startGame("pbForwardNumberLine");
    playAll(67, 94);
    QCOMPARE(game->text("labelCorrect"), QString("28"));
    QTRY_COMPARE_WITH_TIMEOUT(
        game->text("display2"), QString("Would you like\nto play again?"), 2500);
    game->click("start");
    game->type(67);
    QCOMPARE(game->text("labelCorrect"), QString("1"));

    QCOMPARE(turnedOff.count(), 1);
    QCOMPARE(game->button("yourProgress")->text(), QString("Statistics off"));
    QVERIFY(game->button("yourProgress")->toolTip().startsWith("Statistics are off for this run"));
    game->click("yourProgress");
    QVERIFY(window->findChild<QLabel *>("progressNote")->text().startsWith("Statistics are off"));
    if (damage == "garbage")
        QCOMPARE(QFile(file).size(), 4096); // the user's file is left as it was
    if (damage == "locked") {
        QSqlDatabase::database("locker").close();
        QSqlDatabase::removeDatabase("locker");
    }
}

QTEST_MAIN(tst_Stats)
#include "tst_stats.moc"
