#include "lexoria/lexoria.h"

// Seams between the parts of Color Madness while they are being built: each of these is replaced
// by its real body in the file of its own subsystem.

void lexoria::bgColorLoops() { }

void lexoria::allRise() { }

void lexoria::enableColor(int) { }

void lexoria::shadowThClear() { }

void lexoria::akoKeysEng_26(const QColor &) { }

void lexoria::newColor26(const QColor &) { }

void lexoria::ako30(const QColor &) { }

void lexoria::newColor30(const QColor &) { }
