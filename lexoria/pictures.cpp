#include "lexoria/lexoria.h"

#include "lexoria/effecttables.h"
#include "lexoria/form.h"
#include "lexoria/restyle.h"

#include <QCheckBox>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>

using namespace effecttables;

namespace pictureview {

constexpr const char *selectedFrame = "border: 1px solid blue;";
constexpr const char *plainFrame = "border: 1px solid black;";
constexpr const char *pictureFilter = "Images(*bmp *.gif *.jpg *.png)";
constexpr const char *folderIcon = ":/new/prefix1/iconOpen.gif";
constexpr int keyWidth = 54;

// The nine points of the wallpaper's dial: the hidden radio that holds the choice, the
// picture the player clicks, and where a single picture then sits.
struct AlignPoint
{
    const char *radio;
    const char *picture;
    const char *resource;
    Qt::Alignment alignment;
};

const AlignPoint alignPoints[] = {
    {"leftTop", "leftTop_2", ":/new/prefix1/topleft.PNG", Qt::AlignLeft | Qt::AlignTop},
    {"middleTop", "middleTop_2", ":/new/prefix1/up.PNG", Qt::AlignHCenter | Qt::AlignTop},
    {"rightTop", "rightTop_2", ":/new/prefix1/topright.PNG", Qt::AlignRight | Qt::AlignTop},
    {"alignLeft", "alignLeft_2", ":/new/prefix1/left.PNG", Qt::AlignLeft | Qt::AlignVCenter},
    {"alignCenter", "alignCenter_2", ":/new/prefix1/veryCenter.PNG", Qt::AlignCenter},
    {"alignRight", "alignRight_2", ":/new/prefix1/right.PNG", Qt::AlignRight | Qt::AlignVCenter},
    {"leftBottom", "leftBottom_2", ":/new/prefix1/downleft.PNG", Qt::AlignLeft | Qt::AlignBottom},
    {"middleBottom", "middleBottom_2", ":/new/prefix1/down.PNG",
        Qt::AlignHCenter | Qt::AlignBottom},
    {"rightBottom", "rightBottom_2", ":/new/prefix1/digRight.png",
        Qt::AlignRight | Qt::AlignBottom},
};

// Keys wider than a letter key; "Fill Size" stretches their picture over the whole key.
constexpr const char *oddShapedImages[] = {"imgCapsLock", "imgSpacebar", "imgEnter",
    "imgShiftRight", "imgShiftLeft", "imgBackSpace", "imgTab", "img42"};

// X-Ray Vision clears these besides what every X-ray clears.
constexpr const char *xRayCleared[] = {"framePhotos", "optionsShield", "optionsArrow1",
    "optionsArrow2", "optionsArrow3", "optionsText1", "optionsText2"};

// The first frame of a file as the movie would show it; null for a file that is missing, of a
// format no plugin reads, or broken before its first picture.
QImage firstFrame(const QString &file)
{
    QMovie probe(file);
    if (!probe.isValid() || !probe.jumpToFrame(0))
        return {};
    return probe.currentImage();
}

// A path with blanks or brackets would end the url() early.
QString backgroundImageOf(const QString &path)
{
    static const QRegularExpression needsQuotes(QStringLiteral("[\\s()'\"]"));
    if (!path.contains(needsQuotes))
        return QStringLiteral("background-image: url(") + path + QStringLiteral(");");
    QString quoted = path;
    quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    quoted.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QStringLiteral("background-image: url(\"") + quoted + QStringLiteral("\");");
}

} // namespace pictureview

using namespace pictureview;

void lexoria::connectPictures()
{
    const QPixmap folder {QString(QLatin1String(folderIcon))};
    for (int target = Keys; target <= Mouseover; ++target) {
        const PictureTarget &place = pictureTargets[target];
        connect(ui->find<QRadioButton>(QLatin1String(place.radio)), &QRadioButton::clicked, this,
            [this, target] { selectPictureTarget(target); });
        connect(ui->find<QPushButton>(QLatin1String(place.openButton)), &QPushButton::clicked, this,
            [this, target] { openPicture(target); });
        connect(ui->find<QPushButton>(QLatin1String(place.clearButton)), &QPushButton::clicked,
            this, [this, target] { clearPictureSlot(target); });
        ui->find<QLabel>(QLatin1String(place.openFolder))->setPixmap(folder);
    }
    ui->find<QLabel>(QStringLiteral("openFolderMain"))->setPixmap(folder);
    connect(ui->normalSize, &QRadioButton::clicked, this, &lexoria::normalSize_function);
    connect(ui->setToFit, &QRadioButton::clicked, this, &lexoria::setToFit_function);
    connect(ui->normalGif, &QRadioButton::clicked, this, &lexoria::stfOff);
    connect(ui->expandGif, &QRadioButton::clicked, this, &lexoria::stfOn);

    connect(ui->find<QPushButton>(QStringLiteral("openImageMain")), &QPushButton::clicked, this,
        &lexoria::openImageMain_Function);
    connect(ui->find<QPushButton>(QStringLiteral("clearMainImage")), &QPushButton::clicked, this,
        &lexoria::clearMainImage_function);
    for (QRadioButton *repeat : {ui->repeatYes, ui->repeatNo})
        connect(repeat, &QRadioButton::clicked, this, &lexoria::mainRepeat);
    for (QRadioButton *stretch : {ui->stretchYes, ui->stretchNo})
        connect(stretch, &QRadioButton::clicked, this, &lexoria::mainStretchToFit);
    for (const AlignPoint &point : alignPoints) {
        connect(ui->find<QRadioButton>(QLatin1String(point.radio)), &QRadioButton::clicked, this,
            &lexoria::mainAlign);
        ui->find<QLabel>(QLatin1String(point.picture))
            ->setPixmap(QPixmap(QLatin1String(point.resource)));
    }
    connect(ui->xRayVision, &QCheckBox::clicked, this, &lexoria::xRayVisionPhotos);
    mainAlign();
}

QSize lexoria::pictureFitSize(int target) const
{
    switch (target) {
    case Keypress:
        return QSize(pictures.keypressImageWidth, pictures.keypressImageHeight);
    case Highlight:
        return QSize(pictures.highlightImageWidth, pictures.highlightImageHeight);
    case Mouseover:
        return QSize(pictures.mouseoverImageWidth, pictures.mouseoverImageHeight);
    }
    return QSize(pictures.keysImageWidth, pictures.keysImageHeight);
}

void lexoria::setPictureFitSize(int target, const QSize &size)
{
    switch (target) {
    case Keys:
        pictures.keysImageWidth = size.width();
        pictures.keysImageHeight = size.height();
        break;
    case Keypress:
        pictures.keypressImageWidth = size.width();
        pictures.keypressImageHeight = size.height();
        break;
    case Highlight:
        pictures.highlightImageWidth = size.width();
        pictures.highlightImageHeight = size.height();
        break;
    case Mouseover:
        pictures.mouseoverImageWidth = size.width();
        pictures.mouseoverImageHeight = size.height();
        break;
    }
}

// Puts the target's path into its movie at the size the size radios ask for, on the panel's
// display and, for the keys at rest, on every key.
void lexoria::showPicture(int target, const QSize &size)
{
    QMovie *movie = pictureMovie(target);
    movie->stop();
    movie->setFileName(picturePath(target));
    movie->setScaledSize(ui->normalSize->isChecked() ? QSize(-1, -1) : size);
    ui->find<QLabel>(QLatin1String(pictureTargets[target].display))->setMovie(movie);
    if (target == Keys) {
        // One movie feeds the whole keyboard: one decoder however many keys show it.
        for (QLabel *image : qAsConst(keyImgLabels)) {
            image->setMovie(movie);
            image->show();
        }
    }
    if (!picturePath(target).isEmpty())
        movie->start();
    // The highlighted key shows the highlight's picture over the rest picture.
    if ((target == Highlight || target == Keys) && goldHighActive)
        goldHighOn();
}

void lexoria::clearPictureSlot(int target)
{
    switch (target) {
    case Keys:
        clearKeysImage_function();
        break;
    case Keypress:
        clearKeypressImage_function();
        break;
    case Highlight:
        clearHighlightImage_function();
        break;
    case Mouseover:
        clearMouseoverImage_function();
        break;
    }
}

// One blue line tells which target the next choice goes to: the line under the displays for
// the supplied gifs, the line beside the buttons for a file of the player's own.
void lexoria::markPictureTarget(int target, bool ownPicture)
{
    for (int each = Keys; each <= Mouseover; ++each) {
        const PictureTarget &place = pictureTargets[each];
        const QLatin1String frame(each == target ? selectedFrame : plainFrame);
        QWidget *gifLine = ui->widget(QLatin1String(place.radioLine));
        QWidget *ownLine = ui->widget(QLatin1String(place.ownLine));
        gifLine->setVisible(!ownPicture && each == target);
        ownLine->setVisible(ownPicture && each == target);
        restyle(gifLine, frame);
        restyle(ownLine, frame);
        restyle(ui->widget(QLatin1String(place.display)), frame);
    }
}

void lexoria::selectPictureTarget(int target)
{
    ui->find<QRadioButton>(QLatin1String(pictureTargets[target].radio))->setChecked(true);
    markPictureTarget(target, false);
    clearPictureSlot(target);
    pictureOn(target) = QStringLiteral("1");
    // With "None" chosen the target is on with an empty movie: keys in that state show nothing.
    for (const KeyPictureGif &gif : keyPictureGifs) {
        if (ui->find<QRadioButton>(QLatin1String(gif.radio))->isChecked()) {
            picturePath(target) = QLatin1String(gif.resource);
            setPictureFitSize(target, QSize(gif.width, gif.height));
            break;
        }
    }
    showPicture(target, pictureFitSize(target));
}

void lexoria::radioKeys_function()
{
    selectPictureTarget(Keys);
}

void lexoria::radioKeypress_function()
{
    selectPictureTarget(Keypress);
}

void lexoria::radioHighlight_function()
{
    selectPictureTarget(Highlight);
}

void lexoria::radioMouseover_function()
{
    selectPictureTarget(Mouseover);
}

void lexoria::openPicture(int target)
{
    // A refused file leaves the panel as it was, markers included.
    struct Mark
    {
        QWidget *widget;
        bool visible;
        QString sheet;
    };
    QList<Mark> marks;
    for (const PictureTarget &place : pictureTargets) {
        for (const char *name : {place.radioLine, place.ownLine, place.display}) {
            QWidget *widget = ui->widget(QLatin1String(name));
            marks.append({widget, !widget->isHidden(), widget->styleSheet()});
        }
    }
    markPictureTarget(target, true);

    const QStringList files = askFiles({FileQuestion::Pick, {}, {}, QLatin1String(pictureFilter)});
    if (files.isEmpty()) {
        clearPictureSlot(target);
        ui->radioNone->setChecked(true);
        return;
    }
    const QImage first = firstFrame(files.first());
    if (first.isNull()) {
        for (const Mark &mark : qAsConst(marks)) {
            mark.widget->setVisible(mark.visible);
            restyle(mark.widget, mark.sheet);
        }
        return;
    }
    // The player's picture keeps its proportions at the width of a key.
    setPictureFitSize(target, first.scaledToWidth(keyWidth, Qt::SmoothTransformation).size());
    pictureOn(target) = QStringLiteral("1");
    picturePath(target) = files.first();
    showPicture(target, pictureFitSize(target));
    ui->radioNone->setChecked(true);
}

void lexoria::openImageKeys_Function()
{
    openPicture(Keys);
}

void lexoria::openImageKeypress_Function()
{
    openPicture(Keypress);
}

void lexoria::openImageHighlight_Function()
{
    openPicture(Highlight);
}

void lexoria::openImageMouseover_Function()
{
    openPicture(Mouseover);
}

void lexoria::resizePictures(bool fit)
{
    for (int target = Keys; target <= Mouseover; ++target) {
        if (pictureOn(target) != QLatin1String("1"))
            continue;
        QMovie *movie = pictureMovie(target);
        movie->stop();
        movie->setScaledSize(fit ? pictureFitSize(target) : QSize(-1, -1));
        ui->find<QLabel>(QLatin1String(pictureTargets[target].display))->setMovie(movie);
        if (target == Keys) {
            for (QLabel *image : qAsConst(keyImgLabels)) {
                image->setMovie(movie);
                image->show();
            }
        }
        if (picturePath(target).isEmpty())
            continue;
        // A still picture has no next frame to bring the new size: read the first one again.
        movie->jumpToFrame(0);
        movie->start();
    }
    if (goldHighActive)
        goldHighOn();
}

void lexoria::normalSize_function()
{
    resizePictures(false);
}

void lexoria::setToFit_function()
{
    resizePictures(true);
}

void lexoria::stfOn()
{
    for (const char *name : oddShapedImages)
        ui->find<QLabel>(QLatin1String(name))->setScaledContents(true);
}

void lexoria::stfOff()
{
    for (const char *name : oddShapedImages)
        ui->find<QLabel>(QLatin1String(name))->setScaledContents(false);
}

// A single picture is the label's movie; a repeating one is the style sheet's background,
// which then stands alone, or the movie would lie once more across the tiles.
void lexoria::showWallpaperPicture()
{
    if (ui->repeatNo->isChecked() && !pictures.mainImagePath.isEmpty()) {
        if (ui->wallpaper->movie() != &pictures.mainMovie)
            ui->wallpaper->setMovie(&pictures.mainMovie);
        pictures.mainMovie.start();
    } else {
        pictures.mainMovie.stop();
        ui->wallpaper->clear();
    }
}

void lexoria::openImageMain_Function()
{
    const QStringList files = askFiles({FileQuestion::Pick, {}, {}, QLatin1String(pictureFilter)});
    QString path = files.value(0);
    if (!path.isEmpty() && firstFrame(path).isNull())
        return;
    pictures.mainMovie.stop();
    pictures.mainImageOn = QStringLiteral("1");
    if (path.isEmpty()) {
        path = QLatin1String(blankGif);
        pictures.mainImageOn = QStringLiteral("0");
    }
    pictures.mainImagePath = path;
    pictures.wallpaperImageStyle = backgroundImageOf(path);
    pictures.mainMovie.setFileName(path);
    restyle(ui->radioLineMain,
        QLatin1String(pictures.mainImageOn == QLatin1String("1") ? selectedFrame : plainFrame));
    mainRepeat();
}

void lexoria::clearMainImage_function()
{
    ui->repeatNo->setChecked(true);
    pictures.mainImagePath.clear();
    pictures.wallpaperImageStyle = backgroundImageOf(QString());
    pictures.mainMovie.stop();
    mainRepeat();
    ui->wallpaper->clear();
    pictures.mainImageOn = QStringLiteral("0");
    restyle(ui->radioLineMain, QLatin1String(plainFrame));
}

void lexoria::mainRepeat()
{
    const QString colours = pieces.wallpaperBgStyle + pieces.wallpaperBorderStyle;
    if (ui->repeatYes->isChecked())
        restyle(ui->wallpaper,
            colours
                + (pictures.mainImagePath.isEmpty() ? QString() : pictures.wallpaperImageStyle));
    else
        restyle(ui->wallpaper, colours + QStringLiteral("background-repeat: no-repeat;"));
    showWallpaperPicture();
    mainAlign();
}

void lexoria::mainStretchToFit()
{
    ui->wallpaper->setScaledContents(ui->stretchYes->isChecked());
}

void lexoria::mainAlign()
{
    for (const AlignPoint &point : alignPoints) {
        const bool chosen = ui->find<QRadioButton>(QLatin1String(point.radio))->isChecked();
        QWidget *picture = ui->widget(QLatin1String(point.picture));
        restyle(picture,
            chosen ? QStringLiteral("border: 1px solid blue; border-radius: 0px;")
                   : QStringLiteral("border: 1px solid black; border-radius: 0px;"));
        if (chosen && ui->repeatNo->isChecked())
            ui->wallpaper->setAlignment(point.alignment);
    }
}

void lexoria::xRayVisionPhotos()
{
    const bool xRay = ui->xRayVision->isChecked();
    QList<QWidget *> cleared;
    for (const char *name : xRayCleared)
        cleared.append(ui->widget(QLatin1String(name)));
    for (const PictureTarget &place : pictureTargets) {
        cleared.append(ui->widget(QLatin1String(place.openButton)));
        cleared.append(ui->widget(QLatin1String(place.clearButton)));
    }
    for (QWidget *widget : qAsConst(cleared))
        widget->setVisible(!xRay);
    if (xRay)
        xNonVitalsOffPhotos_function();
    else
        xNonVitalsOnPhotos_function();
}

// The dial's pictures, the folder icons and the four displays are labels: their clicks reach
// the window, which asks each whether the mouse is on it.
void lexoria::pictureControlClicked()
{
    auto underMouse = [this](const char *name) {
        const QWidget *widget = ui->widget(QLatin1String(name));
        return widget && widget->underMouse();
    };
    for (const AlignPoint &point : alignPoints) {
        if (underMouse(point.picture)) {
            ui->find<QRadioButton>(QLatin1String(point.radio))->setChecked(true);
            mainAlign();
        }
    }
    for (int target = Keys; target <= Mouseover; ++target) {
        if (underMouse(pictureTargets[target].openFolder))
            openPicture(target);
    }
    if (underMouse("openFolderMain"))
        openImageMain_Function();
    for (int target = Keys; target <= Mouseover; ++target) {
        if (underMouse(pictureTargets[target].display))
            selectPictureTarget(target);
    }
}
