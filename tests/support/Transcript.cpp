#include "Transcript.h"

#include "ProbeTheme.h"

#include <QtWidgets>

#include <cmath>

namespace {

using ::toText;

constexpr qreal Tolerance = 0.01;

QByteArray toText(qreal number)
{
    const qreal rounded = std::round(number * 100) / 100;
    return QByteArray::number(rounded == 0 ? 0 : rounded);
}

QByteArray toText(const QPointF& point)
{
    return toText(point.x()) + ',' + toText(point.y());
}

QByteArray toText(const QTransform& transform)
{
    const QPointF offset(transform.dx(), transform.dy());
    if (transform.type() <= QTransform::TxTranslate)
        return transform.isIdentity() ? QByteArray() : " at " + toText(offset);
    return " matrix " + toText(QPointF(transform.m11(), transform.m12())) + ' '
           + toText(QPointF(transform.m21(), transform.m22())) + ' ' + toText(offset);
}

QByteArray toText(const QPen& pen)
{
    if (pen.style() == Qt::NoPen || pen.brush().style() == Qt::NoBrush)
        return {};
    QByteArray text = " pen " + ProbeTheme::nameOf(pen.brush());
    if (!qFuzzyCompare(pen.widthF(), 1))
        text += ' ' + toText(pen.widthF());
    if (pen.style() == Qt::CustomDashLine) {
        QByteArrayList lengths;
        for (const qreal length : pen.dashPattern())
            lengths.append(toText(length));
        text += " dash " + lengths.join(',');
    }
    if (pen.capStyle() != Qt::SquareCap)
        text += pen.capStyle() == Qt::FlatCap ? " flat" : " round-cap";
    if (pen.joinStyle() != Qt::BevelJoin)
        text += pen.joinStyle() == Qt::RoundJoin ? " round-join" : " miter";
    return text;
}

/// The points of a path; those of its curves end in "c".
QByteArray pointsOf(const QPainterPath& path)
{
    QByteArrayList points;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo() && i > 0)
            points.append("/");
        points.append(toText(QPointF(element)) + (element.isCurveTo() ? "c" : ""));
    }
    return "path " + points.join(' ');
}

/// A path that is a rectangle with round or square corners, or an ellipse, by that name: where it
/// turns is compared with where a path of these radii does.
QByteArray toText(const QPainterPath& path)
{
    QVector<QPointF> turns;
    int curves = 0;
    for (int i = 0; i < path.elementCount(); ++i) {
        if (path.elementAt(i).isCurveTo()) {
            ++curves;
            i += 2;
        }
        turns.append(path.elementAt(i));
    }
    const QRectF rect = path.controlPointRect();

    const struct
    {
        const char* name;
        QPointF place;
        QPointF inwards;
    } corners[] = {{"top-left", rect.topLeft(), {1, 1}},
                   {"top-right", rect.topRight(), {-1, 1}},
                   {"bottom-right", rect.bottomRight(), {-1, -1}},
                   {"bottom-left", rect.bottomLeft(), {1, -1}}};

    QSet<QByteArray> expected;
    QByteArrayList square;
    qreal radius = 0;
    for (const auto& corner : corners) {
        qreal own = rect.width();
        for (const QPointF& turn : qAsConst(turns))
            if (qAbs(turn.y() - corner.place.y()) < Tolerance)
                own = qMin(own, qAbs(turn.x() - corner.place.x()));
        if (own < Tolerance)
            square.append(corner.name);
        else
            radius = own;
        expected += toText(corner.place + QPointF(own * corner.inwards.x(), 0));
        expected += toText(corner.place + QPointF(0, own * corner.inwards.y()));
    }
    QSet<QByteArray> found;
    for (const QPointF& turn : qAsConst(turns))
        found += toText(turn);
    if (found != expected || curves != 4 - square.size())
        return pointsOf(path);
    if (curves == 0)
        return "rect " + toText(rect);
    if (qAbs(2 * radius - rect.width()) + qAbs(2 * radius - rect.height()) < Tolerance)
        return "ellipse " + toText(rect);
    return "rounded " + toText(rect) + " r" + toText(radius) + (square.isEmpty() ? "" : " square ")
           + square.join(',');
}

QByteArray namesOf(int textFlags)
{
    const std::pair<int, const char*> names[] = {{Qt::AlignCenter, " center"},
                                                 {Qt::AlignLeft, " left"},
                                                 {Qt::AlignRight, " right"},
                                                 {Qt::AlignHCenter, " hcenter"},
                                                 {Qt::AlignTop, " top"},
                                                 {Qt::AlignBottom, " bottom"},
                                                 {Qt::AlignVCenter, " vcenter"},
                                                 {Qt::TextSingleLine, " single"},
                                                 {Qt::TextWordWrap, " wrap"},
                                                 {Qt::TextShowMnemonic, " mnemonic"},
                                                 {Qt::TextHideMnemonic, " no-mnemonic"},
                                                 {Qt::TextDontClip, " unclipped"}};
    QByteArray text;
    textFlags &= ~Qt::AlignAbsolute; // what is not so is mirrored where it stands
    for (const auto& [flag, name] : names)
        if ((textFlags & flag) == flag) {
            text += name;
            textFlags &= ~flag;
        }
    return textFlags ? text + " flags " + QByteArray::number(textFlags, 16) : text;
}

class Engine : public QPaintEngine
{
public:
    Engine() : QPaintEngine(AllFeatures) { }

    QByteArray text;

    bool begin(QPaintDevice*) override { return true; }

    bool end() override { return true; }

    Type type() const override { return User; }

    void updateState(const QPaintEngineState&) override { }

    // The variants with whole numbers lead to those below.
    using QPaintEngine::drawEllipse;
    using QPaintEngine::drawLines;
    using QPaintEngine::drawPolygon;
    using QPaintEngine::drawRects;

    void drawRects(const QRectF* rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            writeFilled("rect " + toText(rects[i]));
    }

    void drawLines(const QLineF* lines, int count) override
    {
        for (int i = 0; i < count && m_text.isEmpty(); ++i)
            write("line " + toText(lines[i].p1()) + ' ' + toText(lines[i].p2())
                  + toText(painter()->pen()) + smooth());
    }

    void drawEllipse(const QRectF& rect) override { writeFilled("ellipse " + toText(rect)); }

    void drawPath(const QPainterPath& path) override { writeFilled(toText(path)); }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        QByteArray polygon;
        for (int i = 0; i < count; ++i)
            polygon += ' ' + toText(points[i]);
        if (mode == PolylineMode)
            write("polyline" + polygon + toText(painter()->pen()) + smooth());
        else
            writeFilled("polygon" + polygon);
    }

    void drawPixmap(const QRectF& rect, const QPixmap& pixmap, const QRectF& source) override
    {
        drawImage(rect, pixmap.toImage(), source, Qt::AutoColor);
    }

    void drawImage(const QRectF& rect, const QImage& image, const QRectF& source,
                   Qt::ImageConversionFlags) override
    {
        const QImage part = image.copy(source.toAlignedRect());
        write(
            "pixmap " + ProbeTheme::iconOf(part) + ' ' + toText(rect) + " brush "
            + ProbeTheme::nameOf(part)
            + (part.width() < rect.width() * paintDevice()->devicePixelRatioF() ? " blurred" : ""));
    }

    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        const bool whole = !m_text.isEmpty();
        if (!whole || !m_written)
            write("text \"" + (whole ? m_text : item.text().toUtf8()) + "\" "
                  + ProbeTheme::nameOf(item.font()) + " pen "
                  + ProbeTheme::nameOf(painter()->pen().color())
                  + (whole ? m_place : " from " + toText(place)));
        m_written = whole;
    }

    /// The pieces that are drawn until the end are those of `text`, with what underlines them.
    void beginText(const QString& whole, const QRect& rect, int flags)
    {
        m_text = whole.toUtf8();
        m_written = false;
        m_place = " in " + ::toText(QRectF(rect)) + namesOf(flags);
    }

    void endText() { m_text.clear(); }

private:
    QByteArray m_text;
    QByteArray m_place;
    bool m_written = false;

    QByteArray smooth() const
    {
        return painter()->testRenderHint(QPainter::Antialiasing) ? " smooth" : "";
    }

    void writeFilled(const QByteArray& shape)
    {
        QByteArray brush = " brush " + ProbeTheme::nameOf(painter()->brush());
        if (painter()->brush().style() == Qt::NoBrush)
            brush.clear();
        write(shape + toText(painter()->pen()) + brush + smooth());
    }

    void write(const QByteArray& line)
    {
        text += line;
        if (!qFuzzyCompare(painter()->opacity(), 1))
            text += " opacity " + toText(painter()->opacity());
        text += toText(painter()->deviceTransform());
        if (painter()->hasClipping())
            text += " clip " + toText(painter()->clipBoundingRect());
        text += '\n';
    }
};

/// Large enough for what is painted; its pixels are never touched.
class Paper : public QImage
{
public:
    explicit Paper(qreal ratio) : QImage(4096, 4096, Format_Alpha8) { setDevicePixelRatio(ratio); }

    mutable Engine engine;

    QPaintEngine* paintEngine() const override { return &engine; }
};

} // namespace

void TranscribedStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                    const QPalette& palette, bool enabled, const QString& text,
                                    QPalette::ColorRole role) const
{
    auto* engine = painter ? dynamic_cast<Engine*>(painter->paintEngine()) : nullptr;
    if (engine)
        engine->beginText(text, rect, flags);
    BaseStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    if (engine)
        engine->endText();
}

QByteArray toText(const QRectF& rect)
{
    return toText(rect.topLeft()) + ' ' + toText(rect.width()) + 'x' + toText(rect.height());
}

QByteArray drawnAtRatio(qreal ratio, const std::function<void(QPainter*)>& paint)
{
    Paper paper(ratio);
    QPainter painter(&paper);
    paint(&painter);
    painter.end();
    return paper.engine.text;
}

QByteArray differenceToTranscript(const QByteArray& name, const QByteArray& text)
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
    int line = 0;
    while (line < expected.size() && line < actual.size() && expected[line] == actual[line])
        ++line;
    if (expected == actual)
        return {};
    return name + ".txt:" + QByteArray::number(line + 1) + ":\n  - " + expected.value(line)
           + "\n  + " + actual.value(line)
           + "\nTo accept what changed, run this with VARN_UPDATE_TRANSCRIPTS=1 and look at it.";
}
