#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/gradientcatalogue.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>

#include <utility>

using namespace gradientcatalogue;

namespace {

const QString transparentText = QLatin1String(transparent);
const QString noBorder
    = QStringLiteral("border-style:none; border-width:0px;  border-color: transparent;");

QString sliderName(const char *prefix, int target)
{
    return QLatin1String(prefix) + QString::number(target);
}

// The slots the shape slider of a target runs: the board follows at once only where the
// target is the look of the board at rest or brings the game's colouring up to date.
bool spreadsToBoard(int target)
{
    return target == Keys || target == Keypress || target == Highlight || target == Finished;
}

GradientSide lineSet(const StylePieces &p, bool vertical)
{
    if (vertical)
        return {p.lineVerticalColor, p.lineVerticalGradColor, p.lineVerticalRadialColor,
            p.lineVerticalRadialGradColor, 1, 5};
    return {p.lineHorizontalColor, p.lineHorizontalGradColor, p.lineHorizontalRadialColor,
        p.lineHorizontalRadialGradColor, 1, 5};
}

} // namespace

void lexoria::setUpGradients()
{
    for (const TargetRow &row : targetRows) {
        const int target = row.number;
        auto *shape = ui->find<QSlider>(sliderName("hoSlider", target));
        auto *stop = ui->find<QSlider>(sliderName("slider", target));
        {
            const QSignalBlocker quietShape(shape);
            const QSignalBlocker quietStop(stop);
            shape->setRange(0, shapeCount - 1);
            shape->setPageStep(1);
            shape->setValue(1);
            stop->setRange(0, stopPositions - 1);
            stop->setPageStep(1);
            stop->setTickPosition(QSlider::TicksBelow);
            stop->setTickInterval(1);
            stop->setValue(5);
        }
        connect(shape, &QSlider::valueChanged, this, [this, target] {
            if (spreadsToBoard(target))
                gradMain(target);
            else
                grad(target);
        });
        connect(stop, &QSlider::valueChanged, this,
            [this, target](int value) { slider_function(target, value); });
        connect(ui->find<QPushButton>(sliderName("swapGradient", target)), &QPushButton::clicked,
            this, [this, target] { swapFlag_function(target); });

        // Each thumbnail shows its shape in gold and black.
        const GradientSide sample = {"black", "gold", "black", "gold", 1, 5};
        for (int s = 0; s < shapeCount; ++s)
            restyle(ui->widget(QStringLiteral("grad%1%2").arg(target).arg(s)),
                "border-radius: 3px; border: 1px solid black; font: 8pt 'MS Shell Dlg 2'; "
                    + backgroundPiece(sample, s, QStringLiteral(".5")));
    }
    // The whole board and the game's colouring follow a dragged stop only once it is let go.
    connect(ui->find<QSlider>(QStringLiteral("slider1")), &QSlider::sliderReleased, this,
        &lexoria::bgColorLoops2);
    connect(ui->find<QSlider>(QStringLiteral("slider5")), &QSlider::sliderReleased, this,
        &lexoria::bgColorLoops5);

    connect(ui->find<QRadioButton>(QStringLiteral("pulsateOnGamePlay")), &QRadioButton::clicked,
        this, &lexoria::startPulsate);
    connect(ui->find<QRadioButton>(QStringLiteral("pulsateOffGamePlay")), &QRadioButton::clicked,
        this, &lexoria::stopPulsate);
    connect(ui->find<QCheckBox>(QStringLiteral("gamePlayCb")), &QCheckBox::clicked, this,
        &lexoria::gamePlayCb_function);

    for (int sample = KeysSample; sample <= RainbowSample; ++sample) {
        restyleSample(sample, AllParts);
    }
    restyle(ui->widget(QStringLiteral("liHordisplay")), pieces.lineHighHorizontalStyle);
    restyle(ui->widget(QStringLiteral("lhVertDisplay")), pieces.lineHighVerticalStyle);
}

// A side that is not selected keeps its piece, so each side can have a shape of its own.
void lexoria::rebuildSelectedSides(int target, int shape)
{
    const TargetRow *row = targetRow(target);
    GradientTarget &t = targets.*(row->colors);
    if (radioChecked(row->borderRadio)) {
        t.border.shape = shape;
        pieces.*(row->borderStyle) = borderPiece(t.border, shape, t.gradStop, t.borderWidth);
    }
    if (radioChecked(row->bgRadio)) {
        t.bg.shape = shape;
        pieces.*(row->bgStyle) = backgroundPiece(t.bg, shape, t.gradStop);
    }
}

void lexoria::grad(int target)
{
    const TargetRow *row = targetRow(target);
    auto *shapeSlider = ui->find<QSlider>(sliderName("hoSlider", target));
    if (!row || !shapeSlider)
        return;
    const int shape = shapeSlider->value();
    switch (target) {
    case Finished:
        pieces.finishedBgStyle
            = backgroundPiece(targets.finished.bg, shape, targets.finished.gradStop);
        break;
    case LineHighlight:
        applyLineHighlight();
        return;
    default:
        rebuildSelectedSides(target, shape);
        break;
    }

    switch (target) {
    case Keys:
        pieces.rainbowBgStyle = pieces.keysBgStyle;
        fillRainbowBg();
        pieces.rainbowBorderStyle = pieces.keysBorderStyle;
        fillRainbowBorder();
        sampleByPaintFlags();
        break;
    case Keypress:
        restyleSample(KeypressSample, Face);
        break;
    case Mouseover:
        restyleSample(MouseoverSample, Face | English);
        break;
    case Highlight:
        restyleSample(HighlightSample, Face);
        restyle(ui->goldenHighlight,
            pieces.keyRadiusStyle + pieces.highlightBgStyle + pieces.highlightEnglishColorStyle);
        if (goldHighActive)
            goldHighOn();
        break;
    case Finished:
        set_dem_StyleSheet();
        break;
    case Wallpaper:
        restyle(ui->wallpaper, pieces.wallpaperBgStyle + pieces.wallpaperBorderStyle);
        // A repeating picture is part of the same sheet and must survive a change of colour.
        if (ui->repeatYes->isChecked())
            mainRepeat();
        restyle(ui->pbQuit,
            QStringLiteral("font: 16pt 'MS Shell Dlg 2';  color: rgb(85, 0, 0); background-color: "
                           "transparent; "));
        restyle(ui->hideNonVitals,
            QStringLiteral("font: 10pt 'MS Shell Dlg 2';   color: rgb(85, 0, 0); background-color: "
                           "transparent;"));
        break;
    case Rainbow: {
        const QString colour = "color: " + targets.rainbow.bg.color + ";";
        if (radioChecked("rainbowEnglish"))
            pieces.englishColorStyle = colour;
        if (radioChecked("rainbowUppercase"))
            pieces.upperColorStyle = colour;
        if (radioChecked("rainbowLowercase"))
            pieces.lowerColorStyle = colour;
        for (int sample : {RainbowSample, KeysSample}) {
            restyleSample(sample, AllParts);
        }
        break;
    }
    case GamePlay:
        gamePlayFields();
        break;
    default:
        break;
    }
}

// The keys' sample shows what painting would give: the Rainbow sample while the face is
// painted, the keys' own sample and the key map otherwise.
void lexoria::sampleByPaintFlags()
{
    const bool bgOn = painted.paintBackgroundOn;
    const bool borderOn = painted.paintBorderOn;
    QWidget *keysFace = ui->widget(QLatin1String(samples[KeysSample].face));
    QWidget *rainbowFace = ui->widget(QLatin1String(samples[RainbowSample].face));
    if (bgOn) {
        restyle(rainbowFace,
            pieces.demoRadiusStyle + painted.paintBgStyle[1]
                + (borderOn ? pieces.rainbowBorderStyle : pieces.keysBorderStyle));
    } else if (borderOn) {
        restyle(keysFace, pieces.demoRadiusStyle + pieces.keysBgStyle + pieces.rainbowBorderStyle);
        restyle(ui->aKeysMap5,
            pieces.keyRadiusStyle + painted.paintBgStyle[26] + painted.paintBorderStyle[26]);
    } else {
        restyle(keysFace, pieces.demoRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle);
        restyle(ui->aKeysMap5, pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle);
    }
}

void lexoria::applyLineHighlight()
{
    const int shape = ui->find<QSlider>(QStringLiteral("hoSlider6"))->value();
    const bool vertical = radioChecked("lhVerticalRadio");
    const bool horizontal = radioChecked("lhHorizontalRadio");
    const bool both = radioChecked("lhBothRadio");
    if (vertical || both)
        pieces.lineHighVerticalStyle
            = backgroundPiece(lineSet(pieces, true), shape, pieces.lineGradStop);
    if (horizontal)
        pieces.lineHighHorizontalStyle
            = backgroundPiece(lineSet(pieces, false), shape, pieces.lineGradStop);
    if (both)
        pieces.lineHighHorizontalStyle = pieces.lineHighVerticalStyle;

    auto paint = [this](const QList<QLabel *> &lines, const char *display, const char *screen,
                     const QString &sheet) {
        for (QLabel *line : lines)
            restyle(line, sheet);
        for (const char *name : {display, screen}) {
            if (QWidget *widget = ui->widget(QLatin1String(name)))
                restyle(widget, sheet);
        }
    };
    if (horizontal || both)
        paint(horizontalLines, "liHordisplay", "lineScreen1", pieces.lineHighHorizontalStyle);
    if (vertical || both)
        paint(verticalLines, "lhVertDisplay", "lineScreen2", pieces.lineHighVerticalStyle);
}

void lexoria::gamePlayFields()
{
    const bool headers = radioChecked("gamePlayCb");
    const QString field
        = pieces.gamePlayRadiusStyle + pieces.gamePlayBgStyle + pieces.gamePlayBorderStyle;
    auto colour = [&](const char *fieldName, const char *headerName) {
        restyle(ui->widget(QLatin1String(fieldName)), field);
        if (headers)
            restyle(ui->widget(QLatin1String(headerName)), pieces.gamePlayBgStyle);
    };
    if (radioChecked("matchThisCm")) {
        colour("leMatchBg", "matchThisBg");
    } else if (radioChecked("yourEntryCm")) {
        colour("leUserBg", "yourEntryBg");
    } else {
        colour("leMatchBg", "matchThisBg");
        colour("leUserBg", "yourEntryBg");
    }
}

void lexoria::gamePlayCb_function()
{
    if (radioChecked("gamePlayCb")) {
        grad(GamePlay);
        return;
    }
    const QString header = QStringLiteral(
        "background-color: transparent;  color: black;  font: 12pt 'MS Shell Dlg 2';");
    const QString plain
        = pieces.gamePlayRadiusStyle + "background-color: rgb(255, 255, 255); border: none;";
    for (const char *name : {"matchThis", "yourEntry"})
        restyle(ui->widget(QLatin1String(name)), header);
    for (const char *name : {"matchThisBg", "yourEntryBg"})
        restyle(ui->widget(QLatin1String(name)), plain);
}

void lexoria::gradMain(int target)
{
    grad(target);
    switch (target) {
    case Keys:
        restyleRestingBoard();
        bgColorLoops();
        break;
    case Keypress:
    case Finished:
        bgColorLoops();
        break;
    case Highlight:
        if (goldHighActive)
            goldHighOn();
        break;
    default:
        break;
    }
}

// The board at rest is the keys target: all faces and bar cells, the sample and the key map.
void lexoria::restyleRestingBoard()
{
    restyleSample(KeysSample, Face);
    restyle(ui->aKeysMap5, pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle);
    restyleKeysAtRest(true);
}

void lexoria::bgColorLoops2()
{
    restyleRestingBoard();
    bgColorLoops();
}

void lexoria::bgColorLoops5()
{
    bgColorLoops();
}

void lexoria::restyleSample(int sample, int parts)
{
    const SampleRow &row = samples[sample];
    auto set = [this](const char *name, const QString &sheet) {
        if (QWidget *widget = ui->widget(QLatin1String(name)))
            restyle(widget, sheet);
    };
    if (parts & Face)
        set(row.face, pieces.demoRadiusStyle + pieces.*row.bgStyle + pieces.*row.borderStyle);
    if (parts & English)
        set(row.english,
            QLatin1String(row.englishTransparent) + pieces.*row.englishColor
                + pieces.demoEnglishFontStyle + pieces.englishFontStyle);
    if (parts & Russian) {
        const QString &demoFont = pieces.*row.russianDemoFont;
        set(row.upper, transparentText + pieces.*row.upperColor + demoFont + pieces.upperFontStyle);
        set(row.lower, transparentText + pieces.*row.lowerColor + demoFont + pieces.lowerFontStyle);
    }
}

void lexoria::slider_function(int target, int value)
{
    const TargetRow *row = targetRow(target);
    if (!row)
        return;
    value = qBound(0, value, stopPositions - 1);
    const QString stop = QLatin1String(stopTexts[value]);
    if (target == LineHighlight) {
        pieces.lineGradStop = stop;
    } else {
        GradientTarget &t = targets.*(row->colors);
        t.gradStop = stop;
        // The stop at 0 keeps the position the side had, so coming back to the side finds it.
        if (row->storesStopPosition && value >= 1) {
            if (radioChecked(row->bgRadio))
                t.bg.stopPos = value;
            if (radioChecked(row->borderRadio))
                t.border.stopPos = value;
        }
    }

    grad(target);
    switch (target) {
    case Keys:
        restyleRestingBoard();
        break;
    case Keypress:
        restyleSample(KeypressSample, Face | English);
        break;
    case Mouseover:
        restyleSample(MouseoverSample, Face | English);
        break;
    case Finished:
        // The finished cells of a running game follow only at the release, but a stop at an
        // end position repaints them at once.
        if (correctCount != 0
            && (targets.keys.gradStop == QLatin1String("1")
                || targets.keys.gradStop == QLatin1String(".1"))) {
            if (ui->rbForward_2->isChecked())
                forwardIsKeyPressed_CSS();
            else if (ui->rbReverse_2->isChecked())
                reverseIsKeyPressed_CSS();
        }
        break;
    default:
        break;
    }
}

void lexoria::swapFlag_function(int target)
{
    const TargetRow *row = targetRow(target);
    if (!row)
        return;
    if (target == LineHighlight) {
        StylePieces &p = pieces;
        if (radioChecked("lhVerticalRadio") || radioChecked("lhBothRadio")) {
            std::swap(p.lineVerticalColor, p.lineVerticalGradColor);
            std::swap(p.lineVerticalRadialColor, p.lineVerticalRadialGradColor);
        } else if (radioChecked("lhHorizontalRadio")) {
            std::swap(p.lineHorizontalColor, p.lineHorizontalGradColor);
            std::swap(p.lineHorizontalRadialColor, p.lineHorizontalRadialGradColor);
        }
    } else {
        GradientTarget &t = targets.*(row->colors);
        GradientSide &side = (!row->bgRadio || radioChecked(row->bgRadio)) ? t.bg : t.border;
        std::swap(side.color, side.gradColor);
        std::swap(side.radialColor, side.radialGradColor);
    }
    grad(target);
    swapGradient_function(target);
}

void lexoria::swapGradient_function(int target)
{
    switch (target) {
    case Keys:
        restyleRestingBoard();
        bgColorLoops();
        break;
    case Keypress:
        restyleSample(KeypressSample, Face | English);
        break;
    case Mouseover:
        restyleSample(MouseoverSample, Face | English);
        break;
    case Finished:
        set_dem_StyleSheet();
        bgColorLoops5();
        break;
    default:
        break;
    }
}

void lexoria::chooseShape(int target, int shape)
{
    const TargetRow *row = targetRow(target);
    auto *shapeSlider = ui->find<QSlider>(sliderName("hoSlider", target));
    if (!row || !shapeSlider || shape < 0 || shape >= shapeCount)
        return;
    if (row->colors) {
        GradientTarget &t = targets.*(row->colors);
        if (radioChecked(row->bgRadio))
            t.bg.shape = shape;
        if (radioChecked(row->borderRadio))
            t.border.shape = shape;
    }
    {
        // The slider's own slot would run the target a second time.
        const QSignalBlocker quiet(shapeSlider);
        shapeSlider->setValue(shape);
    }
    if (spreadsToBoard(target))
        gradMain(target);
    else
        grad(target);
}

void lexoria::shapeThumbnailClicked()
{
    for (const TargetRow &row : targetRows) {
        for (int shape = 0; shape < shapeCount; ++shape) {
            const QWidget *thumbnail
                = ui->widget(QStringLiteral("grad%1%2").arg(row.number).arg(shape));
            if (thumbnail && thumbnail->underMouse()) {
                chooseShape(row.number, shape);
                return;
            }
        }
    }
}

void lexoria::startPulsate()
{
    if (pulsate.pulsateTimerId == 0)
        pulsate.pulsateTimerId = startTimer(100, Qt::CoarseTimer);
    ui->find<QRadioButton>(QStringLiteral("pulsateOnGamePlay"))->setChecked(true);
}

void lexoria::stopPulsate()
{
    if (pulsate.pulsateTimerId != 0)
        killTimer(pulsate.pulsateTimerId);
    pulsate.pulsateTimerId = 0;
    ui->find<QRadioButton>(QStringLiteral("pulsateOffGamePlay"))->setChecked(true);
}

void lexoria::pulsateTick()
{
    GradientTarget &t = targets.gamePlay;
    t.gradStop = QString::number(pulsate.pulsateStop, 'g', 6);
    if (!pulsate.pulsateFalling) {
        pulsate.pulsateStop += 0.01f;
        if (pulsate.pulsateStop >= 0.9f)
            pulsate.pulsateFalling = true;
    } else {
        pulsate.pulsateStop -= 0.01f;
        if (pulsate.pulsateStop <= 0.1f)
            pulsate.pulsateFalling = false;
    }
    rebuildSelectedSides(GamePlay, ui->find<QSlider>(QStringLiteral("hoSlider27"))->value());
    if (radioChecked("animateGradientBothGamePlay")) {
        pieces.gamePlayBgStyle = backgroundPiece(t.bg, t.bg.shape, t.gradStop);
        pieces.gamePlayBorderStyle = t.border.shape == 0
            ? noBorder
            : borderPiece(t.border, t.border.shape, t.gradStop, t.borderWidth);
    }
    const QString field = pieces.gamePlayBgStyle + pieces.gamePlayBorderStyle;
    if (radioChecked("matchThisCm")) {
        restyle(ui->widget(QStringLiteral("leMatchBg")), field);
    } else if (radioChecked("yourEntryCm")) {
        restyle(ui->widget(QStringLiteral("leUserBg")), field);
    } else {
        restyle(ui->widget(QStringLiteral("leMatchBg")), field);
        restyle(ui->widget(QStringLiteral("leUserBg")), field);
    }
}
