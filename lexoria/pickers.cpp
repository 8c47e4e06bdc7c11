#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/gradientcatalogue.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>

#include <iterator>

using namespace keycatalogue;
using gradientcatalogue::AllParts;
using gradientcatalogue::English;
using gradientcatalogue::Face;
using gradientcatalogue::HighlightSample;
using gradientcatalogue::KeypressSample;
using gradientcatalogue::KeysSample;
using gradientcatalogue::MouseoverSample;
using gradientcatalogue::RainbowSample;
using gradientcatalogue::Russian;

namespace {

const QString transparent = QStringLiteral("background-color: transparent;");

// Pickers stand on screen in this order when several are open: each newly opened one comes
// up under those already there only if it is earlier in the list.
constexpr int riseOrder[] = {1, 2, 3, 14, 4, 5, 6, 17, 7, 8, 9, 18, 25, 15, 16, 19, 10, 11, 20, 13,
    22, 23, 24, 30, 29, 27, 28, 26};

constexpr int closeOrder[] = {1, 2, 3, 14, 4, 5, 6, 17, 7, 8, 9, 18, 25, 15, 16, 19, 10, 11, 20, 13,
    22, 23, 24, 30, 29, 27, 28, 26, 12, 21};

// Some widgets belong to panels that may not be part of this window.
void restyleNamed(const Ui::lexoria *ui, const char *name, const QString &sheet)
{
    if (QWidget *widget = ui->widget(QLatin1String(name)))
        restyle(widget, sheet);
}

QString textColour(const char *lead, const QString &colour, const char *tail)
{
    return QLatin1String(lead) + colour + QLatin1String(tail);
}

} // namespace

// One picker: how it looks when made, and what it does while it moves and when it closes.
// Actions are null where the picker does nothing at that moment.
struct lexoria::PickerRow
{
    const char *opener; // the swatch that opens it, also the dialog's object name
    const char *title; // null: set by whoever opens it
    const char *icon;
    const char *start; // null: the dialog's own white
    int x, y;
    bool alpha;
    bool PickerState::*topFlag; // the second-colour flag its first opening sets
    void (*live)(lexoria &, const QColor &);
    void (*selected)(lexoria &, const QColor &);
    void (*ok)(lexoria &);
    void (*cancelAlways)(lexoria &);
    void (*cancelNeverAccepted)(lexoria &);
    bool focusAfterOk;
    bool focusAfterCancel;
};

const lexoria::PickerRow &lexoria::pickerRow(int N)
{
    using Live = void (*)(lexoria &, const QColor &);
    using Extra = void (*)(lexoria &);
    using R = BaseRule;

    // What the text pickers write: their pieces, then what shows them.
    constexpr Live english = [](lexoria &w, const QColor &c) {
        w.pieces.englishColorStyle = "color: " + rgbaTextWithSemicolon(c) + ";";
        w.stepListA();
    };
    constexpr Live russian = [](lexoria &w, const QColor &c) {
        w.pieces.upperColorStyle = "color: " + rgbaTextWithSemicolon(c) + ";";
        w.pieces.lowerColorStyle = w.pieces.upperColorStyle;
        w.stepListB();
    };
    constexpr Live keypressEnglish = [](lexoria &w, const QColor &c) {
        w.pieces.keypressEnglishColorStyle = "color: " + rgbaTextWithSemicolon(c) + ";";
        w.pieces.goldKeyEnglishColorStyle = w.pieces.keypressEnglishColorStyle;
        w.restyleSample(KeypressSample, Face | English);
    };
    constexpr Live keypressRussian = [](lexoria &w, const QColor &c) {
        w.pieces.keypressRussianColorStyle = "color: " + rgbaTextWithSemicolon(c) + ";";
        w.pieces.goldKeyRussianColorStyle = w.pieces.keypressRussianColorStyle;
        w.restyleSample(KeypressSample, Russian);
    };
    constexpr Live mouseoverEnglish = [](lexoria &w, const QColor &c) {
        w.pieces.mouseoverEnglishColorStyle = textColour("color: ", rgbaText(c), ";");
        w.restyleSample(MouseoverSample, Face | English);
    };
    constexpr Live mouseoverRussian = [](lexoria &w, const QColor &c) {
        w.pieces.mouseoverRussianColorStyle = textColour("color: ", rgbaText(c), ";");
        w.restyleSample(MouseoverSample, Russian);
    };
    constexpr Live highlightEnglish = [](lexoria &w, const QColor &c) {
        w.pieces.highlightEnglishColorStyle = textColour("color: ", rgbaText(c), ";");
        w.restyleSample(HighlightSample, English);
    };
    constexpr Live highlightRussian = [](lexoria &w, const QColor &c) {
        w.pieces.highlightRussianColorStyle = textColour("color: ", rgbaText(c), ";");
        w.restyleSample(HighlightSample, Russian);
    };
    constexpr Live finishedLetters = [](lexoria &w, const QColor &c) {
        w.pieces.finishedColorStyle = textColour(" color: ", rgbaText(c), "; ");
        w.set_dem_StyleSheet();
    };

    // The gradient pickers: a base colour by the second-colour rule or a top colour, then the
    // target's pieces are rebuilt. Only the keys at rest are the board itself.
    constexpr Live keysBase = [](lexoria &w, const QColor &c) {
        w.baseColour(1, c, R::ByShape);
        w.grad(1);
        w.restyleKeysAtRest();
        if (w.goldHighActive)
            w.goldHighOn();
    };
    constexpr Live keysTop = [](lexoria &w, const QColor &c) {
        w.topColour(1, c);
        w.grad(1);
        w.restyleKeysAtRest();
    };
    constexpr Live keypressBase = [](lexoria &w, const QColor &c) {
        w.baseColour(2, c, R::Full);
        w.grad(2);
    };
    constexpr Live keypressTop = [](lexoria &w, const QColor &c) {
        w.topColour(2, c);
        w.grad(2);
    };
    constexpr Live mouseoverBase = [](lexoria &w, const QColor &c) {
        w.baseColour(3, c, R::PlainTopOnly);
        w.grad(3);
    };
    constexpr Live mouseoverTop = [](lexoria &w, const QColor &c) {
        w.topColour(3, c);
        w.grad(3);
    };
    constexpr Live highlightBase = [](lexoria &w, const QColor &c) {
        w.baseColour(4, c, R::PlainTopOnly);
        w.grad(4);
    };
    constexpr Live highlightTop = [](lexoria &w, const QColor &c) {
        w.topColour(4, c);
        w.grad(4);
    };
    constexpr Live finishedBase = [](lexoria &w, const QColor &c) {
        w.baseColour(5, c, R::Full);
        w.grad(5);
    };
    constexpr Live finishedTop = [](lexoria &w, const QColor &c) {
        w.topColour(5, c);
        w.grad(5);
    };
    constexpr Live lineBase = [](lexoria &w, const QColor &c) {
        w.baseColour(6, c, R::Full);
        w.grad(6);
    };
    constexpr Live lineTop = [](lexoria &w, const QColor &c) {
        w.topColour(6, c);
        w.grad(6);
    };
    constexpr Live wallpaperBase = [](lexoria &w, const QColor &c) {
        w.baseColour(7, c, R::PlainTopOnly);
        w.grad(7);
    };
    constexpr Live wallpaperTop = [](lexoria &w, const QColor &c) {
        w.topColour(7, c);
        w.grad(7);
    };
    constexpr Live rainbowBase = [](lexoria &w, const QColor &c) {
        w.baseColour(8, c, R::Full);
        w.grad(8);
    };
    constexpr Live rainbowTop = [](lexoria &w, const QColor &c) {
        w.topColour(8, c);
        w.grad(8);
    };
    constexpr Live gamePlayBase = [](lexoria &w, const QColor &c) {
        w.baseColour(27, c, R::Full);
        w.grad(27);
    };
    constexpr Live gamePlayTop = [](lexoria &w, const QColor &c) {
        w.topColour(27, c);
        w.grad(27);
    };
    constexpr Live gamePlayText
        = [](lexoria &w, const QColor &c) { w.textColourOfGamePlay(c, "color: "); };

    // What OK adds to the live colour.
    constexpr Live finishedLettersChosen = [](lexoria &w, const QColor &c) {
        pickerRow(10).live(w, c);
        w.bgColorLoops();
    };
    constexpr Live finishedBaseChosen = [](lexoria &w, const QColor &c) {
        pickerRow(11).live(w, c);
        w.bgColorLoops();
    };
    constexpr Live highlightRussianChosen = [](lexoria &w, const QColor &c) {
        w.pieces.highlightRussianColorStyle = textColour(" color: ", rgbaText(c), "; ");
    };
    constexpr Live highlightEnglishChosen = [](lexoria &w, const QColor &c) {
        w.pieces.highlightEnglishColorStyle = textColour("color: ", rgbaText(c), ";");
    };
    constexpr Live keypressTopChosen = [](lexoria &w, const QColor &) { w.grad(2); };
    constexpr Live mouseoverTopChosen = [](lexoria &w, const QColor &) { w.grad(3); };
    constexpr Live finishedTopChosen = [](lexoria &w, const QColor &) {
        w.grad(5);
        w.set_dem_StyleSheet();
        w.bgColorLoops();
    };
    constexpr Live shadowsChosen = [](lexoria &w, const QColor &c) { w.newColor26(c); };
    constexpr Live gamePlayShadowsChosen = [](lexoria &w, const QColor &c) { w.newColor30(c); };
    constexpr Live gamePlayTextChosen
        = [](lexoria &w, const QColor &c) { w.textColourOfGamePlay(c, " color: "); };

    constexpr Extra englishOk = [](lexoria &w) {
        w.painted.paintEnglishOn = false;
        w.painted.paintEnglishText = QStringLiteral("0");
    };
    constexpr Extra russianOk = [](lexoria &w) {
        w.painted.paintUpperOn = false;
        w.painted.paintLowerOn = false;
        w.painted.paintUpperText = QStringLiteral("0");
        w.painted.paintLowerText = QStringLiteral("0");
    };
    // The keys' colours become the paint colours, so painting starts from what the keys show.
    constexpr Extra keysBaseOk = [](lexoria &w) {
        w.painted.paintBackgroundOn = false;
        w.painted.paintBorderOn = false;
        w.painted.paintBackgroundText = QStringLiteral("0");
        w.painted.paintBorderText = QStringLiteral("0");
        const GradientSide &keys = w.targets.keys.bg;
        GradientSide &rainbow = w.targets.rainbow.bg;
        const auto *shape = w.ui->find<QSlider>(QStringLiteral("hoSlider1"));
        if (shape && shape->value() == 4) {
            rainbow.radialColor = keys.radialColor;
            rainbow.radialGradColor = keys.radialGradColor;
        } else {
            rainbow.color = keys.color;
            rainbow.gradColor = keys.gradColor;
        }
        w.targets.rainbow.gradStop = w.targets.keys.gradStop;
        w.pieces.rainbowBgStyle = w.pieces.keysBgStyle;
    };
    constexpr Extra highlightOk = [](lexoria &w) {
        restyle(w.ui->goldenHighlight,
            w.pieces.keyRadiusStyle + w.pieces.highlightBgStyle
                + w.pieces.highlightEnglishColorStyle);
        if (w.goldHighActive)
            w.goldHighOn();
    };
    constexpr Extra lineTopOk = [](lexoria &w) { w.grad(6); };
    constexpr Extra wallpaperTopOk = [](lexoria &w) { w.grad(7); };
    // OK starts painting with the colour on every layer the Paint tab has selected.
    constexpr Extra rainbowBaseOk = [](lexoria &w) {
        w.pickerState.paintingWithBase = false;
        w.turnPaintOn(true);
        w.picker(23)->close();
    };
    constexpr Extra rainbowTopOk = [](lexoria &w) {
        w.pickerState.paintingWithGradient = false;
        w.turnPaintOn(false);
        w.grad(8);
    };

    // What Cancel adds once the old colour has gone back through the live path.
    constexpr Extra englishCancel = [](lexoria &w) {
        w.bgColorLoops();
        w.allChangeColorBack();
    };
    constexpr Extra russianCancel = [](lexoria &w) { w.allChangeColorBack(); };
    constexpr Extra keysBaseCancel = [](lexoria &w) {
        w.bgColorLoops();
        w.restyleSample(KeysSample, Face | English);
        restyle(w.ui->aKeysMap5,
            w.pieces.keyRadiusStyle + w.pieces.keysBgStyle + w.pieces.keysBorderStyle);
        restyleNamed(w.ui, "aKeysMap4",
            transparent + w.pieces.englishColorStyle + w.pieces.englishFontStyle);
        w.allChangeColorBack();
    };
    constexpr Extra keypressCancel = [](lexoria &w) { w.restyleSample(KeypressSample, AllParts); };
    constexpr Extra mouseoverCancel
        = [](lexoria &w) { w.restyleSample(MouseoverSample, AllParts); };
    constexpr Extra finishedCancel = [](lexoria &w) { w.set_dem_StyleSheet(); };
    constexpr Extra lineCancel = [](lexoria &w) {
        restyleNamed(w.ui, "imgBack", QStringLiteral(" background-color: transparent;"));
    };
    constexpr Extra wallpaperCancel = [](lexoria &w) {
        restyle(w.ui->wallpaper, QStringLiteral(" background-color:  #E0E0E0; border:none;"));
    };
    // A top colour never accepted falls back to the base colour: the gradient turns solid.
    constexpr Extra keysTopCancel = [](lexoria &w) {
        w.topFromBase(1, true);
        w.grad(1);
        w.restyleKeysAtRest();
    };
    constexpr Extra highlightBaseCancel
        = [](lexoria &w) { w.targets.highlight.bg.gradColor = w.targets.highlight.bg.color; };
    constexpr Extra keypressTopCancel = [](lexoria &w) {
        w.topFromBase(2, false);
        w.grad(2);
    };
    constexpr Extra mouseoverTopCancel = [](lexoria &w) {
        w.topFromBase(3, false);
        w.grad(3);
    };
    constexpr Extra highlightTopCancel = [](lexoria &w) {
        w.targets.highlight.bg.gradColor = w.targets.highlight.bg.color;
        w.grad(4);
    };
    constexpr Extra finishedTopCancel = [](lexoria &w) {
        w.targets.finished.bg.gradColor = w.targets.finished.bg.color;
        w.grad(5);
    };
    constexpr Extra lineTopCancel = [](lexoria &w) {
        w.pieces.lineHorizontalColor = QStringLiteral(" transparent");
        w.pieces.lineHorizontalGradColor = w.pieces.lineHorizontalColor;
        w.grad(6);
    };
    constexpr Extra wallpaperTopCancel = [](lexoria &w) {
        w.topFromBase(7, false);
        w.grad(7);
    };
    constexpr Extra rainbowBaseCancel = [](lexoria &w) { w.pickerState.paintingWithBase = false; };
    constexpr Extra rainbowTopCancelAlways
        = [](lexoria &w) { w.pickerState.paintingWithGradient = false; };
    constexpr Extra rainbowTopCancel = [](lexoria &w) {
        GradientTarget &rainbow = w.targets.rainbow;
        rainbow.bg.gradColor = rainbow.bg.color;
        rainbow.border.gradColor = rainbow.border.color;
        w.grad(8);
    };

    constexpr Live shadows = [](lexoria &w, const QColor &c) { w.akoKeysEng_26(c); };
    constexpr Live gamePlayShadows = [](lexoria &w, const QColor &c) { w.ako30(c); };

    using S = PickerState;
    static const PickerRow rows[] = {
        {"colorPickerE", "English Key", "english", nullptr, 0, 0, true, nullptr, english, nullptr,
            englishOk, englishCancel, nullptr, true, true},
        {"colorPickerD", "Russian Key", "russianFlag", nullptr, 1000, 0, true, nullptr, russian,
            nullptr, russianOk, russianCancel, nullptr, true, true},
        {"colorPickerBg", "Key Background", nullptr, "black", 2, 2, true, nullptr, keysBase,
            nullptr, keysBaseOk, keysBaseCancel, nullptr, true, true},
        {"colorPickerKpE", "Key Press English", "english", "blue", 4, 4, true, nullptr,
            keypressEnglish, nullptr, nullptr, nullptr, nullptr, true, true},
        {"colorPickerKpD", "Key Press Russian", "russianFlag", "blue", 996, 4, true, nullptr,
            keypressRussian, nullptr, nullptr, nullptr, nullptr, true, true},
        {"colorPickerKpBg", "Key Press Background", nullptr, "black", 6, 6, true, nullptr,
            keypressBase, nullptr, nullptr, keypressCancel, nullptr, true, true},
        {"colorPickerMoE", "Mouseover English", "english", "blue", 8, 8, true, nullptr,
            mouseoverEnglish, nullptr, nullptr, mouseoverCancel, nullptr, true, true},
        {"colorPickerMoD", "Mouseover Russian", "russianFlag", "blue", 992, 8, true, nullptr,
            mouseoverRussian, nullptr, nullptr, nullptr, nullptr, true, true},
        {"colorPickerMoBg", "Mouseover Background", nullptr, "gold", 10, 10, true, nullptr,
            mouseoverBase, nullptr, nullptr, mouseoverCancel, nullptr, true, true},
        {"colorPickerF", "Finished Keys", nullptr, nullptr, 982, 16, true, nullptr, finishedLetters,
            finishedLettersChosen, nullptr, nullptr, nullptr, true, true},
        {"colorPickerFBg", "Finished Keys Background", nullptr, "#737373", 18, 18, true, nullptr,
            finishedBase, finishedBaseChosen, nullptr, finishedCancel, nullptr, true, true},
        {"colorPickerKeyboard", "ImgBack availiable color picker", nullptr, nullptr, 339, 339,
            false, nullptr, lineBase, nullptr, nullptr, nullptr, lineCancel, true, true},
        {"colorPickerWallpaper", "Wallpaper Background", nullptr, nullptr, 20, 20, true, nullptr,
            wallpaperBase, nullptr, nullptr, nullptr, wallpaperCancel, true, true},
        {"colorPickerGradBottom1", "Key Background Gradient", nullptr, "black", 998, 2, true,
            &S::keysGradOpened, keysTop, nullptr, nullptr, nullptr, keysTopCancel, false, false},
        {"colorPickerHiD", "Russian Highlight", nullptr, "black", 988, 12, true, nullptr,
            highlightRussian, highlightRussianChosen, highlightOk, nullptr, nullptr, false, false},
        {"colorPickerHiBg", "Highlight Background", nullptr, "gold", 14, 14, true, nullptr,
            highlightBase, highlightBase, highlightOk, nullptr, highlightBaseCancel, false, false},
        {"colorPickerGradBottom2", "Keypress Background Gradient", nullptr, "black", 994, 6, true,
            &S::keypressGradOpened, keypressTop, keypressTopChosen, nullptr, nullptr,
            keypressTopCancel, false, false},
        {"colorPickerGradBottom3", "Mouseover Background Gradient", nullptr, nullptr, 990, 10, true,
            &S::mouseoverGradOpened, mouseoverTop, mouseoverTopChosen, nullptr, nullptr,
            mouseoverTopCancel, true, false},
        {"colorPickerGradBottom4", "Highlight Background Gradient", nullptr, "gold", 986, 14, true,
            &S::highlightGradOpened, highlightTop, nullptr, highlightOk, nullptr,
            highlightTopCancel, false, false},
        {"colorPickerGradBottom5", "ABC Bar Background Gradient", nullptr, nullptr, 984, 18, true,
            &S::finishedGradOpened, finishedTop, finishedTopChosen, nullptr, nullptr,
            finishedTopCancel, true, false},
        {"colorPickerGradBottom6", "imgBack availiable Background Gradient", nullptr, nullptr, 313,
            213, false, &S::lineGradOpened, lineTop, nullptr, lineTopOk, nullptr, lineTopCancel,
            false, false},
        {"colorPickerGradBottom7", "Wallpaper Background Gradient", nullptr, nullptr, 982, 20, true,
            &S::wallpaperGradOpened, wallpaperTop, nullptr, wallpaperTopOk, nullptr,
            wallpaperTopCancel, false, false},
        {"colorPickerRainbowBg", nullptr, nullptr, "black", 22, 24, true, nullptr, rainbowBase,
            rainbowBase, rainbowBaseOk, rainbowBaseCancel, nullptr, false, true},
        {"colorPickerGradBottom8", nullptr, nullptr, "black", 980, 24, true, &S::rainbowGradOpened,
            rainbowTop, nullptr, rainbowTopOk, rainbowTopCancelAlways, rainbowTopCancel, false,
            false},
        {"colorPickerHiE", "English Highlight", nullptr, "black", 12, 12, true, nullptr,
            highlightEnglish, highlightEnglishChosen, highlightOk, nullptr, nullptr, true, false},
        {"textShadowColorBox", "All Shadow Colors", nullptr, "#484848", 28, 32, false, nullptr,
            shadows, shadowsChosen, nullptr, nullptr, nullptr, false, false},
        {"colorPicker27", "Game Play Background", nullptr, nullptr, 26, 30, true, nullptr,
            gamePlayBase, gamePlayBase, nullptr, nullptr, nullptr, false, false},
        {"colorPickerGradBottom27", "Game Play Background Gradient", nullptr, nullptr, 976, 30,
            true, &S::gamePlayGradOpened, gamePlayTop, gamePlayTop, nullptr, nullptr, nullptr,
            false, false},
        {"colorPicker29", "Russian Game Play Key", "russianFlag", nullptr, 978, 28, true, nullptr,
            gamePlayText, gamePlayTextChosen, nullptr, nullptr, nullptr, false, false},
        {"colorPicker30", "Game Play Shadow", nullptr, "#484848", 24, 26, false, nullptr,
            gamePlayShadows, gamePlayShadowsChosen, nullptr, nullptr, nullptr, false, false},
    };
    static_assert(std::size(rows) == 30, "one row per picker");
    return rows[N - 1];
}

QColorDialog *lexoria::picker(int N)
{
    if (N < 1 || N > 30)
        return nullptr;
    std::unique_ptr<QColorDialog> &dialog = colorDialogs[N];
    if (dialog)
        return dialog.get();
    // Made on first use: thirty dialogs of a few hundred widgets each would double the
    // window's construction for pickers most players never open.
    const PickerRow &row = pickerRow(N);
    dialog = std::make_unique<QColorDialog>();
    dialog->setObjectName(QLatin1String(row.opener));
    // The native dialogs of some desktops report no colour until OK, so nothing would follow
    // the picker live; nor do they keep a place of their own.
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    dialog->setOption(QColorDialog::ShowAlphaChannel, row.alpha);
    if (row.title)
        dialog->setWindowTitle(QLatin1String(row.title));
    if (row.icon)
        dialog->setWindowIcon(QIcon(QStringLiteral(":/new/prefix1/%1.gif").arg(row.icon)));
    if (row.start)
        dialog->setCurrentColor(QColor(QLatin1String(row.start)));
    dialog->move(row.x, row.y);

    // A move can change the colour more than once (the dialog reports colour and alpha one
    // after the other), and restyling the board takes longer than a move: only the latest
    // colour of an event-loop turn is applied.
    connect(dialog.get(), &QColorDialog::currentColorChanged, this, [this, N](const QColor &color) {
        liveColors[N] = color;
        if (livePending[N])
            return;
        livePending[N] = true;
        QMetaObject::invokeMethod(
            this, [this, N] { applyLiveColour(N); }, Qt::QueuedConnection);
    });
    if (row.selected)
        connect(dialog.get(), &QColorDialog::colorSelected, this, [this, N](const QColor &color) {
            applyLiveColour(N);
            pickerRow(N).selected(*this, color);
        });
    connect(dialog.get(), &QDialog::accepted, this, [this, N] { pickerAcceptedBy(N); });
    connect(dialog.get(), &QDialog::rejected, this, [this, N] { pickerRejectedBy(N); });
    return dialog.get();
}

void lexoria::enableColor(int N)
{
    QColorDialog *dialog = picker(N);
    if (!dialog)
        return;
    allRise();
    if (N == 24) {
        if (radioChecked("rainbowBackground"))
            dialog->setWindowTitle(QStringLiteral("Rainbow Background Gradient 2"));
        if (radioChecked("rainbowBorder"))
            dialog->setWindowTitle(QStringLiteral("Rainbow Border Gradient 2"));
        pickerState.paintingWithGradient = true;
    }
    // Without a parent the dialog blocks no window: the keyboard stays live behind it, which
    // is what lets the Paint tab paint keys with the mouse.
    dialog->open();
    if (N == 23) {
        pickerState.paintingWithBase = true;
        return;
    }
    savedColors[N] = dialog->currentColor();
    if (bool PickerState::*flag = pickerRow(N).topFlag)
        pickerState.*flag = true;
}

void lexoria::allRise()
{
    for (int N : riseOrder) {
        if (colorDialogs[N] && colorDialogs[N]->isVisible())
            colorDialogs[N]->raise();
    }
}

void lexoria::closePickers(int except)
{
    // A visible dialog that is closed rejects itself: every picker closed here is cancelled.
    for (int N : closeOrder) {
        if (N != except && colorDialogs[N])
            colorDialogs[N]->close();
    }
}

void lexoria::applyLiveColour(int N)
{
    if (!livePending[N])
        return;
    livePending[N] = false;
    pickerRow(N).live(*this, liveColors[N]);
}

void lexoria::pickerAcceptedBy(int N)
{
    const PickerRow &row = pickerRow(N);
    applyLiveColour(N);
    pickerState.pickerAccepted[N] = true;
    allRise();
    if (row.ok)
        row.ok(*this);
    if (row.focusAfterOk)
        QTimer::singleShot(1000, this, &lexoria::clearFocusEverywhere);
}

void lexoria::pickerRejectedBy(int N)
{
    const PickerRow &row = pickerRow(N);
    // Giving the picker back its old colour undoes, by its own signal, whatever the live
    // colour did.
    if (N != 23)
        colorDialogs[N]->setCurrentColor(savedColors[N]);
    applyLiveColour(N);
    if (row.cancelAlways)
        row.cancelAlways(*this);
    if (row.cancelNeverAccepted && !pickerState.pickerAccepted[N])
        row.cancelNeverAccepted(*this);
    allRise();
    if (row.focusAfterCancel)
        QTimer::singleShot(1000, this, &lexoria::clearFocusEverywhere);
}

void lexoria::openPickerUnderMouse()
{
    for (int N = 1; N <= 30; ++N) {
        // The Paint tab opens its two pickers through its own targets.
        if (N == 23 || N == 24)
            continue;
        const QWidget *swatch = ui->widget(QLatin1String(pickerRow(N).opener));
        if (swatch && swatch->underMouse())
            enableColor(N);
    }
}

void lexoria::setUpPickerSwatches()
{
    const QPixmap swatch(QStringLiteral(":/new/prefix1/colorPicker.png"));
    for (int N = 1; N <= 30; ++N) {
        if (auto *label = ui->find<QLabel>(QLatin1String(pickerRow(N).opener))) {
            if (N != 23 && N != 24)
                label->setPixmap(swatch);
        }
    }
}

bool lexoria::radioChecked(const char *name, bool whenMissing) const
{
    const auto *button = name ? ui->find<QAbstractButton>(QLatin1String(name)) : nullptr;
    return button ? button->isChecked() : whenMissing;
}

// The sides a picker of the target writes, as its "Target to Affect" buttons say. Background is
// the side checked at start, so it is also the side when the buttons are not there.
QList<lexoria::ColourSet> lexoria::selectedSides(int target)
{
    auto setOf = [](GradientSide &side) {
        return ColourSet {&side.color, &side.gradColor, &side.radialColor, &side.radialGradColor};
    };
    auto byRadios = [&](GradientTarget &t, const char *bg, const char *border) {
        QList<ColourSet> sides;
        if (radioChecked(bg, true))
            sides.append(setOf(t.bg));
        if (radioChecked(border))
            sides.append(setOf(t.border));
        return sides;
    };
    switch (target) {
    case 1:
        return byRadios(targets.keys, "backgroundLeft", "borderLeft");
    case 2:
        return byRadios(targets.keypress, "backgroundCenter", "borderCenter");
    case 3:
        return byRadios(targets.mouseover, "backgroundRight", "borderRight");
    case 4:
        return byRadios(targets.highlight, "backgroundHi", "borderHi");
    case 5:
        return {setOf(targets.finished.bg)};
    case 6:
        if (radioChecked("lhVerticalRadio") || radioChecked("lhBothRadio", true))
            return {{&pieces.lineVerticalColor, &pieces.lineVerticalGradColor,
                &pieces.lineVerticalRadialColor, &pieces.lineVerticalRadialGradColor}};
        if (radioChecked("lhHorizontalRadio"))
            return {{&pieces.lineHorizontalColor, &pieces.lineHorizontalGradColor,
                &pieces.lineHorizontalRadialColor, &pieces.lineHorizontalRadialGradColor}};
        return {};
    case 7:
        return {setOf(radioChecked("backgroundWallpaper", true) ? targets.wallpaper.bg
                                                                : targets.wallpaper.border)};
    case 8: {
        QList<ColourSet> sides;
        if (radioChecked("rainbowBackground", true) || radioChecked("rainbowEnglish")
            || radioChecked("rainbowLowercase") || radioChecked("rainbowUppercase"))
            sides.append(setOf(targets.rainbow.bg));
        if (radioChecked("rainbowBorder"))
            sides.append(setOf(targets.rainbow.border));
        return sides;
    }
    case 27:
        return byRadios(targets.gamePlay, "backgroundGamePlay", "borderGamePlay");
    }
    return {};
}

bool &lexoria::gradOpened(int target)
{
    switch (target) {
    case 1:
        return pickerState.keysGradOpened;
    case 2:
        return pickerState.keypressGradOpened;
    case 3:
        return pickerState.mouseoverGradOpened;
    case 4:
        return pickerState.highlightGradOpened;
    case 5:
        return pickerState.finishedGradOpened;
    case 6:
        return pickerState.lineGradOpened;
    case 7:
        return pickerState.wallpaperGradOpened;
    case 8:
        return pickerState.rainbowGradOpened;
    }
    return pickerState.gamePlayGradOpened;
}

// Until the target's top picker has been opened, a new base colour is the top colour too, so
// the gradient stays one solid colour.
void lexoria::baseColour(int target, const QColor &color, BaseRule rule)
{
    const bool alsoTop = !gradOpened(target);
    bool radial = true;
    bool plain = true;
    if (rule == BaseRule::ByShape) {
        const auto *shape = ui->find<QSlider>(QStringLiteral("hoSlider1"));
        radial = shape && shape->value() == 4;
        plain = !radial;
    }
    const QString name = nameText(color);
    const QString rgba = rgbaText(color);
    for (const ColourSet &side : selectedSides(target)) {
        if (radial) {
            *side.radialColor = name;
            if (alsoTop && rule != BaseRule::PlainTopOnly)
                *side.radialGradColor = name;
        }
        if (plain) {
            *side.color = rgba;
            if (alsoTop)
                *side.gradColor = rgba;
        }
    }
}

void lexoria::topColour(int target, const QColor &color)
{
    const QString name = nameText(color);
    const QString rgba = rgbaText(color);
    for (const ColourSet &side : selectedSides(target)) {
        *side.radialGradColor = name;
        *side.gradColor = rgba;
    }
}

void lexoria::topFromBase(int target, bool radialToo)
{
    for (const ColourSet &side : selectedSides(target)) {
        *side.gradColor = *side.color;
        if (radialToo)
            *side.radialGradColor = *side.radialColor;
    }
}

// The faces and bar cells of every key at rest. A picker leaves finished cells their finished
// look, which the game refresh would give back to them anyway; the gradient tab paints over
// them as it always has.
void lexoria::restyleKeysAtRest(bool finishedToo)
{
    const QString face = pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle;
    for (QLabel *label : qAsConst(keyBgLabels))
        restyle(label, face);
    const QString cell = pieces.barRadiusStyle + pieces.keysBgStyle;
    for (int n = 1; n <= letterCount; ++n) {
        if (finishedToo || !letterDone[n])
            restyle(barBgLabels[n - 1], cell);
    }
}

void lexoria::stepListA()
{
    restyleSample(KeysSample, English);
    const QString english = transparent + pieces.englishColorStyle + pieces.englishFontStyle;
    restyleNamed(ui, "aKeysMap4", english);
    for (QLabel *label : qAsConst(keyEnglishLabels))
        restyle(label, english);
    const QString underscore = pieces.englishColorStyle + pieces.englishFontStyle;
    restyle(ui->underscore_right, underscore);
    restyle(ui->underscore_left, underscore);
    fillRainbowE();
}

void lexoria::stepListB()
{
    restyleSample(KeysSample, Russian);
    restyleSample(RainbowSample, Russian);
    restyleNamed(ui, "aKeysMap2", transparent + pieces.upperColorStyle + pieces.upperFontStyle);
    restyleNamed(ui, "aKeysMap3", transparent + pieces.lowerColorStyle + pieces.lowerFontStyle);
    // Each letter keeps the font family of its row, as it has at rest; finished cells of the
    // bar keep their own colour.
    for (int n = 1; n <= letterCount; ++n) {
        const QString letter = pieces.upperColorStyle + fontPiece(n);
        if (!letterDone[n])
            restyle(barLabels[n - 1], letter);
        restyle(keyLetterLabels[n - 1], letter);
    }
    bgColorLoops();
    fillRainbowUp();
    fillRainbowLow();
}

// The game refresh: whatever a game has coloured so far is coloured again.
void lexoria::bgColorLoops()
{
    if (correctCount != 0) {
        if (ui->rbForward_2->isChecked())
            forwardIsKeyPressed_CSS();
        if (ui->rbReverse_2->isChecked())
            reverseIsKeyPressed_CSS();
    }
    if (goldHighActive)
        goldHighOn();
}

void lexoria::turnPaintOn(bool withBorder)
{
    struct Layer
    {
        const char *radio;
        bool Painted::*on;
        QString Painted::*text;
        bool checkedAtStart;
    };
    static const Layer layers[] = {
        {"rainbowBorder", &Painted::paintBorderOn, &Painted::paintBorderText, false},
        {"rainbowBackground", &Painted::paintBackgroundOn, &Painted::paintBackgroundText, true},
        {"rainbowLowercase", &Painted::paintLowerOn, &Painted::paintLowerText, false},
        {"rainbowUppercase", &Painted::paintUpperOn, &Painted::paintUpperText, false},
        {"rainbowEnglish", &Painted::paintEnglishOn, &Painted::paintEnglishText, false},
    };
    for (const Layer &layer : layers) {
        if (!withBorder && layer.on == &Painted::paintBorderOn)
            continue;
        if (radioChecked(layer.radio, layer.checkedAtStart)) {
            painted.*layer.on = true;
            painted.*layer.text = QStringLiteral("1");
        }
    }
}

void lexoria::textColourOfGamePlay(const QColor &color, const char *lead)
{
    const QString piece = textColour(lead, rgbaText(color), ";");
    if (radioChecked("matchThisCm")) {
        pieces.matchTextColorStyle = piece;
    } else if (radioChecked("yourEntryCm")) {
        pieces.userTextColorStyle = piece;
    } else {
        pieces.matchTextColorStyle = piece;
        pieces.userTextColorStyle = piece;
    }
    set_Match_StyleSheet();
    set_User_StyleSheet();
    if (!radioChecked("gamePlayCb"))
        return;
    if (QWidget *header = ui->widget(QStringLiteral("matchThis")))
        restyle(header,
            "background-color: transparent;  font: 12pt 'MS Shell Dlg 2';"
                + pieces.matchTextColorStyle);
    if (QWidget *header = ui->widget(QStringLiteral("yourEntry")))
        restyle(header,
            "background-color: transparent; font: 12pt 'MS Shell Dlg 2';"
                + pieces.userTextColorStyle);
}
