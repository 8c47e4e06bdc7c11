#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/keysound.h"
#include "lexoria/soundbank.h"

#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

namespace {

const QString silenceFile = QStringLiteral(":/new/prefix1/silence.wav");

// The supplied key-press sounds, in the order audio() reads their radios.
struct SuppliedSound
{
    const char *radio;
    const char *file;
    const char *hoverLabel;
};

constexpr SuppliedSound suppliedSounds[] = {
    {"audioTypewriter", ":/new/prefix1/typewriter.wav", "playTypewriter"},
    {"audioExplosion", ":/new/prefix1/explosion1.wav", "playExplosion"},
    {"audioQuack", ":/new/prefix1/quack1.wav", "playQuack"},
    {"audioBark", ":/new/prefix1/bark.wav", "playBark"},
    {"audioMeow", ":/new/prefix1/meow.wav", "playMeow"},
    {"audioPhoton", ":/new/prefix1/photon.wav", "playPhoton"},
    {"audioPhoton2", ":/new/prefix1/photon2.wav", "playPhoton2"},
    {"audioWhistle", ":/new/prefix1/whistle.wav", "playWhistle"},
    {"audioChime1", ":/new/prefix1/chime1.wav", "playChime1"},
    {"audioBubble", ":/new/prefix1/bubble2.wav", "playBubble"},
    {"audioMinigun", ":/new/prefix1/machineGun2.wav", "playMinigun"},
};

// The pulse sound of each gif choice, in the order "Apply audio" falls back through them
// when it is unchecked.
struct GifSound
{
    const char *radio;
    const char *file;
};

constexpr GifSound gifSounds[] = {
    {"explosion", ":/new/prefix1/explosion1.wav"},
    {"angryE", ":/new/prefix1/machineGun2.wav"},
    {"butterfly", ":/new/prefix1/silence.wav"},
    {"birdsdancing", ":/new/prefix1/silence.wav"},
    {"useUploaded", ":/new/prefix1/silence.wav"},
    {"finishedNone", ":/new/prefix1/silence.wav"},
};

// Decoding and connecting the voices waits until the opening window has been up a while,
// so that neither the start nor the first key press pays for it.
constexpr int soundWarmUpMs = 1000;

} // namespace

void lexoria::setUpSound()
{
    silenceSound = silenceFile;
    keypressSound = silenceSound;
    pulseSound = silenceSound;
    uploadedKeypressFiles = QStringList {silenceSound};
    uploadedPulseFiles = QStringList {silenceSound};
    soundBank = std::make_unique<sound::SoundBank>();

    QStringList preloaded {silenceSound};
    for (const SuppliedSound &supplied : suppliedSounds) {
        connect(ui->find<QRadioButton>(QLatin1String(supplied.radio)), &QRadioButton::clicked, this,
            &lexoria::audio);
        ui->widget(QLatin1String(supplied.hoverLabel))->installEventFilter(this);
        preloaded.append(QLatin1String(supplied.file));
    }
    for (QRadioButton *radio : {ui->useUploadedAudio, ui->audioNone})
        connect(radio, &QRadioButton::clicked, this, &lexoria::audio);
    for (const char *hoverLabel : {"playUploadedAudio", "playUploadedAudioPulse"})
        ui->widget(QLatin1String(hoverLabel))->installEventFilter(this);
    connect(ui->openAudio, &QPushButton::clicked, this, &lexoria::openAudio_Function);
    connect(ui->openAudioPulse, &QPushButton::clicked, this, &lexoria::openAudioPulse_Function);
    connect(ui->applyAudioToPulse, &QCheckBox::clicked, this, &lexoria::applyAudioToPulse_function);

    QTimer::singleShot(soundWarmUpMs, this, [this, preloaded] { soundBank->preload(preloaded); });
}

void lexoria::playSound(const QString &path)
{
    soundBank->play(path);
    emit soundPlayed(path);
}

void lexoria::playPulseSound()
{
    playSound(pulseSound);
}

// The last step of every key press; Space and the control keys never get here.
void lexoria::keyPressSound(int n)
{
    const sound::KeyPress press {
        ui->leMatch->text() == letterList[n - 1],
        ui->strict->isChecked(),
        letterDone[n],
        effects.gifEffectOn,
        ui->effectNone->isChecked(),
    };
    playSound(sound::isSilentKeyPress(press) ? silenceSound : keypressSound);
}

void lexoria::audio()
{
    for (const SuppliedSound &supplied : suppliedSounds) {
        if (ui->find<QRadioButton>(QLatin1String(supplied.radio))->isChecked())
            keypressSound = QLatin1String(supplied.file);
    }
    if (ui->useUploadedAudio->isChecked())
        keypressSound = uploadedKeypressFiles.first();
    if (ui->audioNone->isChecked())
        keypressSound.clear();
}

void lexoria::audioUploadedAudio()
{
    playSound(uploadedKeypressFiles.first());
}

void lexoria::audioUploadedAudioPulse()
{
    playSound(uploadedPulseFiles.first());
}

// A hover label plays its sound when the mouse comes onto it and lets it play to the end.
bool lexoria::previewSound(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Enter)
        return false;
    const QString name = watched->objectName();
    for (const SuppliedSound &supplied : suppliedSounds) {
        if (name == QLatin1String(supplied.hoverLabel)) {
            playSound(QLatin1String(supplied.file));
            return true;
        }
    }
    if (name == QLatin1String("playUploadedAudio")) {
        audioUploadedAudio();
        return true;
    }
    if (name == QLatin1String("playUploadedAudioPulse")) {
        audioUploadedAudioPulse();
        return true;
    }
    return false;
}

// Cancelling leaves silence as the upload, so that choosing "Uploaded" still has a file.
QStringList lexoria::chooseWaveFiles()
{
    QStringList files = askFiles({FileQuestion::OpenMany, {}, {}, QStringLiteral("Audio(*wav)")});
    if (files.isEmpty())
        files.append(silenceSound);
    return files;
}

void lexoria::openAudio_Function()
{
    uploadedKeypressFiles = chooseWaveFiles();
    keypressSound = uploadedKeypressFiles.first();
    ui->useUploadedAudio->setEnabled(true);
    ui->useUploadedAudio->setChecked(true);
}

void lexoria::openAudioPulse_Function()
{
    uploadedPulseFiles = chooseWaveFiles();
    pulseSound = uploadedPulseFiles.first();
    ui->applyAudioToPulse->setEnabled(true);
    ui->applyAudioToPulse->setChecked(true);
}

QString lexoria::pulseSoundForGif(const QString &gifRadio) const
{
    if (ui->applyAudioToPulse->isChecked())
        return uploadedPulseFiles.first();
    for (const GifSound &gif : gifSounds) {
        if (gifRadio == QLatin1String(gif.radio))
            return QLatin1String(gif.file);
    }
    return silenceSound;
}

void lexoria::applyAudioToPulse_function()
{
    if (ui->applyAudioToPulse->isChecked()) {
        pulseSound = uploadedPulseFiles.first();
        return;
    }
    // With no gif chosen a pulse never plays, so silence is as good as any.
    pulseSound = silenceSound;
    for (const GifSound &gif : gifSounds) {
        const auto *radio = findChild<QRadioButton *>(QLatin1String(gif.radio));
        if (radio && radio->isChecked()) {
            pulseSound = QLatin1String(gif.file);
            return;
        }
    }
}
