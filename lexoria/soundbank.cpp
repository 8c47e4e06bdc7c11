#include "lexoria/soundbank.h"

#include "lexoria/soundoutput.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibrary>

namespace sound {

bool isWaveFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = file.read(12);
    return header.size() == 12 && header.startsWith("RIFF") && header.endsWith("WAVE");
}

SoundBank::SoundBank() = default;

SoundBank::~SoundBank() = default;

QStringList SoundBank::moduleFolders()
{
    const QString program = QCoreApplication::applicationDirPath();
    return {program, QDir::cleanPath(program + QLatin1String("/..")),
        QStringLiteral(VORTIC_SOUND_MODULE_DIR)};
}

Output *SoundBank::output()
{
    if (loaded)
        return module.get();
    loaded = true;
    QString tried;
    for (const QString &folder : moduleFolders()) {
        QLibrary library(folder + QLatin1String("/vortic-sound"));
        // The module stays loaded for the life of the program, as its voices do.
        library.setLoadHints(QLibrary::PreventUnloadHint);
        const auto create
            = reinterpret_cast<VorticCreateSoundOutput>(library.resolve(VORTIC_SOUND_FACTORY));
        if (create) {
            module.reset(create());
            if (!module->hasDevice())
                module.reset();
            return module.get();
        }
        tried += QLatin1String("\n  ") + library.errorString();
    }
    qWarning("No sound: the sound module was not found.%s", qPrintable(tried));
    return nullptr;
}

void SoundBank::preload(const QStringList &paths)
{
    if (Output *out = output())
        out->preload(paths);
}

bool SoundBank::play(const QString &path)
{
    if (path.isEmpty())
        return false;
    auto known = playable.constFind(path);
    if (known == playable.constEnd())
        known = playable.insert(path, isWaveFile(path));
    if (!known.value())
        return false;
    Output *out = output();
    if (!out)
        return false;
    out->play(path);
    return true;
}

} // namespace sound
