#include "lexoria/lexoria.h"

#include "lexoria/fadetables.h"
#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/layerfade.h"
#include "lexoria/shadowtables.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

#include <iterator>

using namespace fadetables;
using keycatalogue::CharacterKey;
using keycatalogue::characterKey;
using keycatalogue::characterKeyCount;
using keycatalogue::keyOfLetter;
using keycatalogue::paintKeyCount;

namespace {

// Place of a control key in the face, image and label lists, which keep the control keys in
// screen order rather than by number.
int controlIndex(int N)
{
    for (int i = 0; i < paintKeyCount - characterKeyCount; ++i) {
        if (keycatalogue::controlKeys[i].number == N)
            return characterKeyCount + i;
    }
    return -1;
}

Direction direction(const Ui::lexoria *ui)
{
    if (ui->rbForward_2->isChecked())
        return Forward;
    if (ui->rbReverse_2->isChecked())
        return Reverse;
    return effecttables::AnyDirection;
}

Group group(const Ui::lexoria *ui)
{
    if (ui->rbAll->isChecked())
        return Everything;
    if (ui->rbVarious->isChecked())
        return Lowercase;
    if (ui->rbConsonants->isChecked())
        return Uppercase;
    if (ui->rbNumberLine->isChecked())
        return NumberLine;
    return AnyGroup;
}

template <std::size_t Count>
const Row *matchingRow(const Row (&rows)[Count], int n, Direction dir, Group grp)
{
    for (const Row &row : rows) {
        if (row.letter == n && row.direction == dir && (row.group == AnyGroup || row.group == grp))
            return &row;
    }
    return nullptr;
}

} // namespace

QList<QWidget *> lexoria::fadeLayers(int N) const
{
    if (N > characterKeyCount) {
        const int i = controlIndex(N);
        if (i < 0)
            return {};
        return {keyEnglishLabels[i], keyBgLabels[i], keyImgLabels[i]};
    }
    const CharacterKey &key = characterKey(N);
    QList<QWidget *> layers {keyBgLabels[N - 1], keyLetterLabels[key.lower - 1],
        keyLetterLabels[key.upper - 1], keyEnglishLabels[N - 1], keyImgLabels[N - 1]};
    if (N == 6)
        layers.append(ui->underscore_left);
    else if (N == 10)
        layers.append(ui->underscore_right);
    return layers;
}

void lexoria::fadeLabels(const QList<QWidget *> &layers, qreal from, qreal to, int ms)
{
    (new fadelayers::KeyFade(layers, from, to, ms, this))->start();
}

void lexoria::fadeOut(int N)
{
    if (N <= characterKeyCount)
        keyShields[N - 1]->hide();
    fadeLabels(fadeLayers(N), 1.0, 0.0, fadeOutMs);
}

void lexoria::fadeIn(int N)
{
    const bool character = N <= characterKeyCount;
    fadeLabels(fadeLayers(N), 0.0, 1.0, character ? fades.fadeInMs : controlFadeInMs);
    if (character)
        keyShields[N - 1]->show();
    if (shadowsShown()) {
        QTimer::singleShot(character ? shadowAfterFadeInMs : controlShadowAfterFadeInMs, this,
            [this, N] { fadeInShadow(N); });
    }
}

// A returning key takes the shadows its groups give it, as if the shadows panel had just
// been used: the same colours, corners and tricks.
void lexoria::fadeInShadow(int N)
{
    if (N > characterKeyCount) {
        const int i = controlIndex(N);
        if (i < 0)
            return;
        castShadowOfGroup(keyEnglishLabels[i], shadowtables::English);
        castShadowOfGroup(keyBgLabels[i], faceGroup(keyBgLabels[i]));
        return;
    }
    const CharacterKey &key = characterKey(N);
    castShadowOfGroup(keyLetterLabels[key.lower - 1], shadowtables::Lower);
    castShadowOfGroup(keyLetterLabels[key.upper - 1], shadowtables::Upper);
    castShadowOfGroup(keyEnglishLabels[N - 1], shadowtables::English);
    castShadowOfGroup(keyBgLabels[N - 1], faceGroup(keyBgLabels[N - 1]));
}

void lexoria::laterFade(int N, int ms, bool in)
{
    QTimer::singleShot(ms, Qt::PreciseTimer, this, [this, N, in] {
        if (in)
            fadeIn(N);
        else
            fadeOut(N);
    });
}

void lexoria::runFadeWave(int fromMs, const int *keys, int count, bool backwards, bool in)
{
    for (int i = 0; i < count; ++i)
        laterFade(keys[backwards ? count - 1 - i : i], fromMs + i * waveStepMs, in);
}

// The fade chosen in the effects panel, for the letter just found.
void lexoria::fadeLocatedKey()
{
    const int n = letterNumberOfText(ui->leMatch->text());
    if (n < 1)
        return;
    const int k = keyOfLetter(n);
    const Direction dir = direction(ui);
    const Group grp = group(ui);

    if (ui->fadeOut->isChecked() && !ui->rbRandom_2->isChecked()) {
        fadeOut(k);
        if (const Row *row = matchingRow(fadeOutRows, n, dir, grp)) {
            switch (row->wave) {
            case Wave::AllFadeIn:
                allFadeIn();
                break;
            case Wave::AllFadeInReverse:
                allFadeInReverse();
                break;
            default:
                runFadeWave(
                    row->fromMs, row->keys.items, int(row->keys.count), row->backwards, true);
            }
        }
    }

    if (ui->fadeOutIn->isChecked()) {
        fadeOut(k);
        QTimer::singleShot(fadeBackMs, Qt::PreciseTimer, this, [this, k] { fadeIn(k); });
        const Row *row = matchingRow(finaleRows, n, dir, grp);
        if (!row)
            return;
        if (!shadowsShown())
            QTimer::singleShot(finaleShadowsOnMs, this, &lexoria::shadow3dpart2);
        switch (row->wave) {
        case Wave::FadeAll:
            fadeAll();
            break;
        case Wave::FadeAllReverse:
            fadeAllReverse();
            break;
        default: {
            const int count = int(row->keys.count);
            runFadeWave(finaleFadeOutMs, row->keys.items, count, row->backwards, false);
            runFadeWave(finaleFadeInMs, row->keys.items, count, row->backwards, true);
        }
        }
    }
}

void lexoria::allFadeIn()
{
    const int count = int(std::size(allKeySweep));
    runFadeWave(allFadeInFirstMs, allKeySweep, allFadeInFirstCount, false, true);
    runFadeWave(allFadeInSecondMs, allKeySweep + allFadeInFirstCount, count - allFadeInFirstCount,
        false, true);
}

void lexoria::allFadeInReverse()
{
    for (const Timed &shot : allFadeInReverseShots)
        laterFade(shot.key, shot.ms, true);
}

void lexoria::fadeAll()
{
    for (int j = 0; j < fadeAllColumnCount; ++j) {
        for (int N : fadeAllColumns[j]) {
            if (N == 0)
                break;
            laterFade(N, fadeAllOutMs + fadeAllColumnStepMs * j, false);
            laterFade(N, fadeAllInMs + fadeAllColumnStepMs * j, true);
        }
    }
}

void lexoria::fadeAllReverse()
{
    for (int j = 0; j < fadeAllColumnCount; ++j) {
        const int step = fadeAllColumnStepMs * (fadeAllColumnCount - 1 - j);
        for (int N : fadeAllColumns[j]) {
            if (N == 0)
                break;
            // The right Shift goes with the first column out, yet comes back with its own.
            laterFade(N, N == ShiftRight ? fadeAllOutMs : fadeAllOutMs + step, false);
            laterFade(N, fadeAllInMs + step, true);
        }
    }
}

bool lexoria::keyHasDoneLetter(int k) const
{
    const CharacterKey &key = characterKey(k);
    return letterDone[key.lower] || letterDone[key.upper];
}

// A game stopped by hand: only the keys whose letters were found have gone, and only the wave
// of the game in play may bring them back, since the letters of a number-line key fall in two
// runs that each restore it.
void lexoria::fadeOutReset()
{
    const bool forward = ui->rbForward_2->isChecked();
    const bool reverse = ui->rbReverse_2->isChecked();
    const bool random = ui->rbRandom_2->isChecked();
    const bool all = ui->rbAll->isChecked();
    const bool lettersOnly = ui->rbVarious->isChecked() || ui->rbConsonants->isChecked();
    const bool numberLine = ui->rbNumberLine->isChecked();
    auto done = [this](int n) { return letterDone[n]; };
    auto backIfDone = [this](int k, int ms) {
        if (keyHasDoneLetter(k))
            laterFade(k, ms, true);
    };
    auto letterBack = [this](int n, int ms) { laterFade(keyOfLetter(n), ms, true); };

    if (!shadowsShown())
        shadow3dpart2();

    if (reverse && all) {
        for (const Timed &shot : resetReverseAllShots)
            backIfDone(shot.key, shot.ms);
    }
    if ((all && forward) || random) {
        for (int i = 0; i < int(std::size(allKeySweep)); ++i) {
            backIfDone(allKeySweep[i],
                i < allFadeInFirstCount
                    ? allFadeInFirstMs + i * waveStepMs
                    : allFadeInSecondMs + (i - allFadeInFirstCount) * waveStepMs);
        }
    }
    const int letterKeyCount = int(std::size(letterSweep));
    if (reverse && lettersOnly) {
        for (int i = 0; i < letterKeyCount; ++i)
            backIfDone(letterSweep[letterKeyCount - 1 - i], 450 + i * waveStepMs);
    }
    if ((forward && lettersOnly) || random) {
        for (int i = 0; i < letterKeyCount; ++i)
            backIfDone(letterSweep[i], 450 + i * waveStepMs);
    }
    if (numberLine && reverse) {
        if (!done(93) && !done(90) && done(94))
            laterFade(42, 550, true);
        if (done(92))
            laterFade(42, 550, true);
        if (done(91))
            laterFade(47, 500, true);
        if (!done(79)) {
            for (int n = 90; n >= 80; --n) {
                if (done(n))
                    letterBack(n, 600 + waveStepMs * (90 - n));
            }
        }
        for (int n = 78; n >= 67; --n) {
            if (done(n))
                letterBack(n, 600 + waveStepMs * (78 - n));
        }
    }
    if ((numberLine && forward) || random) {
        if (!done(78)) {
            for (int n = 67; n <= 77; ++n) {
                if (done(n))
                    letterBack(n, 500 + waveStepMs * (n - 67));
            }
        }
        for (int n = 79; n <= 90; ++n) {
            if (done(n))
                letterBack(n, 500 + waveStepMs * (n - 79));
        }
        if (!done(92) && done(91))
            laterFade(47, 500, true);
        if (done(93))
            laterFade(47, 500, true);
        if (done(94))
            laterFade(42, 550, true);
    }
}

bool lexoria::shadowsShown() const
{
    return ui->find<QCheckBox>(QStringLiteral("shadow3dOn"))->isChecked();
}

void lexoria::setShadowsShown(bool shown)
{
    ui->find<QCheckBox>(QStringLiteral("shadow3dOn"))->setChecked(shown);
}

// The waves of a finale or a reset give the keys their shadows back even when the player has
// switched them off, for as long as the waves last.
void lexoria::shadow3dpart2()
{
    setShadowsShown(true);
    QTimer::singleShot(shadowsOnForMs, this, &lexoria::shadow3dOnFalse_function);
}

void lexoria::shadow3dOnFalse_function()
{
    setShadowsShown(false);
}

void lexoria::startFade()
{
    if (fades.fadeExampleTimerId == 0)
        fades.fadeExampleTimerId = startTimer(exampleEveryMs);
}

void lexoria::stopFade()
{
    if (fades.fadeExampleTimerId != 0)
        killTimer(fades.fadeExampleTimerId);
    fades.fadeExampleTimerId = 0;
}

void lexoria::fadeOutExample()
{
    fadeLabels({ui->widget(QStringLiteral("tnFadeExample")),
                   ui->widget(QStringLiteral("tnFadeExample_2"))},
        1.0, 0.0, fadeOutMs);
    QTimer::singleShot(fadeBackMs, this, &lexoria::fadeInExample);
}

void lexoria::fadeInExample()
{
    fadeLabels({ui->widget(QStringLiteral("tnFadeExample")),
                   ui->widget(QStringLiteral("tnFadeExample_2"))},
        0.0, 1.0, fades.fadeInMs);
}
