#ifndef STATS_MISSMAP_H
#define STATS_MISSMAP_H

#include "stats/queries.h"

#include <QWidget>

namespace stats {

// The on-screen keyboard drawn small: each character key coloured by how often its letters
// were missed and marked with the mean time it took to find them.
class MissMap : public QWidget
{
    Q_OBJECT

public:
    explicit MissMap(QWidget *parent = nullptr);

    void setFigures(const QVector<KeyFigure> &figures);
    const QVector<KeyFigure> &figures() const { return keys; }
    QSize sizeHint() const override;

    // Green for none missed through to red for a third or more; grey for keys never asked.
    static QColor colourOf(const KeyFigure &figure);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QVector<KeyFigure> keys;
};

} // namespace stats

#endif
