#pragma once

#include "ThemeDocument.h"

#include <QColor>
#include <QHash>
#include <QStringList>
#include <QVector>

#include <functional>
#include <vector>

namespace BRELK {

/// Gives the disabled form of a color, by what it is for: a foreground or a background.
using DisabledColor = std::function<QColor(const QColor& color, bool foreground)>;

/// `color` made darker by `lightFactor` if it is bright, otherwise lighter by `darkFactor`; both in
/// percent.
QColor disabledBy(const QColor& color, int lightFactor, int darkFactor);

/// The contrast that words have unless the theme promises another.
constexpr double DefaultWordContrast = 4.5;

/// Colors of a theme by name.
struct ThemeColors : QHash<QString, QColor>
{
    double wordContrast = DefaultWordContrast; ///< what the contrast "words" stands for
};

/// The attributes that make another color of the one that an element names.
const std::vector<QLatin1String>& derivationAttributes();

/// Whether `element` has any of them.
bool hasDerivation(const ThemeElement& element);

/// What the text and the attributes of `element` name, be it a color of the theme or a literal one.
QStringList namedColors(const ThemeElement& element);

/// The color that the text of `element` names, one of `colors` or a literal one, as derived by its
/// attributes. `ok` becomes false, and the reason is reported, when there is none.
QColor readColor(const ThemeElement& element, const ThemeColors& colors, bool& ok);

/// The contrast that `element` asks for; `ok` becomes false, and the reason is reported, when it is
/// none.
double readContrast(const ThemeElement& element, const ThemeColors& colors, bool& ok);

/// The colors that the attribute "against" of `element` names. `ok` becomes false, and the reason
/// is reported, when one of them is not known.
QVector<QColor> readGrounds(const ThemeElement& element, const ThemeColors& colors, bool& ok);

/// `color` as derived by the attributes of `element`; see docs/theme-format.md for what they mean.
QColor derivedColor(const ThemeElement& element, QColor color, const ThemeColors& colors, bool& ok);

} // namespace BRELK
