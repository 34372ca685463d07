#include "ThemeConfigurationReader.h"

#include "ColorArithmetic.h"
#include "ThemeNames.h"
#include "ThemeResolvers.h"
#include "ThemeResources.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace BRELK {

/// What the files of a theme define, before any of it is evaluated.
struct ThemeDefinitions
{
    ThemeEntries factors;
    ThemeEntries colors;
    ThemeEntries disabledColors;
    ThemeEntries brushes;
    ThemeEntries opacities;
    ThemeEntries radii;
    ThemeEntries fontSettings;
    ThemeEntries rootSettings;
    QStringList families;
};

namespace {

/// Bounds on what a hostile file can make of patterns of names.
constexpr int MostNamesOfElement = 256;
constexpr int MostNames = 4000;
constexpr int LargestFactor = 1000;
/// Leaves colors as they are.
constexpr int NoFactor = 100;
constexpr int LargestRadius = 1000;
constexpr double SmallestFontSize = 1;
constexpr double LargestFontSize = 500;
constexpr double DefaultRubberBandOpacity = 0.25;

struct Size
{
    double defaultFontScale;
    QLatin1String tag;
    ThemeFont::ThemeFontId font;
    int defaultRadius;
};

constexpr Size Sizes[] = {{0.9, ThemeNames::SmallSize.text, ThemeFont::SMALL_FONT, 2},
                          {1.0, ThemeNames::BaseSize.text, ThemeFont::BASE_FONT, 4},
                          {1.2, ThemeNames::MediumSize.text, ThemeFont::MEDIUM_FONT, 6},
                          {1.5, ThemeNames::LargeSize.text, ThemeFont::LARGE_FONT, 8}};

bool isSize(const QString& tag)
{
    const auto hasTag = [&tag](const Size& size) { return tag == size.tag; };
    return std::any_of(std::begin(Sizes), std::end(Sizes), hasTag);
}

struct Weight
{
    const char* name;
    QFont::Weight weight;
};

constexpr Weight Weights[] = {
    {"Thin", QFont::Thin},     {"ExtraLight", QFont::ExtraLight}, {"Light", QFont::Light},
    {"Normal", QFont::Normal}, {"Medium", QFont::Medium},         {"DemiBold", QFont::DemiBold},
    {"Bold", QFont::Bold},     {"ExtraBold", QFont::ExtraBold},   {"Black", QFont::Black}};

const QLatin1String WordsAttribute("words");

bool isName(const QString& name)
{
    const auto isForbidden = [](QChar c) { return c.isSpace() || c == u'/' || c == u'@'; };
    return !name.isEmpty() && std::none_of(name.begin(), name.end(), isForbidden);
}

bool readInternal(const ThemeElement& element, bool& ok)
{
    const QString text = element.getAttribute(QLatin1String("internal"));
    const bool isTrue = text == QLatin1String("true");
    if (!isTrue && !text.isEmpty() && text != QLatin1String("false")) {
        element.reject(quoted(text) + QLatin1String(" for internal is neither true nor false"));
        ok = false;
    }
    return isTrue;
}

void addNamed(ThemeEntries& entries, const ThemeElement& element, int level)
{
    const QString pattern = element.getAttribute(QLatin1String("name"));
    const int most = std::min(MostNamesOfElement, MostNames - entries.size());
    const std::vector<NamedThemeElement> names = element.spellNames(most);
    if (names.empty() && !pattern.isEmpty()) {
        element.reject(
            QStringLiteral("the braces in its name do not match, or there are too many names"));
        return;
    }
    const auto isNamed = [](const NamedThemeElement& named) { return !named.name.isEmpty(); };
    if (!isName(pattern) || !std::all_of(names.begin(), names.end(), isNamed)) {
        element.reject(QStringLiteral("it needs a name without blanks, \"/\" and \"@\""));
        return;
    }
    bool ok = true;
    const bool internal = readInternal(element, ok);
    if (!ok)
        return;
    for (const NamedThemeElement& named : names)
        entries.add(named.name, {named.element, level, internal});
}

void collectNamed(ThemeEntries& entries, const ThemeElement& list, const char* tag, int level)
{
    list.checkAttributes({});
    for (const ThemeElement& element : list.getChildren()) {
        if (element.getTag() == QLatin1String(tag))
            addNamed(entries, element, level);
        else
            element.rejectUnknown();
    }
}

void collectBrushes(ThemeEntries& entries, const ThemeElement& list, int level)
{
    list.checkAttributes({});
    for (const ThemeElement& element : list.getChildren()) {
        if (ThemeBrushResolver::isBrush(element.getTag()))
            addNamed(entries, element, level);
        else
            element.rejectUnknown();
    }
}

/// How the theme derives the disabled forms of a group of colors.
void collectDisabled(ThemeEntries& entries, const ThemeElement& element, int level)
{
    const QString of = element.getAttribute(QLatin1String("of"));
    element.checkTextElement({"of"}, derivationAttributes());
    if (of == QLatin1String("foreground") || of == QLatin1String("background"))
        entries.add(of, {element, level});
    else
        element.reject(quoted(of) + QLatin1String(" for of is neither foreground nor background"));
}

void collectPalette(ThemeDefinitions& definitions, const ThemeElement& palette, int level)
{
    palette.checkAttributes({});
    for (const ThemeElement& list : palette.getChildren()) {
        if (list.getTag() == QLatin1String("ColorsList"))
            collectNamed(definitions.colors, list, "Color", level);
        else if (list.getTag() == QLatin1String("BrushesList"))
            collectBrushes(definitions.brushes, list, level);
        else if (list.getTag() == QLatin1String("DisabledColor"))
            collectDisabled(definitions.disabledColors, list, level);
        else
            list.rejectUnknown();
    }
}

void collectFont(ThemeDefinitions& definitions, const ThemeElement& font, int level)
{
    font.checkAttributes({});
    QStringList families;
    for (const ThemeElement& element : font.getChildren()) {
        const QString tag = element.getTag();
        const bool isFamily = tag == QLatin1String("Family");
        if (!isFamily && !isSize(tag) && tag != QLatin1String("Weight")) {
            element.rejectUnknown();
            continue;
        }
        element.checkTextElement({});
        if (!isFamily)
            definitions.fontSettings.add(tag, {element, level});
        else if (element.getText().isEmpty())
            element.reject(QStringLiteral("it names no font"));
        else
            families.append(element.getText());
    }
    if (definitions.families.isEmpty())
        definitions.families = families;
}

void collectRadii(ThemeEntries& entries, const ThemeElement& list, int level)
{
    list.checkAttributes({});
    for (const ThemeElement& element : list.getChildren()) {
        if (isSize(element.getTag())) {
            element.checkTextElement({});
            entries.add(element.getTag(), {element, level});
        } else {
            element.rejectUnknown();
        }
    }
}

void collect(ThemeDefinitions& definitions, const ThemeDocument& document, int level)
{
    const ThemeElement root = document.getRoot();
    root.checkAttributes({"extends", "words"});
    if (root.hasAttribute(WordsAttribute))
        definitions.rootSettings.add(WordsAttribute, {root, level});
    for (const ThemeElement& section : root.getChildren()) {
        const QString tag = section.getTag();
        if (tag == QLatin1String("Factors"))
            collectNamed(definitions.factors, section, "Factor", level);
        else if (tag == QLatin1String("Palette"))
            collectPalette(definitions, section, level);
        else if (tag == QLatin1String("Font"))
            collectFont(definitions, section, level);
        else if (tag == QLatin1String("Opacities"))
            collectNamed(definitions.opacities, section, "Opacity", level);
        else if (tag == QLatin1String("CornerRadius"))
            collectRadii(definitions.radii, section, level);
        else
            section.rejectUnknown();
    }
}

QFont::Weight readWeight(const ThemeElement& element, bool& ok)
{
    const QString text = element.getText();
    for (const Weight& weight : Weights) {
        if (text == QLatin1String(weight.name))
            return weight.weight;
    }
    element.reject(quoted(text) + QLatin1String(" is no weight"));
    ok = false;
    return QFont::Normal;
}

/// The first of `families` that is installed; empty when none is.
QString firstInstalled(const QStringList& families)
{
    const QFontDatabase database;
    const QStringList installed = database.families();
    const auto isListed = [&installed](const QString& family) {
        return installed.contains(family, Qt::CaseInsensitive);
    };
    // Whether other names stand for a font is only asked when none is listed, as it takes long.
    auto found = std::find_if(families.begin(), families.end(), isListed);
    if (found == families.end())
        found = std::find_if(families.begin(), families.end(), [&database](const QString& family) {
            return database.hasFamily(family);
        });
    return found == families.end() ? QString() : *found;
}

/// The first of `families` that is installed, otherwise the platform's font.
QFont chooseFont(const QStringList& families)
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return families.isEmpty() ? QFont() : QFont(families.first());
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    const QString family = firstInstalled(families);
    if (!family.isEmpty())
        font.setFamily(family);
    return font;
}

double toHalfPoint(double size)
{
    return std::round(size * 2) / 2;
}

} // namespace

ThemeConfigurationReader::ThemeConfigurationReader(const QString& path, DisabledColor disabled)
{
    const ThemeDocuments documents = readThemeDocuments(path, QStringLiteral("Config"));
    m_status = Status(documents.front()->getStatus());
    ThemeDefinitions definitions;
    if (m_status == NO_ERROR) {
        for (size_t level = 0; level < documents.size(); ++level)
            collect(definitions, *documents.at(level), int(level));
        readWordContrast(definitions.rootSettings);
        readOpacities(definitions.opacities);
        readCornerRadius(definitions.radii);
    }
    readFont(definitions.fontSettings, definitions.families);
    // Disabled colors depend on the factors, so these come first.
    readDisabledFactors(definitions.factors);
    readPalette(definitions, disabled);
}

void ThemeConfigurationReader::readDisabledFactors(const ThemeEntries& entries)
{
    const auto read = [](const ThemeElement& element, bool& ok) {
        element.checkTextElement({"name", "keep", "contrast", "against"});
        return element.readInteger(element.getText(), 0, LargestFactor, ok);
    };
    for (int place = 0; place < entries.size(); ++place) {
        const QString& name = entries.getName(place);
        const int factor = evaluate(entries, name, -1, read);
        if (factor >= 0)
            m_disabledFactors.insert(name, factor);
    }
    publishDisabledFactors();
}

/// Makes factors smaller that would take too much contrast from the color that they say to keep.
void ThemeConfigurationReader::limitDisabledFactors(const ThemeEntries& entries,
                                                    const ThemeColors& colors)
{
    constexpr int Step = 5;
    for (auto factor = m_disabledFactors.begin(); factor != m_disabledFactors.end(); ++factor) {
        const ThemeElement& element = entries.getDefinition(factor.key())->element;
        const QString name = element.getAttribute(QLatin1String("keep"));
        if (name.isEmpty())
            continue;
        bool ok = true;
        const QColor color = colors.value(name);
        const double contrast = readContrast(element, colors, ok);
        const QVector<QColor> grounds = readGrounds(element, colors, ok);
        const auto keeps = [&](int percent) {
            return ColorArithmetic::leastContrast(disabledBy(color, percent, percent), grounds)
                   >= contrast;
        };
        while (ok && *factor > NoFactor && !keeps(*factor))
            *factor = std::max(*factor - Step, NoFactor);
    }
    publishDisabledFactors();
}

void ThemeConfigurationReader::publishDisabledFactors() const
{
    QVariantMap factors;
    for (auto factor = m_disabledFactors.begin(); factor != m_disabledFactors.end(); ++factor)
        factors.insert(factor.key(), *factor);
    if (QCoreApplication* app = QCoreApplication::instance())
        app->setProperty(ThemeResources::getInternalThemeVariablePropertyName().data(),
                         QVariantMap{{ThemeResources::getDisabledFactorsVarPrefix(), factors}});
}

void ThemeConfigurationReader::readPalette(ThemeDefinitions& definitions,
                                           const DisabledColor& disabled)
{
    const DisabledColors disabledColors(definitions.disabledColors, disabled);
    definitions.colors.addTwins();
    ThemeColorResolver colorResolver(definitions.colors, disabledColors, m_wordContrast);
    colorResolver.resolve();
    colorResolver.splitColors(m_colors, m_internalColors);
    limitDisabledFactors(definitions.factors, colorResolver.getColors());

    definitions.brushes.addTwins();
    ThemeBrushResolver brushResolver(definitions.brushes, definitions.colors,
                                     colorResolver.getColors(), disabledColors);
    brushResolver.resolve();
    brushResolver.splitBrushes(m_brushes, m_internalBrushes);
}

void ThemeConfigurationReader::readWordContrast(const ThemeEntries& entries)
{
    constexpr double LargestContrast = 21;
    const auto read = [](const ThemeElement& root, bool& ok) {
        return root.readNumber(root.getAttribute(WordsAttribute), 1, LargestContrast, ok);
    };
    m_wordContrast = evaluate(entries, WordsAttribute, DefaultWordContrast, read);
}

void ThemeConfigurationReader::readOpacities(const ThemeEntries& entries)
{
    const auto read = [](const ThemeElement& element, bool& ok) {
        element.checkTextElement({"name"});
        return element.readNumber(element.getText(), 0, 1, ok);
    };
    m_opacities.insert(ThemeNames::RubberBandOpacity, DefaultRubberBandOpacity);
    for (int place = 0; place < entries.size(); ++place) {
        const QString& name = entries.getName(place);
        const double opacity = evaluate(entries, name, -1.0, read);
        if (opacity >= 0)
            m_opacities.insert(name, opacity);
    }
}

void ThemeConfigurationReader::readCornerRadius(const ThemeEntries& entries)
{
    const auto read = [](const ThemeElement& element, bool& ok) {
        return element.readInteger(element.getText(), 0, LargestRadius, ok);
    };
    for (const Size& size : Sizes) {
        const QString name = size.tag;
        m_cornerRadius.insert(name, evaluate(entries, name, size.defaultRadius, read));
    }
}

void ThemeConfigurationReader::readFont(const ThemeEntries& settings, const QStringList& families)
{
    QFont font = chooseFont(families);
    font.setWeight(evaluate(settings, QStringLiteral("Weight"), QFont::Normal, readWeight));
    const auto read = [](const ThemeElement& element, bool& ok) {
        return element.readNumber(element.getText(), SmallestFontSize, LargestFontSize, ok);
    };
    const auto readSize = [&settings, &read](QLatin1String tag, double missing) {
        return evaluate(settings, tag, missing, read);
    };
    // The platform's font may be sized in pixels.
    const double platformSize =
        font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    const double baseSize = readSize(ThemeNames::BaseSize.text, platformSize);
    for (const Size& size : Sizes) {
        const bool isBase = size.font == ThemeFont::BASE_FONT;
        font.setPointSizeF(
            isBase ? baseSize : readSize(size.tag, toHalfPoint(baseSize * size.defaultFontScale)));
        m_font.setFont(size.font, font);
    }
}

} // namespace BRELK
