#include "Shapes.h"

#include "Texts.h"
#include "ThemeIcons.h"

#include <QGuiApplication>

#include <cmath>

namespace BRELK::Shapes {

namespace {

/// Whether the edges of logical pixels may lie inside those of the device.
bool isBetweenPixels(const QPainter& painter)
{
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1;
    return !qFuzzyCompare(ratio, qRound(ratio));
}

/// A box moved to whole pixels of the device, and as much of a logical pixel as fills whole ones.
struct PlacedBox
{
    QRectF rect;
    qreal border;

    QRectF inside(qreal borders) const
    {
        const qreal inset = borders * border;
        return rect.adjusted(inset, inset, -inset, -inset);
    }
};

PlacedBox placed(const QPainter& painter, const QRectF& rect)
{
    if (!isBetweenPixels(painter))
        return {rect, 1};
    const QTransform& transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale)
        return {rect, 1};
    constexpr qreal Smallest = 1e-3; // pens of less are too wide for the toolkit
    const qreal scale = qAbs(transform.m11());
    if (scale < Smallest)
        return {rect, 1};
    const auto rounded = [](qreal pixels) { return std::floor(pixels + 0.5); }; // to any number
    const QRectF covered = transform.mapRect(rect);
    const QRectF whole(QPointF(rounded(covered.left()), rounded(covered.top())),
                       QPointF(rounded(covered.right()), rounded(covered.bottom())));
    return {transform.inverted().mapRect(whole), qMax(1.0, std::floor(scale)) / scale};
}

QIcon::Mode iconMode(const StyleContext& context)
{
    if (!context.enabled())
        return QIcon::Disabled;
    const bool isItem = qstyleoption_cast<const QStyleOptionViewItem*>(&context.option);
    return isItem && context.has(QStyle::State_Selected) ? QIcon::Selected : QIcon::Normal;
}

} // namespace

Border borderInside(const QPainter& painter, const QRectF& rect, const QBrush& brush)
{
    const PlacedBox box = placed(painter, rect);
    if (brush.style() == Qt::NoBrush)
        return {box.rect, QPen(Qt::NoPen)};
    return {box.inside(0.5), {brush, box.border, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin}};
}

int cornerRadius(ThemeNames::RadiusName name)
{
    return int(themeValues().radii.value(name));
}

void drawBox(const PaintContext& context, const QRectF& rect, int radius, const QBrush& fill,
             const QBrush& border, Helpers::StraightCornerFlags straightCorners)
{
    if (border.style() == Qt::NoBrush && fill.style() == Qt::NoBrush)
        return;
    const Border edge = borderInside(context.painter, rect, border);
    Helpers::drawRoundedBox(edge.line, radius, straightCorners, edge.pen, fill, &context.painter);
}

void drawInnerBorder(const PaintContext& context, const QRect& rect, int radius,
                     const QBrush& border, Helpers::StraightCornerFlags straightCorners)
{
    if (border.style() == Qt::NoBrush)
        return;
    const PlacedBox box = placed(context.painter, rect); // no gap between the two
    const QPen pen(border, box.border, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    Helpers::drawRoundedBox(box.inside(1.5), qMax(0, radius - 1), straightCorners, pen, QBrush(),
                            &context.painter);
}

void drawGround(const PaintContext& context, const QRect& rect, int radius, const QBrush& fill)
{
    Helpers::drawRoundedBox(placed(context.painter, rect).inside(1), qMax(0, radius - 1),
                            Helpers::None, QPen(Qt::NoPen), fill, &context.painter);
}

QRect visiblePart(const QPainter& painter, const QRect& rect)
{
    const QPaintDevice* device = painter.device();
    const QRect bounds = device ? QRect(0, 0, device->width(), device->height()) : QRect();
    if (bounds.isEmpty() || device->devType() == QInternal::Picture)
        return rect;
    const QRect seen =
        painter.combinedTransform().inverted().mapRect(QRectF(bounds)).toAlignedRect();
    return rect & seen;
}

void drawLine(const PaintContext& context, const QPoint& from, const QPoint& to,
              const QBrush& brush)
{
    // A filled rectangle covers the same pixels at every scale; a line need not.
    const QRect line = QRect(from, to).normalized();
    if (!isBetweenPixels(context.painter)) {
        context.painter.fillRect(line, brush);
        return;
    }
    PlacedBox box = placed(context.painter, line);
    // At the end of what is painted a line fills its last pixels, as borders do.
    const QRect& whole = context.option.rect;
    if (line.width() == 1 && line.x() == whole.right())
        box.rect.setLeft(box.rect.right() - box.border);
    else if (line.width() == 1)
        box.rect.setWidth(box.border);
    if (line.height() == 1 && line.y() == whole.bottom())
        box.rect.setTop(box.rect.bottom() - box.border);
    else if (line.height() == 1)
        box.rect.setHeight(box.border);
    context.painter.fillRect(box.rect, brush);
}

QPixmap iconPixmap(const PaintContext& context, const QIcon& icon, const QBrush& brush,
                   const QSize& size, QIcon::State state)
{
    return ThemeIcons::pixmap(context.painter, icon, brush, size, iconMode(context), state);
}

void drawIcon(const PaintContext& context, const QIcon& icon, const QBrush& brush,
              const QRect& rect, const QSize& size, QIcon::State state)
{
    if (icon.isNull() || rect.isEmpty())
        return;
    context.proxy().drawItemPixmap(&context.painter, rect, Qt::AlignCenter,
                                   iconPixmap(context, icon, brush, size, state));
}

void drawText(const PaintContext& context, const QRect& rect, int flags, const QString& text,
              const QBrush& brush, Qt::TextElideMode elide)
{
    if (text.isEmpty() || rect.isEmpty())
        return;
    const bool hidesMnemonics = flags & Qt::TextShowMnemonic
                                && !context.proxy().styleHint(QStyle::SH_UnderlineShortcut,
                                                              &context.option, context.widget);
    if (hidesMnemonics)
        flags |= Qt::TextHideMnemonic;
    const QString shown = Texts::fitted(context.painter, text, elide, rect.width(), flags);
    const QPen pen = context.painter.pen();
    context.painter.setPen(QPen(brush, 1));
    context.proxy().drawItemText(&context.painter, rect, flags, context.option.palette,
                                 context.enabled(), shown, QPalette::NoRole);
    context.painter.setPen(pen);
}

bool isLight(const QColor& color)
{
    constexpr int Middle = 128;
    return Helpers::getPerceivedBrightness(color) > Middle;
}

void drawGrips(const PaintContext& context, Qt::Orientation orientation, int from, int to,
               int across, const QColor& ground)
{
    constexpr int Step = 4;
    constexpr int Longest = 1 << 13; // where a recording or a tiny scale lets all of it be seen
    const bool upright = orientation == Qt::Vertical;
    const QRect seen = visiblePart(
        context.painter, upright ? QRect(QPoint(across, from), QPoint(across + GripSize, to))
                                 : QRect(QPoint(from, across), QPoint(to, across + GripSize)));
    from += qMax(0, (upright ? seen.top() : seen.left()) - from) / Step * Step;
    to = qMin(to, (upright ? seen.bottom() : seen.right()) + 1);
    to = qMin(to, from + Longest);
    context.style.drawGrips(context.painter, orientation, from, to, across, Step, GripSize, 1);
    if (!isLight(ground.isValid() ? ground : context.option.palette.color(QPalette::Window)))
        return;
    // Light dots are lost on a light ground: there the dark pixel in their corner grows to their
    // size.
    for (int pixel = 1; pixel < GripSize * GripSize; ++pixel) {
        const int shift = pixel % GripSize;
        context.style.drawGrips(context.painter, orientation, from + shift, to + shift,
                                across + pixel / GripSize, Step, 0, 1);
    }
}

} // namespace BRELK::Shapes
