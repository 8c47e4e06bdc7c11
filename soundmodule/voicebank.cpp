#include "lexoria/soundoutput.h"

#include <QAudioDeviceInfo>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QSoundEffect>
#include <QVector>

#include <memory>

namespace {

// Every file keeps a few preloaded voices, so that a key press only starts a sound that is
// already decoded and connected to the output: a stream made per press, as a one-shot player
// makes it, costs the keyboard time and the sound its latency. Sounds of one file overlap up
// to the number of voices; past it the one started longest ago starts over.
class VoiceBank : public sound::Output
{
public:
    static constexpr int maxVoices = 6;

    // Without a sound server every new stream reports its failed connection; asking once and
    // then staying quiet keeps such a machine free of a warning per key press.
    bool hasDevice() override
    {
        if (!probed) {
            probed = true;
            device = !QAudioDeviceInfo::defaultOutputDevice().isNull();
        }
        return device;
    }

    void preload(const QStringList &paths) override
    {
        if (!hasDevice())
            return;
        for (const QString &path : paths) {
            Voices &voices = bank[path];
            if (voices.effects.isEmpty())
                addVoice(path, voices);
        }
    }

    void play(const QString &path) override
    {
        if (!hasDevice() || broken.contains(path))
            return;
        Voices &voices = bank[path];
        QSoundEffect *voice = nullptr;
        for (QSoundEffect *effect : qAsConst(voices.effects)) {
            if (!effect->isPlaying()) {
                voice = effect;
                break;
            }
        }
        if (!voice && voices.effects.size() < maxVoices)
            voice = addVoice(path, voices);
        if (!voice) {
            voice = voices.effects[voices.next];
            voices.next = (voices.next + 1) % voices.effects.size();
            voice->stop();
        }
        voice->play();
    }

private:
    struct Voices
    {
        QVector<QSoundEffect *> effects;
        int next = 0;
    };

    QSoundEffect *addVoice(const QString &path, Voices &voices)
    {
        auto *effect = new QSoundEffect(&owner);
        effect->setSource(sound::sourceOf(path));
        // A file with a wave header may still fail to decode; it is then never tried again.
        QObject::connect(effect, &QSoundEffect::statusChanged, &owner, [this, effect, path] {
            if (effect->status() == QSoundEffect::Error)
                broken.insert(path);
        });
        voices.effects.append(effect);
        return effect;
    }

    QObject owner;
    bool probed = false;
    bool device = false;
    QHash<QString, Voices> bank;
    QSet<QString> broken;
};

} // namespace

extern "C" Q_DECL_EXPORT sound::Output *vorticCreateSoundOutput()
{
    return new VoiceBank;
}
