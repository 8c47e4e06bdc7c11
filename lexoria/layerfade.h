#ifndef LEXORIA_LAYERFADE_H
#define LEXORIA_LAYERFADE_H

#include <QGraphicsOpacityEffect>
#include <QList>
#include <QPixmap>
#include <QPointer>

class QLabel;

namespace fadelayers {

class KeyFade;

// The opacity of one layer of a fading key. Qt renders a widget's style sheet into a fresh
// pixmap for every frame of a plain opacity effect, since it keeps no cache for widgets; with
// two hundred layers in mid-fade that alone is longer than a frame. This effect renders its
// layer once and blends that picture at the animated opacity, which draws the same pixels,
// and renders again whenever the layer's own look changes (a key press, a highlight, a movie
// frame) so that the fade never shows a stale key.
class LayerFade : public QGraphicsOpacityEffect
{
    Q_OBJECT

public:
    LayerFade(QWidget *layer, QObject *parent);

    // What the layer is drawn at: the opacity of the running fade of its key, if any.
    qreal shownOpacity() const;

protected:
    void draw(QPainter *painter) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class KeyFade;

    struct Look
    {
        QString text;
        qint64 pixmap = 0;
        int movieFrame = -1;
        QSize size;
        qreal pixelRatio = 1;

        bool operator==(const Look &other) const
        {
            return text == other.text && pixmap == other.pixmap && movieFrame == other.movieFrame
                && size == other.size && pixelRatio == other.pixelRatio;
        }
    };
    Look lookNow(const QPainter *painter) const;

    QPointer<QWidget> layer;
    QLabel *label = nullptr;
    QPointer<KeyFade> keyFade;
    QPixmap picture;
    QPoint pictureOffset;
    Look pictureLook;
    bool stale = true;
};

// One key's fade: a single animated opacity that all the key's layers are drawn at. Each frame
// then marks the key's area of its board for repainting once, instead of marking each layer
// as a widget of its own: Qt weighs every dirty widget against all its siblings, and the board
// holds hundreds, so that cost grew with the square of the keyboard. Each layer's own effect
// takes the end opacity when the fade is over; it deletes itself then.
class KeyFade : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qreal opacity READ opacity WRITE setOpacity)

public:
    KeyFade(const QList<QWidget *> &layers, qreal from, qreal to, int ms, QObject *parent);

    // Starts the fade and only then sets the layers' new effects, in place of whatever
    // effect they had.
    void start();

    qreal opacity() const { return shown; }
    void setOpacity(qreal opacity);

private:
    void finish();

    QList<QWidget *> layers;
    QList<QPointer<LayerFade>> effects;
    qreal shown;
    qreal end;
    int ms;
};

// The opacity a layer is seen at through its fade, or -1 when it has no opacity effect.
qreal shownOpacity(const QWidget *layer);

} // namespace fadelayers

#endif
