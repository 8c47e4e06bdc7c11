#ifndef FONTS_H
#define FONTS_H

#include <QStringList>

// The form names Windows fonts. Linux desktops have none of them, and Qt's fallback for a
// missing family is wider than what the form's rectangles were measured for, and it draws the
// symbol buttons as the plain letters they are written with.
namespace fonts {

// The family of our own symbol font, drawn by resources/make_symbol_font.py.
inline const char *const symbolFamily = "Vortic Symbols";

// Every family the form's texts and style sheets name.
QStringList formFamilies();

// The letters the form writes in a symbol font, each standing for a picture of that font.
QString symbolTexts();

// Registers the symbol font and maps every family the form names onto one this system has.
// Safe to call again; only the first call does anything.
void mapFormFamilies();

} // namespace fonts

#endif
