#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QMovie>
#include <QPixmap>
#include <QSet>
#include <QtEndian>
#include <QtTest>

namespace {

const QString resourceDir = QStringLiteral(":/new/prefix1/");

// Every file the program reaches under the prefix, with the letter case it uses.
const char *const collection[] = {"bark.wav", "bubble2.wav", "chime1.wav", "explosion1.wav",
    "machineGun2.wav", "meow.wav", "photon.wav", "photon2.wav", "quack.wav", "quack1.wav",
    "silence.wav", "typewriter.wav", "whistle.wav", "angryEmotion2.gif", "arrow.gif",
    "arrowSide.gif", "birdsdance2.gif", "blank.gif", "bomb2.gif", "bouncingSheepSmall.gif",
    "butterfly1.gif", "english.gif", "explodeAll.gif", "explodeAll2.gif", "iconOpen.gif",
    "kittyWalk.gif", "marbleTransparentSmall.gif", "pulsingLight.gif", "pulsingLightSmall.gif",
    "rain.gif", "russianFlag.gif", "snow.gif", "snowfall.gif", "snowSmall.gif", "swirl.gif",
    "swirl1.gif", "swirl1Small.gif", "alphaAndShadows.png", "alphabetBar.png",
    "AlphabetBarFinished.png", "alphaChannel.png", "animation.png", "arrow2.png", "arrowDown.png",
    "arrowUp.png", "bottomLeft.PNG", "bottomLeft1.png", "bottomLeftPix.png", "bottomRightPix.png",
    "bridge1.png", "bridge2.png", "cantFindIt.png", "chdown.png", "chmiddle.png", "chup.png",
    "circleKey.png", "clickKeyToSet.png", "clickThis.png", "colorMadnessKeySmall.png",
    "colorMadnessPaintSmall.png", "colorPicker.png", "cp.png", "cpKeyBg.png", "currentGame.png",
    "digRight.png", "directionButtons.PNG", "down.PNG", "downleft.PNG", "downleft1.png", "duck.png",
    "extra1.png", "extraBox.png", "extras.png", "fonts1small.png", "fonts2small.png", "fonts3.png",
    "gamePlay.png", "gamePlay3.png", "glasses.png", "grayedOut.png", "help.png",
    "hideNonVitals.PNG", "highlight.png", "includeHeader.png", "insLeft.png", "insRight.png",
    "installedThemes.png", "Instructions.png", "key.png", "keyboard.png", "keyFinished.png",
    "keyPress.png", "left.PNG", "lineHigh1.png", "lineHigh2.png", "Lines.png", "mainScreen.png",
    "mouse1.png", "mouse2.png", "mouseOver.png", "multiCharacters.png", "open.png", "options.png",
    "optionsClosed.png", "optionsMain.png", "paint.png", "paintKey.png", "pictures.png",
    "picturesSmall.png", "playLabel.png", "push.png", "quit.png", "right.PNG",
    "russianNosferatu.png", "save.png", "saveFile.png", "scoreboard.png", "Shadows2.png",
    "shadowsFinal.png", "smallNote.png", "sof.png", "soundEffects.png", "soundEffects1.png",
    "squareKey.png", "start1.png", "start2.png", "start3.png", "start4.png", "strick.png",
    "topleft.PNG", "topleft1.png", "topLeftPix.png", "topright.PNG", "topright1.png",
    "topRightPix.png", "transparent_text_effectCov.png", "up.PNG", "veryCenter.PNG", "vortic1.png",
    "vorticKeyboardFinal.png", "vorticTypingBrelom.png", "wallpaper.png", "youTube.png"};

// "chup.png" for "chup@2x.png"; empty for a name that is no twin.
QString twinOf(const QString &name)
{
    const int at = name.lastIndexOf(QLatin1String("@2x."));
    return at < 0 ? QString() : name.left(at) + name.mid(at + 3);
}

QStringList namesEndingWith(const QString &suffix)
{
    QStringList names;
    for (const char *name : collection) {
        if (QString::fromLatin1(name).endsWith(suffix, Qt::CaseInsensitive))
            names << QString::fromLatin1(name);
    }
    return names;
}

struct Wave
{
    quint16 format = 0;
    quint16 channels = 0;
    quint32 sampleRate = 0;
    quint32 byteRate = 0;
    quint16 blockAlign = 0;
    quint16 bitsPerSample = 0;
    QByteArray samples;
};

// Reads the header the way a strict player would: RIFF size, then chunk by chunk.
QString parseWave(const QByteArray &file, Wave *wave)
{
    if (file.size() < 12 || !file.startsWith("RIFF") || file.mid(8, 4) != "WAVE")
        return QStringLiteral("not a RIFF/WAVE file");
    const quint32 riffSize = qFromLittleEndian<quint32>(file.constData() + 4);
    if (riffSize != quint32(file.size() - 8))
        return QStringLiteral("RIFF size %1, file holds %2").arg(riffSize).arg(file.size() - 8);
    bool haveFormat = false;
    bool haveData = false;
    int pos = 12;
    while (pos + 8 <= file.size()) {
        const QByteArray id = file.mid(pos, 4);
        const quint32 size = qFromLittleEndian<quint32>(file.constData() + pos + 4);
        const int body = pos + 8;
        if (qint64(body) + size > file.size())
            return QStringLiteral("chunk %1 runs past the end").arg(QString::fromLatin1(id));
        if (id == "fmt " && size >= 16) {
            const char *p = file.constData() + body;
            wave->format = qFromLittleEndian<quint16>(p);
            wave->channels = qFromLittleEndian<quint16>(p + 2);
            wave->sampleRate = qFromLittleEndian<quint32>(p + 4);
            wave->byteRate = qFromLittleEndian<quint32>(p + 8);
            wave->blockAlign = qFromLittleEndian<quint16>(p + 12);
            wave->bitsPerSample = qFromLittleEndian<quint16>(p + 14);
            haveFormat = true;
        } else if (id == "data") {
            wave->samples = file.mid(body, int(size));
            haveData = true;
        }
        pos = body + int(size) + int(size % 2);
    }
    if (!haveFormat)
        return QStringLiteral("no fmt chunk");
    if (!haveData)
        return QStringLiteral("no data chunk");
    return QString();
}

} // namespace

class tst_Resources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void collectionIsExactlyTheList();
    void twinsAreTwiceTheirPicture();
    void collectionStaysSmall();
    void pictureLoads_data();
    void pictureLoads();
    void gifPlays_data();
    void gifPlays();
    void waveIsPlayable_data();
    void waveIsPlayable();
};

void tst_Resources::initTestCase()
{
    // The collection is compiled into a static library, whose initialiser the linker
    // would otherwise drop.
    Q_INIT_RESOURCE(resources);
    QVERIFY(QDir(resourceDir).exists());
}

void tst_Resources::collectionIsExactlyTheList()
{
    QSet<QString> expected;
    for (const char *name : collection)
        expected.insert(QString::fromLatin1(name));
    QCOMPARE(expected.size(), 143);

    QSet<QString> actual;
    for (const QString &name : QDir(resourceDir).entryList(QDir::Files | QDir::Hidden))
        actual.insert(twinOf(name).isEmpty() ? name : twinOf(name));

    QStringList missing = (expected - actual).values();
    QStringList extra = (actual - expected).values();
    missing.sort();
    extra.sort();
    QVERIFY2(missing.isEmpty(), qPrintable("missing: " + missing.join(QLatin1String(", "))));
    QVERIFY2(extra.isEmpty(), qPrintable("not in the list: " + extra.join(QLatin1String(", "))));
}

// The "@2x" twin of a picture is drawn at twice its pixels for HiDPI screens.
void tst_Resources::twinsAreTwiceTheirPicture()
{
    int twins = 0;
    for (const QString &name : QDir(resourceDir).entryList(QDir::Files)) {
        const QString picture = twinOf(name);
        if (picture.isEmpty())
            continue;
        ++twins;
        QCOMPARE(QImage(resourceDir + name).size(), QImage(resourceDir + picture).size() * 2);
    }
    QVERIFY(twins > 0);
}

void tst_Resources::collectionStaysSmall()
{
    qint64 total = 0;
    for (const QFileInfo &file : QDir(resourceDir).entryInfoList(QDir::Files))
        total += file.size();
    QVERIFY2(total < 4 * 1024 * 1024, qPrintable(QStringLiteral("%1 bytes").arg(total)));
}

void tst_Resources::pictureLoads_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");

    // Sizes are checked where a widget shows the picture unscaled at a fixed size.
    const QHash<QString, QSize> fixedSizes = {
        {QStringLiteral("vortic1.png"), QSize(381, 65)},
        {QStringLiteral("arrow2.png"), QSize(55, 63)},
        {QStringLiteral("mainScreen.png"), QSize(767, 449)},
        {QStringLiteral("chdown.png"), QSize(144, 115)},
        {QStringLiteral("chmiddle.png"), QSize(144, 115)},
        {QStringLiteral("chup.png"), QSize(144, 115)},
    };
    for (const QString &name : namesEndingWith(QStringLiteral(".png")))
        QTest::newRow(qPrintable(name)) << name << fixedSizes.value(name);
}

void tst_Resources::pictureLoads()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);

    const QPixmap pixmap(resourceDir + name);
    QVERIFY(!pixmap.isNull());
    if (size.isValid())
        QCOMPARE(pixmap.size(), size);
}

void tst_Resources::gifPlays_data()
{
    QTest::addColumn<QString>("name");
    // A gif laid over a key must let the key show through around its figure.
    QTest::addColumn<bool>("overKey");

    const QStringList overKeys
        = {"angryEmotion2.gif", "birdsdance2.gif", "butterfly1.gif", "explodeAll2.gif",
            "swirl1.gif", "kittyWalk.gif", "pulsingLightSmall.gif", "snowSmall.gif", "rain.gif",
            "bouncingSheepSmall.gif", "marbleTransparentSmall.gif", "snowfall.gif", "blank.gif"};
    for (const QString &name : namesEndingWith(QStringLiteral(".gif")))
        QTest::newRow(qPrintable(name)) << name << overKeys.contains(name);
}

void tst_Resources::gifPlays()
{
    QFETCH(QString, name);
    QFETCH(bool, overKey);

    QMovie movie(resourceDir + name);
    QVERIFY(movie.isValid());
    QCOMPARE(movie.format(), QByteArray("gif"));
    QVERIFY(movie.frameCount() >= 1);

    QImageReader reader(resourceDir + name);
    // The thumbnails and keys run their movies for ever.
    if (movie.frameCount() > 1)
        QCOMPARE(reader.loopCount(), -1);

    QVERIFY(movie.jumpToFrame(0));
    const QImage first = movie.currentImage();
    QVERIFY(!first.isNull());
    QCOMPARE(first.size(), reader.size());
    if (overKey) {
        QVERIFY(first.hasAlphaChannel());
        int clear = 0;
        for (int y = 0; y < first.height(); ++y) {
            for (int x = 0; x < first.width(); ++x)
                clear += qAlpha(first.pixel(x, y)) == 0;
        }
        QVERIFY2(clear * 10 >= first.width() * first.height(),
            qPrintable(QStringLiteral("%1 clear pixels").arg(clear)));
    }
}

void tst_Resources::waveIsPlayable_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : namesEndingWith(QStringLiteral(".wav")))
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Resources::waveIsPlayable()
{
    QFETCH(QString, name);
    QFile file(resourceDir + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    Wave wave;
    const QString error = parseWave(file.readAll(), &wave);
    QVERIFY2(error.isEmpty(), qPrintable(error));

    QCOMPARE(wave.format, quint16(1));
    QCOMPARE(wave.channels, quint16(2));
    QCOMPARE(wave.sampleRate, quint32(44100));
    QCOMPARE(wave.bitsPerSample, quint16(16));
    QCOMPARE(wave.blockAlign, quint16(4));
    QCOMPARE(wave.byteRate, quint32(44100 * 4));
    QCOMPARE(wave.samples.size() % 4, 0);
    QVERIFY(!wave.samples.isEmpty());

    // A silent key still plays a file, as long as the minigun burst.
    const bool silent = name == QLatin1String("silence.wav");
    if (silent) {
        QFile burstFile(resourceDir + "machineGun2.wav");
        QVERIFY(burstFile.open(QIODevice::ReadOnly));
        Wave burst;
        QVERIFY(parseWave(burstFile.readAll(), &burst).isEmpty());
        QCOMPARE(wave.samples.size(), burst.samples.size());
    }

    int peak = 0;
    const char *p = wave.samples.constData();
    for (int i = 0; i + 2 <= wave.samples.size(); i += 2)
        peak = qMax(peak, qAbs(int(qFromLittleEndian<qint16>(p + i))));
    if (silent)
        QCOMPARE(peak, 0);
    else
        QVERIFY2(peak > 8000, qPrintable(QStringLiteral("peak %1 is hardly audible").arg(peak)));
}

QTEST_MAIN(tst_Resources)
#include "tst_resources.moc"
