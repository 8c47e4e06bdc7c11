#ifndef WINDOWFORM_H
#define WINDOWFORM_H

#include <QRect>
#include <QSize>
#include <QWidget>

#include <cstddef>

class QMainWindow;

// The opening window and the reading windows are built from tables instead of generated code:
// one row per widget, so that the place, words and look of a widget are found in one line.
namespace windowform {

enum Flag : unsigned {
    NoFlags = 0,
    Pixmap = 1u << 0, // the text column is a picture, scaled to the rectangle
    OpensLinks = 1u << 1, // links go to the system's browser
    Disabled = 1u << 2,
    ReadOnly = 1u << 3,
    WordWrap = 1u << 4,
    AlignTop = 1u << 5,
    Centered = 1u << 6,
    MovableTabs = 1u << 7, // document-mode tabs that the reader may drag into another order
    AlignRight = 1u << 8,
};

template <typename Member> struct MemberOf;

template <typename Form, typename Widget> struct MemberOf<Widget * Form::*>
{
    using FormType = Form;
    using WidgetType = Widget;
};

// Makes the widget whose class is the type of the form member, and stores it there.
template <auto member>
QWidget *make(typename MemberOf<decltype(member)>::FormType &form, QWidget *parent)
{
    auto *widget = new typename MemberOf<decltype(member)>::WidgetType(parent);
    form.*member = widget;
    return widget;
}

template <typename Form> struct Field
{
    QWidget *(*make)(Form &form, QWidget *parent);
    const char *name;
};

// A form member and its object name, which is always the member's own name. Needs an alias
// `Form` for the form struct in scope.
// clang-format off
#define WINDOWFORM_FIELD(member) {&windowform::make<&Form::member>, #member}
// clang-format on

template <typename Form> struct Row
{
    Field<Form> field;
    const char *parent; // object name of an earlier row; nullptr for the central widget
    QRect rect; // ignored for a page of a tab widget, which takes the text as its tab title
    const char *text; // for a Pixmap row, the picture's resource path
    const char *style;
    unsigned flags;
};

struct Frame
{
    const char *objectName;
    const char *title;
    QSize size;
    const char *icon; // nullptr: no icon of its own
};

// Names, titles and sizes the window and gives it an empty central widget, which is returned.
QWidget *dressWindow(QMainWindow *window, const Frame &frame);

// The row named `parent`, which an earlier row has made; the central widget for nullptr.
QWidget *findParent(QWidget *central, const char *parent, const char *child);

void dressWidget(QWidget *widget, const char *name, const QRect &rect, const char *text,
    const char *style, unsigned flags);

template <typename Form, std::size_t count>
void build(Form &form, QMainWindow *window, const Frame &frame, const Row<Form> (&rows)[count])
{
    form.centralwidget = dressWindow(window, frame);
    for (const Row<Form> &row : rows) {
        QWidget *parent = findParent(form.centralwidget, row.parent, row.field.name);
        dressWidget(
            row.field.make(form, parent), row.field.name, row.rect, row.text, row.style, row.flags);
    }
}

} // namespace windowform

#endif
