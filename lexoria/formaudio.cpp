#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *heading = "color: black; font: italic 10pt \"MS Shell Dlg 2\";";
constexpr const char *note = "color: black; font: 8pt \"MS Shell Dlg 2\";";
constexpr const char *speaker = "border-image: url(:/new/prefix1/playLabel.png);";
constexpr const char *folder = "border-image: url(:/new/prefix1/open.png);";
} // namespace

const WidgetRow audioFormRows[] = {
    // The panel of key-press sounds
    {Label, "label_266", "frameAudio", 82, 0, 278, 50, "",
        "border-image: url(:/new/prefix1/soundEffects.png);", "", 0},
    {Label, "label_267", "frameAudio", 4, 52, 408, 16, "Add sounds to keypress", heading, "",
        Center},
    {Frame, "frame_28", "frameAudio", 12, 78, 254, 182, "", "", "", 0},
    {RadioButton, "audioBark", "frame_28", 2, 4, 84, 20, "Dog Bark", "", "", 0},
    {RadioButton, "audioMeow", "frame_28", 2, 30, 84, 20, "Happy Cat", "", "", 0},
    {RadioButton, "audioQuack", "frame_28", 2, 56, 84, 20, "Quack", "", "", 0},
    {RadioButton, "audioPhoton", "frame_28", 2, 82, 84, 20, "Photon", "", "", 0},
    {RadioButton, "audioPhoton2", "frame_28", 2, 108, 64, 20, "Photon", "", "", 0},
    {Label, "label_9", "frame_28", 66, 108, 18, 20, "II", note, "", 0},
    {RadioButton, "audioWhistle", "frame_28", 2, 134, 84, 20, "Whistle", "", "", 0},
    {RadioButton, "audioBubble", "frame_28", 135, 4, 90, 20, "Bubble", "", "", 0},
    {RadioButton, "audioChime1", "frame_28", 135, 30, 90, 20, "Chime", "", "", 0},
    {RadioButton, "audioExplosion", "frame_28", 135, 56, 90, 20, "Explosion", "", "", 0},
    {RadioButton, "audioMinigun", "frame_28", 135, 82, 90, 20, "Minigun", "", "", 0},
    {RadioButton, "audioTypewriter", "frame_28", 135, 108, 90, 20, "Typewriter", "", "", 0},
    {RadioButton, "useUploadedAudio", "frame_28", 135, 134, 90, 20, "Uploaded", "", "", Disabled},
    {RadioButton, "audioNone", "frame_28", 116, 162, 60, 18, "None", "", "", Checked},
    {Label, "playBark", "frame_28", 86, 2, 24, 24, "", speaker, "", 0},
    {Label, "playMeow", "frame_28", 86, 28, 24, 24, "", speaker, "", 0},
    {Label, "playQuack", "frame_28", 86, 54, 24, 24, "", speaker, "", 0},
    {Label, "playPhoton", "frame_28", 86, 80, 24, 24, "", speaker, "", 0},
    {Label, "playPhoton2", "frame_28", 86, 106, 24, 24, "", speaker, "", 0},
    {Label, "playWhistle", "frame_28", 86, 132, 24, 24, "", speaker, "", 0},
    {Label, "playBubble", "frame_28", 226, 2, 24, 24, "", speaker, "", 0},
    {Label, "playChime1", "frame_28", 226, 28, 24, 24, "", speaker, "", 0},
    {Label, "playExplosion", "frame_28", 226, 54, 24, 24, "", speaker, "", 0},
    {Label, "playMinigun", "frame_28", 226, 80, 24, 24, "", speaker, "", 0},
    {Label, "playTypewriter", "frame_28", 226, 106, 24, 24, "", speaker, "", 0},
    {Label, "playUploadedAudio", "frameAudio", 392, 123, 24, 24, "", speaker, "", 0},
    {Label, "openFolderAudio", "frameAudio", 300, 118, 32, 28, "", folder, "", 0},
    {Label, "label_268", "frameAudio", 316, 147, 100, 16, "WAV format only", note, "", 0},
    // The legend: the speakers play when the mouse goes over them.
    {Label, "playChime1_2", "frameAudio", 324, 236, 24, 24, "", speaker, "", 0},
    {Label, "mouse_5", "frameAudio", 350, 236, 24, 24, "\u25c4", "color: black; font: 12pt;", "",
        Center},
    {Label, "mouse_11", "frameAudio", 378, 218, 32, 40, "",
        "border-image: url(:/new/prefix1/mouse2.png);", "", 0},
    // Moved over the panel when it opens; parked outside the window while it is closed.
    {PushButton, "openAudio", nullptr, 1500, 300, 54, 22, "Add", "", "", Hidden},

    // The pulse sound, on the gif side of the effects panel
    {PushButton, "openAudioPulse", nullptr, 1500, 115, 54, 22, "Add", "", "", 0},
    {Label, "openFolderAudio_2", "frameFinishedImages", 334, 9, 32, 28, "", folder, "", 0},
    {Label, "playUploadedAudioPulse", "frameFinishedImages", 432, 11, 24, 24, "", speaker, "", 0},
    {CheckBox, "applyAudioToPulse", "frameFinishedImages", 340, 38, 100, 17, "Apply audio", "", "",
        Disabled},
    {Label, "label_272", "frameFinishedImages", 340, 56, 100, 16, "WAV format only", note, "", 0},
};

const std::size_t audioFormRowCount = sizeof(audioFormRows) / sizeof(audioFormRows[0]);

} // namespace formtable
