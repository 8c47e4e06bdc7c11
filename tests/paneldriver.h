#ifndef PANELDRIVER_H
#define PANELDRIVER_H

#include "gamedriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDir>
#include <QRadioButton>
#include <QSlider>

#include <csignal>
#include <functional>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

// The base of a test class that works the main window and its option panels as a player does.
// Each test function gets a window of its own: make one in init(), close it in cleanup().
class PanelDriver
{
protected:
    enum class Start {
        Built, // made, not yet opened from the opening window
        Opened, // as the opening window's Start leaves it
        Shown, // and on screen
        Pointed, // and the pointer inside it, so that enter and leave follow the next moves
    };

    void makeWindow(Start start = Start::Opened)
    {
        window = std::make_unique<lexoria>();
        game = std::make_unique<GameDriver>(window.get());
        if (start == Start::Built)
            return;
        window->openLexoria();
        if (start == Start::Opened)
            return;
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        if (start == Start::Pointed) {
            // The first move into a new window only tells Qt where the pointer is, and a move to
            // where the pointer already was is dropped.
            QTest::mouseMove(window.get(), QPoint(600, 30));
            QTest::mouseMove(window.get(), QPoint(601, 30));
        }
    }
    void closeWindow()
    {
        if (QColorDialog *dialog = openPicker())
            dialog->reject();
        game.reset();
        window.reset();
    }

    template <class T = QWidget> T *find(const QString &name) const
    {
        return window->findChild<T *>(name);
    }
    QWidget *widget(const QString &name) const { return find(name); }
    QLabel *label(const QString &name) const { return find<QLabel>(name); }
    QRadioButton *radio(const QString &name) const { return find<QRadioButton>(name); }
    QCheckBox *box(const QString &name) const { return find<QCheckBox>(name); }
    QSlider *slider(const QString &name) const { return find<QSlider>(name); }
    QString style(const QString &name) const { return game->style(name); }
    QRect rect(const QString &name) const { return widget(name)->geometry(); }

    // The window finds the label that was clicked by underMouse(), so the pointer goes there first.
    void clickLabel(const QString &name)
    {
        QWidget *target = widget(name);
        QTest::mouseMove(target, target->rect().center());
        QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, target->rect().center());
    }
    static void hover(QWidget *target, QEvent::Type type)
    {
        QEvent event(type);
        QApplication::sendEvent(target, &event);
    }
    void hover(const QString &name, QEvent::Type type) { hover(widget(name), type); }
    void enter(const QString &name) { hover(name, QEvent::Enter); }
    void leave(const QString &name) { hover(name, QEvent::Leave); }

    void openPanel(const QString &menuButton)
    {
        game->click("options");
        game->click(menuButton);
    }
    void openColourTab(int tab)
    {
        openPanel("menuColorMadness");
        clickLabel(QStringLiteral("labelTab%1").arg(tab));
    }

    static QColorDialog *openPicker()
    {
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (auto *dialog = qobject_cast<QColorDialog *>(top); dialog && dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }
    // A picker hands a live colour on at the next turn of the event loop.
    static void pick(QColorDialog *picker, const QColor &colour)
    {
        picker->setCurrentColor(colour);
        QCoreApplication::processEvents();
    }

    // Strict play at a player's pace: each letter once the last entry has cleared.
    void play(int n)
    {
        QTRY_COMPARE(game->field("leUser")->text(), QString());
        game->type(n);
    }
    // Letters first to last, counting up or down; gives the keys they were found on.
    QList<int> playAll(int first, int last)
    {
        QList<int> keys;
        const int step = first <= last ? 1 : -1;
        for (int n = first; n != last + step; n += step) {
            play(n);
            keys << keycatalogue::keyOfLetter(n);
        }
        return keys;
    }

    static QByteArray fileBytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void writeBytes(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }
    // A file the program never wrote, at path: "empty", "binary", "huge" (200 MB without a line
    // break), "pipe" (one nobody writes to) or "folder".
    static void makeStrangeFile(const QString &path, const QString &kind)
    {
        if (kind == "empty") {
            writeBytes(path, QByteArray());
        } else if (kind == "binary") {
            QByteArray bytes;
            for (int i = 0; i < 100000; ++i)
                bytes += char((i * 7919) >> 3);
            writeBytes(path, bytes);
        } else if (kind == "huge") {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.resize(200LL * 1024 * 1024));
        } else if (kind == "pipe") {
            QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else {
            QVERIFY(QDir().mkpath(path));
        }
    }
    // Runs save on a disk that fills up after a few hundred bytes, for root as for anyone.
    static void onFullDisk(const std::function<void()> &save)
    {
        rlimit old {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
        const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit small = old;
        small.rlim_cur = 512;
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
        save();
        setrlimit(RLIMIT_FSIZE, &old);
        std::signal(SIGXFSZ, oldHandler);
    }

    std::unique_ptr<lexoria> window;
    std::unique_ptr<GameDriver> game;
};

#endif
