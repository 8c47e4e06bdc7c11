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
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("frames");
    // A gif laid over a key must let the key show through around its figure.
    QTest::addColumn<bool>("overKey");

    const QSize any;
    QTest::newRow("angryEmotion2") << "angryEmotion2.gif" << QSize(96, 60) << 24 << true;
    QTest::newRow("birdsdance2") << "birdsdance2.gif" << QSize(96, 60) << 11 << true;
    QTest::newRow("butterfly1") << "butterfly1.gif" << QSize(96, 76) << 23 << true;
    QTest::newRow("explodeAll2") << "explodeAll2.gif" << QSize(96, 96) << 30 << true;
    QTest::newRow("swirl1") << "swirl1.gif" << QSize(100, 100) << 10 << true;
    QTest::newRow("kittyWalk") << "kittyWalk.gif" << QSize(100, 46) << 12 << true;
    QTest::newRow("pulsingLightSmall") << "pulsingLightSmall.gif" << QSize(54, 54) << 3 << true;
    QTest::newRow("snowSmall") << "snowSmall.gif" << QSize(84, 54) << 20 << true;
    QTest::newRow("rain") << "rain.gif" << QSize(80, 60) << 60 << true;
    QTest::newRow("bouncingSheepSmall") << "bouncingSheepSmall.gif" << QSize(34, 54) << 8 << true;
    QTest::newRow("marbleTransparentSmall")
        << "marbleTransparentSmall.gif" << QSize(54, 54) << 1 << true;
    QTest::newRow("snowfall") << "snowfall.gif" << QSize(100, 120) << 19 << true;
    QTest::newRow("blank") << "blank.gif" << QSize(1, 1) << 1 << true;
    QTest::newRow("russianFlag") << "russianFlag.gif" << any << 0 << false;
    QTest::newRow("english") << "english.gif" << any << 0 << false;
    QTest::newRow("arrow") << "arrow.gif" << any << 0 << false;
    QTest::newRow("arrowSide") << "arrowSide.gif" << any << 0 << false;
    QTest::newRow("bomb2") << "bomb2.gif" << any << 0 << false;
    QTest::newRow("explodeAll") << "explodeAll.gif" << any << 0 << false;
    QTest::newRow("iconOpen") << "iconOpen.gif" << any << 0 << false;
    QTest::newRow("pulsingLight") << "pulsingLight.gif" << any << 0 << false;
    QTest::newRow("snow") << "snow.gif" << any << 0 << false;
    QTest::newRow("swirl") << "swirl.gif" << any << 0 << false;
    QTest::newRow("swirl1Small") << "swirl1Small.gif" << any << 0 << false;
}

void tst_Resources::gifPlays()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QFETCH(int, frames);
    QFETCH(bool, overKey);

    QMovie movie(resourceDir + name);
    QVERIFY(movie.isValid());
    QCOMPARE(movie.format(), QByteArray("gif"));
    if (frames > 0)
        QCOMPARE(movie.frameCount(), frames);
    else
        QVERIFY(movie.frameCount() >= 1);

    QImageReader reader(resourceDir + name);
    if (size.isValid())
        QCOMPARE(reader.size(), size);
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
    QTest::addColumn<double>("seconds");
    QTest::addColumn<bool>("silent");

    QTest::newRow("bark") << "bark.wav" << 0.209 << false;
    QTest::newRow("meow") << "meow.wav" << 0.888 << false;
    QTest::newRow("quack1") << "quack1.wav" << 0.313 << false;
    QTest::newRow("quack") << "quack.wav" << -1.0 << false;
    QTest::newRow("photon") << "photon.wav" << 1.306 << false;
    QTest::newRow("photon2") << "photon2.wav" << 1.228 << false;
    QTest::newRow("whistle") << "whistle.wav" << 0.340 << false;
    QTest::newRow("bubble2") << "bubble2.wav" << 0.366 << false;
    QTest::newRow("chime1") << "chime1.wav" << 3.892 << false;
    QTest::newRow("explosion1") << "explosion1.wav" << 3.527 << false;
    QTest::newRow("machineGun2") << "machineGun2.wav" << 0.836 << false;
    QTest::newRow("typewriter") << "typewriter.wav" << 0.392 << false;
    // A silent key still plays a file, as long as the minigun burst.
    QTest::newRow("silence") << "silence.wav" << 0.836 << true;
}

void tst_Resources::waveIsPlayable()
{
    QFETCH(QString, name);
    QFETCH(double, seconds);
    QFETCH(bool, silent);

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

    if (seconds >= 0) {
        const double length = wave.samples.size() / 4 / 44100.0;
        QVERIFY2(qAbs(length - seconds) <= 0.005,
            qPrintable(QStringLiteral("%1 s, wanted %2 s").arg(length).arg(seconds)));
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
