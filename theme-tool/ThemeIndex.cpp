#include "ThemeIndex.h"

#include "ColorDerivations.h"

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
    for (const QLatin1String attribute : derivationAttributes()) {
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

void ThemeIndex::add(QMap<QString, Entry>& entries, const ThemeElement& element, int level)
{
    const QString tag = element.getTag();
    Entry entry;
    entry.isBrush = &entries == &m_brushes;
    entry.isInternal = element.getAttribute(QLatin1String("internal")) == QLatin1String("true");
    entry.isGradient = tag == QLatin1String("LinearGradientBrush");
    entry.level = level;
    entry.place = element.place();
    for (const NamedThemeElement& spelt : element.spellNames(MostNames)) {
        entry.name = spelt.name;
        entry.recipe = recipeOf(spelt.element);
        entry.named = colorsOf(spelt.element);
        for (const QString& named : qAsConst(entry.named))
            m_named.insert(named);
        if (!entries.contains(entry.name))
            entries.insert(entry.name, entry);
    }
}

void ThemeIndex::readPalette(const ThemeElement& palette, int level)
{
    for (const ThemeElement& list : palette.getChildren()) {
        for (const QString& named : namedColors(list))
            m_named.insert(named);
        for (const ThemeElement& element : list.getChildren())
            add(element.getTag() == QLatin1String("Color") ? m_colors : m_brushes, element, level);
    }
}

/// Opacities, or factors, which may say what color they keep.
void ThemeIndex::readNumbers(const ThemeElement& numbers, int level)
{
    for (const ThemeElement& number : numbers.getChildren()) {
        add(m_numbers, number, level);
        m_named.insert(number.getAttribute(QLatin1String("keep")));
    }
}

void ThemeIndex::readConfiguration(const QString& path)
{
    const ThemeDocuments documents = readThemeDocuments(path, QStringLiteral("Config"));
    for (size_t level = 0; level < documents.size(); ++level) {
        for (const ThemeElement& section : documents.at(level)->getRoot().getChildren()) {
            if (section.getTag() == QLatin1String("Palette"))
                readPalette(section, int(level));
            else if (section.getTag() == QLatin1String("Factors")
                     || section.getTag() == QLatin1String("Opacities"))
                readNumbers(section, int(level));
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
