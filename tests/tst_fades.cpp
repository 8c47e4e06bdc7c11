#include "lexoria/layerfade.h"
#include "paneldriver.h"

#include <QCheckBox>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsOpacityEffect>
#include <QRadioButton>

#include <memory>

using keycatalogue::characterKey;
using keycatalogue::keyOfLetter;
using keycatalogue::letterText;

class tst_Fades : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init()
    {
        makeWindow();
        game->click("strict");
    }
    void cleanup() { closeWindow(); }

    void fadingKeyShowsItsLook();
    void fadeOutInComesBack_data();
    void fadeOutInComesBack();
    void runEndBringsKeysBackInSweep();
    void finaleLendsShadowsWhileSwitchedOff();
    void stopBringsBackFoundKeys_data();
    void stopBringsBackFoundKeys();
    void randomGameFadesNothing();
    void exampleRunsOnlyWhilePanelOpen();

private:
    QStringList layerNames(int k) const;
    // The opacity a layer is seen at through its fade, or -1 when it has no fade effect.
    qreal opacity(const QString &name) const;
    bool keyFaded(int k) const;
    bool keyBack(int k) const;
    bool shieldShown(int k) const { return !widget(QString("shield%1").arg(k))->isHidden(); }
    void choose(const QString &radioName);
    QCheckBox *shadowBox() const { return window->findChild<QCheckBox *>("shadow3dOn"); }
};

QStringList tst_Fades::layerNames(int k) const
{
    const keycatalogue::CharacterKey &key = characterKey(k);
    QStringList names {QString("bg%1").arg(k), QString("r%1_2").arg(key.lower),
        QString("r%1_2").arg(key.upper), QString("r%1_3").arg(k), QString("img%1").arg(k)};
    if (k == 6)
        names << "underscore_left";
    if (k == 10)
        names << "underscore_right";
    return names;
}

qreal tst_Fades::opacity(const QString &name) const
{
    return fadelayers::shownOpacity(widget(name));
}

bool tst_Fades::keyFaded(int k) const
{
    for (const QString &name : layerNames(k)) {
        const qreal o = opacity(name);
        if (o < 0 || o > 0.01)
            return false;
    }
    return !shieldShown(k);
}

// Back: every layer drawn whole, through a finished fade or a returned shadow.
bool tst_Fades::keyBack(int k) const
{
    for (const QString &name : layerNames(k)) {
        QGraphicsEffect *effect = widget(name)->graphicsEffect();
        if (!effect)
            return false;
        const qreal o = opacity(name);
        if (o >= 0 && o < 0.99)
            return false;
    }
    return shieldShown(k);
}

void tst_Fades::choose(const QString &radioName)
{
    window->findChild<QRadioButton *>(radioName)->click();
}

// A key in mid-fade looks as its layers would through Qt's own opacity effect, also when it
// is pressed while it fades.
void tst_Fades::fadingKeyShowsItsLook()
{
    auto seen = [this](int k) {
        QWidget *face = widget(QString("bg%1").arg(k));
        return face->parentWidget()->grab(face->geometry()).toImage();
    };
    auto throughPlainEffects = [this](int k, qreal alpha) {
        for (const QString &name : layerNames(k)) {
            auto *plain = new QGraphicsOpacityEffect(window.get());
            plain->setOpacity(alpha);
            widget(name)->setGraphicsEffect(plain);
        }
    };

    window->fadeOut(27);
    QTRY_VERIFY(opacity("bg27") > 0.2 && opacity("bg27") < 0.8);
    const qreal alpha = opacity("bg27");
    const QImage midFade = seen(27);
    throughPlainEffects(27, alpha);
    QCOMPARE(seen(27), midFade);

    window->fadeOut(6);
    QTRY_VERIFY(keyFaded(6));
    for (const QString &name : layerNames(6)) {
        qobject_cast<QGraphicsOpacityEffect *>(widget(name)->graphicsEffect())->setOpacity(0.5);
    }
    const QImage atRest = seen(6);
    QTest::keyPress(window.get(), Qt::Key_F); // а
    const QImage pressed = seen(6);
    QVERIFY(pressed != atRest);
    throughPlainEffects(6, 0.5);
    QCOMPARE(seen(6), pressed);
}

void tst_Fades::fadeOutInComesBack_data()
{
    QTest::addColumn<bool>("boxShadow");
    QTest::newRow("Show Box Shadow") << true;
    QTest::newRow("no box shadow") << false;
}

void tst_Fades::fadeOutInComesBack()
{
    QFETCH(bool, boxShadow);
    shadowBox()->setChecked(boxShadow);
    choose("fadeOutIn");
    game->startGame("pbForwardVarious");
    play(1);
    QVERIFY(!shieldShown(6));
    QTRY_VERIFY(shieldShown(6));
    QTest::qWait(2400);
    QVERIFY(keyBack(6));
    auto *face = qobject_cast<QGraphicsDropShadowEffect *>(widget("bg6")->graphicsEffect());
    if (boxShadow) {
        QVERIFY(face);
        QCOMPARE(face->offset(), QPointF(4, 4));
        QVERIFY(qobject_cast<QGraphicsDropShadowEffect *>(widget("r1_2")->graphicsEffect()));
        QVERIFY(qobject_cast<QGraphicsDropShadowEffect *>(widget("r6_3")->graphicsEffect()));
        // The picture and the underscore cast no shadow; they keep their finished fade.
        QCOMPARE(opacity("img6"), 1.0);
        QCOMPARE(opacity("underscore_left"), 1.0);
    } else {
        QVERIFY(!face);
        for (const QString &name : layerNames(6))
            QCOMPARE(opacity(name), 1.0);
    }
}

// Lowercase forward ends with letter 33: the letter keys come back from left to right.
void tst_Fades::runEndBringsKeysBackInSweep()
{
    choose("fadeOut");
    game->startGame("pbForwardVarious");
    QList<int> letterKeys = playAll(1, 1); // а, on the key with the left underscore
    QVERIFY(!shieldShown(6));
    letterKeys += playAll(2, 32);
    // A Fade Out key stays away until the run ends, whatever else is played.
    QTRY_VERIFY(keyFaded(6));
    QVERIFY(!shieldShown(27));
    letterKeys += playAll(33, 33);
    // The sweep reaches the last key found before its fade has ended.
    QVERIFY(!shieldShown(26));
    QVERIFY(opacity("bg26") >= 0);
    QTRY_VERIFY(shieldShown(27)); // first of the sweep, at 450 ms
    QVERIFY(!shieldShown(41)); // last, at 2050 ms
    QTRY_VERIFY_WITH_TIMEOUT(keyBack(41), 10000);
    for (int k = 1; k <= 47; ++k) {
        if (letterKeys.contains(k))
            QVERIFY2(keyBack(k), qPrintable(QString::number(k)));
        else
            QVERIFY(!widget(QString("bg%1").arg(k))->graphicsEffect());
    }
}

void tst_Fades::finaleLendsShadowsWhileSwitchedOff()
{
    shadowBox()->setChecked(false);
    choose("fadeOutIn");
    game->startGame("pbForwardVarious");
    playAll(1, 33);
    QTRY_VERIFY_WITH_TIMEOUT(shadowBox()->isChecked(), 5000);
    // The sweep takes every letter key out and back in, and the lent box gives them shadows.
    QTRY_VERIFY_WITH_TIMEOUT(opacity("bg27") >= 0 && opacity("bg27") < 0.9, 5000);
    QTRY_VERIFY_WITH_TIMEOUT(
        qobject_cast<QGraphicsDropShadowEffect *>(widget("bg41")->graphicsEffect()), 10000);
    QTRY_VERIFY_WITH_TIMEOUT(!shadowBox()->isChecked(), 10000);
    QVERIFY(keyBack(27));
    QVERIFY(!widget("bg28")->graphicsEffect());
}

void tst_Fades::stopBringsBackFoundKeys_data()
{
    QTest::addColumn<QString>("fade");
    QTest::addColumn<QString>("game");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::addColumn<QList<int>>("untouched");

    QTest::newRow("Fade Out, forward Lowercase")
        << "fadeOut"
        << "pbForwardVarious" << 1 << 5 << QList<int> {27, 17, 28, 47};
    QTest::newRow("Fade Out/In, reverse Uppercase")
        << "fadeOutIn"
        << "pbReverseConsonants" << 66 << 62 << QList<int> {27, 6, 28};
    QTest::newRow("Fade Out, reverse Everything")
        << "fadeOut"
        << "pbReverseAll" << 94 << 90 << QList<int> {38, 6};
}

void tst_Fades::stopBringsBackFoundKeys()
{
    QFETCH(QString, fade);
    QFETCH(QString, game);
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(QList<int>, untouched);

    choose(fade);
    this->game->startGame(game);
    const QList<int> found = playAll(first, last);
    this->game->click("stop");
    for (int k : found)
        QTRY_VERIFY_WITH_TIMEOUT(keyBack(k), 8000);
    for (int k : qAsConst(untouched))
        QVERIFY2(!widget(QString("bg%1").arg(k))->graphicsEffect(), qPrintable(QString::number(k)));
}

// Fade Out does nothing in a random game, and Stop finds no letter done to bring back.
void tst_Fades::randomGameFadesNothing()
{
    choose("fadeOut");
    game->startGame("pbRandomVarious");
    for (int i = 0; i < 3; ++i) {
        QTRY_COMPARE(game->field("leUser")->text(), QString());
        const QString shown = game->field("leMatch")->text();
        for (int n = 1; n <= 33; ++n) {
            if (letterText(n) == shown) {
                game->type(n);
                break;
            }
        }
    }
    QCOMPARE(game->text("labelCorrect"), QString("3"));
    game->click("stop");
    QTest::qWait(3000);
    for (int k = 1; k <= 47; ++k) {
        QVERIFY(shieldShown(k));
        for (const QString &name : layerNames(k))
            QVERIFY2(!widget(name)->graphicsEffect(), qPrintable(name));
    }
}

void tst_Fades::exampleRunsOnlyWhilePanelOpen()
{
    QVERIFY(!widget("tnFadeExample")->graphicsEffect());
    game->click("menuVorticKeyboard");
    QTRY_VERIFY_WITH_TIMEOUT(opacity("tnFadeExample") >= 0, 7000);
    QTRY_VERIFY(opacity("tnFadeExample_2") < 0.5);
    QTRY_COMPARE(opacity("tnFadeExample"), 1.0);
    game->click("menuVorticKeyboard");
    QGraphicsEffect *last = widget("tnFadeExample")->graphicsEffect();
    QTest::qWait(6000);
    QCOMPARE(widget("tnFadeExample")->graphicsEffect(), last);
}

QTEST_MAIN(tst_Fades)
#include "tst_fades.moc"
