#pragma once

#include <QByteArray>
#include <QPaintDevice>
#include <QPainter>
#include <QStyle>
#include <QVector>

#include <functional>
#include <memory>

class QStyleOption;
class QStyleOptionComplex;

/// One thing drawn, with what it was drawn with. Names are those of the probe theme.
struct Shape
{
    enum Kind { Rect, RoundedRect, Ellipse, Path, Line, Polyline, Polygon, Point, Pixmap, Text };

    Kind kind = Path;
    QRectF
        rect; ///< the bounds, before the transform; of a line its ends (`bottomRight` its second)
    qreal radius = 0; ///< of a rounded rectangle: of all its round corners; -1 when they differ
    int squareCorners =
        0; ///< of a rounded rectangle: 1 top left, 2 top right, 4 bottom right, 8 bottom left
    QByteArray points; ///< of a path, polyline or polygon: its points; a path's curves end in "c"
    QString text;
    QByteArray font; ///< of a text, as the probe theme names it

    QByteArray brush; ///< of a pixmap: the color most of it has; "none" is no filling
    QByteArray pen; ///< of a text: its color; "none" is no outline
    qreal penWidth = 1; ///< 0 is cosmetic
    QByteArray penStyle; ///< what is not as by default: "dash", "round cap", "miter join", ...

    QTransform transform;
    QRectF clip; ///< the bounds of the clip, before the transform; null without one
    bool antialiased = false;
    qreal opacity = 1;

    /// The bounds on the device.
    QRectF deviceRect() const { return transform.mapRect(rect); }

    /// All of it but what is as by default, in one line. It does not tell where a text stands,
    /// which depends on the fonts of the machine.
    QByteArray toText() const;
};

char* toString(Shape::Kind kind);

/// A paint device that writes down what is drawn on it instead of drawing it, free of fonts and
/// antialiasing:
/// \code
/// const QVector<Shape> shapes = drawn(QStyle::PE_IndicatorCheckBox, option, &checkBox);
/// QCOMPARE(shapes.at(0).brush, "ControlBackgroundBrush");
/// \endcode
/// Look into the shapes for the few facts that a test is about. What matters as a whole is kept as
/// a file under tests/style/transcripts, one per test function, and compared with
/// \code
/// COMPARE_TRANSCRIPT("CheckBoxes.indicators", transcriptOf(shapes));
/// \endcode
/// where the text may join several drawings under headings. With VARN_UPDATE_TRANSCRIPTS=1 in the
/// environment the file is written instead; look at the difference before you commit it.
///
/// Rounded rectangles and ellipses are recognized among paths; a filled rectangle is a `Rect` with
/// pen "none"; an icon is a `Pixmap`, its color being what it was recolored with.
class Transcript : public QPaintDevice
{
public:
    Transcript();
    ~Transcript() override;

    const QVector<Shape>& shapes() const;

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;
    std::unique_ptr<Engine> m_engine;
};

/// What `paint` draws.
QVector<Shape> drawn(const std::function<void(QPainter*)>& paint);

/// What `style` (the application's, if null) draws for an element.
QVector<Shape> drawn(QStyle::PrimitiveElement element, const QStyleOption& option,
                     const QWidget* widget = nullptr, const QStyle* style = nullptr);
QVector<Shape> drawn(QStyle::ControlElement element, const QStyleOption& option,
                     const QWidget* widget = nullptr, const QStyle* style = nullptr);
QVector<Shape> drawn(QStyle::ComplexControl control, const QStyleOptionComplex& option,
                     const QWidget* widget = nullptr, const QStyle* style = nullptr);

/// One line per shape.
QByteArray transcriptOf(const QVector<Shape>& shapes);

/// Where `text` departs from the file `name`.txt; empty if it does not.
QByteArray differenceToTranscript(const char* name, const QByteArray& text);

#define COMPARE_TRANSCRIPT(name, text)                                                             \
    do {                                                                                           \
        const QByteArray difference = differenceToTranscript(name, text);                          \
        QVERIFY2(difference.isEmpty(), difference.constData());                                    \
    } while (false)
