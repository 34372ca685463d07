#include "Transcript.h"

#include "PathShapes.h"
#include "ProbeTheme.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPaintEngine>
#include <QPixmap>
#include <QScreen>
#include <QStyleOption>
#include <QtTest>

namespace {

const char* nameOf(Shape::Kind kind)
{
    constexpr const char* Names[] = {"rect",     "rounded", "ellipse", "path",   "line",
                                     "polyline", "polygon", "point",   "pixmap", "text"};
    return Names[kind];
}

QByteArray geometryText(const Shape& shape)
{
    switch (shape.kind) {
    case Shape::Text: return '"' + shape.text.toUtf8() + '"' + ' ' + shape.font;
    case Shape::Line: return toText(shape.rect.topLeft()) + ' ' + toText(shape.rect.bottomRight());
    case Shape::Path:
    case Shape::Polyline:
    case Shape::Polygon: return shape.points;
    case Shape::Point: return toText(shape.rect.topLeft());
    default: return toText(shape.rect);
    }
}

QByteArray cornersText(const Shape& shape)
{
    QByteArray text = " r" + (shape.radius < 0 ? "?" : toText(shape.radius));
    constexpr const char* Names[] = {"top-left", "top-right", "bottom-right", "bottom-left"};
    QByteArrayList square;
    for (int corner = 0; corner < 4; ++corner)
        if (shape.squareCorners & 1 << corner)
            square.append(Names[corner]);
    return square.isEmpty() ? text : QByteArray(text + " square " + square.join(','));
}

QByteArray outlineText(const Shape& shape)
{
    if (shape.pen == "none")
        return {};
    QByteArray text = " pen " + shape.pen;
    if (!qFuzzyCompare(shape.penWidth, 1))
        text += ' ' + toText(shape.penWidth);
    return shape.penStyle.isEmpty() ? text : QByteArray(text + ' ' + shape.penStyle);
}

QByteArray transformText(const QTransform& transform)
{
    if (transform.isIdentity())
        return {};
    const QPointF offset(transform.dx(), transform.dy());
    if (transform.type() == QTransform::TxTranslate)
        return " at " + toText(offset);
    return " matrix " + toText(QPointF(transform.m11(), transform.m12())) + ' '
           + toText(QPointF(transform.m21(), transform.m22())) + ' ' + toText(offset);
}

QByteArray penStyleText(const QPen& pen)
{
    constexpr const char* Styles[] = {"none", "", "dash", "dot", "dash-dot", "dash-dot-dot"};
    QByteArrayList words;
    if (pen.style() == Qt::CustomDashLine) {
        QByteArrayList lengths;
        const QVector<qreal> pattern = pen.dashPattern();
        for (const qreal length : pattern)
            lengths.append(toText(length));
        words.append("dash " + lengths.join(','));
    } else if (pen.style() != Qt::SolidLine) {
        words.append(Styles[pen.style()]);
    }
    if (pen.capStyle() != Qt::SquareCap)
        words.append(pen.capStyle() == Qt::FlatCap ? "flat" : "round-cap");
    if (pen.joinStyle() != Qt::BevelJoin)
        words.append(pen.joinStyle() == Qt::RoundJoin ? "round-join" : "miter");
    return words.join(' ');
}

} // namespace

char* toString(Shape::Kind kind)
{
    return qstrdup(nameOf(kind));
}

QByteArray Shape::toText() const
{
    QByteArray line = QByteArray(nameOf(kind)) + ' ' + geometryText(*this);
    if (kind == RoundedRect)
        line += cornersText(*this);
    line += outlineText(*this);
    if (brush != "none")
        line += " brush " + brush;
    if (antialiased)
        line += " smooth";
    if (!qFuzzyCompare(opacity, 1))
        line += " opacity " + ::toText(opacity);
    line += transformText(transform);
    if (!clip.isNull())
        line += " clip " + ::toText(clip);
    return line;
}

class Transcript::Engine : public QPaintEngine
{
public:
    Engine() : QPaintEngine(AllFeatures) { }

    bool begin(QPaintDevice*) override { return true; }

    bool end() override { return true; }

    Type type() const override { return User; }

    void updateState(const QPaintEngineState&) override { }

    // The variants with whole numbers lead to those below.
    using QPaintEngine::drawEllipse;
    using QPaintEngine::drawLines;
    using QPaintEngine::drawPoints;
    using QPaintEngine::drawPolygon;
    using QPaintEngine::drawRects;

    void drawRects(const QRectF* rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            addFilled(make(Shape::Rect, rects[i]));
    }

    void drawLines(const QLineF* lines, int count) override
    {
        for (int i = 0; i < count; ++i)
            addOutline(make(Shape::Line, QRectF(lines[i].p1(), lines[i].p2())));
    }

    void drawEllipse(const QRectF& rect) override { addFilled(make(Shape::Ellipse, rect)); }

    void drawPath(const QPainterPath& path) override { addFilled(shapeOfPath(path)); }

    void drawPoints(const QPointF* points, int count) override
    {
        for (int i = 0; i < count; ++i)
            addOutline(make(Shape::Point, QRectF(points[i], QSizeF())));
    }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        const bool open = mode == PolylineMode;
        QPolygonF polygon;
        QByteArrayList texts;
        for (int i = 0; i < count; ++i) {
            polygon.append(points[i]);
            texts.append(::toText(points[i]));
        }
        Shape shape = make(open ? Shape::Polyline : Shape::Polygon, polygon.boundingRect());
        shape.points = texts.join(' ');
        open ? addOutline(shape) : addFilled(shape);
    }

    void drawPixmap(const QRectF& rect, const QPixmap& pixmap, const QRectF& source) override
    {
        drawImage(rect, pixmap.toImage(), source, Qt::AutoColor);
    }

    void drawTiledPixmap(const QRectF& rect, const QPixmap& pixmap, const QPointF&) override
    {
        drawImage(rect, pixmap.toImage(), pixmap.rect(), Qt::AutoColor);
    }

    void drawImage(const QRectF& rect, const QImage& image, const QRectF& source,
                   Qt::ImageConversionFlags) override
    {
        Shape shape = make(Shape::Pixmap, rect);
        shape.brush = ProbeTheme::nameOf(image.copy(source.toAlignedRect()));
        shape.pen = "none";
        add(shape);
    }

    void drawTextItem(const QPointF& position, const QTextItem& item) override
    {
        Shape shape = make(Shape::Text, QRectF(position.x(), position.y() - item.ascent(),
                                               item.width(), item.ascent() + item.descent()));
        shape.text = item.text();
        shape.font = ProbeTheme::nameOf(item.font());
        shape.pen = ProbeTheme::nameOf(painter()->pen().color());
        shape.brush = "none";
        add(shape);
    }

    QVector<Shape> shapes;

private:
    static Shape make(Shape::Kind kind, const QRectF& rect)
    {
        Shape shape;
        shape.kind = kind;
        shape.rect = rect;
        return shape;
    }

    void addFilled(Shape shape)
    {
        shape.brush = ProbeTheme::nameOf(painter()->brush());
        takePen(shape);
        add(shape);
    }

    void addOutline(Shape shape)
    {
        shape.brush = "none";
        takePen(shape);
        add(shape);
    }

    void takePen(Shape& shape) const
    {
        const QPen pen = painter()->pen();
        const bool visible = pen.style() != Qt::NoPen && pen.brush().style() != Qt::NoBrush;
        shape.pen = visible ? ProbeTheme::nameOf(pen.brush()) : QByteArrayLiteral("none");
        shape.penWidth = pen.widthF();
        shape.penStyle = penStyleText(pen);
    }

    void add(Shape shape)
    {
        shape.transform = painter()->deviceTransform();
        if (painter()->hasClipping())
            shape.clip = painter()->clipBoundingRect();
        shape.antialiased = shape.kind != Shape::Text && shape.kind != Shape::Pixmap
                            && painter()->testRenderHint(QPainter::Antialiasing);
        shape.opacity = painter()->opacity();
        shapes.append(shape);
    }
};

Transcript::Transcript() : m_engine(std::make_unique<Engine>()) { }

Transcript::~Transcript() = default;

const QVector<Shape>& Transcript::shapes() const
{
    return m_engine->shapes;
}

QPaintEngine* Transcript::paintEngine() const
{
    return m_engine.get();
}

int Transcript::metric(PaintDeviceMetric metric) const
{
    constexpr int Side = 4096;
    const int dpi = qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch());
    switch (metric) {
    case PdmWidth:
    case PdmHeight: return Side;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY: return dpi;
    case PdmDepth: return 32;
    case PdmDevicePixelRatio: return 1;
    case PdmDevicePixelRatioScaled: return int(devicePixelRatioFScale());
    case PdmNumColors: return 0;
    case PdmWidthMM:
    case PdmHeightMM: return qRound(Side * 25.4 / dpi);
    default: return 0;
    }
}

QVector<Shape> drawn(const std::function<void(QPainter*)>& paint)
{
    Transcript transcript;
    QPainter painter(&transcript);
    paint(&painter);
    painter.end();
    return transcript.shapes();
}

namespace {

const QStyle* orOfApplication(const QStyle* style)
{
    return style ? style : QApplication::style();
}

} // namespace

QVector<Shape> drawn(QStyle::PrimitiveElement element, const QStyleOption& option,
                     const QWidget* widget, const QStyle* style)
{
    return drawn([&](QPainter* painter) {
        orOfApplication(style)->drawPrimitive(element, &option, painter, widget);
    });
}

QVector<Shape> drawn(QStyle::ControlElement element, const QStyleOption& option,
                     const QWidget* widget, const QStyle* style)
{
    return drawn([&](QPainter* painter) {
        orOfApplication(style)->drawControl(element, &option, painter, widget);
    });
}

QVector<Shape> drawn(QStyle::ComplexControl control, const QStyleOptionComplex& option,
                     const QWidget* widget, const QStyle* style)
{
    return drawn([&](QPainter* painter) {
        orOfApplication(style)->drawComplexControl(control, &option, painter, widget);
    });
}

QByteArray transcriptOf(const QVector<Shape>& shapes)
{
    QByteArray text;
    for (const Shape& shape : shapes)
        text += shape.toText() + '\n';
    return text;
}

QByteArray differenceToTranscript(const char* name, const QByteArray& text)
{
    QFile file(QStringLiteral(VARN_TRANSCRIPTS "/%1.txt").arg(QLatin1String(name)));
    if (qEnvironmentVariableIntValue("VARN_UPDATE_TRANSCRIPTS")) {
        const bool written = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        return written ? QByteArray() : "cannot write " + file.fileName().toUtf8();
    }
    if (!file.open(QIODevice::ReadOnly))
        return "cannot read " + file.fileName().toUtf8();
    const QByteArrayList expected = file.readAll().split('\n');
    const QByteArrayList actual = text.split('\n');
    QByteArray difference;
    for (int i = 0; i < std::max(expected.size(), actual.size()); ++i)
        if (expected.value(i) != actual.value(i))
            difference += "\n  " + QByteArray::number(i + 1) + ": - " + expected.value(i) + "\n  "
                          + QByteArray::number(i + 1) + ": + " + actual.value(i);
    return difference.isEmpty() ? difference : QByteArray(name + QByteArray(".txt:") + difference);
}
