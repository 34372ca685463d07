#include "ThemeCheck.h"

#include "AllThemeNames.h"
#include "ContrastTable.h"
#include "ReadTheme.h"
#include "ThemeIndex.h"
#include "ThemeNames.h"

#include <QDir>
#include <QDirIterator>
#include <QImageReader>
#include <QMetaEnum>
#include <QRegularExpression>

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

/// The names in the library's own style sheets, as "colors/MainColor".
QStringList placeholders()
{
    const QRegularExpression placeholder(QStringLiteral("@([\\w/]+)@"));
    QStringList paths;
    QDirIterator sheets(QStringLiteral(":/BRELK/ThemeLibrary/stylesheets"), QDir::Files);
    while (sheets.hasNext()) {
        QFile sheet(sheets.next());
        sheet.open(QIODevice::ReadOnly);
        auto matches = placeholder.globalMatch(QString::fromUtf8(sheet.readAll()));
        while (matches.hasNext())
            paths += matches.next().captured(1);
    }
    paths.removeDuplicates();
    return paths;
}

/// Collects what is wrong with one theme.
class Check
{
public:
    explicit Check(const QString& directory)
        : m_theme(directory)
        , m_index(directory)
        , m_configuration(directory + QLatin1String("/config.xml"))
    { }

    QVector<Finding> run();

private:
    void add(bool isError, const Entry* entry, const QString& text);
    void takeProblems();
    void findMissing();
    void findMissing(const QStringList& names, const QStringList& defined);
    void findUnused();
    void checkPalette();
    void checkGradients();
    void checkPlaceholders();
    void checkImages();
    void checkContrasts();

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
    for (const QString& name : qAsConst(missing)) {
        const Entry* entry = m_index.find(name);
        if (entry && !entry->isInternal)
            continue; // its entry is bad, which is reported
        add(true, entry,
            quoted(name)
                + (entry ? QLatin1String(" is internal, so the style does not find it")
                         : QLatin1String(" is missing, which the style asks for; define it, or "
                                         "extend a theme that has it")));
    }
}

void Check::findMissing()
{
    findMissing(AllThemeNames::colors(), m_theme.getConfiguration().getColorsMap().keys());
    findMissing(AllThemeNames::brushes(), m_theme.getConfiguration().getBrushesMap().keys());
}

/// Names that nobody asks for. What an extended theme defines is its own matter.
void Check::findUnused()
{
    const QStringList asked =
        AllThemeNames::colors() + AllThemeNames::brushes() + m_index.getMapped();
    const auto look = [&](const QMap<QString, Entry>& entries) {
        for (const Entry& entry : entries) {
            const QString name = original(entry.name);
            if (entry.level > 0 || asked.contains(name) || m_index.isNamed(entry.name)
                || m_index.isNamed(name))
                continue;
            const QString meant = likelyName(name, asked);
            if (entry.isInternal)
                add(false, &entry, quoted(entry.name) + QLatin1String(" is internal and not used"));
            else if (!meant.isEmpty())
                add(false, &entry,
                    quoted(entry.name) + QLatin1String(" is asked for by nobody; was ")
                        + quoted(meant) + QLatin1String(" meant?"));
        }
    };
    look(m_index.getColors());
    look(m_index.getBrushes());
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
    for (const QString& role : qAsConst(unmapped))
        m_findings.append(
            {m_theme.getDirectory() + QLatin1String("/qpaletteMapping.xml"), 1, 1, false,
             QLatin1String("the palette role ") + quoted(role)
                 + QLatin1String(" is not mapped; add <ColorRole role=\"") + role
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

void Check::checkPlaceholders()
{
    for (const QString& path : placeholders()) {
        const QString name = path.section(QLatin1Char('/'), 1);
        if (!m_theme.getConfiguration().getColorsMap().contains(name))
            add(true, m_index.find(name),
                QLatin1Char('@') + path
                    + QLatin1String("@ of the style sheets is no color of the theme; without it "
                                    "none of their rules applies"));
    }
}

void Check::checkImages()
{
    QDirIterator images(m_theme.getDirectory() + QLatin1String("/Images"),
                        {QStringLiteral("*.svg"), QStringLiteral("*.png"), QStringLiteral("*.cur")},
                        QDir::Files, QDirIterator::Subdirectories);
    while (images.hasNext()) {
        const QString path = images.next();
        if (QImageReader(path).size().isEmpty())
            m_findings.append(
                {path, 1, 1, true,
                 QStringLiteral("the picture cannot be read; it would show as nothing")});
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
    checkPlaceholders();
    checkImages();
    checkContrasts();
    const auto isBefore = [](const Finding& one, const Finding& other) {
        return std::tie(one.file, one.line, one.column, one.text)
               < std::tie(other.file, other.line, other.column, other.text);
    };
    std::sort(m_findings.begin(), m_findings.end(), isBefore);
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

QVector<Finding> checkTheme(const QString& directory)
{
    return Check(directory).run();
}

} // namespace ThemeTool
