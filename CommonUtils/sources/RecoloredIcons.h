#pragma once

#include "CommonUtilsGlobal.h"

#include <QBrush>
#include <QIcon>
#include <QPixmap>

/// Icons and pictures in other colors, the way `Helpers` describes it. The pictures are kept by
/// what they are made from, so a picture that changes is seen changing.
namespace BRELK::RecoloredIcons {

struct Recoloring
{
    QBrush reference;
    QBrush replacement;
    bool disabled = false;
};

/// `icon`, recolored whenever it is drawn.
VARN_COMMON_UTILS_EXPORT QIcon icon(const QIcon& icon, const Recoloring& recoloring);

/// Whether the application gave `icon` pictures of its own for `mode`: these are shown as they are.
VARN_COMMON_UTILS_EXPORT bool hasOwn(const QIcon& icon, QIcon::Mode mode, QIcon::State state);

/// What `icon` shows at `size` logical pixels of a device with the given `ratio`. A picture of too
/// few pixels keeps its size, as in the toolkit, and loses sharpness.
VARN_COMMON_UTILS_EXPORT QPixmap pixmap(const QIcon& icon, const Recoloring& recoloring,
                                        const QSize& size, QIcon::Mode mode, QIcon::State state,
                                        qreal ratio = 1);

VARN_COMMON_UTILS_EXPORT QPixmap pixmap(const QPixmap& source, const Recoloring& recoloring);

} // namespace BRELK::RecoloredIcons
