#include "selfexplore.h"

#include "ui_selfexplore.h"

selfExplore::selfExplore(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::selfExplore)
{
    ui->setupUi(this);
    setFixedSize(size());
}

selfExplore::~selfExplore()
{
    delete ui;
}
