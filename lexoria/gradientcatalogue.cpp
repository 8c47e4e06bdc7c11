#include "lexoria/gradientcatalogue.h"

namespace gradientcatalogue {

namespace {

// Everything of a shape's piece after "background-color: ", which the border reuses after
// "border-color: ". The radial shape alone takes the radial pair.
QString gradientOf(const GradientSide &side, int shape, const QString &stop)
{
    switch (shape) {
    case 1:
        return "qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " + side.gradColor
            + ", stop: " + stop + "  " + side.color + ");";
    case 2:
        return "qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 " + side.gradColor
            + ", stop: " + stop + "  " + side.color + ");";
    case 3:
        return "qlineargradient(x1: .8, y1: .8, x2: 0, y2: 0, stop: 0 " + side.gradColor
            + ", stop: " + stop + "  " + side.color + ");";
    case 4:
        return "qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5, stop : 0 "
            + side.radialGradColor + ", stop: " + stop + "  " + side.radialColor + ");";
    case 5:
        return "qradialgradient(spread:repeat, cx:  .5, cy:  .5, radius: .1,fx:0.5, fy:0.5,   "
               "stop : 0 "
            + side.gradColor + ", stop: " + stop + "  " + side.color + ");";
    default:
        return {};
    }
}

} // namespace

QString backgroundPiece(const GradientSide &side, int shape, const QString &stop)
{
    if (shape <= 0 || shape >= shapeCount)
        return "background-color: " + side.color + "; ";
    return "background-color: " + gradientOf(side, shape, stop);
}

QString borderPiece(const GradientSide &side, int shape, const QString &stop, const QString &width)
{
    if (shape <= 0 || shape >= shapeCount)
        return "border-style:solid; border-width: " + width + "px; border-color: " + side.color
            + ";";
    return "border-style:solid; border-width:" + width
        + "px; border-color: " + gradientOf(side, shape, stop);
}

} // namespace gradientcatalogue
