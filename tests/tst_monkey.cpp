// Clicks go through the platform layer, as a user's do: the widget on top at the point gets
// them (a shield label really shields), and the pointer's enter and leave keep underMouse() true.
#define QTEST_QPA_MOUSE_HANDLING

#include "gamedriver.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMutex>
#include <QPixmapCache>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTabBar>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#if defined(__SANITIZE_ADDRESS__)
#define VORTIC_ASAN 1
// From the sanitizer's public interface; GCC installs the run-time without its headers.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

// Qt's hook table for object trackers (the one debugging tools attach to): slot 3 is called from
// every QObject constructor, slot 4 from every destructor. It is exported, though not in a public
// header.
extern quintptr qtHookData[];

namespace {

constexpr int addQObjectHook = 3;
constexpr int removeQObjectHook = 4;

// Every live QObject, so that the end of the run can wait for the last pending timer shot and
// see what outlived the window. Objects may be made on Qt's helper threads too.
struct LiveObjects
{
    QMutex mutex;
    QSet<QObject *> objects;
};
LiveObjects *liveObjects = nullptr;

void objectAdded(QObject *object)
{
    QMutexLocker lock(&liveObjects->mutex);
    liveObjects->objects.insert(object);
}

void objectRemoved(QObject *object)
{
    QMutexLocker lock(&liveObjects->mutex);
    liveObjects->objects.remove(object);
}

QStringList liveClassNames()
{
    QMutexLocker lock(&liveObjects->mutex);
    QStringList names;
    for (QObject *object : qAsConst(liveObjects->objects))
        names.append(QString::fromLatin1(object->metaObject()->className()));
    names.sort();
    return names;
}

int liveCount()
{
    QMutexLocker lock(&liveObjects->mutex);
    return liveObjects->objects.size();
}

int pendingSingleShots()
{
    return liveClassNames().count(QStringLiteral("QSingleShotTimer"));
}

// Qt warnings that only a fault in the program can cause.
const char *const faultWarnings[] = {
    "null pixmap",
    "QObject::connect",
    "QObject::disconnect",
    "QObject::startTimer",
    "QObject::killTimer",
    "QBasicTimer",
    "QTimer can only be used",
    "Unexpected null receiver",
    "Cannot create children for a parent that is in a different thread",
    "QPropertyAnimation: you're trying to animate",
    "Recursive repaint",
};

QStringList *faultsSeen = nullptr;
QtMessageHandler previousHandler = nullptr;

void recordFaults(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // The headless platform cannot stack windows; it says so on every raise() and lower().
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    for (const char *fault : faultWarnings) {
        if (faultsSeen && message.contains(QLatin1String(fault)))
            faultsSeen->append(message);
    }
    previousHandler(type, context, message);
}

// Resident memory in kB. Under AddressSanitizer freed memory is held back on purpose to catch
// late uses, so there the allocator's count of live bytes stands in for it.
qint64 memoryKb()
{
    // Qt's pixmap cache fills up to its limit of 10 MB with styled parts in every colour the
    // run has chosen; it is emptied so that the program's own memory counts.
    QPixmapCache::clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
#ifdef VORTIC_ASAN
    return qint64(__sanitizer_get_current_allocated_bytes() / 1024);
#else
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLongLong();
    }
    return 0;
#endif
}

// QTest's own key helpers refuse keys outside ASCII, and a keyboard can send any.
void sendKey(QWidget *target, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QString text;
    if (key >= Qt::Key_Space && key <= 0xffff && !(modifiers & Qt::ControlModifier)) {
        const QChar character(key);
        text = (modifiers & Qt::ShiftModifier) ? character.toUpper() : character.toLower();
    }
    QKeyEvent event(type, key, modifiers, text);
    QApplication::sendEvent(target, &event);
}

int environmentNumber(const char *name, int fallback)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok ? value : fallback;
}

} // namespace

class tst_Monkey : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void randomUserActions();

private:
    using Action = void (tst_Monkey::*)();
    void pressKey();
    void releaseKey();
    void click();
    void hover();
    void adjust();
    void trigger();
    void playRight();
    void pause();
    void answerDialogs();
    template <typename Answer> void answerLater(QObject *context, Answer answer);
    void reopenIfGone();
    void drainAfterClose();

    QList<QWidget *> visibleWidgets() const;
    QWidget *reachable(const QList<QWidget *> &widgets);
    bool leftOut(QWidget *widget) const;
    QString testFileFor(const QStringList &filters);
    int below(int bound) { return int(random.bounded(quint32(bound))); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename T> T *pick(const QList<T *> &list)
    {
        return list.isEmpty() ? nullptr : list.at(below(list.size()));
    }
    void trace(const QString &what);

    QRandomGenerator random;
    std::unique_ptr<lexoria> window;
    QTemporaryDir files;
    QStringList faults;
    QList<QPair<Qt::Key, Qt::KeyboardModifiers>> heldKeys;
    QPointer<QWidget> hovered;
    QTimer dialogAnswerer;
    QTimer stallWatch;
    int actionAtLastWatch = -1;
    bool tracing = false;
    int actionNumber = 0;
};

void tst_Monkey::initTestCase()
{
    liveObjects = new LiveObjects;
    qtHookData[addQObjectHook] = reinterpret_cast<quintptr>(&objectAdded);
    qtHookData[removeQObjectHook] = reinterpret_cast<quintptr>(&objectRemoved);

    faultsSeen = &faults;
    previousHandler = qInstallMessageHandler(recordFaults);

    bool seeded = false;
    quint32 seed = quint32(qEnvironmentVariableIntValue("VORTIC_MONKEY_SEED", &seeded));
    if (!seeded)
        seed = QRandomGenerator::system()->generate() & 0x7fffffff;
    random.seed(seed);
    qInfo("monkey seed %u (replay with VORTIC_MONKEY_SEED=%u)", seed, seed);
    tracing = qEnvironmentVariableIsSet("VORTIC_MONKEY_TRACE");

    // A run ends with the window closed on purpose, not with the application.
    QApplication::setQuitOnLastWindowClosed(false);
    QVERIFY(files.isValid());
    dialogAnswerer.setInterval(20);
    connect(&dialogAnswerer, &QTimer::timeout, this, &tst_Monkey::answerDialogs);

    // A run that stops moving is killed by the test's time limit with nothing said; this says
    // what it was stuck on first.
    stallWatch.setInterval(60000);
    connect(&stallWatch, &QTimer::timeout, this, [this] {
        if (actionNumber == actionAtLastWatch) {
            const QWidget *modal = QApplication::activeModalWidget();
            const QWidget *popup = QApplication::activePopupWidget();
            qWarning("no progress for a minute at action %d (modal: %s, popup: %s)", actionNumber,
                modal ? modal->metaObject()->className() : "none",
                popup ? popup->metaObject()->className() : "none");
        }
        actionAtLastWatch = actionNumber;
    });
}

void tst_Monkey::cleanupTestCase()
{
    qInstallMessageHandler(previousHandler);
    faultsSeen = nullptr;
    qtHookData[addQObjectHook] = 0;
    qtHookData[removeQObjectHook] = 0;
    delete liveObjects;
    liveObjects = nullptr;
}

void tst_Monkey::trace(const QString &what)
{
    if (tracing)
        qInfo("%d %s", actionNumber, qPrintable(what));
}

bool tst_Monkey::leftOut(QWidget *widget) const
{
    // Buttons that end the program; the run ends it on its own terms.
    static const QRegularExpression ending(QStringLiteral("^(pbQuit|owExitPushButton)$|quit"),
        QRegularExpression::CaseInsensitiveOption);
    for (QWidget *w = widget; w; w = w->parentWidget()) {
        if (ending.match(w->objectName()).hasMatch())
            return true;
        if (auto *button = qobject_cast<QAbstractButton *>(w)) {
            if (ending.match(button->text()).hasMatch())
                return true;
        }
    }
    return false;
}

QList<QWidget *> tst_Monkey::visibleWidgets() const
{
    QList<QWidget *> widgets;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *top : windows) {
        if (!top->isVisible() || !top->windowHandle())
            continue;
        widgets.append(top);
        for (QWidget *child : top->findChildren<QWidget *>()) {
            if (child->isVisible() && child->isEnabled())
                widgets.append(child);
        }
    }
    return widgets;
}

// Parked panels lie outside their window: visible, yet nobody can reach them.
QWidget *tst_Monkey::reachable(const QList<QWidget *> &widgets)
{
    for (int attempt = 0; attempt < 20 && !widgets.isEmpty(); ++attempt) {
        QWidget *widget = pick(widgets);
        if (!widget->visibleRegion().isEmpty())
            return widget;
    }
    return nullptr;
}

void tst_Monkey::pressKey()
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    const int kind = below(100);
    if (kind < 70) {
        const keycatalogue::CharacterKey &k
            = keycatalogue::characterKeys[below(keycatalogue::characterKeyCount)];
        const bool shifted = chance(40);
        key = Qt::Key(shifted ? k.shiftedCode : k.plainCode);
        if (shifted)
            modifiers = Qt::ShiftModifier;
    } else if (kind < 85) {
        key = Qt::Key_Space;
    } else {
        static const Qt::Key others[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace,
            Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt,
            Qt::Key_CapsLock, Qt::Key_F1, Qt::Key_F11, Qt::Key_Left, Qt::Key_Down, Qt::Key_Delete,
            Qt::Key(0x0410), Qt::Key(0x042F), Qt::Key_Adiaeresis, Qt::Key_unknown};
        key = others[below(int(std::size(others)))];
    }
    if (chance(30))
        modifiers |= Qt::ShiftModifier;
    if (chance(3))
        modifiers |= Qt::ControlModifier;

    // The main window reads the keyboard; now and then another widget has the focus instead.
    QWidget *target = window->isVisible() ? window.get() : window->findChild<QMainWindow *>();
    if (chance(10))
        target = pick(visibleWidgets());
    if (!target || leftOut(target))
        return;
    trace(QStringLiteral("key %1 %2 on %3")
              .arg(key, 0, 16)
              .arg(modifiers, 0, 16)
              .arg(target->objectName()));
    sendKey(target, QEvent::KeyPress, key, modifiers);
    if (chance(25))
        heldKeys.append({key, modifiers});
    else
        sendKey(target, QEvent::KeyRelease, key, modifiers);
}

void tst_Monkey::releaseKey()
{
    if (heldKeys.isEmpty())
        return;
    const auto held = heldKeys.takeAt(below(heldKeys.size()));
    trace(QStringLiteral("release %1").arg(held.first, 0, 16));
    sendKey(window.get(), QEvent::KeyRelease, held.first, held.second);
}

void tst_Monkey::click()
{
    const QList<QWidget *> widgets = visibleWidgets();
    QList<QWidget *> buttons;
    for (QWidget *widget : widgets) {
        if (qobject_cast<QAbstractButton *>(widget))
            buttons.append(widget);
    }
    QWidget *widget = reachable(chance(50) ? buttons : widgets);
    if (!widget)
        return;
    const QRegion region = widget->visibleRegion();
    const QRect part = *(region.begin() + below(region.rectCount()));
    const QPoint point(part.x() + below(part.width()), part.y() + below(part.height()));

    QWidget *top = widget->window();
    QWidget *hit = top->childAt(widget->mapTo(top, point));
    if (leftOut(hit ? hit : top))
        return;
    const Qt::MouseButton button = chance(90) ? Qt::LeftButton : Qt::RightButton;
    trace(QStringLiteral("click %1 at %2,%3 (hits %4)")
              .arg(widget->objectName())
              .arg(point.x())
              .arg(point.y())
              .arg(hit ? hit->objectName() : QString()));
    QTest::mouseMove(widget, point);
    if (chance(5))
        QTest::mouseDClick(widget, button, Qt::NoModifier, point);
    else
        QTest::mouseClick(widget, button, Qt::NoModifier, point);
}

void tst_Monkey::hover()
{
    if (hovered) {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(hovered, &leave);
        hovered = nullptr;
    }
    QList<QWidget *> labels;
    const QList<QWidget *> widgets = visibleWidgets();
    for (QWidget *widget : widgets) {
        if (qobject_cast<QLabel *>(widget))
            labels.append(widget);
    }
    QWidget *widget = reachable(chance(70) ? labels : widgets);
    if (!widget)
        return;
    trace(QStringLiteral("hover %1").arg(widget->objectName()));
    if (chance(50)) {
        hovered = widget;
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(widget, &enter);
    } else {
        QTest::mouseMove(widget, QPoint(below(widget->width()), below(widget->height())));
    }
}

void tst_Monkey::adjust()
{
    QList<QWidget *> controls;
    const QList<QWidget *> widgets = visibleWidgets();
    for (QWidget *widget : widgets) {
        if (qobject_cast<QAbstractSlider *>(widget) || qobject_cast<QAbstractSpinBox *>(widget)
            || qobject_cast<QComboBox *>(widget) || qobject_cast<QTabBar *>(widget))
            controls.append(widget);
    }
    QWidget *control = reachable(controls);
    if (!control || leftOut(control))
        return;
    trace(QStringLiteral("adjust %1").arg(control->objectName()));
    if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
        // A drag: pressed, moved through a position, released.
        slider->setSliderDown(true);
        slider->setSliderPosition(
            slider->minimum() + below(slider->maximum() - slider->minimum() + 1));
        slider->setSliderDown(false);
    } else if (auto *tabs = qobject_cast<QTabBar *>(control)) {
        if (tabs->count() > 0)
            QTest::mouseClick(
                tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(below(tabs->count())).center());
    } else {
        static const Qt::Key steps[] = {
            Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
        QTest::keyClick(control, steps[below(int(std::size(steps)))]);
    }
}

void tst_Monkey::trigger()
{
    QList<QAction *> actions;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *top : windows) {
        for (QAction *action : top->findChildren<QAction *>()) {
            if (action->isEnabled() && action->isVisible() && !action->isSeparator()
                && !action->menu()
                && !action->text().contains(QLatin1String("quit"), Qt::CaseInsensitive))
                actions.append(action);
        }
    }
    if (QAction *action = pick(actions)) {
        trace(QStringLiteral("trigger %1").arg(action->text()));
        action->trigger();
    }
}

// A player who knows the answer: types the letter shown in the match field, then Space, so that
// games run on to their end chains.
void tst_Monkey::playRight()
{
    if (!window->isVisible())
        return;
    GameDriver game(window.get());
    auto shownLetter = [&game] {
        const QString shown = game.field(QStringLiteral("leMatch"))->text();
        int n = 1;
        while (n <= keycatalogue::letterCount && keycatalogue::letterText(n) != shown)
            ++n;
        return n;
    };
    // No game on: choose one and press Start, as far as the shields let the pointer through.
    if (shownLetter() > keycatalogue::letterCount) {
        static const QRegularExpression gameButton(QStringLiteral("^pb(Forward|Reverse|Random)"));
        QList<QWidget *> games;
        for (QPushButton *button : window->findChildren<QPushButton *>(gameButton)) {
            if (button->isVisible())
                games.append(button);
        }
        for (QWidget *button : {reachable(games), window->findChild<QWidget *>("start")}) {
            if (button && button->isVisible()) {
                trace(QStringLiteral("play starts with %1").arg(button->objectName()));
                QTest::mouseMove(button);
                QTest::mouseClick(button, Qt::LeftButton);
                QTest::qWait(below(40));
            }
        }
    }
    const int streak = 1 + below(chance(10) ? 40 : 4);
    for (int i = 0; i < streak; ++i) {
        const int n = shownLetter();
        if (n > keycatalogue::letterCount)
            return;
        trace(QStringLiteral("play %1").arg(n));
        game.type(n);
        game.space();
        QTest::qWait(below(40));
    }
}

void tst_Monkey::pause()
{
    // Mostly short, so that timer shots land between actions; now and then long enough for
    // waves, effects and the end of a game to run through.
    const int ms = chance(97) ? below(80) : 300 + below(2500);
    trace(QStringLiteral("wait %1").arg(ms));
    QTest::qWait(ms);
}

QString tst_Monkey::testFileFor(const QStringList &filters)
{
    const QString filter = filters.join(QLatin1Char(' '));
    // A broken file of the right kind now and then: bad input must not crash either.
    if (chance(25)) {
        QString suffix = QStringLiteral("png");
        for (const char *kind : {"gif", "wav", "txt"}) {
            if (filter.contains(QLatin1String(kind)))
                suffix = QLatin1String(kind);
        }
        const QString name = files.filePath(QStringLiteral("broken.") + suffix);
        QFile broken(name);
        if (broken.open(QIODevice::WriteOnly)) {
            QByteArray noise;
            for (int i = below(3000); i > 0; --i)
                noise.append(char(chance(10) ? '\n' : below(256)));
            broken.write(noise);
        }
        return name;
    }
    QString source = QStringLiteral(":/new/prefix1/duck.png");
    if (filter.contains(QLatin1String("gif")) && !filter.contains(QLatin1String("png")))
        source = QStringLiteral(":/new/prefix1/blank.gif");
    else if (filter.contains(QLatin1String("wav")))
        source = QStringLiteral(":/new/prefix1/bark.wav");
    else if (filter.contains(QLatin1String("txt")))
        return files.filePath(QStringLiteral("theme.txt"));
    const QString copy = files.filePath(QFileInfo(source).fileName());
    if (!QFile::exists(copy))
        QFile::copy(source, copy);
    return copy;
}

void tst_Monkey::answerDialogs()
{
    // A context menu or any other popup runs its own event loop until it is closed.
    if (QWidget *popup = QApplication::activePopupWidget()) {
        QAction *chosen = nullptr;
        if (auto *menu = qobject_cast<QMenu *>(popup)) {
            QList<QAction *> actions;
            for (QAction *action : menu->actions()) {
                if (action->isEnabled() && !action->isSeparator() && !action->menu()
                    && !action->text().contains(QLatin1String("quit"), Qt::CaseInsensitive))
                    actions.append(action);
            }
            if (chance(50))
                chosen = pick(actions);
        }
        trace(QStringLiteral("popup %1 closed%2")
                  .arg(popup->metaObject()->className())
                  .arg(chosen ? QStringLiteral(" with ") + chosen->text() : QString()));
        popup->close();
        if (chosen)
            answerLater(chosen, [chosen] { chosen->trigger(); });
        return;
    }
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal)
        return;
    if (auto *fileDialog = qobject_cast<QFileDialog *>(modal)) {
        if (chance(60)) {
            const QString file = testFileFor(fileDialog->nameFilters());
            trace(QStringLiteral("file dialog gets %1").arg(file));
            fileDialog->selectFile(file);
            answerLater(fileDialog, [fileDialog] { static_cast<QDialog *>(fileDialog)->accept(); });
            return;
        }
    } else if (auto *colours = qobject_cast<QColorDialog *>(modal)) {
        if (chance(60)) {
            colours->setCurrentColor(QColor::fromRgb(random.generate() | 0xff000000));
            trace(QStringLiteral("colour dialog gets %1").arg(colours->currentColor().name()));
            answerLater(colours, [colours] { colours->accept(); });
            return;
        }
    } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
        QList<QAbstractButton *> buttons = box->buttons();
        buttons.erase(std::remove_if(buttons.begin(), buttons.end(),
                          [this](QAbstractButton *b) { return leftOut(b); }),
            buttons.end());
        if (QAbstractButton *button = pick(buttons)) {
            trace(QStringLiteral("message box answered %1").arg(button->text()));
            answerLater(button, [button] { button->click(); });
            return;
        }
    }
    trace(QStringLiteral("dialog %1 cancelled").arg(modal->metaObject()->className()));
    answerLater(modal, [modal] {
        if (auto *dialog = qobject_cast<QDialog *>(modal))
            dialog->reject();
        else
            modal->close();
    });
}

// An answer runs the program's own reaction, which may open the next dialog in a nested event
// loop. Qt never fires a timer again while its own shot is still running, so an answer given
// from inside the answerer's shot would leave that next dialog waiting for ever.
template <typename Answer> void tst_Monkey::answerLater(QObject *context, Answer answer)
{
    QTimer::singleShot(0, context, answer);
}

// A run goes on after an action that left no window to act on, as a user would start again.
void tst_Monkey::reopenIfGone()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *top : windows) {
        if (top->isVisible() && top->windowHandle())
            return;
    }
    qInfo("action %d left no window open; the main window opens again", actionNumber);
    window->openLexoria();
}

void tst_Monkey::drainAfterClose()
{
    // Every shot bound to the window dies with it, but its timer still runs out on its own.
    QTRY_VERIFY_WITH_TIMEOUT(pendingSingleShots() == 0, 120000);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void tst_Monkey::randomUserActions()
{
    const int actions = environmentNumber("VORTIC_MONKEY_ACTIONS", 2000);
    QFile theme(files.filePath(QStringLiteral("theme.txt")));
    QVERIFY(theme.open(QIODevice::WriteOnly));
    for (int line = 0; line < 300; ++line)
        theme.write(QByteArray::number(random.bounded(400)) + '\n');
    theme.close();

    // One window made and gone first, so that what Qt makes once per process does not count.
    {
        lexoria warmUp;
        warmUp.openLexoria();
        QTest::qWait(50);
    }
    drainAfterClose();
    const QWidgetList windowsBefore = QApplication::topLevelWidgets();
    const QStringList objectsBefore = liveClassNames();

    window = std::make_unique<lexoria>();
    dialogAnswerer.start();
    stallWatch.start();
    const struct
    {
        Action action;
        int weight;
    } mix[] = {
        {&tst_Monkey::pressKey, 30},
        {&tst_Monkey::releaseKey, 6},
        {&tst_Monkey::click, 30},
        {&tst_Monkey::hover, 12},
        {&tst_Monkey::adjust, 6},
        {&tst_Monkey::trigger, 4},
        {&tst_Monkey::playRight, 6},
        {&tst_Monkey::pause, 6},
    };
    int totalWeight = 0;
    for (const auto &entry : mix)
        totalWeight += entry.weight;

    qint64 memoryAfterFirstThousand = 0;
    qint64 memoryAtEnd = 0;
    for (actionNumber = 1; actionNumber <= actions; ++actionNumber) {
        int draw = below(totalWeight);
        Action action = mix[0].action;
        for (const auto &entry : mix) {
            if (draw < entry.weight) {
                action = entry.action;
                break;
            }
            draw -= entry.weight;
        }
        (this->*action)();
        if (chance(20))
            QTest::qWait(below(30));
        else
            QCoreApplication::processEvents();
        reopenIfGone();

        if (actionNumber % 1000 == 0 || actionNumber == actions) {
            const qint64 memory = memoryKb();
            qInfo("%d actions, %lld kB, %d live objects", actionNumber, memory, liveCount());
            if (actionNumber == 1000)
                memoryAfterFirstThousand = memory;
            memoryAtEnd = memory;
        }
    }
    if (actions >= 2000)
        QVERIFY2(memoryAtEnd - memoryAfterFirstThousand < 20 * 1024,
            qPrintable(QStringLiteral("memory grew from %1 kB to %2 kB")
                           .arg(memoryAfterFirstThousand)
                           .arg(memoryAtEnd)));

    for (const auto &held : qAsConst(heldKeys))
        sendKey(window.get(), QEvent::KeyRelease, held.first, held.second);
    dialogAnswerer.stop();
    stallWatch.stop();
    window->close();
    window.reset();
    drainAfterClose();

    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    // Nothing the program made outlives its window.
    QCOMPARE(QApplication::topLevelWidgets().size(), windowsBefore.size());
    // Qt makes these once per process, on first use, and keeps them; the audio plugin too.
    // What a copy or cut put on the clipboard is the clipboard's own until the next copy.
    static const QStringList processWide
        = {QStringLiteral("QClipboard"), QStringLiteral("QMimeData"),
            QStringLiteral("QDesktopScreenWidget"), QStringLiteral("QDesktopWidget"),
            QStringLiteral("QOpenUrlHandlerRegistry"), QStringLiteral("QPanGesture"),
            QStringLiteral("QWidgetWindow"), QStringLiteral("QFactoryLoader"),
            QStringLiteral("QPulseAudioEngine"), QStringLiteral("QPulseAudioPlugin"),
            // Qt SQL's shared null connection and the SQLite plugin, and the text item with which
            // Qt Charts measures its labels: all three are function statics of Qt's own.
            QStringLiteral("QSqlDriver"), QStringLiteral("QSQLiteDriverPlugin"),
            QStringLiteral("QGraphicsTextItem"), QStringLiteral("QWidgetTextControl"),
            QStringLiteral("QTextDocument"), QStringLiteral("QTextDocumentLayout"),
            QStringLiteral("QTextFrame"), QStringLiteral("QTextImageHandler")};
    QStringList outlived = liveClassNames();
    for (const QString &name : objectsBefore)
        outlived.removeOne(name);
    outlived.erase(std::remove_if(outlived.begin(), outlived.end(),
                       [](const QString &name) { return processWide.contains(name); }),
        outlived.end());
    QVERIFY2(outlived.isEmpty(), qPrintable(outlived.join(QLatin1String(", "))));
}

QTEST_MAIN(tst_Monkey)
#include "tst_monkey.moc"
