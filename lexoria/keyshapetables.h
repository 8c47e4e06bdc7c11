#ifndef KEYSHAPETABLES_H
#define KEYSHAPETABLES_H

// The two shapes of the keyboard: rounded squares with the long control keys, or circles that
// all have the size of a letter key. Character keys only grow or shrink about their centre;
// these tables say where the control keys and the other fixed widgets go.
namespace keyshapetables {

constexpr int unchanged = -1000;

struct Place
{
    const char *widget;
    int w, h;
    int x, y; // unchanged: only the size changes
};

constexpr int circleSize = 62;
constexpr int squareSize = 54;
// A circle is a square key grown by this much on every side.
constexpr int circleGrowth = (circleSize - squareSize) / 2;

constexpr Place circleControls[] = {
    {"labelCapsLock", 62, 62, 204, 510},
    {"bgCapsLock", 62, 62, 204, 510},
    {"labelEnter", 62, 62, 948, 510},
    {"labelBackSpace", 62, 62, 948, 390},
    {"labelTab", 62, 62, 172, 450},
    {"bgTab", 62, 62, 172, 450},
    {"labelShiftRight", 62, 62, 916, 570},
    {"labelShiftLeft", 62, 62, 234, 570},
    {"bgShiftLeft", 62, 62, 234, 570},
    {"labelSpacebar", 62, 62, 545, 632},
    {"bgSpacebar", 62, 62, 545, 632},
    {"displayNone54", 62, 62, 545, 632},
    {"imgSpacebar", 52, 52, 550, 637},
    {"displayNone49", 62, 62, 172, 450},
    {"displayNone50", 62, 62, 204, 510},
    {"displayNone52", 62, 62, 234, 570},
    {"imgCapsLock", 52, 52, 208, 514},
    {"imgTab", 52, 52, 176, 454},
    {"imgShiftLeft", 52, 52, 238, 574},
    {"imgBackSpace", 52, 52, unchanged, unchanged},
    {"imgEnter", 52, 52, unchanged, unchanged},
    {"imgShiftRight", 52, 52, unchanged, unchanged},
    // The wide key becomes as round as the others.
    {"img42", 54, 54, unchanged, unchanged},
    {"r42_3", 54, 54, unchanged, unchanged},
    {"r92_2", 54, 54, unchanged, unchanged},
    {"r94_2", 54, 54, unchanged, unchanged},
    {"aKeysMap5", 62, 62, 1107, 400},
    {"theme1Bg", 62, 62, 120, 66},
    {"theme2Bg", 62, 62, 442, 66},
    {"theme3Bg", 62, 62, 762, 66},
    {"theme3_7", 78, 78, 754, 58},
};

// The long control keys go back to their places in the key catalogue; these are the rest.
constexpr Place normalControls[] = {
    {"bg42", 74, 54, unchanged, unchanged},
    {"r42_3", 74, 54, unchanged, unchanged},
    {"r92_2", 74, 54, unchanged, unchanged},
    {"r94_2", 74, 54, unchanged, unchanged},
    {"displayNone42", 74, 54, unchanged, unchanged},
    {"img42", 74, 54, unchanged, unchanged},
    {"aKeysMap5", 54, 54, 1111, 404},
    {"theme1Bg", 54, 54, 124, 70},
    {"theme2Bg", 54, 54, 446, 70},
    {"theme3Bg", 54, 54, 768, 70},
    {"theme3_7", 70, 70, 760, 62},
};

struct Caption
{
    const char *label;
    const char *text;
};

// "Enter" reads the same in both shapes and is only written for the circle.
constexpr Caption circleCaptions[] = {{"labelCapsLock", "Caps\nLock"}, {"labelSpacebar", "Space"},
    {"labelEnter", "Enter"}, {"labelBackSpace", "Back\nspace"}};
constexpr Caption normalCaptions[] = {
    {"labelCapsLock", "Caps Lock"}, {"labelSpacebar", "Spacebar"}, {"labelBackSpace", "Backspace"}};

// The built-in themes' sample keys keep a look of their own; only their radius follows the shape.
struct ThemeSample
{
    const char *widget;
    const char *circleRadius;
    const char *normalRadius;
    const char *look; // after the radius
};

constexpr ThemeSample themeSamples[] = {
    {"theme1Bg", "border-radius: 31px;", "border-radius: 10px;",
        " background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,stop: 0 gold, stop: 1 "
        "black);border-width:10px;  border-style: solid;border-color:  "
        "qradialgradient(spread:repeat, cx:  .5,    cy:  .5,    radius: .1,fx:0.5,     fy:0.5,     "
        " stop: 0 gold,      stop: 1 black);"},
    {"theme2Bg", "border-radius: 31px;", "border-radius: 10px;",
        " background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5,stop: 0 "
        " gold, stop: .6  black);border-width: 6px; border-style: solid;border-color:  "
        "qradialgradient( cx:  .5,    cy:  .5,    radius: .5,     fx:0.5,     fy:0.5,  stop: 0 "
        "gold,      stop: 1 black);"},
    {"theme3Bg", "border-radius: 31px;", "border-radius: 31px;",
        " background-color: qradialgradient( cx: .5,  cy: .5, radius: .5, fx:0.5, fy:0.5 stop : 0 "
        "blue, stop: .3  black);"},
    {"theme3_7", "border-radius: 39px;", "border-radius: 10px;",
        " background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,stop: 0 #00557f,  stop:  "
        ".3 #34004f );  color: #00557f;"},
};

} // namespace keyshapetables

#endif
