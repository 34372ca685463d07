#include "pages/Chart.h"

#include "kit/Decoration.h"
#include "kit/Page.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace Gallery {

namespace {

constexpr int Series = 4;
constexpr int Points = 60;
constexpr int Lines = 4;

QColor seriesColor(int series)
{
    return Decoration::color(
        QString(QLatin1String("Series0") % QString::number(series + 1) % QLatin1String("Color")),
        QPalette::Highlight);
}

/// A smooth, made-up curve from 0 to 1.
double value(int series, double x)
{
    const double wave = std::sin(x * (5 + series) + series) * std::exp(-x);
    return 0.5 + 0.35 * wave + 0.08 * (series - 1.5);
}

void paintGrid(QPainter& painter, const QRectF& plot)
{
    painter.setPen(Decoration::border());
    for (int line = 0; line <= Lines; ++line) {
        const double y = std::floor(plot.top() + plot.height() * line / Lines) + 0.5;
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    }
}

void paintSeries(QPainter& painter, const QRectF& plot, int series)
{
    QPainterPath path;
    for (int point = 0; point <= Points; ++point) {
        const double x = double(point) / Points;
        const QPointF place(plot.left() + plot.width() * x,
                            plot.bottom() - plot.height() * value(series, x));
        if (point == 0)
            path.moveTo(place);
        else
            path.lineTo(place);
    }
    painter.setPen(QPen(seriesColor(series), 2));
    painter.drawPath(path);
}

} // namespace

Chart::Chart()
{
    setMinimumSize(30 * Unit, 16 * Unit);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Chart::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const QRectF plot = QRectF(rect()).adjusted(2 * Unit, 2 * Unit, -2 * Unit, -2 * Unit);
    paintGrid(painter, plot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (int series = 0; series < Series; ++series)
        paintSeries(painter, plot, series);
}

} // namespace Gallery
