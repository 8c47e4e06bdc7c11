#include "stats/recorder.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QVariant>

namespace stats {

namespace {

// Each game's totals are kept beside its entries, so that the chart of every game never has
// to walk the whole history; the letter index lets the per-letter figures read it in order.
const char *const schema[] = {
    "CREATE TABLE entries (id INTEGER PRIMARY KEY, game INTEGER NOT NULL, "
    "played_at INTEGER NOT NULL, asked INTEGER NOT NULL, typed INTEGER NOT NULL, "
    "is_right INTEGER NOT NULL, find_ms INTEGER NOT NULL, game_group INTEGER NOT NULL, "
    "direction INTEGER NOT NULL, strict INTEGER NOT NULL)",
    "CREATE INDEX entries_by_game ON entries (game)",
    "CREATE INDEX entries_by_time ON entries (played_at)",
    "CREATE INDEX entries_by_letter ON entries (asked, is_right, typed, find_ms)",
    "CREATE TABLE games (game INTEGER PRIMARY KEY, last_at INTEGER NOT NULL, "
    "entries INTEGER NOT NULL, right_entries INTEGER NOT NULL)",
};

QString errorText(const QSqlError &error)
{
    const QString text = error.databaseText().isEmpty() ? error.text() : error.databaseText();
    return text.trimmed();
}

} // namespace

Recorder::Recorder(QObject *parent)
    : QObject(parent)
    , path(defaultPath())
    , connectionName(QStringLiteral("vortic-statistics-%1").arg(quintptr(this), 0, 16))
{
    writeTimer.setSingleShot(true);
    writeTimer.setInterval(1500);
    connect(&writeTimer, &QTimer::timeout, this, &Recorder::flush);
}

Recorder::~Recorder()
{
    // Whoever listens may be half gone by now; a failure this late has nobody to tell.
    blockSignals(true);
    flush();
    close();
}

QString Recorder::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
        + QStringLiteral("/statistics.sqlite");
}

void Recorder::setDatabasePath(const QString &newPath)
{
    flush();
    close();
    path = newPath;
    off = false;
    reason.clear();
}

void Recorder::record(const Entry &entry)
{
    if (off)
        return;
    pending.push_back(entry);
    writeTimer.start();
}

void Recorder::close()
{
    if (!opened)
        return;
    opened = false;
    QSqlDatabase::database(connectionName, false).close();
    QSqlDatabase::removeDatabase(connectionName);
}

void Recorder::turnOff(const QString &why)
{
    // The connection stays until the recorder goes or is pointed elsewhere: a caller may
    // still hold a handle on it.
    pending.clear();
    writeTimer.stop();
    if (off)
        return;
    off = true;
    reason = why;
    emit turnedOff(why);
}

bool Recorder::prepare()
{
    if (off)
        return false;
    if (opened)
        return true;
    if (!QSqlDatabase::isDriverAvailable(QStringLiteral("QSQLITE"))) {
        turnOff(tr("the SQLite driver of Qt is not installed"));
        return false;
    }
    const QString folder = QFileInfo(path).absolutePath();
    if (!QDir().mkpath(folder)) {
        turnOff(tr("cannot make the folder %1").arg(QDir::toNativeSeparators(folder)));
        return false;
    }
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
        db.setDatabaseName(path);
        // Another copy of the program writing at the same moment is waited for briefly;
        // longer would freeze the game.
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=250"));
        opened = true;
        if (!db.open()) {
            turnOff(errorText(db.lastError()));
            return false;
        }
        QSqlQuery query(db);
        if (!query.exec(QStringLiteral("PRAGMA user_version")) || !query.next()) {
            turnOff(errorText(query.lastError()));
            return false;
        }
        const int version = query.value(0).toInt();
        if (version > schemaVersion) {
            turnOff(tr("the history was written by a newer version of the program"));
            return false;
        }
        if (version < schemaVersion) {
            // Version 0 is a new file; later versions will migrate from here step by step.
            db.transaction();
            for (const char *statement : schema) {
                if (!query.exec(QLatin1String(statement))) {
                    const QString why = errorText(query.lastError());
                    db.rollback();
                    turnOff(why);
                    return false;
                }
            }
            query.exec(QStringLiteral("PRAGMA user_version = %1").arg(schemaVersion));
            if (!db.commit()) {
                turnOff(errorText(db.lastError()));
                return false;
            }
        }
    }
    return true;
}

QSqlDatabase Recorder::database()
{
    if (!prepare())
        return QSqlDatabase();
    return QSqlDatabase::database(connectionName, false);
}

bool Recorder::flush()
{
    writeTimer.stop();
    if (pending.empty())
        return !off;
    if (!prepare())
        return false;
    QSqlDatabase db = QSqlDatabase::database(connectionName, false);
    if (!db.transaction()) {
        turnOff(errorText(db.lastError()));
        return false;
    }
    QSqlQuery insert(db);
    insert.prepare(QStringLiteral(
        "INSERT INTO entries (game, played_at, asked, typed, is_right, find_ms, game_group, "
        "direction, strict) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    for (const Entry &entry : pending) {
        insert.addBindValue(entry.game);
        insert.addBindValue(entry.playedAt);
        insert.addBindValue(entry.asked);
        insert.addBindValue(entry.typed);
        insert.addBindValue(entry.right ? 1 : 0);
        insert.addBindValue(entry.findMs);
        insert.addBindValue(entry.group);
        insert.addBindValue(entry.direction);
        insert.addBindValue(entry.strict ? 1 : 0);
        if (!insert.exec()) {
            const QString why = errorText(insert.lastError());
            insert.finish();
            db.rollback();
            turnOff(why);
            return false;
        }
    }
    insert.finish();
    QSqlQuery totals(db);
    totals.prepare(QStringLiteral(
        "INSERT INTO games (game, last_at, entries, right_entries) VALUES (?, ?, 1, ?) "
        "ON CONFLICT (game) DO UPDATE SET last_at = MAX(last_at, excluded.last_at), "
        "entries = entries + 1, right_entries = right_entries + excluded.right_entries"));
    for (const Entry &entry : pending) {
        totals.addBindValue(entry.game);
        totals.addBindValue(entry.playedAt);
        totals.addBindValue(entry.right ? 1 : 0);
        if (!totals.exec()) {
            const QString why = errorText(totals.lastError());
            totals.finish();
            db.rollback();
            turnOff(why);
            return false;
        }
    }
    totals.finish();
    if (!db.commit()) {
        const QString why = errorText(db.lastError());
        db.rollback();
        turnOff(why);
        return false;
    }
    pending.clear();
    return true;
}

bool Recorder::forget()
{
    pending.clear();
    writeTimer.stop();
    if (!prepare())
        return false;
    QSqlQuery query(database());
    if (!query.exec(QStringLiteral("DELETE FROM entries"))
        || !query.exec(QStringLiteral("DELETE FROM games"))) {
        turnOff(errorText(query.lastError()));
        return false;
    }
    // Give the space back too: the user asked for the history to be gone.
    query.exec(QStringLiteral("VACUUM"));
    return true;
}

} // namespace stats
