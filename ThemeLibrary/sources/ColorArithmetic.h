#pragma once

#include <QColor>
#include <QVector>

/// Arithmetic on colors as readers see them. Knows no file and no theme.
///
/// Works in the perceptual space OKLab and its polar form OKLCH, with conversions and gamut mapping
/// as CSS Color 4 defines them: what the screen cannot show keeps hue and lightness and loses
/// chroma. Contrast is that of the Web Content Accessibility Guidelines. Results are opaque or as
/// translucent as their first argument, and of 8 bits a channel. An invalid color counts as black.
namespace BRELK::ColorArithmetic {

/// Lightness from 0 (black) to 1 (white); a and b are about -0.4 to 0.4.
struct Oklab
{
    double lightness;
    double a;
    double b;
};

/// Chroma from 0 (grey) to about 0.4; hue in degrees, 0 to 360, and 0 for greys.
struct Oklch
{
    double lightness;
    double chroma;
    double hue;
};

Oklab toOklab(const QColor& color);
Oklch toOklch(const QColor& color);
QColor fromOklab(const Oklab& lab);
QColor fromOklch(const Oklch& lch);

/// `color` with another lightness, which is kept between 0 and 1.
QColor withLightness(const QColor& color, double lightness);

/// `color` with its chroma multiplied.
QColor withChromaScaled(const QColor& color, double factor);

/// The color on the straight way from `color` to `other`: 0 is the one, 1 the other. Opacity goes
/// the same way.
QColor mixed(const QColor& color, const QColor& other, double share);

/// What is seen of `color` before the opaque `ground`.
QColor over(const QColor& color, const QColor& ground);

/// Relative luminance, 0 to 1; opacity is left out of account.
double luminance(const QColor& color);

/// The contrast ratio, 1 to 21, of `color` laid over the opaque color `ground`.
double contrast(const QColor& color, const QColor& ground);

/// The smallest of the contrasts to `grounds`, 21 if there are none.
double leastContrast(const QColor& color, const QVector<QColor>& grounds);

/// `color`, made lighter or darker by as little as gives it at least the contrast `ratio` to each
/// of `grounds`. Where no lightness does, black or white, whichever comes nearer. Opacity is left
/// out of account, and kept.
QColor withContrast(const QColor& color, const QVector<QColor>& grounds, double ratio);

/// Whichever of the two has the larger least contrast to `grounds`; `one` if both have the same.
QColor moreReadable(const QColor& one, const QColor& other, const QVector<QColor>& grounds);

} // namespace BRELK::ColorArithmetic
