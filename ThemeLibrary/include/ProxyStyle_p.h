#pragma once

#include "ThemeLibraryGlobal.h"

#include <QAccessible>
#include <QSize>
#include <QString>

class QStyleOption;

/// Helpers for code that paints with the style and caches what it painted.
namespace BRELK::ProxyStyle_p {

/// A pixmap-cache key that begins with `key` and differs whenever the state, direction, active
/// parts, palette or `size` (and for a spin box its buttons and frame) do. `option` must not be
/// null.
VARN_COMMON_THEME_EXPORT QString uniqueName(const QString& key, const QStyleOption* option,
                                            const QSize& size);

/// Whether `object` has an accessibility interface with `role`.
VARN_COMMON_THEME_EXPORT bool isInstanceOf(QObject* object, QAccessible::Role role);

} // namespace BRELK::ProxyStyle_p
