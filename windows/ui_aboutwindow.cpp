#include "ui_aboutwindow.h"

#include "readingtexts.h"
#include "windowform.h"

namespace {

using Form = Ui::aboutWindow;
using windowform::AlignRight;
using windowform::AlignTop;
using windowform::NoFlags;
using windowform::OpensLinks;
using windowform::WordWrap;

constexpr windowform::Frame frame = {"aboutWindow", "MainWindow", {543, 331}, nullptr};

constexpr const char *smallText = "font: 9pt \"MS Shell Dlg 2\";";

// The mission text is anchored at the top: the credit below starts inside its rectangle.
constexpr windowform::Row<Form> rows[] = {
    {WINDOWFORM_FIELD(label_6), nullptr, {2, 4, 535, 133}, readingtexts::aboutMission,
        "font: 11pt \"MS Shell Dlg 2\"; color: rgb(0, 0, 0);", WordWrap | AlignTop},
    {WINDOWFORM_FIELD(label_5), nullptr, {2, 120, 493, 101}, readingtexts::aboutCredit, smallText,
        NoFlags},
    {WINDOWFORM_FIELD(label_3), nullptr, {2, 240, 153, 21}, "Contact information at ", smallText,
        NoFlags},
    {WINDOWFORM_FIELD(label_4), nullptr, {158, 240, 145, 21},
        "<a href=\"https://example.org/vortic-typing\">our web site</a>", smallText, OpensLinks},
    {WINDOWFORM_FIELD(awExitButton), nullptr, {212, 278, 120, 31}, "Close Window",
        "font:10pt \"MS Shell Dlg 2\";", NoFlags},
    // The free end of the contact line, where a reader looks for the version of an About box.
    // Black of its own like the mission text: the main window's sheet whitens every label.
    {WINDOWFORM_FIELD(versionLabel), nullptr, {330, 240, 205, 21}, "Version " VORTIC_VERSION,
        "font: 9pt \"MS Shell Dlg 2\"; color: rgb(0, 0, 0);", AlignRight},
};

} // namespace

void Ui::aboutWindow::setupUi(QMainWindow *window)
{
    windowform::build(*this, window, frame, rows);
}
