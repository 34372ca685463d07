#include "ColorArithmetic.h"

#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>

namespace BRELK::ColorArithmetic {

namespace {

constexpr int Levels = 256;
constexpr double FullTurn = 360;
constexpr double LargestContrast = 21;
/// Light that the eye sees on a black screen, in the guidelines' formula.
constexpr double Flare = 0.05;
/// Chroma below this is rounding, and has no hue.
constexpr double LeastChroma = 4e-6;

struct Light
{
    double red;
    double green;
    double blue;
};

double decoded(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double encoded(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

double decodedLevel(int level)
{
    static const std::array<double, Levels> sLights = [] {
        std::array<double, Levels> lights{};
        for (int i = 0; i < Levels; ++i)
            lights.at(size_t(i)) = decoded(double(i) / (Levels - 1));
        return lights;
    }();
    return sLights.at(size_t(level));
}

Light lightOf(const QColor& color)
{
    const QRgb rgb = color.rgb();
    return {decodedLevel(qRed(rgb)), decodedLevel(qGreen(rgb)), decodedLevel(qBlue(rgb))};
}

double clipped(double light)
{
    return std::clamp(light, 0.0, 1.0);
}

Light clipped(const Light& light)
{
    return {clipped(light.red), clipped(light.green), clipped(light.blue)};
}

bool isShown(const Light& light)
{
    constexpr double Rounding = 1e-6;
    const auto isIn = [](double value) { return value >= -Rounding && value <= 1 + Rounding; };
    return isIn(light.red) && isIn(light.green) && isIn(light.blue);
}

QColor toColor(const Light& light)
{
    const auto level = [](double value) {
        return int(std::lround(encoded(clipped(value)) * (Levels - 1)));
    };
    return {level(light.red), level(light.green), level(light.blue)};
}

Oklab toOklab(const Light& light)
{
    const double l = std::cbrt(0.4122214694707629 * light.red + 0.5363325372617349 * light.green
                               + 0.0514459932675022 * light.blue);
    const double m = std::cbrt(0.2119034958178251 * light.red + 0.6806995506452345 * light.green
                               + 0.1073969535369405 * light.blue);
    const double s = std::cbrt(0.0883024591900564 * light.red + 0.2817188391361215 * light.green
                               + 0.6299787016738222 * light.blue);
    return {0.2104542683093140 * l + 0.7936177747023054 * m - 0.0040720430116193 * s,
            1.9779985324311684 * l - 2.4285922420485799 * m + 0.4505937096174110 * s,
            0.0259040424655478 * l + 0.7827717124575296 * m - 0.8086757549230774 * s};
}

Light toLight(const Oklab& lab)
{
    const auto cubed = [](double value) { return value * value * value; };
    const double l = cubed(lab.lightness + 0.3963377773761749 * lab.a + 0.2158037573099136 * lab.b);
    const double m = cubed(lab.lightness - 0.1055613458156586 * lab.a - 0.0638541728258133 * lab.b);
    const double s = cubed(lab.lightness - 0.0894841775298119 * lab.a - 1.2914855480194092 * lab.b);
    return {4.0767416360759583 * l - 3.3077115392580629 * m + 0.2309699031821043 * s,
            -1.2684379732850315 * l + 2.6097573492876882 * m - 0.3413193760026570 * s,
            -0.0041960761386756 * l - 0.7034186179359362 * m + 1.7076146940746117 * s};
}

Oklab toOklab(const Oklch& lch)
{
    const double angle = qDegreesToRadians(lch.hue);
    return {lch.lightness, lch.chroma * std::cos(angle), lch.chroma * std::sin(angle)};
}

Oklch toOklch(const Oklab& lab)
{
    const double chroma = std::hypot(lab.a, lab.b);
    if (chroma < LeastChroma)
        return {lab.lightness, 0, 0};
    const double hue = qRadiansToDegrees(std::atan2(lab.b, lab.a));
    return {lab.lightness, chroma, hue < 0 ? hue + FullTurn : hue};
}

double distance(const Oklab& one, const Oklab& other)
{
    return std::sqrt(std::pow(one.lightness - other.lightness, 2) + std::pow(one.a - other.a, 2)
                     + std::pow(one.b - other.b, 2));
}

/// The nearest color that the screen shows, by giving up chroma until clipping makes no noticeable
/// difference.
Light mapped(const Oklab& wanted)
{
    constexpr double JustNoticeable = 0.02;
    constexpr double Precision = 0.0001;

    if (wanted.lightness >= 1)
        return {1, 1, 1};
    if (wanted.lightness <= 0)
        return {0, 0, 0};
    const Light light = toLight(wanted);
    if (isShown(light) || distance(toOklab(clipped(light)), wanted) < JustNoticeable)
        return clipped(light);

    double least = 0;
    double most = 1; // of the chroma
    bool leastIsShown = true;
    Light result = light;
    while ((most - least) * std::hypot(wanted.a, wanted.b) > Precision) {
        const double share = (least + most) / 2;
        const Oklab current{wanted.lightness, wanted.a * share, wanted.b * share};
        result = toLight(current);
        if (leastIsShown && isShown(result)) {
            least = share;
            continue;
        }
        const double difference = distance(toOklab(clipped(result)), current);
        if (difference >= JustNoticeable) {
            most = share;
            continue;
        }
        if (JustNoticeable - difference < Precision)
            break;
        leastIsShown = false;
        least = share;
    }
    return clipped(result);
}

QColor withAlphaOf(QColor result, const QColor& color)
{
    if (color.alpha() != Levels - 1)
        result.setAlpha(color.alpha());
    return result;
}

/// Luminances, open at both ends, that a color must not have.
struct Gap
{
    double from;
    double to;
};

/// The gap around `start` that colors must leave to have the contrast `ratio` to all `grounds`;
/// gaps that overlap are one. Empty when there is nothing to leave.
Gap gapAround(double start, const QVector<QColor>& grounds, double ratio)
{
    QVector<Gap> gaps;
    for (const QColor& ground : grounds) {
        const double lit = luminance(ground) + Flare;
        gaps.append({lit / ratio - Flare, lit * ratio - Flare});
    }
    std::sort(gaps.begin(), gaps.end(),
              [](const Gap& one, const Gap& other) { return one.from < other.from; });
    Gap joined{start, start};
    for (int i = 0; i < gaps.size(); ++i) {
        Gap run = gaps.at(i);
        while (i + 1 < gaps.size() && gaps.at(i + 1).from < run.to)
            run.to = std::max(run.to, gaps.at(++i).to);
        if (run.from < start && start < run.to)
            joined = run;
    }
    return joined;
}

/// The lightness nearest to that of `start` where `isFar` holds, which it does at `end` and from
/// some lightness on.
double firstLightness(double start, double end, const Oklch& color, bool (*isFar)(double, double),
                      double luminanceWanted)
{
    constexpr int Steps = 12;
    double near = start;
    double far = end;
    for (int i = 0; i < Steps; ++i) {
        const double middle = (near + far) / 2;
        const QColor tried = fromOklch({middle, color.chroma, color.hue});
        (isFar(luminance(tried), luminanceWanted) ? far : near) = middle;
    }
    return far;
}

} // namespace

Oklab toOklab(const QColor& color)
{
    return toOklab(lightOf(color));
}

Oklch toOklch(const QColor& color)
{
    return toOklch(toOklab(color));
}

QColor fromOklab(const Oklab& lab)
{
    return toColor(mapped(lab));
}

QColor fromOklch(const Oklch& lch)
{
    return fromOklab(toOklab(lch));
}

QColor withLightness(const QColor& color, double lightness)
{
    const Oklab lab = toOklab(color);
    return withAlphaOf(fromOklab({std::clamp(lightness, 0.0, 1.0), lab.a, lab.b}), color);
}

QColor withChromaScaled(const QColor& color, double factor)
{
    const Oklab lab = toOklab(color);
    return withAlphaOf(fromOklab({lab.lightness, lab.a * factor, lab.b * factor}), color);
}

QColor mixed(const QColor& color, const QColor& other, double share)
{
    const Oklab from = toOklab(color);
    const Oklab to = toOklab(other);
    const auto between = [share](double a, double b) { return a + (b - a) * share; };
    QColor result = fromOklab(
        {between(from.lightness, to.lightness), between(from.a, to.a), between(from.b, to.b)});
    if (color.alpha() != Levels - 1 || other.alpha() != Levels - 1)
        result.setAlphaF(between(color.alphaF(), other.alphaF()));
    return result;
}

QColor over(const QColor& color, const QColor& ground)
{
    const double alpha = color.alphaF();
    const auto mix = [alpha](double above, double below) {
        return above * alpha + below * (1 - alpha);
    };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

double luminance(const QColor& color)
{
    const Light light = lightOf(color);
    return 0.2126 * light.red + 0.7152 * light.green + 0.0722 * light.blue;
}

double contrast(const QColor& color, const QColor& ground)
{
    const QColor seen = color.alpha() == Levels - 1 ? color : over(color, ground);
    const double one = luminance(seen) + Flare;
    const double other = luminance(ground) + Flare;
    return std::max(one, other) / std::min(one, other);
}

double leastContrast(const QColor& color, const QVector<QColor>& grounds)
{
    double least = LargestContrast;
    for (const QColor& ground : grounds)
        least = std::min(least, contrast(color, ground));
    return least;
}

QColor withContrast(const QColor& color, const QVector<QColor>& grounds, double ratio)
{
    const Gap gap = gapAround(luminance(color), grounds, ratio);
    if (gap.from == gap.to)
        return color;
    const bool canBeDarker = gap.from >= 0;
    const bool canBeLighter = gap.to <= 1;
    if (!canBeDarker && !canBeLighter)
        return withAlphaOf(moreReadable(Qt::white, Qt::black, grounds), color);

    const Oklch start = toOklch(color);
    const auto isDarker = [](double found, double wanted) { return found <= wanted; };
    const auto isLighter = [](double found, double wanted) { return found >= wanted; };
    const double darker =
        canBeDarker ? firstLightness(start.lightness, 0, start, isDarker, gap.from) : -1;
    const double lighter =
        canBeLighter ? firstLightness(start.lightness, 1, start, isLighter, gap.to) : 2;
    const bool isLighterNearer = lighter - start.lightness < start.lightness - darker;
    const double nearest = canBeLighter && (!canBeDarker || isLighterNearer) ? lighter : darker;
    return withAlphaOf(fromOklch({nearest, start.chroma, start.hue}), color);
}

QColor moreReadable(const QColor& one, const QColor& other, const QVector<QColor>& grounds)
{
    return leastContrast(other, grounds) > leastContrast(one, grounds) ? other : one;
}

} // namespace BRELK::ColorArithmetic
