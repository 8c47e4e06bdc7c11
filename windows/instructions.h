#ifndef INSTRUCTIONS_H
#define INSTRUCTIONS_H

#include <QMainWindow>

namespace Ui {
struct instructions;
}

class instructions : public QMainWindow
{
    Q_OBJECT

public:
    explicit instructions(QWidget *parent = nullptr);
    ~instructions() override;

    Ui::instructions *ui;

protected:
    void mousePressEvent(QMouseEvent *event) override;
};

#endif
