#include "Families.h"
#include "Foregrounds.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeNames.h"

#include <QCursor>
#include <QSlider>
#include <QtMath>

#include <algorithm>
#include <limits>

// Sliders and dials.
//
// Properties: "rangeSlider", "slider_high_contrast", "slider_highlighted".

namespace BRELK::Sliders {

namespace {

constexpr int CrossSize = 20;
constexpr int TickDistance = 2; ///< from the handle

int minimumHeight(const QWidget* widget)
{
    return widget ? widget->minimumHeight() : 0;
}

QRect handleRect(const StyleContext& context, const QStyleOptionSlider& slider, const QRect& base)
{
    const int length = context.proxy().pixelMetric(QStyle::PM_SliderLength);
    const bool isRange = context.flag(WidgetProperties::RangeSlider);
    QRect rect = base;
    rect.setSize({length, isRange ? qMax(length, minimumHeight(context.widget)) : length});
    const QPoint centre = slider.rect.center();
    if (slider.orientation == Qt::Horizontal)
        rect.moveTop(centre.y() - rect.height() / 2 + 1);
    else
        rect.moveLeft(centre.x() - rect.width() / 2 + 1);
    return rect;
}

QRect grooveRect(const StyleContext& context, const QStyleOptionSlider& slider)
{
    const bool isRange = context.flag(WidgetProperties::RangeSlider);
    const int thickness = isRange ? context.proxy().pixelMetric(QStyle::PM_SliderLength)
                                  : context.proxy().pixelMetric(QStyle::PM_SliderThickness) / 2;
    QRect rect = slider.rect;
    if (slider.orientation == Qt::Vertical)
        rect.setWidth(thickness - 2);
    else
        rect.setHeight(isRange ? qMax(thickness, minimumHeight(context.widget)) : thickness - 2);
    rect.moveCenter(slider.rect.center());
    return rect;
}

} // namespace

int spaceAvailable(const MeasureContext& context)
{
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(context.option);
    if (!slider)
        return 0;
    const QSize size = slider->rect.size();
    return (slider->orientation == Qt::Horizontal ? size.width() : size.height())
           - context.metric(QStyle::PM_SliderLength);
}

QSize sliderSize(const MeasureContext& context, const QStyleOptionSlider& slider,
                 const QSize& contents)
{
    // The handle stays in the middle: ticks on one side take as much room as on both.
    const int tickRoom =
        context.metric(QStyle::PM_SliderTickmarkOffset) + context.dpiScaled(TickDistance);
    const int cross = slider.tickPosition == QSlider::NoTicks
                          ? context.dpiScaled(CrossSize)
                          : context.metric(QStyle::PM_SliderLength) + 2 * tickRoom;
    const bool vertical = slider.orientation == Qt::Vertical;
    const QSize base = context.baseSize(QStyle::CT_Slider, contents);
    return base.expandedTo({vertical ? cross : 0, vertical ? 0 : cross});
}

QRect partRect(const StyleContext& context, const QStyleOptionSlider& slider,
               QStyle::SubControl part)
{
    if (!isCountable(slider))
        return partRect(context, halved(slider), part);
    const auto base = [&] { return context.baseRect(QStyle::CC_Slider, slider, part); };
    switch (part) {
    case QStyle::SC_SliderHandle: return context.visual(handleRect(context, slider, base()));
    case QStyle::SC_SliderGroove: return context.visual(grooveRect(context, slider));
    default: return context.visual(base());
    }
}

namespace {

/// What the parts of one slider share while it is painted.
struct SliderLook
{
    const PaintContext& context;
    const QStyleOptionSlider& slider;
    QRect groove;
    QRect handle;
    QBrush main;
    int radius;
    bool horizontal;
    bool highContrast;

    QBrush highContrastBorder() const { return context.brush(ThemeNames::HighContrastBorderBrush); }
};

void paintGroove(const SliderLook& look)
{
    const PaintContext& context = look.context;
    const QBrush& grooveBrush = context.style.grooveBackgroundBrush(context.enabled());
    const QBrush border = look.highContrast ? look.highContrastBorder() : grooveBrush;
    const QBrush fill =
        look.highContrast ? context.brush(ThemeNames::HighContrastBackgroundBrush) : grooveBrush;
    const int end = look.radius == 0 ? 0 : 1;
    const QRect rect =
        look.horizontal ? look.groove.adjusted(1, 0, -end, 1) : look.groove.adjusted(0, 1, 1, -end);
    Shapes::drawBox(context, rect, look.radius, fill, border.color());
}

/// The part of the groove between its start and the handle, with its border.
QRectF highlightedRect(const SliderLook& look)
{
    const QRectF groove = look.groove;
    const QRect& handle = look.handle;
    const QPoint origin = look.slider.rect.topLeft();
    if (look.horizontal) {
        return look.slider.upsideDown
                   ? groove.adjusted(handle.right() - origin.x() - look.radius, 0, -0.5, 1)
                   : groove.adjusted(0.5, 0, -(groove.right() - handle.right()), 1);
    }
    return look.slider.upsideDown
               ? groove.adjusted(0, handle.bottom() - origin.y() - look.radius, 1, -0.5)
               : groove.adjusted(0, 0.5, 1, -(groove.bottom() - handle.bottom()));
}

void paintHighlight(const SliderLook& look)
{
    const QRectF rect = highlightedRect(look);
    if (look.radius == 0)
        look.context.painter.fillRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), look.main);
    else
        Shapes::drawBox(look.context, rect, look.radius, look.main,
                        (look.highContrast ? look.highContrastBorder() : look.main).color());
}

int positionOf(const QStyleOptionSlider& slider, int value, int space)
{
    return QStyle::sliderPositionFromValue(slider.minimum, slider.maximum, value, space,
                                           slider.upsideDown);
}

qint64 tickInterval(const SliderLook& look, int available)
{
    constexpr int SmallestStepWidth = 3;
    const QStyleOptionSlider& slider = look.slider;
    if (slider.tickInterval >= 1)
        return slider.tickInterval;
    const int stepWidth =
        qAbs(positionOf(slider, slider.singleStep, available) - positionOf(slider, 0, available));
    return qMax(1, stepWidth < SmallestStepWidth ? slider.pageStep : slider.singleStep);
}

/// A tick on each side that has ticks, or those of neighbouring positions as one.
void paintTick(const SliderLook& look, const QBrush& brush, int from, int to, int inset, int length)
{
    const QRect& rect = look.slider.rect;
    const auto draw = [&](int start, int end) {
        const QRect tick = look.horizontal ? QRect(QPoint(from, start), QPoint(to, end))
                                           : QRect(QPoint(start, from), QPoint(end, to));
        if (from == to)
            Shapes::drawLine(look.context, tick.topLeft(), tick.bottomRight(), brush);
        else
            look.context.painter.fillRect(tick, brush);
    };
    const int start = look.horizontal ? rect.top() : rect.left();
    const int end = look.horizontal ? rect.bottom() : rect.right();
    if (look.slider.tickPosition & QSlider::TicksAbove)
        draw(start + inset, start + length);
    if (look.slider.tickPosition & QSlider::TicksBelow)
        draw(end - length, end - inset);
}

/// Along a slider: where the ticks of its ends stand, and which part can be seen.
struct TickRow
{
    int start;
    int space;
    int seenFrom;
    int seenTo;
};

TickRow tickRow(const SliderLook& look)
{
    const QRect& rect = look.slider.rect;
    const QRect seen = Shapes::visiblePart(look.context.painter, rect);
    const int length = look.context.metric(QStyle::PM_SliderLength);
    const int start = length / 2;
    return look.horizontal
               ? TickRow{rect.left() + start, rect.width() - length, seen.left(), seen.right()}
               : TickRow{rect.top() + start, rect.height() - length, seen.top(), seen.bottom()};
}

void paintTicks(const SliderLook& look)
{
    const QStyleOptionSlider& slider = look.slider;
    const int tickLength = look.context.metric(QStyle::PM_SliderTickmarkOffset);
    const TickRow row = tickRow(look);
    const qint64 interval =
        tickInterval(look, look.context.metric(QStyle::PM_SliderSpaceAvailable));
    const qint64 range = qint64(slider.maximum) - slider.minimum;
    if (range < 0 || row.space <= 0)
        return;
    const QBrush brush = OwnColors::onWindow(
        look.context, look.context.brush(ThemeNames::InputForegroundBrush).color());
    if (range / interval > row.space) { // closer than a pixel: one at each
        paintTick(look, brush, row.start, row.start + row.space, 2, tickLength);
        paintTick(look, brush, row.start, row.start, 1, 1);
        paintTick(look, brush, row.start + row.space, row.start + row.space, 1, 1);
        return;
    }
    const auto indexAt = [&](int position) {
        const qint64 value = QStyle::sliderValueFromPosition(
            slider.minimum, slider.maximum, position - row.start, row.space, slider.upsideDown);
        return (value - slider.minimum) / interval;
    };
    const std::pair<qint64, qint64> seen = std::minmax(indexAt(row.seenFrom), indexAt(row.seenTo));
    const qint64 last = (range + (interval == 1 ? 0 : 1)) / interval;
    for (qint64 i = qMax(seen.first - 1, qint64(0)); i <= qMin(seen.second + 1, last); ++i) {
        const int value = int(qMin(slider.minimum + i * interval, qint64(slider.maximum)));
        const int inset = value == slider.minimum || value == slider.maximum ? 1 : 2;
        const int position = row.start + positionOf(slider, value, row.space);
        paintTick(look, brush, position, position, inset, tickLength);
    }
}

bool isHeld(const QWidget* widget)
{
    const auto* slider = qobject_cast<const QAbstractSlider*>(widget);
    return slider && slider->isSliderDown();
}

QBrush handleBrush(const SliderLook& look)
{
    const PaintContext& context = look.context;
    if (isHeld(context.widget))
        return context.brush(ThemeNames::SliderThumbNailPressedBrush);
    const bool hovered = context.has(QStyle::State_MouseOver) && context.widget
                         && look.handle.contains(context.widget->mapFromGlobal(QCursor::pos()));
    return context.brush(hovered ? ThemeNames::SliderThumbNailHoverBrush
                                 : ThemeNames::InputForegroundBrush);
}

void paintHandle(const SliderLook& look)
{
    QPainter& painter = look.context.painter;
    const QBrush brush = OwnColors::onWindow(look.context, handleBrush(look));
    painter.setBrush(brush);
    painter.setPen(look.highContrast ? look.highContrastBorder().color() : brush.color());
    const QRect ellipse = look.handle.adjusted(1, 1, -1, -1);
    if (ellipse.width() == ellipse.height()) {
        // With a radius beyond half the side this is a circle, and quicker than an ellipse.
        Helpers::drawRoundedRectShape(ellipse, ellipse.width(), Helpers::None, &painter);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawEllipse(ellipse);
}

/// Around the way of the handle, clear of the ticks. Deliberate: nothing else on a slider tells
/// that arrow keys move it.
void paintFocus(const SliderLook& look)
{
    const QRect& rect = look.slider.rect;
    const QRect& handle = look.handle;
    auto focus = optionFrom<QStyleOptionFocusRect>(look.slider);
    focus.rect = look.horizontal
                     ? QRect(rect.x(), handle.y() - 1, rect.width(), handle.height() + 2)
                     : QRect(handle.x() - 1, rect.y(), handle.width() + 2, rect.height());
    focus.rect &= rect;
    look.context.draw(QStyle::PE_FrameFocusRect, focus);
}

} // namespace

void paintSlider(const PaintContext& context, const QStyleOptionSlider& slider)
{
    if (!isCountable(slider)) {
        paintSlider(context, halved(slider));
        return;
    }
    const SliderLook look{context,
                          slider,
                          context.part(QStyle::CC_Slider, slider, QStyle::SC_SliderGroove),
                          context.part(QStyle::CC_Slider, slider, QStyle::SC_SliderHandle),
                          context.brush(ThemeNames::MainBrush),
                          Shapes::cornerRadius(ThemeNames::BaseSize),
                          slider.orientation == Qt::Horizontal,
                          context.flag(WidgetProperties::SliderHighContrast)};
    const PainterSaver saver(context.painter);
    if (slider.subControls & QStyle::SC_SliderGroove && look.groove.isValid())
        paintGroove(look);
    if (context.flag(WidgetProperties::SliderHighlighted))
        paintHighlight(look);
    if (slider.subControls & QStyle::SC_SliderTickmarks)
        paintTicks(look);
    if (slider.subControls & QStyle::SC_SliderHandle)
        paintHandle(look);
    if (context.has(QStyle::State_HasFocus))
        paintFocus(look);
}

namespace {

/// The angle of the hand, from the right against the clock.
qreal handAngle(const QStyleOptionSlider& dial)
{
    constexpr qreal Turn = 2 * M_PI;
    constexpr qreal Start = Turn * 2 / 3; // of a dial that does not go all around
    constexpr qreal Way = Turn * 5 / 6;
    const qreal range = qreal(dial.maximum) - dial.minimum;
    if (range <= 0)
        return Turn / 4;
    const qreal position =
        dial.upsideDown ? dial.sliderPosition : qreal(dial.maximum) - dial.sliderPosition;
    const qreal done = (position - dial.minimum) / range;
    return dial.dialWrapping ? Turn * 3 / 4 - done * Turn : Start - done * Way;
}

/// Qt tells no option of a dial that it is being turned.
BaseStyle::ButtonBrushes dialBrushes(const PaintContext& context, const QStyleOptionSlider& dial)
{
    QStyleOptionSlider copy = dial;
    if (isHeld(context.widget))
        copy.state |= QStyle::State_Sunken;
    return BaseStyle::buttonBrushes(&copy, context.widget);
}

void paintDialFace(const PaintContext& context, const QStyleOptionSlider& dial)
{
    constexpr qreal FaceInRect = 0.8; // notches stand around it
    constexpr qreal HandInFace = 0.65;
    constexpr qreal DotInFace = 0.15;
    const PainterSaver saver(context.painter);
    context.painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = QRectF(dial.rect).center();
    const qreal radius = FaceInRect * qMin(dial.rect.width(), dial.rect.height()) / 2;
    const bool focused = context.has(QStyle::State_HasFocus);
    const BaseStyle::ButtonBrushes brushes = dialBrushes(context, dial);
    const QPen border =
        focused ? QPen(context.brush(ThemeNames::MainBrush), 2) : QPen(brushes.borderBrush, 1);
    const QBrush ground = OwnColors::ground(context, QPalette::Button, brushes.backgroundBrush);
    const QPointF corner(radius, radius);
    Helpers::drawRoundedBox({centre - corner, centre + corner}, dial.rect.width(), Helpers::None,
                            border, ground, &context.painter);
    const qreal angle = handAngle(dial);
    const qreal length = HandInFace * radius;
    context.painter.setPen(Qt::NoPen);
    context.painter.setBrush(
        OwnColors::readable(ground, {context.brush(ThemeNames::InputForegroundBrush),
                                     dial.palette.brush(QPalette::ButtonText)}));
    context.painter.drawEllipse(centre + QPointF(length * qCos(angle), -length * qSin(angle)),
                                DotInFace * radius, DotInFace * radius);
}

/// The base style counts notches in an int, and crashes where that is too small or they are
/// negative.
bool hasCountableNotches(const QStyleOptionSlider& dial)
{
    const qint64 end = qint64(dial.maximum) - dial.minimum + dial.tickInterval;
    return dial.tickInterval >= 0 && end <= std::numeric_limits<int>::max();
}

} // namespace

void paintDial(const PaintContext& context, const QStyleOptionSlider& dial)
{
    // Deliberate: the base style gets an option made ready for it. It draws notches that dark or
    // light grounds swallow, and a face with shades, which a flat one covers; a disabled one casts
    // no shadow around it.
    QStyleOptionSlider copy = dial;
    // A kept palette, as the base style finds its picture of the face again by the palette's key.
    Foregrounds::set(copy, dial.palette.brush(QPalette::WindowText), QPalette::Dark);
    copy.state &= ~QStyle::State(QStyle::State_Enabled | QStyle::State_HasFocus);
    if (!hasCountableNotches(dial))
        copy.tickInterval = 0;
    context.drawByBase(QStyle::CC_Dial, copy);
    paintDialFace(context, dial);
    if (context.has(QStyle::State_HasFocus))
        context.draw(QStyle::PE_FrameFocusRect, optionFrom<QStyleOptionFocusRect>(dial));
}

} // namespace BRELK::Sliders
