#include "ArrowIcons.h"
#include "Families.h"
#include "Foregrounds.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

#include <QAbstractScrollArea>

// Scroll bars and the corner between them.
//
// Properties: "minimized".

namespace BRELK::ScrollBars {

namespace {

/// Of the list of a combo box it is the popup's frame, where no style sheet gives it one.
int scrollAreaFrameWidth(const QWidget* bar)
{
    for (const QWidget* widget = bar ? bar->parentWidget() : nullptr; widget;
         widget = widget->parentWidget()) {
        if (const auto* area = qobject_cast<const QAbstractScrollArea*>(widget))
            return qMax(area->frameWidth(), WidgetTraits::isInComboBoxPopup(area) ? 1 : 0);
    }
    return 0;
}

QRect minimizedSliderRect(const StyleContext& context, const QStyleOptionSlider& bar,
                          const QRect& base)
{
    const bool transient =
        context.proxy().styleHint(QStyle::SH_ScrollBar_Transient, &bar, context.widget);
    const int extent = transient ? 0 : context.metric(QStyle::PM_ScrollBarExtent);
    const int frameWidth = scrollAreaFrameWidth(context.widget);
    // Deliberate: a vertical slider narrows by the frame, a horizontal one grows by it.
    return bar.orientation == Qt::Vertical
               ? base.adjusted(frameWidth, 1 - extent - frameWidth, 0, extent - 1 + frameWidth)
               : base.adjusted(1 - extent - frameWidth, 0, extent - 1 + frameWidth, frameWidth);
}

/// What the base style answers; it divides by the sum of range and page.
QRect basePartRect(const StyleContext& context, const QStyleOptionSlider& bar,
                   QStyle::SubControl part)
{
    if (!isCountable(bar))
        return basePartRect(context, halved(bar), part);
    if (uint(bar.maximum) - uint(bar.minimum) + uint(bar.pageStep) != 0)
        return context.baseRect(QStyle::CC_ScrollBar, bar, part);
    QStyleOptionSlider copy = bar;
    copy.pageStep = 0;
    copy.maximum = copy.minimum;
    return context.baseRect(QStyle::CC_ScrollBar, copy, part);
}

} // namespace

QRect partRect(const StyleContext& context, const QStyleOptionSlider& bar, QStyle::SubControl part)
{
    const auto base = [&] { return basePartRect(context, bar, part); };
    if (!context.flag(WidgetProperties::Minimized))
        return base();
    switch (part) {
    case QStyle::SC_ScrollBarAddLine:
    case QStyle::SC_ScrollBarSubLine:
    case QStyle::SC_ScrollBarAddPage:
    case QStyle::SC_ScrollBarSubPage: return {};
    case QStyle::SC_ScrollBarGroove: return bar.rect;
    case QStyle::SC_ScrollBarSlider: return minimizedSliderRect(context, bar, base());
    default: return base();
    }
}

namespace {

constexpr int ArrowIconSize = 16; ///< larger than the bar, as smaller icons have washed-out strokes
constexpr int ArrowSize = 10; ///< what such an icon shows
constexpr qreal SliderInset = 0.2; ///< of the bar's thickness, on either side of the slider

QStyle::PrimitiveElement lineArrow(const StyleContext& context, bool forwards)
{
    if (!context.has(QStyle::State_Horizontal))
        return forwards ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowUp;
    return forwards != context.rightToLeft() ? QStyle::PE_IndicatorArrowRight
                                             : QStyle::PE_IndicatorArrowLeft;
}

void paintLine(const PaintContext& context, const QStyleOptionSlider& bar, bool forwards)
{
    context.painter.fillRect(bar.rect, context.style.grooveBackgroundBrush(context.enabled()));
    QStyleOptionSlider arrow = bar;
    arrow.rect = QRect(0, 0, ArrowIconSize, ArrowIconSize);
    arrow.rect.moveCenter(bar.rect.center());
    if (BaseStyle::isHovered(&bar) || BaseStyle::isPressed(bar))
        Foregrounds::set(arrow, context.color(ThemeNames::MainColor));
    else if (OwnColors::has(context, QPalette::ButtonText)) // on a ground that is the theme's
        Foregrounds::set(arrow, context.brush(ThemeNames::InputForegroundBrush));
    if (qMin(bar.rect.width(), bar.rect.height()) >= ArrowSize)
        ArrowIcons::drawOf(context, lineArrow(context, forwards), arrow);
}

} // namespace

void paintCorner(const PaintContext& context)
{
    context.painter.fillRect(context.option.rect,
                             context.style.grooveBackgroundBrush(context.enabled()));
}

void paintAddLine(const PaintContext& context, const QStyleOptionSlider& bar)
{
    paintLine(context, bar, true);
}

void paintSubLine(const PaintContext& context, const QStyleOptionSlider& bar)
{
    paintLine(context, bar, false);
}

void paintSlider(const PaintContext& context, const QStyleOptionSlider& bar)
{
    if (bar.minimum == bar.maximum)
        return;
    QBrush brush = context.brush(context.flag(WidgetProperties::Minimized)
                                     ? ThemeNames::ForegroundDisabledBrush
                                     : ThemeNames::PrioritySecondarySubLevel1Brush);
    if (BaseStyle::isHovered(&bar))
        brush = themeValues().colors.value(ThemeNames::MainColor);

    const bool horizontal = context.has(QStyle::State_Horizontal);
    const int inset = int(SliderInset * (horizontal ? bar.rect.height() : bar.rect.width()));
    const QRect slider = horizontal ? bar.rect.adjusted(0, inset, 0, -inset)
                                    : bar.rect.adjusted(inset, 0, -inset, 0);
    Shapes::drawBox(context, slider, qMin(slider.width(), slider.height()), brush, QBrush());
}

void paintScrollBar(const PaintContext& context, const QStyleOptionSlider& bar)
{
    QStyleOptionSlider copy = bar;
    if (!context.flag(WidgetProperties::Minimized)) {
        const int frameWidth = scrollAreaFrameWidth(context.widget);
        if (bar.orientation == Qt::Horizontal)
            copy.rect.adjust(0, 0, 0, frameWidth);
        else
            copy.rect.adjust(0, 0, frameWidth, 0);
    }
    if (bar.minimum == bar.maximum) {
        copy.state &= ~QStyle::State_Enabled;
        copy.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    // Deliberate: of this style and with the option as it came.
    const QRect groove = context.style.subControlRect(QStyle::CC_ScrollBar, &bar,
                                                      QStyle::SC_ScrollBarGroove, context.widget);
    context.painter.fillRect(groove, context.style.grooveBackgroundBrush(context.enabled()));

    copy.state &= ~QStyle::State(QStyle::State_HasFocus);
    const PainterSaver saver(context.painter);
    context.style.QCommonStyle::drawComplexControl(QStyle::CC_ScrollBar, &copy, &context.painter,
                                                   context.widget);
    if (context.has(QStyle::State_HasFocus)) {
        // Around the slider, on the groove: on the slider itself it would hardly be seen.
        auto focus = optionFrom<QStyleOptionFocusRect>(bar);
        focus.rect = context.part(QStyle::CC_ScrollBar, copy, QStyle::SC_ScrollBarSlider);
        context.draw(QStyle::PE_FrameFocusRect, focus);
    }
}

} // namespace BRELK::ScrollBars
