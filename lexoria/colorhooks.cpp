#include "lexoria/lexoria.h"

// Seams between the parts of Color Madness while they are being built: each of these is replaced
// by its real body in the file of its own subsystem.

void lexoria::fillRainbowE() { }

void lexoria::fillRainbowUp() { }

void lexoria::fillRainbowLow() { }

void lexoria::fillRainbowBg() { }

void lexoria::fillRainbowBorder() { }
