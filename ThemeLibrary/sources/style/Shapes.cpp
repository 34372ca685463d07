#include "Shapes.h"

#include "Texts.h"
#include "ThemeColorHelper.h"
#include "ThemeResources.h"

#include <QGuiApplication>

namespace BRELK::Shapes {

namespace {

bool isWhole(qreal scale)
{
    return qFuzzyCompare(scale, qRound(scale));
}

} // namespace

QRectF onPixels(const QRect& rect)
{
    return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

QPen borderPen(const QBrush& border)
{
    if (border.style() == Qt::NoBrush)
        return QPen(Qt::NoPen);
    return QPen(border, 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

int cornerRadius(const QString& name)
{
    return int(ThemeResources::getCornerRadius(name));
}

void drawBox(const PaintContext& context, const QRect& rect, int radius, const QBrush& fill,
             const QBrush& border, Helpers::StraightCornerFlags straightCorners)
{
    const bool hasBorder = border.style() != Qt::NoBrush;
    if (!hasBorder && fill.style() == Qt::NoBrush)
        return;
    Helpers::drawRoundedBox(hasBorder ? onPixels(rect) : QRectF(rect), radius, straightCorners,
                            borderPen(border), fill, &context.painter);
}

void drawLine(const PaintContext& context, const QPoint& from, const QPoint& to,
              const QBrush& brush)
{
    // A filled rectangle covers the same pixels at every scale; a line need not.
    const QRect line = QRect(from, to).normalized();
    const QTransform transform = context.painter.deviceTransform();
    if (transform.type() > QTransform::TxScale || isWhole(transform.m11())) {
        context.painter.fillRect(line, brush);
        return;
    }
    // A pixel covers, say, one or two of the device's: all lines are to be equally thick.
    const QRectF covered = transform.mapRect(QRectF(line));
    const int thickness = qMax(1, int(transform.m11()));
    const int left = qRound(covered.left());
    const int top = qRound(covered.top());
    const int width = line.width() == 1 ? thickness : qRound(covered.right()) - left;
    const int height = line.height() == 1 ? thickness : qRound(covered.bottom()) - top;
    context.painter.fillRect(transform.inverted().mapRect(QRectF(left, top, width, height)), brush);
}

QPixmap iconPixmap(const QPainter& painter, const QIcon& icon, const QSize& size, QIcon::Mode mode,
                   QIcon::State state)
{
    // QIcon itself looks at the ratio only when the application asked for it.
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1;
    const qreal known =
        QGuiApplication::testAttribute(Qt::AA_UseHighDpiPixmaps) ? qGuiApp->devicePixelRatio() : 1;
    QPixmap pixmap = icon.pixmap(size * (ratio / known), mode, state);
    const QSize wanted = size * ratio;
    // A picture of too few pixels keeps its size, as in the toolkit, and loses sharpness.
    const bool isFine = pixmap.width() >= wanted.width() || pixmap.height() >= wanted.height();
    pixmap.setDevicePixelRatio(
        isFine ? ratio : qMax(1.0, ratio * pixmap.width() / qMax(1, wanted.width())));
    return pixmap;
}

void drawIcon(const PaintContext& context, const QIcon& icon, const QBrush& brush,
              const QRect& rect, int size)
{
    if (icon.isNull() || rect.isEmpty())
        return;
    const QIcon colored = ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, brush);
    context.proxy().drawItemPixmap(&context.painter, rect, Qt::AlignCenter,
                                   iconPixmap(context.painter, colored, {size, size}));
}

void drawText(const PaintContext& context, const QRect& rect, int flags, const QString& text,
              const QBrush& brush, Qt::TextElideMode elide)
{
    if (text.isEmpty() || rect.isEmpty())
        return;
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
               int across)
{
    constexpr int Step = 4;
    context.style.drawGrips(context.painter, orientation, from, to, across, Step, GripSize, 1);
    if (!isLight(context.option.palette.color(QPalette::Window)))
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

namespace BRELK {

void BaseStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                             const QPalette& palette, bool, const QString& text,
                             QPalette::ColorRole role) const
{
    if (!painter || text.isEmpty())
        return;
    const QPen pen = painter->pen();
    if (role != QPalette::NoRole)
        painter->setPen(QPen(palette.brush(role), pen.widthF()));
    Texts::draw(*painter, rect, flags, text);
    painter->setPen(pen);
}

void BaseStyle::drawItemPixmap(QPainter* painter, const QRect& rect, int alignment,
                               const QPixmap& pixmap) const
{
    if (painter && !pixmap.isNull())
        QProxyStyle::drawItemPixmap(painter, rect, alignment, pixmap);
}

} // namespace BRELK
