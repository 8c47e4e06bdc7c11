#include "windowform.h"

#include <QAbstractButton>
#include <QIcon>
#include <QLabel>
#include <QMainWindow>
#include <QPixmap>
#include <QTabWidget>
#include <QTextBrowser>

namespace windowform {

QWidget *dressWindow(QMainWindow *window, const Frame &frame)
{
    window->setObjectName(QLatin1String(frame.objectName));
    window->setWindowTitle(QString::fromUtf8(frame.title));
    window->resize(frame.size);
    if (frame.icon)
        window->setWindowIcon(QIcon(QString::fromUtf8(frame.icon)));

    auto *central = new QWidget(window);
    central->setObjectName(QStringLiteral("centralwidget"));
    window->setCentralWidget(central);
    return central;
}

QWidget *findParent(QWidget *central, const char *parent, const char *child)
{
    if (!parent)
        return central;
    auto *found = central->findChild<QWidget *>(QLatin1String(parent));
    Q_ASSERT_X(found, child, "a parent must come earlier in its table");
    Q_UNUSED(child)
    return found ? found : central;
}

static void dressLabel(QLabel *label, const QString &text, unsigned flags)
{
    if (flags & Pixmap) {
        // A picture that is not in the resources yet is a null pixmap: the label stays empty.
        label->setPixmap(QPixmap(text));
        label->setScaledContents(true);
    } else {
        label->setText(text);
    }
    if (flags & WordWrap)
        label->setWordWrap(true);
    if (flags & OpensLinks)
        label->setOpenExternalLinks(true);
    if (flags & AlignTop)
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    if (flags & Centered)
        label->setAlignment(Qt::AlignCenter);
    if (flags & AlignRight)
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

static void dressTextEdit(QTextEdit *edit, const QString &text, unsigned flags)
{
    if (auto *browser = qobject_cast<QTextBrowser *>(edit))
        browser->setOpenExternalLinks(flags & OpensLinks);
    else
        edit->setReadOnly(flags & ReadOnly);
    edit->setHtml(text);
}

void dressWidget(QWidget *widget, const char *name, const QRect &rect, const char *text,
    const char *style, unsigned flags)
{
    const QString words = QString::fromUtf8(text ? text : "");
    widget->setObjectName(QLatin1String(name));

    // A page is still a child of its tab widget here; addTab moves it into the page stack.
    if (auto *tabs = qobject_cast<QTabWidget *>(widget->parentWidget()))
        tabs->addTab(widget, words);
    else
        widget->setGeometry(rect);

    if (style)
        widget->setStyleSheet(QString::fromUtf8(style));
    if (flags & Disabled)
        widget->setEnabled(false);

    if (auto *label = qobject_cast<QLabel *>(widget)) {
        dressLabel(label, words, flags);
    } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        button->setText(words);
    } else if (auto *edit = qobject_cast<QTextEdit *>(widget)) {
        dressTextEdit(edit, words, flags);
    } else if (auto *tabs = qobject_cast<QTabWidget *>(widget)) {
        tabs->setDocumentMode(flags & MovableTabs);
        tabs->setMovable(flags & MovableTabs);
    }
}

} // namespace windowform
