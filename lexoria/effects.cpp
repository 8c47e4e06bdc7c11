#include "lexoria/lexoria.h"

#include "lexoria/effecttables.h"
#include "lexoria/form.h"
#include "lexoria/gamecatalogue.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

using namespace effecttables;
using keycatalogue::CharacterKey;
using keycatalogue::characterKey;
using keycatalogue::characterKeyCount;
using keycatalogue::keyOfLetter;
using keycatalogue::keyRect;
using keycatalogue::letterCount;
using keycatalogue::paintKeyCount;

namespace {

const QString accessDuringGame = QStringLiteral(
    "background-color: transparent; font: italic 8pt 'MS Shell Dlg 2'; color:  red;");
const QString accessBetweenGames = QStringLiteral(
    "background-color: transparent;font: italic 8pt 'MS Shell Dlg 2'; color:  #6e6e6e");

// Place in the face, image and English lists of a pulse number: the control keys lie there
// in another order than their pulse numbers.
int layerIndex(int N)
{
    if (N <= characterKeyCount)
        return N - 1;
    for (int i = 0; i < paintKeyCount - characterKeyCount; ++i) {
        if (keycatalogue::controlKeys[i].number == N)
            return characterKeyCount + i;
    }
    return N - 1;
}

} // namespace

void lexoria::connectEffectsPanel()
{
    connect(ui->fadeOut, &QRadioButton::clicked, this, &lexoria::fadeOut_function);
    connect(ui->fadeOutIn, &QRadioButton::clicked, this, &lexoria::fadeInOut_function);
    connect(ui->effectNone, &QRadioButton::clicked, this, &lexoria::clearFade);
    connect(ui->angryE, &QRadioButton::clicked, this, &lexoria::finishedAngryE);
    connect(ui->birdsdancing, &QRadioButton::clicked, this, &lexoria::finishedBirdsDancing);
    connect(ui->butterfly, &QRadioButton::clicked, this, &lexoria::finishedButterfly);
    connect(ui->explosion, &QRadioButton::clicked, this, &lexoria::finishedExplosion);
    connect(ui->useUploaded, &QRadioButton::clicked, this, &lexoria::finishedUploaded);
    connect(ui->finishedNone, &QRadioButton::clicked, this, &lexoria::clearMovies);
    connect(
        ui->openImageFinished, &QPushButton::clicked, this, &lexoria::openImageFinished_Function);
    connect(ui->clearVorticKeyboardImage, &QPushButton::clicked, this,
        &lexoria::clearVorticKeyboardImage_function);
    for (QRadioButton *speed : {ui->speed1, ui->speed2, ui->speed3})
        connect(speed, &QRadioButton::clicked, this, &lexoria::setMovieSpeed);
    connect(ui->normalSizeEK, &QRadioButton::clicked, this, &lexoria::normalSizeEK_function);
    connect(ui->setToFitEK, &QRadioButton::clicked, this, &lexoria::setToFitEK_function);

    for (int N = 1; N <= int(std::size(keyPictureGifs)); ++N) {
        auto *radio = ui->find<QRadioButton>(QLatin1String(keyPictureGifs[N - 1].radio));
        connect(radio, &QRadioButton::clicked, this, [this, N] { movie(N); });
    }
    connect(ui->radioNone, &QRadioButton::clicked, this, &lexoria::movieNone_function);

    effects.uploadedFullMovie = new QMovie(this);
    effects.uploadedPreviewMovie = new QMovie(this);
    ui->find<QLabel>(QStringLiteral("imgVorticKeyboard"))
        ->setPixmap(QPixmap(QStringLiteral(":/new/prefix1/vortic1.png")));
    ui->find<QLabel>(QStringLiteral("openFolderMain_2"))
        ->setPixmap(QPixmap(QStringLiteral(":/new/prefix1/iconOpen.gif")));
    ui->find<QLabel>(QStringLiteral("tnMarbleTransparent"))
        ->setPixmap(QPixmap(QStringLiteral(":/new/prefix1/marbleTransparentSmall.gif")));
}

bool lexoria::fadeChosen() const
{
    return ui->fadeOut->isChecked() || ui->fadeOutIn->isChecked();
}

// A right entry, before the game moves on to the next letter.
void lexoria::keyLocated(bool random)
{
    if (effects.gifEffectOn) {
        if (random)
            gameOnRandom();
        else
            gameOn();
    }
    if (fadeChosen())
        startGraphicsEffects();
}

void lexoria::effectsAtGameStart()
{
    ui->menuVorticKeyboard->setEnabled(false);
    restyle(ui->mustStopGameToAccess, accessDuringGame);
    if (ui->fadeOut->isChecked() && ui->rbRandom_2->isChecked()) {
        ui->display2->clear();
        ui->display2->setText(QStringLiteral("Fade Out does not\nwork with Random."));
        QTimer::singleShot(7000, this, &lexoria::clearGoodJob);
    }
}

void lexoria::effectsBetweenGames()
{
    if (effects.fadePlayed && !gameCompleted)
        fadeOutReset();
    if (effects.gifEffectOn && !gameCompleted) {
        move_1_33_back();
        move_numberline_back();
        move_42_47_back();
    }
    effects.fadePlayed = false;
    if (gameRunning) {
        // Bring back every layer a key-located effect may have taken away.
        for (int i = 0; i < paintKeyCount; ++i) {
            keyPulseLabels[i]->hide();
            keyEnglishLabels[i]->show();
            keyImgLabels[i]->show();
        }
        for (QLabel *letter : qAsConst(keyLetterLabels))
            letter->show();
        for (int k = 0; k < characterKeyCount; ++k) {
            keyShields[k]->show();
            keyBgLabels[k]->show();
        }
    }
    if (pictures.keysImageOn != QLatin1String("1")) {
        for (QLabel *image : qAsConst(keyImgLabels))
            image->hide();
    }
    stopAllMovies();
    ui->menuVorticKeyboard->setEnabled(true);
    restyle(ui->mustStopGameToAccess, accessBetweenGames);
}

// The last right entry of a forward or reverse game, after the game has been stopped.
void lexoria::effectsAtGameEnd(bool forward, int group)
{
    if (forward && fadeChosen())
        startGraphicsEffects();
    if (effects.gifEffectOn) {
        gameOn();
        if (group == gamecatalogue::Everything) {
            for (const Shot &shot : controlKeyExplosions) {
                const int N = shot.key;
                QTimer::singleShot(
                    shot.ms, Qt::PreciseTimer, this, [this, N] { explosionOther(N); });
            }
            QTimer::singleShot(whatAMessMs, this, &lexoria::whatAMess);
            QTimer::singleShot(gameAllInMs, this, &lexoria::gameAllIn);
        }
    }
}

void lexoria::setKeyLayersVisible(int k, bool visible)
{
    const CharacterKey &key = characterKey(k);
    QWidget *layers[] = {keyBgLabels[k - 1], keyEnglishLabels[k - 1], keyShields[k - 1],
        keyLetterLabels[key.lower - 1], keyLetterLabels[key.upper - 1],
        k == 6        ? ui->underscore_left
            : k == 10 ? ui->underscore_right
                      : nullptr};
    for (QWidget *layer : layers) {
        if (layer)
            layer->setVisible(visible);
    }
}

void lexoria::startPulse(int N, int movieIndex)
{
    QLabel *pulse = keyPulseLabels[N - 1];
    QMovie *movie = effects.pulseMovies[movieIndex];
    pulse->raise();
    pulse->show();
    pulse->setMovie(movie);
    movie->start();
}

// A located key goes and comes back by single shots that are never cancelled: a shot that
// fires after Stop or a new Start replays a harmless end state on a key already restored.
void lexoria::gameOn()
{
    const int n = letterNumberOfText(ui->leMatch->text());
    if (n < 1)
        return;
    const int k = keyOfLetter(n);
    setKeyLayersVisible(k, false);
    // Restoring a key shows its picture whenever one is set, so a hidden picture would come
    // back through the empty place; one moved out of the window stays away.
    const QPoint place = keyRect(k).topLeft();
    keyImgLabels[k - 1]->move(-place.x(), place.y());
    startPulse(k, n - 1);
    QTimer::singleShot(pulseMs, this, [this, n] { explosionHidePulse(n); });
    playSound(pulseSound);
}

void lexoria::explosionHidePulse(int n)
{
    const int k = keyOfLetter(n);
    keyPulseLabels[k - 1]->hide();
    effects.pulseMovies[n - 1]->stop();

    const Direction direction = ui->rbForward_2->isChecked() ? Forward
        : ui->rbReverse_2->isChecked()                       ? Reverse
                                                             : AnyDirection;
    const Group group = ui->rbAll->isChecked() ? Everything
        : ui->rbVarious->isChecked()           ? Lowercase
        : ui->rbConsonants->isChecked()        ? Uppercase
        : ui->rbNumberLine->isChecked()        ? NumberLine
                                               : AnyGroup;
    for (const RunEnd &end : runEnds) {
        if (end.letter != n || end.direction != direction
            || (end.group != AnyGroup && end.group != group))
            continue;
        if (end.chain >= 0) {
            const int chain = end.chain;
            QTimer::singleShot(endChainDelayMs, this, [this, chain] { runChain(chain); });
            return;
        }
        for (int key : end.keys) {
            keyBgLabels[key - 1]->show();
            keyEnglishLabels[key - 1]->show();
            keyShields[key - 1]->show();
        }
        switch (end.moveBack) {
        case MoveBack::Letters:
            move_1_33_back();
            break;
        case MoveBack::NumberLine:
            move_numberline_back();
            break;
        case MoveBack::EndKeys:
            move_42_47_back();
            break;
        case MoveBack::None:
            break;
        }
        for (int shown = end.firstShown; shown <= end.lastShown; ++shown)
            keyLetterLabels[shown - 1]->show();
        return;
    }
}

void lexoria::moveKeyImagesBack(const int *keys, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        keyImgLabels[keys[i] - 1]->move(keyRect(keys[i]).topLeft());
}

void lexoria::move_1_33_back()
{
    moveKeyImagesBack(letterKeys, std::size(letterKeys));
}

void lexoria::move_numberline_back()
{
    moveKeyImagesBack(numberLineKeys, std::size(numberLineKeys));
}

void lexoria::move_42_47_back()
{
    moveKeyImagesBack(endKeys, std::size(endKeys));
}

void lexoria::gameOnRandom()
{
    const int n = letterNumberOfText(ui->leMatch->text());
    if (n < 1)
        return;
    const int k = keyOfLetter(n);
    randomPulseFlags[n] = true;
    keyImgLabels[k - 1]->hide();
    setKeyLayersVisible(k, false);
    startPulse(k, k - 1);
    QTimer::singleShot(pulseMs, this, [this, k] { hidePulseShowKey_Ran(k); });
    playSound(pulseSound);
}

void lexoria::hidePulseShowKey_Ran(int k)
{
    const CharacterKey &key = characterKey(k);
    randomPulseFlags[key.lower] = false;
    randomPulseFlags[key.upper] = false;
    keyPulseLabels[k - 1]->hide();
    setKeyLayersVisible(k, true);
    effects.pulseMovies[k - 1]->stop();
    keyImgLabels[k - 1]->show();
}

void lexoria::playPulse(int N)
{
    startPulse(N, N - 1);
    QTimer::singleShot(pulseMs, this, [this, N] { hidePulseShowKey(N); });
}

void lexoria::hidePulseShowKey(int N)
{
    keyPulseLabels[N - 1]->hide();
    effects.pulseMovies[N - 1]->stop();
    if (N <= characterKeyCount) {
        setKeyLayersVisible(N, true);
        keyImgLabels[N - 1]->move(keyRect(N).topLeft());
        return;
    }
    const int i = layerIndex(N);
    keyBgLabels[i]->show();
    keyEnglishLabels[i]->show();
    keyImgLabels[i]->show();
}

void lexoria::explosionOther(int N)
{
    const int i = layerIndex(N);
    keyBgLabels[i]->hide();
    keyEnglishLabels[i]->hide();
    startPulse(N, N - 1);
    QTimer::singleShot(pulseMs, this, [this, N] { explosionHidePulseOther(N); });
    playSound(pulseSound);
    keyImgLabels[i]->hide();
}

void lexoria::explosionHidePulseOther(int N)
{
    keyPulseLabels[N - 1]->hide();
    effects.pulseMovies[N - 1]->stop();
}

void lexoria::runChain(int chain)
{
    const Chain &sweep = chains[chain];
    for (const ChainStep &step : sweep.steps) {
        const int N = step.key;
        QTimer::singleShot(
            step.m * endGameStepMs, Qt::PreciseTimer, this, [this, N] { playPulse(N); });
    }
    QTimer::singleShot(
        sweep.stopAllAt * endGameStepMs, Qt::PreciseTimer, this, &lexoria::stopAllMovies);
}

void lexoria::endGame1_66()
{
    runChain(EndGame1_66);
}

void lexoria::endGame67_94()
{
    runChain(EndGame67_94);
}

void lexoria::endGame94_67()
{
    runChain(EndGame94_67);
}

void lexoria::gameAllIn()
{
    for (const Shot &shot : gameAllInShots) {
        const int N = shot.key;
        QTimer::singleShot(shot.ms, Qt::PreciseTimer, this, [this, N] { playPulse(N); });
    }
    QTimer::singleShot(gameAllInStopMs, Qt::PreciseTimer, this, &lexoria::stopAllMovies);
}

void lexoria::whatAMess()
{
    ui->display2->clear();
    ui->display2->setText(QStringLiteral("\n\"What a Mess.\n\nWait for it.\""));
}

void lexoria::stopAllMovies()
{
    for (QMovie *movie : effects.pulseMovies)
        movie->stop();
}

void lexoria::startGraphicsEffects()
{
    effects.gifEffectOn = false;
    effects.fadePlayed = true;
    fadeLocatedKey();
}

void lexoria::explosionOff()
{
    for (int i = 0; i < paintKeyCount; ++i) {
        keyPulseLabels[i]->hide();
        keyEnglishLabels[i]->show();
        keyImgLabels[i]->show();
    }
    for (QLabel *letter : qAsConst(keyLetterLabels))
        letter->show();
    for (QLabel *shield : qAsConst(keyShields))
        shield->show();
    stopAllMovies();
}

void lexoria::clearMovies()
{
    effects.gifEffectOn = false;
    explosionOff();
    // The radios of one side are one exclusive group: checking None unchecks the others.
    ui->finishedNone->setChecked(true);
}

void lexoria::clearFade()
{
    ui->effectNone->setChecked(true);
}

void lexoria::fadeOut_function()
{
    ui->fadeOut->setChecked(true);
    clearMovies();
}

void lexoria::fadeInOut_function()
{
    ui->fadeOutIn->setChecked(true);
    clearMovies();
}
