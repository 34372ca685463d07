#pragma once

#include <QColor>

/// How well readers tell colors from one another.
namespace ColorMetrics {

/// The contrast ratio of the Web Content Accessibility Guidelines, 1 to 21, of `color` laid over
/// the opaque color `ground`.
double contrast(const QColor& color, const QColor& ground);

/// The opaque color that `color` makes on the opaque color `ground`.
QColor over(const QColor& color, const QColor& ground);

/// Readers who have all kinds of cones, or lack those for long, middle or short waves.
enum class Vision { Full, Protanopia, Deuteranopia, Tritanopia };
constexpr Vision AllVisions[] = {Vision::Full, Vision::Protanopia, Vision::Deuteranopia,
                                 Vision::Tritanopia};

/// The distance in CIELAB between two opaque colors as readers with this vision see them; 100 is
/// that of black and white, and 2 is barely noticed.
double distanceInLab(const QColor& a, const QColor& b, Vision vision);

} // namespace ColorMetrics
