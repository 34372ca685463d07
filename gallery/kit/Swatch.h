#pragma once

#include <QBrush>
#include <QWidget>

namespace Gallery {

/// A rounded rectangle filled with a brush, over a checkerboard where the brush lets light through.
class Swatch : public QWidget
{
public:
    Swatch(const QBrush& brush, int radius, const QSize& size);

    QSize sizeHint() const override { return m_size; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QBrush m_brush;
    int m_radius;
    QSize m_size;
};

/// `brush` on a pixmap of `size` logical pixels, for item views.
QPixmap swatchPixmap(const QBrush& brush, const QSize& size, qreal devicePixelRatio);

} // namespace Gallery
