#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QApplication>
#include <QColorDialog>
#include <QLabel>
#include <QPixmap>
#include <QRadioButton>
#include <QSlider>

using namespace keycatalogue;

namespace {

const char *const paintRadios[] = {
    "rainbowBackground", "rainbowBorder", "rainbowEnglish", "rainbowLowercase", "rainbowUppercase"};

} // namespace

// The general pieces overwrite every slot of their layer, so a key at rest shows the general
// colour until it is painted again.
void lexoria::fillRainbowE()
{
    for (int K = 1; K <= paintKeyCount; ++K)
        painted.paintEnglishColor[K] = pieces.englishColorStyle;
    painted.paintUnderscoreLeftColor = pieces.englishColorStyle;
    painted.paintUnderscoreRightColor = pieces.englishColorStyle;
}

void lexoria::fillRainbowUp()
{
    for (int n = 1; n <= letterCount; ++n) {
        if (isUpperRow(n))
            painted.paintCharColor[n] = pieces.upperColorStyle;
    }
}

void lexoria::fillRainbowLow()
{
    for (int n = 1; n <= letterCount; ++n) {
        if (!isUpperRow(n))
            painted.paintCharColor[n] = pieces.lowerColorStyle;
    }
}

void lexoria::fillRainbowBg()
{
    for (int K = 1; K <= paintKeyCount; ++K)
        painted.paintBgStyle[K] = pieces.rainbowBgStyle;
}

void lexoria::fillRainbowBorder()
{
    for (int K = 1; K <= paintKeyCount; ++K)
        painted.paintBorderStyle[K] = pieces.rainbowBorderStyle;
}

void lexoria::setUpRainbow()
{
    const std::pair<const char *, void (lexoria::*)()> targetSlots[] = {
        {"rainbowBackground", &lexoria::rainbowBackground},
        {"rainbowBorder", &lexoria::rainbowBorder_function},
        {"rainbowEnglish", &lexoria::rainbowEnglish},
        {"rainbowLowercase", &lexoria::rainbowLowercase},
        {"rainbowUppercase", &lexoria::rainbowUppercase},
    };
    for (const auto &[name, slot] : targetSlots) {
        if (auto *radio = ui->find<QRadioButton>(QLatin1String(name)))
            connect(radio, &QRadioButton::clicked, this, slot);
    }
    const QPixmap swatch(QStringLiteral(":/new/prefix1/colorPicker.png"));
    for (const char *name : {"colorPickerRainbowBg", "colorPickerGradBottom8"}) {
        if (auto *label = ui->find<QLabel>(QLatin1String(name)))
            label->setPixmap(swatch);
    }
    fillRainbowBg();
    fillRainbowE();
    fillRainbowLow();
    fillRainbowUp();
    fillRainbowBorder();
    setUpPaintFile();
}

// The two rainbow pickers are windows of their own, named after the swatch that opens them.
QColorDialog *lexoria::rainbowPicker(int picker) const
{
    const QLatin1String name(picker == 23 ? "colorPickerRainbowBg" : "colorPickerGradBottom8");
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<QColorDialog *>(window);
            dialog && dialog->objectName() == name)
            return dialog;
    }
    return nullptr;
}

void lexoria::showRainbowSide(bool border)
{
    const GradientSide &side = border ? targets.rainbow.border : targets.rainbow.bg;
    if (auto *shape = ui->find<QSlider>(QStringLiteral("hoSlider8")))
        shape->setValue(side.shape);
    if (auto *stop = ui->find<QSlider>(QStringLiteral("slider8")))
        stop->setValue(side.stopPos);
}

// One paint target chosen: its layer's flag goes on at once, so that the keys show their slots
// (equal to the general colours until painted), and the picker opens or, already open, is only
// retitled, for the mouse to paint with.
void lexoria::choosePaintTarget(int target)
{
    enum Sides { NoSide, BackgroundAfter, BorderBefore };
    struct Target
    {
        const char *radio;
        int picker;
        const char *title; // null: the picker titles itself
        bool Painted::*flag;
        QString Painted::*text;
        bool moves;
        int x, y;
        Sides sides;
    };
    static const Target targetRows[] = {
        {"rainbowBackground", 23, "Rainbow Background / Gradient 1", &Painted::paintBackgroundOn,
            &Painted::paintBackgroundText, false, 0, 0, BackgroundAfter},
        {"rainbowBorder", 23, "Rainbow Border / Gradient 1", &Painted::paintBorderOn,
            &Painted::paintBorderText, false, 0, 0, BorderBefore},
        {"rainbowEnglish", 23, "Rainbow English", &Painted::paintEnglishOn,
            &Painted::paintEnglishText, true, 22, 24, NoSide},
        {"rainbowLowercase", 23, "Rainbow Lowercase", &Painted::paintLowerOn,
            &Painted::paintLowerText, true, 978, 24, NoSide},
        {"rainbowUppercase", 23, "Rainbow Uppercase", &Painted::paintUpperOn,
            &Painted::paintUpperText, true, 978, 24, NoSide},
        {"rainbowBackground", 24, nullptr, &Painted::paintBackgroundOn,
            &Painted::paintBackgroundText, false, 0, 0, BackgroundAfter},
        {"rainbowBorder", 24, nullptr, &Painted::paintBorderOn, &Painted::paintBorderText, false, 0,
            0, BorderBefore},
    };
    const Target &row = targetRows[target];

    // Checking first lets the radios' own exclusivity do the unchecking where it can.
    if (auto *chosen = ui->find<QRadioButton>(QLatin1String(row.radio)))
        chosen->setChecked(true);
    for (const char *name : paintRadios) {
        auto *radio = ui->find<QRadioButton>(QLatin1String(name));
        if (radio && qstrcmp(name, row.radio) != 0 && radio->isChecked()) {
            const bool exclusive = radio->autoExclusive();
            radio->setAutoExclusive(false);
            radio->setChecked(false);
            radio->setAutoExclusive(exclusive);
        }
    }
    painted.*row.flag = true;
    painted.*row.text = QStringLiteral("1");

    if (row.sides == BorderBefore)
        showRainbowSide(true);
    // The picker is made when first opened, so it is titled and placed once it is open; an
    // open one only changes its title and place.
    enableColor(row.picker);
    if (QColorDialog *picker = rainbowPicker(row.picker)) {
        if (row.title)
            picker->setWindowTitle(QLatin1String(row.title));
        if (row.moves)
            picker->move(row.x, row.y);
        picker->raise();
    }
    if (row.sides == BackgroundAfter)
        showRainbowSide(false);
}

void lexoria::rainbowBackground()
{
    choosePaintTarget(0);
}

void lexoria::rainbowBorder_function()
{
    choosePaintTarget(1);
}

void lexoria::rainbowEnglish()
{
    choosePaintTarget(2);
}

void lexoria::rainbowLowercase()
{
    choosePaintTarget(3);
}

void lexoria::rainbowUppercase()
{
    choosePaintTarget(4);
}

void lexoria::rainbowBackgroundGradient()
{
    choosePaintTarget(5);
}

void lexoria::rainbowBorderGradient_function()
{
    choosePaintTarget(6);
}

// A swatch opens its picker for the side that is chosen; with a text target chosen the radio
// has already opened picker 23, and the swatches do nothing.
void lexoria::rainbowSwatchClicked(bool gradient)
{
    auto checked = [this](const char *name) {
        auto *radio = ui->find<QRadioButton>(QLatin1String(name));
        return radio && radio->isChecked();
    };
    if (checked("rainbowBackground"))
        gradient ? rainbowBackgroundGradient() : rainbowBackground();
    else if (checked("rainbowBorder"))
        gradient ? rainbowBorderGradient_function() : rainbowBorder_function();
}
