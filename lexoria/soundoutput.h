#ifndef LEXORIA_SOUNDOUTPUT_H
#define LEXORIA_SOUNDOUTPUT_H

#include <QString>
#include <QStringList>
#include <QUrl>

namespace sound {

// What the sound module offers the program. The module alone links Qt Multimedia, whose
// libraries would otherwise be loaded before the first window can show.
class Output
{
public:
    virtual ~Output() = default;
    // False when the machine has no output to play on; nothing is then ever played.
    virtual bool hasDevice() = 0;
    virtual void preload(const QStringList &paths) = 0;
    virtual void play(const QString &path) = 0;
};

// Resource paths ":/…" become qrc URLs, everything else a local file.
inline QUrl sourceOf(const QString &path)
{
    if (path.startsWith(QLatin1String(":/")))
        return QUrl(QLatin1String("qrc") + path);
    return QUrl::fromLocalFile(path);
}

} // namespace sound

// The one symbol the module exports.
using VorticCreateSoundOutput = sound::Output *(*)();
#define VORTIC_SOUND_FACTORY "vorticCreateSoundOutput"

#endif
