#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/linecatalogue.h"
#include "lexoria/restyle.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

using namespace keycatalogue;

namespace {
const QString greyText = QStringLiteral("color: #6e6e6e");

bool isOn(const QString &flag)
{
    return flag == QLatin1String("1");
}
} // namespace

void lexoria::setUpAids()
{
    connect(ui->goldenHighlight, &QPushButton::clicked, this, &lexoria::setGoldHigh);
    connect(ui->lineHighlight, &QPushButton::clicked, this, &lexoria::setLineHigh);
    connect(ui->lineHighOptions, &QPushButton::clicked, this, &lexoria::lineHighOptions_function);
    connect(ui->hint, &QPushButton::clicked, this, &lexoria::hint2);
    pieces.goldKeyRussianColorStyle = pieces.keypressRussianColorStyle;
    pieces.goldKeyEnglishColorStyle = pieces.keypressEnglishColorStyle;
    // Before the first Start the button looks as it does after a Stop.
    restyle(ui->goldenHighlight, pieces.keyRadiusStyle + pieces.highlightBgStyle + greyText);

    randomFlags();
    lineHighActive = false;
    fillLinehighlightH();
    fillLinehighlightV();
    lineHighlightLower();
    ui->frameLinehighlight->hide();
    for (const char *name :
        {"linePosition1BG", "linePosition2BG", "lhVertDisplay_3", "liHordisplay_2"})
        ui->widget(QLatin1String(name))->lower();
    ui->widget(QStringLiteral("lhVertDisplay_2"))->raise();
}

void lexoria::setGoldHigh()
{
    restyle(ui->goldenHighlight,
        pieces.keyRadiusStyle + pieces.highlightBgStyle + pieces.highlightEnglishColorStyle);
    if (!goldHighActive) {
        ui->hint->setEnabled(false);
        restyle(ui->hint, QStringLiteral(" color: #6e6e6e; "));
        goldHighOn();
        goldHighActive = true;
        ui->letterOfAlphabet2->clear();
        QTimer::singleShot(5000, this, &lexoria::clearGoodJob);
    } else {
        ui->hint->setEnabled(true);
        restyle(ui->hint, QStringLiteral(" color: blue; "));
        goldHighActive = false;
        goldHighOff();
    }
}

// The bar cell of the letter is lit with its key, so the player can look either way.
void lexoria::goldHighOn()
{
    const int n = letterNumberOfText(ui->leMatch->text());
    if (n == 0)
        return;
    const int k = keyOfLetter(n);
    const QString letter = pieces.highlightRussianColorStyle + fontPiece(n);
    restyle(keyLetterLabels[n - 1], letter);
    restyle(keyEnglishLabels[k - 1], pieces.highlightEnglishColorStyle + pieces.englishFontStyle);
    restyle(keyBgLabels[k - 1],
        pieces.keyRadiusStyle + pieces.highlightBgStyle + pieces.highlightBorderStyle);
    if (isOn(pictures.highlightImageOn)) {
        keyImgLabels[k - 1]->setMovie(&pictures.highlightMovie);
        keyImgLabels[k - 1]->show();
    }
    restyle(barBgLabels[n - 1], pieces.barRadiusStyle + pieces.highlightBgStyle);
    restyle(barLabels[n - 1], letter);
}

void lexoria::goldHighOff()
{
    const int n = letterNumberOfText(ui->leMatch->text());
    if (n == 0)
        return;
    const int k = keyOfLetter(n);
    const QString letter
        = (rowPainted(n) ? painted.paintCharColor[n] : colourPiece(n)) + fontPiece(n);
    restyle(keyLetterLabels[n - 1], letter);
    restKeyFace(k);
    QLabel *image = keyImgLabels[k - 1];
    if (isOn(pictures.keysImageOn)) {
        image->setMovie(&pictures.keysMovie);
        image->show();
    } else {
        image->hide();
    }
    restyle(barBgLabels[n - 1],
        pieces.barRadiusStyle
            + (painted.paintBackgroundOn ? painted.paintBgStyle[k] : pieces.keysBgStyle));
    restyle(barLabels[n - 1], letter);
}

// A press would otherwise paint over the gold: the highlighted key keeps its gold face and
// shows the press colours on it.
void lexoria::keyGoldHigh(int n)
{
    const int shown = letterNumberOfText(ui->leMatch->text());
    const int k = keyOfLetter(n);
    const CharacterKey &key = characterKey(k);
    if (shown == 0 || (shown != key.lower && shown != key.upper))
        return;
    const QString letter = pieces.goldKeyRussianColorStyle + fontPiece(n);
    restyle(keyLetterLabels[n - 1], letter);
    restyle(keyEnglishLabels[k - 1], pieces.goldKeyEnglishColorStyle + pieces.englishFontStyle);
    restyle(keyBgLabels[k - 1], pieces.keyRadiusStyle + pieces.highlightBgStyle);
    if (isOn(pictures.keypressImageOn))
        keyImgLabels[k - 1]->setMovie(&pictures.keypressMovie);
    if (!ui->checkBox->isChecked())
        keyImgLabels[k - 1]->setMovie(&pictures.highlightMovie);
    // The bar cell stays gold only when the press is the letter itself, not its other case.
    if (letterList.value(lastKeyIndex) == ui->leMatch->text()) {
        restyle(barBgLabels[n - 1], pieces.barRadiusStyle + pieces.highlightBgStyle);
        restyle(barLabels[n - 1], letter);
    }
}

// The last letter of a game never passes through goldHighOff, so its highlight picture
// would outlive the game on the key where each group ends.
void lexoria::killGoldHighForGoodAtEnd()
{
    if (goldHighActive || isOn(pictures.keysImageOn) || !isOn(pictures.highlightImageOn))
        return;
    for (int k : {26, 42, 6, 28})
        keyImgLabels[k - 1]->hide();
}

void lexoria::setLineHigh()
{
    if (!lineHighActive) {
        lineHighOn();
        lineHighActive = true;
        QTimer::singleShot(5000, this, &lexoria::clearGoodJob);
    } else {
        lineHighActive = false;
        lineHighOff();
    }
}

void lexoria::lineHighOn()
{
    showLinesOfMatch(true);
}

void lexoria::lineHighOff()
{
    showLinesOfMatch(false);
}

// Only the two lines of the letter in leMatch are touched, so the judges take the lines off
// before the next letter is shown.
void lexoria::showLinesOfMatch(bool shown)
{
    const int n = letterNumberOfText(ui->leMatch->text());
    if (n == 0)
        return;
    for (const char *name : {linecatalogue::horizontalLineOfLetter(n),
             linecatalogue::verticalLineOfKey(keyOfLetter(n))}) {
        QWidget *line = ui->widget(QLatin1String(name));
        if (line->isHidden() == shown)
            line->setVisible(shown);
    }
}

void lexoria::lineHighOptions_function()
{
    if (!lineOptionsOpen) {
        ui->frameLinehighlight->show();
        lineOptionsOpen = true;
        ui->frameLinehighlight->move(0, 0);
        ui->swapGradient6->move(466, 118);
        ui->frameLinehighlight->raise();
        ui->swapGradient6->raise();
    } else {
        ui->frameLinehighlight->hide();
        lineOptionsOpen = false;
        ui->frameLinehighlight->move(1500, 0);
        ui->swapGradient6->move(1464, 103);
    }
}

// Under every other widget but over the wallpaper: the lines show between the keys only.
void lexoria::lineHighlightLower()
{
    for (QLabel *line : qAsConst(horizontalLines))
        line->lower();
    for (QLabel *line : qAsConst(verticalLines))
        line->lower();
    ui->wallpaper->lower();
}

void lexoria::lineHighlightRaise()
{
    for (QLabel *line : qAsConst(horizontalLines))
        line->raise();
    for (QLabel *line : qAsConst(verticalLines))
        line->raise();
}

void lexoria::fillLinehighlightH()
{
    horizontalLines.clear();
    for (const char *name : linecatalogue::horizontalLineNames) {
        QLabel *line = ui->find<QLabel>(QLatin1String(name));
        line->hide();
        restyle(line, pieces.lineHighHorizontalStyle);
        horizontalLines.append(line);
    }
}

void lexoria::fillLinehighlightV()
{
    verticalLines.clear();
    for (const char *name : linecatalogue::verticalLineNames) {
        QLabel *line = ui->find<QLabel>(QLatin1String(name));
        line->hide();
        restyle(line, pieces.lineHighVerticalStyle);
        verticalLines.append(line);
    }
}

void lexoria::hint2()
{
    ui->goldenHighlight->setEnabled(false);
    ui->lineHighlight->setEnabled(false);
    restyle(ui->goldenHighlight,
        pieces.keyRadiusStyle + pieces.highlightBgStyle + QStringLiteral("color: #6e6e6e; "));
    if (!gameRunning || !hintReady)
        return;
    hintReady = false;
    // The flashes are the key's own press reflex: no entry is made and no judge runs.
    if (const int n = letterNumberOfText(ui->leMatch->text())) {
        for (int ms : {400, 1000, 1600})
            QTimer::singleShot(ms, this, [this, n] { key(n); });
    }
    QTimer::singleShot(2200, this, &lexoria::boolFlag2);
}

void lexoria::boolFlag2()
{
    hintReady = true;
    // A Stop during the flashes has disabled the aids for good; they wait for the next Start.
    if (gameRunning) {
        ui->goldenHighlight->setEnabled(true);
        ui->lineHighlight->setEnabled(true);
        restyle(ui->goldenHighlight,
            pieces.keyRadiusStyle + pieces.highlightBgStyle + pieces.highlightEnglishColorStyle);
    }
    ui->hint->setChecked(false);
}

void lexoria::chebTick()
{
    ++chebTicks;
    if (chebTicks % 20 != 0)
        return;
    const int t = chebTicks;
    QTimer::singleShot(t, this, &lexoria::cheb0);
    QTimer::singleShot(t + 200, this, &lexoria::cheb1);
    QTimer::singleShot(t + 250, this, &lexoria::cheb2);
    QTimer::singleShot(t + 2000, this, &lexoria::cheb1);
    QTimer::singleShot(t + 4000, this, &lexoria::cheb2);
    QTimer::singleShot(t + 6000, this, &lexoria::cheb0);
}

void lexoria::killChebTimer()
{
    if (chebTimerId != 0)
        killTimer(chebTimerId);
    chebTimerId = 0;
    chebTicks = 0;
}

void lexoria::cheb0()
{
    ui->piclabel1->setPixmap(instructorPixmaps[0]);
}

// The figure stirs only once a game has enabled the match field.
void lexoria::cheb1()
{
    ui->piclabel1->setPixmap(instructorPixmaps[ui->leMatch->isEnabled() ? 1 : 0]);
}

void lexoria::cheb2()
{
    ui->piclabel1->setPixmap(instructorPixmaps[ui->leMatch->isEnabled() ? 2 : 0]);
}
