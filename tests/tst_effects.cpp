#include "paneldriver.h"

#include <QFileDialog>
#include <QMovie>
#include <QTemporaryDir>

using keycatalogue::characterKey;
using keycatalogue::keyOfLetter;
using keycatalogue::keyRect;

namespace {

const QString accessDuringGame
    = "background-color: transparent; font: italic 8pt 'MS Shell Dlg 2'; color:  red;";
const QString accessBetweenGames
    = "background-color: transparent;font: italic 8pt 'MS Shell Dlg 2'; color:  #6e6e6e";

// Answers the next modal file dialog once it is up: a file name to accept, or none to cancel.
void answerFileDialog(const QString &file)
{
    QTimer::singleShot(50, [file] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            answerFileDialog(file);
            return;
        }
        if (file.isEmpty()) {
            dialog->reject();
            return;
        }
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
        QMetaObject::invokeMethod(dialog, "accept");
    });
}

} // namespace

class tst_Effects : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init() { makeWindow(); }
    void cleanup() { closeWindow(); }

    void panelOpensAndCloses();
    void panelRefusedDuringGame();
    void oneEffectPerGame();
    void noEffectLeavesKeysAlone();
    void fadeOutWarnsInRandomGames();
    void gifPulseOnRightEntry_data();
    void gifPulseOnRightEntry();
    void stopBringsKeysBack();
    void numberLineRunsReturnTheirKeys();
    void lowercaseEndsInASweep();
    void everythingFinale();
    void randomPulseBringsKeyBack();
    void uploadAccepted();
    void uploadCancelledOrUnreadable();
    void keyPictureOnKeysAndNone_data();
    void keyPictureOnKeysAndNone();

private:
    bool shown(const QString &name) const { return widget(name)->isVisibleTo(window.get()); }
    void chooseEffect(const QString &radioName);
    void closeAndEnterA();
    bool keyWhole(int k) const;
    bool layersHidden(int k) const;
    bool keyGone(int k) const;
};

// Open the panel, pick, close the options, and give the movies the time to load the choice.
void tst_Effects::chooseEffect(const QString &radioName)
{
    game->click("menuVorticKeyboard");
    radio(radioName)->click();
    game->click("closeX");
    QTest::qWait(1600);
}

// Close the options as chooseEffect does, then enter а, on key 6 with the underscore.
void tst_Effects::closeAndEnterA()
{
    game->click("closeX");
    QTest::qWait(1600);
    game->startGame("pbForwardVarious");
    game->type(1);
    game->space();
}

bool tst_Effects::keyWhole(int k) const
{
    const keycatalogue::CharacterKey &key = characterKey(k);
    return shown(QString("bg%1").arg(k)) && shown(QString("r%1_3").arg(k))
        && shown(QString("shield%1").arg(k)) && shown(QString("r%1_2").arg(key.lower))
        && shown(QString("r%1_2").arg(key.upper)) && !shown(QString("pulsate%1").arg(k))
        && label(QString("img%1").arg(k))->pos() == keyRect(k).topLeft();
}

bool tst_Effects::layersHidden(int k) const
{
    const keycatalogue::CharacterKey &key = characterKey(k);
    return !shown(QString("bg%1").arg(k)) && !shown(QString("r%1_3").arg(k))
        && !shown(QString("shield%1").arg(k)) && !shown(QString("r%1_2").arg(key.lower))
        && !shown(QString("r%1_2").arg(key.upper));
}

bool tst_Effects::keyGone(int k) const
{
    return layersHidden(k) && !shown(QString("pulsate%1").arg(k));
}

void tst_Effects::panelOpensAndCloses()
{
    // The menu's Open and Close and the open position are the options tests'; here the panel's
    // own buttons and the place it is parked at.
    const char *const parts[]
        = {"frameVorticKeyboard", "openImageFinished", "clearVorticKeyboardImage", "markerEk"};
    for (bool open : {true, false}) {
        game->click("menuVorticKeyboard");
        for (const char *name : parts)
            QVERIFY2(shown(name) == open, name);
    }
    QCOMPARE(widget("frameVorticKeyboard")->pos(), QPoint(1500, 305));
}

void tst_Effects::panelRefusedDuringGame()
{
    QCOMPARE(game->style("mustStopGameToAccess"), accessBetweenGames);
    game->startGame("pbForwardVarious");
    QVERIFY(!game->button("menuVorticKeyboard")->isEnabled());
    QCOMPARE(game->style("mustStopGameToAccess"), accessDuringGame);
    game->click("stop");
    QVERIFY(game->button("menuVorticKeyboard")->isEnabled());
    QCOMPARE(game->style("mustStopGameToAccess"), accessBetweenGames);
}

void tst_Effects::oneEffectPerGame()
{
    game->click("menuVorticKeyboard");
    radio("explosion")->click();
    radio("fadeOut")->click();
    QVERIFY(radio("fadeOut")->isChecked());
    QVERIFY(radio("finishedNone")->isChecked());
    QVERIFY(!radio("explosion")->isChecked());

    radio("butterfly")->click();
    QVERIFY(radio("butterfly")->isChecked());
    QVERIFY(radio("effectNone")->isChecked());
    QVERIFY(!radio("fadeOut")->isChecked());

    radio("fadeOutIn")->click();
    QVERIFY(radio("finishedNone")->isChecked());
    radio("effectNone")->click(); // leaves the gif side as it is
    QVERIFY(radio("finishedNone")->isChecked());
}

void tst_Effects::noEffectLeavesKeysAlone()
{
    chooseEffect("explosion");
    chooseEffect("finishedNone"); // the gif is chosen and taken back
    game->click("strict");
    game->startGame("pbForwardVarious");
    game->type(1);
    QCOMPARE(game->text("labelCorrect"), QString("1"));
    QVERIFY(keyWhole(6));
}

void tst_Effects::fadeOutWarnsInRandomGames()
{
    game->click("menuVorticKeyboard");
    radio("fadeOut")->click();
    game->click("menuVorticKeyboard");
    game->startGame("pbRandomVarious");
    QCOMPARE(game->text("display2"), QString("Fade Out does not\nwork with Random."));

    game->startGame("pbForwardVarious");
    QCOMPARE(game->text("display2"), game->text("mes1"));
}

void tst_Effects::gifPulseOnRightEntry_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("speed");
    QTest::addColumn<QSize>("size");

    // clang-format off
    QTest::newRow("Fire Ball") << "explosion" << ":/new/prefix1/explodeAll2.gif" << 300
        << QSize(96, 90);
    QTest::newRow("Butterfly") << "butterfly" << ":/new/prefix1/butterfly1.gif" << 100
        << QSize(96, 76);
    QTest::newRow("Angry Emoticon") << "angryE" << ":/new/prefix1/angryEmotion2.gif" << 100
        << QSize(96, 60);
    // clang-format on
}

void tst_Effects::gifPulseOnRightEntry()
{
    QFETCH(QString, choice);
    QFETCH(QString, file);
    QFETCH(int, speed);
    QFETCH(QSize, size);

    // The last choice sets size, speed and file, whatever came before it.
    game->click("menuVorticKeyboard");
    radio(choice == "explosion" ? "butterfly" : "explosion")->click();
    radio(choice)->click();
    closeAndEnterA();

    QVERIFY(layersHidden(6));
    QVERIFY(!shown("underscore_left"));
    QCOMPARE(label("img6")->pos(), QPoint(-keyRect(6).x(), keyRect(6).y()));
    QVERIFY(shown("pulsate6"));
    QMovie *movie = label("pulsate6")->movie();
    QVERIFY(movie);
    QCOMPARE(movie->fileName(), file);
    QCOMPARE(movie->speed(), speed);
    QCOMPARE(movie->scaledSize(), size);
    QCOMPARE(movie->state(), QMovie::Running);
    QCOMPARE(movie->currentImage().size(), size);

    QTRY_VERIFY(!shown("pulsate6"));
    QCOMPARE(movie->state(), QMovie::NotRunning);
    QVERIFY(keyGone(6)); // a forward game leaves the place empty
    QVERIFY(keyWhole(45)); // the next letter's key is untouched
}

void tst_Effects::stopBringsKeysBack()
{
    chooseEffect("birdsdancing");
    game->click("strict");
    game->startGame("pbReverseVarious");
    playAll(33, 31);
    QVERIFY(shown("pulsate46")); // ю, still pulsing
    QTRY_VERIFY(keyGone(26));
    game->click("stop");
    for (int k : {26, 46, 44})
        QVERIFY(keyWhole(k));
    QVERIFY(
        !label("pulsate46")->movie() || label("pulsate46")->movie()->state() == QMovie::NotRunning);
}

void tst_Effects::numberLineRunsReturnTheirKeys()
{
    chooseEffect("angryE");
    game->click("strict");
    game->startGame("pbForwardNumberLine");
    playAll(67, 77);
    QTRY_VERIFY(keyGone(28));
    play(78);
    // The number row comes back as one when its last letter's pulse ends.
    QTRY_VERIFY(keyWhole(28));
    for (int k = 28; k <= 39; ++k)
        QVERIFY(keyWhole(k));
    play(79); // the same keys again, for the shifted row
    QTRY_VERIFY(keyGone(28));
}

void tst_Effects::lowercaseEndsInASweep()
{
    chooseEffect("explosion");
    game->click("strict");
    game->startGame("pbForwardVarious");
    playAll(1, 33);
    QCOMPARE(game->text("labelCorrect"), QString("33"));
    QTRY_VERIFY(keyGone(26));
    QVERIFY(keyGone(6));

    // 2000 ms after the last pulse the keys pulse back in letter order, а first.
    QTRY_VERIFY_WITH_TIMEOUT(shown("pulsate6"), 5000);
    QVERIFY(!shown("pulsate26"));
    QTRY_VERIFY_WITH_TIMEOUT(keyWhole(6), 3000);
    for (int n = 1; n <= 33; ++n)
        QTRY_VERIFY_WITH_TIMEOUT(keyWhole(keyOfLetter(n)), 8000);
    QTRY_VERIFY_WITH_TIMEOUT(label("pulsate26")->movie()->state() == QMovie::NotRunning, 3000);
    QVERIFY(shown("underscore_left"));
}

void tst_Effects::everythingFinale()
{
    chooseEffect("angryE");
    game->click("strict");
    game->startGame("pbForwardAll");
    playAll(1, 94);
    QCOMPARE(game->text("labelCorrect"), QString("94"));

    // The control keys blow up one by one and stay away until the whole keyboard comes back.
    QTRY_VERIFY_WITH_TIMEOUT(!shown("bgTab") && shown("pulsate49"), 5000);
    QVERIFY(!shown("labelTab"));
    QTRY_VERIFY_WITH_TIMEOUT(!shown("bgBackSpace") && !shown("pulsate49"), 5000);
    QVERIFY(!shown("bgSpacebar"));
    QTRY_COMPARE_WITH_TIMEOUT(
        game->text("display2"), QString("\n\"What a Mess.\n\nWait for it.\""), 5000);
    QVERIFY(keyGone(26)); // я, Я: no run of letters brings it back before the finale
    QTRY_VERIFY_WITH_TIMEOUT(shown("bgTab") && shown("labelTab"), 5000);
    for (int k = 1; k <= keycatalogue::characterKeyCount; ++k)
        QTRY_VERIFY_WITH_TIMEOUT(keyWhole(k), 5000);
    for (const char *control :
        {"BackSpace", "Tab", "CapsLock", "Enter", "ShiftLeft", "ShiftRight", "Spacebar"}) {
        QTRY_VERIFY_WITH_TIMEOUT(shown(QString("bg") + control), 5000);
        QVERIFY(shown(QString("label") + control));
    }
    for (int N = 48; N <= 54; ++N)
        QTRY_VERIFY(!shown(QString("pulsate%1").arg(N)));
}

void tst_Effects::randomPulseBringsKeyBack()
{
    chooseEffect("butterfly");
    radio("radioSwirl")->click(); // a picture on every key
    game->startGame("pbRandomVarious");
    int n = 1;
    while (n <= 33 && keycatalogue::letterText(n) != game->field("leMatch")->text())
        ++n;
    QVERIFY(n <= 33);
    const int k = keyOfLetter(n);
    const QString image = QString("img%1").arg(k);
    const QString pulse = QString("pulsate%1").arg(k);
    QVERIFY(shown(image));
    game->type(n);
    game->space();
    QCOMPARE(game->text("labelCorrect"), QString("1"));

    QVERIFY(layersHidden(k));
    QVERIFY(!shown(image));
    QCOMPARE(label(image)->pos(), keyRect(k).topLeft());
    QCOMPARE(label(pulse)->movie()->state(), QMovie::Running);

    // A release of the key during its pulse must not bring its picture up through the gif.
    game->type(n);
    QVERIFY(!shown(image));

    QTRY_VERIFY(keyWhole(k));
    QVERIFY(shown(image));
    QCOMPARE(label(pulse)->movie()->state(), QMovie::NotRunning);
}

void tst_Effects::uploadAccepted()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("mine.gif");
    QVERIFY(QFile::copy(":/new/prefix1/butterfly1.gif", file));

    game->click("menuVorticKeyboard");
    answerFileDialog(file);
    game->click("openImageFinished");

    QMovie *preview = label("tnCurrentImage")->movie();
    QVERIFY(preview);
    QCOMPARE(preview->fileName(), file);
    QCOMPARE(preview->scaledSize(), QImage(file).scaledToWidth(54, Qt::FastTransformation).size());
    QVERIFY(radio("useUploaded")->isEnabled());
    QVERIFY(radio("useUploaded")->isChecked());
    QVERIFY(radio("effectNone")->isChecked());

    closeAndEnterA();
    QMovie *pulse = label("pulsate6")->movie();
    QCOMPARE(pulse->fileName(), file);
    QCOMPARE(pulse->scaledSize().width(), 96);
    QVERIFY(qAbs(pulse->scaledSize().height() - 76) <= 1);
    QCOMPARE(pulse->state(), QMovie::Running);
    QTRY_VERIFY(keyGone(6));
}

void tst_Effects::uploadCancelledOrUnreadable()
{
    QTemporaryDir folder;
    const QString bad = folder.filePath("bad.gif");
    QFile text(bad);
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("not a picture at all") > 0);
    text.close();

    game->click("menuVorticKeyboard");
    answerFileDialog(QString());
    game->click("openImageFinished");
    QCOMPARE(label("tnCurrentImage")->movie()->fileName(), QString(":/new/prefix1/blank.gif"));
    QVERIFY(radio("useUploaded")->isEnabled());
    QVERIFY(radio("useUploaded")->isChecked());

    answerFileDialog(bad);
    game->click("openImageFinished");
    QCOMPARE(label("tnCurrentImage")->movie()->fileName(), bad);
    QVERIFY(radio("useUploaded")->isChecked());

    // The pulse shows nothing, and the key goes all the same.
    closeAndEnterA();
    QVERIFY(!shown("bg6"));
    QTRY_VERIFY(keyGone(6));
    QCOMPARE(game->field("leMatch")->text(), QString("б"));
}

void tst_Effects::keyPictureOnKeysAndNone_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");

    // clang-format off
    QTest::newRow("Swirl") << "radioSwirl" << ":/new/prefix1/swirl1.gif" << QSize(54, 54);
    QTest::newRow("Sheep") << "radioSheep" << ":/new/prefix1/bouncingSheepSmall.gif"
        << QSize(34, 54);
    QTest::newRow("Cat Walk") << "radioKittyWalk" << ":/new/prefix1/kittyWalk.gif"
        << QSize(100, 46);
    // clang-format on
}

void tst_Effects::keyPictureOnKeysAndNone()
{
    QFETCH(QString, choice);
    QFETCH(QString, file);
    QFETCH(QSize, size);

    radio(choice)->click();
    QVERIFY(radio(choice)->isChecked());
    QMovie *keysMovie = label("displayKeys")->movie();
    QVERIFY(keysMovie);
    QCOMPARE(keysMovie->fileName(), file);
    QCOMPARE(keysMovie->currentImage().size(), size);
    QCOMPARE(keysMovie->state(), QMovie::Running);
    for (const char *image : {"img1", "img42", "imgSpacebar", "imgTab"}) {
        QVERIFY2(shown(image), image);
        QCOMPARE(label(image)->movie(), keysMovie);
    }

    // The picture outlives a game and a key's restore.
    game->startGame("pbForwardVarious");
    game->type(1);
    game->click("stop");
    QVERIFY(shown("img6"));

    radio("radioNone")->click();
    QVERIFY(!radio(choice)->isChecked());
    QVERIFY(!label("displayKeys")->movie());
    QCOMPARE(keysMovie->state(), QMovie::NotRunning);
    for (const char *image : {"img1", "img42", "imgSpacebar", "imgTab"})
        QVERIFY2(!shown(image), image);
}

QTEST_MAIN(tst_Effects)
#include "tst_effects.moc"
