#include "lexoria/lexoria.h"

#include "lexoria/effecttables.h"
#include "lexoria/form.h"

#include <QCheckBox>
#include <QLabel>
#include <QMovie>
#include <QRadioButton>

using namespace effecttables;

void lexoria::loadGifs()
{
    for (const Thumbnail &thumbnail : thumbnails) {
        auto *label = ui->find<QLabel>(QLatin1String(thumbnail.label));
        if (!label)
            continue;
        auto *movie = new QMovie(QString::fromLatin1(thumbnail.resource), QByteArray(), this);
        movie->setSpeed(thumbnail.speed);
        label->setMovie(movie);
        movie->start();
    }
}

// No two labels ever share a running movie, so every letter has one of its own.
void lexoria::loadMovieArray()
{
    for (QMovie *&movie : effects.pulseMovies)
        movie = new QMovie(this);
}

void lexoria::setPulseMovies(const QString &file, const QSize &size)
{
    for (QMovie *movie : effects.pulseMovies) {
        movie->stop();
        movie->setFileName(file);
        movie->setScaledSize(size);
    }
}

void lexoria::chooseEffectGif(int index)
{
    const EffectGif &gif = effectGifs[index];
    effects.gifPath = QString::fromLatin1(gif.resource);
    for (QMovie *movie : effects.pulseMovies) {
        movie->stop();
        movie->setScaledSize(QSize(gif.width, gif.height));
    }
    // An uploaded pulse sound, once applied, outlasts the choice of gif.
    pulseSound = ui->applyAudioToPulse->isChecked() ? uploadedPulseFiles.value(0, silenceSound)
                                                    : QString::fromLatin1(gif.sound);
    effects.gifEffectOn = true;
    entryClearMs = gif.entryClearMs;
    ui->effectNone->setChecked(true);
}

void lexoria::finishedAngryE()
{
    chooseEffectGif(0);
}

void lexoria::finishedBirdsDancing()
{
    chooseEffectGif(1);
}

void lexoria::finishedButterfly()
{
    chooseEffectGif(2);
}

void lexoria::finishedExplosion()
{
    chooseEffectGif(3);
}

void lexoria::finishedUploaded()
{
    if (effects.uploadedGifFiles.isEmpty())
        effects.uploadedGifFiles.append(QString::fromLatin1(blankGif));
    for (QMovie *movie : effects.pulseMovies)
        movie->stop();
    pulseSound = ui->applyAudioToPulse->isChecked() ? uploadedPulseFiles.value(0, silenceSound)
                                                    : QString::fromLatin1(silenceWav);
    // A gif the movie cannot read gives a null picture: size 0 and pulses that show nothing.
    const QImage pulse = effects.uploadedPreviewMovie->currentImage().scaledToWidth(96);
    effects.uploadPulseWidth = pulse.width();
    effects.uploadPulseHeight = pulse.height();
    effects.gifPath = effects.uploadedGifFiles.first();
    setPulseMovies(effects.gifPath, pulse.size());
    effects.gifEffectOn = true;
    ui->effectNone->setChecked(true);
}

void lexoria::openImageFinished_Function()
{
    effects.uploadedGifFiles
        = askFiles({FileQuestion::Pick, {}, {}, QStringLiteral("Images(*.gif)")});
    if (effects.uploadedGifFiles.isEmpty())
        effects.uploadedGifFiles.append(QString::fromLatin1(blankGif));

    QMovie *full = effects.uploadedFullMovie;
    QMovie *preview = effects.uploadedPreviewMovie;
    effects.gifPath.clear();
    effects.uploadThumbWidth = 0;
    effects.uploadThumbHeight = 0;
    for (QMovie *movie : {full, preview}) {
        movie->stop();
        movie->setFileName(QString());
    }

    effects.gifPath = effects.uploadedGifFiles.first();
    full->setFileName(effects.gifPath);
    full->start();
    const QImage thumb = full->currentImage().scaledToWidth(54, Qt::FastTransformation);
    effects.uploadThumbWidth = thumb.width();
    effects.uploadThumbHeight = thumb.height();

    preview->setFileName(effects.gifPath);
    preview->setScaledSize(thumb.size());
    ui->tnCurrentImage->setMovie(preview);
    preview->start();

    ui->useUploaded->setEnabled(true);
    ui->useUploaded->setChecked(true);
    finishedUploaded();
}

void lexoria::clearVorticKeyboardImage_function()
{
    effects.gifPath.clear();
    ui->tnCurrentImage->clear();
    effects.uploadedGifFiles.clear();
}

void lexoria::setMovieSpeed()
{
    effects.gifSpeed = ui->speed3->isChecked() ? 300 : ui->speed2->isChecked() ? 200 : 100;
    for (QMovie *movie : effects.pulseMovies) {
        movie->stop();
        movie->setSpeed(effects.gifSpeed);
    }
    effects.uploadedPreviewMovie->stop();
    effects.uploadedPreviewMovie->setSpeed(effects.gifSpeed);
    effects.uploadedPreviewMovie->start();
}

void lexoria::normalSizeEK_function()
{
    effects.uploadedFullMovie->stop();
    effects.uploadedPreviewMovie->setScaledSize(QSize(-1, -1));
    ui->tnCurrentImage->setMovie(effects.uploadedFullMovie);
    effects.uploadedFullMovie->start();
    setPulseMovies(effects.gifPath, QSize(-1, -1));
}

void lexoria::setToFitEK_function()
{
    QMovie *preview = effects.uploadedPreviewMovie;
    preview->stop();
    preview->setScaledSize(QSize(effects.uploadThumbWidth, effects.uploadThumbHeight));
    ui->tnCurrentImage->setMovie(preview);
    preview->start();
    setPulseMovies(effects.gifPath, QSize(effects.uploadPulseWidth, effects.uploadPulseHeight));
}

// The speed of the pulses in a game follows the choice of gif, not the speed radios: those
// set the preview, and the movies until the options close.
void lexoria::loadVorticKeyboardGame()
{
    for (QMovie *movie : effects.pulseMovies) {
        movie->stop();
        movie->setFileName(effects.gifPath);
        movie->setSpeed(entryClearMs);
    }
}

QString &lexoria::pictureOn(int target)
{
    switch (target) {
    case Keypress:
        return pictures.keypressImageOn;
    case Highlight:
        return pictures.highlightImageOn;
    case Mouseover:
        return pictures.mouseoverImageOn;
    }
    return pictures.keysImageOn;
}

QString &lexoria::picturePath(int target)
{
    switch (target) {
    case Keypress:
        return pictures.keypressImagePath;
    case Highlight:
        return pictures.highlightImagePath;
    case Mouseover:
        return pictures.mouseoverImagePath;
    }
    return pictures.keysImagePath;
}

QMovie *lexoria::pictureMovie(int target)
{
    switch (target) {
    case Keypress:
        return &pictures.keypressMovie;
    case Highlight:
        return &pictures.highlightMovie;
    case Mouseover:
        return &pictures.mouseoverMovie;
    }
    return &pictures.keysMovie;
}

void lexoria::movie(int N)
{
    const KeyPictureGif &gif = keyPictureGifs[N - 1];
    for (int target = Keys; target <= Mouseover; ++target) {
        const PictureTarget &place = pictureTargets[target];
        if (!ui->find<QRadioButton>(QLatin1String(place.radio))->isChecked())
            continue;
        clearPictureTarget(target);
        pictureOn(target) = QStringLiteral("1");
        picturePath(target) = QString::fromLatin1(gif.resource);
        setPictureFitSize(target, QSize(gif.width, gif.height));
        showPicture(target, pictureFitSize(target));
        markPictureTarget(target, false);
    }
    ui->find<QRadioButton>(QLatin1String(gif.radio))->setChecked(true);
}

void lexoria::movieNone_function()
{
    ui->radioNone->setChecked(true);
    for (int target = Keys; target <= Mouseover; ++target) {
        if (ui->find<QRadioButton>(QLatin1String(pictureTargets[target].radio))->isChecked())
            clearPictureTarget(target);
    }
}

void lexoria::clearPictureTarget(int target)
{
    ui->find<QLabel>(QLatin1String(pictureTargets[target].display))->clear();
    picturePath(target).clear();
    pictureMovie(target)->stop();
    pictureOn(target) = QStringLiteral("0");
    if (target == Keys) {
        for (QLabel *image : qAsConst(keyImgLabels))
            image->hide();
    }
}

void lexoria::clearKeysImage_function()
{
    clearPictureTarget(Keys);
}

void lexoria::clearKeypressImage_function()
{
    clearPictureTarget(Keypress);
}

void lexoria::clearHighlightImage_function()
{
    clearPictureTarget(Highlight);
    goldHighOff();
    pictures.highlightImageOn = QStringLiteral("0");
    if (goldHighActive)
        goldHighOn();
    if (gameRunning)
        return;
    // The key a new game would start from may still show the picture from the last one.
    const bool forward = ui->rbForward_2->isChecked();
    if (!forward && !ui->rbReverse_2->isChecked())
        return;
    int n = 0;
    if (ui->rbVarious->isChecked())
        n = forward ? 33 : 1;
    else if (ui->rbConsonants->isChecked())
        n = forward ? 66 : 34;
    else if (ui->rbNumberLine->isChecked())
        n = forward ? 94 : 67;
    else if (ui->rbAll->isChecked())
        n = forward ? 94 : 1;
    if (n > 0)
        changeColorBack(n);
}

void lexoria::clearMouseoverImage_function()
{
    clearPictureTarget(Mouseover);
}
