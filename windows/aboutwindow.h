#ifndef ABOUTWINDOW_H
#define ABOUTWINDOW_H

#include <QMainWindow>

namespace Ui {
struct aboutWindow;
}

class aboutWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit aboutWindow(QWidget *parent = nullptr);
    ~aboutWindow() override;

    Ui::aboutWindow *ui;
};

#endif
