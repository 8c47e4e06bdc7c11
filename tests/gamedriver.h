#ifndef GAMEDRIVER_H
#define GAMEDRIVER_H

#include "lexoria/keycatalogue.h"
#include "lexoria/lexoria.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

// Plays the main window as a player does: clicks on buttons found by name, keys on the window.
class GameDriver
{
public:
    explicit GameDriver(lexoria *window)
        : window(window)
    {
    }

    QLabel *label(const QString &name) const { return window->findChild<QLabel *>(name); }
    QPushButton *button(const QString &name) const
    {
        return window->findChild<QPushButton *>(name);
    }
    QLineEdit *field(const QString &name) const { return window->findChild<QLineEdit *>(name); }
    QString text(const QString &name) const { return label(name)->text(); }
    QString style(const QString &name) const
    {
        QWidget *widget = window->findChild<QWidget *>(name);
        return widget ? widget->styleSheet() : QString();
    }

    void click(const QString &name) { button(name)->click(); }

    // Presses the physical key that gives letter n, with Shift where the key needs it.
    void type(int n)
    {
        const keycatalogue::CharacterKey &key
            = keycatalogue::characterKey(keycatalogue::keyOfLetter(n));
        const bool shifted = key.upper == n;
        const bool letterKey = key.k <= 26;
        const int code = (shifted && !letterKey) ? key.shiftedCode : key.plainCode;
        const Qt::KeyboardModifiers modifiers = shifted ? Qt::ShiftModifier : Qt::NoModifier;
        QTest::keyClick(window, Qt::Key(code), modifiers);
    }

    void space() { QTest::keyClick(window, Qt::Key_Space); }

    // Chooses a game without its bar animation and starts it.
    void startGame(const QString &gameButton)
    {
        click("animationOff");
        click(gameButton);
        click("start");
    }

    lexoria *window;
};

#endif
