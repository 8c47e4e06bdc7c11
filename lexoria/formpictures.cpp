#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *heading = "color: black; font: italic 10pt \"MS Shell Dlg 2\";";
constexpr const char *caption = "color: black; font: 8pt \"MS Shell Dlg 2\";";
constexpr const char *radio = "color: black; font: 8pt \"MS Shell Dlg 2\";";
constexpr const char *plainLine = "border: 1px solid black;";
constexpr const char *folder = "background-color: transparent;";
constexpr const char *dialCell = "border: 1px solid black; border-radius: 0px;";
} // namespace

// The pictures panel: the supplied gifs and their four targets come from the effects table;
// here are the player's own pictures, the sizes and the wallpaper's picture. The buttons are
// children of the central widget, as the options menu moves them over the panel when it opens.
const WidgetRow picturesFormRows[] = {
    {Label, "captionDisplayKeys", "pictureTargets", 0, 62, 62, 14, "Keys", caption, "", Center},
    {Label, "captionDisplayKeypress", "pictureTargets", 70, 62, 62, 14, "Keypress", caption, "",
        Center},
    {Label, "captionDisplayHighlight", "pictureTargets", 140, 62, 62, 14, "Highlight", caption, "",
        Center},
    {Label, "captionDisplayMouseover", "pictureTargets", 210, 62, 62, 14, "Mouseover", caption, "",
        Center},

    {Label, "headingOwnPictures", "framePhotos", 356, 78, 260, 16, "Your own picture or gif",
        heading, "", 0},
    {Label, "openFolderKeys", "framePhotos", 358, 95, 26, 26, "", folder, "", ScaledContents},
    {Label, "openFolderKeypress", "framePhotos", 358, 134, 26, 26, "", folder, "", ScaledContents},
    {Label, "openFolderHighlight", "framePhotos", 358, 185, 26, 26, "", folder, "", ScaledContents},
    {Label, "openFolderMouseover", "framePhotos", 358, 222, 26, 26, "", folder, "", ScaledContents},
    {Label, "radioLineKeys_2", "framePhotos", 387, 97, 4, 22, "", plainLine, "", Hidden},
    {Label, "radioLineKeypress_2", "framePhotos", 387, 136, 4, 22, "", plainLine, "", Hidden},
    {Label, "radioLineHighlight_2", "framePhotos", 387, 187, 4, 22, "", plainLine, "", Hidden},
    {Label, "radioLineMouseover_2", "framePhotos", 387, 224, 4, 22, "", plainLine, "", Hidden},
    {Label, "captionOwnKeys", "framePhotos", 546, 99, 84, 18, "Keys at rest", caption, "", 0},
    {Label, "captionOwnKeypress", "framePhotos", 546, 138, 84, 18, "Keypress", caption, "", 0},
    {Label, "captionOwnHighlight", "framePhotos", 546, 189, 84, 18, "Highlight", caption, "", 0},
    {Label, "captionOwnMouseover", "framePhotos", 546, 226, 84, 18, "Mouseover", caption, "", 0},
    {Label, "labelGifWarning", "framePhotos", 394, 248, 200, 13, "Note: Not every gif works",
        caption, "", 0},
    {PushButton, "openImageKeys", nullptr, 2794, 97, 84, 22, "Open", "", "", Hidden},
    {PushButton, "clearKeysImage", nullptr, 2882, 97, 58, 22, "Clear", "", "", Hidden},
    {PushButton, "openImageKeypress", nullptr, 2794, 136, 84, 22, "Open", "", "", Hidden},
    {PushButton, "clearKeypressImage", nullptr, 2882, 136, 58, 22, "Clear", "", "", Hidden},
    {PushButton, "openImageHighlight", nullptr, 2794, 187, 84, 22, "Open", "", "", Hidden},
    {PushButton, "clearHighlightImage", nullptr, 2882, 187, 58, 22, "Clear", "", "", Hidden},
    {PushButton, "openImageMouseover", nullptr, 2794, 224, 84, 22, "Open", "", "", Hidden},
    {PushButton, "clearMouseoverImage", nullptr, 2882, 224, 58, 22, "Clear", "", "", Hidden},

    {Label, "labelAllKeysSize", "framePhotos", 640, 80, 100, 16, "All keys", heading, "", 0},
    {Frame, "frameKeysSize", "framePhotos", 636, 96, 110, 44, "", "", "", 0},
    {RadioButton, "normalSize", "frameKeysSize", 4, 2, 100, 18, "Normal Size", radio, "", 0},
    {RadioButton, "setToFit", "frameKeysSize", 4, 22, 100, 18, "Shrink to Fit", radio, "", Checked},
    {Label, "labelNonUsedKeysSize", "framePhotos", 640, 148, 110, 16, "Non-used Keys", heading, "",
        0},
    {Frame, "frameGifSize", "framePhotos", 636, 164, 110, 44, "", "", "", 0},
    {RadioButton, "normalGif", "frameGifSize", 4, 2, 100, 18, "Normal Size", radio, "", Checked},
    {RadioButton, "expandGif", "frameGifSize", 4, 22, 100, 18, "Fill Size", radio, "", 0},

    // The wallpaper's picture, beside the key pictures on the same panel.
    {Frame, "framePhotosMain", nullptr, 3156, 74, 300, 186, "",
        "QFrame#framePhotosMain{ background-color: white; border: 1px solid black; "
        "border-radius: 15px; }",
        "", Hidden},
    {Label, "headingPhotosMain", "framePhotosMain", 10, 6, 200, 18, "Wallpaper picture", heading,
        "", 0},
    {Label, "openFolderMain", "framePhotosMain", 10, 31, 26, 26, "", folder, "", ScaledContents},
    {Label, "radioLineMain", "framePhotosMain", 44, 56, 112, 3, "", plainLine, "", 0},
    {Frame, "frameRepeat", "framePhotosMain", 8, 66, 100, 44, "", "", "", 0},
    {RadioButton, "repeatYes", "frameRepeat", 2, 2, 96, 18, "Repeat", radio, "", 0},
    {RadioButton, "repeatNo", "frameRepeat", 2, 22, 96, 18, "No repeat", radio, "", Checked},
    {Label, "labelStretch", "framePhotosMain", 10, 116, 100, 16, "Stretch to Fit", heading, "", 0},
    {Frame, "frameStretch", "framePhotosMain", 8, 132, 100, 44, "", "", "", 0},
    {RadioButton, "stretchYes", "frameStretch", 2, 2, 96, 18, "Yes", radio, "", 0},
    {RadioButton, "stretchNo", "frameStretch", 2, 22, 96, 18, "No", radio, "", Checked},
    {Label, "labelAlignment", "framePhotosMain", 120, 100, 76, 32, "Where,\nif no repeat", caption,
        "", 0},
    {Frame, "frame_4", "framePhotosMain", 200, 98, 90, 84, "", "", "", 0},
    {RadioButton, "leftTop", "frame_4", 0, 0, 16, 16, "", "", "", Hidden | Checked},
    {RadioButton, "middleTop", "frame_4", 0, 0, 16, 16, "", "", "", Hidden},
    {RadioButton, "rightTop", "frame_4", 0, 0, 16, 16, "", "", "", Hidden},
    {RadioButton, "alignLeft", "frame_4", 0, 0, 16, 16, "", "", "", Hidden},
    {RadioButton, "alignCenter", "frame_4", 0, 0, 16, 16, "", "", "", Hidden},
    {RadioButton, "alignRight", "frame_4", 0, 0, 16, 16, "", "", "", Hidden},
    {RadioButton, "leftBottom", "frame_4", 0, 0, 16, 16, "", "", "", Hidden},
    {RadioButton, "middleBottom", "frame_4", 0, 0, 16, 16, "", "", "", Hidden},
    {RadioButton, "rightBottom", "frame_4", 0, 0, 16, 16, "", "", "", Hidden},
    {Label, "leftTop_2", "frame_4", 0, 0, 28, 28, "", dialCell, "", ScaledContents},
    {Label, "middleTop_2", "frame_4", 30, 0, 28, 28, "", dialCell, "", ScaledContents},
    {Label, "rightTop_2", "frame_4", 60, 0, 28, 28, "", dialCell, "", ScaledContents},
    {Label, "alignLeft_2", "frame_4", 0, 28, 28, 28, "", dialCell, "", ScaledContents},
    {Label, "alignCenter_2", "frame_4", 30, 28, 28, 28, "", dialCell, "", ScaledContents},
    {Label, "alignRight_2", "frame_4", 60, 28, 28, 28, "", dialCell, "", ScaledContents},
    {Label, "leftBottom_2", "frame_4", 0, 56, 28, 28, "", dialCell, "", ScaledContents},
    {Label, "middleBottom_2", "frame_4", 30, 56, 28, 28, "", dialCell, "", ScaledContents},
    {Label, "rightBottom_2", "frame_4", 60, 56, 28, 28, "", dialCell, "", ScaledContents},
    {PushButton, "openImageMain", nullptr, 3200, 106, 54, 22, "Open", "", "", Hidden},
    {PushButton, "clearMainImage", nullptr, 3258, 106, 54, 22, "Clear", "", "", Hidden},
    {CheckBox, "xRayVision", nullptr, 3383, 148, 72, 20, "X-Ray", radio,
        "Hides the panels to show the wallpaper", Hidden},
};
const std::size_t picturesFormRowCount = sizeof(picturesFormRows) / sizeof(picturesFormRows[0]);

} // namespace formtable
