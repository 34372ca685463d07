#pragma once

#include <QBrush>
#include <QImage>

namespace BRELK {

/// `icon` with the color `reference` replaced by what `replacement`, which runs across the whole
/// icon, shows at the same place. Where the icon blends the reference with transparency or with
/// another of its colors, the result blends the replacement in the same shares. A `reference` that
/// is not opaque occurs nowhere. With `disabled` the icon is faded and its other colors turn gray.
///
/// An icon that none of this changes is returned as it is.
QImage recoloredImage(const QImage& icon, QRgb reference, const QBrush& replacement, bool disabled);

} // namespace BRELK
