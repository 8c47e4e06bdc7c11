#ifndef STATS_RECORDER_H
#define STATS_RECORDER_H

#include "stats/entry.h"

#include <QObject>
#include <QSqlDatabase>
#include <QString>
#include <QTimer>

#include <vector>

namespace stats {

// Keeps every judged entry across runs in an SQLite file. A key press only appends to memory;
// the file is written in one transaction once the player pauses, or when asked. Whatever
// goes wrong with the file turns recording off for the rest of the run and says so once.
class Recorder : public QObject
{
    Q_OBJECT

public:
    static constexpr int schemaVersion = 1;

    explicit Recorder(QObject *parent = nullptr);
    ~Recorder() override;

    // The user's data folder, or the test folder while QStandardPaths' test mode is on.
    static QString defaultPath();
    // Where the history lives; switching writes what is pending to the old file first.
    void setDatabasePath(const QString &path);
    QString databasePath() const { return path; }
    // How long the player must pause before the pending entries are written.
    void setWriteDelay(int ms) { writeTimer.setInterval(ms); }

    void record(const Entry &entry);
    int pendingCount() const { return int(pending.size()); }
    bool flush();
    bool forget();

    // Opens the file and brings its schema up to date; false once recording is off.
    bool prepare();
    bool isOff() const { return off; }
    QString offReason() const { return reason; }
    // An open connection for the queries, invalid when recording is off.
    QSqlDatabase database();

signals:
    void turnedOff(const QString &reason);

private:
    void turnOff(const QString &why);
    void close();

    QString path;
    QString connectionName;
    std::vector<Entry> pending;
    QTimer writeTimer;
    bool opened = false;
    bool off = false;
    QString reason;
};

} // namespace stats

#endif
