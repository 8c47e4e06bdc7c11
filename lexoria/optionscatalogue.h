#ifndef OPTIONSCATALOGUE_H
#define OPTIONSCATALOGUE_H

#include <cstddef>

// The advanced options: the slides of the menu, its seven panels, the tabs of the colour
// panel and the widgets that "Hide" clears away. Logic in lexoria/options.cpp reads these.
namespace optionscatalogue {

template <class T> struct List
{
    const T *data;
    std::size_t count;
    const T *begin() const { return data; }
    const T *end() const { return data + count; }
};

template <class T, std::size_t N> constexpr List<T> listOf(const T (&items)[N])
{
    return {items, N};
}

struct Rect
{
    int x, y, w, h;
};

// A linear slide of a widget's geometry. The start is fixed, not the widget's current place.
struct Slide
{
    const char *widget;
    int ms;
    Rect from, to;
};

enum SlideId {
    TableOfContentsIn,
    CloseXIn,
    TableOfContentsOut,
    CloseXOut,
    OptionsShieldIn,
    OptionsShieldOut,
    OptionsArrow1In,
    OptionsArrow2In,
    OptionsArrow3In,
    OptionsArrow1Out,
    OptionsArrow2Out,
    OptionsArrow3Out,
    OptionsText1In,
    OptionsText2In,
    OptionsText1Out,
    OptionsText2Out,
    SlideCount
};

// The odd ones are deliberate: the way out starts where the menu's picture once stood, so
// closeX leaves 99 high, the band leaves narrower than it came, and arrow 1 takes its time.
constexpr Slide slides[SlideCount] = {
    {"tableOfContents", 500, {1215, 0, 142, 695}, {1070, 0, 142, 695}},
    {"closeX", 700, {1364, 629, 90, 66}, {890, 629, 90, 66}},
    {"tableOfContents", 500, {1070, 0, 142, 695}, {1215, 0, 142, 695}},
    {"closeX", 500, {890, 629, 90, 66}, {1364, 629, 90, 99}},
    {"optionsShield", 1000, {-4, -316, 1211, 337}, {-4, -75, 1211, 337}},
    {"optionsShield", 1000, {-4, -8, 1211, 258}, {-4, -266, 1211, 258}},
    {"optionsArrow1", 500, {890, -2, 70, 56}, {890, 4, 70, 56}},
    {"optionsArrow2", 600, {890, -2, 70, 56}, {890, 74, 70, 56}},
    {"optionsArrow3", 700, {890, -2, 70, 56}, {890, 144, 70, 56}},
    {"optionsArrow1", 1000, {890, 0, 70, 56}, {890, -72, 70, 56}},
    {"optionsArrow2", 600, {890, 74, 70, 56}, {890, -72, 70, 56}},
    {"optionsArrow3", 700, {890, 144, 70, 56}, {890, -72, 70, 56}},
    {"optionsText1", 500, {1215, 214, 180, 23}, {890, 204, 180, 23}},
    {"optionsText2", 500, {1215, 238, 180, 23}, {890, 228, 180, 23}},
    {"optionsText1", 500, {890, 214, 180, 23}, {1215, 214, 180, 23}},
    {"optionsText2", 500, {890, 238, 104, 36}, {1215, 238, 104, 36}},
};

// Delays of the menu, in ms after the click.
constexpr int arrowsInDelay = 1000;
constexpr int firstTextDelay = 50;
constexpr int secondTextDelay = 200;
constexpr int slideOutDelay = 200;
constexpr int reopenDelay = 60;
constexpr int focusBackDelay = 1600;

enum Panel { ColorMadness, Vortic, Fonts, Photos, Shadows, Audio, GamePlay, PanelCount };

struct PanelFlags
{
    bool colorMadnessOpen = false;
    bool vorticOpen = false;
    bool fontsOpen = false;
    bool photosOpen = false;
    bool shadowsOpen = false;
    bool audioOpen = false;
    bool gamePlayOpen = false;
};

// Where a widget of a panel goes. A shown widget appears with its panel and goes with it;
// the others are only brought to the front.
struct Place
{
    const char *widget;
    int x, y;
    bool shown = true;
};

struct PanelRow
{
    Panel panel;
    const char *button;
    const char *marker;
    bool PanelFlags::*open;
    List<Place> opens; // moved, shown and raised in this order when the panel opens
    List<Place> parks; // moved when it closes
    List<const char *> enables; // usable only while the panel is open
};

constexpr Place colorMadnessOpens[] = {{"tabWidget", 0, 0}, {"frameTabShield", 980, -2}};
// The wallpaper page brings a frame of its own over the tab widget.
constexpr Place wallpaperPage[] = {{"frameWallpaper", 383, 0}, {"swapGradient7", 503, 145}};
constexpr Place vorticOpens[] = {{"frameVorticKeyboard", 0, 0}, {"openImageFinished", 192, 132},
    {"clearVorticKeyboardImage", 250, 132}, {"openAudioPulse", 372, 106, false}};
constexpr Place vorticParks[] = {{"openAudioPulse", 1500, 115}, {"frameVorticKeyboard", 1500, 305}};
constexpr Place fontsOpens[] = {{"frameFonts", 0, 0}, {"fontComboBoxEnglish", 10, 100},
    {"fontComboBoxUppercase", 308, 100}, {"fontComboBoxLowercase", 606, 100}};
constexpr Place fontsParks[] = {{"frameFonts", 0, 1500}, {"fontComboBoxEnglish", 10, 1500},
    {"fontComboBoxUppercase", 308, 1500}, {"fontComboBoxLowercase", 606, 1500}};
constexpr const char *fontCombos[]
    = {"fontComboBoxEnglish", "fontComboBoxUppercase", "fontComboBoxLowercase"};
// The wallpaper's frame comes before its buttons, which are raised over it.
constexpr Place photosOpens[] = {{"framePhotos", 0, 0}, {"framePhotosMain", 756, 74},
    {"openImageKeys", 394, 97}, {"clearKeysImage", 482, 97}, {"openImageKeypress", 394, 136},
    {"clearKeypressImage", 482, 136}, {"openImageHighlight", 394, 187},
    {"clearHighlightImage", 482, 187}, {"openImageMouseover", 394, 224},
    {"clearMouseoverImage", 482, 224}, {"openImageMain", 800, 106}, {"clearMainImage", 858, 106},
    {"xRayVision", 983, 148}};
constexpr Place shadowsOpens[] = {{"frameShadows", 0, 0}};
constexpr Place audioOpens[] = {{"frameAudio", 0, 0}, {"openAudio", 334, 122}};
constexpr Place audioParks[] = {{"openAudio", 1500, 300}, {"frameAudio", 1500, 405}};
constexpr Place gamePlayOpens[] = {{"frameGamePlayS", 0, 0}, {"frameGamePlayS_2", 731, 0},
    {"frameGamePlayCM", 86, 352}, {"frameWallpaper_2", 86, 392}, {"swapGradient27", 572, 456}};
constexpr const char *gamePlaySpin[] = {"spinBox27"};

constexpr List<Place> none {nullptr, 0};
constexpr List<const char *> noWidgets {nullptr, 0};

// In the order of the menu, top to bottom.
constexpr PanelRow panels[PanelCount] = {
    {ColorMadness, "menuColorMadness", "markerCm", &PanelFlags::colorMadnessOpen,
        listOf(colorMadnessOpens), none, noWidgets},
    {Vortic, "menuVorticKeyboard", "markerEk", &PanelFlags::vorticOpen, listOf(vorticOpens),
        listOf(vorticParks), noWidgets},
    {Fonts, "menuFonts", "markerFonts", &PanelFlags::fontsOpen, listOf(fontsOpens),
        listOf(fontsParks), listOf(fontCombos)},
    {Photos, "menuPhotos", "markerPictures", &PanelFlags::photosOpen, listOf(photosOpens), none,
        noWidgets},
    {Shadows, "menuShadows", "markerShadows", &PanelFlags::shadowsOpen, listOf(shadowsOpens), none,
        noWidgets},
    {Audio, "menuAudio", "markerAudio", &PanelFlags::audioOpen, listOf(audioOpens),
        listOf(audioParks), noWidgets},
    {GamePlay, "menuGamePlay", "markerExtra", &PanelFlags::gamePlayOpen, listOf(gamePlayOpens),
        none, listOf(gamePlaySpin)},
};

constexpr int tabCount = 10;
constexpr int wallpaperTab = 6; // labelTab6, page index 5

constexpr const char *tabActiveStyle
    = "border: 3px solid  qradialgradient( cx:  .5,    cy:  .5,    radius: .5,     fx:0.5,     "
      "fy:0.5,stop: 0 gold,      stop: 1 black);background-color: qlineargradient(x1: 0, y1: 0, "
      "x2: 0, y2: 1,stop: 0 gold,      stop: 1  black);font: 10pt 'MS Shell Dlg 2';";
constexpr const char *tabRedStyle
    = "border: none; background-color: rgb(170, 0, 0);  font: 10pt 'MS Shell Dlg 2';";
constexpr const char *tabBlueStyle
    = "border: none; background-color: blue;           font: 10pt 'MS Shell Dlg 2';";
constexpr const char *tabRedHoverStyle
    = "border: 3px solid purple; background-color: rgb(170, 0, 0);  font: 10pt 'MS Shell Dlg 2';";
constexpr const char *tabBlueHoverStyle
    = "border: 3px solid purple; background-color: blue;  font: 10pt 'MS Shell Dlg 2';";

constexpr const char *letterNumberOnShield = "color: white;   font: 10pt 'MS Shell Dlg 2';";
constexpr const char *letterNumberAtRest = "color: #6e6e6e;   font: 10pt 'MS Shell Dlg 2';";

// Everything on the main window that is not the keyboard. Names that no widget carries yet
// are passed over, so a later panel only has to add its widget to the form.
constexpr const char *nonVitals[] = {"shieldStart", "demo1", "demo2", "demo3", "demo4",
    "scoreboard", "labelScoreboard", "lcd", "correct", "incorrect", "labelIncorrect",
    "labelCorrect", "circleOne", "circleTwo", "circleThree", "circleFour", "circleFour_2", "Games",
    "Games_2", "Games_3", "reverse", "reverse_2", "forward", "pbReverseVowels_2",
    "pbRandomVowels_2", "pbForwardVowels_2", "vl1_8", "vl1_9", "vl1_10", "vl1_11", "vl1_13",
    "vl1_14", "startGame", "startGame_2", "startGame_3", "startGame_4", "start", "stop",
    "lineHighlight", "lineHighOptions", "lineScreen1", "lineScreen2", "soft", "strict",
    "displayStrict", "displaySoft", "hint", "goldenHighlight", "labelOptions",
    "labelKeyboardOptions", "options", "frameKeyShape", "keyShape", "checkNone", "checkRussian",
    "checkEnglish", "checkBoth", "rcNone", "rcRussian", "rcEnglish", "rcBoth", "rc11", "none",
    "russian2", "english", "both", "aKeysMap", "aKeysMap2", "aKeysMap3", "aKeysMap4", "aKeysMap5",
    "aKeysMapShift", "aKeysMapNormal", "aKeysMapText", "buttonInstructionsRight",
    "labelInstructionsRight", "helpButton", "labelInstructionsLeft", "buttonInstructionsLeft",
    "shieldNumberLine", "pbForwardNumberLine", "pbRandomNumberLine", "pbReverseNumberLine",
    "rNumberLinePlus", "rLowercase", "pbForwardVarious", "pbRandomVarious", "pbReverseVarious",
    "shieldVarious", "rUppercase", "shieldConsonants", "pbForwardConsonants", "pbRandomConsonants",
    "pbReverseConsonants", "rEverything", "shieldEverything", "pbForwardAll", "pbRandomAll",
    "pbReverseAll", "arrow1", "arrow2", "arrow3", "arrow6", "currentGame", "type", "direction",
    "typeOfGame", "animationOn", "animationOff", "display3", "display2", "piclabel1",
    "lettersDisplayed", "lettersDisplayed_10", "lettersDisplayed_11", "lettersDisplayed_12",
    "lettersDisplayed_13", "frame_37", "on", "off", "letterOfAlphabet2", "instructor",
    "GamePlayLabel", "gamePlayBg"};

// The menu's own band, arrows and texts, cleared as well when the wallpaper is to be seen.
constexpr const char *menuDressing[] = {"optionsArrow1", "optionsArrow2", "optionsArrow3",
    "optionsShield", "optionsText1", "optionsText2"};
constexpr const char *colorMadnessPanel[] = {"frameTabShield", "tabWidget"};

} // namespace optionscatalogue

#endif
