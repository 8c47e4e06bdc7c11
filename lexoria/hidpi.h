#ifndef HIDPI_H
#define HIDPI_H

#include <QPixmap>
#include <QString>

namespace hidpi {

// Lays the windows out in device-independent pixels, so that on a 2x screen they keep their
// physical size, and lets pixmaps carry their own pixel ratio. Qt reads both attributes only
// while it creates the application object: every main() calls this before it makes one.
void enableScaling();

// The picture at `path`, or its "@2x" twin where the screen has twice the pixels and the
// collection has one: drawn into the same rectangle, it stays sharp.
QPixmap pixmap(const QString &path);

} // namespace hidpi

#endif
