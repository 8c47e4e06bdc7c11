#include "lexoria/lexoria.h"

#include "lexoria/form.h"
#include "lexoria/restyle.h"

#include <QLabel>
#include <QTimer>

#include <iterator>

namespace demonstration {

namespace {

enum ArrowBit {
    Arrow1 = 1,
    Arrow2 = 2,
    Arrow3 = 4,
    Arrow6 = 8,
    GameArrows = Arrow1 | Arrow2 | Arrow3
};

struct Box
{
    const char *name;
    const char *lit;
};

// The last box was styled by another hand than the first three: one blank fewer.
constexpr Box boxes[] = {
    {"demo1", "background-color: lightsteelblue;  border: 1px solid black;"},
    {"demo2", "background-color: lightsteelblue;  border: 1px solid black;"},
    {"demo3", "background-color: lightsteelblue;  border: 1px solid black;"},
    {"demo4", "background-color: lightsteelblue; border: 1px solid black;"},
};
constexpr const char *dark = "background-color: transparent;";
constexpr const char *unlit = "background-color: transparent; border: 0px solid transparent;";

struct Arrow
{
    const char *name;
    int x, y;
};

constexpr Arrow arrows[] = {
    {"arrow1", 8, 178},
    {"arrow2", 52, 178},
    {"arrow3", 96, 178},
    {"arrow6", 938, 42},
};
// Once the tour has ended the arrows are parked above the window, where nothing shows them.
constexpr int parkedY = -400;

// One round of the tour, in ms from its start; boxes are numbered 1..4, 0 is none.
struct Step
{
    int atMs;
    int lit;
    int dark;
    int shown;
    int hidden;
};

constexpr Step steps[] = {
    {3500, 1, 4, GameArrows, Arrow6}, {7000, 2, 1, 0, GameArrows}, {10500, 3, 2, 0, 0},
    {14000, 4, 3, 0, 0},
    {17500, 0, 4, Arrow6, 0}, // between two rounds the tour points at the options
};
constexpr int betweenRounds = int(std::size(steps)) - 1;
constexpr int nextRoundMs = 50;

} // namespace

} // namespace demonstration

using namespace demonstration;

void lexoria::setUpDemonstration()
{
    for (std::size_t i = 0; i < std::size(boxes); ++i) {
        demoBoxes[i] = ui->find<QLabel>(QLatin1String(boxes[i].name));
        demoBoxes[i]->lower();
        restyle(demoBoxes[i], QLatin1String(unlit));
    }
    for (std::size_t i = 0; i < std::size(arrows); ++i) {
        demoArrows[i] = ui->find<QLabel>(QLatin1String(arrows[i].name));
        // They point at buttons and must not take the click meant for them.
        demoArrows[i]->setAttribute(Qt::WA_TransparentForMouseEvents);
        demoArrows[i]->hide();
    }
}

void lexoria::demo()
{
    if (demoStopped) {
        hideDemo();
        return;
    }
    for (std::size_t i = 0; i < std::size(arrows); ++i)
        demoArrows[i]->move(arrows[i].x, arrows[i].y);

    // A newer round (the window opened once more) makes the shots of an older one void, so
    // two tours never run side by side.
    const int round = ++demoRound;
    for (int step = 0; step < int(std::size(steps)); ++step) {
        QTimer::singleShot(steps[step].atMs, this, [this, step, round] {
            if (round != demoRound)
                return;
            if (step == betweenRounds)
                arrowShow();
            else
                demoStep(step);
        });
    }
}

void lexoria::demoStep(int step)
{
    // Shots of the round that was under way when the tour ended still come; they find nothing
    // to do, so that a Show right after a Hide cannot bring a lit box back.
    if (demoStopped)
        return;
    const Step &row = steps[step];
    if (row.lit)
        restyle(demoBoxes[row.lit - 1], QLatin1String(boxes[row.lit - 1].lit));
    if (row.dark)
        restyle(demoBoxes[row.dark - 1], QLatin1String(dark));
    for (std::size_t i = 0; i < std::size(arrows); ++i) {
        if (row.shown & (1 << i))
            demoArrows[i]->show();
        if (row.hidden & (1 << i))
            demoArrows[i]->hide();
    }
}

void lexoria::arrowShow()
{
    if (demoStopped)
        return;
    demoStep(betweenRounds);
    const int round = demoRound;
    QTimer::singleShot(nextRoundMs, this, [this, round] {
        if (round == demoRound)
            demo();
    });
}

void lexoria::hideDemo()
{
    for (QLabel *box : demoBoxes) {
        box->hide();
        restyle(box, QLatin1String(dark));
    }
    for (std::size_t i = 0; i < std::size(arrows); ++i) {
        demoArrows[i]->hide();
        demoArrows[i]->move(arrows[i].x, parkedY);
    }
}

void lexoria::stopDemo()
{
    demoStopped = true;
    hideDemo();
}

void lexoria::showDemoAfterNonVitals()
{
    for (QLabel *box : demoBoxes)
        box->show();
    // While the tour still runs it alone decides which arrows stand; after it they are shown
    // where nobody sees them.
    if (!demoStopped)
        return;
    for (QLabel *arrow : demoArrows)
        arrow->show();
}
