#include "ContrastTable.h"

#include "AllThemeNames.h"
#include "ColorArithmetic.h"
#include "ReadTheme.h"

#include <QFile>

#include <algorithm>

using namespace BRELK;

/// The table is in a static library, whose resources register themselves only when asked to.
static void registerTable()
{
    Q_INIT_RESOURCE(theme_tool);
}

namespace ThemeTool {

namespace {

const QString Body = QStringLiteral("BackgroundBrush");
const QString Border = QStringLiteral("BorderBrush");
const QString Words = QStringLiteral("ForegroundBrush");
const QString Disabled = QStringLiteral("Disabled");

/// What controls and words stand on.
QStringList surfaces()
{
    return {QStringLiteral("BackgroundSubLevel2Brush"),
            QStringLiteral("BackgroundSubLevel1Brush"),
            QStringLiteral("BackgroundBrush"),
            QStringLiteral("BackgroundUpLevel1Brush"),
            QStringLiteral("TabBackgroundActiveBrush"),
            QStringLiteral("ItemViewBackgroundBrush"),
            QStringLiteral("ItemViewAlternateBackgroundBrush")};
}

QStringList words(const QString& text)
{
    return text.simplified().split(QLatin1Char(' '));
}

/// The table, with the surfaces by their names.
QVector<ContrastRule> expandedRules()
{
    QVector<ContrastRule> rules = contrastRules();
    for (ContrastRule& rule : rules) {
        if (rule.grounds.removeOne(QStringLiteral("surfaces")))
            rule.grounds += surfaces();
    }
    return rules;
}

/// Measures what one row of the table says.
class Measuring
{
public:
    Measuring(const ReadTheme& theme, const ContrastRule& row, double least,
              QVector<Contrast>& results)
        : m_theme(theme), m_row(row), m_least(least), m_results(results)
    { }

    void names() const;
    void wordsOfControls() const;
    void bordersOfControls() const;
    void disabledWordsOfControls() const;
    void statesOfControls() const;

private:
    QColor color(const QString& name) const { return m_theme.getColor(name); }

    void add(const QString& name, const QColor& above, const QString& groundName,
             const QColor& ground) const;
    template <class Measure>
    void forControls(Measure measure) const;
    void compareStates(const QString& control, const QString& one, const QString& other) const;

    const ReadTheme& m_theme;
    const ContrastRule& m_row;
    double m_least;
    QVector<Contrast>& m_results;
};

void Measuring::add(const QString& name, const QColor& above, const QString& groundName,
                    const QColor& ground) const
{
    const bool isKnown = above.isValid() && ground.isValid();
    m_results.append(
        {name, groundName, isKnown ? ColorArithmetic::contrast(above, ground) : 0, m_least});
}

void Measuring::names() const
{
    for (const QString& name : words(m_row.subject)) {
        for (const QString& ground : m_row.grounds)
            add(name, color(name), ground, color(ground));
    }
}

/// Calls `measure` with each control's name, a ground's name and its color.
template <class Measure>
void Measuring::forControls(Measure measure) const
{
    for (const QString& groundName : m_row.grounds) {
        const QColor ground = color(groundName);
        for (const QString& family : AllThemeNames::families())
            for (const QString& kind : AllThemeNames::kinds())
                for (const QString& state : AllThemeNames::states())
                    measure(QString(family + kind + state), groundName, ground);
    }
}

void Measuring::wordsOfControls() const
{
    forControls([this](const QString& control, const QString& groundName, const QColor& ground) {
        const QColor body = ColorArithmetic::over(color(control + Body), ground);
        add(control + Words, color(control + Words), groundName, body);
    });
}

void Measuring::bordersOfControls() const
{
    forControls([this](const QString& control, const QString& groundName, const QColor& ground) {
        const QColor border = color(control + Border);
        // A border in the color of the body is none.
        if (border != color(control + Body))
            add(control + Border, border, groundName, ground);
    });
}

void Measuring::disabledWordsOfControls() const
{
    forControls([this](const QString& control, const QString& groundName, const QColor& ground) {
        const QColor body = ColorArithmetic::over(color(control + Body + Disabled), ground);
        const QString name = control + Words + Disabled;
        add(name, color(name), groundName, body);
    });
}

/// States are told apart by whichever part differs most.
void Measuring::compareStates(const QString& control, const QString& one,
                              const QString& other) const
{
    for (const QString& groundName : m_row.grounds) {
        const QColor ground = color(groundName);
        double most = 0;
        for (const QString& part : {Body, Border, Words}) {
            const QColor first = color(control + one + part);
            const QColor second = color(control + other + part);
            most = std::max(most, ColorArithmetic::contrast(ColorArithmetic::over(first, ground),
                                                            ColorArithmetic::over(second, ground)));
        }
        m_results.append({control + one, control + other, most, m_least});
    }
}

void Measuring::statesOfControls() const
{
    const QString checked = QStringLiteral("Checked");
    const QString unchecked = QStringLiteral("Unchecked");
    const QString byDefault = QStringLiteral("Default");
    const QString pointers[] = {QStringLiteral("Hover"), QStringLiteral("Pressed")};
    for (const QString& family : AllThemeNames::families()) {
        const bool isInput = family == QLatin1String("Input");
        for (const QString& kind : AllThemeNames::kinds()) {
            // Inputs of a kind show it in their border, whatever the pointer does.
            if (isInput && !kind.isEmpty())
                continue;
            for (const QString& pointer : pointers) {
                compareStates(family + kind, unchecked, unchecked + pointer);
                if (isInput)
                    continue;
                compareStates(family + kind, checked, checked + pointer);
                compareStates(family + kind, byDefault, byDefault + pointer);
            }
            if (!isInput)
                compareStates(family + kind, unchecked, checked);
        }
    }
}

} // namespace

QVector<ContrastRule> contrastRules()
{
    registerTable();
    QFile file(QStringLiteral(":/theme-tool/contrasts.txt"));
    file.open(QIODevice::ReadOnly);
    QVector<ContrastRule> rules;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QStringList fields = line.split(QLatin1Char('|'));
        if (fields.size() == 3)
            rules += {fields.at(0).trimmed(), fields.at(1).simplified(), words(fields.at(2))};
    }
    return rules;
}

QVector<Contrast> measureContrasts(const ReadTheme& theme)
{
    using Measure = void (Measuring::*)() const;
    static const QHash<QString, Measure> sControls{
        {QStringLiteral("words of controls"), &Measuring::wordsOfControls},
        {QStringLiteral("borders of controls"), &Measuring::bordersOfControls},
        {QStringLiteral("disabled words of controls"), &Measuring::disabledWordsOfControls},
        {QStringLiteral("states of controls"), &Measuring::statesOfControls}};
    static const QVector<ContrastRule> sRules = expandedRules();

    QVector<Contrast> results;
    for (const ContrastRule& row : sRules) {
        const double least = row.least == QLatin1String("words")
                                 ? theme.getConfiguration().getWordContrast()
                                 : row.least.toDouble();
        const Measuring measuring(theme, row, least, results);
        (measuring.*sControls.value(row.subject, &Measuring::names))();
    }
    return results;
}

} // namespace ThemeTool
