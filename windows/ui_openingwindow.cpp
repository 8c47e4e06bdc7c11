#include "ui_openingwindow.h"

#include "windowform.h"

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

namespace {

using Form = Ui::openingWindow;
using windowform::Disabled;
using windowform::NoFlags;
using windowform::OpensLinks;
using windowform::Pixmap;
using windowform::WordWrap;

constexpr windowform::Frame frame
    = {"openingWindow", "Vortic-Typing: Russian", {700, 551}, ":/new/prefix1/russianFlag.gif"};

constexpr const char *bigButton = "font: 14pt \"MS Shell Dlg 2\";";
constexpr const char *smallButton = "font: 10pt \"MS Shell Dlg 2\";";

// "Explore the World" is built and wired like the other buttons but parked outside the window
// and disabled: its page of links is not ready to be offered.
constexpr windowform::Row<Form> rows[] = {
    {WINDOWFORM_FIELD(label_3), nullptr, {2, -4, 785, 603}, "",
        "background-color: rgb(255, 255, 255);", NoFlags},
    {WINDOWFORM_FIELD(label_4), nullptr, {44, 10, 351, 69}, ":/new/prefix1/vorticTypingBrelom.png",
        nullptr, Pixmap},
    {WINDOWFORM_FIELD(label_5), nullptr, {368, 70, 207, 61}, ":/new/prefix1/russianNosferatu.png",
        nullptr, Pixmap},
    {WINDOWFORM_FIELD(startLearnRussianTyping), nullptr, {80, 188, 521, 51}, "Start", bigButton,
        NoFlags},
    {WINDOWFORM_FIELD(openInstructions), nullptr, {80, 286, 521, 51}, "Instructions", bigButton,
        NoFlags},
    {WINDOWFORM_FIELD(owInstructionsForSE), nullptr, {80, 382, 521, 51},
        "Self-Explore the Keyboard", bigButton, NoFlags},
    {WINDOWFORM_FIELD(owAboutButton), nullptr, {134, 474, 91, 41}, "About", smallButton, NoFlags},
    // The video logo is a link too: a reader clicks the picture as readily as the words.
    {WINDOWFORM_FIELD(label_2), nullptr, {246, 474, 41, 41},
        "<a href=\"https://example.org/vortic-typing/videos\"><img "
        "src=\":/new/prefix1/youTube.png\" width=\"41\" "
        "height=\"41\"></a>",
        nullptr, OpensLinks},
    {WINDOWFORM_FIELD(label), nullptr, {290, 474, 169, 41},
        "<a href=\"https://example.org/vortic-typing/videos\">"
        "Demonstration Videos</a>",
        "font: 12pt \"MS Shell Dlg 2\";", OpensLinks | WordWrap},
    {WINDOWFORM_FIELD(owExitPushButton), nullptr, {472, 474, 91, 41}, "Exit", smallButton, NoFlags},
    {WINDOWFORM_FIELD(owExploreTheWorld), nullptr, {1880, 304, 521, 51}, "Explore the World",
        bigButton, Disabled},
};

} // namespace

void Ui::openingWindow::setupUi(QMainWindow *window)
{
    windowform::build(*this, window, frame, rows);
}
