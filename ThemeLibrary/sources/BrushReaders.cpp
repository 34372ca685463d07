#include "BrushReaders.h"

#include <QLinearGradient>

#include <algorithm>

namespace BRELK {

namespace {

constexpr double LargestCoordinate = 10;

QPointF readPoint(const ThemeElement& element, QLatin1String attribute, const QPointF& missing,
                  bool& ok)
{
    if (!element.hasAttribute(attribute))
        return missing;
    const QString text = element.getAttribute(attribute);
    const QStringList parts = text.split(u',');
    if (parts.size() != 2) {
        element.reject(attribute + QLatin1Char(' ') + quoted(text)
                       + QLatin1String(" is not of the form x,y"));
        ok = false;
        return {};
    }
    const double x = element.readNumber(parts.first(), -LargestCoordinate, LargestCoordinate, ok);
    const double y =
        ok ? element.readNumber(parts.last(), -LargestCoordinate, LargestCoordinate, ok) : 0;
    return {x, y};
}

void addStop(QGradientStops& stops, const ThemeElement& element, const ThemeColors& colors)
{
    if (element.getTag() != QLatin1String("GradientStop")) {
        element.rejectUnknown();
        return;
    }
    element.checkTextElement({"offset"}, derivationAttributes());
    bool ok = true;
    const double offset =
        element.readNumber(element.getAttribute(QLatin1String("offset")), 0, 1, ok);
    if (!ok)
        return;
    const auto isAtOffset = [offset](const QGradientStop& stop) { return stop.first == offset; };
    if (std::any_of(stops.begin(), stops.end(), isAtOffset)) {
        element.reject(QStringLiteral("there is another stop at this offset"));
        return;
    }
    const QColor color = readColor(element, colors, ok);
    if (ok)
        stops.append({offset, color});
}

} // namespace

const BrushReader* BrushReader::forTag(const QString& tag)
{
    static const SolidBrushReader sSolid;
    static const LinearGradientBrushReader sLinearGradient;
    static const QHash<QString, const BrushReader*> sBrushReaders{
        {QStringLiteral("SolidBrush"), &sSolid},
        {QStringLiteral("LinearGradientBrush"), &sLinearGradient}};
    return sBrushReaders.value(tag);
}

QBrush SolidBrushReader::readBrush(const ThemeElement& element, const ThemeColors& colors,
                                   bool& ok) const
{
    element.checkTextElement({"name", "internal"}, derivationAttributes());
    const QColor color = readColor(element, colors, ok);
    return ok ? QBrush(color) : QBrush();
}

QBrush LinearGradientBrushReader::readBrush(const ThemeElement& element, const ThemeColors& colors,
                                            bool& ok) const
{
    element.checkAttributes({"name", "internal", "startPoint", "endPoint"});
    const QPointF start = readPoint(element, QLatin1String("startPoint"), {0, 0}, ok);
    const QPointF end = ok ? readPoint(element, QLatin1String("endPoint"), {0, 1}, ok) : QPointF();
    if (!ok)
        return {};
    if (start == end) {
        element.reject(QStringLiteral("it starts where it ends"));
        ok = false;
        return {};
    }
    QGradientStops stops;
    for (const ThemeElement& child : element.getChildren())
        addStop(stops, child, colors);
    if (stops.isEmpty()) {
        element.reject(QStringLiteral("it has no stop"));
        ok = false;
        return {};
    }
    QLinearGradient gradient(start, end);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setStops(stops);
    return gradient;
}

} // namespace BRELK
