#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/gamecatalogue.h"
#include "lexoria/restyle.h"
#include "stats/progresswindow.h"
#include "stats/recorder.h"

#include <QDateTime>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

void lexoria::setUpStatistics()
{
    progress.recorder = new stats::Recorder(this);
    connect(progress.recorder, &stats::Recorder::turnedOff, this, &lexoria::statisticsTurnedOff);
    // Connected after the game's own slots, so the first letter is already on show.
    connect(ui->start, &QPushButton::clicked, this, &lexoria::gameStartedForStatistics);
    progress.button = ui->find<QPushButton>(QStringLiteral("yourProgress"));
    connect(progress.button, &QPushButton::clicked, this, &lexoria::showProgress);
}

void lexoria::gameStartedForStatistics()
{
    // Two games started within the same millisecond must still be two games.
    progress.gameStartedAt = qMax(QDateTime::currentMSecsSinceEpoch(), progress.gameStartedAt + 1);
    progress.group = currentGroup();
    progress.direction = ui->rbRandom_2->isChecked() ? gamecatalogue::Random
        : ui->rbReverse_2->isChecked()               ? gamecatalogue::Reverse
                                                     : gamecatalogue::Forward;
    progress.strict = ui->strict->isChecked();
    progress.letterShown.start();
    // The file is opened now rather than at the first pause, so that a broken one is
    // reported while the player is still looking at the board.
    QTimer::singleShot(
        0, progress.recorder, [recorder = progress.recorder] { recorder->prepare(); });
}

// Called by the judges once for every entry they judge, before they act on it.
void lexoria::noteEntry(const QString &asked, bool right)
{
    stats::Entry entry;
    entry.game = progress.gameStartedAt;
    entry.playedAt = QDateTime::currentMSecsSinceEpoch();
    entry.asked = letterNumberOfText(asked);
    entry.typed = letterNumberOfText(ui->leUser->text());
    entry.right = right;
    entry.findMs = int(progress.letterShown.elapsed());
    entry.group = progress.group;
    entry.direction = progress.direction;
    entry.strict = progress.strict;
    progress.recorder->record(entry);
    if (right)
        progress.letterShown.restart();
}

void lexoria::statisticsTurnedOff(const QString &reason)
{
    progress.button->setText(tr("Statistics off"));
    progress.button->setToolTip(tr("Statistics are off for this run: %1").arg(reason));
    restyle(progress.button, QStringLiteral("color: #6e6e6e; font-style: italic;"));
}

void lexoria::showProgress()
{
    if (!progress.window)
        progress.window = new stats::ProgressWindow(progress.recorder, this);
    progress.window->refresh();
    progress.window->show();
    progress.window->raise();
    progress.window->activateWindow();
}
