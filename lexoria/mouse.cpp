#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

#include <algorithm>
#include <iterator>

using namespace keycatalogue;

namespace {

// Each sample of "Letters Displayed" lights its caption while the mouse is on it.
struct ModeSample
{
    const char *sample;
    const char *caption;
};

constexpr ModeSample modeSamples[] = {
    {"rcNone", "none"},
    {"rcRussian", "russian2"},
    {"rcEnglish", "english"},
    {"rcBoth", "both"},
};

const char *const captionLit = " color:blue; font: 9pt 'MS Shell Dlg 2' ; ";
const char *const captionDark = " color:black; font: 9pt 'MS Shell Dlg 2' ; ";

QWidget *captionOf(const Ui::lexoria *ui, const QWidget *sample)
{
    for (const ModeSample &mode : modeSamples) {
        if (sample->objectName() == QLatin1String(mode.sample))
            return ui->widget(QLatin1String(mode.caption));
    }
    return nullptr;
}

// Start and Stop keep their size and their game-state colour under the mouse: the hover look
// is laid over whatever they show and taken off again, so a click while the mouse is on them
// (which restyles them) is never undone by the leave.
struct ButtonEmphasis
{
    const char *button;
    const char *look;
};

constexpr ButtonEmphasis buttonEmphasis[] = {
    {"start", " font-weight: bold; color: rgb(0, 94, 0);  text-align: center;"},
    {"stop", " font-weight: bold; color: maroon;  text-align: center;"},
};

QString emphasisOf(const QWidget *button)
{
    for (const ButtonEmphasis &each : buttonEmphasis) {
        if (button->objectName() == QLatin1String(each.button))
            return QLatin1String(each.look);
    }
    return {};
}

void emphasise(QWidget *button)
{
    const QString look = emphasisOf(button);
    if (!button->styleSheet().endsWith(look))
        restyle(button, button->styleSheet() + look);
}

void deemphasise(QWidget *button)
{
    const QString look = emphasisOf(button);
    QString sheet = button->styleSheet();
    if (sheet.endsWith(look)) {
        sheet.chop(look.size());
        restyle(button, sheet);
    }
}

QString widgetName(const char *name, int number)
{
    const QString pattern = QLatin1String(name);
    return pattern.contains(QLatin1String("%1")) ? pattern.arg(number) : pattern;
}

} // namespace

// A widget (or a numbered family of widgets) and what the mouse entering and leaving it does.
// No widget stands in two rows. A null action does nothing.
struct lexoria::HoverRow
{
    const char *name; // with %1 a family numbered first..last
    int first;
    int last;
    void (*enter)(lexoria &window, QWidget *watched, int number);
    void (*leave)(lexoria &window, QWidget *watched, int number);
};

// A left press runs the action of every row that has a widget under the mouse; a row without
// widgets runs on every left press. The order of the rows is the order of the tests.
struct lexoria::ClickRow
{
    const char *widgets[3];
    void (*action)(lexoria &window);
};

const lexoria::HoverRow *lexoria::hoverRows(std::size_t *count)
{
    using Action = void (*)(lexoria &, QWidget *, int);
    // Spin boxes take the keyboard only while the mouse is on them; everything else leaves it
    // to the game.
    constexpr Action takeFocus = [](lexoria &, QWidget *spin, int) { spin->setFocus(); };
    constexpr Action dropFocus = [](lexoria &, QWidget *spin, int) { spin->clearFocus(); };
    constexpr Action lightCaption = [](lexoria &w, QWidget *sample, int) {
        restyle(captionOf(w.ui, sample), QLatin1String(captionLit));
    };
    constexpr Action darkenCaption = [](lexoria &w, QWidget *sample, int) {
        restyle(captionOf(w.ui, sample), QLatin1String(captionDark));
    };
    constexpr Action emphasis = [](lexoria &, QWidget *button, int) { emphasise(button); };
    constexpr Action noEmphasis = [](lexoria &, QWidget *button, int) { deemphasise(button); };
    constexpr Action paintControl = [](lexoria &w, QWidget *, int K) {
        if (w.painting())
            w.paintControl(K);
    };

    static const HoverRow rows[] = {
        {"spinBox27", 0, 0, takeFocus, dropFocus},
        {"spinBox%1", 1, 5, takeFocus, dropFocus},
        {"rcNone", 0, 0, lightCaption, darkenCaption},
        {"rcRussian", 0, 0, lightCaption, darkenCaption},
        {"rcEnglish", 0, 0, lightCaption, darkenCaption},
        {"rcBoth", 0, 0, lightCaption, darkenCaption},
        {"start", 0, 0, emphasis, noEmphasis},
        {"stop", 0, 0, emphasis, noEmphasis},
        // While a rainbow picker is open the mouse paints, and a painted key keeps its paint
        // when the mouse leaves it.
        {"shield%1", 1, characterKeyCount,
            [](lexoria &w, QWidget *, int k) { w.painting() ? w.paintKey(k) : w.keyHover(k); },
            [](lexoria &w, QWidget *, int k) {
                if (!w.painting())
                    w.keyLeave(k);
            }},
        {"r%1", 1, letterCount,
            [](lexoria &w, QWidget *, int n) { w.painting() ? w.paintBarCell(n) : w.barHover(n); },
            [](lexoria &w, QWidget *, int n) {
                if (!w.painting())
                    w.changeColorBack(n);
            }},
        {"labelTab%1", 1, optionscatalogue::tabCount,
            [](lexoria &w, QWidget *, int tab) { w.hoverColorMadnessTab(tab, true); },
            [](lexoria &w, QWidget *, int tab) { w.hoverColorMadnessTab(tab, false); }},
        // Borders: the control keys have no hover look of their own, only paint.
        {"labelBackSpace", 48, 48, paintControl, nullptr},
        {"labelTab", 49, 49, paintControl, nullptr},
        {"labelCapsLock", 50, 50, paintControl, nullptr},
        {"labelEnter", 51, 51, paintControl, nullptr},
        {"labelShiftLeft", 52, 52, paintControl, nullptr},
        {"labelShiftRight", 53, 53, paintControl, nullptr},
        {"labelSpacebar", 54, 54, paintControl, nullptr},
    };
    *count = std::size(rows);
    return rows;
}

const lexoria::ClickRow *lexoria::clickRows(std::size_t *count)
{
    static const ClickRow rows[] = {
        {{"linePosition1English"}, [](lexoria &w) { w.lineHighlightLower(); }},
        {{"linePosition2Lowercase", "lhVertDisplay_2", "liHordisplay_3"},
            [](lexoria &w) { w.lineHighlightRaise(); }},
        {{"openFolderAudio"}, [](lexoria &w) { w.openAudio_Function(); }},
        // A font combo box holding the focus would take every key from the game, so any left
        // click elsewhere takes it back.
        {{}, [](lexoria &w) { w.fontComboFocus("fontComboBoxUppercase"); }},
        {{}, [](lexoria &w) { w.fontComboFocus("fontComboBoxEnglish"); }},
        {{}, [](lexoria &w) { w.colorMadnessTabClicked(); }},
        {{"both", "rcBoth"}, [](lexoria &w) { w.displayBoth(); }},
        {{"english", "rcEnglish"}, [](lexoria &w) { w.displayEnglish(); }},
        {{"russian2", "rcRussian"}, [](lexoria &w) { w.displayLexoria(); }},
        {{"none", "rcNone"}, [](lexoria &w) { w.displayNone(); }},
        {{"tnSwirl1"}, [](lexoria &w) { w.movie(1); }},
        {{"tnKittyWalk"}, [](lexoria &w) { w.movie(2); }},
        {{"tnPulsingLight"}, [](lexoria &w) { w.movie(3); }},
        {{"tnSnow"}, [](lexoria &w) { w.movie(4); }},
        {{"tnRain"}, [](lexoria &w) { w.movie(5); }},
        {{"tnSheep"}, [](lexoria &w) { w.movie(6); }},
        {{"tnMarbleTransparent"}, [](lexoria &w) { w.movie(7); }},
        {{"tnSnowFall"}, [](lexoria &w) { w.movie(8); }},
        // Gradients: the shape thumbnails of every target
        {{}, [](lexoria &w) { w.shapeThumbnailClicked(); }},
        // Shadows
        {{"shadowTheme1"}, [](lexoria &w) { w.shadowTh(1); }},
        {{"shadowTheme2"}, [](lexoria &w) { w.shadowTh(2); }},
        {{"shadowTheme3"}, [](lexoria &w) { w.shadowTh(3); }},
        {{"shadowTheme4"}, [](lexoria &w) { w.shadowTh(4); }},
        {{}, [](lexoria &w) { w.shadowCornerClicked(); }},
        // Colour pickers: each swatch opens its own
        {{}, [](lexoria &w) { w.openPickerUnderMouse(); }},
        // Pictures: the wallpaper's dial, the folder icons and the four picture displays
        {{}, [](lexoria &w) { w.pictureControlClicked(); }},
        // Rainbow
        {{"colorPickerRainbowBg"}, [](lexoria &w) { w.rainbowSwatchClicked(false); }},
        {{"colorPickerGradBottom8"}, [](lexoria &w) { w.rainbowSwatchClicked(true); }},
        // Borders
        {{"theme1"}, [](lexoria &w) { w.chooseTheme(1); }},
        {{"theme2"}, [](lexoria &w) { w.chooseTheme(2); }},
        {{"theme3"}, [](lexoria &w) { w.chooseTheme(3); }},
    };
    *count = std::size(rows);
    return rows;
}

void lexoria::installHoverFilter()
{
    std::size_t count = 0;
    const HoverRow *rows = hoverRows(&count);
    for (const HoverRow *row = rows; row != rows + count; ++row) {
        for (int number = row->first; number <= row->last; ++number) {
            // Rows may name widgets of panels this window does not have.
            if (QWidget *watched = ui->widget(widgetName(row->name, number))) {
                hoverTargets.insert(watched, {row, number});
                watched->installEventFilter(this);
            }
        }
    }
}

bool lexoria::eventFilter(QObject *watched, QEvent *event)
{
    if (previewSound(watched, event))
        return false;
    const QEvent::Type type = event->type();
    if (type != QEvent::Enter && type != QEvent::Leave)
        return false;
    const auto target = hoverTargets.constFind(watched);
    if (target == hoverTargets.constEnd())
        return false;
    auto action = type == QEvent::Enter ? target->row->enter : target->row->leave;
    if (action)
        action(*this, static_cast<QWidget *>(watched), target->number);
    // The watched widget still gets the event.
    return false;
}

void lexoria::mousePressEvent(QMouseEvent *event)
{
    // A chord or any other button is no click.
    if (event->buttons() != Qt::LeftButton)
        return;
    std::size_t count = 0;
    const ClickRow *rows = clickRows(&count);
    auto underMouse = [this](const char *name) {
        const QWidget *widget = name ? ui->widget(QLatin1String(name)) : nullptr;
        return widget && widget->underMouse();
    };
    for (const ClickRow *row = rows; row != rows + count; ++row) {
        if (!row->widgets[0]
            || std::any_of(std::begin(row->widgets), std::end(row->widgets), underMouse))
            row->action(*this);
    }
}

void lexoria::fontComboFocus(const char *name)
{
    QWidget *combo = ui->widget(QLatin1String(name));
    if (!combo)
        return;
    if (combo->underMouse())
        combo->setFocusPolicy(Qt::WheelFocus);
    else
        combo->clearFocus();
}

void lexoria::barHover(int n)
{
    const int k = keyOfLetter(n);
    lastKeyIndex = n - 1;
    // Ё and ё both tell 7: the number is the place in the alphabet, not n.
    if (alphabetPosition(n)) {
        letterNumberText = QString::number(alphabetPosition(n));
        letterOAlphabet();
    } else {
        letterOAlphabetNone();
    }
    const QString &font = fontPiece(n);
    restyle(barBgLabels[n - 1], pieces.barRadiusStyle + pieces.mouseoverBgStyle);
    restyle(barLabels[n - 1], pieces.mouseoverRussianColorStyle + hoverBarFontStyle + font);
    restyle(keyEnglishLabels[k - 1], pieces.mouseoverEnglishColorStyle + pieces.englishFontStyle);
    restyle(keyLetterLabels[n - 1], pieces.mouseoverRussianColorStyle + hoverKeyFontStyle + font);
    restyle(keyBgLabels[k - 1],
        pieces.keyRadiusStyle + pieces.mouseoverBgStyle + pieces.mouseoverBorderStyle);
    mouseoverImage(k);
}

void lexoria::keyHover(int k)
{
    const CharacterKey &key = characterKey(k);
    const int lower = key.lower;
    const int upper = key.upper;
    if (lower <= 33) {
        letterNumberText = QString::number(lower);
        letterOAlphabet();
    } else {
        letterOAlphabetNone();
    }
    for (int n : {upper, lower}) {
        restyle(barBgLabels[n - 1], pieces.barRadiusStyle + pieces.mouseoverBgStyle);
        const QString letter = pieces.mouseoverRussianColorStyle + fontPiece(n);
        restyle(barLabels[n - 1], letter);
        restyle(keyLetterLabels[n - 1], letter);
    }
    const QString english = pieces.mouseoverEnglishColorStyle + pieces.englishFontStyle;
    restyle(keyEnglishLabels[k - 1], english);
    if (k == 6)
        restyle(ui->underscore_left, english);
    else if (k == 10)
        restyle(ui->underscore_right, english);
    restyle(keyBgLabels[k - 1],
        pieces.keyRadiusStyle + pieces.mouseoverBgStyle + pieces.mouseoverBorderStyle);
    mouseoverImage(k);
}

void lexoria::keyLeave(int k)
{
    const CharacterKey &key = characterKey(k);
    changeColorBack(key.upper);
    changeColorBack(key.lower);
}

// A key under the mouse shows the mouse-over picture, or none: never its rest picture.
void lexoria::mouseoverImage(int k)
{
    QLabel *image = keyImgLabels[k - 1];
    if (pictures.mouseoverImageOn == QLatin1String("1")) {
        image->show();
        image->setMovie(&pictures.mouseoverMovie);
    } else if (!image->isHidden()) {
        image->hide();
    }
}
