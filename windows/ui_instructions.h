#ifndef UI_INSTRUCTIONS_H
#define UI_INSTRUCTIONS_H

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QRect>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextEdit>

namespace Ui {

struct instructions
{
    QWidget *centralwidget = nullptr;
    QTabWidget *tabWidget = nullptr;
    QWidget *tabMap = nullptr;
    QWidget *tabStarting = nullptr;
    QWidget *tabButtons = nullptr;
    QWidget *tabInstructor = nullptr;
    QWidget *tabAfterGame = nullptr;
    QLabel *map = nullptr;
    QLabel *label = nullptr;
    QLabel *label_2 = nullptr;
    QLabel *mgDisplay = nullptr;
    QTextEdit *textEdit_2 = nullptr;
    QTextEdit *textEdit = nullptr;
    QTextBrowser *textBrowser_4 = nullptr;
    QTextEdit *textEdit_5 = nullptr;
    QPushButton *mgExitButton = nullptr;

    // The frames laid over the picture of the main window on the "Map" tab.
    QLabel *hideNonVitals = nullptr;
    QLabel *catManDo = nullptr;
    QLabel *labelGames = nullptr;
    QLabel *labelGames_2 = nullptr;
    QLabel *labelGames_3 = nullptr;
    QLabel *labelGames_4 = nullptr;
    QLabel *keyboard = nullptr;
    QLabel *advancedKeyboardOptions = nullptr;
    QLabel *consonants = nullptr;
    QLabel *consonants_2 = nullptr;
    QLabel *various = nullptr;
    QLabel *various_2 = nullptr;
    QLabel *numberLine = nullptr;
    QLabel *numberLine_2 = nullptr;
    QLabel *everything = nullptr;
    QLabel *keyShape = nullptr;
    QLabel *reverse = nullptr;
    QLabel *random = nullptr;
    QLabel *forward = nullptr;
    QLabel *labelAnimation = nullptr;
    QLabel *labelCurrentGame = nullptr;
    QLabel *labelTimeyTim = nullptr;
    QLabel *labelCorrect45 = nullptr;
    QLabel *labelIncorrect45 = nullptr;
    QLabel *labelLettersDisplayed = nullptr;
    QLabel *labelLettersDisplayed_2 = nullptr;
    QLabel *labelDifficulityStrict = nullptr;
    QLabel *labelDifficulitySoft = nullptr;
    QLabel *labelArrowInsLeft = nullptr;
    QLabel *labelArrowInsRight = nullptr;
    QLabel *labelQuit = nullptr;
    QLabel *labelHelp = nullptr;
    QLabel *labelMatchThis = nullptr;
    QLabel *labelYourEntry = nullptr;
    QLabel *labelHinHin = nullptr;
    QLabel *labelHinHin_2 = nullptr;
    QLabel *labelStart = nullptr;
    QLabel *labelStop = nullptr;
    QLabel *labelCheb = nullptr;
    QLabel *labelChebMessages = nullptr;
    QLabel *labelGoldenHighlight = nullptr;

    // One part of the screen that explains itself when clicked. Three parts are drawn as two
    // frames (a group's button and its row on the alphabet bar); either frame answers.
    struct MapRegion
    {
        QLabel *instructions::*label;
        const char *name;
        QRect rect;
        QLabel *instructions::*secondLabel;
        const char *secondName;
        QRect secondRect;
        const char *text;
    };
    static const MapRegion mapRegions[38];

    void setupUi(QMainWindow *window);
};

} // namespace Ui

#endif
