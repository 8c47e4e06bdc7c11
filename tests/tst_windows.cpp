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

    void fixedWindowsWithReachableButtons();
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

// Every window keeps the size its pictures were laid out for, and every button on it can be
// reached, but for the one the opening window parks out of sight on purpose.
void tst_Windows::fixedWindowsWithReachableButtons()
{
    for (const char *className :
        {"openingWindow", "instructions", "selfExplore", "exploreWorld", "aboutWindow"}) {
        const std::unique_ptr<QMainWindow> window = makeWindow(QLatin1String(className));
        QVERIFY2(window->minimumSize() == window->size(), className);
        QVERIFY2(window->maximumSize() == window->size(), className);
        for (const QPushButton *button : window->findChildren<QPushButton *>()) {
            const bool inside = window->rect().contains(button->mapTo(window.get(), QPoint()));
            const bool parked = button->objectName() == "owExploreTheWorld";
            QVERIFY2((button->isEnabled() && inside) != parked, qPrintable(button->objectName()));
        }
    }
    const std::unique_ptr<QMainWindow> opening = makeWindow("openingWindow");
    QCOMPARE(opening->size(), QSize(700, 551));
    QCOMPARE(opening->windowTitle(), QString("Vortic-Typing: Russian"));
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
    QTest::addColumn<QString>("heading");

    // clang-format off
    QTest::newRow("hide non-vitals") << "hideNonVitals" << QPoint() << "Hide Non-Vitals ";
    QTest::newRow("a key's map") << "catManDo" << QPoint() << "A Key's Map ";
    QTest::newRow("uppercase, its button") << "consonants" << QPoint() << "Uppercase";
    QTest::newRow("uppercase, its bar row") << "consonants_2" << QPoint() << "Uppercase";
    // The bar row's top line is also the bottom line of the current game's frame, which was
    // made later; only the raise puts the bar row on top.
    QTest::newRow("uppercase over the current game") << "consonants_2" << QPoint(60, 0) << "Uppercase";
    QTest::newRow("second step, beside start and stop")
            << "labelGames_2" << QPoint(6, 6) << "Second step in starting the tutorials.";
    QTest::newRow("start, inside the second step") << "labelStart" << QPoint() << "Start  ";
    QTest::newRow("reverse, inside the first step") << "reverse" << QPoint() << "Reverse";
    QTest::newRow("soft, inside the third step")
            << "labelDifficulitySoft" << QPoint() << "Soft Difficulty ";
    // Where two raised frames overlap, the one raised later wins.
    QTest::newRow("number line over the keyboard")
            << "numberLine_2" << QPoint(100, 38) << "Number Line Plus+";
    QTest::newRow("highlight over lines") << "labelGoldenHighlight" << QPoint(10, 18) << "Highlight";
    QTest::newRow("quit") << "labelQuit" << QPoint() << "Quit  ";
    // clang-format on
}

void tst_Windows::mapClick()
{
    QFETCH(QString, frame);
    QFETCH(QPoint, point);
    QFETCH(QString, heading);

    auto *label = map->findChild<QLabel *>(frame);
    QVERIFY(label);
    clickOn(map->ui->labelCheb, QPoint()); // a different text first, so a stale one cannot pass
    clickOn(label, point);
    QVERIFY2(mapText().startsWith("<b>" + heading + "</b><br>"), qPrintable(mapText()));
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
