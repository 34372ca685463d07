#pragma once

#include <QColor>
#include <QIcon>

namespace BRELK::EmbeddedIcons {

/// The color that the library's icons are drawn in, and that recoloring replaces.
constexpr QRgb ReferenceColor = 0xFFE5EEF4;

/// Lets icons be found by name that the icon theme lacks: maps the library's below ":/icons", by
/// their own names and, drawn in `foreground`, by those of desktop icons. Where `themeName` has no
/// index it gets one, for the icons of its folder before those. To be called after a theme's
/// bundles are registered, as of two files of one name the one that came first is shown.
void offerToIconTheme(const QString& themeName, const QColor& foreground);

/// The color in which icons of desktop names are offered.
QColor offeredColor();

/// Whether a theme can have drawn this icon by hand. One without a folder of icons cannot: asking
/// Qt for an icon that nobody has makes it read all themes that the icon theme falls back to, at
/// the start of a program that has no use for them.
bool mayBeHandMade(const QString& icon);

/// An icon that the style shows by name: the icon theme's, else the library's own, so that the
/// marks of the style are there whatever the icon theme is. Follows when that changes.
class StyleIcon
{
public:
    explicit StyleIcon(const QString& name) : m_name(name), m_themed(QIcon::fromTheme(name)) { }

    operator QIcon() const; // NOLINT(google-explicit-constructor)

private:
    QString m_name;
    QIcon m_themed;
};

} // namespace BRELK::EmbeddedIcons
