#ifndef LEXORIA_FORM_H
#define LEXORIA_FORM_H

#include <QHash>
#include <QString>
#include <QWidget>

class QCheckBox;
class QFrame;
class QGroupBox;
class QLCDNumber;
class QLabel;
class QLineEdit;
class QMainWindow;
class QPushButton;
class QRadioButton;
class QTableWidget;

// The widgets the code talks to by name. Families (bg<k>, r<n>_2 …) are reached through the
// lists of the main window instead; every widget can also be found with widget(name).
#define LEXORIA_NAMED_WIDGETS(X)                                                                   \
    X(QLabel, wallpaper)                                                                           \
    X(QLabel, labelScoreboard)                                                                     \
    X(QLabel, labelOptions)                                                                        \
    X(QLabel, letterOfAlphabet2)                                                                   \
    X(QLabel, piclabel1)                                                                           \
    X(QLabel, display2)                                                                            \
    X(QLabel, display3)                                                                            \
    X(QLabel, underscore_left)                                                                     \
    X(QLabel, underscore_right)                                                                    \
    X(QLabel, labelCorrect)                                                                        \
    X(QLabel, labelIncorrect)                                                                      \
    X(QLabel, displaySoft)                                                                         \
    X(QLabel, displayStrict)                                                                       \
    X(QLabel, type)                                                                                \
    X(QLabel, direction)                                                                           \
    X(QLabel, typeOfGame)                                                                          \
    X(QLabel, shieldEverything)                                                                    \
    X(QLabel, shieldConsonants)                                                                    \
    X(QLabel, shieldVarious)                                                                       \
    X(QLabel, shieldNumberLine)                                                                    \
    X(QLabel, shieldStart)                                                                         \
    X(QLabel, circleOne)                                                                           \
    X(QLabel, circleTwo)                                                                           \
    X(QLabel, circleThree)                                                                         \
    X(QLabel, circleFour)                                                                          \
    X(QLabel, dem1)                                                                                \
    X(QLabel, dem6)                                                                                \
    X(QLabel, dem2)                                                                                \
    X(QLabel, aKeysMap5)                                                                           \
    X(QLabel, labelInstructionsLeft)                                                               \
    X(QLabel, labelInstructionsRight)                                                              \
    X(QPushButton, aKeysMap)                                                                       \
    X(QPushButton, buttonInstructionsLeft)                                                         \
    X(QPushButton, buttonInstructionsRight)                                                        \
    X(QPushButton, pbQuit)                                                                         \
    X(QPushButton, helpButton)                                                                     \
    X(QPushButton, hideNonVitals)                                                                  \
    X(QPushButton, start)                                                                          \
    X(QPushButton, stop)                                                                           \
    X(QPushButton, soft)                                                                           \
    X(QPushButton, strict)                                                                         \
    X(QPushButton, animationOn)                                                                    \
    X(QPushButton, animationOff)                                                                   \
    X(QRadioButton, keyConstant)                                                                   \
    X(QRadioButton, keyFlash)                                                                      \
    X(QRadioButton, rbForward_2)                                                                   \
    X(QRadioButton, rbReverse_2)                                                                   \
    X(QRadioButton, rbRandom_2)                                                                    \
    X(QRadioButton, rbAll)                                                                         \
    X(QRadioButton, rbVarious)                                                                     \
    X(QRadioButton, rbConsonants)                                                                  \
    X(QRadioButton, rbNumberLine)                                                                  \
    X(QRadioButton, on)                                                                            \
    X(QRadioButton, off)                                                                           \
    X(QGroupBox, groupBox)                                                                         \
    X(QGroupBox, letCharBoth)                                                                      \
    X(QGroupBox, wordList)                                                                         \
    X(QGroupBox, gbPushButtons)                                                                    \
    X(QLineEdit, leMatch)                                                                          \
    X(QLineEdit, leUser)                                                                           \
    X(QLCDNumber, lcd)                                                                             \
    X(QTableWidget, table)                                                                         \
    X(QPushButton, goldenHighlight)                                                                \
    X(QPushButton, lineHighlight)                                                                  \
    X(QPushButton, lineHighOptions)                                                                \
    X(QPushButton, hint)                                                                           \
    X(QPushButton, swapGradient6)                                                                  \
    X(QFrame, frameLinehighlight)                                                                  \
    X(QCheckBox, checkBox)                                                                         \
    X(QFrame, frameAudio)                                                                          \
    X(QPushButton, menuAudio)                                                                      \
    X(QLabel, markerAudio)                                                                         \
    X(QPushButton, openAudio)                                                                      \
    X(QPushButton, openAudioPulse)                                                                 \
    X(QRadioButton, useUploadedAudio)                                                              \
    X(QRadioButton, audioNone)                                                                     \
    X(QCheckBox, applyAudioToPulse)                                                                \
    X(QFrame, frameVorticKeyboard)                                                                 \
    X(QPushButton, menuVorticKeyboard)                                                             \
    X(QLabel, mustStopGameToAccess)                                                                \
    X(QLabel, markerEk)                                                                            \
    X(QRadioButton, fadeOut)                                                                       \
    X(QRadioButton, fadeOutIn)                                                                     \
    X(QRadioButton, effectNone)                                                                    \
    X(QRadioButton, angryE)                                                                        \
    X(QRadioButton, birdsdancing)                                                                  \
    X(QRadioButton, butterfly)                                                                     \
    X(QRadioButton, explosion)                                                                     \
    X(QRadioButton, useUploaded)                                                                   \
    X(QRadioButton, finishedNone)                                                                  \
    X(QRadioButton, speed1)                                                                        \
    X(QRadioButton, speed2)                                                                        \
    X(QRadioButton, speed3)                                                                        \
    X(QRadioButton, normalSizeEK)                                                                  \
    X(QRadioButton, setToFitEK)                                                                    \
    X(QPushButton, openImageFinished)                                                              \
    X(QPushButton, clearVorticKeyboardImage)                                                       \
    X(QLabel, tnCurrentImage)                                                                      \
    X(QRadioButton, radioNone)                                                                     \
    /* Pictures */                                                                                 \
    X(QCheckBox, xRayVision)                                                                       \
    X(QRadioButton, repeatYes)                                                                     \
    X(QRadioButton, repeatNo)                                                                      \
    X(QRadioButton, stretchYes)                                                                    \
    X(QRadioButton, stretchNo)                                                                     \
    X(QRadioButton, normalSize)                                                                    \
    X(QRadioButton, setToFit)                                                                      \
    X(QRadioButton, normalGif)                                                                     \
    X(QRadioButton, expandGif)                                                                     \
    X(QLabel, radioLineMain)

namespace Ui {

class lexoria
{
public:
    void setupUi(QMainWindow *window);

    QWidget *widget(const QString &name) const { return byName.value(name); }
    template <class T> T *find(const QString &name) const
    {
        return qobject_cast<T *>(widget(name));
    }
    int widgetCount() const { return byName.size(); }

    QWidget *centralWidget = nullptr;
#define LEXORIA_DECLARE_WIDGET(Class, name) Class *name = nullptr;
    LEXORIA_NAMED_WIDGETS(LEXORIA_DECLARE_WIDGET)
#undef LEXORIA_DECLARE_WIDGET

private:
    void buildTable(QWidget *central);
    void buildAlphabetBar(QWidget *central);
    void buildKeyboard(QWidget *central);
    void bindNamedWidgets();

    QHash<QString, QWidget *> byName;
};

} // namespace Ui

// The rules every widget of the main window inherits, in the order they cascade.
QString lexoriaWindowStyleSheet();

#endif
