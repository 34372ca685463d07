#pragma once

#include <QBrush>
#include <QIcon>
#include <QPixmap>

class QPainter;

/// Icons in the brushes of the theme: the drawing that the icon theme has for an icon in a brush,
/// named `<icon name>.<brush name>`, else the icon recolored.
namespace BRELK::ThemeIcons {

QIcon colored(const QIcon& icon, const QBrush& brush);

QPixmap colored(const QPixmap& picture, const QBrush& brush);

/// What `icon` shows in `brush` at `size` logical pixels, as sharp as the device of `painter` can
/// show it: its own picture for `mode` if the application gave it one. A brush that paints nothing
/// leaves it its colors.
QPixmap pixmap(const QPainter& painter, const QIcon& icon, const QBrush& brush, const QSize& size,
               QIcon::Mode mode = QIcon::Normal, QIcon::State state = QIcon::Off);

} // namespace BRELK::ThemeIcons
