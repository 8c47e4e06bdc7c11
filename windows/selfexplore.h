#ifndef SELFEXPLORE_H
#define SELFEXPLORE_H

#include <QMainWindow>

namespace Ui {
struct selfExplore;
}

class selfExplore : public QMainWindow
{
    Q_OBJECT

public:
    explicit selfExplore(QWidget *parent = nullptr);
    ~selfExplore() override;

    Ui::selfExplore *ui;
};

#endif
