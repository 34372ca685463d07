#pragma once

#include "ThemeConfigurationReader_p.h"

#include <QMap>

#include <vector>

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

    /// `place` if what is there has yet to be resolved, otherwise a negative number.
    int unsettled(int place) const;

    int unsettled(const QString& name) const { return unsettled(m_entries.find(name)); }

    /// Whether what is at `place` is internal; asked of resolved ones.
    bool isInternal(int place) const { return m_nodes[size_t(place)].internal; }

    /// The place of what has to be resolved before `entry`, null for a derived twin, can be
    /// evaluated; negative when there is nothing left.
    virtual int getDependency(int place, const ThemeEntry* entry) const = 0;

    /// Stores the value that `entry`, null for a derived twin, gives to what is at `place`; false
    /// when it gives none, which is reported.
    virtual bool evaluate(int place, const ThemeEntry* entry) = 0;

private:
    struct Node
    {
        const ThemeEntry* current = nullptr; ///< past its definitions, it is derived as a twin
        bool isPastTwin = false;
        bool waiting = false;
        bool settled = false;
        bool internal = false;
    };

    bool isExhausted(int place) const;
    void passOver(int place);
    void step();
    void push(int place);
    void breakCycle(int place);

    const ThemeEntries& m_entries;
    std::vector<Node> m_nodes;
    /// The places of nodes that wait, each for the next one.
    std::vector<int> m_stack;
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
    int getDependency(int place, const ThemeEntry* entry) const override;
    bool evaluate(int place, const ThemeEntry* entry) override;
    int firstUnsettled(int place, const QStringList& named) const;

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
    int getDependency(int place, const ThemeEntry* entry) const override;
    bool evaluate(int place, const ThemeEntry* entry) override;

    struct Value
    {
        bool known = false;
        QBrush brush = {};
        /// Of the twin that a file defines for the color that it is just that of, by whatever way.
        QBrush disabled = {};
        /// Where the twin of the nearest brush is that it names and that has one in a file.
        int twin = -1;
    };

    Value readValue(const ThemeElement& element, bool& ok) const;
    Value readAlias(const ThemeElement& element, bool& ok) const;
    QBrush derivedTwin(int original) const;
    bool isLastOne(const ThemeEntry& entry) const;

    const ThemeEntries& m_colorEntries;
    const ThemeColors& m_colors;
    const DisabledColors& m_disabled;
    std::vector<Value> m_values; ///< by place
    /// An element that spells several names is read for the first one.
    const ThemeEntry* m_lastEntry = nullptr;
    Value m_lastValue;
};

} // namespace BRELK
