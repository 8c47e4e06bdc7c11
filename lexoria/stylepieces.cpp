#include "lexoria/stylepieces.h"

QString rgbaText(const QColor &color)
{
    return QStringLiteral("rgba(%1, %2, %3, %4 ) ")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

QString rgbaTextWithSemicolon(const QColor &color)
{
    return QStringLiteral("rgba(%1, %2, %3, %4 );")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

QString nameText(const QColor &color)
{
    return color.name();
}

QString verticalGradient(const QString &top, const QString &stop, const QString &base)
{
    return "background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 " + top
        + ", stop: " + stop + "  " + base + ");";
}
