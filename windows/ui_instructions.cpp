#include "ui_instructions.h"

#include "readingtexts.h"
#include "windowform.h"

namespace {

using Form = Ui::instructions;
using windowform::Centered;
using windowform::MovableTabs;
using windowform::NoFlags;
using windowform::Pixmap;
using windowform::ReadOnly;

constexpr windowform::Frame frame
    = {"instructions", "MainWindow", {950, 687}, ":/new/prefix1/russianFlag.gif"};

// The reading tabs fill their page; the page is what the tab bar leaves of the tab widget.
constexpr QRect pageText = {0, 0, 948, 594};

constexpr windowform::Row<Form> rows[] = {
    {WINDOWFORM_FIELD(tabWidget), nullptr, {2, 4, 957, 629}, "",
        "font: 12pt \"MS Shell Dlg 2\"; color: rgb(0, 0, 0);", MovableTabs},

    {WINDOWFORM_FIELD(tabMap), "tabWidget", {}, "Map", nullptr, NoFlags},
    {WINDOWFORM_FIELD(map), "tabMap", {90, 18, 767, 449}, ":/new/prefix1/mainScreen.png", nullptr,
        Pixmap},
    {WINDOWFORM_FIELD(label), "tabMap", {4, 154, 75, 109}, "<b>Click<br>Black<br>Frame</b>",
        nullptr, Centered},
    {WINDOWFORM_FIELD(label_2), "tabMap", {864, 154, 75, 109}, "<b>Details<br>Given<br>Below</b>",
        nullptr, Centered},
    {WINDOWFORM_FIELD(mgDisplay), "tabMap", {106, 480, 730, 109}, "",
        "border: 2px solid black; font: 12pt \"MS Shell Dlg 2\";", NoFlags},

    {WINDOWFORM_FIELD(tabStarting), "tabWidget", {}, "Starting the Game", nullptr, NoFlags},
    {WINDOWFORM_FIELD(textEdit_2), "tabStarting", pageText, readingtexts::startingTheGame, nullptr,
        ReadOnly},

    {WINDOWFORM_FIELD(tabButtons), "tabWidget", {}, "Buttons", nullptr, NoFlags},
    {WINDOWFORM_FIELD(textEdit), "tabButtons", pageText, readingtexts::buttons, nullptr, ReadOnly},

    {WINDOWFORM_FIELD(tabInstructor), "tabWidget", {}, "Virtual Instructor", nullptr, NoFlags},
    {WINDOWFORM_FIELD(textBrowser_4), "tabInstructor", pageText, readingtexts::virtualInstructor,
        nullptr, NoFlags},

    {WINDOWFORM_FIELD(tabAfterGame), "tabWidget", {}, "After the Game", nullptr, NoFlags},
    {WINDOWFORM_FIELD(textEdit_5), "tabAfterGame", pageText, readingtexts::afterTheGame, nullptr,
        ReadOnly},

    {WINDOWFORM_FIELD(mgExitButton), nullptr, {442, 640, 120, 31}, "Close Window", nullptr,
        NoFlags},
};

constexpr const char *frameStyle = "border-color: black; border-width: 2px; border-style: solid;";

} // namespace

#define FRAME(member) &Form::member, #member
#define NO_SECOND_FRAME                                                                            \
    nullptr, nullptr, { }

const Form::MapRegion Form::mapRegions[] = {
    {FRAME(hideNonVitals), {718, 440, 46, 27}, NO_SECOND_FRAME,
        "<b>Hide Non-Vitals </b><br>Hides and Shows the non-vital parts of the screen for easier "
        "playing."},
    {FRAME(catManDo), {782, 258, 71, 71}, NO_SECOND_FRAME,
        "<b>A Key's Map </b><br>Displays how to access a characer on the keyboard;<br>which other, "
        "if any, key is required."},
    {FRAME(labelGames), {206, 18, 135, 81}, NO_SECOND_FRAME,
        "<b>First step in starting the tutorials.</b><br>Select a tutorial from below, left with "
        "the arrows pointing below them.<br>Default is Forward + Everything !!<br>"},
    {FRAME(labelGames_2), {354, 18, 127, 81}, NO_SECOND_FRAME,
        "<b>Second step in starting the tutorials.</b><br>Start and stop buttons"},
    {FRAME(labelGames_3), {492, 18, 135, 81}, NO_SECOND_FRAME,
        "<b> Third step (optional)</b><br>Select a difficulty setting. Default is soft."},
    {FRAME(labelGames_4), {634, 18, 85, 81}, NO_SECOND_FRAME,
        "<b>Fourth step (optional)</b><br>If character cannot be located, use either method to "
        "locate the character."},
    {FRAME(keyboard), {176, 264, 589, 163}, NO_SECOND_FRAME,
        "<b>Keyboard</b><br>Keyboard reflects what the user strikes on their own "
        "computer.<br>Mousing over a key will cause all the characters attached to that key<br>to "
        "light up in red on both the Russian Alphabet Bar and the keyboard.<br>Colors can be "
        "changed using the Advanced Options.<br>"},
    {FRAME(advancedKeyboardOptions), {722, 40, 65, 47}, NO_SECOND_FRAME,
        "<b>Advanced Options</b><br>Opens a new display with options on changing the keyboard’s "
        "colors, fonts how to include images,<br>keypress audio, and a few games."},
    {FRAME(consonants), {86, 208, 91, 41}, FRAME(consonants_2), {174, 186, 598, 22},
        "<b>Uppercase</b><br>Uppercase letters.<Br>Requires either of the Shift keys<br>"},
    {FRAME(various), {86, 254, 91, 41}, FRAME(various_2), {174, 206, 598, 22},
        "<b>Lowercase</b><br>Lowercase letters."},
    {FRAME(numberLine), {86, 298, 91, 41}, FRAME(numberLine_2), {176, 228, 291, 41},
        "<b>Number Line Plus+</b><br>First is normal, then those requiring the Shift key.<br>Then "
        "are the four special charcters located on the keyboard below."},
    {FRAME(everything), {86, 164, 91, 41}, NO_SECOND_FRAME,
        "<b>Everything !!</b><br>Lowercase, Uppercase, then Numer Line.<br>"},
    {FRAME(keyShape), {791, 34, 63, 57}, NO_SECOND_FRAME,
        "<b>Key Shape</b><br>Changes the shape of the Keys from square to circle."},
    {FRAME(reverse), {210, 54, 42, 37}, NO_SECOND_FRAME,
        "<b>Reverse</b><br>Runs the tutorials in reverse order.<br>Click the buttons under the "
        "tutorial / games below to the left. "},
    {FRAME(random), {252, 54, 42, 37}, NO_SECOND_FRAME,
        "<b>Random</b><br>Runs the tutorials in a random order. Stops at 200 correct "
        "entries.<br>Click the buttons under the tutorial / games below to the left."},
    {FRAME(forward), {294, 54, 42, 37}, NO_SECOND_FRAME,
        "<b>Forward</b><br>Runs the tutorials in forward order.<br>Click the buttons under the "
        "tutorial / games below to the left."},
    {FRAME(labelAnimation), {300, 122, 69, 65}, NO_SECOND_FRAME,
        "<b>Animation On/Off</b><br>Turns on or off the animated Russian Alphabet Bar while "
        "selecting which tutorial / game to play."},
    {FRAME(labelCurrentGame), {204, 98, 101, 89}, NO_SECOND_FRAME,
        "<b>Current Game</b><br>Displays the current game selection. Direction is on top, and "
        "under this is the type of keys <br>to be played. Below this is the range of the keys in a "
        "graphical representation. "},
    {FRAME(labelTimeyTim), {100, 68, 93, 21}, NO_SECOND_FRAME,
        "<b>Timer </b><br>When the <b>Start</b> button is pressed with the mouse, the timer will "
        "begin. This can be turned off<br>at any time if it is found to be distracting."},
    {FRAME(labelCorrect45), {92, 92, 56, 60}, NO_SECOND_FRAME,
        "<b>Correct </b><br>Displays the number of correct entries."},
    {FRAME(labelIncorrect45), {148, 92, 56, 60}, NO_SECOND_FRAME,
        "<b>Incorrect </b><br>Displays the number of incorrect entries."},
    {FRAME(labelLettersDisplayed), {720, 92, 140, 61}, NO_SECOND_FRAME,
        "<b> Letters Displayed </b><br>To make the games easier (or more difficult), the letters "
        "on the on-screen keyboard <br>can be changed to display: &nbsp;  &nbsp;     1. English "
        "and Russian  &nbsp;  &nbsp;  &nbsp;  2. English <br> &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; "
        "&nbsp; &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; "
        "&nbsp; &nbsp; &nbsp; &nbsp; &nbsp;3. Russian  &nbsp;  &nbsp; &nbsp; &nbsp; &nbsp; &nbsp; "
        "&nbsp; &nbsp; &nbsp; &nbsp; &nbsp; &nbsp;4. None "},
    {FRAME(labelLettersDisplayed_2), {720, 150, 140, 38}, NO_SECOND_FRAME,
        "<b> Keypress Color Timer </b><br>Determines how long the pressed key will change colors."},
    {FRAME(labelDifficulityStrict), {566, 34, 51, 22}, NO_SECOND_FRAME,
        "<b>Strict Difficulty </b><br>Upon pressing <b>any</b> key, that entry is made into the "
        "game. So the player needs to be careful which <br>key is pressed. There is no changing "
        "the mind."},
    {FRAME(labelDifficulitySoft), {566, 16, 51, 22}, NO_SECOND_FRAME,
        "<b>Soft Difficulty </b><br>Make a selection with the computer's keyboard, and then press "
        "the <b>Space Bar</b> with thumb(s)<br>to enter the selection for judging. Before the "
        "<b>Space Bar</b> is pressed, if the incorrect key<br>is pressed, the player can change "
        "their selection at any time."},
    {FRAME(labelArrowInsLeft), {86, 342, 79, 95}, NO_SECOND_FRAME,
        "<b>Keyboard Arrow (left) </b><br>Instructions describing a key press. <br>Click arrow "
        "above to hide or show them."},
    {FRAME(labelArrowInsRight), {782, 342, 75, 95}, NO_SECOND_FRAME,
        "<b>Mouse Arrow (right)</b><br>Instructions describing a mouseover<br>Click arrow above to "
        "hide or show them."},
    {FRAME(labelQuit), {88, 442, 36, 26}, NO_SECOND_FRAME,
        "<b>Quit  </b><br>Terminates the game. Closes all windows. "},
    {FRAME(labelHelp), {796, 440, 60, 27}, NO_SECOND_FRAME,
        "<b>Help  </b><br>Will display the main menu again in a separate window."},
    {FRAME(labelMatchThis), {390, 108, 67, 73}, NO_SECOND_FRAME,
        "<b>Match This </b><br>The letter or character displayed from the computer to be matched "
        "from the player's <br>computer keyboard."},
    {FRAME(labelYourEntry), {468, 108, 67, 73}, NO_SECOND_FRAME,
        "<b>Your Entry </b><br>The letter or character entered by the user using their "
        "computer's<br>keyboard. This will only be activated once the <b>Start</b> button has been "
        "pressed."},
    {FRAME(labelHinHin), {634, 68, 44, 22}, NO_SECOND_FRAME,
        "<b>Lines</b><br>Displays a horizontal and vertical line intersecting at the letter to be "
        "found.<Br>These lines can be above or below the keyboard. <br>Both lines can have their "
        "color changed."},
    {FRAME(labelHinHin_2), {680, 68, 38, 22}, NO_SECOND_FRAME,
        "<b>Options </b><br>Opens the options for Lines.<br>Color Madness and a line position "
        "selection are available."},
    {FRAME(labelStart), {366, 60, 49, 33}, NO_SECOND_FRAME,
        "<b>Start  </b><br>Starts the game and clear any previous scores. <br>Deactivates the "
        "Russian Alphabet Bar’s Animation On/ Off buttons. "},
    {FRAME(labelStop), {412, 60, 53, 33}, NO_SECOND_FRAME,
        "<b>Stop  </b><br>Stops the game and timer.<br>Reactivates the Russian Alphabet Bar’s "
        "Animation On/ Off buttons. "},
    {FRAME(labelCheb), {624, 94, 101, 75}, NO_SECOND_FRAME,
        "<b>Virtural Instructor  </b><br>Gives various messages throughout the tutorial / game."},
    {FRAME(labelChebMessages), {538, 104, 85, 63}, NO_SECOND_FRAME,
        "<b>Messages</b><br>Message center from the Virtural Instructor."},
    {FRAME(labelGoldenHighlight), {650, 52, 60, 21}, NO_SECOND_FRAME,
        "<b>Highlight</b><br>Highlights the current letter's background to be matched with the "
        "color gold on the <br>on-screen keyboard. Can be changed under Advanced Options -> Color "
        "Madness.<br>This can be used for beginners, as it is easier to find the golden colored "
        "key on the player's<br>computer keyboard."},
};

#undef FRAME
#undef NO_SECOND_FRAME

void Ui::instructions::setupUi(QMainWindow *window)
{
    windowform::build(*this, window, frame, rows);

    // Made after the picture, so that the frames lie on top of it.
    for (const MapRegion &region : mapRegions) {
        this->*region.label = new QLabel(tabMap);
        windowform::dressWidget(
            this->*region.label, region.name, region.rect, "", frameStyle, NoFlags);
        if (region.secondLabel) {
            this->*region.secondLabel = new QLabel(tabMap);
            windowform::dressWidget(this->*region.secondLabel, region.secondName, region.secondRect,
                "", frameStyle, NoFlags);
        }
    }
}
