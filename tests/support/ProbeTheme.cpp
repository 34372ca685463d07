#include "ProbeTheme.h"

#include "AllThemeNames.h"

#include <QtWidgets>

#include <algorithm>
#include <limits>

namespace ProbeTheme {

namespace {

/// The colors given away so far, and their names.
QHash<QRgb, QByteArray>& namesByColor()
{
    static QHash<QRgb, QByteArray> sNames;
    return sNames;
}

/// The named color that `color` is but for the rounding of translucent pixels, or else itself.
/// Colors are given away in the middle of cells, so that rounding does not lead to another one.
QRgb nearestNamed(QRgb color)
{
    const QRgb middle = (color & 0xfff8f8f8) | 0x040404;
    return namesByColor().contains(middle) ? middle : color;
}

QColor nextColor(const QByteArray& name)
{
    // Multiplying by an odd number visits each of the cells once, and none after its neighbour.
    constexpr unsigned Stride = 0x4F1B;
    static unsigned sIndex = 0;
    const unsigned cell = ++sIndex * Stride;
    const QRgb color =
        qRgb(int(cell >> 10 & 31) * 8 + 4, int(cell >> 5 & 31) * 8 + 4, int(cell & 31) * 8 + 4);
    namesByColor().insert(color, name);
    return QColor::fromRgb(color);
}

template <class Value>
QVariantMap valuesWithTwins(const QStringList& names)
{
    QVariantMap values;
    for (const QString& name : names)
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

/// The icons stand flat in the library's resources, where only a fallback path finds them, and
/// without a theme name Qt looks in none.
void findLibraryIcons()
{
    QIcon::setThemeName(QStringLiteral("probe"));
    QIcon::setFallbackSearchPaths({QStringLiteral(":/Icons")});
}

/// How much each pixel covers of its own, as far as the most solid one does.
QByteArray shapeOf(const QImage& picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    QByteArray shape;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            shape.append(char(qAlpha(image.pixel(x, y)) / 2));
    const int most = shape.isEmpty() ? 0 : *std::max_element(shape.cbegin(), shape.cend());
    for (char& cover : shape)
        cover = char(cover * 100 / qMax(1, most));
    return shape;
}

int difference(const QByteArray& shape, const QByteArray& other)
{
    if (shape.size() != other.size())
        return std::numeric_limits<int>::max();
    int sum = 0;
    for (int i = 0; i < shape.size(); ++i)
        sum += std::abs(shape.at(i) - other.at(i));
    return sum;
}

/// The library's icons by their shapes in this size.
const QMap<QByteArray, QByteArray>& iconsOf(const QSize& size)
{
    static QMap<QPair<int, int>, QMap<QByteArray, QByteArray>> sIcons;
    auto& icons = sIcons[{size.width(), size.height()}];
    if (icons.isEmpty())
        for (const QFileInfo& icon : QDir(QStringLiteral(":/Icons")).entryInfoList())
            icons.insert(shapeOf(QIcon(icon.filePath()).pixmap(size).toImage()),
                         icon.completeBaseName().toLatin1());
    return icons;
}

} // namespace

void useFont()
{
    QFontDatabase::addApplicationFont(QStringLiteral(VARN_PROBE_FONT));
    QFont font(QStringLiteral("Probe"));
    font.setPixelSize(16);
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
}

void publish()
{
    const QVariantMap groups{
        {QStringLiteral("colors"), valuesWithTwins<QColor>(AllThemeNames::colors())},
        {QStringLiteral("internalColors"), QVariantMap()},
        {QStringLiteral("brushes"), valuesWithTwins<QBrush>(AllThemeNames::brushes())},
        {QStringLiteral("internalBrushes"), QVariantMap()},
        {QStringLiteral("fonts"), fonts()},
        {QStringLiteral("opacities"), QVariantMap{{QStringLiteral("RubberBandOpacity"), 0.2}}},
        {QStringLiteral("cornerRadius"), QVariantMap{{QStringLiteral("SmallSize"), SmallRadius},
                                                     {QStringLiteral("BaseSize"), BaseRadius},
                                                     {QStringLiteral("MediumSize"), MediumRadius},
                                                     {QStringLiteral("LargeSize"), LargeRadius}}}};
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

QPixmap pixmap(const QColor& color)
{
    QPixmap filled(64, 64);
    filled.fill(color);
    return filled;
}

QPixmap pixmapOn()
{
    const QPixmap whole = pixmap();
    QPixmap half(whole.size());
    half.fill(Qt::transparent);
    QPainter(&half).drawPixmap(0, 0, whole, 0, 0, whole.width(), whole.height() / 2);
    return half;
}

QByteArray nameOf(const QColor& color)
{
    QByteArray name = namesByColor().value(color.rgb() | 0xff000000);
    if (name.isEmpty())
        name = color.name().toLatin1();
    return color.alpha() == 255 ? name : QByteArray(name + '@' + QByteArray::number(color.alpha()));
}

QByteArray nameOf(const QBrush& brush)
{
    return brush.style() == Qt::NoBrush ? QByteArrayLiteral("none") : nameOf(brush.color());
}

QByteArray nameOf(const QFont& font)
{
    const QHash<int, QByteArray> names{{SmallFont, "small"},
                                       {BaseFont, "base"},
                                       {MediumFont, "medium"},
                                       {LargeFont, "large"},
                                       {-1, QByteArray::number(font.pointSizeF()) + "pt"}};
    return names.value(font.pixelSize(), QByteArray::number(font.pixelSize()) + "px")
           + (font.bold() ? " bold" : "") + (font.italic() ? " italic" : "");
}

QByteArray nameOf(const QImage& picture)
{
    constexpr int LeastAlpha = 32;
    const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
    int alpha = LeastAlpha;
    QMap<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) > alpha)
                counts.clear();
            alpha = qMax(alpha, qAlpha(pixel));
            if (qAlpha(pixel) == alpha)
                ++counts[pixel | 0xff000000];
        }
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return most == counts.cend() ? QByteArrayLiteral("none") : nameOf(nearestNamed(most.key()));
}

QByteArray iconOf(const QImage& picture)
{
    static QHash<QByteArray, QByteArray> sNames;
    const QByteArray shape = shapeOf(picture);
    const auto isEven = [](const QByteArray& part) {
        return part.count(part.at(0)) == part.size();
    };
    if (isEven(shape.left(shape.size() / 2)) && isEven(shape.mid(shape.size() / 2)))
        return isEven(shape) ? "own" : "own-on";
    QByteArray& name = sNames[shape];
    if (name.isEmpty()) {
        name = "unknown";
        int least = picture.width() * picture.height() * 2; // the rounding of faded ones
        const auto& icons = iconsOf(picture.size());
        for (auto icon = icons.cbegin(); icon != icons.cend(); ++icon)
            if (const int distance = difference(shape, icon.key()); distance < least) {
                least = distance;
                name = icon.value();
            }
    }
    return name;
}

} // namespace ProbeTheme
