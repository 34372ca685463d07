#include "ColorMetrics.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ColorMetrics {

namespace {

using LinearRgb = std::array<double, 3>;

LinearRgb toLinear(const QColor& color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return {linear(color.redF()), linear(color.greenF()), linear(color.blueF())};
}

double luminance(const QColor& color)
{
    const LinearRgb linear = toLinear(color);
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2];
}

using Matrix = std::array<LinearRgb, 3>;

/// What readers see who have all cones, or lack the long, the middle or the short ones, in linear
/// RGB (Machado, Oliveira, Fernandes 2009).
constexpr Matrix Visions[] = {{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
                              {{{0.152286, 1.052583, -0.204868},
                                {0.114503, 0.786281, 0.099216},
                                {-0.003882, -0.048116, 1.051998}}},
                              {{{0.367322, 0.860646, -0.227968},
                                {0.280085, 0.672501, 0.047413},
                                {-0.011820, 0.042940, 0.968881}}},
                              {{{1.255528, -0.076749, -0.178779},
                                {-0.078411, 0.930809, 0.147602},
                                {0.004733, 0.691367, 0.303900}}}};

LinearRgb multiply(const Matrix& matrix, const LinearRgb& vector)
{
    const auto row = [&vector](const LinearRgb& r) {
        return r[0] * vector[0] + r[1] * vector[1] + r[2] * vector[2];
    };
    return {row(matrix[0]), row(matrix[1]), row(matrix[2])};
}

std::array<double, 3> toLab(const LinearRgb& rgb)
{
    constexpr Matrix ToXyz = {{{0.4124564 / 0.95047, 0.3575761 / 0.95047, 0.1804375 / 0.95047},
                               {0.2126729, 0.7151522, 0.0721750},
                               {0.0193339 / 1.08883, 0.1191920 / 1.08883, 0.9503041 / 1.08883}}};
    const auto curve = [](double t) {
        return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116;
    };
    const LinearRgb xyz = multiply(ToXyz, rgb);
    const double y = curve(xyz[1]);
    return {116 * y - 16, 500 * (curve(xyz[0]) - y), 200 * (y - curve(xyz[2]))};
}

} // namespace

QColor over(const QColor& color, const QColor& ground)
{
    const double alpha = color.alphaF();
    const auto mix = [alpha](double above, double below) {
        return above * alpha + below * (1 - alpha);
    };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

double contrast(const QColor& color, const QColor& ground)
{
    const double a = luminance(over(color, ground)) + 0.05;
    const double b = luminance(ground) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

double distanceInLab(const QColor& a, const QColor& b, Vision vision)
{
    const auto seen = [vision](const QColor& color) {
        LinearRgb rgb = multiply(Visions[int(vision)], toLinear(color));
        for (double& channel : rgb)
            channel = qBound(0.0, channel, 1.0);
        return toLab(rgb);
    };
    const auto first = seen(a);
    const auto second = seen(b);
    return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

} // namespace ColorMetrics
