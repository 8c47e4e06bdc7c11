#include "stats/missmap.h"

#include "lexoria/keycatalogue.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace stats {

namespace {

// The keyboard of the main window spans these pixels; the map draws it at a fixed scale.
constexpr int left = 145;
constexpr int top = 394;
constexpr int right = 1054;
constexpr int bottom = 688;
constexpr double scale = 0.72;
constexpr int margin = 4;

QRectF mapped(const QRect &rect)
{
    return QRectF(margin + (rect.x() - left) * scale, margin + (rect.y() - top) * scale,
        rect.width() * scale - 2, rect.height() * scale - 2);
}

QString seconds(double ms)
{
    return QString::number(ms / 1000.0, 'f', 1) + QLatin1Char('s');
}

} // namespace

MissMap::MissMap(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("missMap"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void MissMap::setFigures(const QVector<KeyFigure> &figures)
{
    keys = figures;
    update();
}

QSize MissMap::sizeHint() const
{
    return QSize(
        int((right - left) * scale) + 2 * margin, int((bottom - top) * scale) + 2 * margin);
}

QColor MissMap::colourOf(const KeyFigure &figure)
{
    if (figure.entries == 0)
        return QColor(225, 225, 225);
    const double share = qMin(1.0, figure.missRate() * 3);
    return QColor::fromHsvF((1.0 - share) / 3.0, 0.55, 0.95);
}

// The numbers behind a key's colour, for the key under the mouse.
bool MissMap::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const QPoint at = static_cast<QHelpEvent *>(event)->pos();
    for (const keycatalogue::CharacterKey &key : keycatalogue::characterKeys) {
        if (!mapped(keycatalogue::keyRect(key.k)).contains(at))
            continue;
        const KeyFigure figure = key.k - 1 < keys.size() ? keys[key.k - 1] : KeyFigure();
        const QString letters = keycatalogue::letterText(key.lower) + QLatin1Char(' ')
            + keycatalogue::letterText(key.upper);
        QString text = figure.entries == 0
            ? tr("%1: not asked yet").arg(letters)
            : tr("%1: %2 of %3 missed").arg(letters).arg(figure.misses).arg(figure.entries);
        if (figure.meanFindMs > 0)
            text += tr(", found in %1 on average").arg(seconds(figure.meanFindMs));
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text, this);
        return true;
    }
    QToolTip::hideText();
    event->ignore();
    return true;
}

void MissMap::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(110, 110, 110));

    painter.setBrush(QColor(245, 245, 245));
    for (const keycatalogue::ControlKey &control : keycatalogue::controlKeys) {
        const QRectF rect = mapped(QRect(control.x, control.y, control.w, control.h));
        painter.drawRoundedRect(rect, 4, 4);
        QFont small = font();
        small.setPointSizeF(6.5);
        painter.setFont(small);
        painter.drawText(rect, Qt::AlignCenter, QLatin1String(control.caption));
    }

    QFont letters = font();
    letters.setPointSizeF(8);
    QFont small = font();
    small.setPointSizeF(6.5);
    for (const keycatalogue::CharacterKey &key : keycatalogue::characterKeys) {
        const KeyFigure figure = key.k - 1 < keys.size() ? keys[key.k - 1] : KeyFigure();
        const QRectF rect = mapped(keycatalogue::keyRect(key.k));
        painter.setPen(QColor(90, 90, 90));
        painter.setBrush(colourOf(figure));
        painter.drawRoundedRect(rect, 4, 4);

        const QRectF inner = rect.adjusted(3, 1, -3, -1);
        painter.setPen(QColor(60, 60, 60));
        painter.setFont(small);
        painter.drawText(inner, Qt::AlignTop | Qt::AlignLeft, QLatin1String(key.english));
        painter.setPen(Qt::black);
        painter.setFont(letters);
        painter.drawText(inner, Qt::AlignTop | Qt::AlignRight, keycatalogue::letterText(key.upper));
        painter.drawText(
            inner, Qt::AlignVCenter | Qt::AlignRight, keycatalogue::letterText(key.lower));
        if (figure.meanFindMs > 0) {
            painter.setFont(small);
            painter.drawText(inner, Qt::AlignBottom | Qt::AlignLeft, seconds(figure.meanFindMs));
        }
    }
}

} // namespace stats
