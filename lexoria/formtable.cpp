#include "lexoria/formtable.h"

namespace formtable {

namespace {
constexpr const char *caption = "color: black; font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *heading = "color: black; font: 12pt \"MS Shell Dlg 2\";";
constexpr const char *panel = "background-color: rgb(236, 236, 236); border: 1px solid #6e6e6e;";
constexpr const char *circle = "background-color: rgb(0, 94, 0); color: white; border-radius: 14px;"
                               " font: bold 14pt \"MS Shell Dlg 2\";";
constexpr const char *instructorWords = "font: 10pt \"MS Shell Dlg 2\"; color: #6e6e6e;"
                                        " background-color: white;";
constexpr const char *checkMark = "color: rgb(0, 0, 255); font: 9pt \"MS Shell Dlg 2\";";
constexpr const char *pane = "color: black; font: 8pt \"MS Shell Dlg 2\";";
constexpr const char *small = "color: black; font: 7pt \"MS Shell Dlg 2\";";
constexpr const char *randomTip = "Random order\nStops when there are 200 correct entries";
} // namespace

// The singletons of the main window. The keyboard and the alphabet bar are not here: they
// are made by loops over the key catalogue.
const WidgetRow mainFormRows[] = {
    {Label, "wallpaper", nullptr, 0, 0, 1211, 695, "", "", "", 0},

    // Scoreboard and clock
    {Label, "labelScoreboard", nullptr, 4, 16, 179, 192, "", panel, "", 0},
    {Label, "scoreboard", nullptr, 22, 6, 141, 21, "Scoreboard", heading, "", Center},
    {Lcd, "lcd", nullptr, 52, 40, 71, 41, "", "", "", 0},
    {Frame, "frame_7", nullptr, 26, 84, 133, 23, "", "", "", 0},
    {RadioButton, "off", "frame_7", 14, 1, 47, 17, "Off", "", "", 0},
    {RadioButton, "on", "frame_7", 80, 1, 43, 17, "On", "", "", 0},
    {Label, "correct", nullptr, 18, 126, 59, 16, "Correct", caption, "", 0},
    {Label, "incorrect", nullptr, 100, 124, 71, 16, "Incorrect", caption, "", 0},
    {Label, "labelCorrect", nullptr, 16, 146, 60, 51, "", "", "", Center},
    {Label, "labelIncorrect", nullptr, 110, 146, 60, 51, "", "", "", Center},

    // Game selection
    {Label, "rEverything", nullptr, 4, 230, 150, 20, "Everything !!", "", "", 0},
    {PushButton, "pbReverseAll", nullptr, 24, 249, 30, 25, "Z", "",
        "Number Line Plus+,  Uppercase, then Lowercase\nReverse direction", 0},
    {PushButton, "pbRandomAll", nullptr, 52, 249, 50, 25, "sq", "", randomTip, 0},
    {PushButton, "pbForwardAll", nullptr, 100, 249, 30, 25, "[", "",
        "Lowercase, Uppercase, then Number Line Plus+\nForward direction", 0},
    {Label, "rUppercase", nullptr, 4, 298, 150, 20, "Uppercase", "", "", 0},
    {PushButton, "pbReverseConsonants", nullptr, 26, 318, 30, 25, "Z", "", "Reverse order", 0},
    {PushButton, "pbRandomConsonants", nullptr, 54, 318, 50, 25, "sq", "", randomTip, 0},
    {PushButton, "pbForwardConsonants", nullptr, 102, 318, 30, 25, "[", "", "Forward order", 0},
    {Label, "rLowercase", nullptr, 4, 374, 150, 20, "Lowercase", "", "", 0},
    {PushButton, "pbReverseVarious", nullptr, 26, 394, 30, 25, "Z", "", "Reverse order", 0},
    {PushButton, "pbRandomVarious", nullptr, 54, 394, 50, 25, "sq", "", randomTip, 0},
    {PushButton, "pbForwardVarious", nullptr, 102, 394, 30, 25, "[", "", "Forward order", 0},
    {Label, "rNumberLinePlus", nullptr, 4, 454, 180, 20, "Number Line Plus+", "", "", 0},
    {PushButton, "pbReverseNumberLine", nullptr, 26, 474, 30, 25, "Z", "",
        "Number line plus special characters\nReverse order", 0},
    {PushButton, "pbRandomNumberLine", nullptr, 54, 474, 50, 25, "sq", "",
        "Number line plus special characters\nRandom order\nStops when there are 200 correct "
        "entries",
        0},
    {PushButton, "pbForwardNumberLine", nullptr, 102, 474, 30, 25, "[", "",
        "Number line plus special characters\nForward order", 0},

    {Label, "currentGame", nullptr, 202, 140, 147, 21, "Current Game", heading, "", 0},
    {Label, "type", nullptr, 202, 168, 123, 18, "", caption, "", 0},
    {Label, "direction", nullptr, 202, 192, 107, 18, "", caption, "", 0},
    {Label, "typeOfGame", nullptr, 202, 216, 85, 28, "", heading, "", 0},
    {PushButton, "animationOn", nullptr, 352, 229, 30, 20, "On", "", "Enables animation",
        Checkable},
    {PushButton, "animationOff", nullptr, 390, 229, 30, 20, "Off", "", "Disables animation",
        Checkable},

    // The banner of steps above the play area
    {Label, "circleOne", nullptr, 192, 8, 28, 28, "1", circle, "", Center},
    {Label, "Games", nullptr, 224, 4, 60, 34, "Select\nGame", caption, "", 0},
    {Label, "Games_2", nullptr, 284, 4, 50, 34, "from\nbelow", caption, "", 0},
    {Label, "Games_3", nullptr, 334, 4, 60, 34, " on the\nleft", caption, "", 0},
    {Label, "reverse", nullptr, 202, 59, 50, 20, "Reverse", caption, "", Center},
    {Label, "reverse_2", nullptr, 252, 59, 50, 20, "Random", caption, "", Center},
    {Label, "forward", nullptr, 302, 59, 50, 20, "Forward", caption, "", Center},
    {PushButton, "pbReverseVowels_2", nullptr, 212, 82, 30, 25, "Z", "", "", 0},
    {PushButton, "pbRandomVowels_2", nullptr, 252, 82, 50, 25, "sq", "", "", 0},
    {PushButton, "pbForwardVowels_2", nullptr, 312, 82, 30, 25, "[", "", "", 0},
    {Label, "circleTwo", nullptr, 444, 10, 28, 28, "2", circle, "", Center},
    {Label, "startGame", nullptr, 476, 6, 60, 40, "Start\nGame", caption, "", 0},
    {Label, "circleThree", nullptr, 640, 10, 28, 28, "3", circle, "", Center},
    {Label, "startGame_2", nullptr, 672, 16, 80, 20, "Difficulty", caption, "", 0},
    {Label, "circleFour", nullptr, 860, 10, 28, 28, "4", circle, "", Center},
    {Label, "startGame_3", nullptr, 892, 2, 50, 50, "Can't\nfind\nit?", caption, "", 0},

    // Start, stop and difficulty
    {PushButton, "start", nullptr, 444, 72, 71, 35, "Start",
        "font-size: 16pt; font-family: 'MS Shell Dlg 2'; color: black;",
        "Starts game\nDisables animation", 0},
    {PushButton, "stop", nullptr, 520, 72, 71, 35, "Stop",
        "font-size: 16pt; font-family: 'MS Shell Dlg 2';  color: maroon;",
        "Stops game\nEnables animation", 0},
    {PushButton, "soft", nullptr, 760, 9, 60, 21, "Soft", "",
        "Changes difficulty to Soft.\nEntry is made after space bar is pressed.\nBest for "
        "beginners.",
        Checkable},
    {PushButton, "strict", nullptr, 760, 33, 60, 19, "Strict", "",
        "Strict difficulty.\nEntry is made after any key is pressed.\nBest for more advanced "
        "users.",
        Checkable},
    {Label, "displaySoft", nullptr, 653, 60, 175, 43,
        "  Soft difficulty:\n     Use your computer's\n     spacebar for entry.", caption, "", 0},
    {Label, "displayStrict", nullptr, 653, 60, 175, 43,
        "  Strict difficulty:\n     Entry made afer any \n     key is pressed. Be careful.",
        caption, "", 0},

    // The play area
    {Label, "gamePlayBg", nullptr, 472, 136, 228, 114, "",
        "background-color: rgb(236, 236, 236); border: 1px solid #6e6e6e; border-radius: 15px;", "",
        0},
    {Label, "GamePlayLabel", nullptr, 522, 124, 121, 21, "Game Play",
        "color: black; background-color: white; font: 11pt \"MS Shell Dlg 2\";", "", Center},
    {Label, "matchThisBg", nullptr, 486, 150, 80, 20, "", "", "", 0},
    {Label, "yourEntryBg", nullptr, 610, 150, 80, 20, "", "", "", 0},
    {Label, "matchThis", nullptr, 486, 150, 80, 20, "Match This",
        "background-color: transparent;  color: black;  font: 12pt 'MS Shell Dlg 2';", "", Center},
    {Label, "yourEntry", nullptr, 610, 150, 80, 20, "Your Entry",
        "background-color: transparent;  color: black;  font: 12pt 'MS Shell Dlg 2';", "", Center},
    {Label, "leMatchBg", nullptr, 496, 174, 61, 61, "",
        "border-radius: 10px;background-color: white; border: 1px solid #6e6e6e;", "", 0},
    {Label, "leUserBg", nullptr, 620, 174, 61, 61, "",
        "border-radius: 10px;background-color: white; border: 1px solid #6e6e6e;", "", 0},
    {LineEdit, "leMatch", nullptr, 496, 174, 61, 61, "", "", "", Disabled | Center},
    {LineEdit, "leUser", nullptr, 620, 174, 61, 61, "", "", "", Disabled | Center},

    // The virtual instructor
    {Label, "display2", nullptr, 712, 140, 134, 92, "", instructorWords, "", 0},
    {Label, "display3", nullptr, 712, 140, 134, 86, "Привет. Hello. \nI am your \ninstructor.",
        instructorWords, "", Center},
    {Label, "piclabel1", nullptr, 850, 130, 144, 115, "", "", "Virtual instructor", ScaledContents},
    {Label, "mes1", nullptr, 10, 750, 120, 20, "\"The A and Ф  (f) \nhave switched\nplaces.\"", "",
        "", 0},
    {Label, "mes2", nullptr, 140, 750, 120, 20,
        "The two dots are\ncalled a ‘diacritic’ in\nCyrillic, while others\ncall it an ‘umlaut’",
        "", "", 0},
    {Label, "mes3", nullptr, 270, 755, 120, 20,
        "This letter in one of\nthe many with the\nsame pronunciation in\nboth languages ", "", "",
        0},
    {Label, "mes4", nullptr, 400, 755, 120, 20,
        "The п, and the ones\nadjoining it, are also\nnext to each other on\nthe keyboard, but in\n"
        "different order",
        "", "", 0},
    {Label, "mes5", nullptr, 530, 760, 120, 20,
        "Same key position on\nboth languages, as well\nas the same numbering\nposition:  S meet C",
        "", "", 0},
    {Label, "mes6", nullptr, 660, 760, 120, 20, "One of the three 'b's", "", "", 0},
    {Label, "mes7", nullptr, 790, 765, 120, 20,
        "The last letter, in both\nlanguages, ends on\nthe same key", "", "", 0},
    {Label, "mes8", nullptr, 920, 765, 120, 20,
        "Tap this key twice to\nget the opening and\nclosing: «  »", "", "", 0},
    {Label, "mes9", nullptr, 1050, 770, 120, 20,
        "The . and , are on top\nof eacher, while other\nkeyboards have them\nnext to each other",
        "", "", 0},

    // Keyboard options
    {Label, "labelOptions", nullptr, 1000, 14, 209, 243, "", panel, "", 0},
    {Label, "lettersDisplayed", nullptr, 1000, 128, 203, 16, " Letters Displayed", caption, "", 0},
    {Label, "rcNone", nullptr, 1006, 158, 28, 28, "", "background-color: black;",
        "Hides English and Russian characters", 0},
    {Label, "rcRussian", nullptr, 1060, 158, 28, 28, "Я ", "", "Displays Russian characters",
        TopRight},
    {Label, "rcEnglish", nullptr, 1120, 158, 28, 28, " Z", "", "Displays English characters",
        TopLeft},
    {Label, "rc11", nullptr, 1172, 158, 28, 28, "Я ", "", "", TopRight},
    {Label, "rcBoth", nullptr, 1172, 158, 28, 28, " Z", "",
        "Displays English and Russian characters", TopLeft},
    {Label, "none", nullptr, 998, 186, 42, 15, "None", caption, "", Center},
    {Label, "russian2", nullptr, 1042, 186, 66, 15, "Russian", caption, "", Center},
    {Label, "english", nullptr, 1110, 186, 48, 15, "English", caption, "", Center},
    {Label, "both", nullptr, 1168, 186, 37, 15, "Both", caption, "", Center},
    {Label, "checkNone", nullptr, 1014, 144, 14, 16, "√", checkMark, "", 0},
    {Label, "checkRussian", nullptr, 1068, 144, 14, 16, "√", checkMark, "", 0},
    {Label, "checkEnglish", nullptr, 1128, 144, 14, 16, "√", checkMark, "", 0},
    {Label, "checkBoth", nullptr, 1180, 144, 14, 16, "√", checkMark, "", 0},
    {Frame, "frame_37", nullptr, 1004, 200, 200, 50, "", "", "", 0},
    {Label, "lettersDisplayed_13", "frame_37", 6, 2, 64, 16, "Keypress", caption, "", 0},
    {Label, "lettersDisplayed_12", "frame_37", 70, 2, 90, 16, "Color Timer", caption, "", 0},
    {RadioButton, "keyConstant", "frame_37", 4, 24, 104, 20, "Constant", "", "", Checked},
    {RadioButton, "keyFlash", "frame_37", 112, 24, 80, 20, "Flash", "", "", 0},
    {Label, "letterOfAlphabet2", nullptr, 714, 232, 141, 23, "",
        "font: 10pt \"MS Shell Dlg 2\"; color: #6e6e6e;", "", 0},

    // A key's map: a sample key that tells where the characters of a key sit
    {Label, "aKeysMap5", nullptr, 1111, 404, 54, 54, "", "", "", 0},
    {Label, "aKeysMap2", nullptr, 1111, 404, 54, 54, "Я ",
        "color: white; font: 13.5pt \"arial unicode ms\";", "", TopRight},
    {Label, "aKeysMap3", nullptr, 1111, 404, 54, 54, "я ",
        "color: white; font: 14pt \"arial unicode ms\";", "", BottomRight},
    {Label, "aKeysMap4", nullptr, 1111, 402, 54, 54, " Z", "color: white; font: 20px \"Calibri\";",
        "", TopLeft},
    {Label, "aKeysMapShift", nullptr, 1172, 406, 35, 13, "Shift", small, "", 0},
    {Label, "aKeysMapNormal", nullptr, 1172, 437, 35, 13, "Normal", small, "", 0},
    {Label, "aKeysMapText", nullptr, 1110, 455, 61, 16, "A key's map", small, "", 0},
    {PushButton, "aKeysMap", nullptr, 1164, 379, 41, 16, "<", "", "Hides \"A key's map\"", 0},

    // Instruction panes beside the keyboard
    {Label, "labelInstructionsLeft", nullptr, 6, 546, 89, 101,
        "Keyboard entry\nlights up\nkeyboard &\nAlphabet Bar.", pane, "", 0},
    {PushButton, "buttonInstructionsLeft", nullptr, 10, 522, 41, 16, "<", "", "Hides instructions",
        0},
    {Label, "labelInstructionsRight", nullptr, 1110, 528, 95, 117,
        "Mouse over\nRussian\nAlphabet Bar\nor keyboard to\nfind its match", pane, "", 0},
    {PushButton, "buttonInstructionsRight", nullptr, 1164, 512, 41, 16, "<", "",
        "Hides insturctions", 0},

    // Frame buttons
    {PushButton, "pbQuit", nullptr, 2, 662, 46, 30, "X", "", "", 0},
    {PushButton, "helpButton", nullptr, 1120, 660, 88, 32, "Help", "", "", 0},
    {PushButton, "hideNonVitals", nullptr, 1004, 674, 44, 18, "Hide", "",
        "Hides parts of display not vital to game play", Checkable},

    // State the player never sees: the selected game and the captions of the games
    {GroupBox, "groupBox", nullptr, 1300, 360, 120, 90, "", "", "", 0},
    {RadioButton, "rbForward_2", "groupBox", 5, 20, 100, 20, "Forward", "", "", 0},
    {RadioButton, "rbReverse_2", "groupBox", 5, 40, 100, 20, "Reverse", "", "", 0},
    {RadioButton, "rbRandom_2", "groupBox", 5, 60, 100, 20, "Random", "", "", 0},
    {GroupBox, "letCharBoth", nullptr, 1430, 360, 130, 110, "", "", "", 0},
    {RadioButton, "rbAll", "letCharBoth", 5, 20, 110, 20, "Everything", "", "", 0},
    {RadioButton, "rbVarious", "letCharBoth", 5, 40, 110, 20, "Lowercase", "", "", 0},
    {RadioButton, "rbConsonants", "letCharBoth", 5, 60, 110, 20, "Uppercase", "", "", 0},
    {RadioButton, "rbNumberLine", "letCharBoth", 5, 80, 110, 20, "Number Line", "", "", 0},
    {GroupBox, "gbPushButtons", nullptr, 1580, 360, 100, 60, "", "", "", 0},
    {GroupBox, "wordList", nullptr, 1300, 20, 220, 320, "", "", "", 0},
    {Table, "table", "wordList", 5, 20, 210, 290, "", "", "", 0},

    // Shields lie over the game buttons and Start while the alphabet bar plays its wave
    {Label, "shieldEverything", nullptr, 16, 242, 120, 38, "", "", "", 0},
    {Label, "shieldConsonants", nullptr, 16, 310, 125, 41, "", "", "", 0},
    {Label, "shieldVarious", nullptr, 12, 390, 123, 34, "", "", "", 0},
    {Label, "shieldNumberLine", nullptr, 16, 470, 123, 34, "", "",
        "Numberline plus special characters", 0},
    {Label, "shieldStart", nullptr, 436, 56, 165, 51, "", "", "", 0},
};

const std::size_t mainFormRowCount = sizeof(mainFormRows) / sizeof(mainFormRows[0]);

} // namespace formtable
