#include "OwnColors.h"

#include "ColorArithmetic.h"
#include "Shapes.h"
#include "WidgetTraits.h"

#include <QApplication>
#include <QComboBox>

#include <algorithm>

namespace BRELK::OwnColors {

namespace {

const QBrush& brushOf(const StyleContext& context, QPalette::ColorRole role)
{
    const QPalette& palette = context.option.palette;
    return palette.brush(palette.currentColorGroup(), role);
}

bool isOfAll(const QPalette& application, QPalette::ColorRole role)
{
    return application.resolve() & (1U << role);
}

/// Whether the style gave it to a view, which hands it on to what lies in it.
bool isOfViews(const QBrush& brush)
{
    auto& brushes = themeValues().brushes;
    return brush == brushes.value(ThemeNames::ItemViewBackgroundBrush, true)
           || brush == brushes.value(ThemeNames::ItemViewBackgroundBrush, false);
}

} // namespace

bool isOfState(const StyleContext& context, QPalette::ColorRole role)
{
    if (!context.widget)
        return false;
    const QPalette::ColorGroup group = context.option.palette.currentColorGroup();
    return brushOf(context, role) != context.widget->palette().brush(group, role);
}

bool has(const StyleContext& context, QPalette::ColorRole role)
{
    const QPalette& palette = context.option.palette;
    const QPalette application = QApplication::palette();
    const bool isApplications = palette.isCopyOf(application); // as of most: found at once
    if (isApplications && !isOfAll(application, role))
        return false;
    const QPalette::ColorGroup group = palette.currentColorGroup();
    const QBrush& brush = palette.brush(group, role);
    if (brush.style() == Qt::NoBrush)
        return false;
    if (!isApplications && brush != application.brush(group, role))
        return role != QPalette::Base || !isOfViews(brush);
    return isOfAll(application, role) && brush != context.style.getPalette().brush(group, role);
}

bool isForAll(const BaseStyle& style, QPalette::ColorRole role)
{
    const QPalette application = QApplication::palette();
    return isOfAll(application, role) && application.brush(role) != style.getPalette().brush(role);
}

bool isForThis(const StyleContext& context, QPalette::ColorRole role)
{
    if (!context.widget || !has(context, role))
        return false;
    const QPalette::ColorGroup group = context.option.palette.currentColorGroup();
    const QBrush& own = context.widget->palette().brush(group, role);
    const QWidget* parent = context.widget->parentWidget();
    return brushOf(context, role) != own
           || own != (parent ? parent->palette() : QApplication::palette()).brush(group, role);
}

QBrush ground(const StyleContext& context, QPalette::ColorRole role, const QBrush& themed)
{
    return has(context, role) ? brushOf(context, role) : themed;
}

QBrush controlGround(const StyleContext& context)
{
    constexpr int Hovered = 8;
    constexpr int Pressed = 16;
    // Inputs show the color of texts' grounds, and a combo box without an editor that of buttons.
    const auto* comboBox = qobject_cast<const QComboBox*>(context.widget);
    const bool input = comboBox ? comboBox->isEditable()
                                : context.widget && WidgetTraits::isSpinBox(context.widget);
    QPalette::ColorRole role = input ? QPalette::Base : QPalette::Button;
    if (!has(context, role)) {
        role = input ? QPalette::Button : QPalette::Base;
        if (!(input || comboBox) || !has(context, role))
            return {};
    }
    const QBrush& brush = brushOf(context, role);
    if (isOfState(context, role))
        return brush;
    if (BaseStyle::isPressed(context.option))
        return deeper(brush, Pressed);
    return BaseStyle::isHovered(&context.option) ? deeper(brush, Hovered) : brush;
}

QBrush words(const StyleContext& context, QPalette::ColorRole role, QPalette::ColorRole groundRole,
             const QBrush& themed)
{
    const QBrush& given = brushOf(context, role);
    if (isForThis(context, role) || (!has(context, role) && !has(context, groundRole)))
        return given;
    const QPalette& palette = context.style.getPalette();
    const QPalette::ColorGroup group = context.option.palette.currentColorGroup();
    return readable(ground(context, groundRole, themed), {given, palette.brush(group, role)});
}

QBrush onWindow(const StyleContext& context, const QBrush& themed)
{
    if (!has(context, QPalette::Window))
        return themed;
    return readable(brushOf(context, QPalette::Window),
                    {themed, brushOf(context, QPalette::WindowText)});
}

QBrush readable(const QBrush& ground, std::initializer_list<QBrush> brushes, double least)
{
    if (ground.style() != Qt::SolidPattern)
        return *brushes.begin();
    const auto isRead = [&](const QBrush& brush) {
        return brush.style() == Qt::SolidPattern
               && ColorArithmetic::contrast(brush.color(), ground.color()) >= least;
    };
    const auto* const found = std::find_if(brushes.begin(), brushes.end(), isRead);
    if (found != brushes.end())
        return *found;
    return ColorArithmetic::contrast(Qt::black, ground.color())
                   > ColorArithmetic::contrast(Qt::white, ground.color())
               ? Qt::black
               : Qt::white;
}

QBrush deeper(const QBrush& ground, int percent)
{
    constexpr int Unchanged = 100;
    if (ground.style() != Qt::SolidPattern)
        return ground;
    const QColor color = ground.color();
    return Shapes::isLight(color) ? color.darker(Unchanged + percent)
                                  : color.lighter(Unchanged + 2 * percent);
}

} // namespace BRELK::OwnColors
