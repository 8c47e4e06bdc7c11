#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

using namespace keycatalogue;

namespace borders {

// The width controls, one per coloured thing that has a border.
struct WidthRow
{
    int control; // sliderBorderWidth<control>, spinBox<control>
    GradientTarget ColorTargets::*target;
    int largest;
    int gradTarget;
};

constexpr WidthRow widthRows[] = {
    {1, &ColorTargets::keys, 99, 1},
    {2, &ColorTargets::keypress, 99, 2},
    {3, &ColorTargets::mouseover, 99, 3},
    {4, &ColorTargets::highlight, 99, 4},
    {5, &ColorTargets::wallpaper, 1500, 7},
    {8, &ColorTargets::rainbow, 99, 8},
    {27, &ColorTargets::gamePlay, 199, 27},
};

// The radio pairs that say which side of a target the gradient controls act on.
struct SideRow
{
    int target; // hoSlider<target>, slider<target>
    const char *background;
    const char *border;
    GradientTarget ColorTargets::*colours;
};

constexpr SideRow sideRows[] = {
    {1, "backgroundLeft", "borderLeft", &ColorTargets::keys},
    {2, "backgroundCenter", "borderCenter", &ColorTargets::keypress},
    {3, "backgroundRight", "borderRight", &ColorTargets::mouseover},
    {4, "backgroundHi", "borderHi", &ColorTargets::highlight},
    {7, "backgroundWallpaper", "borderWallpaper", &ColorTargets::wallpaper},
    {27, "backgroundGamePlay", "borderGamePlay", &ColorTargets::gamePlay},
};

const WidthRow *widthRow(int control)
{
    for (const WidthRow &row : widthRows) {
        if (row.control == control)
            return &row;
    }
    return nullptr;
}

const SideRow *sideRow(int target)
{
    for (const SideRow &row : sideRows) {
        if (row.target == target)
            return &row;
    }
    return nullptr;
}

const QString transparent = QStringLiteral("background-color: transparent;");

// The gradient text of a shape, from "qlineargradient" or "qradialgradient" on. Theme 1 writes
// its border's stop with a single blank, as its file form has always had it.
QString gradientOf(int shape, const GradientSide &side, const QString &stop, bool tightStop = false)
{
    const QString stopText = QStringLiteral(", stop: ") + stop + (tightStop ? " " : "  ");
    switch (shape) {
    case 2:
        return "qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 " + side.gradColor + stopText
            + side.color + ");";
    case 3:
        return "qlineargradient(x1: .8, y1: .8, x2: 0, y2: 0, stop: 0 " + side.gradColor + stopText
            + side.color + ");";
    case 4:
        return "qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 "
            + side.radialGradColor + stopText + side.radialColor + ");";
    case 5:
        return "qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, fy:0.5,   "
               "stop : 0 "
            + side.gradColor + stopText + side.color + ");";
    default:
        return "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " + side.gradColor + stopText
            + side.color + ");";
    }
}

QString backgroundPiece(int shape, const GradientSide &side, const QString &stop)
{
    if (shape == 0)
        return "background-color: " + side.color + "; ";
    return "background-color: " + gradientOf(shape, side, stop);
}

QString borderPiece(int shape, const GradientSide &side, const QString &stop, const QString &width,
    bool tightStop = false)
{
    if (shape == 0)
        return "border-style:solid; border-width: " + width + "px; border-color: " + side.color
            + ";";
    return "border-style:solid; border-width:" + width
        + "px; border-color: " + gradientOf(shape, side, stop, tightStop);
}

void restyleNamed(const Ui::lexoria *ui, const char *name, const QString &sheet)
{
    if (QWidget *widget = ui->widget(QLatin1String(name)))
        restyle(widget, sheet);
}

// Moves a control of another panel as the user would, so that its own slot follows; the
// control may not be there at all. Returns whether it moved.
bool moveSlider(const Ui::lexoria *ui, const QString &name, int value)
{
    auto *slider = ui->find<QAbstractSlider>(name);
    if (!slider || slider->value() == value)
        return false;
    slider->setValue(value);
    return true;
}

void check(const Ui::lexoria *ui, const char *name, bool checked)
{
    if (auto *button = ui->find<QAbstractButton>(QLatin1String(name)))
        button->setChecked(checked);
}

// What a built-in theme puts on the keys. Themes 1 and 2 also give the keys a border.
struct ThemeLook
{
    int stopSlider;
    const char *stop;
    int bgShape;
    const char *bgTop;
    const char *englishColor;
    const char *letterColor;
    int borderWidth;
    int borderShape;
};

constexpr ThemeLook themeLooks[] = {
    {10, "1", 1, "#ffd700", " color: white;", "color: white;", 10, 5},
    {6, ".6", 4, "#ffd700", " color: yellow;", "color: yellow;", 6, 4},
    {3, ".3", 4, "blue", " color: #65307f;", "color: #00557f;", 0, 4},
};

// The paint number (1..54) of a face by its place in keyBgLabels.
int paintNumberOfIndex(int index)
{
    return index < characterKeyCount ? index + 1 : controlKeys[index - characterKeyCount].number;
}

} // namespace borders

using namespace borders;

void lexoria::setUpBorders()
{
    for (const WidthRow &row : widthRows) {
        const int control = row.control;
        auto *slider = ui->find<QSlider>(QStringLiteral("sliderBorderWidth%1").arg(control));
        auto *spin = ui->find<QSpinBox>(QStringLiteral("spinBox%1").arg(control));
        if (slider) {
            slider->setRange(0, 10);
            slider->setTickPosition(QSlider::TicksBelow);
            slider->setValue(0);
            connect(slider, &QSlider::valueChanged, this,
                [this, control](int value) { sliderBorderWidth_function(control, value); });
        }
        if (spin) {
            spin->setRange(0, row.largest);
            spin->setValue(0);
            connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this,
                [this, control](int value) { sliderBorderWidth_function(control, value); });
        }
    }
    // Dragging the keys' width restyles the samples only; the board follows at the release.
    if (auto *slider = ui->find<QSlider>(QStringLiteral("sliderBorderWidth1")))
        connect(slider, &QSlider::sliderReleased, this, &lexoria::sliderBorderWidth1_loops);
    if (auto *spin = ui->find<QSpinBox>(QStringLiteral("spinBox1")))
        connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &lexoria::sliderBorderWidth1_loops);

    for (const SideRow &row : sideRows) {
        const int target = row.target;
        if (auto *radio = ui->find<QAbstractButton>(QLatin1String(row.background)))
            connect(radio, &QAbstractButton::clicked, this,
                [this, target] { background_function(target); });
        if (auto *radio = ui->find<QAbstractButton>(QLatin1String(row.border)))
            connect(radio, &QAbstractButton::clicked, this,
                [this, target] { border_function(target); });
    }
}

void lexoria::sliderBorderWidth_function(int control, int value)
{
    const WidthRow *row = widthRow(control);
    if (!row)
        return;
    const int width = qBound(0, value, row->largest);
    (targets.*row->target).borderWidth = QString::number(width);
    if (control == 8)
        targets.rainbowBorderWidthValue = width;

    // The slider stops at 10 while the spin box goes on; each must not echo into the other.
    if (auto *slider = ui->find<QSlider>(QStringLiteral("sliderBorderWidth%1").arg(control))) {
        const QSignalBlocker quiet(slider);
        slider->setValue(qMin(width, 10));
    }
    if (auto *spin = ui->find<QSpinBox>(QStringLiteral("spinBox%1").arg(control))) {
        const QSignalBlocker quiet(spin);
        spin->setValue(width);
    }

    grad(row->gradTarget);
    switch (control) {
    case 1:
    case 8:
        keysSamples();
        break;
    case 2:
        restyleNamed(ui, "demoLetterCenterBG",
            pieces.demoRadiusStyle + pieces.keypressBgStyle + pieces.keypressBorderStyle);
        restyleNamed(ui, "demoLetter1",
            transparent + pieces.keypressEnglishColorStyle + pieces.demoEnglishFontStyle
                + pieces.englishFontStyle);
        break;
    case 3:
        restyleNamed(ui, "demoLetterRightBg",
            pieces.demoRadiusStyle + pieces.mouseoverBgStyle + pieces.mouseoverBorderStyle);
        restyleNamed(ui, "demoLetter1_3",
            transparent + pieces.mouseoverEnglishColorStyle + pieces.demoEnglishFontStyle
                + pieces.englishFontStyle);
        break;
    default:
        break;
    }
}

void lexoria::sliderBorderWidth1_loops()
{
    restAllFaces();
    if (goldHighActive)
        goldHighOn();
}

// The face of a key at rest by its place in keyBgLabels, painted or not.
QString lexoria::faceAtRest(int index) const
{
    if (painted.paintBackgroundOn || painted.paintBorderOn) {
        const int K = paintNumberOfIndex(index);
        return pieces.keyRadiusStyle + painted.paintBgStyle[K] + painted.paintBorderStyle[K];
    }
    return pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle;
}

void lexoria::restAllFaces()
{
    for (int index = 0; index < keyBgLabels.size(); ++index)
        restyle(keyBgLabels[index], faceAtRest(index));
}

// The sample keys of the Keys and Paint tabs and "A key's map" show the keys at rest.
void lexoria::keysSamples()
{
    restyleNamed(ui, "demoLetter1Bg",
        pieces.demoRadiusStyle + pieces.keysBgStyle
            + (painted.paintBorderOn ? pieces.rainbowBorderStyle : pieces.keysBorderStyle));
    restyle(ui->aKeysMap5, faceAtRest(25)); // key 26
    const QString &english
        = painted.paintEnglishOn ? painted.paintEnglishColor[1] : pieces.englishColorStyle;
    restyleNamed(ui, "demoLetter1_2",
        transparent + english + pieces.demoEnglishFontStyle + pieces.englishFontStyle);
    restyleNamed(ui, "aKeysMap4",
        transparent + (painted.paintEnglishOn ? painted.paintEnglishColor[26] : english)
            + pieces.englishFontStyle);
    restyleNamed(ui, "aKeysMap3",
        transparent + (painted.paintLowerOn ? painted.paintCharColor[33] : pieces.lowerColorStyle)
            + pieces.lowerFontStyle);
    restyleNamed(ui, "aKeysMap2",
        transparent + (painted.paintUpperOn ? painted.paintCharColor[66] : pieces.upperColorStyle)
            + pieces.upperFontStyle);
    restyleNamed(ui, "demoLetter2_2",
        transparent + pieces.lowerColorStyle + pieces.demoLowerFontStyle + pieces.lowerFontStyle);
    restyleNamed(ui, "demoLetter3_2",
        transparent + pieces.upperColorStyle + pieces.demoUpperFontStyle + pieces.upperFontStyle);
    restyleNamed(ui, "demoLetter4Bg",
        pieces.demoRadiusStyle + pieces.rainbowBgStyle + pieces.rainbowBorderStyle);
    restyleNamed(ui, "demoLetter4English",
        transparent + pieces.englishColorStyle + pieces.demoEnglishFontStyle
            + pieces.englishFontStyle);
    restyleNamed(ui, "demoLetter4UpperCase",
        transparent + pieces.upperColorStyle + pieces.demoUpperFontStyle + pieces.upperFontStyle);
    restyleNamed(ui, "demoLetter4LowerCase",
        transparent + pieces.lowerColorStyle + pieces.demoLowerFontStyle + pieces.lowerFontStyle);
}

// Shows the stored shape and stop of the side just chosen. The sliders' own slots rebuild that
// side's piece; when neither had to move, the piece is rebuilt here, so that a width set while
// the other side was chosen shows at once.
void lexoria::moveSideControls(int target, int shape, int stopPos)
{
    const bool shapeMoved = moveSlider(ui, QStringLiteral("hoSlider%1").arg(target), shape);
    const bool stopMoved = moveSlider(ui, QStringLiteral("slider%1").arg(target), stopPos);
    if (shapeMoved || stopMoved)
        return;
    if (target == 1 || target == 2 || target == 4)
        gradMain(target);
    else
        grad(target);
}

void lexoria::background_function(int target)
{
    const SideRow *row = sideRow(target);
    if (!row)
        return;
    check(ui, row->border, false);
    check(ui, row->background, true);
    const GradientSide &side = (targets.*row->colours).bg;
    moveSideControls(target, side.shape, side.stopPos);
    if (target == 1 && painted.paintBackgroundOn)
        moveSlider(ui, QStringLiteral("slider1"), targets.rainbow.bg.shape);
}

void lexoria::border_function(int target)
{
    const SideRow *row = sideRow(target);
    if (!row)
        return;
    check(ui, row->background, false);
    check(ui, row->border, true);
    const GradientSide &side = (targets.*row->colours).border;
    moveSideControls(target, side.shape, side.stopPos);
    if (target != 1)
        return;
    if (painted.paintBorderOn) {
        if (auto *spin = ui->find<QSpinBox>(QStringLiteral("spinBox1")))
            spin->setValue(targets.rainbowBorderWidthValue);
        else
            sliderBorderWidth_function(1, targets.rainbowBorderWidthValue);
    }
    // The first visit after a built-in theme shows that theme's border on the controls.
    const struct
    {
        QString *pending;
        int shape;
    } pendings[] = {{&targets.themeOneBorderPending, 5}, {&targets.themeTwoBorderPending, 4}};
    for (const auto &theme : pendings) {
        if (*theme.pending != QLatin1String("0"))
            continue;
        *theme.pending = QStringLiteral("1");
        moveSlider(ui, QStringLiteral("slider1"), 8);
        targets.keys.gradStop = QStringLiteral(".8");
        targets.keys.border.shape = theme.shape;
        moveSlider(ui, QStringLiteral("hoSlider1"), theme.shape);
    }
}

void lexoria::chooseTheme(int theme)
{
    // Only the theme chosen last may show its border at the next visit of the keys' border.
    for (QString *pending : {&targets.themeOneBorderPending, &targets.themeTwoBorderPending}) {
        if (*pending == QLatin1String("0"))
            *pending = QStringLiteral("1");
    }
    if (theme == 1 || theme == 2) {
        theme_Border_function(theme);
        theme_Background_function(theme);
        (theme == 1 ? targets.themeOneBorderPending : targets.themeTwoBorderPending)
            = QStringLiteral("0");
    } else if (theme == 3) {
        theme_Background_function(3);
    }
}

void lexoria::theme_Border_function(int theme)
{
    if (theme != 1 && theme != 2)
        return;
    const ThemeLook &look = themeLooks[theme - 1];
    shadowThClear();
    painted.paintBorderOn = false;
    painted.paintBorderText = QStringLiteral("0");
    GradientSide &border = targets.keys.border;
    border.gradColor = border.radialGradColor = QStringLiteral("#ffd700");
    border.color = border.radialColor = QStringLiteral("black");

    // The controls first: their own slots rebuild pieces from what they show, and the theme's
    // pieces are written after them.
    sliderBorderWidth_function(1, look.borderWidth);
    moveSlider(ui, QStringLiteral("slider1"), 8);
    moveSlider(ui, QStringLiteral("hoSlider1"), look.borderShape);
    targets.keys.borderWidth = QString::number(look.borderWidth);
    targets.keys.gradStop = QStringLiteral(".8");
    border.shape = look.borderShape;

    pieces.keysBorderStyle = borderPiece(
        look.borderShape, border, targets.keys.gradStop, targets.keys.borderWidth, theme == 1);
    pieces.rainbowBorderStyle = pieces.keysBorderStyle;
    fillRainbowBorder();
}

void lexoria::theme_Background_function(int theme)
{
    if (theme < 1 || theme > 3)
        return;
    const ThemeLook &look = themeLooks[theme - 1];
    if (theme == 3)
        shadowThClear();
    for (bool *flag : {&painted.paintEnglishOn, &painted.paintBackgroundOn, &painted.paintLowerOn,
             &painted.paintUpperOn})
        *flag = false;
    for (QString *text : {&painted.paintEnglishText, &painted.paintBackgroundText,
             &painted.paintLowerText, &painted.paintUpperText})
        *text = QStringLiteral("0");
    if (theme == 3) {
        painted.paintBorderOn = false;
        painted.paintBorderText = QStringLiteral("0");
    }

    moveSlider(ui, QStringLiteral("slider1"), look.stopSlider);
    // The shape slider shows the side that is chosen: theme 1's background shape only when the
    // background is, since its border has just put the repeating shape there.
    const auto *borderRadio = ui->find<QAbstractButton>(QStringLiteral("borderLeft"));
    if (look.bgShape == 4 || !(borderRadio && borderRadio->isChecked()))
        moveSlider(ui, QStringLiteral("hoSlider1"), look.bgShape);
    if (theme == 3) {
        sliderBorderWidth_function(1, 0);
        moveSlider(ui, QStringLiteral("hoSlider7"), 1);
    }

    GradientTarget &keys = targets.keys;
    keys.gradStop = QLatin1String(look.stop);
    keys.bg.shape = look.bgShape;
    keys.bg.color = keys.bg.radialColor = QStringLiteral("black");
    keys.bg.gradColor = keys.bg.radialGradColor = QLatin1String(look.bgTop);
    pieces.englishColorStyle = QLatin1String(look.englishColor);
    pieces.upperColorStyle = pieces.lowerColorStyle = QLatin1String(look.letterColor);
    pieces.keysBgStyle = backgroundPiece(look.bgShape, keys.bg, keys.gradStop);
    pieces.rainbowBgStyle = pieces.keysBgStyle;

    if (theme == 3) {
        keys.border = solidSide(QStringLiteral("black"), QStringLiteral("black"));
        keys.border.shape = 4;
        keys.borderWidth = QStringLiteral("0");
        pieces.keysBorderStyle = borderPiece(4, keys.border, keys.gradStop, keys.borderWidth);

        GradientTarget &wallpaper = targets.wallpaper;
        wallpaper.bg.gradColor = wallpaper.bg.radialGradColor = QStringLiteral("#00557f");
        wallpaper.bg.color = wallpaper.bg.radialColor = QStringLiteral("#34004f");
        wallpaper.gradStop = QStringLiteral(".3");
        wallpaper.bg.shape = 1;
        pieces.wallpaperBgStyle = backgroundPiece(1, wallpaper.bg, wallpaper.gradStop);
        restyle(ui->wallpaper, pieces.wallpaperBgStyle + pieces.wallpaperBorderStyle);
        pieces.rainbowBorderStyle = pieces.keysBorderStyle;
    }

    themeGamePlay();
    keysSamples();
    restAllFaces();
    const QString english = transparent + pieces.englishColorStyle + pieces.englishFontStyle;
    for (QLabel *label : qAsConst(keyEnglishLabels))
        restyle(label, english);
    restyle(ui->underscore_left, english);
    restyle(ui->underscore_right, english);
    const QString cell = pieces.barRadiusStyle + pieces.keysBgStyle
        + (theme == 3 ? pieces.keysBorderStyle : QString());
    for (QLabel *label : qAsConst(barBgLabels))
        restyle(label, cell);
    const QString letter = pieces.upperColorStyle + pieces.upperFontStyle;
    for (QLabel *label : qAsConst(keyLetterLabels))
        restyle(label, letter);
    for (QLabel *label : qAsConst(barLabels))
        restyle(label, letter);
    bgColorLoops();

    fillRainbowBg();
    fillRainbowE();
    fillRainbowLow();
    fillRainbowUp();
    if (theme == 3)
        fillRainbowBorder();
}

// Every built-in theme gives the game fields a plain white look with black text.
void lexoria::themeGamePlay()
{
    GradientTarget &gamePlay = targets.gamePlay;
    gamePlay.bg.gradColor = gamePlay.bg.color = QStringLiteral("transparent");
    pieces.gamePlayBgStyle = backgroundPiece(1, gamePlay.bg, gamePlay.gradStop);
    pieces.matchTextColorStyle = pieces.userTextColorStyle = QStringLiteral("color: black;");
    pieces.gamePlayBorderStyle = QStringLiteral("border: 1px solid #6e6e6e;");

    const auto checked = [this](const char *name) {
        const auto *button = ui->find<QAbstractButton>(QLatin1String(name));
        return button && button->isChecked();
    };
    const bool match = checked("matchThisCm");
    const bool entry = !match && checked("yourEntryCm");
    const QString field
        = pieces.gamePlayRadiusStyle + pieces.gamePlayBgStyle + pieces.gamePlayBorderStyle;
    const bool header = checked("gamePlayCb");
    if (!entry) {
        restyleNamed(ui, "leMatchBg", field);
        if (header)
            restyleNamed(ui, "matchThisBg", pieces.gamePlayBgStyle);
    }
    if (!match) {
        restyleNamed(ui, "leUserBg", field);
        if (header)
            restyleNamed(ui, "yourEntryBg", pieces.gamePlayBgStyle);
    }
    if (header) {
        restyleNamed(ui, "matchThis",
            "background-color: transparent;  font: 12pt 'MS Shell Dlg 2';"
                + pieces.matchTextColorStyle);
        restyleNamed(ui, "yourEntry",
            "background-color: transparent; font: 12pt 'MS Shell Dlg 2';"
                + pieces.userTextColorStyle);
    }
}
