#include "Families.h"
#include "PainterSaver.h"
#include "StyleContext.h"

#include <QPainterPath>

// Check boxes, radio buttons and switches.

namespace BRELK::CheckBoxes {

namespace {

constexpr int IndicatorSize = 16;
constexpr int SwitchWidth = 32;
constexpr int LabelSpacing = 8;
constexpr int VerticalPadding = 2;

QSize labelledSize(const MeasureContext& context, const QSize& contents, const QSize& indicator,
                   int spacing)
{
    const int width = indicator.width() + (contents.width() > 0 ? spacing + contents.width() : 0);
    const int height = qMax(contents.height(), indicator.height());
    return {width, qMax(height, context.rowHeight(VerticalPadding))};
}

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (metric) {
    case QStyle::PM_CheckBoxLabelSpacing:
    case QStyle::PM_RadioButtonLabelSpacing: return context.dpiScaled(LabelSpacing);
    case QStyle::PM_IndicatorWidth:
        if (WidgetProperties::flag(context.widget, WidgetProperties::Switch))
            return context.dpiScaled(SwitchWidth);
        [[fallthrough]];
    default: return context.dpiScaled(IndicatorSize);
    }
}

QSize checkBoxSize(const MeasureContext& context, const QStyleOptionButton&, const QSize& contents,
                   const QSize&)
{
    const QSize indicator(context.metric(QStyle::PM_IndicatorWidth),
                          context.metric(QStyle::PM_IndicatorHeight));
    return labelledSize(context, contents, indicator,
                        context.metric(QStyle::PM_CheckBoxLabelSpacing));
}

QSize radioButtonSize(const MeasureContext& context, const QStyleOptionButton&,
                      const QSize& contents, const QSize&)
{
    const QSize indicator(context.metric(QStyle::PM_ExclusiveIndicatorWidth),
                          context.metric(QStyle::PM_ExclusiveIndicatorHeight));
    return labelledSize(context, contents, indicator,
                        context.metric(QStyle::PM_RadioButtonLabelSpacing));
}

QRect indicatorRect(const StyleContext& context, const QStyleOptionButton& button, const QRect&)
{
    const int height = context.metric(QStyle::PM_IndicatorHeight);
    const int width = context.metric(QStyle::PM_IndicatorWidth);
    const int top = button.rect.y() + (button.rect.height() - height) / 2;
    return context.visual({button.rect.x(), top, width, height});
}

QRect contentsRect(const StyleContext& context, const QStyleOptionButton& button, const QRect&)
{
    const QRect& rect = button.rect;
    const QRect indicator = context.visual(
        context.style.subElementRect(QStyle::SE_CheckBoxIndicator, &button, context.widget));
    const int spacing = context.metric(QStyle::PM_CheckBoxLabelSpacing);
    return context.visual({indicator.right() + spacing, rect.y(),
                           rect.width() - indicator.width() - spacing, rect.height()});
}

void paintIndicator(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorCheckBox);
}

void paintRadioIndicator(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorRadioButton);
}

void paintCheckBox(const PaintContext& context, const QStyleOptionButton&)
{
    context.drawByBase(QStyle::CE_CheckBox);
}

void paintLabel(const PaintContext& context, const QStyleOptionButton&)
{
    context.drawByBase(QStyle::CE_CheckBoxLabel);
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
    const PainterSaver saver(*painter);
    QPainterPath tick;
    tick.moveTo(Inset, rect.height() / 2.0);
    tick.lineTo(rect.width() / 2.0, rect.height() - Margin);
    tick.lineTo(rect.width() - Margin - 0.5, Inset);
    tick.translate(rect.topLeft());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(brush, PenWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(tick);
}

void BaseStyle::drawRadioMark(QPainter* painter, const QRect& rect, QBrush brush) const
{
    constexpr qreal SizeInRect = 0.5;
    if (!painter)
        return;
    const PainterSaver saver(*painter);
    const qreal radius = qMin(rect.width(), rect.height()) * SizeInRect / 2;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    painter->drawEllipse(QRectF(rect).center(), radius, radius);
}

} // namespace BRELK
