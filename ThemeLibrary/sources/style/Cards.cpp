#include "Families.h"
#include "OwnColors.h"
#include "PainterSaver.h"
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

/// Nothing of a frame: neither round corners nor a border.
bool isFrameless(const StyleContext& context)
{
    const QVariant shape = context.property(WidgetProperties::Shape);
    return shape.isValid() && shape.toInt() == QFrame::NoFrame;
}

int partRadius(const StyleContext& context)
{
    return isFrameless(context) || cardFlag(context, WidgetProperties::CardNoCornerRadius)
               ? 0
               : Shapes::cornerRadius(ThemeNames::MediumSize);
}

/// The parts share the border of the card: it is left out, beyond the part's end, where the next
/// part begins.
void paintPart(const PaintContext& context, const QBrush& fill, Corners joined)
{
    const int above = joined & Helpers::TopCorners ? -1 : 0;
    const int below = joined & Helpers::BottomCorners ? 1 : 0;
    const PainterSaver saver(context.painter);
    context.painter.setClipRect(context.option.rect, Qt::IntersectClip);
    Shapes::drawBox(context, context.option.rect.adjusted(0, above, 0, below), partRadius(context),
                    fill, isFrameless(context) ? QBrush() : context.borderBrush(), joined);
}

/// A header is round at the outer end of the card, which is its lower end in an inverted card. A
/// collapsed card is all header.
void paintEnd(const PaintContext& context, bool isUpper)
{
    const bool alone = cardFlag(context, WidgetProperties::Minimized);
    const Corners joined = alone     ? Helpers::None
                           : isUpper ? Helpers::BottomCorners
                                     : Helpers::TopCorners;
    paintPart(context,
              OwnColors::ground(context, QPalette::Window,
                                context.brush(ThemeNames::BackgroundUpLevel1Brush)),
              joined);
    if (alone)
        return;
    const QRect& rect = context.option.rect;
    const QBrush line = cardFlag(context, WidgetProperties::Expandable)
                            ? QBrush(context.color(ThemeNames::BackgroundUpLevel2Color))
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
    Corners joined;
    if (inverted ? hasFooter : hasHeader)
        joined |= Helpers::TopCorners;
    if (inverted ? hasHeader : hasFooter)
        joined |= Helpers::BottomCorners;
    paintPart(context, context.option.palette.brush(QPalette::Window), joined);
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
