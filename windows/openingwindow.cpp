#include "openingwindow.h"

#include "ui_openingwindow.h"

openingWindow::openingWindow(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::openingWindow)
{
    ui->setupUi(this);
    setFixedSize(size());
}

openingWindow::~openingWindow()
{
    delete ui;
}
