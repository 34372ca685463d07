#include "PixelRecoloring.h"

#include <QPainter>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <vector>

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
    constexpr int OfOpaque = 3;
    return alpha == Opaque ? OfOpaque : 2 + Opaque / std::max(alpha, 1); // dividing takes long
}

bool isNear(QRgb color, QRgb other, int tolerance)
{
    return std::abs(qRed(color) - qRed(other)) <= tolerance
           && std::abs(qGreen(color) - qGreen(other)) <= tolerance
           && std::abs(qBlue(color) - qBlue(other)) <= tolerance;
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
        , m_pixels(reinterpret_cast<const QRgb*>(m_icon.constBits()))
        , m_width(m_icon.width())
        , m_reference(reference)
    {
        if (isDrawnInReference())
            findReference();
    }

    bool hasReference() const { return !m_isReference.empty(); }

    const QRgb* line(int y) const { return m_pixels + y * m_width; }

    Blend blendAt(QPoint place) const
    {
        const QRgb color = at(place);
        if (!hasReference())
            return {0, color};
        if (isReference(place))
            return {1, color};
        return anyReferenceAround(place) && !isFlat(place) ? unmixed(place) : Blend{0, color};
    }

private:
    QRgb at(QPoint place) const { return line(place.y())[place.x()]; }

    const uchar* referencesIn(int y) const { return m_isReference.data() + y * m_width; }

    bool isReference(QPoint place) const { return referencesIn(place.y())[place.x()] != 0; }

    QRect around(QPoint place, int distance) const
    {
        const QPoint reach(distance, distance);
        return QRect(place - reach, place + reach) & m_icon.rect();
    }

    template <class Predicate>
    bool anyAround(QPoint place, int distance, Predicate predicate) const
    {
        const QRect area = around(place, distance);
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (predicate(QPoint(x, y)))
                    return true;
        return false;
    }

    bool anyReferenceAround(QPoint place) const
    {
        const QRect area = around(place, EdgeWidth);
        uchar any = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                any |= referencesIn(y)[x];
        return any != 0;
    }

    bool looksLikeReference(QRgb color) const
    {
        return qAlpha(color) && isNear(color, m_reference, roundingError(qAlpha(color)));
    }

    /// In a picture that has the reference among its shades, more pixels only come close to it.
    bool isDrawnInReference() const
    {
        constexpr int Closeness = 16;
        int exact = 0;
        int close = 0;
        bool found = false;
        for (int y = 0; y < m_icon.height() && qAlpha(m_reference) == Opaque; ++y)
            std::for_each(line(y), line(y) + m_width, [&](QRgb color) {
                const bool looksLike = looksLikeReference(color);
                found = found || looksLike;
                if (qAlpha(color) == Opaque && isNear(color, m_reference, Closeness))
                    ++(looksLike ? exact : close);
            });
        return found && exact >= close;
    }

    void findReference()
    {
        m_isReference.resize(size_t(m_width) * size_t(m_icon.height()));
        auto result = m_isReference.begin();
        for (int y = 0; y < m_icon.height(); ++y)
            for (int x = 0; x < m_width; ++x)
                *result++ = looksLikeReference(line(y)[x]) && belongsToReference({x, y});
    }

    /// A faint pixel may look like the reference by chance. If it is the soft edge of something, so
    /// does what it is the edge of.
    bool belongsToReference(QPoint place) const
    {
        const QRgb color = at(place);
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
    const QRgb* m_pixels; ///< those of the icon, line by line
    int m_width;
    QRgb m_reference;
    std::vector<uchar> m_isReference; ///< of all pixels, line by line; empty if none is
};

QRgb withoutColor(QRgb color)
{
    const int gray = qGray(color);
    return qRgba(gray, gray, gray, qAlpha(color));
}

/// The premultiplied color of a pixel with the given opacity.
QRgb mixed(QRgb replacement, const Blend& blend, int alpha)
{
    if (alpha == Opaque && blend.referenceShare == 1)
        return replacement;
    const float covered = float(alpha) * blend.referenceShare / Opaque;
    const float rest = float(alpha) * (1 - blend.referenceShare) / Opaque;
    const auto channel = [&](int ofReplacement, int ofOther) {
        return int(float(ofReplacement) * covered + float(ofOther) * rest + 0.5F);
    };
    return qRgba(channel(qRed(replacement), qRed(blend.other)),
                 channel(qGreen(replacement), qGreen(blend.other)),
                 channel(qBlue(replacement), qBlue(blend.other)),
                 channel(qAlpha(replacement), Opaque));
}

/// What `brush` paints on an icon of `size`.
QImage painted(const QBrush& brush, const QSize& size)
{
    QImage fill(size, QImage::Format_ARGB32_Premultiplied);
    if (brush.style() == Qt::SolidPattern) {
        fill.fill(brush.color().rgba64().premultiplied().toArgb32());
        return fill;
    }
    fill.fill(Qt::transparent);
    QPainter(&fill).fillRect(fill.rect(), brush);
    return fill.copy(); // which keeps no engine that painted on it
}

} // namespace

QImage recoloredImage(const QImage& icon, QRgb reference, const QBrush& replacement, bool disabled)
{
    const IconReader reader(icon, reference);
    if (!reader.hasReference() && !disabled)
        return icon;
    QImage result = painted(reader.hasReference() ? replacement : QBrush(), icon.size());
    for (int y = 0; y < result.height(); ++y) {
        const QRgb* colors = reader.line(y);
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const int alpha = qAlpha(colors[x]);
            if (alpha == 0) {
                line[x] = 0;
                continue;
            }
            Blend blend = reader.blendAt({x, y});
            if (disabled)
                blend.other = withoutColor(blend.other);
            line[x] = mixed(line[x], blend, disabled ? alpha * DisabledOpacity / Opaque : alpha);
        }
    }
    return result;
}

} // namespace BRELK
