#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/gamecatalogue.h"
#include "lexoria/restyle.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <cstdlib>

namespace {

// Rejection sampling on the C library's generator, which nothing seeds: every run of the
// program plays the same sequence of letters. Gives up after modulus + 1 tries with -1.
int drawIndex(int modulus, int first, int last)
{
    for (int tries = 0; tries <= modulus; ++tries) {
        const int r = std::rand() % modulus;
        if (r >= first && r <= last)
            return r;
    }
    return -1;
}

} // namespace

// The first letter of a game is drawn with modulus 100000, all later ones with 900000.
bool lexoria::drawRandomLetter(int modulus)
{
    const gamecatalogue::GroupInfo &group = gamecatalogue::groups[currentGroup()];
    const int r = drawIndex(modulus, group.firstLetter - 1, group.lastLetter - 1);
    if (r < 0)
        return false;
    randomIndex = r;
    ui->leMatch->setText(letterList[r]);
    return true;
}

void lexoria::randomFlags()
{
    randomPulseFlags.fill(false);
}

// Letters come in no order and may repeat; nothing is marked finished, and the game runs
// until randomStopCount right entries.
void lexoria::randomMG()
{
    const QString match = ui->leMatch->text();
    if (gameRunning && letterList.value(randomIndex) == match) {
        noteEntry(match, ui->leUser->text() == match);
        if (ui->leUser->text() == match) {
            // Taken off while leMatch still names the letter they were put on.
            if (goldHighActive)
                goldHighOff();
            if (lineHighActive)
                lineHighOff();
            // The located key's effect, between the aids going off and the draw.
            keyLocated(true);
            drawRandomLetter(900000);
            if (goldHighActive)
                goldHighOn();
            if (lineHighActive)
                lineHighOn();
            set_Match_StyleSheet();
            ++correctCount;
            commentOn(randomIndex);
        } else {
            ++incorrectCount;
        }
    }
    if (correctCount == randomStopCount && gameRunning) {
        finishRandomGame();
    } else if (correctCount != randomStopCount) {
        QTimer::singleShot(entryClearMs, this, &lexoria::clearUser);
        ui->labelCorrect->setNum(correctCount);
        ui->labelIncorrect->setNum(incorrectCount);
    }
}

void lexoria::finishRandomGame()
{
    // The next letter has been drawn already and its lines are up; they go while leMatch
    // still names it, and the player then sees the letter just found.
    if (lineHighActive)
        lineHighOff();
    ui->leMatch->setText(ui->leUser->text());
    // The highlight ends here: restoring every key below must not put it back.
    goldHighActive = false;
    goldHighOff();
    allChangeColorBack();
    killChebTimer();
    gameCompleted = true;
    gameRunning = false;
    matchGameDisable();
    set_Match_StyleSheet_italic();
    QTimer::singleShot(2000, this, &lexoria::wouldYouLikeToPlayAgain);
    ui->labelCorrect->setNum(randomStopCount);
    stopCounter();
    const QString italicScore = QStringLiteral("background-color: transparent; font-style:italic;");
    restyle(ui->labelCorrect, italicScore);
    restyle(ui->labelIncorrect, italicScore);
}
