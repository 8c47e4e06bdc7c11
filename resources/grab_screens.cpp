// vortic-screens: photographs the main window for the pictures of the instructions.
//
//     vortic-screens [folder]
//     vortic-screens --docs [folder]
//
// Each row of the table below plays the window into a state, cuts a region out of it and
// writes it at the pixel size the instructions lay it out at. Pictures of parts the window
// does not have yet are not written, so the generator's drawings of them stay.
//
// With --docs it writes the pictures of the README instead: the main window and the opening
// window as they open, or, on a screen of twice the pixels (QT_SCALE_FACTOR=2), the main
// window at that density.

#include "lexoria/hidpi.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/lexoria.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QImage>
#include <QImageWriter>
#include <QLCDNumber>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <memory>

namespace {

// Setting up a scene fails only when the window stops answering as it should; the message
// says where.
using Scene = bool (*)(lexoria &window, QString *error);

QPushButton *button(lexoria &window, const char *name)
{
    return window.findChild<QPushButton *>(QLatin1String(name));
}

bool click(lexoria &window, const char *name, QString *error)
{
    QPushButton *target = button(window, name);
    if (!target) {
        *error = QStringLiteral("no button %1").arg(QLatin1String(name));
        return false;
    }
    target->click();
    return true;
}

bool clickAll(lexoria &window, std::initializer_list<const char *> names, QString *error)
{
    for (const char *name : names) {
        if (!click(window, name, error))
            return false;
    }
    return true;
}

// The physical key of letter n, with Shift where the key needs it, as a player presses it.
void type(lexoria &window, int n)
{
    const keycatalogue::CharacterKey &key
        = keycatalogue::characterKey(keycatalogue::keyOfLetter(n));
    const bool shifted = key.upper == n;
    const bool letterKey = key.k <= 26;
    const int code = (shifted && !letterKey) ? key.shiftedCode : key.plainCode;
    QTest::keyClick(&window, Qt::Key(code), shifted ? Qt::ShiftModifier : Qt::NoModifier);
}

// A player waits for the last entry to leave the field before the next key; a key pressed
// sooner would be wiped with it.
bool entryCleared(lexoria &window, QString *error)
{
    QLineEdit *entry = window.findChild<QLineEdit *>(QStringLiteral("leUser"));
    if (entry && QTest::qWaitFor([entry] { return entry->text().isEmpty(); }, 2000))
        return true;
    *error = QStringLiteral("the entry field did not clear");
    return false;
}

bool strictChosen(lexoria &window, QString *error)
{
    return click(window, "strict", error);
}

// With the bar's wave left on, as a newcomer has it; the picture waits for the wave to end.
bool lowercaseChosen(lexoria &window, QString *error)
{
    if (!click(window, "pbForwardVarious", error))
        return false;
    QWidget *shield = window.findChild<QWidget *>(QStringLiteral("shieldStart"));
    if (shield && QTest::qWaitFor([shield] { return shield->isHidden(); }, 10000))
        return true;
    *error = QStringLiteral("the alphabet bar's wave did not end");
    return false;
}

// Seven letters right, one wrong, and ж typed but not yet entered with Space. The picture
// is taken the moment the clock turns to 5 s, so it shows the same time on every run.
bool lowercaseUnderway(lexoria &window, QString *error)
{
    if (!clickAll(window, {"animationOff", "pbForwardVarious", "start"}, error))
        return false;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 10}) {
        type(window, n);
        QTest::keyClick(&window, Qt::Key_Space);
        if (!entryCleared(window, error))
            return false;
    }
    type(window, 8);
    const auto *clock = window.findChild<QLCDNumber *>(QStringLiteral("lcd"));
    if (clock && QTest::qWaitFor([clock] { return clock->intValue() >= 5; }, 10000)
        && clock->intValue() == 5)
        return true;
    *error = QStringLiteral("the clock ran past 5 s before the game was set");
    return false;
}

// The whole Lowercase game, а to я, in strict mode. The clock has stopped by the end, but
// it is outside the pictures taken of this scene.
bool lowercaseFinished(lexoria &window, QString *error)
{
    if (!clickAll(window, {"strict", "animationOff", "pbForwardVarious", "start"}, error))
        return false;
    for (int n = 1; n <= 33; ++n) {
        if (!entryCleared(window, error))
            return false;
        type(window, n);
    }
    return true;
}

struct Shot
{
    const char *file;
    Scene scene; // nullptr: the window as it opens
    QRect region; // window coordinates; empty: the whole window
    QSize size;
    // Widgets of other parts that reach into the region, hidden while it is photographed.
    const char *leftOut = nullptr;
};

// Rows of one scene follow each other: the window is set up once for them. Sizes are the
// ones the instruction pages lay out; a region of another size is scaled to it.
const Shot shots[] = {
    // The Map tab lays its frames on the window squeezed to the picture's size.
    {"mainScreen.png", nullptr, {}, {767, 449}},
    {"keyboard.png", nullptr, {138, 386, 924, 306}, {924, 306}, "rNumberLinePlus hideNonVitals"},
    {"alphabetBar.png", nullptr, {140, 262, 928, 128}, {928, 128}},
    {"start1.png", nullptr, {188, 0, 223, 114}, {223, 114}},
    {"start2.png", nullptr, {426, 0, 187, 114}, {187, 114}},
    {"start3.png", nullptr, {632, 0, 212, 114}, {212, 114}},
    {"start4.png", nullptr, {188, 0, 811, 114}, {811, 114}},
    {"sof.png", nullptr, {636, 0, 208, 114}, {208, 114}},
    {"animation.png", nullptr, {340, 206, 90, 48}, {90, 48}},
    {"directionButtons.PNG", nullptr, {0, 226, 140, 54}, {140, 54}},
    {"insLeft.png", nullptr, {2, 540, 98, 112}, {98, 112}},
    {"insRight.png", nullptr, {1104, 526, 106, 128}, {106, 128}},
    {"quit.png", nullptr, {0, 656, 52, 39}, {52, 39}},
    {"help.png", nullptr, {1114, 654, 97, 41}, {97, 41}},
    {"hideNonVitals.PNG", nullptr, {998, 668, 56, 27}, {56, 27}},
    // D, a key without the home-row mark that F and J carry.
    {"squareKey.png", nullptr, {394, 514, 54, 54}, {54, 54}},
    {"strick.png", strictChosen, {636, 0, 208, 114}, {208, 114}},
    {"currentGame.png", lowercaseChosen, {196, 134, 234, 118}, {234, 118}},
    {"gamePlay.png", lowercaseUnderway, {466, 124, 534, 130}, {534, 130}},
    {"scoreboard.png", lowercaseUnderway, {0, 2, 187, 210}, {187, 210}},
    {"AlphabetBarFinished.png", lowercaseFinished, {140, 262, 928, 128}, {928, 128}},
};

QImage photograph(lexoria &window, const Shot &shot, QString *error)
{
    const QRect region = shot.region.isEmpty() ? window.rect() : shot.region;
    if (!window.rect().contains(region)) {
        *error = QStringLiteral("the region lies outside the window");
        return {};
    }
    QList<QWidget *> hidden;
    if (shot.leftOut) {
        for (const QString &name : QString::fromLatin1(shot.leftOut).split(QLatin1Char(' '))) {
            QWidget *widget = window.findChild<QWidget *>(name);
            if (!widget) {
                *error = QStringLiteral("no widget %1").arg(name);
                return {};
            }
            if (widget->isVisible()) {
                widget->hide();
                hidden << widget;
            }
        }
    }
    QImage image = window.grab(region).toImage().convertToFormat(QImage::Format_RGB32);
    for (QWidget *widget : qAsConst(hidden))
        widget->show();
    if (image.size() != shot.size)
        image = image.scaled(shot.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image;
}

bool save(const QImage &image, const QString &path, QString *error)
{
    QImageWriter writer(path, "png");
    // For PNG the quality picks the zlib level: 0 packs hardest, which keeps the
    // collection small at no cost to the picture.
    writer.setQuality(0);
    if (writer.write(image))
        return true;
    *error = writer.errorString();
    return false;
}

// A visitor of the README sees the program as a player does, at the density of the screen.
int writeDocs(const QDir &folder)
{
    lexoria window;
    window.openLexoria();
    QCoreApplication::processEvents();
    const bool doubled = window.devicePixelRatioF() >= 2.0;
    QList<QPair<QWidget *, const char *>> pictures;
    if (doubled) {
        pictures.append({&window, "main-window-2x.png"});
    } else {
        pictures.append({&window, "main-window.png"});
        pictures.append({window.findChild<QMainWindow *>(QStringLiteral("openingWindow")),
            "opening-window.png"});
    }
    auto write = [&folder](QWidget *widget, const char *file) {
        QString error;
        const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
        if (!save(image, folder.filePath(QLatin1String(file)), &error)) {
            std::fprintf(stderr, "vortic-screens: %s: %s\n", file, qPrintable(error));
            return false;
        }
        std::printf("%s  %dx%d\n", file, image.width(), image.height());
        return true;
    };
    for (const auto &[widget, file] : qAsConst(pictures))
        if (!write(widget, file))
            return 1;
    if (doubled)
        return 0;
    // The guided tour lights one step every 3.5 s from the moment the window opens: one picture
    // in the first step and one in the second.
    QTest::qWait(1000);
    if (!write(&window, "tour-step-1.png"))
        return 1;
    QTest::qWait(3500);
    return write(&window, "tour-step-2.png") ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    // Off screen, the window is drawn the same on every desktop: no scaling, no theme.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The instructions' pictures have fixed pixel sizes; the README's follow the screen, as
    // the program does. Qt reads these attributes before the application object exists.
    const bool docs = std::any_of(argv + 1, argv + argc,
        [](const char *argument) { return std::strcmp(argument, "--docs") == 0; });
    if (docs)
        hidpi::enableScaling();
    else
        QApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vortic-screens"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Writes the screenshots of the instructions from the main window."));
    parser.addHelpOption();
    parser.addOption({QStringLiteral("docs"),
        QStringLiteral("Write the README's pictures (default folder: %1).")
            .arg(QStringLiteral(VORTIC_DOCS_DIR))});
    parser.addPositionalArgument(QStringLiteral("folder"),
        QStringLiteral("Where the pictures go (default: %1).")
            .arg(QStringLiteral(VORTIC_SCREENS_DIR)));
    parser.process(app);
    const QDir folder(parser.positionalArguments().value(
        0, docs ? QStringLiteral(VORTIC_DOCS_DIR) : QStringLiteral(VORTIC_SCREENS_DIR)));
    if (!folder.exists() && !QDir().mkpath(folder.path())) {
        std::fprintf(stderr, "vortic-screens: cannot make %s\n", qPrintable(folder.path()));
        return 1;
    }
    if (docs)
        return writeDocs(folder);

    std::unique_ptr<lexoria> window;
    Scene scene = nullptr;
    for (const Shot &shot : shots) {
        QString error;
        if (!window || shot.scene != scene) {
            window.reset();
            window = std::make_unique<lexoria>();
            window->openLexoria();
            scene = shot.scene;
            if (scene && !scene(*window, &error)) {
                std::fprintf(stderr, "vortic-screens: %s: %s\n", shot.file, qPrintable(error));
                return 1;
            }
            // Let shown and restyled widgets settle before the first picture of the scene.
            QCoreApplication::processEvents();
        }
        const QImage image = photograph(*window, shot, &error);
        const QString path = folder.filePath(QLatin1String(shot.file));
        if (image.isNull() || !save(image, path, &error)) {
            std::fprintf(stderr, "vortic-screens: %s: %s\n", shot.file, qPrintable(error));
            return 1;
        }
        std::printf("%s  %dx%d\n", shot.file, image.width(), image.height());
    }
    return 0;
}
