#include "ThemeColorHelper.h"

#include "ColorDerivations.h"
#include "EmbeddedIcons.h"
#include "Helpers.h"
#include "ThemeResources.h"
#include "ThemeResources_p.h"
#include "ThemeValues.h"

#include <QCache>
#include <QCoreApplication>
#include <QVariant>

namespace BRELK::ThemeColorHelper {

namespace {

/// Icons of desktop names are offered in the theme's foreground, and never have dots in their name.
QIcon inReferenceColor(const QIcon& icon)
{
    const QString name = icon.name();
    const QColor offered = EmbeddedIcons::offeredColor();
    if (name.isEmpty() || name.contains(QLatin1Char('.'))
        || offered == QColor(EmbeddedIcons::ReferenceColor))
        return icon;
    return Helpers::getModifiedIconWithForegroundBrush(
        icon, offered, QColor(EmbeddedIcons::ReferenceColor), false);
}

QIcon themedOrRecolored(const QIcon& icon, const QBrush& brush)
{
    QString brushName = ThemeResources::getBrushKey(brush);
    brushName.replace(QLatin1String("BrushDisabled"), QLatin1String("DisabledBrush"));

    // Qt shortens names at hyphens until it finds an icon; only the exact name is the theme
    // author's own.
    const QString themedName = icon.name() + QLatin1Char('.') + brushName;
    const QIcon themed = QIcon::fromTheme(themedName);
    if (!themed.isNull() && themed.name() == themedName)
        return themed;

    const QColor reference(EmbeddedIcons::ReferenceColor);
    return Helpers::getModifiedIconWithForegroundBrush(
        inReferenceColor(icon), reference, brush, brushName.contains(ThemeNames::Disabled.text));
}

struct IconInBrush
{
    qint64 icon;
    QBrush brush;
};

bool operator==(const IconInBrush& one, const IconInBrush& other)
{
    return one.icon == other.icon && one.brush == other.brush;
}

uint qHash(const IconInBrush& key, uint seed)
{
    return ::qHash(quint64(key.icon), seed) ^ ::qHash(key.brush.color().rgba(), seed);
}

/// The icons that the current theme gave. Finding a brush's name and an icon's file takes far
/// longer than painting the icon, which asks anew each time.
class IconCache
{
public:
    QIcon find(const QIcon& icon, const QBrush& brush)
    {
        forgetOtherThemes();
        const IconInBrush key{icon.cacheKey(), brush};
        if (const QIcon* known = m_icons.object(key))
            return *known;
        const QIcon result = themedOrRecolored(icon, brush);
        m_icons.insert(key, new QIcon(result));
        return result;
    }

private:
    static constexpr int Capacity = 1000;

    void forgetOtherThemes()
    {
        const QVariantMap variables = ThemeResources::themeVariables();
        const QString iconTheme = QIcon::themeName();
        if (variables.isSharedWith(m_variables) && iconTheme == m_iconTheme)
            return;
        m_icons.clear();
        m_variables = variables;
        m_iconTheme = iconTheme;
    }

    QVariantMap m_variables;
    QString m_iconTheme;
    QCache<IconInBrush, QIcon> m_icons{Capacity};
};

} // namespace

QColor disabled(const QColor& color, bool foreground)
{
    std::optional<DisabledFactors>& factors = themeValues().disabledFactors;
    if (!factors)
        factors = {ThemeResources::getDisabledFactor(ThemeNames::LightForegroundFactor),
                   ThemeResources::getDisabledFactor(ThemeNames::LightBackgroundFactor),
                   ThemeResources::getDisabledFactor(ThemeNames::DarkForegroundFactor),
                   ThemeResources::getDisabledFactor(ThemeNames::DarkBackgroundFactor)};

    return foreground ? disabledBy(color, factors->lightForeground, factors->darkForeground)
                      : disabledBy(color, factors->lightBackground, factors->darkBackground);
}

QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush brush)
{
    // An icon that the icon theme does not have yet is null, and may be found later.
    if (icon.isNull() || !QCoreApplication::instance())
        return themedOrRecolored(icon, brush);
    static IconCache sIcons;
    return sIcons.find(icon, brush);
}

} // namespace BRELK::ThemeColorHelper
