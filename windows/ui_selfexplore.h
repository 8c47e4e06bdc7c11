#ifndef UI_SELFEXPLORE_H
#define UI_SELFEXPLORE_H

#include <QMainWindow>
#include <QPushButton>
#include <QTextEdit>

namespace Ui {

struct selfExplore
{
    QWidget *centralwidget = nullptr;
    QTextEdit *textEdit = nullptr;
    QPushButton *seExitbutton = nullptr;

    void setupUi(QMainWindow *window);
};

} // namespace Ui

#endif
