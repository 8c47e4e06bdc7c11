#include "ui_exploreworld.h"

#include "windowform.h"

namespace {

using Form = Ui::exploreWorld;
using windowform::NoFlags;
using windowform::OpensLinks;

constexpr windowform::Frame frame = {"exploreWorld", "MainWindow", {639, 368}, nullptr};

constexpr const char *rowFont = "font: 11pt \"MS Shell Dlg 2\";";

// Four rows of a category and two links; the links sit in two columns at x 112 and 281.
constexpr windowform::Row<Form> rows[] = {
    {WINDOWFORM_FIELD(label_4), nullptr, {-8, -128, 673, 509}, "",
        "background-color: rgb(255, 255, 255);", NoFlags},
    {WINDOWFORM_FIELD(label), nullptr, {8, 4, 763, 61},
        "These are links to the Internet to learn more about color matching, Russian,<br>"
        "language translators, how to change your computers language on text editors.",
        rowFont, NoFlags},

    {WINDOWFORM_FIELD(label_10), nullptr, {4, 98, 106, 31}, "Color", rowFont, OpensLinks},
    {WINDOWFORM_FIELD(label_11), nullptr, {112, 98, 161, 31},
        "<a href=\"https://color.adobe.com/create/color-wheel\">Color Wheel</a>", rowFont,
        OpensLinks},
    {WINDOWFORM_FIELD(label_12), nullptr, {281, 98, 341, 31},
        "<a href=\"https://www.colourlovers.com/\">Color Schemes Community</a>", rowFont,
        OpensLinks},

    {WINDOWFORM_FIELD(label_7), nullptr, {4, 153, 106, 31}, "Learn Russian", rowFont, OpensLinks},
    {WINDOWFORM_FIELD(promptx), nullptr, {112, 153, 161, 31},
        "<a href=\"https://www.duolingo.com/course/ru/en/Learn-Russian\">Russian Course</a>",
        rowFont, OpensLinks},
    {WINDOWFORM_FIELD(promptx_4), nullptr, {281, 153, 341, 31},
        "<a href=\"https://en.wikipedia.org/wiki/Russian_alphabet\">"
        "Russian Letter Sounds (use chrome)</a>",
        rowFont, OpensLinks},

    {WINDOWFORM_FIELD(label_6), nullptr, {4, 208, 106, 31}, "Translator", rowFont, OpensLinks},
    {WINDOWFORM_FIELD(label_2), nullptr, {112, 208, 161, 31},
        "<a href=\"https://translate.google.com/?sl=en&amp;tl=ru\">Google Translate</a>", rowFont,
        OpensLinks},
    {WINDOWFORM_FIELD(label_3), nullptr, {281, 208, 341, 31},
        "<a href=\"https://www.bing.com/translator\">Bing Translator</a>", rowFont, OpensLinks},

    {WINDOWFORM_FIELD(label_8), nullptr, {4, 262, 106, 31}, "Other", rowFont, OpensLinks},
    {WINDOWFORM_FIELD(label_9), nullptr, {112, 262, 161, 31},
        "<a href=\"https://www.amazon.com/s?k=russian+keyboard+stickers\">Keyboard Stickers</a>",
        rowFont, OpensLinks},
    {WINDOWFORM_FIELD(label_5), nullptr, {281, 262, 341, 31},
        "<a href=\"https://www.youtube.com/results?search_query=how+to+change+computer+language\">"
        "Change Your Computer's Language</a>",
        rowFont, OpensLinks},

    {WINDOWFORM_FIELD(etwExitButton), nullptr, {258, 314, 120, 31}, "Close Window", nullptr,
        NoFlags},
};

} // namespace

void Ui::exploreWorld::setupUi(QMainWindow *window)
{
    windowform::build(*this, window, frame, rows);
}
