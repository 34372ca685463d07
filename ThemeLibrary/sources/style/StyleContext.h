#pragma once

#include "BaseStyle.h"
#include "ThemeValues.h"
#include "WidgetProperties.h"

#include <QStyleOption>
#include <QWidget>

namespace BRELK {

/// Nothing is farther from the origin than a few of the largest widgets. Of what is said to be, the
/// places and sizes could not be counted in an int.
bool isCountable(const QRect& rect);

/// The toolkit counts the steps of a range in an int, and divides by twice their number, which ends
/// the program where that is zero.
bool isCountable(const QStyleOptionSlider& slider);

/// The same place in half of the range, which can be counted.
QStyleOptionSlider halved(QStyleOptionSlider slider);

/// What a metric or a size may ask about. The option and the widget may be null.
struct MeasureContext
{
    const BaseStyle& style;
    const QStyleOption* option;
    const QWidget* widget;

    /// The metric as the application sees it: of the proxy.
    int metric(QStyle::PixelMetric metric) const
    {
        return style.proxy()->pixelMetric(metric, option, widget);
    }

    /// What the base style would answer.
    QSize baseSize(QStyle::ContentsType type, const QSize& contents) const
    {
        return style.QProxyStyle::sizeFromContents(type, option, contents, widget);
    }

    /// The metrics of the font that the control is drawn in.
    QFontMetrics fontMetrics() const;

    /// `pixels` of a screen of 96 dots per inch in those that the font is measured in, rounded
    /// down as the toolkit does: at 100 dots, icons of 16 pixels stay sharp.
    int dpiScaled(int pixels) const;

    /// The height of a line of text with `padding` (of 96 dots per inch) above and below, on the
    /// grid that keeps rows of different controls in step.
    int rowHeight(int padding) const;

    /// The side of check boxes, radio buttons, marks and arrows: they grow with large texts.
    int indicatorSize() const;

    /// The height that the controls of one row share: buttons, line edits, combo boxes and spin
    /// boxes.
    int controlHeight() const;
};

/// What a rectangle or a painting may ask about. Passed by reference and never stored. The widget
/// may be null.
struct StyleContext
{
    const BaseStyle& style;
    const QStyleOption& option;
    const QWidget* widget;

    bool has(QStyle::StateFlag state) const { return option.state & state; }

    bool enabled() const { return has(QStyle::State_Enabled); }

    bool rightToLeft() const { return option.direction == Qt::RightToLeft; }

    /// The theme brush `name`, or its twin when the control is disabled.
    const QBrush& brush(ThemeNames::BrushName name) const
    {
        return themeValues().brushes.value(name, enabled());
    }

    /// The theme color `name`, or its twin when the control is disabled.
    const QColor& color(ThemeNames::ColorName name) const
    {
        return themeValues().colors.value(name, enabled());
    }

    const QBrush& borderBrush() const { return BaseStyle::getBorderBrush(enabled()); }

    /// The widget's property; false when absent or without a widget.
    bool flag(const char* property) const { return WidgetProperties::flag(widget, property); }

    QVariant property(const char* property) const
    {
        return WidgetProperties::value(widget, property);
    }

    const QStyle& proxy() const { return *style.proxy(); }

    int metric(QStyle::PixelMetric metric) const
    {
        return proxy().pixelMetric(metric, &option, widget);
    }

    QRect part(QStyle::SubElement element) const
    {
        return proxy().subElementRect(element, &option, widget);
    }

    QRect part(QStyle::ComplexControl control, const QStyleOptionComplex& complex,
               QStyle::SubControl part) const
    {
        return proxy().subControlRect(control, &complex, part, widget);
    }

    /// What the base style would answer: finding it takes longer than most rules do. What it places
    /// beyond all bounds, for ranges that it cannot count, is nowhere.
    QRect baseRect(QStyle::SubElement element) const
    {
        const QRect rect = style.QProxyStyle::subElementRect(element, &option, widget);
        return isCountable(rect) ? rect : QRect();
    }

    QRect baseRect(QStyle::ComplexControl control, const QStyleOptionComplex& complex,
                   QStyle::SubControl part) const
    {
        const QRect rect = style.QProxyStyle::subControlRect(control, &complex, part, widget);
        return isCountable(rect) ? rect : QRect();
    }

    /// `rect` mirrored in a right-to-left layout.
    QRect visual(const QRect& rect) const
    {
        return QStyle::visualRect(option.direction, option.rect, rect);
    }

    MeasureContext measure() const { return {style, &option, widget}; }
};

/// An option of another kind with the common fields of `source`.
template <class Option>
Option optionFrom(const QStyleOption& source)
{
    Option option;
    option.QStyleOption::operator=(source);
    return option;
}

/// What a painting function needs. Whatever it draws by an element, it asks of the proxy.
struct PaintContext : StyleContext
{
    QPainter& painter;

    /// Leaves `element` to the base style.
    void drawByBase(QStyle::PrimitiveElement element) const
    {
        style.QProxyStyle::drawPrimitive(element, &option, &painter, widget);
    }

    void drawByBase(QStyle::ControlElement element) const
    {
        style.QProxyStyle::drawControl(element, &option, &painter, widget);
    }

    void drawByBase(QStyle::ComplexControl control, const QStyleOptionComplex& complex) const
    {
        style.QProxyStyle::drawComplexControl(control, &complex, &painter, widget);
    }

    void draw(QStyle::PrimitiveElement element, const QStyleOption& part) const
    {
        proxy().drawPrimitive(element, &part, &painter, widget);
    }

    void draw(QStyle::ControlElement element, const QStyleOption& part) const
    {
        proxy().drawControl(element, &part, &painter, widget);
    }
};

} // namespace BRELK
