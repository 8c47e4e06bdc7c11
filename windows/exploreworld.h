#ifndef EXPLOREWORLD_H
#define EXPLOREWORLD_H

#include <QMainWindow>

namespace Ui {
struct exploreWorld;
}

class exploreWorld : public QMainWindow
{
    Q_OBJECT

public:
    explicit exploreWorld(QWidget *parent = nullptr);
    ~exploreWorld() override;

    Ui::exploreWorld *ui;
};

#endif
