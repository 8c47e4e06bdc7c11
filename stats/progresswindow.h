#ifndef STATS_PROGRESSWINDOW_H
#define STATS_PROGRESSWINDOW_H

#include "stats/queries.h"

#include <QWidget>

class QButtonGroup;
class QLabel;
class QPushButton;
class QTableWidget;

namespace QtCharts {
class QChartView;
}

namespace stats {

class MissMap;
class Recorder;

// "Your progress": where the numbers of all recorded games live.
class ProgressWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ProgressWindow(Recorder *recorder, QWidget *parent = nullptr);

    // Writes what is pending, then reads the history again for the chosen period.
    void refresh();
    Period period() const;
    const Summary &summary() const { return shown; }

private:
    void forgetHistory();
    void fillLists();
    void fillChart();

    Recorder *recorder;
    Summary shown;
    QButtonGroup *periods;
    QLabel *note;
    MissMap *missMap;
    QTableWidget *slowest;
    QTableWidget *confused;
    QtCharts::QChartView *chartView;
    QPushButton *forget;
};

} // namespace stats

#endif
