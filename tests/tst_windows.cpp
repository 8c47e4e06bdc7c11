// Clicks go through the platform layer, as a user's do, so that enter and leave events keep
// underMouse() true for the frame under the pointer, which the map of the instructions reads.
#define QTEST_QPA_MOUSE_HANDLING

#include "lexoria/lexoria.h"
#include "windows/aboutwindow.h"
#include "windows/exploreworld.h"
#include "windows/instructions.h"
#include "windows/openingwindow.h"
#include "windows/selfexplore.h"
#include "windows/ui_aboutwindow.h"
#include "windows/ui_instructions.h"

#include <QApplication>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <cmath>
#include <memory>
#include <tuple>

class tst_Windows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void frame_data();
    void frame();
    void buttons_data();
    void buttons();
    void aboutShowsVersion();

    void mapClick_data();
    void mapClick();
    void clickThatChangesNothing_data();
    void clickThatChangesNothing();

    void readingWindowsReadableBesideMainWindow();

private:
    static std::unique_ptr<QMainWindow> makeWindow(const QString &className);
    void clickOn(QWidget *widget, QPoint point, Qt::MouseButton button = Qt::LeftButton);
    QString mapText() const { return map->ui->mgDisplay->text(); }

    std::unique_ptr<instructions> map;
};

std::unique_ptr<QMainWindow> tst_Windows::makeWindow(const QString &className)
{
    if (className == QLatin1String("openingWindow"))
        return std::make_unique<openingWindow>();
    if (className == QLatin1String("instructions"))
        return std::make_unique<instructions>();
    if (className == QLatin1String("selfExplore"))
        return std::make_unique<selfExplore>();
    if (className == QLatin1String("exploreWorld"))
        return std::make_unique<exploreWorld>();
    if (className == QLatin1String("aboutWindow"))
        return std::make_unique<aboutWindow>();
    return nullptr;
}

void tst_Windows::clickOn(QWidget *widget, QPoint point, Qt::MouseButton button)
{
    if (point.isNull())
        point = widget->rect().center();
    QTest::mouseMove(widget, point);
    QTest::mouseClick(widget, button, Qt::NoModifier, point);
}

void tst_Windows::initTestCase()
{
    Q_INIT_RESOURCE(resources);

    map = std::make_unique<instructions>();
    map->show();
    QVERIFY(QTest::qWaitForWindowExposed(map.get()));
    QCOMPARE(map->ui->tabWidget->currentWidget(), map->ui->tabMap);
}

void tst_Windows::frame_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("title");

    // clang-format off
    QTest::newRow("opening") << "openingWindow" << QSize(700, 551) << "Vortic-Typing: Russian";
    QTest::newRow("instructions") << "instructions" << QSize(950, 687) << "MainWindow";
    QTest::newRow("self-explore") << "selfExplore" << QSize(702, 536) << "MainWindow";
    QTest::newRow("explore the world") << "exploreWorld" << QSize(639, 368) << "MainWindow";
    QTest::newRow("about") << "aboutWindow" << QSize(543, 331) << "MainWindow";
    // clang-format on
}

void tst_Windows::frame()
{
    QFETCH(QString, className);
    QFETCH(QSize, size);
    QFETCH(QString, title);

    const std::unique_ptr<QMainWindow> window = makeWindow(className);
    QVERIFY(window);
    QCOMPARE(window->size(), size);
    QCOMPARE(window->minimumSize(), size);
    QCOMPARE(window->maximumSize(), size);
    QCOMPARE(window->windowTitle(), title);
}

void tst_Windows::buttons_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("reachable"); // enabled and inside the window

    // clang-format off
    QTest::newRow("start") << "openingWindow" << "startLearnRussianTyping" << "Start" << true;
    QTest::newRow("instructions") << "openingWindow" << "openInstructions" << "Instructions" << true;
    QTest::newRow("self-explore") << "openingWindow" << "owInstructionsForSE"
                                  << "Self-Explore the Keyboard" << true;
    QTest::newRow("about") << "openingWindow" << "owAboutButton" << "About" << true;
    QTest::newRow("exit") << "openingWindow" << "owExitPushButton" << "Exit" << true;
    QTest::newRow("explore the world, parked")
            << "openingWindow" << "owExploreTheWorld" << "Explore the World" << false;
    QTest::newRow("close instructions") << "instructions" << "mgExitButton" << "Close Window" << true;
    QTest::newRow("close self-explore") << "selfExplore" << "seExitbutton" << "Close Window" << true;
    QTest::newRow("close explore the world")
            << "exploreWorld" << "etwExitButton" << "Close Window" << true;
    QTest::newRow("close about") << "aboutWindow" << "awExitButton" << "Close Window" << true;
    // clang-format on
}

void tst_Windows::buttons()
{
    QFETCH(QString, className);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(bool, reachable);

    const std::unique_ptr<QMainWindow> window = makeWindow(className);
    const auto *button = window->findChild<QPushButton *>(name);
    QVERIFY(button);
    QCOMPARE(button->text(), text);
    const bool inside = window->rect().contains(button->mapTo(window.get(), QPoint()));
    QCOMPARE(button->isEnabled() && inside, reachable);
}

// The version is added beside the About box's own lines: it must be readable whole and
// leave the contact line and its link alone.
void tst_Windows::aboutShowsVersion()
{
    aboutWindow about;
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));
    const QLabel *version = about.ui->versionLabel;
    QCOMPARE(version->text(), QStringLiteral("Version " VORTIC_VERSION));
    QVERIFY(version->isVisible());
    QVERIFY(about.rect().contains(version->geometry()));
    QVERIFY(version->sizeHint().width() <= version->width());
    const QList<QWidget *> neighbours
        = {about.ui->label_3, about.ui->label_4, about.ui->awExitButton};
    for (const QWidget *other : neighbours)
        QVERIFY2(
            !version->geometry().intersects(other->geometry()), qPrintable(other->objectName()));
}

void tst_Windows::mapClick_data()
{
    QTest::addColumn<QString>("frame");
    QTest::addColumn<QPoint>("point"); // in the frame; null for its centre
    QTest::addColumn<QString>("expected");

    // clang-format off
    const QString uppercase = "<b>Uppercase</b><br>Uppercase letters.<Br>Requires either of the "
                              "Shift keys<br>";
    const QString highlight =
            "<b>Highlight</b><br>Highlights the current letter's background to be matched with "
            "the color gold on the <br>on-screen keyboard. Can be changed under Advanced Options "
            "-> Color Madness.<br>This can be used for beginners, as it is easier to find the "
            "golden colored key on the player's<br>computer keyboard.";

    QTest::newRow("hide non-vitals")
            << "hideNonVitals" << QPoint()
            << "<b>Hide Non-Vitals </b><br>Hides and Shows the non-vital parts of the screen for "
               "easier playing.";
    QTest::newRow("a key's map")
            << "catManDo" << QPoint()
            << "<b>A Key's Map </b><br>Displays how to access a characer on the keyboard;<br>which "
               "other, if any, key is required.";
    QTest::newRow("keyboard")
            << "keyboard" << QPoint()
            << "<b>Keyboard</b><br>Keyboard reflects what the user strikes on their own "
               "computer.<br>Mousing over a key will cause all the characters attached to that "
               "key<br>to light up in red on both the Russian Alphabet Bar and the "
               "keyboard.<br>Colors can be changed using the Advanced Options.<br>";
    QTest::newRow("uppercase, its button") << "consonants" << QPoint() << uppercase;
    QTest::newRow("uppercase, its bar row") << "consonants_2" << QPoint() << uppercase;
    // The bar row's top line is also the bottom line of the current game's frame, which was
    // made later; only the raise puts the bar row on top.
    QTest::newRow("uppercase over the current game") << "consonants_2" << QPoint(60, 0) << uppercase;
    QTest::newRow("lowercase, its bar row")
            << "various_2" << QPoint() << "<b>Lowercase</b><br>Lowercase letters.";
    QTest::newRow("second step, beside start and stop")
            << "labelGames_2" << QPoint(6, 6)
            << "<b>Second step in starting the tutorials.</b><br>Start and stop buttons";
    QTest::newRow("start, inside the second step")
            << "labelStart" << QPoint()
            << "<b>Start  </b><br>Starts the game and clear any previous scores. <br>Deactivates "
               "the Russian Alphabet Bar’s Animation On/ Off buttons. ";
    QTest::newRow("reverse, inside the first step")
            << "reverse" << QPoint()
            << "<b>Reverse</b><br>Runs the tutorials in reverse order.<br>Click the buttons under "
               "the tutorial / games below to the left. ";
    QTest::newRow("soft, inside the third step")
            << "labelDifficulitySoft" << QPoint()
            << "<b>Soft Difficulty </b><br>Make a selection with the computer's keyboard, and then "
               "press the <b>Space Bar</b> with thumb(s)<br>to enter the selection for judging. "
               "Before the <b>Space Bar</b> is pressed, if the incorrect key<br>is pressed, the "
               "player can change their selection at any time.";
    // Where two raised frames overlap, the one raised later wins.
    QTest::newRow("number line over the keyboard")
            << "numberLine_2" << QPoint(100, 38)
            << "<b>Number Line Plus+</b><br>First is normal, then those requiring the Shift "
               "key.<br>Then are the four special charcters located on the keyboard below.";
    QTest::newRow("highlight over lines") << "labelGoldenHighlight" << QPoint(10, 18) << highlight;
    QTest::newRow("highlight") << "labelGoldenHighlight" << QPoint() << highlight;
    QTest::newRow("quit")
            << "labelQuit" << QPoint()
            << "<b>Quit  </b><br>Terminates the game. Closes all windows. ";
    // clang-format on
}

void tst_Windows::mapClick()
{
    QFETCH(QString, frame);
    QFETCH(QPoint, point);
    QFETCH(QString, expected);

    auto *label = map->findChild<QLabel *>(frame);
    QVERIFY(label);
    clickOn(map->ui->labelCheb, QPoint()); // a different text first, so a stale one cannot pass
    clickOn(label, point);
    QCOMPARE(mapText(), expected);
}

void tst_Windows::clickThatChangesNothing_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("button");

    // clang-format off
    QTest::newRow("right click on a frame") << "hideNonVitals" << QPoint() << int(Qt::RightButton);
    QTest::newRow("middle click on a frame") << "labelStart" << QPoint() << int(Qt::MiddleButton);
    QTest::newRow("picture outside all frames") << "map" << QPoint(30, 12) << int(Qt::LeftButton);
    QTest::newRow("caption beside the picture") << "label" << QPoint() << int(Qt::LeftButton);
    QTest::newRow("the text itself") << "mgDisplay" << QPoint() << int(Qt::LeftButton);
    // clang-format on
}

void tst_Windows::clickThatChangesNothing()
{
    QFETCH(QString, target);
    QFETCH(QPoint, point);
    QFETCH(int, button);

    auto *widget = map->ui->tabMap->findChild<QWidget *>(target);
    QVERIFY(widget);
    clickOn(map->ui->catManDo, QPoint());
    const QString before = mapText();
    QVERIFY(before.startsWith(QLatin1String("<b>A Key's Map")));

    clickOn(widget, point, Qt::MouseButton(button));
    QCOMPARE(mapText(), before);
}

namespace {

double luminance(QColor colour)
{
    auto channel = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF())
        + 0.0722 * channel(colour.blueF());
}

double contrast(QColor a, QColor b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// The colour most pixels of the label show: what its text stands on.
QColor groundOf(const QImage &window, const QRect &rect)
{
    QHash<QRgb, int> counts;
    for (int y = rect.top(); y <= rect.bottom(); ++y)
        for (int x = rect.left(); x <= rect.right(); ++x)
            if (window.rect().contains(x, y))
                ++counts[window.pixel(x, y)];
    QRgb most = 0;
    int best = -1;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        if (it.value() > best)
            std::tie(most, best) = std::make_pair(it.key(), it.value());
    return QColor(most);
}

} // namespace

// The main window's own sheet colours labels for its dark keyboard; its reading windows are its
// children and stand on light pages, so every text of theirs must still be readable there.
void tst_Windows::readingWindowsReadableBesideMainWindow()
{
    lexoria main;
    QPushButton *about = nullptr;
    for (QWidget *window : QApplication::topLevelWidgets())
        if (!about)
            about = window->findChild<QPushButton *>(QStringLiteral("owAboutButton"));
    QVERIFY(about);
    about->click(); // the reading windows are made on the first visit

    const QStringList names = {"instructions", "selfExplore", "exploreWorld", "aboutWindow"};
    int checked = 0;
    for (const QString &name : names) {
        auto *window = main.findChild<QMainWindow *>(name);
        QVERIFY2(window, qPrintable(name));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        const QImage image = window->grab().toImage();
        for (const QLabel *label : window->findChildren<QLabel *>()) {
            if (!label->isVisible() || label->text().trimmed().isEmpty()
                || label->text().startsWith(QLatin1String("<a ")))
                continue;
            const QRect rect(label->mapTo(window, QPoint()), label->size());
            const QColor text = label->palette().color(label->foregroundRole());
            const QColor ground = groundOf(image, rect);
            QVERIFY2(contrast(text, ground) >= 3.0,
                qPrintable(QStringLiteral("%1/%2: %3 on %4")
                               .arg(name, label->objectName(), text.name(), ground.name())));
            ++checked;
        }
        window->hide();
    }
    QVERIFY(checked >= 10);
}

QTEST_MAIN(tst_Windows)
#include "tst_windows.moc"
