#include "stats/progresswindow.h"

#include "lexoria/keycatalogue.h"
#include "stats/missmap.h"
#include "stats/recorder.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QtCharts/QChart>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

using namespace QtCharts;

namespace stats {

namespace {

struct PeriodChoice
{
    Period period;
    const char *name;
    const char *text;
};

constexpr PeriodChoice periodChoices[] = {
    {Period::LastGame, "periodLastGame", "Last game"},
    {Period::LastWeek, "periodLastWeek", "Last 7 days"},
    {Period::AllTime, "periodAllTime", "All time"},
};

QTableWidget *makeList(const char *name, const QStringList &headers, QWidget *parent)
{
    auto *list = new QTableWidget(0, headers.size(), parent);
    list->setObjectName(QLatin1String(name));
    list->setHorizontalHeaderLabels(headers);
    list->verticalHeader()->hide();
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setFocusPolicy(Qt::NoFocus);
    list->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    list->verticalHeader()->setDefaultSectionSize(24);
    return list;
}

// The first letterColumns cells are Russian letters, the point of the list: drawn larger.
void setRow(QTableWidget *list, int row, const QStringList &cells, int letterColumns)
{
    QFont letterFont = list->font();
    letterFont.setPointSizeF(letterFont.pointSizeF() * 1.6);
    for (int column = 0; column < cells.size(); ++column) {
        auto *item = new QTableWidgetItem(cells[column]);
        item->setTextAlignment(Qt::AlignCenter);
        if (column < letterColumns)
            item->setFont(letterFont);
        list->setItem(row, column, item);
    }
}

QString letter(int n)
{
    return keycatalogue::letterText(n);
}

} // namespace

ProgressWindow::ProgressWindow(Recorder *recorder, QWidget *parent)
    : QWidget(parent, Qt::Window)
    , recorder(recorder)
    , periods(new QButtonGroup(this))
    , note(new QLabel(this))
    , missMap(new MissMap(this))
    , slowest(makeList("slowestLetters", {tr("Letter"), tr("Mean time to find")}, this))
    , confused(makeList("confusedPairs", {tr("Asked"), tr("Typed"), tr("Times")}, this))
    , chartView(new QChartView(this))
    , forget(new QPushButton(tr("Forget my history"), this))
{
    setObjectName(QStringLiteral("progressWindow"));
    setWindowTitle(tr("Your progress"));
    // A child window inherits the main window's sheet, whose label rules are made for its
    // dark keys and bar; here labels read like the rest of this window, in the program's font.
    const QFont plain = QApplication::font();
    setStyleSheet(QStringLiteral("QLabel { font-family: \"%1\"; font-size: %2pt; color: black; "
                                 "background: transparent; border: none; }")
                      .arg(plain.family())
                      .arg(plain.pointSizeF()));

    auto *periodRow = new QHBoxLayout;
    periodRow->addWidget(new QLabel(tr("Keys missed over:"), this));
    for (const PeriodChoice &choice : periodChoices) {
        auto *radio = new QRadioButton(tr(choice.text), this);
        radio->setObjectName(QLatin1String(choice.name));
        periods->addButton(radio, int(choice.period));
    }
    periods->button(int(Period::AllTime))->setChecked(true);
    for (QAbstractButton *radio : periods->buttons())
        periodRow->addWidget(radio);
    periodRow->addStretch();
    connect(periods, &QButtonGroup::idClicked, this, &ProgressWindow::refresh);

    note->setObjectName(QStringLiteral("progressNote"));
    note->setWordWrap(true);

    auto *lists = new QHBoxLayout;
    auto *slowColumn = new QVBoxLayout;
    slowColumn->addWidget(new QLabel(tr("Slowest to find"), this));
    slowColumn->addWidget(slowest);
    auto *confusedColumn = new QVBoxLayout;
    confusedColumn->addWidget(new QLabel(tr("Most confused"), this));
    confusedColumn->addWidget(confused);
    lists->addLayout(slowColumn);
    lists->addLayout(confusedColumn);

    chartView->setObjectName(QStringLiteral("progressChart"));
    chartView->setRenderHint(QPainter::Antialiasing);
    chartView->setMinimumHeight(230);

    forget->setObjectName(QStringLiteral("forgetHistory"));
    connect(forget, &QPushButton::clicked, this, &ProgressWindow::forgetHistory);
    auto *bottomRow = new QHBoxLayout;
    bottomRow->addWidget(note, 1);
    bottomRow->addWidget(forget);

    auto *left = new QVBoxLayout;
    left->addLayout(periodRow);
    left->addWidget(missMap);
    auto *legend = new QLabel(tr("Green: never missed, through orange to red: a third or more "
                                 "missed; grey: not asked. Under the letters: mean time to find."),
        this);
    legend->setWordWrap(true);
    left->addWidget(legend);
    left->addLayout(lists, 1);
    auto *columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addWidget(chartView, 1);
    auto *page = new QVBoxLayout(this);
    page->addLayout(columns, 1);
    page->addLayout(bottomRow);
    resize(1180, 640);
}

Period ProgressWindow::period() const
{
    return Period(periods->checkedId());
}

void ProgressWindow::refresh()
{
    recorder->flush();
    shown = summarize(recorder->database(), period(), QDateTime::currentMSecsSinceEpoch());
    missMap->setFigures(keyFigures(shown.letters));
    fillLists();
    fillChart();
    forget->setEnabled(!recorder->isOff() && !shown.games.isEmpty());
    if (recorder->isOff())
        note->setText(tr("Statistics are off for this run: %1.").arg(recorder->offReason()));
    else if (shown.games.isEmpty())
        note->setText(tr("No games recorded yet. Play a game and come back to see where you "
                         "stand."));
    else
        note->setText(
            tr("%n game(s) recorded; %1 entries in this view.", nullptr, shown.games.size())
                .arg(shown.entries));
}

void ProgressWindow::fillLists()
{
    const QVector<LetterFigure> slow = slowestLetters(shown.letters);
    slowest->setRowCount(slow.size());
    for (int row = 0; row < slow.size(); ++row)
        setRow(slowest, row,
            {letter(slow[row].letter), tr("%1 s").arg(slow[row].meanFindMs / 1000.0, 0, 'f', 2)},
            1);
    confused->setRowCount(shown.confused.size());
    for (int row = 0; row < shown.confused.size(); ++row) {
        const ConfusedPair &pair = shown.confused[row];
        setRow(confused, row, {letter(pair.asked), letter(pair.typed), QString::number(pair.count)},
            2);
    }
}

void ProgressWindow::fillChart()
{
    auto *chart = new QChart;
    chart->setTitle(tr("Accuracy and letters per minute, game by game"));
    auto *accuracy = new QLineSeries(chart);
    accuracy->setName(tr("Accuracy %"));
    auto *speed = new QLineSeries(chart);
    speed->setName(tr("Letters per minute"));
    double fastest = 10;
    for (int i = 0; i < shown.games.size(); ++i) {
        accuracy->append(i + 1, shown.games[i].accuracy());
        speed->append(i + 1, shown.games[i].lettersPerMinute());
        fastest = qMax(fastest, shown.games[i].lettersPerMinute());
    }
    // Many thousands of points would make the chart crawl; a marker per game only while few.
    accuracy->setPointsVisible(shown.games.size() <= 60);
    speed->setPointsVisible(shown.games.size() <= 60);
    chart->addSeries(accuracy);
    chart->addSeries(speed);

    auto *games = new QValueAxis(chart);
    games->setTitleText(tr("Game"));
    games->setLabelFormat(QStringLiteral("%d"));
    games->setRange(1, qMax(2, int(shown.games.size())));
    games->setTickCount(qMin(11, qMax(2, int(shown.games.size()))));
    auto *percent = new QValueAxis(chart);
    percent->setTitleText(tr("Accuracy %"));
    percent->setRange(0, 100);
    percent->setLabelFormat(QStringLiteral("%d"));
    auto *perMinute = new QValueAxis(chart);
    perMinute->setTitleText(tr("Letters per minute"));
    perMinute->setRange(0, fastest * 1.1);
    perMinute->setLabelFormat(QStringLiteral("%d"));
    chart->addAxis(games, Qt::AlignBottom);
    chart->addAxis(percent, Qt::AlignLeft);
    chart->addAxis(perMinute, Qt::AlignRight);
    accuracy->attachAxis(games);
    accuracy->attachAxis(percent);
    speed->attachAxis(games);
    speed->attachAxis(perMinute);
    chart->legend()->setAlignment(Qt::AlignBottom);

    QChart *old = chartView->chart();
    chartView->setChart(chart);
    // The view owns the chart it shows, but not the one it was given before.
    delete old;
}

void ProgressWindow::forgetHistory()
{
    QMessageBox ask(QMessageBox::Question, tr("Forget my history"),
        tr("Forget every recorded game? This cannot be undone."), QMessageBox::NoButton, this);
    ask.setObjectName(QStringLiteral("forgetConfirmation"));
    QPushButton *yes = ask.addButton(tr("Forget"), QMessageBox::DestructiveRole);
    yes->setObjectName(QStringLiteral("forgetConfirmed"));
    ask.addButton(QMessageBox::Cancel);
    ask.setDefaultButton(QMessageBox::Cancel);
    ask.exec();
    if (ask.clickedButton() != yes)
        return;
    recorder->forget();
    refresh();
}

} // namespace stats
