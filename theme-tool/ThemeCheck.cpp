#include "ThemeCheck.h"

#include "AllThemeNames.h"
#include "ContrastTable.h"
#include "NameUses.h"
#include "ReadTheme.h"
#include "ThemeFilesCheck.h"
#include "ThemeIndex.h"
#include "ThemeNames.h"

#include <QMetaEnum>
#include <QSet>

#include <algorithm>
#include <numeric>
#include <tuple>

using namespace BRELK;

namespace ThemeTool {

namespace {

QString original(const QString& name)
{
    const QLatin1String twin = ThemeNames::Disabled.text;
    return name.endsWith(twin) ? name.left(name.size() - twin.size()) : name;
}

int distance(const QString& one, const QString& other)
{
    QVector<int> costs(other.size() + 1);
    std::iota(costs.begin(), costs.end(), 0);
    for (int i = 1; i <= one.size(); ++i) {
        int diagonal = costs.at(0);
        costs[0] = i;
        for (int j = 1; j <= other.size(); ++j) {
            const int change = diagonal + (one.at(i - 1) == other.at(j - 1) ? 0 : 1);
            diagonal = costs.at(j);
            costs[j] = std::min({change, costs.at(j) + 1, costs.at(j - 1) + 1});
        }
    }
    return costs.last();
}

/// Collects what is wrong with one theme.
class Check
{
public:
    Check(const QString& directory, const QRegularExpression& own)
        : m_own(own)
        , m_theme(directory)
        , m_index(directory)
        , m_configuration(directory + QLatin1String("/config.xml"))
    { }

    QVector<Finding> run();

private:
    void add(bool isError, const Entry* entry, const QString& text);
    void takeProblems();
    void findMissing();
    void findMissing(const QStringList& names, const QStringList& defined);
    bool isReported(const Entry& entry) const;
    bool isUnused(const Entry& entry, const QSet<QString>& asked) const;
    void findUnused();
    void checkPalette();
    void checkGradients();
    void checkContrasts();

    QRegularExpression m_own;
    ReadTheme m_theme;
    ThemeIndex m_index;
    QString m_configuration;
    QVector<Finding> m_findings;
};

void Check::add(bool isError, const Entry* entry, const QString& text)
{
    if (entry)
        m_findings.append(
            {entry->place.file, entry->place.line, entry->place.column, isError, text});
    else
        m_findings.append({m_configuration, 1, 1, isError, text});
}

void Check::takeProblems()
{
    for (const ThemeProblem& problem : m_theme.getProblems()) {
        const bool isError = problem.done != QLatin1String("ignored");
        m_findings.append({problem.file, problem.line, std::max(problem.column, 1), isError,
                           problem.what + QLatin1String("; ") + problem.done});
    }
    if (m_theme.getName().isEmpty())
        m_findings.append({m_theme.getDirectory() + QLatin1String("/theme.xml"), 1, 1, true,
                           QStringLiteral("the theme has no name; write "
                                          "<theme><name>NAME</name></theme>")});
}

void Check::findMissing(const QStringList& names, const QStringList& defined)
{
    QStringList missing;
    for (const QString& name : names) {
        if (!defined.contains(name))
            missing += name;
    }
    if (missing.isEmpty())
        return;
    QHash<QString, QString> uses;
    for (const NameUse& use : nameUses())
        uses.insert(use.name, use.use);
    for (const QString& name : qAsConst(missing)) {
        const Entry* entry = m_index.find(name);
        if (entry && !entry->isInternal)
            continue; // its entry is bad, which is reported
        add(true, entry,
            quoted(name)
                + (entry
                       ? QString(QLatin1String(" is internal, so the style does not find it"))
                       : QString(QLatin1String(" is missing, which the style asks for (")
                                 + uses.value(name)
                                 + QLatin1String("); define it, or extend a theme that has it"))));
    }
}

void Check::findMissing()
{
    findMissing(AllThemeNames::colors(), m_theme.getConfiguration().getColorsMap().keys());
    findMissing(AllThemeNames::brushes(), m_theme.getConfiguration().getBrushesMap().keys());
}

bool Check::isReported(const Entry& entry) const
{
    const auto isAtEntry = [&entry](const ThemeProblem& problem) {
        return problem.file == entry.place.file && problem.line == entry.place.line
               && problem.column == entry.place.column;
    };
    const QVector<ThemeProblem>& problems = m_theme.getProblems();
    return std::any_of(problems.begin(), problems.end(), isAtEntry);
}

/// Whether nobody but an application can ask for `entry`. What an extended theme defines is its own
/// matter.
bool Check::isUnused(const Entry& entry, const QSet<QString>& asked) const
{
    const QString name = original(entry.name);
    const bool isOwn = !m_own.pattern().isEmpty() && entry.name.contains(m_own);
    return entry.level == 0 && !isOwn && !isReported(entry) && !asked.contains(name)
           && !m_index.isNamed(entry.name) && !m_index.isNamed(name);
}

void Check::findUnused()
{
    const QStringList names = AllThemeNames::colors() + AllThemeNames::brushes()
                              + AllThemeNames::numbers() + m_index.getMapped()
                              + namesInStyleSheets(m_theme);
    const QSet<QString> asked(names.begin(), names.end());
    for (const auto* entries :
         {&m_index.getColors(), &m_index.getBrushes(), &m_index.getNumbers()}) {
        for (const Entry& entry : *entries) {
            if (!isUnused(entry, asked))
                continue;
            const QString meant = likelyName(original(entry.name), names);
            if (entry.isInternal)
                add(false, &entry, quoted(entry.name) + QLatin1String(" is internal and not used"));
            else if (meant.isEmpty())
                add(false, &entry,
                    quoted(entry.name)
                        + QLatin1String(" is asked for by nobody; remove it, or say --own PATTERN "
                                        "if an application asks for it"));
            else
                add(false, &entry,
                    quoted(entry.name) + QLatin1String(" is asked for by nobody; was ")
                        + quoted(meant) + QLatin1String(" meant?"));
        }
    }
}

void Check::checkPalette()
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    QStringList unmapped;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const bool isMapped =
            m_theme.getPalette().color(QPalette::Active, QPalette::ColorRole(role)).rgba()
            != UnmappedColor;
        if (role != QPalette::NoRole && !isMapped)
            unmapped += QLatin1String(roles.valueToKey(role));
    }
    if (!unmapped.isEmpty())
        m_findings.append(
            {m_theme.getDirectory() + QLatin1String("/qpaletteMapping.xml"), 1, 1, false,
             QLatin1String("palette roles that are not mapped: ")
                 + unmapped.join(QLatin1String(", ")) + QLatin1String("; add <ColorRole role=\"")
                 + unmapped.first()
                 + QLatin1String("\">NAME</ColorRole>, or extend a theme's mapping")});
}

void Check::checkGradients()
{
    for (const Entry& entry : m_index.getBrushes()) {
        const bool isLine = entry.name.contains(QLatin1String("Border"));
        if (entry.isGradient && (isLine || m_index.getMapped().contains(entry.name)))
            add(false, &entry,
                quoted(entry.name)
                    + QLatin1String(
                        " is a gradient where one color is needed; it counts as black"));
    }
}

/// The worst ones, as one bad color spoils many others.
void Check::checkContrasts()
{
    constexpr int MostFindings = 10;
    QHash<QString, Contrast> worst;
    for (const Contrast& contrast : measureContrasts(m_theme)) {
        const auto known = worst.constFind(contrast.color);
        const bool isWorse = known == worst.constEnd() || contrast.found < known->found;
        if (contrast.found > 0 && !contrast.isEnough() && isWorse)
            worst.insert(contrast.color, contrast);
    }
    QList<Contrast> faults = worst.values();
    std::sort(faults.begin(), faults.end(), [](const Contrast& one, const Contrast& other) {
        return std::make_tuple(one.found / one.least, one.color)
               < std::make_tuple(other.found / other.least, other.color);
    });
    for (const Contrast& contrast : faults.mid(0, MostFindings)) {
        const Entry* entry = m_index.find(contrast.color);
        add(true, entry ? entry : m_index.find(original(contrast.color)),
            QStringLiteral("%1 has a contrast of %2 to %3, and needs %4")
                .arg(quoted(contrast.color))
                .arg(contrast.found, 0, 'f', 2)
                .arg(quoted(contrast.ground))
                .arg(contrast.least));
    }
    if (faults.size() > MostFindings)
        add(true, nullptr,
            QStringLiteral("%1 more colors do not stand out enough; \"varn-theme contrast\" lists "
                           "them, and a better foreground or background may cure all")
                .arg(faults.size() - MostFindings));
}

QVector<Finding> Check::run()
{
    takeProblems();
    findMissing();
    findUnused();
    checkPalette();
    checkGradients();
    m_findings += checkFiles(m_theme);
    checkContrasts();
    const auto isBefore = [](const Finding& one, const Finding& other) {
        return std::tie(one.file, one.line, one.column, one.text)
               < std::tie(other.file, other.line, other.column, other.text);
    };
    std::sort(m_findings.begin(), m_findings.end(), isBefore);
    // An element of several names may be wrong for each.
    const auto isSame = [](const Finding& one, const Finding& other) {
        return std::tie(one.file, one.line, one.column, one.text)
               == std::tie(other.file, other.line, other.column, other.text);
    };
    m_findings.erase(std::unique(m_findings.begin(), m_findings.end(), isSame), m_findings.end());
    return m_findings;
}

} // namespace

QString likelyName(const QString& name, const QStringList& names)
{
    constexpr int Farthest = 3;
    QString nearest;
    int least = Farthest + 1;
    for (const QString& other : names) {
        const int found =
            std::abs(other.size() - name.size()) < least ? distance(name, other) : least;
        if (found < least) {
            least = found;
            nearest = other;
        }
    }
    return nearest;
}

QVector<Finding> checkTheme(const QString& directory, const QRegularExpression& own)
{
    return Check(directory, own).run();
}

} // namespace ThemeTool
