#include "readingtexts.h"

namespace readingtexts {

const char startingTheGame[] = R"html(
<h2>How to start:</h2>
<p><b>1.</b> Choose a tutorial / game. On the left of the main screen stand the four groups
Everything !!, Uppercase, Lowercase and Number Line Plus+. Under each group are three arrows:
Reverse, Random and Forward. Click one of them. If nothing is chosen the game is
Forward + Everything !!</p>
<p><img src=":/new/prefix1/start1.png"></p>
<p><b>2.</b> Press <b>Start</b> with the mouse. The scores are cleared, the timer begins and the
first letter appears under <b>Match This</b>.</p>
<p><img src=":/new/prefix1/start2.png"></p>
<p><b>3.</b> Find the letter on your own keyboard and press that key. The letter shows under
<b>Your Entry</b>. In the Soft difficulty press the <b>Space Bar</b> to have your entry judged;
until then you may change your mind. In the Strict difficulty every key press counts at once.</p>
<p><img src=":/new/prefix1/start3.png"></p>
<p><b>4.</b> Cannot find the letter? Press <b>Can’t Find It?</b>, or turn on <b>Highlight</b> or
<b>Lines</b>, and the on-screen keyboard shows where the key lies.</p>
<p><img src=":/new/prefix1/cantFindIt.png"></p>

<h2>Tutoiral / Game Play</h2>
<p>Every right entry moves the game on to the next letter. The finished letter turns grey on the
Russian Alphabet Bar, so you can always see how far you have come. A wrong entry is counted, and
the same letter waits for you until you find it.</p>
<p><img src=":/new/prefix1/gamePlay.png"></p>
<p>The scoreboard counts the correct and the incorrect entries and shows the time since
<b>Start</b> was pressed. The game ends when every letter of the chosen group has been found; the
Random game stops after 200 correct entries. Press <b>Stop</b> at any time to end the game
early.</p>
<p><img src=":/new/prefix1/scoreboard.png"></p>
)html";

const char buttons[] = R"html(
<h2>Current Game</h2>
<p>Shows the game that <b>Start</b> will begin: the direction on top, the group of keys under it,
and below them the range of the keys as a picture.</p>
<p><img src=":/new/prefix1/currentGame.png"></p>

<h2>Animation On/Off</h2>
<p>While a game is being chosen, the Russian Alphabet Bar plays the chosen range as a wave of
colour. <b>Off</b> keeps the bar still; <b>On</b> starts the wave again. Both buttons rest while a
game is running.</p>
<p><img src=":/new/prefix1/animation.png"></p>

<h2>Timer</h2>
<p>Counts the time from <b>Start</b> until the game ends or <b>Stop</b> is pressed. The timer can be
turned off if it is found to be distracting.</p>
<p><img src=":/new/prefix1/scoreboard.png"></p>

<h2>Correct</h2>
<p>The number of right entries in this game.</p>

<h2>Incorrect</h2>
<p>The number of wrong entries in this game.</p>

<h2>Revese / Random / Forward</h2>
<p>The three arrows under each group choose the order of the letters: from the last to the first,
in a random order, or from the first to the last. A click chooses the game; <b>Start</b> begins
it.</p>
<p><img src=":/new/prefix1/start1.png"></p>

<h2>Difficulty</h2>
<p><b>Soft:</b> press a key, look at it under <b>Your Entry</b>, and press the <b>Space Bar</b> to
have it judged. Until then another key replaces it.</p>
<p><img src=":/new/prefix1/start3.png"></p>
<p><b>Strict:</b> every key that is pressed is judged at once. There is no changing the mind.</p>
<p><img src=":/new/prefix1/strick.png"></p>

<h2>Keyboard Options</h2>
<p>The box at the top right holds the options of the on-screen keyboard: the shape of the keys,
the letters displayed, the key press colour timer, and the button that opens the Advanced
Options.</p>
<p><img src=":/new/prefix1/options.png"></p>

<h2>Advanced Keyboard Options</h2>
<p>The <b>Show Advanced Options</b> button slides a menu in from the right. Each entry opens one
panel; opening one panel closes the other.</p>
<h3>Color Madness</h3>
<p>Colour pickers for the keys, key presses, mouse-overs, the highlight, the Russian Alphabet Bar
and the wallpaper, with gradients, borders, a rainbow and painting key by key. Colour schemes can
be saved and opened again.</p>
<h3>Vortic Keyboard</h3>
<p>Effects played when a key has been located: fades, pulses, explosions and moving pictures.
The game has to be stopped to change them.</p>
<h3>Fonts</h3>
<p>The fonts of the English letters and of the upper and lower case Russian letters.</p>
<h3>Pictures</h3>
<p>Pictures and moving gifs on the keys, the key presses, the highlight, the mouse-overs and as
wallpaper, from the pictures that come with the program or from your own.</p>
<h3>Shadows</h3>
<p>Shadows behind the letters and behind the keys.</p>
<h3>Sound Effects</h3>
<p>A sound for every key press and for every located key, from the sounds that come with the
program or from your own wave files.</p>
<h3>Extra</h3>
<p>The look of the game play box around <b>Match This</b> and <b>Your Entry</b>.</p>

<h2>Key's Shape</h2>
<p>The slider turns the keys from square to circle.</p>
<p><img src=":/new/prefix1/squareKey.png"> <img src=":/new/prefix1/circleKey.png"></p>

<h2>Letters Displayed</h2>
<p>What the on-screen keyboard shows on its keys: English and Russian, English only, Russian only,
or none at all for the player who wants to type blind.</p>

<h2>Keypress Color Timer</h2>
<p>How long a pressed key keeps its key press colour on the on-screen keyboard: only while the key
is held down, or for a short flash.</p>

<h2>On-screen Instructions</h2>
<p>Two small panes at the lower corners of the main screen tell what the keyboard and the mouse
are doing. Each can be hidden with its arrow, or together with everything else that is not needed
for play by <b>Hide Non-Vitals</b>.</p>
<p><img src=":/new/prefix1/insRight.png"></p>
<p><img src=":/new/prefix1/hideNonVitals.PNG"></p>

<h2>Mouse Arrow (right) and A Key's Map</h2>
<p>The right pane describes the key under the mouse. A Key's Map above it shows how to reach a
character: which key, and which other key, if any, is needed with it.</p>

<h2>Keyboard Arrow (Left)</h2>
<p>The left pane describes the key that was pressed last on your own keyboard.</p>
<p><img src=":/new/prefix1/insLeft.png"></p>

<h2>Quit</h2>
<p>Ends the game and closes all windows.</p>
<p><img src=":/new/prefix1/quit.png"></p>

<h2>Help</h2>
<p>Shows the main menu again in a separate window. A running game is not stopped.</p>
<p><img src=":/new/prefix1/help.png"></p>

<h2>Hide Non-Vitals</h2>
<p>Hides the parts of the screen that are not needed for playing, and shows them again.</p>

<h2>Can’t Find It?</h2>
<p>During a game, shows for a moment where the letter to be found lies on the keyboard.</p>
<p><img src=":/new/prefix1/cantFindIt.png"></p>

<h2>Highlight</h2>
<p>Gives the key of the letter to be found a gold background. The colour can be changed under
Advanced Options -&gt; Color Madness.</p>

<h2>Lines</h2>
<p>Draws a horizontal and a vertical line that cross at the key of the letter to be found. The
lines can lie above or below the keyboard, and both can have their colour changed.</p>
)html";

const char virtualInstructor[] = R"html(
<h2>Virtual Instructor</h2>
<p><img src=":/new/prefix1/chup.png"> <img src=":/new/prefix1/chmiddle.png">
<img src=":/new/prefix1/chdown.png"></p>
<p>Virtual Instructors are a way to give the player feedback on how the tutorial / game is
progressing. It is a learning tool being used in many varieties of today’s educational software
and video games.</p>
<p>The virtual instructor will become animated from time to time as the game progresses.</p>
)html";

const char afterTheGame[] = R"html(
<h2>Highlight and Lines</h2>
<p>Both of these will be turned off when the game ends.</p>
)html";

const char selfExploreEssay[] = R"html(
<h2>Self-Explore the Keyboard</h2>
<p>Self-exploring means finding things out by trying them yourself, at your own pace, instead of
being told. Press a key, move the mouse, and watch what the screen answers.</p>
<p>Self-Explore is a learning tool used to find out how things are done.</p>
<p>The player can self-explore both the Russian Alphabet Bar and the on-screen keyboard at any
time: before a game, between games, and while a game is being chosen.</p>
<p>If not in game play, every key pressed on the players keyboard will highlight the on-screen
keyboard and the corresponding letter or character on the Russian Alphabet Bar with the color
gold.</p>
<p>The player can move their mouse over either the Russian Alphabet Bar or the on-screen keyboard,
and the corresponding letters or characters will highlight with the color red.</p>
<h3>Letters Displayed</h3>
<p>The keys of the on-screen keyboard can show their characters in four ways. Try each of them
while exploring:</p>
<ol>
<li>English and Russian</li>
<li>English</li>
<li>Russian</li>
<li>None</li>
</ol>
<h3>Colors</h3>
<p>Every one of these colors, the key press, the mouse-over, the highlight and the keys themselves,
can be changed under Advanced Options.</p>
<p>Highlight and Lines are only when the game is in play.</p>
)html";

const char aboutMission[] = R"html(
<p>Vortic-Typing: Russian is an educational software program in a series of programs teaching the
keyboard in different languages.</p>
<p align="center"><b>Mission Statement</b></p>
<p align="center"><i>“You spent a long time learning how to read, write, and speak another language,
now learn how to type it.”</i></p>
)html";

const char aboutCredit[] = "Designed and programmed by Irina Vortic<br>"
                           "Bachelor of Science in Computer Science<br>"
                           "Northfield State University";

} // namespace readingtexts
