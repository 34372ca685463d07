#pragma once

#include "StyleOptions.h"

#include <QByteArrayList>
#include <QProxyStyle>
#include <QStyleOption>

/// A style around another that writes down what is asked of it, as the names of elements:
/// "PE_FrameFocusRect", "SC_SpinBoxUp", "PM_IndicatorWidth".
///
/// Once the application has it, it shows that a style asks for its pieces through its proxy.
class SpyStyle : public QProxyStyle
{
public:
    /// Takes `base`.
    explicit SpyStyle(QStyle* base) : QProxyStyle(base) { }

    struct Call
    {
        QByteArray element;
        QRect rect; ///< of the option
        const QWidget* widget;
    };

    mutable QVector<Call> calls;
    mutable int callsSoFar = 0; ///< also those that were taken

    /// What was asked for since the last time, each once.
    QByteArrayList take() const
    {
        QByteArrayList elements;
        for (const Call& call : qAsConst(calls))
            if (!elements.contains(call.element))
                elements.append(call.element);
        calls.clear();
        return elements;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(element), option, widget);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(element), option, widget);
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(control), option, widget);
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(element), option, widget);
        return QProxyStyle::subElementRect(element, option, widget);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(control, part), option, widget);
        return QProxyStyle::subControlRect(control, option, part, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        note(StyleOptions::nameOf(metric), option, widget);
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

private:
    void note(const QByteArray& element, const QStyleOption* option, const QWidget* widget) const
    {
        ++callsSoFar;
        calls.append({element, option ? option->rect : QRect(), widget});
    }
};

/// A base style that paints nothing and writes down what is left to it to paint.
class RecordingBase : public QProxyStyle
{
public:
    RecordingBase() : QProxyStyle(QStringLiteral("fusion")) { }

    mutable QByteArrayList painted;

    void drawPrimitive(PrimitiveElement element, const QStyleOption*, QPainter*,
                       const QWidget*) const override
    {
        painted.append(StyleOptions::nameOf(element));
    }

    void drawControl(ControlElement element, const QStyleOption*, QPainter*,
                     const QWidget*) const override
    {
        painted.append(StyleOptions::nameOf(element));
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex*, QPainter*,
                            const QWidget*) const override
    {
        painted.append(StyleOptions::nameOf(control));
    }
};
