#ifndef COLORTARGETS_H
#define COLORTARGETS_H

#include <QString>

#include <array>

// One side (background or border) of a coloured thing. The plain pair holds rgba text, the
// radial pair name text, because the radial shape keeps colours of its own; any of them may
// also be a colour word from the defaults, a built-in theme or a theme file.
struct GradientSide
{
    QString color;
    QString gradColor;
    QString radialColor;
    QString radialGradColor;
    int shape = 1;
    int stopPos = 5;
};

inline GradientSide solidSide(const QString &plain, const QString &radial)
{
    return {plain, plain, radial, radial, 1, 5};
}

// Everything coloured in Color Madness has two colours and a shape per side, and one stop shared
// by both sides. The style pieces built from them live in StylePieces.
struct GradientTarget
{
    GradientSide bg;
    GradientSide border;
    QString gradStop = QStringLiteral(".5");
    QString borderWidth = QStringLiteral("0");
};

inline GradientTarget targetOf(
    const QString &background, const QString &borderPlain, const QString &borderRadial)
{
    return {solidSide(background, background), solidSide(borderPlain, borderRadial),
        QStringLiteral(".5"), QStringLiteral("0")};
}

// The gradient targets by their start colours. The line highlight keeps its two colour sets
// with the lines' own pieces in StylePieces.
struct ColorTargets
{
    GradientTarget keys = targetOf("black", "black", "black");
    GradientTarget keypress = targetOf("black", "black", "black");
    GradientTarget mouseover = targetOf("gold", "gold", "gold");
    GradientTarget highlight = targetOf("gold", "gold", "gold");
    GradientTarget finished = targetOf("rgb(115, 115, 115)", "", "");
    GradientTarget wallpaper = targetOf("white", "transparent", "rgb(115, 115, 115)");
    GradientTarget rainbow = targetOf("black", "black", "black");
    GradientTarget gamePlay = targetOf("white", "black", "white");

    int rainbowBorderWidthValue = 0;
    // "2" until a built-in theme is chosen, "0" after it, "1" once the first switch to the keys'
    // border has shown that theme's border on the controls.
    QString themeOneBorderPending = QStringLiteral("2");
    QString themeTwoBorderPending = QStringLiteral("2");
};

// What the colour pickers remember between openings. Index = picker number 1..30.
struct PickerState
{
    std::array<bool, 31> pickerAccepted {};
    // Until a target's top-colour picker was opened once, its base picker writes both colours,
    // so the gradient stays a solid colour.
    bool keysGradOpened = false;
    bool keypressGradOpened = false;
    bool mouseoverGradOpened = false;
    bool highlightGradOpened = false;
    bool finishedGradOpened = false;
    bool lineGradOpened = false;
    bool wallpaperGradOpened = false;
    bool rainbowGradOpened = false;
    bool gamePlayGradOpened = false;
    // True while the paint pickers 23 and 24 are open: every key the mouse enters takes the colour.
    bool paintingWithBase = false;
    bool paintingWithGradient = false;
};

#endif
