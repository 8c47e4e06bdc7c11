#ifndef UI_EXPLOREWORLD_H
#define UI_EXPLOREWORLD_H

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

namespace Ui {

struct exploreWorld
{
    QWidget *centralwidget = nullptr;
    QLabel *label_4 = nullptr;
    QLabel *label = nullptr;
    QLabel *label_10 = nullptr;
    QLabel *label_11 = nullptr;
    QLabel *label_12 = nullptr;
    QLabel *label_7 = nullptr;
    QLabel *promptx = nullptr;
    QLabel *promptx_4 = nullptr;
    QLabel *label_6 = nullptr;
    QLabel *label_2 = nullptr;
    QLabel *label_3 = nullptr;
    QLabel *label_8 = nullptr;
    QLabel *label_9 = nullptr;
    QLabel *label_5 = nullptr;
    QPushButton *etwExitButton = nullptr;

    void setupUi(QMainWindow *window);
};

} // namespace Ui

#endif
