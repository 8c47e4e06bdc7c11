#ifndef LEXORIA_RESTYLE_H
#define LEXORIA_RESTYLE_H

#include <QWidget>

// Qt recomputes a widget's style even when it is handed the sheet it already has; with
// hundreds of labels restyled at once that is most of the cost, so skip the no-op.
inline void restyle(QWidget *widget, const QString &sheet)
{
    if (widget->styleSheet() != sheet)
        widget->setStyleSheet(sheet);
}

#endif
