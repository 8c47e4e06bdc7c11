#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/hidpi.h"
#include "lexoria/keycatalogue.h"
#include "lexoria/restyle.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>

using namespace keycatalogue;

namespace {

const char *const controlSuffixes[]
    = {"CapsLock", "Spacebar", "Enter", "ShiftRight", "ShiftLeft", "BackSpace", "Tab"};

QList<QLabel *> labelFamily(const Ui::lexoria *ui, const QString &pattern, int count,
    const char *prefixOfControls = nullptr)
{
    QList<QLabel *> labels;
    labels.reserve(prefixOfControls ? paintKeyCount : count);
    for (int i = 1; i <= count; ++i)
        labels.append(ui->find<QLabel>(pattern.arg(i)));
    if (prefixOfControls) {
        for (const char *suffix : controlSuffixes)
            labels.append(
                ui->find<QLabel>(QLatin1String(prefixOfControls) + QLatin1String(suffix)));
    }
    return labels;
}

} // namespace

void lexoria::fillLetterList()
{
    for (int n = 1; n <= letterCount; ++n)
        letterList.append(ui->find<QLabel>(QStringLiteral("r%1").arg(n))->text());
    for (const char *pose : {"chdown", "chmiddle", "chup"})
        instructorPixmaps.append(
            hidpi::pixmap(QStringLiteral(":/new/prefix1/%1.png").arg(QLatin1String(pose))));
    ui->piclabel1->setPixmap(instructorPixmaps.first());
}

void lexoria::fillLabelList()
{
    barLabels = labelFamily(ui, QStringLiteral("r%1"), letterCount);
    barBgLabels = labelFamily(ui, QStringLiteral("r%1bg"), letterCount);
    keyLetterLabels = labelFamily(ui, QStringLiteral("r%1_2"), letterCount);
    keyEnglishLabels = labelFamily(ui, QStringLiteral("r%1_3"), characterKeyCount, "label");
    keyPulseLabels = labelFamily(ui, QStringLiteral("pulsate%1"), paintKeyCount);
    for (QLabel *pulse : qAsConst(keyPulseLabels))
        pulse->hide();
}

void lexoria::fillBgList()
{
    keyBgLabels = labelFamily(ui, QStringLiteral("bg%1"), characterKeyCount, "bg");
}

void lexoria::fillShieldList()
{
    keyShields = labelFamily(ui, QStringLiteral("shield%1"), characterKeyCount);
    for (QLabel *shield : qAsConst(keyShields))
        shield->raise();
}

void lexoria::fillImgArray()
{
    keyImgLabels = labelFamily(ui, QStringLiteral("img%1"), characterKeyCount, "img");
}

void lexoria::loadDisplayNoneArray()
{
    displayNoneLabels = labelFamily(ui, QStringLiteral("displayNone%1"), paintKeyCount);
    phantomLablesHide();
}

void lexoria::phantomLablesShow()
{
    for (QLabel *cover : qAsConst(displayNoneLabels))
        cover->show();
}

void lexoria::phantomLablesHide()
{
    for (QLabel *cover : qAsConst(displayNoneLabels))
        cover->hide();
}

const QString &lexoria::fontPiece(int n) const
{
    return isUpperRow(n) ? pieces.upperFontStyle : pieces.lowerFontStyle;
}

const QString &lexoria::colourPiece(int n) const
{
    return isUpperRow(n) ? pieces.upperColorStyle : pieces.lowerColorStyle;
}

bool lexoria::rowPainted(int n) const
{
    return isUpperRow(n) ? painted.paintUpperOn : painted.paintLowerOn;
}

void lexoria::numToString()
{
    ui->letterOfAlphabet2->clear();
    ui->letterOfAlphabet2->setText(
        QStringLiteral("Letter-number: ") + QString::number(lastKeyIndex + 1));
}

void lexoria::letterOAlphabet()
{
    ui->letterOfAlphabet2->setText(QStringLiteral("Letter-number: ") + letterNumberText);
}

void lexoria::letterOAlphabetNone()
{
    ui->letterOfAlphabet2->clear();
}

void lexoria::key(int n)
{
    const int k = keyOfLetter(n);
    if (n <= 33) {
        numToString();
    } else if (n <= 66) {
        letterNumberText = QString::number(n - 33);
        letterOAlphabet();
    }
    restyle(barBgLabels[n - 1],
        pieces.barRadiusStyle + (letterDone[n] ? pieces.finishedBgStyle : pieces.keypressBgStyle));
    const QString letter = pieces.keypressRussianColorStyle + fontPiece(n);
    restyle(barLabels[n - 1], letter);
    restyle(keyLetterLabels[n - 1], letter);
    restyle(keyEnglishLabels[k - 1], pieces.keypressEnglishColorStyle + pieces.englishFontStyle);
    restyle(keyBgLabels[k - 1],
        pieces.keyRadiusStyle + pieces.keypressBgStyle + pieces.keypressBorderStyle);
    if (pictures.keypressImageOn == QLatin1String("1")) {
        keyImgLabels[k - 1]->show();
        keyImgLabels[k - 1]->setMovie(&pictures.keypressMovie);
    }
    if (goldHighActive)
        keyGoldHigh(n);
    if (ui->keyFlash->isChecked())
        QTimer::singleShot(keyFlashMs, this, [this, n] { changeColorBack(n); });
    keyPressSound(n);
}

// The English label, its underscore and the face of key k at rest, painted or not.
void lexoria::restKeyFace(int k)
{
    const QString &english
        = painted.paintEnglishOn ? painted.paintEnglishColor[k] : pieces.englishColorStyle;
    restyle(keyEnglishLabels[k - 1], english + pieces.englishFontStyle);
    if (k == 6) {
        restyle(ui->underscore_left,
            (painted.paintEnglishOn ? painted.paintUnderscoreLeftColor : pieces.englishColorStyle)
                + pieces.englishFontStyle);
    } else if (k == 10) {
        restyle(ui->underscore_right,
            (painted.paintEnglishOn ? painted.paintUnderscoreRightColor : pieces.englishColorStyle)
                + pieces.englishFontStyle);
    }
    if (painted.paintBackgroundOn || painted.paintBorderOn)
        restyle(keyBgLabels[k - 1],
            pieces.keyRadiusStyle + painted.paintBgStyle[k] + painted.paintBorderStyle[k]);
    else
        restyle(keyBgLabels[k - 1],
            pieces.keyRadiusStyle + pieces.keysBgStyle + pieces.keysBorderStyle);
}

void lexoria::changeColorBack(int n)
{
    const int k = keyOfLetter(n);
    const QString &font = fontPiece(n);
    const QString &letterColour = rowPainted(n) ? painted.paintCharColor[n] : colourPiece(n);
    if (letterDone[n]) {
        restyle(barBgLabels[n - 1], pieces.barRadiusStyle + pieces.finishedBgStyle);
        restyle(barLabels[n - 1], pieces.finishedColorStyle + font);
    } else {
        restyle(barBgLabels[n - 1],
            pieces.barRadiusStyle
                + (painted.paintBackgroundOn ? painted.paintBgStyle[k] : pieces.keysBgStyle));
        restyle(barLabels[n - 1], letterColour + font);
    }
    restyle(keyLetterLabels[n - 1], letterColour + font);

    restKeyFace(k);

    QLabel *image = keyImgLabels[k - 1];
    if (pictures.keypressImageOn == QLatin1String("1")
        || pictures.mouseoverImageOn == QLatin1String("1"))
        image->hide();
    if (pictures.keysImageOn == QLatin1String("1")) {
        // Setting the movie a label already has would disconnect and reconnect it for nothing.
        if (image->movie() != &pictures.keysMovie)
            image->setMovie(&pictures.keysMovie);
        image->show();
    }
    if (randomPulseFlags[n])
        image->hide();
    // Restoring the key of the letter to find must not wipe its highlight.
    if (goldHighActive)
        goldHighOn();
}

void lexoria::allChangeColorBack()
{
    for (int n = 1; n <= letterCount; ++n)
        changeColorBack(n);
}

void lexoria::clearFocusEverywhere()
{
    for (const char *name :
        {"fontComboBoxEnglish", "fontComboBoxUppercase", "fontComboBoxLowercase", "spinBox1",
            "spinBox2", "spinBox3", "spinBox4", "spinBox5", "spinBox8", "spinBox27"}) {
        if (QWidget *widget = ui->widget(QLatin1String(name)))
            widget->clearFocus();
    }
}

void lexoria::displayNone()
{
    // The covers lie over the letters and faces and under the shields, so the hover still
    // lights the bar while the keys stay dark.
    phantomLablesShow();
    showDisplayMark("checkNone");
}

void lexoria::displayLexoria()
{
    showLettersOnKeys(true, false);
    showDisplayMark("checkRussian");
}

void lexoria::displayEnglish()
{
    showLettersOnKeys(false, true);
    showDisplayMark("checkEnglish");
}

void lexoria::displayBoth()
{
    showLettersOnKeys(true, true);
    showDisplayMark("checkBoth");
}

void lexoria::showLettersOnKeys(bool russian, bool english)
{
    phantomLablesHide();
    allChangeColorBack();
    // show() polishes a widget even inside a hidden window, so leave alone what already fits.
    auto setShown = [](QLabel *label, bool shown) {
        if (label->isHidden() == shown)
            label->setVisible(shown);
    };
    for (QLabel *letter : qAsConst(keyLetterLabels))
        setShown(letter, russian);
    for (int k = 0; k < characterKeyCount; ++k)
        setShown(keyEnglishLabels[k], english);
}

// The mode of the letters on the keys is held by nothing but which check mark shows.
void lexoria::showDisplayMark(const char *mark)
{
    for (const char *each : {"checkNone", "checkRussian", "checkEnglish", "checkBoth"})
        ui->widget(QLatin1String(each))->setVisible(qstrcmp(each, mark) == 0);
}

void lexoria::keyPressEvent(QKeyEvent *event)
{
    const int code = event->key();
    if (code == Qt::Key_Space) {
        // Soft play confirms the entry with Space; Space itself is no entry.
        if (ui->soft->isChecked())
            judgeEntry();
    } else if (const int n = letterForKeyCode(code, event->modifiers())) {
        if (isUpperRow(n))
            set_User_StyleSheet_Uppercase();
        else
            set_User_StyleSheet_Lowercase();
        lastKeyIndex = n - 1;
        key(n);
        if (gameRunning)
            ui->leUser->setText(letterList[lastKeyIndex]);
    }
    // Strict play judges every key press, whatever the key.
    if (ui->strict->isChecked())
        judgeEntry();
}

void lexoria::keyReleaseEvent(QKeyEvent *event)
{
    if (!ui->keyConstant->isChecked())
        return;
    if (const int n = letterForKeyCode(event->key(), event->modifiers())) {
        const CharacterKey &released = characterKey(keyOfLetter(n));
        changeColorBack(released.upper);
        changeColorBack(released.lower);
    }
}

void lexoria::aKeysMap_function()
{
    aKeysMapShown = !aKeysMapShown;
    for (const char *name : {"aKeysMapNormal", "aKeysMapShift", "aKeysMapText", "aKeysMap2",
             "aKeysMap3", "aKeysMap4", "aKeysMap5"})
        ui->widget(QLatin1String(name))->setVisible(aKeysMapShown);
    ui->aKeysMap->setText(aKeysMapShown ? QStringLiteral("<") : QStringLiteral(">>>"));
}

void lexoria::hideInsLeft()
{
    insLeftShown = !insLeftShown;
    ui->labelInstructionsLeft->setVisible(insLeftShown);
    ui->buttonInstructionsLeft->setText(insLeftShown ? QStringLiteral("<") : QStringLiteral(">>>"));
}

void lexoria::hideInsRight()
{
    insRightShown = !insRightShown;
    ui->labelInstructionsRight->setVisible(insRightShown);
    ui->buttonInstructionsRight->setText(
        insRightShown ? QStringLiteral("<") : QStringLiteral(">>>"));
}
