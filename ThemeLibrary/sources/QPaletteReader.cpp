#include "QPaletteReader.h"

#include "ThemeEntries.h"

#include <QMetaEnum>

#include <utility>

namespace BRELK {

namespace {

/// The value of `attribute` as a key of the enumeration `enumeration` of QPalette. Other texts, and
/// values of `end` and beyond, make the element rejected and give -1.
int readKey(const ThemeElement& element, const char* attribute, const char* enumeration, int end)
{
    const QMetaObject& meta = QPalette::staticMetaObject;
    const QMetaEnum keys = meta.enumerator(meta.indexOfEnumerator(enumeration));
    const QString text = element.getAttribute(QLatin1String(attribute));
    bool isKey = false;
    const int value = keys.keyToValue(text.toLatin1(), &isKey);
    if (isKey && value < end)
        return value;
    element.reject(quoted(text) + QLatin1String(" is no palette ") + QLatin1String(attribute));
    return -1;
}

QString keyOf(int group, int role)
{
    return QString::number(group) + QLatin1Char('/') + QString::number(role);
}

void collectRole(ThemeEntries& entries, const ThemeElement& element, int group, int level)
{
    element.checkTextElement({"role"});
    const int role = readKey(element, "role", "ColorRole", QPalette::NColorRoles);
    if (role == QPalette::NoRole)
        element.reject(QStringLiteral("\"NoRole\" has no color"));
    else if (role >= 0)
        entries.add(keyOf(group, role), {element, level});
}

void collectGroup(ThemeEntries& entries, const ThemeElement& list, int group, int level)
{
    for (const ThemeElement& element : list.getChildren()) {
        const QString tag = element.getTag();
        if (tag == QLatin1String("ColorRole")) {
            collectRole(entries, element, group, level);
        } else if (tag == QLatin1String("ColorGroup") && group == QPalette::All) {
            element.checkAttributes({"group"});
            const int named = readKey(element, "group", "ColorGroup", QPalette::NColorGroups);
            if (named >= 0)
                collectGroup(entries, element, named, level);
        } else {
            element.rejectUnknown();
        }
    }
}

bool isTextual(QPalette::ColorRole role, const QString& key)
{
    return role == QPalette::WindowText || key.contains(QLatin1String("Text"))
           || key.contains(QLatin1String("Foreground")) || key.contains(QLatin1String("Link"));
}

} // namespace

void deriveDisabledGroup(QPalette& palette, const DisabledColor& disabled)
{
    const QMetaObject& meta = QPalette::staticMetaObject;
    const QMetaEnum roles = meta.enumerator(meta.indexOfEnumerator("ColorRole"));
    for (int i = 0; i < roles.keyCount(); ++i) {
        const auto role = QPalette::ColorRole(roles.value(i));
        if (role == QPalette::NColorRoles)
            continue;
        const bool textual = isTextual(role, QLatin1String(roles.valueToKey(role)));
        palette.setBrush(QPalette::Disabled, role, disabled(palette.brush(role).color(), textual));
    }
}

QPaletteReader::QPaletteReader(const QString& path, const QMap<QString, QBrush>& brushes,
                               const QMap<QString, QColor>& colors, QPalette basePalette)
    : m_palette(std::move(basePalette))
{
    const ThemeDocuments documents = readThemeDocuments(path, QStringLiteral("QPalette"));
    m_status = Status(documents.front()->getStatus());
    if (m_status != NO_ERROR)
        return;

    ThemeEntries entries;
    for (size_t level = 0; level < documents.size(); ++level) {
        const ThemeElement root = documents.at(level)->getRoot();
        root.checkAttributes({"extends"});
        collectGroup(entries, root, QPalette::All, int(level));
    }

    const auto read = [&brushes, &colors](const ThemeElement& element, bool& ok) {
        const QString name = element.getText();
        ok = brushes.contains(name) || colors.contains(name);
        if (!ok)
            element.reject(quoted(name)
                           + QLatin1String(" is neither a brush nor a color of the theme"));
        return brushes.value(name, QBrush(colors.value(name)));
    };
    // One group's own roles come after those of all groups.
    for (const int group :
         {QPalette::All, QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const QBrush brush = evaluate(entries, keyOf(group, role), QBrush(), read);
            if (brush.style() != Qt::NoBrush)
                m_palette.setBrush(QPalette::ColorGroup(group), QPalette::ColorRole(role), brush);
        }
    }
}

} // namespace BRELK
