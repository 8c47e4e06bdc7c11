#ifndef UI_OPENINGWINDOW_H
#define UI_OPENINGWINDOW_H

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

namespace Ui {

struct openingWindow
{
    QWidget *centralwidget = nullptr;
    QLabel *label_3 = nullptr;
    QLabel *label_4 = nullptr;
    QLabel *label_5 = nullptr;
    QPushButton *startLearnRussianTyping = nullptr;
    QPushButton *openInstructions = nullptr;
    QPushButton *owInstructionsForSE = nullptr;
    QPushButton *owAboutButton = nullptr;
    QLabel *label_2 = nullptr;
    QLabel *label = nullptr;
    QPushButton *owExitPushButton = nullptr;
    QPushButton *owExploreTheWorld = nullptr;

    void setupUi(QMainWindow *window);
};

} // namespace Ui

#endif
