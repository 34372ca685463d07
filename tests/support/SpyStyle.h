#pragma once

#include "BaseStyle.h"
#include "StyleOptions.h"

#include <QtWidgets>

/// `Base`, noting the names of the elements it is asked for before it answers:
/// "PE_FrameFocusRect", "CC_SpinBox 1", "PM_IndicatorWidth", "text", "pixmap".
template <class Base>
class NotingStyle : public Base
{
public:
    using Base::Base;

    void drawPrimitive(QStyle::PrimitiveElement element, const QStyleOption* option,
                       QPainter* painter, const QWidget* widget) const override
    {
        if (note(StyleOptions::nameOf(element)))
            Base::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(QStyle::ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (note(StyleOptions::nameOf(element)))
            Base::drawControl(element, option, painter, widget);
    }

    void drawComplexControl(QStyle::ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override
    {
        if (note(StyleOptions::nameOf(control)))
            Base::drawComplexControl(control, option, painter, widget);
    }

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override
    {
        if (note("text"))
            Base::drawItemText(painter, rect, flags, palette, enabled, text, role);
    }

    void drawItemPixmap(QPainter* painter, const QRect& rect, int alignment,
                        const QPixmap& pixmap) const override
    {
        if (note("pixmap"))
            Base::drawItemPixmap(painter, rect, alignment, pixmap);
    }

    QRect subElementRect(QStyle::SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(element));
        return Base::subElementRect(element, option, widget);
    }

    QRect subControlRect(QStyle::ComplexControl control, const QStyleOptionComplex* option,
                         QStyle::SubControl part, const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(control, part));
        return Base::subControlRect(control, option, part, widget);
    }

    int pixelMetric(QStyle::PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(metric));
        return Base::pixelMetric(metric, option, widget);
    }

protected:
    /// Whether the base is to paint, if it is to be painted.
    virtual bool note(const QByteArray& element) const = 0;
};

/// A style around another that writes down what is asked of it.
///
/// Once the application has it, it shows that a style asks for its pieces through its proxy; as a
/// base style, what is left to that.
class SpyStyle : public NotingStyle<QProxyStyle>
{
public:
    using NotingStyle::NotingStyle;

    mutable QByteArrayList calls;
    bool paints = true;

protected:
    bool note(const QByteArray& element) const override
    {
        calls.append(element);
        return paints;
    }
};

/// Paints nothing.
inline SpyStyle* newSpyingBase()
{
    auto* base = new SpyStyle(QStringLiteral("fusion"));
    base->paints = false;
    return base;
}

/// Whether the base style paints it, or is what measures it.
inline bool isLeftToBase(const StyleOptions::Element& element)
{
    const StyleOptions::Sample sample = StyleOptions::sampleNamed(element.name);
    BRELK::BaseStyle style;
    auto* base = newSpyingBase();
    style.setBaseStyle(base);
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QByteArray measured = element.use(style, sample, &painter);
    if (measured.isEmpty() || element.name.startsWith("CC_"))
        return base->calls.contains(element.name);
    return measured == element.use(*base, sample, &painter);
}
