#ifndef OPENINGWINDOW_H
#define OPENINGWINDOW_H

#include <QMainWindow>

namespace Ui {
struct openingWindow;
}

class openingWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit openingWindow(QWidget *parent = nullptr);
    ~openingWindow() override;

    Ui::openingWindow *ui;
};

#endif
