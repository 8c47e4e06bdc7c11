#include "bench/paintwatch.h"
#include "lexoria/hidpi.h"
#include "lexoria/lexoria.h"
#include "stats/progresswindow.h"
#include "stats/recorder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <vector>

using namespace paintwatch;

namespace {

// The keys of the Lowercase alphabet а, б, в … я, in alphabet order, on a Latin keyboard.
const Qt::Key lowercaseAlphabetKeys[] = {
    Qt::Key_F, // а
    Qt::Key_Comma, // б
    Qt::Key_D, // в
    Qt::Key_U, // г
    Qt::Key_L, // д
    Qt::Key_T, // е
    Qt::Key_QuoteLeft, // ё
    Qt::Key_Semicolon, // ж
    Qt::Key_P, // з
    Qt::Key_B, // и
    Qt::Key_Q, // й
    Qt::Key_R, // к
    Qt::Key_K, // л
    Qt::Key_V, // м
    Qt::Key_Y, // н
    Qt::Key_J, // о
    Qt::Key_G, // п
    Qt::Key_H, // р
    Qt::Key_C, // с
    Qt::Key_N, // т
    Qt::Key_E, // у
    Qt::Key_A, // ф
    Qt::Key_BracketLeft, // х
    Qt::Key_W, // ц
    Qt::Key_X, // ч
    Qt::Key_I, // ш
    Qt::Key_O, // щ
    Qt::Key_BracketRight, // ъ
    Qt::Key_S, // ы
    Qt::Key_M, // ь
    Qt::Key_Apostrophe, // э
    Qt::Key_Period, // ю
    Qt::Key_Z, // я
};

QMainWindow *openingWindowOf(lexoria &w)
{
    return w.findChild<QMainWindow *>(QStringLiteral("openingWindow"));
}

void click(lexoria &w, const char *button)
{
    QPushButton *found = w.findChild<QPushButton *>(QLatin1String(button));
    QVERIFY2(found, button);
    found->click();
}

// A player chooses the sound long before typing: the radio, then enough time for the sounds
// to be decoded and connected to the output, as they are a second after start-up.
void chooseSound(lexoria &w, const QString &radio)
{
    QRadioButton *found = w.findChild<QRadioButton *>(radio);
    QVERIFY2(found, qPrintable(radio));
    found->click();
    QTest::qWait(1500);
}

// Walltime in QtTest counts whole milliseconds over as many iterations as make 50 ms, so
// QBENCHMARK is used where the measured step can simply repeat.
template <class Body> void measure(Body body)
{
    if (shortRun()) {
        QBENCHMARK_ONCE
        {
            body();
        }
    } else {
        QBENCHMARK
        {
            body();
        }
    }
}

} // namespace

class bench_Lexoria : public QObject
{
    Q_OBJECT

public:
    // Measured with the scaling the program starts with.
    static void initMain() { hidpi::enableScaling(); }

private slots:
    void initTestCase();
    void construct();
    void constructUntilOpeningWindowPainted();
    void startUntilMainWindowPainted();
    void keyUntilPainted_data();
    void keyUntilPainted();
    void allChangeColorBackNothingChanged();
    void playSound();
    void allChangeColorBackEverythingChanged_data();
    void allChangeColorBackEverythingChanged();
    void strictLowercaseGame();
    void judgedKeyUntilPainted();
    void progressWindowUntilPainted();

private:
    std::unique_ptr<lexoria> mainWindowShown();
};

std::unique_ptr<lexoria> bench_Lexoria::mainWindowShown()
{
    auto w = std::make_unique<lexoria>();
    PaintWatch watch(w.get());
    openingWindowOf(*w)
        ->findChild<QPushButton *>(QStringLiteral("startLearnRussianTyping"))
        ->click();
    if (!watch.waitForFrame())
        return nullptr;
    return w;
}

// The games played here are recorded in Qt's test folder, not in the user's history.
void bench_Lexoria::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

// The constructor alone, opening window shown but not yet painted. The windows are kept
// until the end so that their destruction stays out of the figure.
void bench_Lexoria::construct()
{
    std::vector<std::unique_ptr<lexoria>> made;
    measure([&made] { made.push_back(std::make_unique<lexoria>()); });
}

void bench_Lexoria::constructUntilOpeningWindowPainted()
{
    std::vector<std::unique_ptr<lexoria>> made;
    bool painted = true;
    measure([&made, &painted] {
        made.push_back(std::make_unique<lexoria>());
        PaintWatch watch(openingWindowOf(*made.back()));
        painted = watch.waitForFrame() && painted;
    });
    QVERIFY(painted);
}

// The first show of the main window polishes every widget in it, so each round needs a
// window that has never been shown.
void bench_Lexoria::startUntilMainWindowPainted()
{
    std::unique_ptr<lexoria> w;
    std::unique_ptr<PaintWatch> watch;
    QPushButton *start = nullptr;
    bool painted = true;
    measureRounds(
        15,
        [&] {
            w = std::make_unique<lexoria>();
            PaintWatch(openingWindowOf(*w)).waitForFrame();
            start = openingWindowOf(*w)->findChild<QPushButton *>(
                QStringLiteral("startLearnRussianTyping"));
            watch = std::make_unique<PaintWatch>(w.get());
        },
        [&] {
            start->click();
            painted = watch->waitForFrame() && painted;
        },
        [&] {
            watch.reset();
            w.reset();
        });
    QVERIFY(painted);
}

// A press and a release are two frames apart for a typist, so each is timed up to its own
// painted frame; the other half of the stroke happens untimed.
void bench_Lexoria::keyUntilPainted_data()
{
    QTest::addColumn<bool>("timePress");
    QTest::addColumn<QString>("soundRadio");
    QTest::newRow("press") << true << QString();
    QTest::newRow("press, typewriter sound") << true << "audioTypewriter";
    QTest::newRow("press, chime sound") << true << "audioChime1";
    QTest::newRow("release") << false << QString();
}

void bench_Lexoria::keyUntilPainted()
{
    QFETCH(bool, timePress);
    QFETCH(QString, soundRadio);
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    if (!soundRadio.isEmpty())
        chooseSound(*w, soundRadio);
    PaintWatch watch(w.get());
    bool painted = true;
    auto press = [&] {
        QTest::keyPress(w.get(), Qt::Key_F);
        painted = watch.waitForFrame() && painted;
    };
    auto release = [&] {
        QTest::keyRelease(w.get(), Qt::Key_F);
        painted = watch.waitForFrame() && painted;
    };
    auto nothing = [] {};
    if (timePress)
        measureRounds(2000, nothing, press, release);
    else
        measureRounds(2000, press, release, nothing);
    QVERIFY(painted);
}

// The call a key press adds to its handler once a sound is chosen, typed faster than the
// sound lasts: all voices of the file busy, the oldest one restarted.
void bench_Lexoria::playSound()
{
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    chooseSound(*w, "audioTypewriter");
    const QString typewriter = QStringLiteral(":/new/prefix1/typewriter.wav");
    measure([&w, &typewriter] { w->playSound(typewriter); });
}

void bench_Lexoria::allChangeColorBackNothingChanged()
{
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    measure([&w] { w->allChangeColorBack(); });
}

// The worst case the call can meet: all 94 letters in their pressed look, as if every key had
// been held with and without Shift, so that each of the 94 bar cells, 94 bar letters, 94 key
// letters, 47 English labels and 47 key faces really is restyled back. key(n) is the slot a
// key press calls for that look. The pressed looks are painted before the timed call, as they
// would be on screen.
void bench_Lexoria::allChangeColorBackEverythingChanged_data()
{
    QTest::addColumn<bool>("untilPainted");
    QTest::newRow("call") << false;
    QTest::newRow("call and paint") << true;
}

void bench_Lexoria::allChangeColorBackEverythingChanged()
{
    QFETCH(bool, untilPainted);
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    PaintWatch watch(w.get());
    bool painted = true;
    measureRounds(
        200,
        [&] {
            for (int n = 1; n <= 94; ++n)
                w->key(n);
            painted = watch.waitForFrame() && painted;
        },
        [&] {
            w->allChangeColorBack();
            if (untilPainted)
                painted = watch.waitForFrame() && painted;
        },
        [&] {
            if (!untilPainted)
                painted = watch.waitForFrame() && painted;
        });
    QVERIFY(painted);
}

// A whole game as a player meets it: choose Strict and Lowercase, start, then type а … я,
// every press and every release painted before the next. The bar wave is switched off, as a
// player in a hurry does, since it only delays the start button.
void bench_Lexoria::strictLowercaseGame()
{
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    PaintWatch watch(w.get());
    QLabel *correct = w->findChild<QLabel *>(QStringLiteral("labelCorrect"));
    int finished = 0;
    int games = 0;
    bool painted = true;
    measure([&] {
        click(*w, "animationOff");
        click(*w, "strict");
        click(*w, "pbForwardVarious");
        click(*w, "start");
        for (Qt::Key key : lowercaseAlphabetKeys) {
            QTest::keyPress(w.get(), key);
            painted = watch.waitForFrame() && painted;
            QTest::keyRelease(w.get(), key);
            painted = watch.waitForFrame() && painted;
        }
        ++games;
        if (correct->text() == QLatin1String("33"))
            ++finished;
    });
    QVERIFY(painted);
    // A game that did not end would make the figure meaningless.
    QCOMPARE(finished, games);
}

// A key press that the judge takes as an entry, and so records, in a Strict game: б while а
// is asked, a wrong entry every time, so the game never moves on and every round is alike.
void bench_Lexoria::judgedKeyUntilPainted()
{
    QTemporaryDir dir;
    std::unique_ptr<lexoria> w = mainWindowShown();
    QVERIFY(w);
    w->statistics()->setDatabasePath(dir.filePath(QStringLiteral("history.sqlite")));
    click(*w, "animationOff");
    click(*w, "strict");
    click(*w, "pbForwardVarious");
    click(*w, "start");
    PaintWatch watch(w.get());
    QLabel *incorrect = w->findChild<QLabel *>(QStringLiteral("labelIncorrect"));
    bool painted = true;
    measureRounds(
        2000, [] {},
        [&] {
            QTest::keyPress(w.get(), Qt::Key_Comma);
            painted = watch.waitForFrame() && painted;
        },
        [&] {
            QTest::keyRelease(w.get(), Qt::Key_Comma);
            painted = watch.waitForFrame() && painted;
        });
    QVERIFY(painted);
    QVERIFY(incorrect->text().toInt() >= 1);
}

// "Your progress" over a history of 100,000 entries in 500 games of 200, from the click to
// the window's first frame; each round opens a window that was never shown.
void bench_Lexoria::progressWindowUntilPainted()
{
    QTemporaryDir dir;
    stats::Recorder recorder;
    recorder.setDatabasePath(dir.filePath(QStringLiteral("history.sqlite")));
    const qint64 start = 1700000000000;
    for (int i = 0; i < 100000; ++i) {
        stats::Entry entry;
        entry.game = start + (i / 200) * 3600000LL;
        entry.playedAt = entry.game + (i % 200) * 1500;
        entry.asked = 1 + i % 94;
        entry.right = i % 7 != 0;
        entry.typed = entry.right ? entry.asked : 1 + (i * 13) % 94;
        entry.findMs = 400 + (i * 37) % 3000;
        recorder.record(entry);
    }
    QVERIFY(recorder.flush());

    std::unique_ptr<stats::ProgressWindow> window;
    bool painted = true;
    measureRounds(
        shortRun() ? 1 : 15, [&] { window.reset(); },
        [&] {
            window = std::make_unique<stats::ProgressWindow>(&recorder);
            PaintWatch watch(window.get());
            window->refresh();
            window->show();
            painted = watch.waitForFrame() && painted;
        },
        [] {});
    QVERIFY(painted);
    QCOMPARE(window->summary().entries, 100000);
    window.reset();
}

QTEST_MAIN(bench_Lexoria)

#include "bench_lexoria.moc"
