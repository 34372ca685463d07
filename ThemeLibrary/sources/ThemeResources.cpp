#include "ThemeResources.h"

#include "ThemeResources_p.h"
#include "ThemeValues.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace BRELK::ThemeResources {

namespace {

constexpr QChar varSeparator = u'/';

QVariantMap readProperty(const QLatin1String& name)
{
    return QCoreApplication::instance()->property(name.data()).toMap();
}

} // namespace

const QLatin1String& getThemeVariablePropertyName()
{
    static const QLatin1String sName("theme_var");
    return sName;
}

const QLatin1String& getInternalThemeVariablePropertyName()
{
    static const QLatin1String sName("theme_var_internal");
    return sName;
}

const QString& getColorsVarPrefix()
{
    static const QString sPrefix = QStringLiteral("colors");
    return sPrefix;
}

const QString& getInternalColorsVarPrefix()
{
    static const QString sPrefix = QStringLiteral("internalColors");
    return sPrefix;
}

const QString& getBrushesVarPrefix()
{
    static const QString sPrefix = QStringLiteral("brushes");
    return sPrefix;
}

const QString& getInternalBrushesVarPrefix()
{
    static const QString sPrefix = QStringLiteral("internalBrushes");
    return sPrefix;
}

const QString& getFontsVarPrefix()
{
    static const QString sPrefix = QStringLiteral("fonts");
    return sPrefix;
}

const QString& getOpacitiesVarPrefix()
{
    static const QString sPrefix = QStringLiteral("opacities");
    return sPrefix;
}

const QString& getCornerRadiusVarPrefix()
{
    static const QString sPrefix = QStringLiteral("cornerRadius");
    return sPrefix;
}

const QString& getDisabledFactorsVarPrefix()
{
    static const QString sPrefix = QStringLiteral("factors");
    return sPrefix;
}

QVariantMap themeVariables()
{
    return readProperty(getThemeVariablePropertyName());
}

QVariant findVariable(const QVariantMap& variables, const QString& path,
                      const QVariant& defaultValue)
{
    QStringList parts = path.split(varSeparator);
    QVariant current = variables.value(parts.takeFirst());
    // Deliberate: parts that follow a plain value are ignored.
    while (!parts.isEmpty() && current.userType() == QMetaType::QVariantMap)
        current = current.toMap().value(parts.takeFirst());
    return current.isValid() ? current : defaultValue;
}

QVariant getThemeVar(const QString& path, const QVariant& defaultValue)
{
    return findVariable(themeVariables(), path, defaultValue);
}

QColor getColor(const QString& name)
{
    return themeValues().colors.value(name);
}

QBrush getBrush(const QString& name)
{
    return themeValues().brushes.value(name);
}

QFont getFont(const QString& name)
{
    return themeValues().fonts.value(name);
}

double getOpacity(const QString& name)
{
    if (!QCoreApplication::instance())
        return 1.0;
    // Deliberate: an unknown name is 0, although the default without an application is 1.
    return themeValues().opacities.value(name);
}

double getCornerRadius(const QString& name)
{
    return themeValues().radii.value(name);
}

int getDisabledFactor(const QString& name)
{
    if (!QCoreApplication::instance())
        return 100;
    // Deliberate: an unknown name is 0, although the default without an application is 100.
    return themeValues().factors.value(name);
}

QStringList getColors(const QRegularExpression& re)
{
    const QStringList names = getThemeVar(getColorsVarPrefix(), {}).toMap().keys();
    return names.filter(re);
}

QString getColorKey(const QColor& color)
{
    if (!QCoreApplication::instance())
        return {};
    return getColorOrBrushKey(color, themeVariables().value(getColorsVarPrefix()).toMap());
}

QString getBrushKey(const QBrush& brush)
{
    if (!QCoreApplication::instance())
        return {};
    return getColorOrBrushKey(brush, themeVariables().value(getBrushesVarPrefix()).toMap());
}

QString getColorOrBrushKey(const QVariant& value, const QVariantMap& map)
{
    QString first;
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        if (entry.value() != value)
            continue;
        const QString& key = entry.key();
        if (key.startsWith(QLatin1String("Foreground")) || key.startsWith(QLatin1String("Main")))
            return key;
        if (first.isNull())
            first = key;
    }
    return first;
}

} // namespace BRELK::ThemeResources
