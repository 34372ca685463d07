#include "PathShapes.h"

#include <QPainterPath>

#include <array>
#include <cmath>

namespace {

constexpr qreal Tolerance = 0.01;

bool near(qreal a, qreal b)
{
    return std::abs(a - b) < Tolerance;
}

bool near(const QPointF& a, const QPointF& b)
{
    return near(a.x(), b.x()) && near(a.y(), b.y());
}

/// The radii along x and y of the four corners, clockwise from the top left; zero is square.
using Corners = std::array<QSizeF, 4>;

class CornerFinder
{
public:
    explicit CornerFinder(const QPainterPath& path)
        : m_path(path), m_bounds(path.controlPointRect()), m_corners{}
    {
        m_corners.fill(QSizeF(0, 0));
    }

    const QRectF& bounds() const { return m_bounds; }

    const Corners& corners() const { return m_corners; }

    /// Whether the path is the bounds with round corners, and nothing else.
    bool find()
    {
        if (m_bounds.isEmpty() || m_path.elementCount() < 5)
            return false;
        QPointF at = m_path.elementAt(0);
        for (int i = 1; i < m_path.elementCount(); ++i) {
            const QPainterPath::Element element = m_path.elementAt(i);
            const bool curve = element.isCurveTo();
            const QPointF to = curve ? m_path.elementAt(i + 2) : element;
            if (element.isMoveTo() || (curve ? !takeCorner(at, to) : !isAlongEdge(at, to)))
                return false;
            at = to;
            i += curve ? 2 : 0;
        }
        return near(at, m_path.elementAt(0));
    }

private:
    bool isOnEdge(const QPointF& point) const
    {
        return near(point.x(), m_bounds.left()) || near(point.x(), m_bounds.right())
               || near(point.y(), m_bounds.top()) || near(point.y(), m_bounds.bottom());
    }

    bool isAlongEdge(const QPointF& from, const QPointF& to) const
    {
        const bool straight = near(from.x(), to.x()) || near(from.y(), to.y());
        return straight && isOnEdge(from) && isOnEdge(to) && isOnEdge((from + to) / 2);
    }

    bool takeCorner(const QPointF& from, const QPointF& to)
    {
        if (near(from, to))
            return true;
        const QPointF points[] = {m_bounds.topLeft(), m_bounds.topRight(), m_bounds.bottomRight(),
                                  m_bounds.bottomLeft()};
        for (std::size_t i = 0; i < m_corners.size(); ++i) {
            const QPointF first = from - points[i];
            const QPointF second = to - points[i];
            const QSizeF radii(std::max(std::abs(first.x()), std::abs(second.x())),
                               std::max(std::abs(first.y()), std::abs(second.y())));
            const bool crosses = (near(first.x(), 0) && near(second.y(), 0))
                                 || (near(first.y(), 0) && near(second.x(), 0));
            const bool fits = radii.width() < m_bounds.width() / 2 + Tolerance
                              && radii.height() < m_bounds.height() / 2 + Tolerance;
            if (crosses && fits) {
                m_corners[i] = radii;
                return true;
            }
        }
        return false;
    }

    const QPainterPath& m_path;
    QRectF m_bounds;
    Corners m_corners;
};

void describeCorners(Shape& shape, const Corners& corners)
{
    const QSizeF half = shape.rect.size() / 2;
    bool ellipse = true;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QSizeF radii = corners[i];
        ellipse =
            ellipse && near(radii.width(), half.width()) && near(radii.height(), half.height());
        if (radii.isEmpty()) {
            shape.squareCorners |= 1 << i;
            continue;
        }
        const bool same = near(radii.width(), radii.height())
                          && (shape.radius == 0 || near(shape.radius, radii.width()));
        shape.radius = same ? radii.width() : -1;
    }
    shape.kind = ellipse ? Shape::Ellipse : shape.radius != 0 ? Shape::RoundedRect : Shape::Rect;
    if (shape.kind != Shape::RoundedRect) {
        shape.radius = 0;
        shape.squareCorners = 0;
    }
}

} // namespace

Shape shapeOfPath(const QPainterPath& path)
{
    Shape shape;
    CornerFinder finder(path);
    shape.rect = finder.bounds();
    if (finder.find()) {
        describeCorners(shape, finder.corners());
        return shape;
    }
    QByteArrayList points;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo() && i > 0)
            points.append(QByteArrayLiteral("/"));
        points.append(toText(QPointF(element))
                      + (element.type == QPainterPath::CurveToElement ? "c" : ""));
    }
    shape.points = points.join(' ');
    return shape;
}

QByteArray toText(qreal number)
{
    const qreal rounded = std::round(number * 100) / 100;
    return QByteArray::number(rounded == 0 ? 0 : rounded);
}

QByteArray toText(const QPointF& point)
{
    return toText(point.x()) + ',' + toText(point.y());
}

QByteArray toText(const QRectF& rect)
{
    return toText(rect.topLeft()) + ' ' + toText(rect.width()) + 'x' + toText(rect.height());
}
