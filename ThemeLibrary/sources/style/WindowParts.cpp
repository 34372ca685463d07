#include "Families.h"
#include "OwnColors.h"
#include "Shapes.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

#include <QGroupBox>

// Status bars, splitters and rubber bands, and what layouts and windows measure.
//
// Properties: "filled" and "small", of splitter handles.

namespace BRELK::WindowParts {

namespace {

constexpr int WindowMargin = 12;
constexpr int ChildMargin = 8;

} // namespace

int layoutMargin(const MeasureContext& context)
{
    const bool isWindow = context.widget && context.widget->isWindow();
    // The frame of a group box is a part of its margin: then what stands in it stands below the
    // check box of its title.
    const int frame = qobject_cast<const QGroupBox*>(context.widget) ? 1 : 0;
    return context.dpiScaled(isWindow ? WindowMargin : ChildMargin) - frame;
}

void paintStatusBar(const PaintContext& context)
{
    const QRect& rect = context.option.rect;
    context.painter.fillRect(
        rect, OwnColors::ground(context, QPalette::Window,
                                context.brush(ThemeNames::BackgroundSubLevel1Brush)));
    Shapes::drawLine(context, rect.topLeft(), rect.topRight(), context.borderBrush().color());
}

void paintSplitter(const PaintContext& context)
{
    constexpr int GripCount = 5;
    constexpr int GripStep = 4;
    const QRect& rect = context.option.rect;
    // State_Horizontal: the widgets stand side by side, the handle runs from top to bottom.
    const bool upright = context.has(QStyle::State_Horizontal);
    QColor ground;
    if (context.flag(WidgetProperties::Filled)) {
        ground = context.borderBrush().color();
        context.painter.fillRect(rect, context.borderBrush());
    }
    if (context.flag(WidgetProperties::Small)) {
        const QPoint centre = rect.center();
        if (upright)
            Shapes::drawLine(context, {centre.x(), rect.top()}, {centre.x(), rect.bottom()},
                             context.borderBrush());
        else
            Shapes::drawLine(context, {rect.left(), centre.y()}, {rect.right(), centre.y()},
                             context.borderBrush());
        return;
    }
    const int length = upright ? rect.height() : rect.width();
    const int from = (upright ? rect.top() : rect.left()) + (length - GripCount * GripStep) / 2;
    const int across = upright ? rect.left() + (rect.width() - Shapes::GripSize) / 2
                               : rect.top() + (rect.height() - Shapes::GripSize) / 2;
    if (length > GripCount * GripStep)
        Shapes::drawGrips(context, upright ? Qt::Vertical : Qt::Horizontal, from,
                          from + GripCount * GripStep, across, ground);
}

void paintRubberBand(const PaintContext& context, const QStyleOptionRubberBand& band)
{
    constexpr int Opaque = 255;
    const QColor color = themeValues().colors.value(ThemeNames::MainColor);
    QColor fill = color;
    fill.setAlpha(int(themeValues().opacities.value(ThemeNames::RubberBandOpacity) * Opaque));
    const bool ofCard =
        context.widget && WidgetTraits::isCardWidget(context.widget->parentWidget());
    Shapes::drawBox(context, band.rect, ofCard ? Shapes::cornerRadius(ThemeNames::MediumSize) : 0,
                    band.shape == QRubberBand::Rectangle ? QBrush(fill) : QBrush(), color);
}

} // namespace BRELK::WindowParts
