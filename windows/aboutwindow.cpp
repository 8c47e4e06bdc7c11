#include "aboutwindow.h"

#include "ui_aboutwindow.h"

aboutWindow::aboutWindow(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::aboutWindow)
{
    ui->setupUi(this);
    setFixedSize(size());
}

aboutWindow::~aboutWindow()
{
    delete ui;
}
