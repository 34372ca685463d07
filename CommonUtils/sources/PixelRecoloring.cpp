#include "PixelRecoloring.h"

#include <QColor>
#include <QPainter>
#include <QRect>

#include <algorithm>
#include <cmath>

namespace BRELK {

namespace {

constexpr int Opaque = 255;

/// How far from a pixel the two colors that it blends are looked for: the width of a soft edge.
constexpr int EdgeWidth = 2;

/// How far a blend may be from the line between its two colors.
constexpr float LargestDeviation = 12;

constexpr int DisabledOpacity = 178;

struct Rgb
{
    explicit Rgb(QRgb color)
        : red(float(qRed(color))), green(float(qGreen(color))), blue(float(qBlue(color)))
    { }

    Rgb(float r, float g, float b) : red(r), green(g), blue(b) { }

    Rgb operator-(const Rgb& other) const
    {
        return {red - other.red, green - other.green, blue - other.blue};
    }

    Rgb operator*(float factor) const { return {red * factor, green * factor, blue * factor}; }

    float dot(const Rgb& other) const
    {
        return red * other.red + green * other.green + blue * other.blue;
    }

    float length() const { return std::sqrt(dot(*this)); }

    float red;
    float green;
    float blue;
};

/// What the channels of a premultiplied color may be off after dividing by its alpha.
int roundingError(int alpha)
{
    return 2 + Opaque / std::max(alpha, 1);
}

bool isNear(QRgb color, QRgb other, int tolerance)
{
    return std::abs(qRed(color) - qRed(other)) <= tolerance
           && std::abs(qGreen(color) - qGreen(other)) <= tolerance
           && std::abs(qBlue(color) - qBlue(other)) <= tolerance;
}

/// Whether an icon is drawn in the reference. In a picture that has the reference among its shades,
/// more pixels only come close to it.
bool isDrawnIn(QRgb reference, const QImage& icon)
{
    constexpr int Closeness = 16;
    int exact = 0;
    int close = 0;
    for (int y = 0; y < icon.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(icon.constScanLine(y));
        for (int x = 0; x < icon.width(); ++x) {
            if (qAlpha(line[x]) != Opaque || !isNear(line[x], reference, Closeness))
                continue;
            ++(isNear(line[x], reference, roundingError(Opaque)) ? exact : close);
        }
    }
    return exact >= close;
}

/// What the color of a pixel is made of, apart from its alpha.
struct Blend
{
    float referenceShare = 0;
    QRgb other = 0;
};

class IconReader
{
public:
    IconReader(const QImage& icon, QRgb reference)
        : m_icon(icon.convertToFormat(QImage::Format_ARGB32))
        , m_reference(isDrawnIn(reference, m_icon) ? reference : 0)
    { }

    QRgb at(QPoint place) const
    {
        return reinterpret_cast<const QRgb*>(m_icon.constScanLine(place.y()))[place.x()];
    }

    Blend blendAt(QPoint place) const
    {
        const QRgb color = at(place);
        if (isReference(place))
            return {1, color};
        const auto reference = [this](QPoint near) { return isReference(near); };
        if (qAlpha(m_reference) < Opaque || isFlat(place)
            || !anyAround(place, EdgeWidth, reference))
            return {0, color};
        return unmixed(place);
    }

private:
    template <class Predicate>
    bool anyAround(QPoint place, int distance, Predicate predicate) const
    {
        const QPoint reach(distance, distance);
        const QRect area = QRect(place - reach, place + reach) & m_icon.rect();
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (predicate(QPoint(x, y)))
                    return true;
        return false;
    }

    bool looksLikeReference(QRgb color) const
    {
        return qAlpha(m_reference) == Opaque && qAlpha(color)
               && isNear(color, m_reference, roundingError(qAlpha(color)));
    }

    /// A faint pixel may look like the reference by chance. If it is the soft edge of something, so
    /// does what it is the edge of.
    bool isReference(QPoint place) const
    {
        const QRgb color = at(place);
        if (!looksLikeReference(color))
            return false;
        const auto isMoreOpaque = [&](QPoint near) { return qAlpha(at(near)) > qAlpha(color); };
        return qAlpha(color) == Opaque || !anyAround(place, 1, isMoreOpaque)
               || anyAround(place, 1, [&](QPoint near) {
                      return isMoreOpaque(near) && looksLikeReference(at(near));
                  });
    }

    /// Whether the pixel lies inside an area of its color and so is no blend.
    bool isFlat(QPoint place) const
    {
        const QRgb color = at(place);
        return !anyAround(place, 1, [&](QPoint near) {
            return qAlpha(at(near)) != qAlpha(color)
                   || !isNear(at(near), color, roundingError(qAlpha(color)));
        });
    }

    /// Takes the pixel for a blend of the reference with a nearby color. Of those for which the
    /// pixel lies close to the line between the two, and short of its end, the farthest is the
    /// least blended itself.
    Blend unmixed(QPoint place) const
    {
        const QRgb color = at(place);
        const Rgb reference(m_reference);
        const Rgb difference = Rgb(color) - reference;
        const float tolerance = LargestDeviation + float(roundingError(qAlpha(color)));
        Blend best{0, color};
        float longest = 0;
        anyAround(place, EdgeWidth, [&](QPoint near) {
            const QRgb other = at(near);
            const Rgb line = Rgb(other) - reference;
            const float share = difference.dot(line) / std::max(line.dot(line), 1.0F);
            const float deviation = (difference - line * share).length();
            if (qAlpha(other) && share > 0 && share < 1 && deviation < tolerance
                && line.length() > longest) {
                longest = line.length();
                best = {1 - share, other};
            }
            return false;
        });
        return best;
    }

    QImage m_icon;
    QRgb m_reference;
};

QRgb withoutColor(QRgb color)
{
    const int gray = qGray(color);
    return qRgba(gray, gray, gray, qAlpha(color));
}

/// The premultiplied color of a pixel with the given opacity.
QRgb mixed(QRgb replacement, const Blend& blend, int alpha)
{
    const float covered = float(alpha) * blend.referenceShare / Opaque;
    const float rest = float(alpha) * (1 - blend.referenceShare) / Opaque;
    const auto channel = [&](int ofReplacement, int ofOther) {
        return int(std::lround(float(ofReplacement) * covered + float(ofOther) * rest));
    };
    return qRgba(channel(qRed(replacement), qRed(blend.other)),
                 channel(qGreen(replacement), qGreen(blend.other)),
                 channel(qBlue(replacement), qBlue(blend.other)),
                 channel(qAlpha(replacement), Opaque));
}

} // namespace

QImage recoloredImage(const QImage& icon, QRgb reference, const QImage& replacement, bool disabled)
{
    const IconReader reader(icon, reference);
    const auto recolored = [&](QPoint place, QRgb fill) {
        const int alpha = qAlpha(reader.at(place));
        if (alpha == 0)
            return QRgb(0);
        Blend blend = reader.blendAt(place);
        if (disabled)
            blend.other = withoutColor(blend.other);
        return mixed(fill, blend, disabled ? alpha * DisabledOpacity / Opaque : alpha);
    };
    QImage result(icon.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < result.height(); ++y) {
        const auto* fill = reinterpret_cast<const QRgb*>(replacement.constScanLine(y));
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            line[x] = recolored({x, y}, fill[x]);
    }
    return result;
}

} // namespace BRELK
