#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *white = "background-color: white;";
constexpr const char *heading = "color: black; font: italic 10pt \"MS Shell Dlg 2\";";
constexpr const char *caption = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *radio = "color: black; font: 8pt \"MS Shell Dlg 2\";";
constexpr const char *menuLabel = "color: black; font: italic 9pt \"MS Shell Dlg 2\";";
constexpr const char *marker = "color: green; font: 24pt \"Wingdings 2\";";
constexpr const char *greyedAccess
    = "background-color: transparent;font: italic 8pt 'MS Shell Dlg 2'; color:  #6e6e6e";
constexpr const char *kittyTip = "Centipede cat or \"Centicat\"";
} // namespace

const WidgetRow effectsFormRows[] = {
    {Label, "imgVorticKeyboard", "frameVorticKeyboard", 151, -2, 381, 65, "", "", "",
        ScaledContents},
    {Label, "label_221", "frameVorticKeyboard", 154, 58, 216, 16,
        "After a Key has been located effects.", heading, "", 0},
    {Label, "label_237", "frameVorticKeyboard", 400, 58, 154, 16, "One effect per game.", heading,
        "", 0},
    {Label, "label_225", "frameVorticKeyboard", 14, 76, 284, 16,
        "Picture appears for a second and key disappears", heading, "", 0},
    {Label, "label_226", "frameVorticKeyboard", 482, 76, 64, 16, "Key fades", heading, "", 0},

    // The fade side: the fades take hold at the next correct entry
    {Frame, "frameFade", "frameVorticKeyboard", 474, 94, 206, 165, "", white, "", 0},
    {RadioButton, "fadeOut", "frameFade", 6, 6, 83, 17, "Fade Out", radio, "", 0},
    {RadioButton, "fadeOutIn", "frameFade", 6, 32, 83, 17, "Fade Out/In", radio, "", 0},
    {Label, "label_227", "frameFade", 28, 52, 102, 16, "If using Box Shadow", radio, "", 0},
    {CheckBox, "shadow3dOn", "frameFade", 32, 76, 110, 16, "Show Box Shadow", radio, "", Checked},
    {Label, "label_228", "frameFade", 48, 92, 111, 38,
        "Warning!\nUnchecking this could\nlead to madness.", radio, "", 0},
    {RadioButton, "effectNone", "frameFade", 6, 130, 51, 16, "None", radio, "", Checked},
    {Label, "label_236", "frameFade", 16, 148, 192, 14, "Fade Out does not work with Random", radio,
        "", 0},
    {Label, "tnFadeExample", "frameVorticKeyboard", 610, 112, 54, 54, " A    Ф ",
        "background-color: black; color: white; border-radius: 10px; font: 12pt \"arial "
        "unicode ms\";",
        "", TopLeft},
    {Label, "tnFadeExample_2", "frameVorticKeyboard", 610, 112, 54, 54, "ф ",
        "background-color: transparent; color: white; font: 14pt \"arial unicode ms\";", "",
        BottomRight},

    // The gif side: a choice is loaded into the pulse movies when the options close
    {Frame, "frameFinishedImages", "frameVorticKeyboard", 3, 94, 470, 165, "", white, "", 0},
    {Label, "label_321", "frameFinishedImages", 154, 8, 149, 16, "With Random, keys reappear",
        radio, "", 0},
    {Frame, "frame_18", "frameFinishedImages", 34, 8, 106, 152, "", "", "", 0},
    {RadioButton, "angryE", "frame_18", 0, 0, 106, 20, "Angry Emoticon", radio, "", 0},
    {RadioButton, "birdsdancing", "frame_18", 0, 28, 106, 20, "Birds Dancing", radio, "", 0},
    {RadioButton, "butterfly", "frame_18", 0, 56, 106, 20, "Butterfly", radio, "", 0},
    {RadioButton, "explosion", "frame_18", 0, 84, 106, 20, "Fire Ball", radio, "", 0},
    {RadioButton, "useUploaded", "frame_18", 0, 110, 106, 20, "Use Uploaded", radio, "", Disabled},
    {RadioButton, "finishedNone", "frame_18", 0, 134, 106, 18, "None", radio, "", Checked},
    {Label, "tnAngryE", "frameFinishedImages", 7, 4, 25, 25, "", "", "", ScaledContents},
    {Label, "tnBirdsDancing", "frameFinishedImages", 7, 32, 25, 25, "", "", "", ScaledContents},
    {Label, "tnButterfly", "frameFinishedImages", 7, 60, 25, 25, "", "", "", ScaledContents},
    {Label, "tnExplode", "frameFinishedImages", 7, 88, 25, 25, "", "", "", ScaledContents},
    {Label, "openFolderMain_2", "frameFinishedImages", 154, 33, 25, 25, "", "", "", ScaledContents},
    {Label, "label_322", "frameFinishedImages", 192, 60, 86, 16, "GIF format only", radio, "", 0},
    {Label, "label_223", "frameFinishedImages", 150, 74, 101, 18, "Uploaded Image", caption, "", 0},
    {Label, "tnCurrentImage", "frameFinishedImages", 172, 92, 54, 54, "",
        "background-color: white;border:   1px solid #6e6e6e;", "", Center},
    {Label, "label_229", "frameFinishedImages", 150, 148, 133, 16, "Note: Not every gif works",
        radio, "", 0},
    {Label, "label_222", "frameFinishedImages", 260, 74, 97, 16, "Gif Speed", caption, "", 0},
    {Frame, "frame_16", "frameFinishedImages", 256, 90, 97, 58, "", "", "", 0},
    {RadioButton, "speed1", "frame_16", 4, 2, 92, 18, "Normal Speed", radio, "", Checked},
    {RadioButton, "speed2", "frame_16", 4, 20, 92, 18, "Medium Speed", radio, "", 0},
    {RadioButton, "speed3", "frame_16", 4, 38, 92, 18, "Fast Speed", radio, "", 0},
    {Label, "label_235", "frameFinishedImages", 366, 74, 60, 16, "Size", caption, "", 0},
    {Frame, "frame_17", "frameFinishedImages", 362, 92, 94, 48, "", "", "", 0},
    {RadioButton, "normalSizeEK", "frame_17", 4, 4, 88, 18, "Normal Size", radio, "", 0},
    {RadioButton, "setToFitEK", "frame_17", 4, 26, 88, 18, "Shrink to Fit", radio, "", Checked},

    // Children of the central widget so that they can stay above the panel's frames; they are
    // moved over the panel when it opens.
    {PushButton, "openImageFinished", nullptr, 1692, 437, 54, 22, "Add ", "", "", Hidden},
    {PushButton, "clearVorticKeyboardImage", nullptr, 1750, 437, 54, 22, "Clear", "", "", Hidden},

    // The supplied gifs for key pictures and the four places they can go, on the pictures panel.
    {Frame, "frameGifs", "framePhotos", 12, 80, 300, 106, "", white, "", 0},
    {RadioButton, "radioSwirl", "frameGifs", 34, 4, 80, 18, "Swirl ", radio, "", 0},
    {RadioButton, "radioKittyWalk", "frameGifs", 34, 30, 80, 18, "Cat Walk", radio, kittyTip, 0},
    {RadioButton, "radioPulsingLight", "frameGifs", 34, 56, 80, 18, "Pulsing", radio, "", 0},
    {RadioButton, "radioSnow", "frameGifs", 34, 82, 80, 18, "Snow", radio, "", 0},
    {RadioButton, "radioRain", "frameGifs", 174, 4, 80, 18, "Rain", radio, "", 0},
    {RadioButton, "radioSheep", "frameGifs", 174, 30, 80, 18, "Sheep", radio, "Sheep !!!", 0},
    {RadioButton, "radioMarbleTransparent", "frameGifs", 174, 56, 80, 18, "Marble", radio, "", 0},
    {RadioButton, "radioSnowFall", "frameGifs", 174, 82, 80, 18, "Snowfall", radio, "", 0},
    {RadioButton, "radioNone", "frameGifs", 254, 4, 44, 18, "None", radio, "", Checked},
    {Label, "tnSwirl1", "frameGifs", 4, 0, 25, 25, "", "", "", ScaledContents},
    {Label, "tnKittyWalk", "frameGifs", 4, 26, 25, 25, "", "", kittyTip, ScaledContents},
    {Label, "tnPulsingLight", "frameGifs", 4, 52, 25, 25, "", "", "", ScaledContents},
    {Label, "tnSnow", "frameGifs", 4, 78, 25, 25, "", "", "", ScaledContents},
    {Label, "tnRain", "frameGifs", 144, 0, 25, 25, "", "", "", ScaledContents},
    {Label, "tnSheep", "frameGifs", 144, 26, 25, 25, "", "", "Sheep !!!", ScaledContents},
    {Label, "tnMarbleTransparent", "frameGifs", 144, 52, 25, 25, "", "", "", ScaledContents},
    {Label, "tnSnowFall", "frameGifs", 144, 78, 25, 25, "", "", "", ScaledContents},
    {Widget, "pictureTargets", "framePhotos", 40, 186, 280, 76, "", "", "", 0},
    {RadioButton, "radioKeys", "pictureTargets", 0, 0, 20, 20, "", "", "", Hidden | Checked},
    {RadioButton, "radioKeypress", "pictureTargets", 0, 0, 20, 20, "", "", "", Hidden},
    {RadioButton, "radioHighlight", "pictureTargets", 0, 0, 20, 20, "", "", "", Hidden},
    {RadioButton, "radioMouseover", "pictureTargets", 0, 0, 20, 20, "", "", "", Hidden},
    {Label, "displayKeys", "pictureTargets", 4, 4, 54, 54, "", "border: 1px solid blue;", "", 0},
    {Label, "displayKeypress", "pictureTargets", 74, 4, 54, 54, "", "border: 1px solid black;", "",
        0},
    {Label, "displayHighlight", "pictureTargets", 144, 4, 54, 54, "", "border: 1px solid black;",
        "", 0},
    {Label, "displayMouseover", "pictureTargets", 214, 4, 54, 54, "", "border: 1px solid black;",
        "", 0},
    {Label, "radioLineKeys", "pictureTargets", 2, 59, 58, 3, "", "border: 1px solid blue;", "", 0},
    {Label, "radioLineKeypress", "pictureTargets", 72, 59, 58, 3, "", "border: 1px solid black;",
        "", Hidden},
    {Label, "radioLineHighlight", "pictureTargets", 142, 59, 58, 3, "", "border: 1px solid black;",
        "", Hidden},
    {Label, "radioLineMouseover", "pictureTargets", 212, 59, 58, 3, "", "border: 1px solid black;",
        "", Hidden},
};
const std::size_t effectsFormRowCount = sizeof(effectsFormRows) / sizeof(effectsFormRows[0]);

} // namespace formtable
