#include "instructions.h"

#include "ui_instructions.h"

#include <QMouseEvent>

namespace {

// Frames that lie inside larger ones. underMouse() is true only for the topmost sibling, so
// these must be above their surroundings or a click on them would explain the wrong part.
constexpr QLabel *Ui::instructions::*raisedFrames[] = {
    &Ui::instructions::labelStart,
    &Ui::instructions::labelStop,
    &Ui::instructions::labelHinHin,
    &Ui::instructions::labelGoldenHighlight,
    &Ui::instructions::reverse,
    &Ui::instructions::random,
    &Ui::instructions::forward,
    &Ui::instructions::labelDifficulitySoft,
    &Ui::instructions::labelDifficulityStrict,
    &Ui::instructions::catManDo,
    &Ui::instructions::various,
    &Ui::instructions::various_2,
    &Ui::instructions::consonants,
    &Ui::instructions::consonants_2,
    &Ui::instructions::numberLine,
    &Ui::instructions::numberLine_2,
};

} // namespace

instructions::instructions(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::instructions)
{
    ui->setupUi(this);
    setFixedSize(size());

    ui->map->lower();
    for (QLabel *Ui::instructions::*frame : raisedFrames)
        (ui->*frame)->raise();
}

instructions::~instructions()
{
    delete ui;
}

// The frames are empty labels, which leave their mouse presses to the window; the frame under
// the pointer tells which part of the screen was meant.
void instructions::mousePressEvent(QMouseEvent *event)
{
    for (const Ui::instructions::MapRegion &region : Ui::instructions::mapRegions) {
        const bool overRegion = (ui->*region.label)->underMouse()
            || (region.secondLabel && (ui->*region.secondLabel)->underMouse());
        if (event->button() == Qt::LeftButton && overRegion)
            ui->mgDisplay->setText(QString::fromUtf8(region.text));
    }
}
