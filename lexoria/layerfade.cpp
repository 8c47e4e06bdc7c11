#include "lexoria/layerfade.h"

#include <QEvent>
#include <QHash>
#include <QLabel>
#include <QMovie>
#include <QPainter>
#include <QPropertyAnimation>

#include <algorithm>

namespace fadelayers {

LayerFade::LayerFade(QWidget *layer, QObject *parent)
    : QGraphicsOpacityEffect(parent)
    , layer(layer)
    , label(qobject_cast<QLabel *>(layer))
{
    // Style, font and palette changes reach a widget as events, not as repaints we could tell
    // from our own.
    layer->installEventFilter(this);
}

qreal LayerFade::shownOpacity() const
{
    return keyFade ? keyFade->opacity() : opacity();
}

bool LayerFade::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::EnabledChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::Enter:
    case QEvent::Leave:
        stale = true;
        break;
    default:
        break;
    }
    return QGraphicsOpacityEffect::eventFilter(watched, event);
}

LayerFade::Look LayerFade::lookNow(const QPainter *painter) const
{
    Look look;
    look.size = layer ? layer->size() : QSize();
    look.pixelRatio = painter->device() ? painter->device()->devicePixelRatioF() : 1;
    if (label) {
        look.text = label->text();
        look.pixmap = label->pixmap(Qt::ReturnByValue).cacheKey();
        if (const QMovie *movie = label->movie())
            look.movieFrame = movie->currentFrameNumber();
    }
    return look;
}

void LayerFade::draw(QPainter *painter)
{
    const qreal alpha = shownOpacity();
    if (qFuzzyIsNull(alpha)) {
        // A faded-out key keeps its effect for good; its picture is not needed again.
        picture = QPixmap();
        stale = true;
        return;
    }
    if (qFuzzyCompare(alpha, 1) || opacityMask().style() != Qt::NoBrush) {
        picture = QPixmap();
        stale = true;
        if (keyFade)
            drawSource(painter);
        else
            QGraphicsOpacityEffect::draw(painter);
        return;
    }
    const Look look = lookNow(painter);
    if (stale || picture.isNull() || !(look == pictureLook)) {
        picture = sourcePixmap(Qt::LogicalCoordinates, &pictureOffset, QGraphicsEffect::NoPad);
        pictureLook = look;
        stale = false;
    }
    if (picture.isNull())
        return;
    painter->save();
    painter->setOpacity(alpha);
    painter->drawPixmap(pictureOffset, picture);
    painter->restore();
}

KeyFade::KeyFade(const QList<QWidget *> &layers, qreal from, qreal to, int ms, QObject *parent)
    : QObject(parent)
    , layers(layers)
    , shown(from)
    , end(to)
    , ms(ms)
{
    for (QWidget *layer : layers) {
        auto *effect = new LayerFade(layer, parent);
        effect->setOpacity(from);
        effect->keyFade = this;
        effects.append(effect);
    }
}

void KeyFade::start()
{
    auto *animation = new QPropertyAnimation(this, "opacity", this);
    animation->setDuration(ms);
    animation->setStartValue(shown);
    animation->setEndValue(end);
    animation->setEasingCurve(QEasingCurve::InCirc);
    connect(animation, &QAbstractAnimation::finished, this, &KeyFade::finish);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    for (int i = 0; i < layers.size(); ++i)
        layers[i]->setGraphicsEffect(effects[i]);
}

void KeyFade::setOpacity(qreal opacity)
{
    shown = opacity;
    if (std::none_of(effects.cbegin(), effects.cend(),
            [](const QPointer<LayerFade> &effect) { return !effect.isNull(); })) {
        // A later fade of the key has replaced every effect of this one.
        deleteLater();
        return;
    }
    QHash<QWidget *, QRect> areas;
    for (int i = 0; i < layers.size(); ++i) {
        if (effects[i] && layers[i]->parentWidget())
            areas[layers[i]->parentWidget()] |= layers[i]->geometry();
    }
    for (auto area = areas.cbegin(); area != areas.cend(); ++area)
        area.key()->update(area.value());
}

void KeyFade::finish()
{
    for (const QPointer<LayerFade> &effect : qAsConst(effects)) {
        if (!effect)
            continue;
        effect->keyFade = nullptr;
        // At full opacity the effect draws its layer directly, without a pixmap. It is not
        // disabled: disabling an effect makes Qt repaint the whole board, which at the end of
        // every key of a wave would repaint the whole window.
        effect->setOpacity(end);
    }
    deleteLater();
}

qreal shownOpacity(const QWidget *layer)
{
    QGraphicsEffect *effect = layer->graphicsEffect();
    if (auto *fade = qobject_cast<LayerFade *>(effect))
        return fade->shownOpacity();
    if (auto *opacity = qobject_cast<QGraphicsOpacityEffect *>(effect))
        return opacity->opacity();
    return -1;
}

} // namespace fadelayers
