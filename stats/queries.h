#ifndef STATS_QUERIES_H
#define STATS_QUERIES_H

#include <QSqlDatabase>
#include <QVector>

namespace stats {

enum class Period { LastGame, LastWeek, AllTime };

struct LetterFigure
{
    int letter = 0;
    int entries = 0;
    int misses = 0;
    double meanFindMs = 0; // over right entries; 0 when there were none
    double missRate() const { return entries ? double(misses) / entries : 0; }
};

struct KeyFigure
{
    int k = 0;
    int entries = 0;
    int misses = 0;
    double meanFindMs = 0;
    double missRate() const { return entries ? double(misses) / entries : 0; }
};

struct ConfusedPair
{
    int asked = 0;
    int typed = 0;
    int count = 0;
};

struct GameFigure
{
    qint64 game = 0;
    qint64 lastAt = 0;
    int entries = 0;
    int right = 0;
    double accuracy() const { return entries ? 100.0 * right / entries : 0; }
    // From Start to the last entry; a game of less than a second counts as one second.
    double lettersPerMinute() const { return right * 60000.0 / qMax<qint64>(1000, lastAt - game); }
};

struct Summary
{
    QVector<LetterFigure> letters; // by asked letter, only letters that were asked
    QVector<ConfusedPair> confused; // most frequent first, at most ten
    QVector<GameFigure> games; // every game, oldest first, whatever the period
    int entries = 0;
};

// One pass of queries over the history; now is ms since the epoch.
Summary summarize(QSqlDatabase db, Period period, qint64 now);

QVector<LetterFigure> slowestLetters(const QVector<LetterFigure> &letters, int count = 10);
// Letters gathered onto the 47 character keys, indexed by key number - 1.
QVector<KeyFigure> keyFigures(const QVector<LetterFigure> &letters);

} // namespace stats

#endif
