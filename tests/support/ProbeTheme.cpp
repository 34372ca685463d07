#include "ProbeTheme.h"

#include <QApplication>
#include <QFont>
#include <QHash>
#include <QIcon>
#include <QMetaEnum>

namespace ProbeTheme {

namespace {

QStringList plainBrushNames()
{
    return QString::fromLatin1(
               "BackgroundBrush BackgroundSubLevel1Brush BackgroundSubLevel2Brush "
               "BackgroundUpLevel1Brush CardBorderBrush ControlBackgroundBrush ControlBorderBrush "
               "ExpanderHeaderBrush ForegroundBrush ForegroundDisabledBrush "
               "ForegroundMouseOverBrush GrooveBackgroundBrush HighContrastBackgroundBrush "
               "HighContrastBorderBrush InputBackgroundActiveBrush InputBackgroundBrush "
               "InputBorderActiveBrush InputBorderBrush InputForegroundBrush "
               "ItemViewAlternateBackgroundBrush ItemViewBackgroundBrush ListBackgroundBrush "
               "ListBorderBrush MainBrush MainSubLevel1Brush PrioritySecondarySubLevel1Brush "
               "PrioritySecondaryUpLevel1Brush SliderThumbNailHoverBrush "
               "SliderThumbNailPressedBrush SwitchEllipseBrush "
               "SwitchForegroundCheckedEllipseBrush TabBackgroundActiveBrush TabBackgroundBrush "
               "TabBorderMouseOverBrush TabForegroundMouseOverBrush")
        .split(QLatin1Char(' '));
}

QStringList colorNames()
{
    QStringList names =
        QString::fromLatin1("BackgroundColor BackgroundUpLevel1Color BackgroundUpLevel2Color "
                            "ForegroundColor ForegroundSubLevel1Color ForegroundUpLevel1Color "
                            "MainColor MainUpLevel1Color StatusConfigColor StatusDangerColor")
            .split(QLatin1Char(' '));
    for (int series = 1; series <= 11; ++series)
        names.append(QStringLiteral("Series%1Color").arg(series, 2, 10, QLatin1Char('0')));
    return names;
}

/// The names of buttons and inputs, composed of what they are, their kind and their state.
QStringList composedBrushNames()
{
    QStringList names;
    for (const QLatin1String base :
         {QLatin1String("Default"), QLatin1String("Checked"), QLatin1String("Unchecked")})
        for (const QLatin1String action :
             {QLatin1String(), QLatin1String("Pressed"), QLatin1String("Hover")})
            for (const QString& kind : kinds())
                for (const QLatin1String part :
                     {QLatin1String("Background"), QLatin1String("Border"),
                      QLatin1String("Foreground")}) {
                    const QString rest = kind + base + action + part + QLatin1String("Brush");
                    names.append(QLatin1String("Button") + rest);
                    names.append(QLatin1String("ToggleButton") + rest);
                    names.append(QLatin1String("Input") + rest);
                }
    return names;
}

/// The colors given away so far, and their names.
QHash<QRgb, QByteArray>& namesByColor()
{
    static QHash<QRgb, QByteArray> sNames;
    return sNames;
}

/// A new color, far from the one before: multiplying by an odd number visits each once. Its
/// channels are multiples of 4, so that it is known after the rounding of a faded icon.
QColor nextColor(const QByteArray& name)
{
    constexpr unsigned Stride = 0x9E3779;
    const auto index = static_cast<unsigned>(namesByColor().size() + 1);
    const unsigned sixBitChannels = index * Stride;
    const QRgb color = 0xff000000 | (sixBitChannels & 0x3f000) << 6 | (sixBitChannels & 0xfc0) << 4
                       | (sixBitChannels & 0x3f) << 2;
    namesByColor().insert(color, name);
    return QColor::fromRgb(color);
}

template <class Value>
QVariantMap valuesWithTwins(QStringList names)
{
    names.removeDuplicates();
    QVariantMap values;
    for (const QString& name : qAsConst(names))
        for (const QString& key : {name, QString(name + QLatin1String("Disabled"))})
            values.insert(key, QVariant::fromValue(Value(nextColor(key.toLatin1()))));
    return values;
}

QVariantMap fonts()
{
    const auto font = [](int pixelSize) {
        QFont sized = QApplication::font();
        sized.setPixelSize(pixelSize);
        return sized;
    };
    return {{QStringLiteral("small"), font(SmallFont)},
            {QStringLiteral("base"), font(BaseFont)},
            {QStringLiteral("medium"), font(MediumFont)},
            {QStringLiteral("large"), font(LargeFont)}};
}

void change(QVariantMap& groups, const QString& path, const QVariant& value)
{
    const QString group = path.section(QLatin1Char('/'), 0, 0);
    const QString name = path.section(QLatin1Char('/'), 1);
    QVariantMap values = groups.value(group).toMap();
    if (value.isValid())
        values.insert(name, value);
    else
        values.remove(name);
    groups.insert(group, values);
}

/// The icons stand flat in the library's resources, where only a fallback path finds them, and
/// without a theme name Qt looks in none.
void findLibraryIcons()
{
    QIcon::setThemeName(QStringLiteral("probe"));
    QIcon::setFallbackSearchPaths({QStringLiteral(":/Icons")});
}

} // namespace

QStringList kinds()
{
    return {QString(),
            QStringLiteral("Highlighted"),
            QStringLiteral("Tarrin"),
            QStringLiteral("OfStatus"),
            QStringLiteral("OfOrder"),
            QStringLiteral("OfType")};
}

void publish(const QVariantMap& changes)
{
    QVariantMap groups{
        {QStringLiteral("colors"), valuesWithTwins<QColor>(colorNames())},
        {QStringLiteral("internalColors"), QVariantMap()},
        {QStringLiteral("brushes"),
         valuesWithTwins<QBrush>(plainBrushNames() + composedBrushNames())},
        {QStringLiteral("internalBrushes"), QVariantMap()},
        {QStringLiteral("fonts"), fonts()},
        {QStringLiteral("opacities"), QVariantMap{{QStringLiteral("RubberBandOpacity"), 0.2}}},
        {QStringLiteral("cornerRadius"), QVariantMap{{QStringLiteral("SmallSize"), SmallRadius},
                                                     {QStringLiteral("BaseSize"), BaseRadius},
                                                     {QStringLiteral("MediumSize"), MediumRadius},
                                                     {QStringLiteral("LargeSize"), LargeRadius}}}};
    for (auto entry = changes.cbegin(); entry != changes.cend(); ++entry)
        change(groups, entry.key(), entry.value());
    qApp->setProperty("theme_var", groups);
    findLibraryIcons();
}

void publishEmpty()
{
    qApp->setProperty("theme_var", QVariantMap());
    findLibraryIcons();
}

QPalette palette()
{
    static const QPalette sPalette = [] {
        const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
        const std::pair<QPalette::ColorGroup, QByteArray> groups[] = {
            {QPalette::Active, "palette."},
            {QPalette::Inactive, "palette.Inactive."},
            {QPalette::Disabled, "palette.Disabled."}};
        QPalette colors;
        for (int role = 0; role < QPalette::NColorRoles; ++role)
            for (const auto& [group, prefix] : groups)
                if (role != QPalette::NoRole)
                    colors.setColor(group, QPalette::ColorRole(role),
                                    nextColor(prefix + roles.valueToKey(role)));
        return colors;
    }();
    return sPalette;
}

QByteArray nameOf(const QColor& color)
{
    if (!color.isValid())
        return QByteArrayLiteral("invalid");
    QByteArray name = namesByColor().value(color.rgb() | 0xff000000);
    if (name.isEmpty())
        name = color.name().toLatin1();
    return color.alpha() == 255 ? name : QByteArray(name + '@' + QByteArray::number(color.alpha()));
}

QByteArray nameOf(const QBrush& brush)
{
    switch (brush.style()) {
    case Qt::NoBrush: return QByteArrayLiteral("none");
    case Qt::SolidPattern: return nameOf(brush.color());
    case Qt::TexturePattern: return QByteArrayLiteral("texture");
    default: break;
    }
    if (!brush.gradient())
        return nameOf(brush.color()) + " pattern " + QByteArray::number(brush.style());
    QByteArrayList stops;
    const QGradientStops gradientStops = brush.gradient()->stops();
    for (const QGradientStop& stop : gradientStops)
        stops.append(nameOf(stop.second));
    return "gradient(" + stops.join(' ') + ')';
}

QByteArray nameOf(const QFont& font)
{
    QByteArray name;
    switch (font.pixelSize()) {
    case SmallFont: name = QByteArrayLiteral("small"); break;
    case BaseFont: name = QByteArrayLiteral("base"); break;
    case MediumFont: name = QByteArrayLiteral("medium"); break;
    case LargeFont: name = QByteArrayLiteral("large"); break;
    case -1: name = QByteArray::number(font.pointSizeF()) + "pt"; break;
    default: name = QByteArray::number(font.pixelSize()) + "px"; break;
    }
    return name + (font.bold() ? " bold" : "") + (font.italic() ? " italic" : "");
}

} // namespace ProbeTheme
