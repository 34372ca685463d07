#pragma once

#include "ProbeTheme.h"
#include "StyleOptions.h"

#include <QImage>
#include <QPainter>

/// What is measured and painted, beside the samples of the tests: a place to paint.
namespace StyleBenchmark {

/// An image like the raster backing store, being painted on.
class Canvas
{
public:
    explicit Canvas(QSize size, qreal scale = 1)
        : m_image(size * scale, QImage::Format_ARGB32_Premultiplied)
    {
        m_image.setDevicePixelRatio(scale);
        m_image.fill(Qt::transparent);
        painter.begin(&m_image);
    }

private:
    QImage m_image;

public:
    QPainter painter; ///< Ends before the image goes.
};

} // namespace StyleBenchmark
