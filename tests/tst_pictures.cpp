// Clicks go through the platform layer, so that underMouse() holds for the label clicked.
#define QTEST_QPA_MOUSE_HANDLING

#include "paneldriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QMovie>
#include <QRadioButton>
#include <QTemporaryDir>

#include <memory>

namespace {

const QString sheep = ":/new/prefix1/bouncingSheepSmall.gif";
const QString rain = ":/new/prefix1/rain.gif";
const QString blue = "border: 1px solid blue;";
const QString black = "border: 1px solid black;";

QByteArray resource(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

} // namespace

class tst_Pictures : public QObject, public PanelDriver
{
    Q_OBJECT

private slots:
    void init()
    {
        makeWindow(Start::Pointed);
        dir = std::make_unique<QTemporaryDir>();
        filtersAsked.clear();
        game->click("menuPhotos");
        QTRY_VERIFY(label("displayKeys")->isVisible());
    }
    void cleanup()
    {
        closeWindow();
        dir.reset();
    }

    void suppliedGifOnEachTarget_data();
    void suppliedGifOnEachTarget();
    void ownPictureOnEachTarget_data();
    void ownPictureOnEachTarget();
    void sizesAndClearing();
    void badFileChangesNothing_data();
    void badFileChangesNothing();
    void wallpaperAlignment_data();
    void wallpaperAlignment();
    void wallpaperRepeatStretchAndClear();
    void xRayVisionClearsTheWindowUntilThePanelCloses();

private:
    bool shown(const QString &name) const { return !label(name)->isHidden(); }
    void clickOn(const QString &name);
    // A file the test makes from a resource, or from bytes of its own.
    QString makeFile(const QString &name, const QByteArray &bytes);
    void answer(const QString &file);

    std::unique_ptr<QTemporaryDir> dir;
    QStringList filtersAsked;
};

void tst_Pictures::clickOn(const QString &name)
{
    auto *widget = window->findChild<QWidget *>(name);
    QVERIFY2(widget->isVisible(), qPrintable(name));
    QTest::mouseMove(widget, widget->rect().center());
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, widget->rect().center());
}

QString tst_Pictures::makeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(dir->filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(bytes);
    return file.fileName();
}

void tst_Pictures::answer(const QString &file)
{
    window->setFileAsker([this, file](const lexoria::FileQuestion &question) {
        filtersAsked.append(question.filter);
        return file.isEmpty() ? QStringList() : QStringList {file};
    });
}

void tst_Pictures::suppliedGifOnEachTarget_data()
{
    QTest::addColumn<QString>("display");
    QTest::newRow("Keys") << "displayKeys";
    QTest::newRow("Keypress") << "displayKeypress";
    QTest::newRow("Highlight") << "displayHighlight";
    QTest::newRow("Mouseover") << "displayMouseover";
}

// The display chosen with the mouse takes the sheep thumbnail's gif, at the sheep's own
// 34 x 54, and a key shows it in that state.
void tst_Pictures::suppliedGifOnEachTarget()
{
    QFETCH(QString, display);
    clickOn(display);
    QCOMPARE(label(display)->styleSheet(), blue);
    QCOMPARE(
        label(display == "displayKeys" ? "displayMouseover" : "displayKeys")->styleSheet(), black);
    QVERIFY(shown("radioLine" + display.mid(7)));

    clickOn("tnSheep");
    QMovie *movie = label(display)->movie();
    QCOMPARE(movie->fileName(), sheep);
    QCOMPARE(movie->currentImage().size(), QSize(34, 54));
    QCOMPARE(movie->state(), QMovie::Running);

    // а is on key 6 (F).
    QLabel *image = label("img6");
    if (display == "displayKeys") {
        QVERIFY(shown("img6") && shown("imgSpacebar"));
        QCOMPARE(label("img42")->movie(), movie);
    } else if (display == "displayKeypress") {
        QVERIFY(image->movie() != movie);
        QTest::keyPress(window.get(), Qt::Key_F);
        QVERIFY(shown("img6"));
        QCOMPARE(image->movie(), movie);
        QTest::keyRelease(window.get(), Qt::Key_F);
        QVERIFY(!shown("img6"));
    } else if (display == "displayMouseover") {
        hover(label("shield6"), QEvent::Enter);
        QVERIFY(shown("img6"));
        QCOMPARE(image->movie(), movie);
        hover(label("shield6"), QEvent::Leave);
        QVERIFY(!shown("img6"));
    } else {
        game->startGame("pbForwardVarious");
        game->click("goldenHighlight");
        // The forward lowercase game starts from а.
        QVERIFY(shown("img6"));
        QCOMPARE(image->movie(), movie);
    }
}

void tst_Pictures::ownPictureOnEachTarget_data()
{
    QTest::addColumn<QString>("open");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("source");
    QTest::addColumn<QSize>("fit");
    // The wallpaper sample is 240 x 160 and rain 80 x 60: both come to 54 wide.
    const QString png = ":/new/prefix1/wallpaper.png";
    QTest::newRow("Keys, png") << "openImageKeys"
                               << "displayKeys" << png << QSize(54, 36);
    QTest::newRow("Keypress, gif") << "openFolderKeypress"
                                   << "displayKeypress" << rain << QSize(54, 41);
    QTest::newRow("Highlight, png") << "openFolderHighlight"
                                    << "displayHighlight" << png << QSize(54, 36);
    QTest::newRow("Mouseover, gif") << "openImageMouseover"
                                    << "displayMouseover" << rain << QSize(54, 41);
}

// Opened in a game with the highlight on, a highlight picture shows on а's key at once.
void tst_Pictures::ownPictureOnEachTarget()
{
    QFETCH(QString, open);
    QFETCH(QString, display);
    QFETCH(QString, source);
    QFETCH(QSize, fit);
    game->startGame("pbForwardVarious");
    game->click("goldenHighlight");
    radio("radioRain")->click();
    const QString file = makeFile("my picture" + source.right(4), resource(source));
    answer(file);
    if (open.startsWith("openFolder"))
        clickOn(open);
    else
        game->click(open);

    QCOMPARE(filtersAsked, QStringList {"Images(*bmp *.gif *.jpg *.png)"});
    QMovie *movie = label(display)->movie();
    QCOMPARE(movie->fileName(), file);
    QCOMPARE(movie->currentImage().size(), fit);
    QVERIFY(shown("radioLine" + display.mid(7) + "_2"));
    QVERIFY(!shown("radioLine" + display.mid(7)));
    QVERIFY(radio("radioNone")->isChecked());
    if (display == "displayKeys")
        QCOMPARE(label("img1")->movie(), movie);
    if (display == "displayHighlight")
        QCOMPARE(label("img6")->movie(), movie);

    // A cancelled dialog turns the target off.
    answer(QString());
    game->click(open.replace("openFolder", "openImage"));
    QVERIFY(!label(display)->movie());
    QVERIFY(!shown("img6") || label("img6")->movie() != movie);
}

void tst_Pictures::sizesAndClearing()
{
    answer(makeFile("big.png", resource(":/new/prefix1/wallpaper.png")));
    game->click("openImageKeys");
    QMovie *movie = label("img1")->movie();
    radio("normalSize")->click();
    QCOMPARE(movie->currentImage().size(), QSize(240, 160));
    radio("setToFit")->click();
    QCOMPARE(movie->currentImage().size(), QSize(54, 36));

    // The sheep's own fit is not the stored size of the last file.
    radio("radioSheep")->click();
    radio("normalSize")->click();
    radio("setToFit")->click();
    QCOMPARE(label("img1")->movie()->currentImage().size(), QSize(34, 54));

    // Fill Size stretches the pictures of the wide keys only.
    radio("expandGif")->click();
    QVERIFY(label("imgSpacebar")->hasScaledContents() && label("img42")->hasScaledContents());
    QVERIFY(!label("img1")->hasScaledContents());
    radio("normalGif")->click();
    QVERIFY(!label("imgSpacebar")->hasScaledContents());

    game->click("clearKeysImage");
    QVERIFY(!label("displayKeys")->movie());
    QVERIFY(!shown("img1") && !shown("imgTab"));
}

void tst_Pictures::badFileChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("exists");
    QTest::newRow("missing") << QByteArray() << false;
    QTest::newRow("not a picture") << QByteArray("this is no picture at all\n") << true;
    QTest::newRow("gif cut after its header") << resource(rain).left(13) << true;
}

// The keys keep their sheep, the panel its markers and the wallpaper its look.
void tst_Pictures::badFileChangesNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, exists);
    radio("radioSheep")->click();
    answer(exists ? makeFile("bad.gif", bytes) : dir->filePath("gone.png"));
    auto look = [this] {
        QStringList state;
        for (const char *name : {"displayKeys", "displayKeypress", "radioLineKeys",
                 "radioLineKeys_2", "radioLineKeypress_2", "img1", "wallpaper"}) {
            QLabel *each = label(name);
            state << each->styleSheet() << QString::number(!each->isHidden())
                  << (each->movie() ? each->movie()->fileName() : QString());
        }
        return state;
    };
    const QStringList before = look();
    for (const char *open : {"openImageKeys", "openImageKeypress", "openImageMain"})
        game->click(open);
    QCOMPARE(filtersAsked.size(), 3);
    QCOMPARE(look(), before);
    QCOMPARE(label("img1")->movie()->state(), QMovie::Running);
}

void tst_Pictures::wallpaperAlignment_data()
{
    QTest::addColumn<QString>("point");
    QTest::addColumn<int>("alignment");
    QTest::newRow("left top") << "leftTop" << int(Qt::AlignLeft | Qt::AlignTop);
    QTest::newRow("middle top") << "middleTop" << int(Qt::AlignHCenter | Qt::AlignTop);
    QTest::newRow("right top") << "rightTop" << int(Qt::AlignRight | Qt::AlignTop);
    QTest::newRow("left") << "alignLeft" << int(Qt::AlignLeft | Qt::AlignVCenter);
    QTest::newRow("centre") << "alignCenter" << int(Qt::AlignCenter);
    QTest::newRow("right") << "alignRight" << int(Qt::AlignRight | Qt::AlignVCenter);
    QTest::newRow("left bottom") << "leftBottom" << int(Qt::AlignLeft | Qt::AlignBottom);
    QTest::newRow("middle bottom") << "middleBottom" << int(Qt::AlignHCenter | Qt::AlignBottom);
    QTest::newRow("right bottom") << "rightBottom" << int(Qt::AlignRight | Qt::AlignBottom);
}

void tst_Pictures::wallpaperAlignment()
{
    QFETCH(QString, point);
    QFETCH(int, alignment);
    const QString file = makeFile("wall paper (1).png", resource(":/new/prefix1/wallpaper.png"));
    answer(file);
    clickOn("openFolderMain");
    QCOMPARE(label("wallpaper")->movie()->fileName(), file);
    clickOn(point + "_2");
    QVERIFY(radio(point)->isChecked());
    QCOMPARE(int(label("wallpaper")->alignment()), alignment);
}

void tst_Pictures::wallpaperRepeatStretchAndClear()
{
    const QString file = makeFile("tile.png", resource(":/new/prefix1/wallpaper.png"));
    answer(file);
    game->click("openImageMain");
    QLabel *wallpaper = label("wallpaper");
    QCOMPARE(label("radioLineMain")->styleSheet(), blue);
    const QString colours = wallpaper->styleSheet().remove("background-repeat: no-repeat;");
    radio("stretchYes")->click();
    QVERIFY(wallpaper->hasScaledContents());

    radio("repeatYes")->click();
    QCOMPARE(wallpaper->styleSheet(), colours + "background-image: url(" + file + ");");
    QVERIFY(!wallpaper->movie());
    // While the picture repeats, the dial has nowhere to put it.
    // A new wallpaper colour keeps the tiles.
    window->grad(7);
    QVERIFY(wallpaper->styleSheet().endsWith("background-image: url(" + file + ");"));
    const Qt::Alignment before = wallpaper->alignment();
    clickOn("rightBottom_2");
    QCOMPARE(wallpaper->alignment(), before);
    radio("repeatNo")->click();
    QCOMPARE(wallpaper->movie()->fileName(), file);
    QCOMPARE(wallpaper->alignment(), Qt::AlignRight | Qt::AlignBottom);

    radio("repeatYes")->click();
    game->click("clearMainImage");
    QVERIFY(radio("repeatNo")->isChecked());
    QCOMPARE(wallpaper->styleSheet(), colours + "background-repeat: no-repeat;");
    QVERIFY(!wallpaper->movie());
    QCOMPARE(label("radioLineMain")->styleSheet(), black);
    // A cancelled dialog leaves the transparent blank picture.
    answer(QString());
    game->click("openImageMain");
    QCOMPARE(wallpaper->movie()->fileName(), QString(":/new/prefix1/blank.gif"));
}

void tst_Pictures::xRayVisionClearsTheWindowUntilThePanelCloses()
{
    const QStringList cleared {"framePhotos", "openImageKeys", "clearMouseoverImage", "scoreboard",
        "start", "optionsShield"};
    auto hidden
        = [this](const QString &name) { return window->findChild<QWidget *>(name)->isHidden(); };
    clickOn("xRayVision");
    for (const QString &name : cleared)
        QVERIFY2(hidden(name), qPrintable(name));
    // What sets the wallpaper stays at hand.
    for (const char *name : {"framePhotosMain", "openImageMain", "xRayVision"})
        QVERIFY2(!hidden(name), name);
    clickOn("xRayVision");
    for (const QString &name : cleared)
        QVERIFY2(!hidden(name), qPrintable(name));

    clickOn("xRayVision");
    game->click("menuPhotos");
    QVERIFY(!window->findChild<QCheckBox *>("xRayVision")->isChecked());
    for (const char *name : {"scoreboard", "start", "optionsShield"})
        QVERIFY2(!hidden(name), name);
}

QTEST_MAIN(tst_Pictures)
#include "tst_pictures.moc"
