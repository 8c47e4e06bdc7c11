#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/gamecatalogue.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>
#include <QTimerEvent>

using namespace gamecatalogue;
using keycatalogue::isUpperRow;

namespace {
const QString normalScore = QStringLiteral("background-color: transparent; font-style:normal;");
const QString italicScore = QStringLiteral("background-color: transparent; font-style:italic;");
const QString greyedOut = QStringLiteral("color: #6e6e6e;");
} // namespace

void lexoria::connectGameControls()
{
    connect(ui->start, &QPushButton::clicked, this, &lexoria::matchGameEnable);
    connect(ui->start, &QPushButton::clicked, this, &lexoria::matchGameChooser);
    connect(ui->stop, &QPushButton::clicked, this, &lexoria::matchGameDisable);
    connect(ui->soft, &QPushButton::clicked, this, &lexoria::changeDifficultySoft);
    connect(ui->strict, &QPushButton::clicked, this, &lexoria::changeDifficultyStrict);
    ui->soft->setChecked(true);
    ui->strict->setChecked(false);
    changeDifficultySoft();
    connect(ui->start, &QPushButton::clicked, this, &lexoria::startCounter);
    connect(ui->stop, &QPushButton::clicked, this, &lexoria::stopCounter);

    ui->labelCorrect->setAlignment(Qt::AlignCenter);
    ui->labelIncorrect->setAlignment(Qt::AlignCenter);
    restyle(ui->labelCorrect, normalScore);
    restyle(ui->labelIncorrect, normalScore);
}

int lexoria::currentGroup() const
{
    for (int group = Everything; group <= NumberLine; ++group) {
        if (ui->find<QRadioButton>(QLatin1String(groups[group].radio))->isChecked())
            return group;
    }
    return Everything;
}

int lexoria::letterNumberOfText(const QString &text) const
{
    return text.isEmpty() ? 0 : letterList.indexOf(text) + 1;
}

void lexoria::makeDirection(int direction)
{
    for (int each = Forward; each <= Random; ++each)
        ui->find<QRadioButton>(QLatin1String(directionRadios[each]))->setChecked(each == direction);
    ui->direction->setText(QLatin1String(directionWords[direction]));
}

void lexoria::gameIs(int group)
{
    gameLength = groups[group].gameLength;
    for (int each = Everything; each <= NumberLine; ++each)
        ui->find<QRadioButton>(QLatin1String(groups[each].radio))->setChecked(each == group);
    ui->type->setText(QLatin1String(groups[group].typeText));
}

void lexoria::selectGame(int index)
{
    const Game &game = games[index];
    makeDirection(game.direction);
    gameIs(game.group);
    ui->typeOfGame->setText(ui->table->item(game.captionRow, 0)->text());

    if (barAnimationOn) {
        // Every shot is set now; the shields keep the buttons away until the last one. Shots
        // of two seconds and more would be coarse by default and could swap neighbours.
        showShields();
        if (game.direction == Random) {
            const int step = randomBarStepMs;
            const Wave wave = game.randomWave;
            for (std::size_t i = 1; i <= wave.count; ++i) {
                const int n = wave.letters[i - 1];
                QTimer::singleShot(
                    int(i) * step, Qt::PreciseTimer, this, [this, n] { labelAnimate(n); });
                QTimer::singleShot(
                    int(i + 1) * step, Qt::PreciseTimer, this, [this, n] { changeColorBack(n); });
            }
            QTimer::singleShot(
                int(wave.count + 1) * step, Qt::PreciseTimer, this, &lexoria::hideShields);
        } else {
            const GroupInfo &group = groups[game.group];
            const int length = group.gameLength;
            const int step = barStepMs;
            for (int i = 1; i <= length; ++i) {
                const int n = game.direction == Forward ? group.firstLetter + i - 1
                                                        : group.lastLetter - i + 1;
                QTimer::singleShot(
                    i * step, Qt::PreciseTimer, this, [this, n] { labelAnimate(n); });
                QTimer::singleShot(
                    (length + i) * step, Qt::PreciseTimer, this, [this, n] { changeColorBack(n); });
            }
            QTimer::singleShot(
                (2 * length + 1) * step, Qt::PreciseTimer, this, &lexoria::hideShields);
        }
    }
}

void lexoria::labelAnimate(int n)
{
    restyle(
        barLabels[n - 1], QStringLiteral("background-color: black; color:blue;") + fontPiece(n));
}

void lexoria::showShields()
{
    for (QLabel *shield : {ui->shieldEverything, ui->shieldConsonants, ui->shieldVarious,
             ui->shieldNumberLine, ui->shieldStart})
        shield->show();
}

void lexoria::hideShields()
{
    for (QLabel *shield : {ui->shieldEverything, ui->shieldConsonants, ui->shieldVarious,
             ui->shieldNumberLine, ui->shieldStart})
        shield->hide();
}

void lexoria::animationOn_function()
{
    barAnimationOn = true;
    restyle(ui->animationOn, QStringLiteral("color:  blue;"));
    restyle(ui->animationOff, QStringLiteral("color: black;"));
    ui->animationOn->setChecked(true);
    ui->animationOff->setChecked(false);
}

void lexoria::animationOff_function()
{
    barAnimationOn = false;
    restyle(ui->animationOn, QStringLiteral("color: black;"));
    restyle(ui->animationOff, QStringLiteral("color: blue;"));
    ui->animationOff->setChecked(true);
    ui->animationOn->setChecked(false);
}

void lexoria::matchGameChooser()
{
    const GroupInfo &group = groups[currentGroup()];
    if (ui->rbForward_2->isChecked()) {
        forwardIndex = group.forwardFirstIndex;
        ui->leMatch->setText(letterList[forwardIndex]);
    } else if (ui->rbReverse_2->isChecked()) {
        reverseIndex = group.reverseFirstIndex;
        ui->leMatch->setText(letterList[reverseIndex]);
    } else if (ui->rbRandom_2->isChecked()) {
        drawRandomLetter(100000);
    }
    ui->display3->clear();
    set_Match_StyleSheet();
    set_dem_Text();
}

void lexoria::set_dem_Text()
{
    const int first = groups[currentGroup()].sampleLetter;
    QLabel *samples[] = {ui->dem1, ui->dem6, ui->dem2};
    for (int i = 0; i < 3; ++i)
        samples[i]->setText(barLabels[first - 1 + i]->text());
}

void lexoria::set_dem_StyleSheet()
{
    const QString &font
        = currentGroup() == Uppercase ? pieces.upperFontStyle : pieces.lowerFontStyle;
    const QString finished = pieces.demRadiusStyle + pieces.finishedBgStyle
        + pieces.finishedColorStyle + pieces.demoLowerFontStyle;
    QString sheet = finished + font;
    const int shown = letterNumberOfText(ui->leMatch->text());
    if (shown >= 1 && shown <= 3)
        sheet = finished + pieces.lowerFontStyle;
    else if (shown >= 34 && shown <= 36)
        sheet = finished + pieces.upperFontStyle;
    for (QLabel *sample : {ui->dem1, ui->dem6, ui->dem2})
        restyle(sample, sheet);
}

void lexoria::changeDifficultySoft()
{
    ui->soft->setChecked(true);
    ui->strict->setChecked(false);
    restyle(ui->soft, QStringLiteral("color: blue;"));
    restyle(ui->strict, QStringLiteral("color: black;"));
    ui->displaySoft->show();
    ui->displayStrict->hide();
}

void lexoria::changeDifficultyStrict()
{
    ui->strict->setChecked(true);
    ui->soft->setChecked(false);
    restyle(ui->strict, QStringLiteral("color: blue;"));
    restyle(ui->soft, QStringLiteral("color: black;"));
    ui->displayStrict->show();
    ui->displaySoft->hide();
}

void lexoria::matchGameEnable()
{
    matchGameDisable();
    gameCompleted = false;
    set_Match_StyleSheet();
    gameRunning = true;
    restyle(ui->labelCorrect, normalScore);
    restyle(ui->labelIncorrect, normalScore);
    clears();
    ui->leMatch->setEnabled(true);
    ui->leUser->setEnabled(true);
    animationOff_function();
    isKeyPressedAll();
    chebTimerId = startTimer(1000);
    displayBoth();
    ui->hint->setEnabled(true);
    restyle(ui->hint, QStringLiteral(" color: blue;  "));
    goldHighActive = false;
    lineHighActive = false;
    ui->goldenHighlight->setEnabled(true);
    ui->lineHighlight->setEnabled(true);
    restyle(ui->goldenHighlight,
        pieces.keyRadiusStyle + pieces.highlightBgStyle + pieces.highlightEnglishColorStyle);
    lineHighOff();
    ui->display3->clear();
    ui->display3->hide();
    restyle(ui->start,
        QStringLiteral("font-size: 16pt; font-family: 'MS Shell Dlg 2'; color: rgb(0, 94, 0);"));
    restyle(
        ui->stop, QStringLiteral("font-size: 16pt; font-family: 'MS Shell Dlg 2';  color: black;"));
    barAnimationOn = false;
    for (QPushButton *button : {ui->animationOff, ui->animationOn}) {
        button->setEnabled(false);
        restyle(button, greyedOut);
    }
    stopDemo();
    instructorComment();
    effectsAtGameStart();
    ui->underscore_left->show();
    ui->underscore_right->show();
}

void lexoria::matchGameDisable()
{
    effectsBetweenGames();
    gameRunning = false;
    ui->animationOff->setEnabled(true);
    ui->animationOn->setEnabled(true);
    barAnimationOn = true;
    restyle(ui->animationOff, QStringLiteral("color: black;"));
    restyle(ui->animationOn, QStringLiteral("color: blue;"));
    killChebTimer();
    goldHighActive = false;
    lineHighActive = false;
    ui->goldenHighlight->setEnabled(false);
    ui->lineHighlight->setEnabled(false);
    lineHighOff();
    restyle(ui->goldenHighlight,
        pieces.keyRadiusStyle + pieces.highlightBgStyle + QStringLiteral("color: #6e6e6e"));
    restyle(
        ui->start, QStringLiteral("font-size: 16pt; font-family: 'MS Shell Dlg 2'; color: black;"));
    restyle(ui->stop,
        QStringLiteral("font-size: 16pt; font-family: 'MS Shell Dlg 2';  color: maroon;"));
}

void lexoria::judgeEntry()
{
    const bool hasEntry = !ui->leUser->text().isEmpty();
    if (hasEntry && correctCount <= randomStopCount && ui->rbRandom_2->isChecked())
        randomMG();
    if (hasEntry && correctCount <= gameLength && ui->rbForward_2->isChecked())
        forwardMG();
    if (hasEntry && correctCount <= gameLength && ui->rbReverse_2->isChecked())
        reverseMG();
}

void lexoria::forwardMG()
{
    const QString match = ui->leMatch->text();
    if (gameRunning && letterList.value(forwardIndex) == match) {
        noteEntry(match, ui->leUser->text() == match);
        if (ui->leUser->text() == match) {
            // The index stops at the end of the list even when a mid-game change of group
            // has made the game longer than the letters left.
            if (correctCount < gameLength - 1 && forwardIndex + 1 < letterList.size()) {
                keyLocated(false);
                if (goldHighActive)
                    goldHighOff();
                if (lineHighActive)
                    lineHighOff();
                ++forwardIndex;
                ui->leMatch->setText(letterList[forwardIndex]);
                ++lastKeyIndex;
                set_Match_StyleSheet();
            }
            ++correctCount;
            forwardIsKeyPressed();
            if (goldHighActive)
                goldHighOn();
            if (lineHighActive)
                lineHighOn();
            commentOn(forwardIndex);
        } else {
            ++incorrectCount;
        }
    }
    closeEntry(true);
}

void lexoria::reverseMG()
{
    const QString match = ui->leMatch->text();
    if (gameRunning && letterList.value(reverseIndex) == match) {
        noteEntry(match, ui->leUser->text() == match);
        if (ui->leUser->text() == match) {
            keyLocated(false);
            if (goldHighActive)
                goldHighOff();
            if (lineHighActive)
                lineHighOff();
            if (correctCount < gameLength - 1 && reverseIndex > 0) {
                --reverseIndex;
                ui->leMatch->setText(letterList[reverseIndex]);
            }
            set_Match_StyleSheet();
            ++correctCount;
            reverseIsKeyPressed();
            if (goldHighActive)
                goldHighOn();
            if (lineHighActive)
                lineHighOn();
            commentOn(reverseIndex);
        } else {
            ++incorrectCount;
        }
    }
    closeEntry(false);
}

// Runs after every judged entry, right, wrong or not judged at all.
void lexoria::closeEntry(bool forward)
{
    if (correctCount == gameLength && gameRunning) {
        finishGame(forward);
    } else if (correctCount != gameLength) {
        QTimer::singleShot(entryClearMs, this, &lexoria::clearUser);
        ui->labelCorrect->setNum(correctCount);
        ui->labelIncorrect->setNum(incorrectCount);
    }
}

void lexoria::finishGame(bool forward)
{
    gameRunning = false;
    gameCompleted = true;
    matchGameDisable();
    set_Match_StyleSheet_italic();
    QTimer::singleShot(2000, this, &lexoria::wouldYouLikeToPlayAgain);
    killChebTimer();
    effectsAtGameEnd(forward, currentGroup());

    const GroupInfo &group = groups[currentGroup()];
    const int last = forward ? group.forwardFinalLetter : group.reverseFinalLetter;
    ui->labelCorrect->setNum(group.gameLength);
    letterDone[last] = true;
    changeColorBack(last);

    stopCounter();
    restyle(ui->labelCorrect, italicScore);
    restyle(ui->labelIncorrect, italicScore);
    killGoldHighForGoodAtEnd();
}

void lexoria::forwardIsKeyPressed()
{
    const int k = letterList.indexOf(ui->leMatch->text());
    if (k < 1)
        return;
    // letterList[k] is letter k + 1, now shown; the one before it is finished.
    letterDone[k] = true;
    restyle(barBgLabels[k - 1], pieces.barRadiusStyle + pieces.finishedBgStyle);
    restyle(barLabels[k - 1], pieces.finishedColorStyle + fontPiece(k));
}

void lexoria::reverseIsKeyPressed()
{
    const int n = groups[currentGroup()].reverseTop - correctCount + 1;
    if (n < 1 || n > keycatalogue::letterCount)
        return;
    letterDone[n] = true;
    restyle(barLabels[n - 1],
        pieces.barRadiusStyle + pieces.finishedBgStyle + pieces.finishedColorStyle + fontPiece(n));
}

void lexoria::forwardIsKeyPressed_CSS()
{
    const int group = currentGroup();
    int first = 0;
    int end = forwardIndex; // one past the last index repainted
    if (group == Uppercase)
        first = 33;
    if (group == NumberLine) {
        first = 66;
        if (!gameRunning)
            end = forwardIndex + 1;
    }
    for (int i = first; i < end && i < keycatalogue::letterCount; ++i) {
        const int n = i + 1;
        const QString &font = group == Everything ? fontPiece(n)
            : group == Lowercase                  ? pieces.lowerFontStyle
                                                  : pieces.upperFontStyle;
        restyle(barBgLabels[i], pieces.barRadiusStyle + pieces.finishedBgStyle);
        restyle(barLabels[i], pieces.finishedColorStyle + font);
    }
}

void lexoria::reverseIsKeyPressed_CSS()
{
    allChangeColorBack();
}

void lexoria::isKeyPressedAll()
{
    letterDone.fill(false);
}

void lexoria::clearUser()
{
    ui->leUser->clear();
}

QString lexoria::fieldStyle(bool italic, const QString &font, const QString &colour) const
{
    return (italic ? QStringLiteral("background-color: transparent; font-style: italic; ")
                   : QStringLiteral("background-color: transparent;"))
        + font + colour + QStringLiteral(" font-size: 24pt; border: none;");
}

void lexoria::set_Match_StyleSheet()
{
    const int n = letterNumberOfText(ui->leMatch->text());
    if (n > 0)
        restyle(ui->leMatch, fieldStyle(false, fontPiece(n), pieces.matchTextColorStyle));
}

void lexoria::set_Match_StyleSheet_italic()
{
    const int n = letterNumberOfText(ui->leMatch->text());
    if (n <= 0)
        return;
    restyle(ui->leMatch, fieldStyle(true, fontPiece(n), pieces.matchTextColorStyle));
    restyle(ui->leUser, fieldStyle(true, fontPiece(n), pieces.userTextColorStyle));
}

void lexoria::set_User_StyleSheet_Uppercase()
{
    if (gameRunning)
        restyle(ui->leUser, fieldStyle(false, pieces.upperFontStyle, pieces.userTextColorStyle));
}

void lexoria::set_User_StyleSheet_Lowercase()
{
    if (gameRunning)
        restyle(ui->leUser, fieldStyle(false, pieces.lowerFontStyle, pieces.userTextColorStyle));
}

// After a colour change the entry field takes the font of the letter that ends the game.
void lexoria::set_User_StyleSheet()
{
    const int group = currentGroup();
    const bool capitals = group == Uppercase;
    if (ui->rbForward_2->isChecked()) {
        const QString &font = group == Lowercase ? pieces.lowerFontStyle : pieces.upperFontStyle;
        restyle(ui->leUser, fieldStyle(false, font, pieces.userTextColorStyle));
        return;
    }
    if (ui->rbRandom_2->isChecked() && (group == Everything || group == NumberLine)) {
        set_Match_StyleSheet_italic();
        return;
    }
    // Reverse games end on а, the upper-case one on А; random games by their group.
    const QString &font = capitals ? pieces.upperFontStyle : pieces.lowerFontStyle;
    restyle(ui->leUser,
        QStringLiteral("background-color: transparent; ") + font + pieces.userTextColorStyle
            + QStringLiteral(" font-size: 24pt; border: none;"));
}

void lexoria::clears()
{
    ui->leMatch->clear();
    ui->leUser->clear();
    ui->leMatch->setEnabled(false);
    ui->labelCorrect->clear();
    ui->labelIncorrect->clear();
    correctCount = 0;
    incorrectCount = 0;
    forwardIndex = 0;
    reverseIndex = 93;
    clockSeconds = 0;
    stopCounter();
    ui->lcd->display(0);
    ui->display2->clear();
    restyle(ui->labelCorrect, normalScore);
    restyle(ui->labelIncorrect, normalScore);
    ui->animationOff->setEnabled(true);
    ui->animationOn->setEnabled(true);
    barAnimationOn = true;
}

void lexoria::startCounter()
{
    stopCounter();
    clockTimerId = startTimer(1000);
    ui->on->setChecked(true);
}

void lexoria::stopCounter()
{
    // A killed id goes back to 0 so that a later timer reusing the number is never mistaken
    // for the clock.
    if (clockTimerId != 0)
        killTimer(clockTimerId);
    clockTimerId = 0;
}

void lexoria::timerEvent(QTimerEvent *event)
{
    if (chebTimerId != 0 && event->timerId() == chebTimerId)
        chebTick();
    if (clockTimerId != 0 && event->timerId() == clockTimerId) {
        ++clockSeconds;
        ui->lcd->display(clockSeconds);
    }
    if (fades.fadeExampleTimerId != 0 && event->timerId() == fades.fadeExampleTimerId)
        fadeOutExample();
    if (pulsate.pulsateTimerId != 0 && event->timerId() == pulsate.pulsateTimerId)
        pulsateTick();
}

// At Start the comment goes by the forward position, which clears has just put at 0, so
// every game opens with the first comment. During play it goes by the letter now shown.
void lexoria::instructorComment()
{
    commentOn(forwardIndex);
}

void lexoria::commentOn(int index)
{
    for (const Comment &comment : comments) {
        if (comment.index != index)
            continue;
        ui->display2->clear();
        ui->display2->setText(ui->find<QLabel>(QLatin1String(comment.label))->text());
        QTimer::singleShot(7000, this, &lexoria::clearGoodJob);
        break;
    }
    if (ui->fadeOut->isChecked() && ui->rbRandom_2->isChecked()) {
        ui->display2->clear();
        ui->display2->setText(QStringLiteral("Fade Out does not work with Random"));
        QTimer::singleShot(7000, this, &lexoria::clearGoodJob);
    }
}

void lexoria::wouldYouLikeToPlayAgain()
{
    ui->display2->setText(QStringLiteral("Would you like\nto play again?"));
}

void lexoria::clearGoodJob()
{
    ui->display2->clear();
}
