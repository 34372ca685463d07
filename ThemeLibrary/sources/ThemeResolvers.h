#pragma once

#include "ThemeConfigurationReader_p.h"

#include <QHash>
#include <QMap>
#include <QVector>

namespace BRELK {

/// Resolves entries that name one another, in whatever order they stand and however long the chain.
/// Where a definition is bad, the next one of the same name counts.
class ThemeResolver
{
public:
    /// `entries` must outlive the resolver.
    explicit ThemeResolver(const ThemeEntries& entries);

    virtual ~ThemeResolver() = default;
    Q_DISABLE_COPY(ThemeResolver)

    void resolve();

protected:
    const ThemeEntries& getEntries() const { return m_entries; }

    /// `name` if it is an entry that has yet to be resolved, otherwise nothing.
    QString unsettled(const QString& name) const;

    /// Whether the entry `name` is internal; asked of resolved ones.
    bool isInternal(const QString& name) const;

    /// An entry that has to be resolved before `entry` can be evaluated; empty when there is none
    /// left.
    virtual QString getDependency(const QString& name, const ThemeEntry& entry) const = 0;

    /// Stores the value that `entry` gives to `name`; false when it gives none, which is reported.
    virtual bool evaluate(const QString& name, const ThemeEntry& entry) = 0;

private:
    struct Node
    {
        QString name;
        const ThemeEntries::Definitions* definitions = nullptr;
        int current = 0;
        bool waiting = false;
        bool settled = false;
        bool internal = false;

        const ThemeEntry& getEntry() const { return definitions->at(current); }
    };

    void step();
    void push(Node& node);
    void breakCycle(Node& node);

    const ThemeEntries& m_entries;
    QHash<QString, Node> m_nodes;
    /// Nodes that wait, each for the next one.
    QVector<Node*> m_stack;
};

/// Resolves colors.
class ThemeColorResolver : public ThemeResolver
{
public:
    ThemeColorResolver(const ThemeEntries& entries, const DisabledColors& disabled,
                       double wordContrast);

    const ThemeColors& getColors() const { return m_colors; }

    void splitColors(QMap<QString, QColor>& published, QMap<QString, QColor>& internal) const;

private:
    QString getDependency(const QString& name, const ThemeEntry& entry) const override;
    bool evaluate(const QString& name, const ThemeEntry& entry) override;
    QString firstUnsettled(const QString& name, const QStringList& named) const;

    const DisabledColors& m_disabled;
    ThemeColors m_colors;
};

/// Resolves brushes, when the colors are resolved.
class ThemeBrushResolver : public ThemeResolver
{
public:
    /// `colors` are what became of `colorEntries`.
    ThemeBrushResolver(const ThemeEntries& entries, const ThemeEntries& colorEntries,
                       const ThemeColors& colors, const DisabledColors& disabled);

    /// Whether elements with the tag `tag` are brushes.
    static bool isBrush(const QString& tag);

    void splitBrushes(QMap<QString, QBrush>& published, QMap<QString, QBrush>& internal) const;

private:
    QString getDependency(const QString& name, const ThemeEntry& entry) const override;
    bool evaluate(const QString& name, const ThemeEntry& entry) override;

    struct Value
    {
        QBrush brush;
        QString color; ///< of the theme, if it is just that, by whatever way
        QString twin; ///< written in a file, of the nearest brush that it names and that has one
    };

    Value readValue(const ThemeElement& element, bool& ok) const;
    Value readAlias(const ThemeElement& element, bool& ok) const;
    QBrush derivedTwin(const QString& original, const Value& value) const;
    bool isLastOne(const ThemeEntry& entry) const;

    const ThemeEntries& m_colorEntries;
    const ThemeColors& m_colors;
    const DisabledColors& m_disabled;
    QHash<QString, Value> m_values;
    /// An element that spells several names is read for the first one.
    const ThemeEntry* m_lastEntry = nullptr;
    Value m_lastValue;
};

} // namespace BRELK
