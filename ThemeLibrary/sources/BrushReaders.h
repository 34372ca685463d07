#pragma once

#include "ColorDerivations.h"

#include <QBrush>

namespace BRELK {

/// Reads one kind of brush element.
class BrushReader
{
public:
    virtual ~BrushReader() = default;

    /// The brush that `element` describes. `ok` becomes false, and the reason is reported, when it
    /// describes none.
    virtual QBrush readBrush(const ThemeElement& element, const ThemeColors& colors,
                             bool& ok) const = 0;

    /// The reader of elements with the tag `tag`, which lives as long as the process; null when no
    /// such element is a brush.
    static const BrushReader* forTag(const QString& tag);
};

/// A brush of one color, which is its text.
class SolidBrushReader : public BrushReader
{
public:
    QBrush readBrush(const ThemeElement& element, const ThemeColors& colors,
                     bool& ok) const override;
};

/// A gradient from "startPoint" to "endPoint", in the unit square of what is filled, over elements
/// "GradientStop".
class LinearGradientBrushReader : public BrushReader
{
public:
    QBrush readBrush(const ThemeElement& element, const ThemeColors& colors,
                     bool& ok) const override;
};

} // namespace BRELK
