#include "lexoria/lexoria.h"

#include "lexoria/cachedshadow.h"
#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"
#include "lexoria/shadowtables.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <iterator>

using namespace shadowtables;
using keycatalogue::isUpperRow;
using keycatalogue::letterCount;

namespace {

const char *const transparentText = "background-color: transparent;";

QString radioName(const GroupRow &group, const CornerRow &corner)
{
    return QLatin1String(corner.name) + QLatin1String(group.suffix);
}

QString faceSuffix(const QWidget *face)
{
    return face->objectName().mid(2);
}

template <std::size_t N> bool listed(const char *const (&names)[N], const QString &name)
{
    return std::any_of(std::begin(names), std::end(names),
        [&name](const char *each) { return name == QLatin1String(each); });
}

// The gradient table of the colour panel, for the shadow themes that give a target a shape
// other than the one its slider shows.
QString shapePiece(int shape, const GradientSide &side, const QString &stop)
{
    const QString tail = ", stop: " + stop + "  ";
    switch (shape) {
    case 0:
        return "background-color: " + side.color + "; ";
    case 2:
        return "background-color: qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 "
            + side.gradColor + tail + side.color + ");";
    case 3:
        return "background-color: qlineargradient(x1: .8, y1: .8, x2: 0, y2: 0, stop: 0 "
            + side.gradColor + tail + side.color + ");";
    case 4:
        return "background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, "
               "fy:0.5, stop : 0 "
            + side.radialGradColor + tail + side.radialColor + ");";
    case 5:
        return "background-color: qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: "
               ".1,fx:0.5, fy:0.5,   stop : 0 "
            + side.gradColor + tail + side.color + ");";
    default:
        break;
    }
    return verticalGradient(side.gradColor, stop, side.color);
}

QString borderPiece(int shape, const GradientSide &side, const QString &stop, const QString &width)
{
    if (shape == 0)
        return "border-style:solid; border-width: " + width + "px; border-color: " + side.color
            + ";";
    const QString background = shapePiece(shape, side, stop);
    const int gradient = background.indexOf(QLatin1String("q"));
    return "border-style:solid; border-width:" + width
        + "px; border-color: " + background.mid(gradient);
}

} // namespace

void lexoria::setUpShadows()
{
    for (int g = 0; g < GroupCount; ++g) {
        const GroupRow &group = groups[g];
        shadows.colors[g] = QLatin1String(group.startColor);
        restyle(ui->widget(QLatin1String(group.display)),
            "background-color: " + shadows.colors[g] + ";");
        auto run = [this, g] { shadowGroup_function(g); };
        connect(ui->find<QCheckBox>(QLatin1String(group.checkBox)), &QCheckBox::clicked, this, run);
        for (const CornerRow &corner : corners)
            connect(ui->find<QRadioButton>(radioName(group, corner)), &QRadioButton::clicked, this,
                run);
        // Code that sets a slider blocks its signals, so only the player's moves run the group.
        connect(ui->find<QSlider>(QLatin1String(group.slider)), &QSlider::valueChanged, this, run);
    }
    connect(ui->find<QSlider>(QStringLiteral("sliderTricks")), &QSlider::valueChanged, this,
        [this] { shadowGroup_function(Odd); });
    connect(ui->find<QSlider>(QStringLiteral("sliderTricks_2")), &QSlider::valueChanged, this,
        [this] { shadowGroup_function(Even); });
    connect(ui->find<QCheckBox>(QStringLiteral("matchThisCb")), &QCheckBox::clicked, this,
        &lexoria::matchThisCb_function);
    connect(ui->find<QCheckBox>(QStringLiteral("yourEntryCb")), &QCheckBox::clicked, this,
        &lexoria::yourEntryCb_function);
}

QList<QWidget *> lexoria::shadedWidgets(int g) const
{
    const GroupRow &group = groups[g];
    QList<QWidget *> shaded;
    auto letters = [&](const QList<QLabel *> &family, bool upper) {
        for (int n = 1; n <= letterCount; ++n) {
            if (isUpperRow(n) == upper)
                shaded.append(family[n - 1]);
        }
    };
    auto faces = [&](const auto &names) {
        for (const char *name : names)
            shaded.append(ui->widget(QLatin1String("bg") + QLatin1String(name)));
    };
    switch (group.shaded) {
    case EnglishLabels:
        for (QLabel *label : keyEnglishLabels)
            shaded.append(label);
        break;
    case UpperKeyLetters:
    case LowerKeyLetters:
        letters(keyLetterLabels, group.shaded == UpperKeyLetters);
        break;
    case UpperBarLetters:
    case LowerBarLetters:
        letters(barLabels, group.shaded == UpperBarLetters);
        break;
    case UpperBarCells:
    case LowerBarCells:
        letters(barBgLabels, group.shaded == UpperBarCells);
        break;
    case OddFaces:
        faces(oddFaces);
        break;
    case EvenFaces:
        faces(evenFaces);
        break;
    case Field:
        break;
    }
    if (group.widget)
        shaded.append(ui->widget(QLatin1String(group.widget)));
    if (group.header && ui->find<QCheckBox>(QLatin1String(group.headerBox))->isChecked())
        shaded.append(ui->widget(QLatin1String(group.header)));
    shaded.removeAll(nullptr);
    return shaded;
}

// Where the shadow of a widget of the group falls: the checked corner of the dial at the
// slider's distance, or the other corner of the tricks for the faces they turn.
QPointF lexoria::shadowOffset(int g, QWidget *widget) const
{
    const GroupRow &group = groups[g];
    const int d = group.nearest + ui->find<QSlider>(QLatin1String(group.slider))->value();
    const CornerRow *checked = &corners[BottomRight];
    for (const CornerRow &corner : corners) {
        if (ui->find<QRadioButton>(radioName(group, corner))->isChecked())
            checked = &corner;
    }
    int tricks = 0;
    if (g == Odd && widget && listed(oddTricks, faceSuffix(widget)))
        tricks = ui->find<QSlider>(QStringLiteral("sliderTricks"))->value();
    else if (g == Even && widget && listed(evenTricks, faceSuffix(widget)))
        tricks = ui->find<QSlider>(QStringLiteral("sliderTricks_2"))->value();
    if (tricks == 1)
        return QPointF(checked->trick1x * d, checked->trick1y * d);
    if (tricks == 2)
        return QPointF(checked->trick2x * d, checked->trick2y * d);
    return QPointF(checked->x * d, checked->y * d);
}

// One effect per widget, changed in place: a new one for every call would look the same but
// leave Qt to tear down and set up hundreds of effects for each move of a slider. An invisible
// shadow is switched off, because an enabled effect renders its widget through an offscreen
// pixmap on every repaint, and a key press repaints a stack of them.
void lexoria::castShadow(QWidget *widget, const QColor &color, const QPointF &offset)
{
    auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(widget->graphicsEffect());
    const bool fresh = !shadow;
    if (fresh)
        shadow = new shading::CachedShadow(widget);
    shadow->setOffset(offset);
    shadow->setColor(color);
    shadow->setEnabled(color.alpha() != 0);
    if (fresh)
        widget->setGraphicsEffect(shadow);
}

void lexoria::castShadowOfGroup(QWidget *widget, int g)
{
    const bool on = ui->find<QCheckBox>(QLatin1String(groups[g].checkBox))->isChecked();
    castShadow(
        widget, on ? QColor(shadows.colors[g]) : QColor(Qt::transparent), shadowOffset(g, widget));
}

int lexoria::faceGroup(const QWidget *face) const
{
    return listed(oddFaces, faceSuffix(face)) ? Odd : Even;
}

void lexoria::shadowGroup_function(int g)
{
    const GroupRow &group = groups[g];
    for (QWidget *widget : shadedWidgets(g))
        castShadowOfGroup(widget, g);
    // A header left out of the group must not keep the shadow it was given while it was in.
    if (group.header && ui->find<QCheckBox>(QLatin1String(group.checkBox))->isChecked()
        && !ui->find<QCheckBox>(QLatin1String(group.headerBox))->isChecked())
        castShadow(
            ui->widget(QLatin1String(group.header)), Qt::transparent, shadowOffset(g, nullptr));
}

void lexoria::matchThisCb_function()
{
    for (int g : {MatchText, MatchBg}) {
        if (ui->find<QCheckBox>(QLatin1String(groups[g].checkBox))->isChecked())
            shadowGroup_function(g);
    }
}

void lexoria::yourEntryCb_function()
{
    for (int g : {EntryText, EntryBg}) {
        if (ui->find<QCheckBox>(QLatin1String(groups[g].checkBox))->isChecked())
            shadowGroup_function(g);
    }
}

void lexoria::shadowCornerClicked()
{
    for (int g = 0; g < GroupCount; ++g) {
        for (const CornerRow &corner : corners) {
            const QString label = QLatin1String(corner.name) + QLatin1String("Lab")
                + QLatin1String(groups[g].suffix);
            const QWidget *widget = ui->widget(label);
            if (widget && widget->underMouse()) {
                ui->find<QRadioButton>(radioName(groups[g], corner))->setChecked(true);
                shadowGroup_function(g);
            }
        }
    }
}

void lexoria::shadowThClear()
{
    for (Group g : clearOrder)
        ui->find<QCheckBox>(QLatin1String(groups[g].checkBox))->setChecked(false);
    for (Group g : clearOrder)
        shadowGroup_function(g);
}

// A picker colours only the checked groups: unchecking a group keeps its colour.
void lexoria::recolourShadows(int first, int last, const QColor &color, bool reapply)
{
    for (int g = first; g < last; ++g) {
        if (!ui->find<QCheckBox>(QLatin1String(groups[g].checkBox))->isChecked())
            continue;
        shadows.colors[g] = nameText(color);
        restyle(ui->widget(QLatin1String(groups[g].display)),
            "background-color: " + shadows.colors[g] + ";");
        if (reapply)
            shadowGroup_function(g);
    }
}

void lexoria::akoKeysEng_26(const QColor &color)
{
    recolourShadows(0, keyboardGroupCount, color, false);
}

void lexoria::newColor26(const QColor &color)
{
    recolourShadows(0, keyboardGroupCount, color, true);
}

void lexoria::ako30(const QColor &color)
{
    recolourShadows(keyboardGroupCount, GroupCount, color, true);
}

void lexoria::newColor30(const QColor &color)
{
    recolourShadows(keyboardGroupCount, GroupCount, color, true);
}

void lexoria::shadowTh(int number)
{
    const ShadowTheme &theme = themes[number - 1];
    painted.paintBackgroundOn = false;
    painted.paintBorderOn = false;
    painted.paintEnglishOn = false;
    painted.paintUpperOn = false;
    painted.paintLowerOn = false;

    auto check = [this](const QString &name, bool checked) {
        if (auto *button = ui->find<QAbstractButton>(name))
            button->setChecked(checked);
    };
    auto slide = [this](const QString &name, int value) {
        if (auto *slider = ui->find<QSlider>(name)) {
            const QSignalBlocker quiet(slider);
            slider->setValue(value);
        }
    };
    if (theme.allBottomRight) {
        const int last = theme.gamePlayBottomRight ? GroupCount : keyboardGroupCount;
        for (int g = 0; g < last; ++g)
            check(radioName(groups[g], corners[BottomRight]), true);
    } else {
        check(radioName(groups[Odd], corners[TopLeft]), true);
        check(radioName(groups[Even], corners[TopRight]), true);
        slide(QStringLiteral("sliderTricks"), 0);
        slide(QStringLiteral("sliderTricks_2"), 0);
    }
    check(QStringLiteral("matchThisCb"), theme.headers);
    check(QStringLiteral("yourEntryCb"), theme.headers);

    for (const ThemeGroup &setting : theme.groups) {
        const GroupRow &group = groups[setting.group];
        check(QLatin1String(group.checkBox), setting.on);
        if (setting.slider >= 0)
            slide(QLatin1String(group.slider), setting.slider);
        shadows.colors[setting.group] = QLatin1String(setting.color);
        shadowGroup_function(setting.group);
        const bool gamePlay = setting.group >= keyboardGroupCount;
        const char *shown
            = gamePlay && theme.displayOverride ? theme.displayOverride : setting.color;
        restyle(ui->widget(QLatin1String(group.display)),
            "background-color: " + QLatin1String(shown) + ";");
    }

    applyThemePieces(number);

    for (int k = 0; k < keycatalogue::paintKeyCount; ++k)
        restyle(
            keyBgLabels[k], pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle);
    for (QLabel *cell : qAsConst(barBgLabels))
        restyle(cell, pieces.barRadiusStyle + pieces.keysBgStyle);
    const QString english = transparentText + pieces.englishColorStyle + pieces.englishFontStyle;
    for (QLabel *label : qAsConst(keyEnglishLabels))
        restyle(label, english);
    // Each letter keeps the family of its own case; the colours are one for all in a theme.
    for (int n = 1; n <= letterCount; ++n) {
        const QString letter = colourPiece(n) + fontPiece(n);
        restyle(keyLetterLabels[n - 1], letter);
        restyle(
            barLabels[n - 1], letterDone[n] ? pieces.finishedColorStyle + fontPiece(n) : letter);
    }
    restyle(ui->aKeysMap5, pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle);
    if (QWidget *map = ui->widget(QStringLiteral("aKeysMap4")))
        restyle(map, english);
    if (QWidget *map = ui->widget(QStringLiteral("aKeysMap2")))
        restyle(map, transparentText + pieces.upperColorStyle + pieces.upperFontStyle);
    if (QWidget *map = ui->widget(QStringLiteral("aKeysMap3")))
        restyle(map, transparentText + pieces.lowerColorStyle + pieces.lowerFontStyle);
    restyleFaceSamples();
    restyleFontSamples(EnglishFont);
    restyleFontSamples(UpperFont);
    bgColorLoops();
    restyle(ui->underscore_right, english);
    restyle(ui->underscore_left, english);
}

void lexoria::applyThemePieces(int number)
{
    const ShadowTheme &theme = themes[number - 1];
    // Moving a shape slider runs the colour panel's own slot; the theme's piece is written
    // after it, so the theme has the last word.
    auto moveShapeSlider = [this](int target, int position) {
        if (position < 0)
            return;
        if (auto *slider = ui->find<QSlider>(QStringLiteral("hoSlider%1").arg(target)))
            slider->setValue(position);
    };
    auto side = [&](GradientTarget &target, GradientSide &which, const ThemeSide &setting,
                    int sliderTarget) {
        moveShapeSlider(sliderTarget, setting.hoSlider);
        which.gradColor = QLatin1String(setting.top);
        which.color = QLatin1String(setting.base);
        if (setting.radialToo) {
            which.radialGradColor = which.gradColor;
            which.radialColor = which.color;
        }
        which.shape = setting.shape;
        if (setting.stop)
            target.gradStop = QLatin1String(setting.stop);
    };
    auto background = [&](GradientTarget &target, const ThemeSide &setting, int sliderTarget) {
        side(target, target.bg, setting, sliderTarget);
        return shapePiece(setting.shape, target.bg, target.gradStop);
    };
    auto border = [&](GradientTarget &target, const ThemeSide &setting, int sliderTarget) {
        side(target, target.border, setting, sliderTarget);
        return borderPiece(setting.shape, target.border, target.gradStop, target.borderWidth);
    };

    const QString text = QLatin1String(theme.textColor);
    pieces.englishColorStyle = text;
    pieces.upperColorStyle = text;
    pieces.lowerColorStyle = text;

    pieces.wallpaperBgStyle = background(targets.wallpaper, theme.wallpaperBg, 7);
    pieces.wallpaperBorderStyle = border(targets.wallpaper, theme.wallpaperBorder, 7);
    restyle(ui->wallpaper,
        pieces.wallpaperBgStyle + pieces.wallpaperBorderStyle
            + QStringLiteral(" border-radius: 0px;"));

    pieces.keysBgStyle = theme.keysBg ? QLatin1String(theme.keysBg)
                                      : background(targets.keys, theme.keysBgSide, 1);
    pieces.keysBorderStyle = QLatin1String(none);

    pieces.gamePlayBgStyle = theme.gamePlayBg
        ? QLatin1String(theme.gamePlayBg)
        : background(targets.gamePlay, theme.gamePlayBgSide, 27);
    if (theme.gamePlayBorder) {
        pieces.gamePlayBorderStyle = QLatin1String(theme.gamePlayBorder);
    } else {
        targets.gamePlay.borderWidth = QStringLiteral("1");
        if (auto *width = ui->find<QSlider>(QStringLiteral("sliderBorderWidth27")))
            width->setValue(1);
        pieces.gamePlayBorderStyle = border(targets.gamePlay, theme.gamePlayBorderSide, 27);
    }

    pieces.keypressEnglishColorStyle = QLatin1String(theme.keypressText);
    pieces.keypressRussianColorStyle = pieces.keypressEnglishColorStyle;
    pieces.goldKeyEnglishColorStyle = pieces.keypressEnglishColorStyle;
    pieces.goldKeyRussianColorStyle = pieces.keypressEnglishColorStyle;
    pieces.keypressBgStyle = background(targets.keypress, theme.keypressBg, 2);
    if (theme.keypressBorder)
        pieces.keypressBorderStyle = QLatin1String(theme.keypressBorder);

    pieces.finishedColorStyle = QLatin1String(theme.finishedColor);
    if (theme.slider5 >= 0) {
        if (auto *stop = ui->find<QSlider>(QStringLiteral("slider5")))
            stop->setValue(theme.slider5);
    }
    pieces.finishedBgStyle = background(targets.finished, theme.finishedBg, 5);

    pieces.mouseoverEnglishColorStyle = QLatin1String(theme.mouseoverText);
    pieces.mouseoverRussianColorStyle = pieces.mouseoverEnglishColorStyle;
    pieces.mouseoverBgStyle = background(targets.mouseover, theme.mouseoverBg, 3);

    pieces.highlightEnglishColorStyle = QLatin1String(theme.highlightText);
    pieces.highlightRussianColorStyle = pieces.highlightEnglishColorStyle;
    pieces.highlightBgStyle = background(targets.highlight, theme.highlightBg, 4);
    if (theme.highlightBorder) {
        pieces.highlightBorderStyle = QLatin1String(theme.highlightBorder);
    } else {
        targets.highlight.borderWidth = QLatin1String(theme.highlightBorderWidth);
        pieces.highlightBorderStyle = border(targets.highlight, theme.highlightBorderSide, 4);
    }

    pieces.matchTextColorStyle = QLatin1String(theme.fieldText);
    pieces.userTextColorStyle = pieces.matchTextColorStyle;

    if (auto *headers = ui->find<QAbstractButton>(QStringLiteral("gamePlayCb")))
        headers->setChecked(theme.gamePlayCb);
    const QString field = pieces.gamePlayBgStyle + pieces.gamePlayBorderStyle;
    restyle(ui->widget(QStringLiteral("leMatchBg")), field);
    restyle(ui->widget(QStringLiteral("leUserBg")), field);
    const QString header = theme.matchThis ? QLatin1String(theme.matchThis)
                                           : pieces.matchTextColorStyle
            + QStringLiteral(" background-color: transparent; font: 12pt 'MS Shell Dlg 2';");
    restyle(ui->widget(QStringLiteral("matchThis")), header);
    restyle(ui->widget(QStringLiteral("yourEntry")),
        theme.yourEntry ? QLatin1String(theme.yourEntry) : header);
    const QString headerBg
        = theme.headerBg ? QLatin1String(theme.headerBg) : pieces.gamePlayBgStyle;
    restyle(ui->widget(QStringLiteral("matchThisBg")), headerBg);
    restyle(ui->widget(QStringLiteral("yourEntryBg")), headerBg);
}
