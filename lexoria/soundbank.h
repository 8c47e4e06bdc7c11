#ifndef LEXORIA_SOUNDBANK_H
#define LEXORIA_SOUNDBANK_H

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

namespace sound {

class Output;

// Plays short wave files and forgets them. The playing itself is done by the sound module,
// loaded the first time a sound is preloaded or played: its Qt Multimedia and sound server
// libraries then cost nothing at start-up. Without the module, or without an output, every
// sound is silently dropped.
class SoundBank
{
public:
    SoundBank();
    ~SoundBank();

    // Connects to the output and decodes the given files while nobody waits for a sound.
    void preload(const QStringList &paths);
    // False when nothing was started: no output, an empty path, or a file that is no wave.
    bool play(const QString &path);

    // Where the module is looked for: beside the program, one folder up (for the tests and
    // benchmarks of a build), then where it is installed.
    static QStringList moduleFolders();

private:
    Output *output();

    bool loaded = false;
    std::unique_ptr<Output> module;
    QHash<QString, bool> playable;
};

// A RIFF/WAVE header, read from a file on disk or in the resources.
bool isWaveFile(const QString &path);

} // namespace sound

#endif
