#include "gamedriver.h"
#include "lexoria/keysound.h"
#include "lexoria/lexoria.h"
#include "lexoria/soundbank.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QFrame>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QString silence = ":/new/prefix1/silence.wav";

QString resource(const char *file)
{
    return QStringLiteral(":/new/prefix1/") + QLatin1String(file);
}

// Answers the file dialog that is about to open: picks the file, or cancels on an empty one.
void answerFileDialog(const QString &file)
{
    auto answer = std::make_shared<std::function<void()>>();
    *answer = [file, answer] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            QTimer::singleShot(10, *answer);
            return;
        }
        QCOMPARE(dialog->nameFilters(), QStringList {"Audio(*wav)"});
        if (file.isEmpty()) {
            dialog->reject();
        } else {
            dialog->selectFile(file);
            // accept() is protected in QFileDialog; the dialog's own slot does the same.
            QMetaObject::invokeMethod(dialog, "accept");
        }
        *answer = nullptr;
    };
    QTimer::singleShot(0, *answer);
}

} // namespace

class tst_Sound : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void keyPressPlaysChosenSound_data();
    void keyPressPlaysChosenSound();
    void spaceAndControlKeysAreQuiet();
    void silentKeyPressRule_data();
    void silentKeyPressRule();
    void finishedLetterWithoutEffectKeepsItsSound();
    void previewsPlayOnEnterOnly_data();
    void previewsPlayOnEnterOnly();
    void uploadDialogs_data();
    void uploadDialogs();
    void pulseSoundFollowsGifChoice_data();
    void pulseSoundFollowsGifChoice();
    void unplayableUploadsPlayNothing();
    void panelOpensAndParks();

private:
    template <class T> T *find(const QString &name) const { return window->findChild<T *>(name); }
    QString lastSound() const { return spy->isEmpty() ? "<none>" : spy->last().at(0).toString(); }
    QString copyOf(const char *file);

    std::unique_ptr<lexoria> window;
    std::unique_ptr<GameDriver> game;
    std::unique_ptr<QSignalSpy> spy;
    QTemporaryDir scratch;
};

void tst_Sound::init()
{
    window = std::make_unique<lexoria>();
    game = std::make_unique<GameDriver>(window.get());
    spy = std::make_unique<QSignalSpy>(window.get(), &lexoria::soundPlayed);
}

void tst_Sound::cleanup()
{
    spy.reset();
    game.reset();
    window.reset();
}

QString tst_Sound::copyOf(const char *file)
{
    const QString copy = scratch.filePath(QLatin1String(file));
    QFile::remove(copy);
    QFile::copy(resource(file), copy);
    return copy;
}

void tst_Sound::keyPressPlaysChosenSound_data()
{
    QTest::addColumn<QString>("radio");
    QTest::addColumn<QString>("file");
    QTest::newRow("at start") << QString() << silence;
    QTest::newRow("Dog Bark") << "audioBark" << resource("bark.wav");
    QTest::newRow("Happy Cat") << "audioMeow" << resource("meow.wav");
    QTest::newRow("Quack") << "audioQuack" << resource("quack1.wav");
    QTest::newRow("Photon") << "audioPhoton" << resource("photon.wav");
    QTest::newRow("Photon II") << "audioPhoton2" << resource("photon2.wav");
    QTest::newRow("Whistle") << "audioWhistle" << resource("whistle.wav");
    QTest::newRow("Bubble") << "audioBubble" << resource("bubble2.wav");
    QTest::newRow("Chime") << "audioChime1" << resource("chime1.wav");
    QTest::newRow("Explosion") << "audioExplosion" << resource("explosion1.wav");
    QTest::newRow("Minigun") << "audioMinigun" << resource("machineGun2.wav");
    QTest::newRow("Typewriter") << "audioTypewriter" << resource("typewriter.wav");
    QTest::newRow("None") << "audioNone" << QString("");
}

void tst_Sound::keyPressPlaysChosenSound()
{
    QFETCH(QString, radio);
    QFETCH(QString, file);
    if (!radio.isEmpty())
        find<QRadioButton>(radio)->click();
    QVERIFY(spy->isEmpty());
    // Lower and upper case, a digit and a sign: every letter number sounds the same.
    for (int n : {1, 34, 67, 94}) {
        game->type(n);
        QCOMPARE(lastSound(), file);
    }
    QCOMPARE(spy->count(), 4);
}

void tst_Sound::spaceAndControlKeysAreQuiet()
{
    find<QRadioButton>("audioBark")->click();
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backspace,
             Qt::Key_Shift, Qt::Key_CapsLock, Qt::Key_F1, Qt::Key_Left})
        QTest::keyClick(window.get(), key);
    QCOMPARE(spy->count(), 0);
}

void tst_Sound::silentKeyPressRule_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("strict");
    QTest::addColumn<bool>("finished");
    QTest::addColumn<bool>("gif");
    QTest::addColumn<bool>("effectNone");
    QTest::addColumn<bool>("silent");
    QTest::newRow("Strict, gif, the asked letter") << true << true << false << true << true << true;
    QTest::newRow("Strict, gif, a wrong key") << false << true << false << true << true << false;
    QTest::newRow("Soft, gif, the asked letter") << true << false << false << true << true << false;
    QTest::newRow("Strict, fade, the asked letter")
        << true << true << false << false << false << false;
    QTest::newRow("finished, no effect") << false << false << true << false << true << false;
    QTest::newRow("finished, fade") << false << false << true << false << false << true;
    QTest::newRow("finished, gif") << false << true << true << true << true << true;
    QTest::newRow("not finished, fade") << false << false << false << false << false << false;
}

void tst_Sound::silentKeyPressRule()
{
    QFETCH(bool, shown);
    QFETCH(bool, strict);
    QFETCH(bool, finished);
    QFETCH(bool, gif);
    QFETCH(bool, effectNone);
    QFETCH(bool, silent);
    QCOMPARE(sound::isSilentKeyPress({shown, strict, finished, gif, effectNone}), silent);
}

// With no effect chosen a found key keeps its sound: the right entry, and the same key after.
void tst_Sound::finishedLetterWithoutEffectKeepsItsSound()
{
    find<QRadioButton>("audioWhistle")->click();
    game->click("strict");
    game->startGame("pbForwardVarious");
    game->type(1);
    QCOMPARE(lastSound(), resource("whistle.wav"));
    QCOMPARE(game->text("labelCorrect"), QString("1"));
    QTRY_COMPARE(game->field("leUser")->text(), QString());
    game->type(1);
    QCOMPARE(lastSound(), resource("whistle.wav"));
}

void tst_Sound::previewsPlayOnEnterOnly_data()
{
    QTest::addColumn<QString>("hoverLabel");
    QTest::addColumn<QString>("file");
    QTest::newRow("bark") << "playBark" << resource("bark.wav");
    QTest::newRow("meow") << "playMeow" << resource("meow.wav");
    QTest::newRow("quack") << "playQuack" << resource("quack1.wav");
    QTest::newRow("photon") << "playPhoton" << resource("photon.wav");
    QTest::newRow("photon 2") << "playPhoton2" << resource("photon2.wav");
    QTest::newRow("whistle") << "playWhistle" << resource("whistle.wav");
    QTest::newRow("bubble") << "playBubble" << resource("bubble2.wav");
    QTest::newRow("chime") << "playChime1" << resource("chime1.wav");
    QTest::newRow("explosion") << "playExplosion" << resource("explosion1.wav");
    QTest::newRow("minigun") << "playMinigun" << resource("machineGun2.wav");
    QTest::newRow("typewriter") << "playTypewriter" << resource("typewriter.wav");
    QTest::newRow("uploaded, none yet") << "playUploadedAudio" << silence;
    QTest::newRow("uploaded pulse, none yet") << "playUploadedAudioPulse" << silence;
}

void tst_Sound::previewsPlayOnEnterOnly()
{
    QFETCH(QString, hoverLabel);
    QFETCH(QString, file);
    QLabel *label = find<QLabel>(hoverLabel);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(label, &enter);
    QCOMPARE(spy->count(), 1);
    QCOMPARE(lastSound(), file);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(label, &leave);
    QCOMPARE(spy->count(), 1);
    // Previewing is not choosing.
    game->type(1);
    QCOMPARE(lastSound(), silence);
}

void tst_Sound::uploadDialogs_data()
{
    QTest::addColumn<QString>("opener");
    QTest::addColumn<bool>("pulse");
    QTest::addColumn<bool>("accept");
    QTest::newRow("key press, accepted") << "openAudio" << false << true;
    QTest::newRow("key press, cancelled") << "openAudio" << false << false;
    QTest::newRow("key press, folder icon") << "openFolderAudio" << false << true;
    QTest::newRow("pulse, accepted") << "openAudioPulse" << true << true;
    QTest::newRow("pulse, cancelled") << "openAudioPulse" << true << false;
}

void tst_Sound::uploadDialogs()
{
    QFETCH(QString, opener);
    QFETCH(bool, pulse);
    QFETCH(bool, accept);
    const QString upload = copyOf("quack.wav");
    const QString expected = accept ? upload : silence;
    answerFileDialog(accept ? upload : QString());
    if (QLabel *icon = find<QLabel>(opener)) {
        window->show();
        game->click("menuAudio");
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QTest::mouseMove(icon);
        QTest::mouseClick(icon, Qt::LeftButton);
    } else {
        game->click(opener);
    }
    QAbstractButton *choice = pulse
        ? static_cast<QAbstractButton *>(find<QCheckBox>("applyAudioToPulse"))
        : find<QRadioButton>("useUploadedAudio");
    QVERIFY(choice->isEnabled());
    QVERIFY(choice->isChecked());

    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(
        find<QLabel>(pulse ? "playUploadedAudioPulse" : "playUploadedAudio"), &enter);
    QCOMPARE(lastSound(), expected);
    if (pulse) {
        window->playPulseSound();
        QCOMPARE(lastSound(), expected);
        game->type(1);
        QCOMPARE(lastSound(), silence);
    } else {
        game->type(1);
        QCOMPARE(lastSound(), expected);
        // Going back to the upload after another choice finds it again.
        find<QRadioButton>("audioBark")->click();
        find<QRadioButton>("useUploadedAudio")->click();
        game->type(1);
        QCOMPARE(lastSound(), expected);
    }
}

void tst_Sound::pulseSoundFollowsGifChoice_data()
{
    QTest::addColumn<QString>("gif");
    QTest::addColumn<QString>("file");
    QTest::newRow("Fire Ball") << "explosion" << resource("explosion1.wav");
    QTest::newRow("Angry Emoticon") << "angryE" << resource("machineGun2.wav");
    QTest::newRow("Butterfly") << "butterfly" << silence;
    QTest::newRow("Birds Dancing") << "birdsdancing" << silence;
    QTest::newRow("Use Uploaded") << "useUploaded" << silence;
    QTest::newRow("no gif") << "finishedNone" << silence;
}

// The gif radios belong to the effects panel; stand-ins with their names play their part.
void tst_Sound::pulseSoundFollowsGifChoice()
{
    QFETCH(QString, gif);
    QFETCH(QString, file);
    auto *gifs = new QWidget(find<QFrame>("frameFinishedImages"));
    for (const char *name :
        {"angryE", "birdsdancing", "butterfly", "explosion", "useUploaded", "finishedNone"})
        (new QRadioButton(gifs))->setObjectName(QLatin1String(name));
    find<QRadioButton>(gif)->setChecked(true);

    const QString upload = copyOf("bark.wav");
    answerFileDialog(upload);
    game->click("openAudioPulse");
    QCOMPARE(window->pulseSoundForGif(gif), upload);
    window->playPulseSound();
    QCOMPARE(lastSound(), upload);

    QCheckBox *apply = find<QCheckBox>("applyAudioToPulse");
    apply->click();
    QVERIFY(!apply->isChecked());
    window->playPulseSound();
    QCOMPARE(lastSound(), file);
    QCOMPARE(window->pulseSoundForGif(gif), file);

    apply->click();
    window->playPulseSound();
    QCOMPARE(lastSound(), upload);
}

void tst_Sound::unplayableUploadsPlayNothing()
{
    QVERIFY(sound::isWaveFile(silence));
    QVERIFY(sound::isWaveFile(copyOf("meow.wav")));
    const QString notWave = scratch.filePath("notes.wav");
    {
        QFile text(notWave);
        QVERIFY(text.open(QIODevice::WriteOnly));
        text.write("RIFF is not enough: this is a text file\n");
    }
    QVERIFY(!sound::isWaveFile(notWave));
    QVERIFY(!sound::isWaveFile(scratch.filePath("missing.wav")));

    sound::SoundBank bank;
    for (const QString &bad : {notWave, scratch.filePath("missing.wav"), QString()})
        QVERIFY(!bank.play(bad));

    // An upload that is gone by the time a key is pressed is asked for and stays quiet.
    const QString gone = copyOf("meow.wav");
    answerFileDialog(gone);
    game->click("openAudio");
    QVERIFY(QFile::remove(gone));
    game->type(1);
    QCOMPARE(lastSound(), gone);
    QVERIFY(!bank.play(gone));
}

void tst_Sound::panelOpensAndParks()
{
    QFrame *panel = find<QFrame>("frameAudio");
    QPushButton *add = find<QPushButton>("openAudio");
    QPushButton *menu = find<QPushButton>("menuAudio");
    QLabel *marker = find<QLabel>("markerAudio");
    window->show();
    auto checkClosed = [&] {
        QCOMPARE(panel->pos(), QPoint(1500, 405));
        QCOMPARE(add->pos(), QPoint(1500, 300));
        QVERIFY(!panel->isVisible());
        QVERIFY(!add->isVisible());
        QVERIFY(!marker->isVisible());
        QCOMPARE(menu->text(), QString("Open"));
    };
    checkClosed();
    menu->click();
    QCOMPARE(panel->geometry(), QRect(0, 0, 426, 262));
    QCOMPARE(add->pos(), QPoint(334, 122));
    QVERIFY(panel->isVisible());
    QVERIFY(add->isVisible());
    QVERIFY(marker->isVisible());
    QCOMPARE(menu->text(), QString("Close"));
    // The button lies over the panel, where the folder icon points at it.
    QVERIFY(panel->geometry().contains(add->geometry()));
    QCOMPARE(window->childAt(add->geometry().center()), add);
    menu->click();
    checkClosed();
}

QTEST_MAIN(tst_Sound)

#include "tst_sound.moc"
