#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/restyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTimer>

using namespace optionscatalogue;

namespace optionsmenu {

// Nobody sees the menu move while the main window is hidden (at construction, above all),
// so there its delays and slides collapse into their end state at once.
template <class Step> void after(lexoria *window, int ms, Step step)
{
    if (window->isVisible())
        QTimer::singleShot(ms, window, step);
    else
        step();
}

QRect rectOf(const Rect &r)
{
    return QRect(r.x, r.y, r.w, r.h);
}

} // namespace optionsmenu

using optionsmenu::after;

void lexoria::connectOptions()
{
    connect(ui->find<QPushButton>(QStringLiteral("options")), &QPushButton::clicked, this,
        &lexoria::showFrame);
    connect(ui->find<QPushButton>(QStringLiteral("closeX")), &QPushButton::clicked, this,
        &lexoria::hideFrame);
    for (const PanelRow &row : panels) {
        const int panel = row.panel;
        connect(ui->find<QPushButton>(QLatin1String(row.button)), &QPushButton::clicked, this,
            [this, panel] { showPanel(panel); });
    }

    connect(ui->find<QRadioButton>(QStringLiteral("xRayColorMadnessOn")), &QRadioButton::clicked,
        this, &lexoria::xNonVitalsOn2_function);
    connect(ui->find<QRadioButton>(QStringLiteral("xRayColorMadnessOff")), &QRadioButton::clicked,
        this, &lexoria::xNonVitalsOff2_function);
    connect(ui->hideNonVitals, &QPushButton::clicked, this, &lexoria::hideNonVitals_function);
    connect(ui->find<QCheckBox>(QStringLiteral("bridgeTop")), &QCheckBox::clicked, this,
        &lexoria::bridgeTop_function);
    connect(ui->find<QCheckBox>(QStringLiteral("bridgeBottom")), &QCheckBox::clicked, this,
        &lexoria::bridgeBottom_function);

    // The band is solid white: declared opaque, it spares Qt repainting the hundred widgets
    // under it on every step of its slide. Only its bottom corners are rounded, over white.
    ui->widget(QStringLiteral("optionsShield"))->setAttribute(Qt::WA_OpaquePaintEvent);

    // The tab bar itself lies under frameTabShield, whose labels do its work.
    ui->find<QTabWidget>(QStringLiteral("tabWidget"))->setTabPosition(QTabWidget::East);
    tabSelected.fill(QStringLiteral("0"));
    tabSelected[0] = QStringLiteral("1");
    paintTabs();
}

void lexoria::slide(int id)
{
    const Slide &move = slides[id];
    QWidget *widget = ui->widget(QLatin1String(move.widget));
    // A widget follows one slide at a time: a newer one takes over instead of fighting on.
    for (int other = 0; other < SlideCount; ++other) {
        if (slideRunning[other] && qstrcmp(slides[other].widget, move.widget) == 0)
            slideRunning[other]->stop();
    }
    const QRect to = optionsmenu::rectOf(move.to);
    if (!isVisible()) {
        widget->setGeometry(to);
        return;
    }
    auto *animation = new QPropertyAnimation(widget, "geometry", this);
    animation->setDuration(move.ms);
    animation->setStartValue(optionsmenu::rectOf(move.from));
    animation->setEndValue(to);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    slideRunning[id] = animation;
}

void lexoria::showFrame()
{
    if (tocOpen)
        return;
    tocOpen = true;
    const int run = ++menuRun;

    QWidget *shield = ui->widget(QStringLiteral("optionsShield"));
    shield->raise();
    shield->show();
    for (const char *name : {"tableOfContents", "optionsArrow1", "optionsArrow2", "optionsArrow3",
             "optionsText1", "optionsText2", "closeX"})
        ui->widget(QLatin1String(name))->raise();

    slide(OptionsShieldIn);
    slide(TableOfContentsIn);
    slide(CloseXIn);
    after(this, arrowsInDelay, [this, run] {
        if (run != menuRun)
            return;
        masterAnimateIn();
        masterOptionsTextIn();
    });
    // The number of the letter under the mouse would stand on the white band.
    restyle(ui->letterOfAlphabet2, QLatin1String(letterNumberOnShield));
}

void lexoria::hideFrame()
{
    const int run = ++menuRun;
    after(this, slideOutDelay, [this, run] {
        if (run != menuRun)
            return;
        slide(OptionsShieldOut);
        slide(TableOfContentsOut);
        slide(CloseXOut);
    });
    masterAnimateOut();
    masterOptionsTextOut();
    // A chosen gif reaches the 94 pulse movies only now, all at once.
    if (effects.gifEffectOn)
        QTimer::singleShot(1400, this, &lexoria::loadVorticKeyboardGame);
    restyle(ui->letterOfAlphabet2, QLatin1String(letterNumberAtRest));
    QTimer::singleShot(focusBackDelay, this, &lexoria::clearFocusEverywhere);
    for (int panel :
        {ColorMadness, Fonts, optionscatalogue::Shadows, Vortic, Photos, GamePlay, Audio})
        hidePanel(panel);
    // The line highlight's gradient picker serves a frame outside the menu and stays.
    closePickers(21);
    // Until then a click on "Show Advanced Options" is ignored, so a double click on closeX
    // does not bring the menu straight back.
    after(this, reopenDelay, [this, run] {
        if (run == menuRun)
            tocFlagTrue();
    });
}

void lexoria::tocFlagTrue()
{
    tocOpen = false;
}

void lexoria::masterAnimateIn()
{
    for (int id : {OptionsArrow1In, OptionsArrow2In, OptionsArrow3In})
        slide(id);
}

void lexoria::masterAnimateOut()
{
    for (int id : {OptionsArrow1Out, OptionsArrow2Out, OptionsArrow3Out})
        slide(id);
}

void lexoria::masterOptionsTextIn()
{
    const int run = menuRun;
    after(this, firstTextDelay, [this, run] {
        if (run == menuRun)
            slide(OptionsText1In);
    });
    after(this, secondTextDelay, [this, run] {
        if (run == menuRun)
            slide(OptionsText2In);
    });
}

void lexoria::masterOptionsTextOut()
{
    const int run = menuRun;
    after(this, firstTextDelay, [this, run] {
        if (run == menuRun)
            slide(OptionsText1Out);
    });
    after(this, secondTextDelay, [this, run] {
        if (run == menuRun)
            slide(OptionsText2Out);
    });
}

void lexoria::showPanel(int panel)
{
    const PanelRow &row = panels[panel];
    if (panel == ColorMadness) {
        for (const List<Place> &places : {listOf(colorMadnessOpens), listOf(wallpaperPage)}) {
            for (const Place &place : places) {
                if (QWidget *widget = ui->widget(QLatin1String(place.widget)))
                    widget->move(place.x, place.y);
            }
        }
    }
    if (openPanels.*row.open)
        hidePanel(panel);
    else
        openPanel(panel);
    for (int other = 0; other < PanelCount; ++other) {
        if (other != panel)
            hidePanel(other);
    }
}

void lexoria::openPanel(int panel)
{
    const PanelRow &row = panels[panel];
    if (panel == ColorMadness)
        ui->widget(QStringLiteral("tableOfContents"))->raise();
    for (const char *name : row.enables) {
        if (QWidget *widget = ui->widget(QLatin1String(name)))
            widget->setEnabled(true);
    }
    auto bringIn = [this](const Place &place) {
        QWidget *widget = ui->widget(QLatin1String(place.widget));
        if (!widget)
            return;
        widget->move(place.x, place.y);
        if (place.shown)
            widget->show();
        widget->raise();
    };
    for (const Place &place : row.opens)
        bringIn(place);
    if (panel == ColorMadness
        && ui->find<QTabWidget>(QStringLiteral("tabWidget"))->currentIndex() == wallpaperTab - 1) {
        for (const Place &place : wallpaperPage)
            bringIn(place);
    }
    if (panel == GamePlay)
        ui->widget(QStringLiteral("optionsShield"))->hide();
    // The example key only fades while someone can see it.
    if (panel == Vortic)
        startFade();

    if (QWidget *button = ui->widget(QLatin1String(row.button)))
        static_cast<QPushButton *>(button)->setText(QStringLiteral("Close"));
    openPanels.*row.open = true;
    clearFocusEverywhere();
    if (QWidget *marker = ui->widget(QLatin1String(row.marker)))
        marker->show();
}

void lexoria::hidePanel(int panel)
{
    const PanelRow &row = panels[panel];
    // X-Ray Vision ends with its panel, or the window would stay cleared.
    if (panel == Photos && ui->xRayVision->isChecked()) {
        ui->xRayVision->setChecked(false);
        xRayVisionPhotos();
    }
    if (panel == ColorMadness) {
        if (ui->find<QRadioButton>(QStringLiteral("xRayColorMadnessOff"))->isChecked())
            xNonVitalsOn_function();
        for (const char *name : {"bridge1", "bridge2"})
            ui->widget(QLatin1String(name))->hide();
        for (const char *name : {"bridgeTop", "bridgeBottom"})
            ui->find<QCheckBox>(QLatin1String(name))->setChecked(false);
        clearFocusEverywhere();
        for (const Place &place : wallpaperPage) {
            if (QWidget *widget = ui->widget(QLatin1String(place.widget)))
                widget->hide();
        }
    }

    if (panel == Vortic)
        stopFade();
    if (QWidget *button = ui->widget(QLatin1String(row.button)))
        static_cast<QPushButton *>(button)->setText(QStringLiteral("Open"));
    openPanels.*row.open = false;
    if (QWidget *marker = ui->widget(QLatin1String(row.marker)))
        marker->hide();
    for (const Place &place : row.opens) {
        QWidget *widget = ui->widget(QLatin1String(place.widget));
        if (widget && place.shown)
            widget->hide();
    }
    for (const Place &place : row.parks) {
        if (QWidget *widget = ui->widget(QLatin1String(place.widget)))
            widget->move(place.x, place.y);
    }
    for (const char *name : row.enables) {
        if (QWidget *widget = ui->widget(QLatin1String(name))) {
            widget->clearFocus();
            widget->setEnabled(false);
        }
    }
    if (panel == GamePlay)
        ui->widget(QStringLiteral("optionsShield"))->show();
}

void lexoria::paintTabs()
{
    for (int tab = 1; tab <= tabCount; ++tab) {
        const char *look = tabSelected[tab - 1] == QLatin1String("1") ? tabActiveStyle
            : tab % 2                                                 ? tabRedStyle
                                                                      : tabBlueStyle;
        restyle(ui->widget(QStringLiteral("labelTab%1").arg(tab)), QLatin1String(look));
    }
}

void lexoria::selectColorMadnessTab(int tab)
{
    ui->find<QTabWidget>(QStringLiteral("tabWidget"))->setCurrentIndex(tab - 1);
    for (const Place &place : wallpaperPage) {
        QWidget *widget = ui->widget(QLatin1String(place.widget));
        if (!widget)
            continue;
        if (tab == wallpaperTab) {
            widget->show();
            widget->raise();
        } else {
            widget->hide();
        }
    }
    for (QString &selected : tabSelected)
        selected = QStringLiteral("0");
    tabSelected[tab - 1] = QStringLiteral("1");
    paintTabs();
}

// Every left press of the window comes here; a tab label under the mouse selects its page.
void lexoria::colorMadnessTabClicked()
{
    for (int tab = 1; tab <= tabCount; ++tab) {
        if (ui->widget(QStringLiteral("labelTab%1").arg(tab))->underMouse()) {
            selectColorMadnessTab(tab);
            return;
        }
    }
}

void lexoria::hoverColorMadnessTab(int tab, bool entered)
{
    if (tabSelected[tab - 1] == QLatin1String("1"))
        return;
    const bool odd = tab % 2;
    const char *look = entered ? (odd ? tabRedHoverStyle : tabBlueHoverStyle)
                               : (odd ? tabRedStyle : tabBlueStyle);
    restyle(ui->widget(QStringLiteral("labelTab%1").arg(tab)), QLatin1String(look));
}

void lexoria::colorMadnessTabsShadow()
{
    for (int tab = 1; tab <= tabCount; ++tab) {
        QWidget *label = ui->widget(QStringLiteral("labelTab%1").arg(tab));
        auto *shadow = new QGraphicsDropShadowEffect(label);
        shadow->setOffset(4, 4);
        label->setGraphicsEffect(shadow);
    }
}

// Hiding remembers what it took away, and showing gives back exactly that: a pane or a
// check mark that was hidden before stays hidden, and the variants of the X-ray radios
// and of the pictures panel share one memory.
void lexoria::setNonVitalsVisible(bool visible, bool withMenu, bool withColorMadness)
{
    if (visible) {
        for (const QPointer<QWidget> &widget : qAsConst(nonVitalsCleared)) {
            if (widget)
                widget->show();
        }
        nonVitalsCleared.clear();
        hideShields();
        return;
    }
    auto clear = [this](const char *name) {
        QWidget *widget = ui->widget(QLatin1String(name));
        if (widget && !widget->isHidden()) {
            widget->hide();
            nonVitalsCleared.append(widget);
        }
    };
    for (const char *name : nonVitals)
        clear(name);
    if (withColorMadness) {
        for (const char *name : colorMadnessPanel)
            clear(name);
    }
    if (withMenu) {
        for (const char *name : menuDressing)
            clear(name);
    }
}

void lexoria::xNonVitalsOn_function()
{
    setNonVitalsVisible(true);
    showDemoAfterNonVitals();
}

void lexoria::xNonVitalsOff_function()
{
    setNonVitalsVisible(false);
    stopDemo();
}

void lexoria::xNonVitalsOn2_function()
{
    setNonVitalsVisible(true);
}

void lexoria::xNonVitalsOff2_function()
{
    setNonVitalsVisible(false, true, true);
    stopDemo();
}

void lexoria::xNonVitalsOnPhotos_function()
{
    setNonVitalsVisible(true);
}

void lexoria::xNonVitalsOffPhotos_function()
{
    setNonVitalsVisible(false, true);
    stopDemo();
}

void lexoria::hideNonVitals_function()
{
    nonVitalsHidden = !nonVitalsHidden;
    if (nonVitalsHidden)
        xNonVitalsOff_function();
    else
        xNonVitalsOn_function();
    ui->hideNonVitals->setText(nonVitalsHidden ? QStringLiteral("Show") : QStringLiteral("Hide"));
}

void lexoria::bridgeTop_function()
{
    QWidget *bridge = ui->widget(QStringLiteral("bridge1"));
    if (ui->find<QCheckBox>(QStringLiteral("bridgeTop"))->isChecked()) {
        bridge->show();
        bridge->raise();
    } else {
        bridge->hide();
    }
}

void lexoria::bridgeBottom_function()
{
    QWidget *bridge = ui->widget(QStringLiteral("bridge2"));
    if (ui->find<QCheckBox>(QStringLiteral("bridgeBottom"))->isChecked()) {
        bridge->show();
        bridge->raise();
    } else {
        bridge->hide();
    }
}

void lexoria::makeFusion()
{
    // One style object serves them all; it lives as long as the window.
    QStyle *fusion = QStyleFactory::create(QStringLiteral("Fusion"));
    if (!fusion)
        return;
    fusion->setParent(this);
    for (const char *name : {"menuAudio", "menuFonts", "menuShadows", "menuVorticKeyboard",
             "sliderKeyShape", "sliderTextShadowKeyboardBg_2", "sliderTricks_2", "sliderTricks",
             "sliderTextShadowKeyboardBg", "sliderTextShadowAbcBg", "sliderTextShadowEng",
             "sliderTextShadowLowAbcBg", "sliderTextShadowLexAbc", "sliderTextShadowLexLowAbc",
             "sliderTextShadowLexKey", "sliderTextShadowLexLowKey", "sliderTsGpText",
             "sliderTsGpBg", "sliderTsGpText_2", "sliderTsGpBg_2", "menuGamePlay",
             "menuColorMadness", "menuPhotos", "closeX", "goldenHighlight"}) {
        if (QWidget *widget = ui->widget(QLatin1String(name)))
            widget->setStyle(fusion);
    }
}
