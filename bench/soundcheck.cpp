// Plays key presses into the sound server and records what comes out of it: how long after
// the press the sound starts, and a wave file of the whole take to listen to. Needs a sound
// server with a monitor source (see README.md); without one it says so and stops.
#include "lexoria/lexoria.h"

#include <QApplication>
#include <QAudioDeviceInfo>
#include <QAudioInput>
#include <QElapsedTimer>
#include <QFile>
#include <QPushButton>
#include <QRadioButton>
#include <QtEndian>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

QAudioDeviceInfo monitorSource()
{
    for (const QAudioDeviceInfo &device : QAudioDeviceInfo::availableDevices(QAudio::AudioInput)) {
        if (device.deviceName().endsWith(QLatin1String(".monitor")))
            return device;
    }
    return QAudioDeviceInfo::defaultInputDevice();
}

void writeWave(const QString &path, const QByteArray &pcm, const QAudioFormat &format)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    auto u32 = [&file](quint32 v) {
        v = qToLittleEndian(v);
        file.write(reinterpret_cast<const char *>(&v), 4);
    };
    auto u16 = [&file](quint16 v) {
        v = qToLittleEndian(v);
        file.write(reinterpret_cast<const char *>(&v), 2);
    };
    const int block = format.channelCount() * format.sampleSize() / 8;
    file.write("RIFF");
    u32(36 + pcm.size());
    file.write("WAVEfmt ");
    u32(16);
    u16(1);
    u16(format.channelCount());
    u32(format.sampleRate());
    u32(format.sampleRate() * block);
    u16(block);
    u16(format.sampleSize());
    file.write("data");
    u32(pcm.size());
    file.write(pcm);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const QString radio = argc > 1 ? QString::fromLocal8Bit(argv[1]) : "audioTypewriter";
    const QString dump = argc > 2 ? QString::fromLocal8Bit(argv[2]) : "soundcheck.wav";
    const int presses = 20;

    const QAudioDeviceInfo source = monitorSource();
    if (source.isNull()) {
        std::fprintf(stderr, "no sound server with a monitor source\n");
        return 2;
    }
    QAudioFormat format;
    format.setSampleRate(44100);
    format.setChannelCount(2);
    format.setSampleSize(16);
    format.setSampleType(QAudioFormat::SignedInt);
    format.setByteOrder(QAudioFormat::LittleEndian);
    format.setCodec("audio/pcm");

    lexoria w;
    w.openLexoria();
    w.findChild<QRadioButton *>(radio)->click();
    QTest::qWait(1500);

    QAudioInput input(source, format);
    input.setBufferSize(44100 * 4 / 200); // 5 ms
    QIODevice *recording = input.start();
    QByteArray pcm;
    QElapsedTimer clock;
    clock.start();
    qint64 pressedAt = -1;
    std::vector<double> delays;
    QObject::connect(recording, &QIODevice::readyRead, [&] {
        const QByteArray chunk = recording->readAll();
        const qint64 arrived = clock.nsecsElapsed();
        pcm += chunk;
        if (pressedAt < 0)
            return;
        const auto *samples = reinterpret_cast<const qint16 *>(chunk.constData());
        for (int i = 0; i < chunk.size() / 2; ++i) {
            if (std::abs(samples[i]) > 200) {
                // The chunk arrived after its last sample; the loud one lies that much earlier.
                const double after = (chunk.size() / 2 - i) / 2.0 / 44.1;
                delays.push_back((arrived - pressedAt) / 1e6 - after);
                pressedAt = -1;
                break;
            }
        }
    });
    // The recording stream takes a moment to deliver its first data.
    QTest::qWait(1000);
    for (int press = 0; press < presses; ++press) {
        pressedAt = clock.nsecsElapsed();
        QTest::keyPress(&w, Qt::Key_F);
        QTest::keyRelease(&w, Qt::Key_F);
        QTest::qWait(600);
        pressedAt = -1;
    }
    input.stop();
    writeWave(dump, pcm, format);

    for (double delay : delays)
        std::printf("%.1f ", delay);
    std::printf("\n");
    std::sort(delays.begin(), delays.end());
    std::printf("%s: %zu of %d presses heard", qPrintable(radio), delays.size(), presses);
    if (!delays.empty())
        std::printf(", press to sound %.1f ms median, %.1f .. %.1f ms", delays[delays.size() / 2],
            delays.front(), delays.back());
    std::printf("; recording in %s\n", qPrintable(dump));
    return delays.size() == std::size_t(presses) ? 0 : 1;
}
