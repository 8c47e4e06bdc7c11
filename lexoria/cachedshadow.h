#ifndef CACHEDSHADOW_H
#define CACHEDSHADOW_H

#include <QGraphicsDropShadowEffect>
#include <QPixmap>

namespace shading {

// A drop shadow that keeps what it drew. Qt renders a widget with an effect afresh on every
// repaint, and each rendering walks the whole main window first; a shadowed keyboard repaints
// a stack of such labels for each key press. This effect draws through Qt's own drop shadow
// and keeps the picture in Qt's pixmap cache under everything the picture depends on, so a
// label drawn again in a look it had before, or in the look of another label (the faces of a
// group, the cells of the bar), costs one copy.
class CachedShadow : public QGraphicsDropShadowEffect
{
public:
    using QGraphicsDropShadowEffect::QGraphicsDropShadowEffect;

protected:
    void draw(QPainter *painter) override;

private:
    QString fingerprint() const;
};

} // namespace shading

#endif
