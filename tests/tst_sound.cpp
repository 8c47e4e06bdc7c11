#include "lexoria/keysound.h"
#include "lexoria/soundbank.h"
#include "paneldriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QFrame>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {

const QString silence = ":/new/prefix1/silence.wav";

QString resource(const char *file)
{
    return QStringLiteral(":/new/prefix1/") + QLatin1String(file);
}

// Answers the file dialog about to open: picks the file, or cancels when it is empty.
void answerFileDialog(const QString &file)
{
    auto answer = std::make_shared<std::function<void()>>();
    *answer = [file, answer] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return QTimer::singleShot(10, *answer);
        QCOMPARE(dialog->nameFilters(), QStringList {"Audio(*wav)"});
        if (file.isEmpty()) {
            dialog->reject();
        } else {
            dialog->selectFile(file);
            QMetaObject::invokeMethod(dialog, "accept"); // protected in QFileDialog
        }
        *answer = nullptr;
    };
    QTimer::singleShot(0, *answer);
}

} // namespace

class tst_Sound : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init()
    {
        makeWindow(Start::Built);
        spy = std::make_unique<QSignalSpy>(window.get(), &lexoria::soundPlayed);
    }
    void cleanup()
    {
        spy.reset();
        closeWindow();
    }

    void keyPressPlaysChosenSound_data();
    void keyPressPlaysChosenSound();
    void silentKeyPressRule_data();
    void silentKeyPressRule();
    void finishedLetterWithoutEffectKeepsItsSound();
    void previewsPlayOnEnterOnly();
    void uploadDialogs_data();
    void uploadDialogs();
    void pulseSoundFollowsGifChoice_data();
    void pulseSoundFollowsGifChoice();
    void unplayableUploadsPlayNothing();
    void panelOpensAndParks();

private:
    QString lastSound() const { return spy->isEmpty() ? "<none>" : spy->last().at(0).toString(); }
    QString copyOf(const char *file);

    std::unique_ptr<QSignalSpy> spy;
    QTemporaryDir scratch;
};

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
    // The two whose files are not named after them.
    QTest::newRow("Quack") << "audioQuack" << resource("quack1.wav");
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
    // Lower and upper case, a digit and a sign.
    for (int n : {1, 34, 67, 94}) {
        game->type(n);
        QCOMPARE(lastSound(), file);
    }
    // Space and the keys without a letter make no sound at all.
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backspace,
             Qt::Key_Shift, Qt::Key_CapsLock, Qt::Key_F1, Qt::Key_Left})
        QTest::keyClick(window.get(), key);
    QCOMPARE(spy->count(), 4);
}

void tst_Sound::silentKeyPressRule_data()
{
    QTest::addColumn<sound::KeyPress>("press");
    QTest::addColumn<bool>("silent");
    // Shown letter, Strict, finished, gif effect, no fade.
    QTest::newRow("Strict, gif, the asked key")
        << sound::KeyPress {true, true, false, true, true} << true;
    QTest::newRow("Strict, gif, a wrong key")
        << sound::KeyPress {false, true, false, true, true} << false;
    QTest::newRow("Soft, gif, the asked key")
        << sound::KeyPress {true, false, false, true, true} << false;
    QTest::newRow("finished, no effect")
        << sound::KeyPress {false, false, true, false, true} << false;
    QTest::newRow("finished, fade") << sound::KeyPress {false, false, true, false, false} << true;
    QTest::newRow("finished, gif") << sound::KeyPress {false, true, true, true, true} << true;
}

void tst_Sound::silentKeyPressRule()
{
    QFETCH(sound::KeyPress, press);
    QFETCH(bool, silent);
    QCOMPARE(sound::isSilentKeyPress(press), silent);
}

// Without an effect a found key keeps its sound: the right entry, and the same key after it.
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

void tst_Sound::previewsPlayOnEnterOnly()
{
    hover(find<QLabel>("playQuack"), QEvent::Enter);
    QCOMPARE(lastSound(), resource("quack1.wav"));
    hover(find<QLabel>("playQuack"), QEvent::Leave);
    QCOMPARE(spy->count(), 1);
    // Listening is not choosing.
    game->type(1);
    QCOMPARE(lastSound(), silence);
}

void tst_Sound::uploadDialogs_data()
{
    QTest::addColumn<QString>("opener");
    QTest::addColumn<bool>("accept");
    QTest::newRow("key press, accepted") << "openAudio" << true;
    QTest::newRow("key press, cancelled") << "openAudio" << false;
    QTest::newRow("key press, folder icon") << "openFolderAudio" << true;
    QTest::newRow("pulse, accepted") << "openAudioPulse" << true;
    QTest::newRow("pulse, cancelled") << "openAudioPulse" << false;
}

void tst_Sound::uploadDialogs()
{
    QFETCH(QString, opener);
    QFETCH(bool, accept);
    const bool pulse = opener.endsWith("Pulse");
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
    auto *choice = find<QAbstractButton>(pulse ? "applyAudioToPulse" : "useUploadedAudio");
    QVERIFY(choice->isEnabled() && choice->isChecked());
    hover(find<QLabel>(pulse ? "playUploadedAudioPulse" : "playUploadedAudio"), QEvent::Enter);
    QCOMPARE(lastSound(), expected);

    if (pulse)
        window->playPulseSound();
    game->type(1);
    QCOMPARE(spy->at(spy->count() - (pulse ? 2 : 1)).at(0).toString(), expected);
    if (pulse)
        QCOMPARE(lastSound(), silence);
}

void tst_Sound::pulseSoundFollowsGifChoice_data()
{
    QTest::addColumn<QString>("gif");
    QTest::addColumn<QString>("file");
    QTest::newRow("Fire Ball") << "explosion" << resource("explosion1.wav");
    QTest::newRow("Angry Emoticon") << "angryE" << resource("machineGun2.wav");
    QTest::newRow("Butterfly") << "butterfly" << silence;
}

void tst_Sound::pulseSoundFollowsGifChoice()
{
    QFETCH(QString, gif);
    QFETCH(QString, file);
    find<QRadioButton>(gif)->click();
    window->playPulseSound();
    QCOMPARE(lastSound(), file);

    const QString upload = copyOf("bark.wav");
    answerFileDialog(upload);
    game->click("openAudioPulse");
    window->playPulseSound();
    QCOMPARE(lastSound(), upload);
    // "Apply audio" outranks a gif chosen afterwards.
    find<QRadioButton>(gif)->click();
    window->playPulseSound();
    QCOMPARE(lastSound(), upload);
    find<QCheckBox>("applyAudioToPulse")->click();
    window->playPulseSound();
    QCOMPARE(lastSound(), file);
}

void tst_Sound::unplayableUploadsPlayNothing()
{
    const QString notWave = scratch.filePath("notes.wav");
    QFile text(notWave);
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write("RIFF is not enough: this is a text file\n");
    text.close();
    const QString missing = scratch.filePath("missing.wav");
    QVERIFY(sound::isWaveFile(silence));
    QVERIFY(!sound::isWaveFile(notWave));
    QVERIFY(!sound::isWaveFile(missing));
    sound::SoundBank bank;
    for (const QString &bad : {notWave, missing, QString()})
        QVERIFY(!bank.play(bad));

    // An upload gone by the time a key is pressed is asked for, and stays quiet.
    const QString gone = copyOf("meow.wav");
    answerFileDialog(gone);
    game->click("openAudio");
    QVERIFY(QFile::remove(gone));
    game->type(1);
    QCOMPARE(lastSound(), gone);
}

void tst_Sound::panelOpensAndParks()
{
    auto *panel = find<QFrame>("frameAudio");
    auto *add = find<QPushButton>("openAudio");
    auto *menu = find<QPushButton>("menuAudio");
    window->show();
    for (bool open : {true, false}) {
        menu->click();
        QCOMPARE(panel->geometry(), open ? QRect(0, 0, 426, 262) : QRect(1500, 405, 426, 262));
        QCOMPARE(add->pos(), open ? QPoint(334, 122) : QPoint(1500, 300));
        // The button lies on top of the panel, beside the folder icon.
        if (open)
            QCOMPARE(window->childAt(add->geometry().center()), add);
        QCOMPARE(add->isVisible(), open);
    }
}

QTEST_MAIN(tst_Sound)

#include "tst_sound.moc"
