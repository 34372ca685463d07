#include "Families.h"
#include "PainterSaver.h"
#include "Pictures.h"
#include "Shapes.h"
#include "ThemeNames.h"

#include <QPainterPath>

// Check boxes, radio buttons and switches.
//
// Properties: "drawErrorIndicator", "switch", "textAlignment".

namespace BRELK::CheckBoxes {

namespace {

constexpr int SwitchWidthInHeights = 2;
constexpr int VerticalPadding = 1;
constexpr int FocusMargin = 3; ///< what the focus mark needs after the label

QSize labelledSize(const MeasureContext& context, const QSize& contents, QStyle::PixelMetric width,
                   QStyle::PixelMetric height, QStyle::PixelMetric spacing)
{
    const int label =
        contents.width() > 0 ? context.metric(spacing) + contents.width() + FocusMargin : 0;
    const int line = qMax(contents.height(), context.metric(height));
    return {context.metric(width) + label, qMax(line, context.rowHeight(VerticalPadding))};
}

} // namespace

int indicatorWidth(const MeasureContext& context)
{
    const int height = context.metric(QStyle::PM_IndicatorHeight);
    return WidgetProperties::flag(context.widget, WidgetProperties::Switch)
               ? height * SwitchWidthInHeights
               : height;
}

int labelSpacing(const MeasureContext& context)
{
    return context.metric(QStyle::PM_RadioButtonLabelSpacing)
           + 1; // counted from the indicator's last pixel
}

QSize checkBoxSize(const MeasureContext& context, const QStyleOptionButton&, const QSize& contents)
{
    return labelledSize(context, contents, QStyle::PM_IndicatorWidth, QStyle::PM_IndicatorHeight,
                        QStyle::PM_CheckBoxLabelSpacing);
}

QSize radioButtonSize(const MeasureContext& context, const QStyleOptionButton&,
                      const QSize& contents)
{
    return labelledSize(context, contents, QStyle::PM_ExclusiveIndicatorWidth,
                        QStyle::PM_ExclusiveIndicatorHeight, QStyle::PM_RadioButtonLabelSpacing);
}

QRect indicatorRect(const StyleContext& context, const QStyleOptionButton& button,
                    QStyle::SubElement)
{
    const int height = context.metric(QStyle::PM_IndicatorHeight);
    const int width = context.metric(QStyle::PM_IndicatorWidth);
    const int top = button.rect.y() + (button.rect.height() - height) / 2;
    return context.visual({button.rect.x(), top, width, height});
}

QRect contentsRect(const StyleContext& context, const QStyleOptionButton& button,
                   QStyle::SubElement)
{
    const QRect& rect = button.rect;
    const QRect indicator = context.visual(
        context.style.subElementRect(QStyle::SE_CheckBoxIndicator, &button, context.widget));
    const int spacing = context.metric(QStyle::PM_CheckBoxLabelSpacing);
    return context.visual({indicator.right() + spacing, rect.y(),
                           rect.width() - indicator.width() - spacing, rect.height()});
}

namespace {

/// What the indicators' parts are painted in.
struct IndicatorBrushes
{
    QBrush background;
    QBrush border;
    QBrush mark;
    bool isWide; ///< the border
};

/// A checked indicator has a border in the color of its mark, and so has one that is pointed at;
/// both together make it wider. Deliberate: while it is pressed, a checked one is filled with that
/// color, and the border of another is wider.
IndicatorBrushes indicatorBrushes(const PaintContext& context)
{
    const bool pressed = BaseStyle::isPressed(context.option);
    const bool pointed = pressed || BaseStyle::isHovered(&context.option);
    const bool checked = context.has(QStyle::State_On) || context.has(QStyle::State_NoChange);
    IndicatorBrushes brushes{context.brush(ThemeNames::ControlBackgroundBrush),
                             context.brush(ThemeNames::ControlBorderBrush),
                             context.brush(ThemeNames::ForegroundMouseOverBrush),
                             checked ? pointed : pressed};
    if (pointed || checked)
        brushes.border = brushes.mark;
    if (pressed && checked && !context.flag(WidgetProperties::Switch))
        std::swap(brushes.background, brushes.mark);
    if (context.has(QStyle::State_Selected) && context.enabled()) // in a row of a view
        brushes.border = context.option.palette.brush(QPalette::HighlightedText);
    if (context.flag(WidgetProperties::DrawErrorIndicator))
        brushes.border = context.color(ThemeNames::StatusDangerColor);
    return brushes;
}

void paintBox(const PaintContext& context, int radius, const IndicatorBrushes& brushes, bool isWide)
{
    const QRect& rect = context.option.rect;
    Shapes::drawBox(context, rect, radius, brushes.background, brushes.border);
    if (isWide)
        Shapes::drawInnerBorder(context, rect, radius, brushes.border);
}

/// The knob of a switch: at the end when on, in the middle when partially on.
void paintKnob(const PaintContext& context)
{
    constexpr int KnobMargin = 3;
    constexpr int PressedMargin = 2;
    const QRect& rect = context.option.rect;
    const bool on = context.has(QStyle::State_On);
    const int margin = BaseStyle::isPressed(context.option) ? PressedMargin : KnobMargin;
    const int diameter = rect.height() - 2 * margin;
    const int travel = rect.width() - 2 * margin - diameter;
    const int offset = on ? travel : context.has(QStyle::State_NoChange) ? travel / 2 : 0;
    const QRect knob(rect.x() + margin + offset, rect.y() + margin, diameter, diameter);
    const PainterSaver saver(context.painter);
    context.painter.setRenderHint(QPainter::Antialiasing);
    context.painter.setPen(Qt::NoPen);
    context.painter.setBrush(context.brush(on ? ThemeNames::SwitchForegroundCheckedEllipseBrush
                                              : ThemeNames::SwitchEllipseBrush));
    context.painter.drawEllipse(context.visual(knob));
}

void paintPartialMark(const PaintContext& context, const QBrush& brush)
{
    constexpr int Inset = 4;
    constexpr int Thickness = 2;
    const QRect& rect = context.option.rect;
    const QRect bar(rect.x() + Inset, rect.y() + (rect.height() - Thickness) / 2,
                    rect.width() - 2 * Inset, Thickness);
    context.painter.fillRect(bar, brush);
}

} // namespace

void paintIndicator(const PaintContext& context)
{
    const IndicatorBrushes brushes = indicatorBrushes(context);
    const QRect& rect = context.option.rect;
    const bool isSwitch = context.flag(WidgetProperties::Switch);
    const int radius = isSwitch ? rect.height() / 2 : Shapes::cornerRadius(ThemeNames::BaseSize);
    paintBox(context, radius, brushes, brushes.isWide);
    if (context.flag(WidgetProperties::DrawErrorIndicator))
        Helpers::drawInputStatusIndicator(rect, radius, brushes.border.color(), &context.painter);

    if (isSwitch)
        paintKnob(context);
    else if (context.has(QStyle::State_NoChange))
        paintPartialMark(context, brushes.mark);
    else if (context.has(QStyle::State_On))
        context.style.drawCheckMark(&context.painter, rect, brushes.mark);
}

void paintRadioIndicator(const PaintContext& context)
{
    const IndicatorBrushes brushes = indicatorBrushes(context);
    const QRect& rect = context.option.rect;
    const bool hasError = context.flag(WidgetProperties::DrawErrorIndicator);
    paintBox(context, qMin(rect.width(), rect.height()) / 2, brushes,
             hasError || brushes.isWide); // an error is seen without colors too
    if (context.has(QStyle::State_On))
        context.style.drawRadioMark(&context.painter, rect.adjusted(2, 2, -2, -2), brushes.mark);
}

void paintCheckBox(const PaintContext& context, const QStyleOptionButton& button)
{
    QStyleOptionButton part = button;
    part.rect = context.part(QStyle::SE_CheckBoxIndicator);
    context.draw(QStyle::PE_IndicatorCheckBox, part);

    part.rect = context.part(QStyle::SE_CheckBoxContents);
    context.draw(QStyle::CE_CheckBoxLabel, part);

    if (context.has(QStyle::State_HasFocus)) {
        auto focus = optionFrom<QStyleOptionFocusRect>(button);
        // Qt places an icon's at the origin.
        QStyleOptionButton atOrigin = button;
        atOrigin.rect.moveTo(0, 0);
        const QRect rect =
            context.proxy().subElementRect(QStyle::SE_CheckBoxFocusRect, &atOrigin, context.widget);
        focus.rect = rect.translated(button.rect.topLeft());
        context.draw(QStyle::PE_FrameFocusRect, focus);
    }
}

void paintLabel(const PaintContext& context, const QStyleOptionButton& button)
{
    const QVariant alignment = context.property(WidgetProperties::TextAlignment);
    const int flags =
        alignment.isValid() ? alignment.toInt() : int(Qt::AlignLeft | Qt::AlignVCenter);
    const QBrush foreground = button.palette.brush(QPalette::WindowText);

    QRect rect = button.rect;
    if (!button.icon.isNull()) {
        constexpr int IconSpacing = 4;
        const QSize size = button.icon.actualSize(button.iconSize);
        const QRect iconRect(rect.x(), rect.y() + (rect.height() - size.height()) / 2, size.width(),
                             size.height());
        Shapes::drawIcon(context, button.icon, foreground, context.visual(iconRect), size);
        rect = context.visual(rect.adjusted(size.width() + IconSpacing, 0, 0, 0));
    }
    const auto visualFlags = QStyle::visualAlignment(button.direction, Qt::Alignment(flags));
    Shapes::drawText(context, rect, int(visualFlags) | Qt::TextShowMnemonic, button.text,
                     foreground);
}

} // namespace BRELK::CheckBoxes

namespace BRELK {

void BaseStyle::drawCheckMark(QPainter* painter, const QRect& rect, QBrush brush) const
{
    constexpr qreal PenWidth = 1.8;
    constexpr int Margin = 3;
    constexpr qreal Inset = 4;
    if (!painter)
        return;
    Pictures::draw(*painter, Pictures::Kind::CheckMark, rect, brush, [&](QPainter& onto) {
        const PainterSaver saver(onto);
        QPainterPath tick;
        tick.moveTo(Inset, rect.height() / 2.0);
        tick.lineTo(rect.width() / 2.0, rect.height() - Margin);
        tick.lineTo(rect.width() - Margin - 0.5, Inset);
        tick.translate(rect.topLeft());
        onto.setRenderHint(QPainter::Antialiasing);
        onto.setPen(QPen(brush, PenWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        onto.setBrush(Qt::NoBrush);
        onto.drawPath(tick);
    });
}

void BaseStyle::drawRadioMark(QPainter* painter, const QRect& rect, QBrush brush) const
{
    constexpr qreal SizeInRect = 0.5;
    if (!painter)
        return;
    Pictures::draw(*painter, Pictures::Kind::RadioMark, rect, brush, [&](QPainter& onto) {
        const PainterSaver saver(onto);
        const qreal radius = qMin(rect.width(), rect.height()) * SizeInRect / 2;
        onto.setRenderHint(QPainter::Antialiasing);
        onto.setPen(Qt::NoPen);
        onto.setBrush(brush);
        onto.drawEllipse(QRectF(rect).center(), radius, radius);
    });
}

} // namespace BRELK
