#include "lexoria/fonts.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>

#include <iterator>

static void registerFontResources()
{
    Q_INIT_RESOURCE(fonts);
}

namespace fonts {

namespace {

struct Mapping
{
    const char *family;
    // Tried in order; the first one installed wins.
    const char *substitutes[2];
};

// Carlito has Calibri's widths letter for letter. Liberation Sans has Arial's, with the
// Cyrillic letters of Arial Unicode MS. MS Shell Dlg 2 is Tahoma on Windows, which Debian ships
// only inside Wine; of the sans faces it has, Liberation Sans and DejaVu Sans Condensed still set
// "Match This" wider than its caption, and only Carlito fits every caption. DejaVu Sans is on
// every Debian desktop but wider still: it is only the last resort.
constexpr Mapping textFamilies[] = {
    {"Calibri", {"Carlito", "DejaVu Sans"}},
    {"Arial Unicode MS", {"Liberation Sans", "DejaVu Sans"}},
    {"MS Shell Dlg 2", {"Carlito", "DejaVu Sans"}},
    // The serif of the options menu's close button; Liberation Serif is narrow enough for
    // "Advanced" in its 90 pixels.
    {"Chaparral Pro Light", {"Liberation Serif", "DejaVu Serif"}},
};

constexpr const char *symbolFamilies[] = {"Wingdings", "Wingdings 2", "Wingdings 3", "Webdings"};

} // namespace

QStringList formFamilies()
{
    QStringList families;
    for (const Mapping &mapping : textFamilies)
        families << QLatin1String(mapping.family);
    for (const char *family : symbolFamilies)
        families << QLatin1String(family);
    // How the random buttons' style sheet spells it; Qt drops the blank when it looks it up.
    families << QStringLiteral("Webdings ");
    return families;
}

QString symbolTexts()
{
    // Reverse and forward "Z" "[", random "sq", the arrows towards the menu "_", the swap of a
    // gradient "D", the check mark of an open panel "C".
    return QStringLiteral("Z[sq_DC");
}

void mapFormFamilies()
{
    const QString symbols = QLatin1String(symbolFamily);
    if (QFont::substitutes(QLatin1String(symbolFamilies[0])).contains(symbols))
        return;
    registerFontResources();
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/vortic-symbols.ttf"));
    for (const char *family : symbolFamilies)
        QFont::insertSubstitution(QLatin1String(family), symbols);
    for (const Mapping &mapping : textFamilies) {
        QStringList substitutes;
        for (const char *substitute : mapping.substitutes)
            substitutes << QLatin1String(substitute);
        QFont::insertSubstitutions(QLatin1String(mapping.family), substitutes);
    }
    // Widgets without a font of their own were sized for the dialog font Qt uses on Windows.
    QFont dialogFont(QStringLiteral("MS Shell Dlg 2"));
    dialogFont.setPointSizeF(8.25);
    QApplication::setFont(dialogFont);
}

} // namespace fonts
