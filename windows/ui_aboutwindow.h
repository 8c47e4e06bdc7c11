#ifndef UI_ABOUTWINDOW_H
#define UI_ABOUTWINDOW_H

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>

namespace Ui {

struct aboutWindow
{
    QWidget *centralwidget = nullptr;
    QLabel *label_6 = nullptr;
    QLabel *label_5 = nullptr;
    QLabel *label_3 = nullptr;
    QLabel *label_4 = nullptr;
    QPushButton *awExitButton = nullptr;
    QLabel *versionLabel = nullptr;

    void setupUi(QMainWindow *window);
};

} // namespace Ui

#endif
