#include "Families.h"
#include "Shapes.h"
#include "ThemeNames.h"

#include <QFrame>

// The parts of cards: header, contents and footer.
//
// Properties, of the part: "CardWidgetBase_Header", "CardWidgetBase_Contents",
// "CardWidgetBase_Footer", "shape"; of the card around it: "CardWidget_NoCornerRadius",
// "expandable", "footerVisible", "headerVisible", "invertedAppearance", "minimized".

namespace BRELK::Cards {

namespace {

using Corners = Helpers::StraightCornerFlags;

/// Cards set their properties on themselves or on their parts.
bool cardFlag(const StyleContext& context, const char* property)
{
    return context.flag(property) || WidgetProperties::flag(context.widget->parent(), property);
}

int partRadius(const StyleContext& context)
{
    const QVariant shape = context.property(WidgetProperties::Shape);
    const bool square = cardFlag(context, WidgetProperties::CardNoCornerRadius)
                        || (shape.isValid() && shape.toInt() == QFrame::NoFrame);
    return square ? 0 : Shapes::cornerRadius(ThemeNames::mediumSize());
}

/// A header is round at the outer end of the card, which is its lower end in an inverted card. A
/// collapsed card is all header.
void paintEnd(const PaintContext& context, bool isUpper)
{
    const bool alone = cardFlag(context, WidgetProperties::Minimized);
    const Corners corners = alone     ? Helpers::None
                            : isUpper ? Helpers::BottomCorners
                                      : Helpers::TopCorners;
    const QRect& rect = context.option.rect;
    Shapes::drawBox(context, rect, partRadius(context),
                    context.brush(ThemeNames::backgroundUpLevel1Brush()), Qt::NoBrush, corners);
    if (alone)
        return;
    const QBrush line = cardFlag(context, WidgetProperties::Expandable)
                            ? QBrush(context.color(ThemeNames::backgroundUpLevel2Color()))
                            : context.borderBrush();
    if (isUpper)
        Shapes::drawLine(context, rect.bottomLeft(), rect.bottomRight(), line);
    else
        Shapes::drawLine(context, rect.topLeft(), rect.topRight(), line);
}

/// The contents are round wherever no header or footer lies.
void paintContents(const PaintContext& context, bool inverted)
{
    const bool hasHeader = cardFlag(context, WidgetProperties::HeaderVisible);
    const bool hasFooter = cardFlag(context, WidgetProperties::FooterVisible);
    Corners corners;
    if (inverted ? hasFooter : hasHeader)
        corners |= Helpers::TopCorners;
    if (inverted ? hasHeader : hasFooter)
        corners |= Helpers::BottomCorners;
    Shapes::drawBox(context, context.option.rect, partRadius(context),
                    context.option.palette.brush(QPalette::Window), Qt::NoBrush, corners);
}

} // namespace

void paintWidget(const PaintContext& context)
{
    if (!context.widget)
        return;
    const bool inverted = cardFlag(context, WidgetProperties::InvertedAppearance);
    if (context.flag(WidgetProperties::CardHeader))
        paintEnd(context, !inverted);
    else if (context.flag(WidgetProperties::CardFooter))
        paintEnd(context, inverted);
    else if (context.flag(WidgetProperties::CardContents))
        paintContents(context, inverted);
}

} // namespace BRELK::Cards
