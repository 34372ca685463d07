#pragma once

#include "BaseStyle.h"

#include <QtWidgets>

#include <functional>

/// What `paint` draws, in words: a line for each shape with its brush, pen, transform and clip, but
/// only what is not as by default, and free of fonts and antialiasing. Colors have the names of the
/// probe theme. Of a text it tells the rectangle that the style was given for it, or else where it
/// begins; of a pixmap the icon, the color that most of it has, and whether it has too few pixels
/// for a device of this ratio.
///
/// Look into it for the one fact that a test is about. What matters as a whole is kept as a file
/// under tests/style/transcripts:
/// \code
/// COMPARE_TRANSCRIPT("CheckBoxes", drawn(QStyle::PE_IndicatorCheckBox, option, &checkBox));
/// \endcode
QByteArray drawnAtRatio(qreal ratio, const std::function<void(QPainter*)>& paint);

inline QByteArray drawn(const std::function<void(QPainter*)>& paint)
{
    return drawnAtRatio(1, paint);
}

/// The style, whose texts are told with their rectangles.
class TranscribedStyle : public BRELK::BaseStyle
{
public:
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override;
};

inline void draw(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter* painter,
                 const QWidget* widget)
{
    QApplication::style()->drawPrimitive(element, &option, painter, widget);
}

inline void draw(QStyle::ControlElement element, const QStyleOption& option, QPainter* painter,
                 const QWidget* widget)
{
    QApplication::style()->drawControl(element, &option, painter, widget);
}

inline void draw(QStyle::ComplexControl control, const QStyleOption& option, QPainter* painter,
                 const QWidget* widget)
{
    QApplication::style()->drawComplexControl(
        control, static_cast<const QStyleOptionComplex*>(&option), painter, widget);
}

/// What the application's style draws for an element.
template <class Element>
QByteArray drawn(Element element, const QStyleOption& option, const QWidget* widget = nullptr)
{
    return drawn([&](QPainter* painter) { draw(element, option, painter, widget); });
}

/// "x,y wxh", with at most two decimals.
QByteArray toText(const QRectF& rect);

/// Where `text` departs from the file `name`.txt; empty if it does not. With
/// VARN_UPDATE_TRANSCRIPTS=1 in the environment the file is written instead; look at the difference
/// before you commit it.
QByteArray differenceToTranscript(const QByteArray& name, const QByteArray& text);

#define COMPARE_TRANSCRIPT(name, text)                                                             \
    do {                                                                                           \
        const QByteArray difference = differenceToTranscript(name, text);                          \
        QVERIFY2(difference.isEmpty(), difference.constData());                                    \
    } while (false)
