#include "exploreworld.h"

#include "ui_exploreworld.h"

exploreWorld::exploreWorld(QWidget *parent)
    : QMainWindow(parent)
    , ui(new Ui::exploreWorld)
{
    ui->setupUi(this);
    setFixedSize(size());
}

exploreWorld::~exploreWorld()
{
    delete ui;
}
