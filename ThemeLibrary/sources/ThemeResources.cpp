#include "ThemeResources.h"

#include "ThemeResources_p.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

namespace BRELK::ThemeResources {

namespace {

constexpr QChar varSeparator = u'/';

QVariantMap readProperty(const QLatin1String& name)
{
    return QCoreApplication::instance()->property(name.data()).toMap();
}

template <class Value>
Value convert(const QVariant& value)
{
    return value.value<Value>();
}

/// A color is no brush, although QVariant would convert it.
template <>
QBrush convert(const QVariant& value)
{
    return value.userType() == QMetaType::QBrush ? value.value<QBrush>() : QBrush();
}

/// A group as it was at its first use. Painting asks for most of its values, so they are hashed and
/// in the type that is asked for.
template <class Value>
class Snapshot
{
public:
    Snapshot(const QLatin1String& property, const QString& group)
    {
        const QVariantMap values = readProperty(property).value(group).toMap();
        for (auto entry = values.begin(); entry != values.end(); ++entry)
            m_values.insert(entry.key(), convert<Value>(entry.value()));
    }

    Value value(const QString& name) const { return m_values.value(name); }

private:
    QHash<QString, Value> m_values;
};

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
    if (!QCoreApplication::instance())
        return {};
    static const Snapshot<QColor> sColors(getThemeVariablePropertyName(), getColorsVarPrefix());
    return sColors.value(name);
}

QBrush getBrush(const QString& name)
{
    if (!QCoreApplication::instance())
        return {};
    static const Snapshot<QBrush> sBrushes(getThemeVariablePropertyName(), getBrushesVarPrefix());
    return sBrushes.value(name);
}

QFont getFont(const QString& name)
{
    if (!QCoreApplication::instance())
        return {};
    static const Snapshot<QFont> sFonts(getThemeVariablePropertyName(), getFontsVarPrefix());
    return sFonts.value(name);
}

double getOpacity(const QString& name)
{
    if (!QCoreApplication::instance())
        return 1.0;
    static const Snapshot<double> sOpacities(getThemeVariablePropertyName(),
                                             getOpacitiesVarPrefix());
    // Deliberate: an unknown name is 0, although the default without an application is 1.
    return sOpacities.value(name);
}

double getCornerRadius(const QString& name)
{
    if (!QCoreApplication::instance())
        return 0.0;
    static const Snapshot<double> sRadii(getThemeVariablePropertyName(),
                                         getCornerRadiusVarPrefix());
    return sRadii.value(name);
}

int getDisabledFactor(const QString& name)
{
    if (!QCoreApplication::instance())
        return 100;
    static const Snapshot<int> sFactors(getInternalThemeVariablePropertyName(),
                                        getDisabledFactorsVarPrefix());
    // Deliberate: an unknown name is 0, although the default without an application is 100.
    return sFactors.value(name);
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
