#include "stats/queries.h"

#include "lexoria/keycatalogue.h"

#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

namespace stats {

namespace {

QString periodFilter(Period period, qint64 now)
{
    switch (period) {
    case Period::LastGame:
        return QStringLiteral(" WHERE game = (SELECT MAX(game) FROM games)");
    case Period::LastWeek:
        return QStringLiteral(" WHERE played_at >= %1").arg(now - 7LL * 24 * 3600 * 1000);
    case Period::AllTime:
        break;
    }
    return QString();
}

} // namespace

Summary summarize(QSqlDatabase db, Period period, qint64 now)
{
    Summary summary;
    if (!db.isOpen())
        return summary;
    const QString where = periodFilter(period, now);
    QSqlQuery query(db);
    query.setForwardOnly(true);

    query.exec(QStringLiteral("SELECT asked, COUNT(*), SUM(1 - is_right), "
                              "AVG(CASE WHEN is_right THEN find_ms END) FROM entries")
        + where + QStringLiteral(" GROUP BY asked"));
    while (query.next()) {
        LetterFigure figure;
        figure.letter = query.value(0).toInt();
        figure.entries = query.value(1).toInt();
        figure.misses = query.value(2).toInt();
        figure.meanFindMs = query.value(3).toDouble();
        summary.entries += figure.entries;
        summary.letters.append(figure);
    }

    query.exec(QStringLiteral("SELECT asked, typed, COUNT(*) AS times FROM entries")
        + (where.isEmpty() ? QStringLiteral(" WHERE") : where + QStringLiteral(" AND"))
        + QStringLiteral(" is_right = 0 AND typed > 0 GROUP BY asked, typed "
                         "ORDER BY times DESC, asked, typed LIMIT 10"));
    while (query.next())
        summary.confused.append(
            {query.value(0).toInt(), query.value(1).toInt(), query.value(2).toInt()});

    query.exec(
        QStringLiteral("SELECT game, last_at, entries, right_entries FROM games ORDER BY game"));
    while (query.next()) {
        GameFigure figure;
        figure.game = query.value(0).toLongLong();
        figure.lastAt = query.value(1).toLongLong();
        figure.entries = query.value(2).toInt();
        figure.right = query.value(3).toInt();
        summary.games.append(figure);
    }
    return summary;
}

QVector<LetterFigure> slowestLetters(const QVector<LetterFigure> &letters, int count)
{
    QVector<LetterFigure> found;
    std::copy_if(letters.begin(), letters.end(), std::back_inserter(found),
        [](const LetterFigure &figure) { return figure.meanFindMs > 0; });
    std::stable_sort(found.begin(), found.end(),
        [](const LetterFigure &a, const LetterFigure &b) { return a.meanFindMs > b.meanFindMs; });
    if (found.size() > count)
        found.resize(count);
    return found;
}

QVector<KeyFigure> keyFigures(const QVector<LetterFigure> &letters)
{
    QVector<KeyFigure> keys(keycatalogue::characterKeyCount);
    QVector<double> findSums(keys.size());
    QVector<int> found(keys.size());
    for (int k = 1; k <= keys.size(); ++k)
        keys[k - 1].k = k;
    for (const LetterFigure &figure : letters) {
        if (figure.letter < 1 || figure.letter > keycatalogue::letterCount)
            continue;
        const int i = keycatalogue::keyOfLetter(figure.letter) - 1;
        if (i < 0 || i >= keys.size())
            continue;
        keys[i].entries += figure.entries;
        keys[i].misses += figure.misses;
        const int rights = figure.entries - figure.misses;
        findSums[i] += figure.meanFindMs * rights;
        found[i] += rights;
    }
    for (int i = 0; i < keys.size(); ++i)
        keys[i].meanFindMs = found[i] ? findSums[i] / found[i] : 0;
    return keys;
}

} // namespace stats
