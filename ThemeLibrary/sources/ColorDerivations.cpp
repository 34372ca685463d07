#include "ColorDerivations.h"

#include "ColorArithmetic.h"
#include "Helpers.h"
#include "NamePattern.h"

#include <algorithm>
#include <array>

namespace BRELK {

namespace {

constexpr int LargestPercentage = 1000;
constexpr double LargestChromaFactor = 10;
constexpr double LargestContrast = 21;
/// Brighter colors than this, of 255, are darkened when disabled.
constexpr int LargestDarkBrightness = 130;

QColor literalColor(const QString& text)
{
    // Qt reads more forms than these; their digits would be easily misread.
    const bool isCode = text.startsWith(u'#');
    if (isCode && text.size() != 4 && text.size() != 7 && text.size() != 9)
        return {};
    return {text};
}

/// The names in `text`, of which each may be a pattern of several.
QStringList words(const QString& text)
{
    constexpr int MostNames = 64;
    if (!text.contains(u' ') && !text.contains(u'{'))
        return text.isEmpty() ? QStringList() : QStringList(text);
    const QStringList patterns = text.simplified().split(u' ', Qt::SkipEmptyParts);
    if (!text.contains(u'{'))
        return patterns;
    QStringList names;
    for (const QString& pattern : patterns) {
        const QStringList expanded = expandNamePattern(pattern, MostNames);
        names += expanded.isEmpty() ? QStringList{pattern} : expanded;
    }
    return names;
}

/// Derives a color in steps, one for each attribute.
class Derivation
{
public:
    Derivation(const ThemeElement& element, const ThemeColors& colors, bool& ok)
        : m_element(element), m_colors(colors), m_ok(ok)
    { }

    QColor named(const QString& text) const;
    QColor applied(const QColor& color) const;

private:
    using Step = QColor (Derivation::*)(const QColor&, const QString&) const;

    QColor lighter(const QColor& color, const QString& text) const;
    QColor darker(const QColor& color, const QString& text) const;
    QColor mixed(const QColor& color, const QString& text) const;
    QColor withLightness(const QColor& color, const QString& text) const;
    QColor withChroma(const QColor& color, const QString& text) const;
    QColor moreReadable(const QColor& color, const QString& text) const;
    QColor withContrast(const QColor& color, const QString& text) const;
    QColor withAlpha(const QColor& color, const QString& text) const;

    QVector<QColor> grounds() const;
    double number(const QString& text, double smallest, double largest) const;
    void checkPairs() const;

    const ThemeElement& m_element;
    const ThemeColors& m_colors;
    bool& m_ok;

public:
    struct Attribute
    {
        QLatin1String name;
        Step step; ///< null: it belongs to another one
    };

    /// In the order in which they are applied, whatever the order in the file.
    static const std::array<Attribute, 10> Attributes;
};

const std::array<Derivation::Attribute, 10> Derivation::Attributes{
    {{QLatin1String("lighter"), &Derivation::lighter},
     {QLatin1String("darker"), &Derivation::darker},
     {QLatin1String("mix"), &Derivation::mixed},
     {QLatin1String("share"), nullptr},
     {QLatin1String("lightness"), &Derivation::withLightness},
     {QLatin1String("chroma"), &Derivation::withChroma},
     {QLatin1String("or"), &Derivation::moreReadable},
     {QLatin1String("contrast"), &Derivation::withContrast},
     {QLatin1String("against"), nullptr},
     {QLatin1String("alpha"), &Derivation::withAlpha}}};

QColor Derivation::named(const QString& text) const
{
    const auto found = m_colors.constFind(text);
    const QColor color = found == m_colors.constEnd() ? literalColor(text) : *found;
    if (!color.isValid() && m_ok) {
        m_element.reject(quoted(text)
                         + QLatin1String(" is neither a color of the theme nor a color value"));
        m_ok = false;
    }
    return color;
}

QColor Derivation::applied(const QColor& color) const
{
    QColor result = color;
    checkPairs();
    for (const Attribute& attribute : Attributes) {
        if (m_ok && attribute.step && m_element.hasAttribute(attribute.name))
            result = (this->*attribute.step)(result, m_element.getAttribute(attribute.name));
    }
    return m_ok ? result : QColor();
}

/// Reports attributes that say nothing without another one.
void Derivation::checkPairs() const
{
    const auto has = [this](const char* name) {
        return m_element.hasAttribute(QLatin1String(name));
    };
    const auto reject = [this](const char* problem) {
        m_element.reject(QLatin1String(problem));
        m_ok = false;
    };
    if (has("mix") != has("share"))
        reject("mix and share need each other");
    else if (has("against") != (has("contrast") || has("or")))
        reject(has("against") ? "against needs contrast or or" : "contrast and or need against");
}

QVector<QColor> Derivation::grounds() const
{
    return readGrounds(m_element, m_colors, m_ok);
}

double Derivation::number(const QString& text, double smallest, double largest) const
{
    return m_element.readNumber(text, smallest, largest, m_ok);
}

QColor Derivation::lighter(const QColor& color, const QString& text) const
{
    return color.lighter(m_element.readInteger(text, 1, LargestPercentage, m_ok));
}

QColor Derivation::darker(const QColor& color, const QString& text) const
{
    return color.darker(m_element.readInteger(text, 1, LargestPercentage, m_ok));
}

QColor Derivation::mixed(const QColor& color, const QString& text) const
{
    const double share = number(m_element.getAttribute(QLatin1String("share")), 0, 1);
    const QColor other = named(text.trimmed());
    return m_ok ? ColorArithmetic::mixed(color, other, share) : QColor();
}

QColor Derivation::withLightness(const QColor& color, const QString& text) const
{
    const QString trimmed = text.trimmed();
    const bool isShift = trimmed.startsWith(u'+') || trimmed.startsWith(u'-');
    const double lightness = number(text, isShift ? -1 : 0, 1);
    const double start = isShift ? ColorArithmetic::toOklab(color).lightness : 0;
    return ColorArithmetic::withLightness(color, start + lightness);
}

QColor Derivation::withChroma(const QColor& color, const QString& text) const
{
    return ColorArithmetic::withChromaScaled(color, number(text, 0, LargestChromaFactor));
}

QColor Derivation::moreReadable(const QColor& color, const QString& text) const
{
    const QColor other = named(text.trimmed());
    const QVector<QColor> on = grounds();
    if (!m_ok)
        return {};
    // With a contrast to reach, the first one that has it is as good as any.
    const bool isGoodEnough =
        m_element.hasAttribute(QLatin1String("contrast"))
        && ColorArithmetic::leastContrast(color, on) >= readContrast(m_element, m_colors, m_ok);
    return isGoodEnough ? color : ColorArithmetic::moreReadable(color, other, on);
}

QColor Derivation::withContrast(const QColor& color, const QString& text) const
{
    const double wanted = readContrast(m_element, m_colors, m_ok);
    const QVector<QColor> on = grounds();
    if (!m_ok)
        return {};
    const QColor result = ColorArithmetic::withContrast(color, on, wanted);
    const double reached = ColorArithmetic::leastContrast(result, on);
    if (reached < wanted)
        m_element.report(QLatin1String("no lightness gives it a contrast of ") + text.trimmed()
                             + QLatin1String(" to ")
                             + quoted(m_element.getAttribute(QLatin1String("against"))),
                         QLatin1String("it has ") + QString::number(reached, 'f', 2));
    return result;
}

QColor Derivation::withAlpha(const QColor& color, const QString& text) const
{
    QColor result = color;
    result.setAlphaF(number(text, 0, 1));
    return result;
}

} // namespace

double readContrast(const ThemeElement& element, const ThemeColors& colors, bool& ok)
{
    const QString text = element.getAttribute(QLatin1String("contrast"));
    return text == QLatin1String("words") ? colors.wordContrast
                                          : element.readNumber(text, 1, LargestContrast, ok);
}

QVector<QColor> readGrounds(const ThemeElement& element, const ThemeColors& colors, bool& ok)
{
    const Derivation derivation(element, colors, ok);
    QVector<QColor> grounds;
    for (const QString& name : words(element.getAttribute(QLatin1String("against"))))
        grounds += derivation.named(name);
    return grounds;
}

QColor disabledBy(const QColor& color, int lightFactor, int darkFactor)
{
    return Helpers::getPerceivedBrightness(color) > LargestDarkBrightness
               ? color.darker(lightFactor)
               : color.lighter(darkFactor);
}

const std::vector<QLatin1String>& derivationAttributes()
{
    static const std::vector<QLatin1String> sNames = [] {
        std::vector<QLatin1String> names;
        for (const auto& attribute : Derivation::Attributes)
            names.push_back(attribute.name);
        return names;
    }();
    return sNames;
}

bool hasDerivation(const ThemeElement& element)
{
    // Most elements have nothing but a name.
    if (element.countAttributes() < 2 && element.hasAttribute(QLatin1String("name")))
        return false;
    const auto& names = derivationAttributes();
    return std::any_of(names.begin(), names.end(),
                       [&element](QLatin1String name) { return element.hasAttribute(name); });
}

QStringList namedColors(const ThemeElement& element)
{
    QStringList names{element.getText()};
    if (!hasDerivation(element))
        return names;
    for (const QLatin1String attribute :
         {QLatin1String("mix"), QLatin1String("or"), QLatin1String("against")})
        names += words(element.getAttribute(attribute));
    return names;
}

QColor readColor(const ThemeElement& element, const ThemeColors& colors, bool& ok)
{
    const QColor color = Derivation(element, colors, ok).named(element.getText());
    return ok && hasDerivation(element) ? derivedColor(element, color, colors, ok) : color;
}

QColor derivedColor(const ThemeElement& element, QColor color, const ThemeColors& colors, bool& ok)
{
    return Derivation(element, colors, ok).applied(color);
}

} // namespace BRELK
