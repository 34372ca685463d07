#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>

class QLabel;

/// The theme values that the gallery decorates itself with. Without a theme the palette and the
/// application's font stand in, so the gallery also shows an application that is not themed.
namespace Gallery::Decoration {

/// The theme's color `name`, else the application palette's color of `fallback`.
QColor color(const QString& name, QPalette::ColorRole fallback);

QColor text();
QColor quietText();
QColor accent();
/// The lines around panels.
QColor border();
/// The fill of panels.
QColor surface();

/// The theme's font "small", "base", "medium" or "large".
QFont font(const QString& name);

/// The icon `name` in the color `ink`, which the theme's own icons of that color precede.
QIcon icon(const QString& name, const QColor& ink);

/// Corner radius "SmallSize", "BaseSize", "MediumSize" or "LargeSize" in logical pixels.
int radius(const QString& name);

/// Gives `label` a color and a font of the theme.
void dress(QLabel& label, const QColor& ink, const QFont& font);

} // namespace Gallery::Decoration
