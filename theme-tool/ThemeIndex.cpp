#include "ThemeIndex.h"

#include "ColorDerivations.h"
#include "NamePattern.h"

using namespace BRELK;

namespace ThemeTool {

namespace {

constexpr int MostNames = 256;

QStringList colorsOf(const ThemeElement& element)
{
    if (element.getTag() != QLatin1String("LinearGradientBrush"))
        return namedColors(element);
    QStringList named;
    for (const ThemeElement& stop : element.getChildren())
        named += namedColors(stop);
    return named;
}

QString recipeOf(const ThemeElement& element)
{
    QString text = element.getText();
    for (const QString& attribute : derivationAttributes()) {
        if (element.hasAttribute(attribute))
            text += QLatin1Char(' ') + attribute + QLatin1Char('=')
                    + quoted(element.getAttribute(attribute));
    }
    return text;
}

} // namespace

ThemeIndex::ThemeIndex(const QString& directory)
{
    // The readers report what is wrong; this only looks around.
    const ThemeProblemRecorder silence;
    readConfiguration(directory + QLatin1String("/config.xml"));
    readMapping(directory + QLatin1String("/qpaletteMapping.xml"));
}

const Entry* ThemeIndex::find(const QString& name) const
{
    for (const auto* entries : {&m_brushes, &m_colors}) {
        const auto found = entries->constFind(name);
        if (found != entries->constEnd())
            return &*found;
    }
    return nullptr;
}

void ThemeIndex::addEntries(const ThemeElement& element, int level)
{
    const QString tag = element.getTag();
    Entry entry;
    entry.isBrush = tag != QLatin1String("Color");
    entry.isInternal = element.getAttribute(QStringLiteral("internal")) == QLatin1String("true");
    entry.isGradient = tag == QLatin1String("LinearGradientBrush");
    entry.level = level;
    entry.place = element.place();
    entry.recipe = recipeOf(element);
    entry.named = colorsOf(element);
    for (const QString& named : qAsConst(entry.named))
        m_named.insert(named);
    const QString pattern = element.getAttribute(QStringLiteral("name"));
    for (const QString& name : expandNamePattern(pattern, MostNames)) {
        entry.name = name;
        auto& entries = entry.isBrush ? m_brushes : m_colors;
        if (!entries.contains(name))
            entries.insert(name, entry);
    }
}

void ThemeIndex::readPalette(const ThemeElement& palette, int level)
{
    for (const ThemeElement& list : palette.getChildren()) {
        for (const QString& named : namedColors(list))
            m_named.insert(named);
        for (const ThemeElement& element : list.getChildren())
            addEntries(element, level);
    }
}

void ThemeIndex::readFactors(const ThemeElement& factors)
{
    for (const ThemeElement& factor : factors.getChildren()) {
        m_named.insert(factor.getAttribute(QStringLiteral("keep")));
        for (const QString& named : namedColors(factor))
            m_named.insert(named);
    }
}

void ThemeIndex::readConfiguration(const QString& path)
{
    const ThemeDocuments documents = readThemeDocuments(path, QStringLiteral("Config"));
    for (size_t level = 0; level < documents.size(); ++level) {
        for (const ThemeElement& section : documents.at(level)->getRoot().getChildren()) {
            if (section.getTag() == QLatin1String("Palette"))
                readPalette(section, int(level));
            else if (section.getTag() == QLatin1String("Factors"))
                readFactors(section);
        }
    }
}

void ThemeIndex::readMapping(const QString& path)
{
    for (const auto& document : readThemeDocuments(path, QStringLiteral("QPalette"))) {
        for (const ThemeElement& element : document->getRoot().getChildren()) {
            m_mapped += element.getText();
            for (const ThemeElement& role : element.getChildren())
                m_mapped += role.getText();
        }
    }
    m_mapped.removeAll(QString());
    for (const QString& name : qAsConst(m_mapped))
        m_named.insert(name);
}

} // namespace ThemeTool
