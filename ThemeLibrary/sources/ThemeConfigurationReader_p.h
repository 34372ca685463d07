#pragma once

#include "BrushReaders.h"
#include "ThemeEntries.h"

#include <QBrush>
#include <QColor>
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
    bool isInternal(const QString& name) const { return m_nodes.value(name).internal; }

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
    using ThemeResolver::ThemeResolver;

    const ThemeColors& getColors() const { return m_colors; }

    QMap<QString, QColor> getColors(bool internal) const;

private:
    QString getDependency(const QString& name, const ThemeEntry& entry) const override;
    bool evaluate(const QString& name, const ThemeEntry& entry) override;

    ThemeColors m_colors;
};

/// Resolves brushes, when the colors are resolved.
class ThemeBrushResolver : public ThemeResolver
{
public:
    ThemeBrushResolver(const ThemeEntries& entries, const ThemeColors& colors);

    /// Whether elements with the tag `tag` are brushes.
    static bool isBrush(const QString& tag);

    QMap<QString, QBrush> getBrushes(bool internal) const;

private:
    QString getDependency(const QString& name, const ThemeEntry& entry) const override;
    bool evaluate(const QString& name, const ThemeEntry& entry) override;
    QString findTwin(const ThemeEntry& entry) const;

    const ThemeColors& m_colors;
    QHash<QString, QBrush> m_brushes;
    /// The brush that each resolved "Brush" element names.
    QHash<QString, QString> m_namedBrushes;
};

} // namespace BRELK
