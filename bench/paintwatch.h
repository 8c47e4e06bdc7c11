#ifndef PAINTWATCH_H
#define PAINTWATCH_H

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

// Counts the paint events of one top-level window and everything in it. A frame is done when
// processEvents() returns after the first of them: Qt paints the whole dirty region into the
// backing store and hands it to the window system in one synchronous pass.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *window)
        : window(window)
    {
        qApp->installEventFilter(this);
    }
    ~PaintWatch() override { qApp->removeEventFilter(this); }

    int frames() const { return paints; }

    // Runs the event loop until the window has painted after frame count `before`. A generous
    // guard only keeps a broken build from hanging CI; it judges no speed.
    bool waitForFrameSince(int before)
    {
        bool gaveUp = false;
        QTimer guard;
        guard.setSingleShot(true);
        QObject::connect(&guard, &QTimer::timeout, [&gaveUp] { gaveUp = true; });
        guard.start(10000);
        while (paints == before && !gaveUp)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return paints != before;
    }

    bool waitForFrame() { return waitForFrameSince(paints); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()
            && static_cast<QWidget *>(watched)->window() == window)
            ++paints;
        return false;
    }

private:
    QWidget *window;
    int paints = 0;
};

#endif
