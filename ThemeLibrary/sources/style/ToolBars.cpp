#include "Families.h"
#include "Shapes.h"
#include "ThemeNames.h"

#include <QComboBox>

// Tool bars, their handles and separators.

namespace BRELK::ToolBars {

void paintHandle(const PaintContext& context)
{
    constexpr int EndMargin = 6;
    const QRect& rect = context.option.rect;
    const QPoint middle((rect.width() - Shapes::GripSize) / 2,
                        (rect.height() - Shapes::GripSize) / 2);
    if (context.has(QStyle::State_Horizontal))
        Shapes::drawGrips(context, Qt::Vertical, rect.top() + EndMargin, rect.bottom() - EndMargin,
                          rect.left() + middle.x());
    else
        Shapes::drawGrips(context, Qt::Horizontal, rect.left() + EndMargin,
                          rect.right() - EndMargin, rect.top() + middle.y());
}

void paintSeparator(const PaintContext& context)
{
    constexpr int SeparatorMargin = 4;
    // In the popup of a combo box it parts rows from edge to edge.
    const int endMargin = qobject_cast<const QComboBox*>(context.widget) ? 0 : SeparatorMargin;
    const QRect& rect = context.option.rect;
    const QBrush brush = context.color(ThemeNames::BackgroundUpLevel1Color);
    const QPoint centre = rect.center();
    if (context.has(QStyle::State_Horizontal))
        Shapes::drawLine(context, {centre.x(), rect.top() + endMargin},
                         {centre.x(), rect.bottom() - endMargin}, brush);
    else
        Shapes::drawLine(context, {rect.left() + endMargin, centre.y()},
                         {rect.right() - endMargin, centre.y()}, brush);
}

void paintToolBar(const PaintContext& context, const QStyleOptionToolBar& toolBar)
{
    const QRect& rect = toolBar.rect;
    if (rect.isEmpty())
        return;
    // Somewhat deeper than the window, so that separators, which are as high as cards, stand out.
    constexpr int LightDepth = 107;
    constexpr int DarkDepth = 160;
    QBrush ground = toolBar.palette.brush(QPalette::Window);
    if (ground.style() == Qt::SolidPattern)
        ground.setColor(
            ground.color().darker(Shapes::isLight(ground.color()) ? LightDepth : DarkDepth));
    context.painter.fillRect(rect, ground);
    // One line between the bars of an area and what they stand around.
    if (toolBar.positionOfLine != QStyleOptionToolBar::End
        && toolBar.positionOfLine != QStyleOptionToolBar::OnlyOne)
        return;
    switch (toolBar.toolBarArea) {
    case Qt::TopToolBarArea:
        Shapes::drawLine(context, rect.bottomLeft(), rect.bottomRight(), context.borderBrush());
        break;
    case Qt::BottomToolBarArea:
        Shapes::drawLine(context, rect.topLeft(), rect.topRight(), context.borderBrush());
        break;
    case Qt::LeftToolBarArea:
        Shapes::drawLine(context, rect.topRight(), rect.bottomRight(), context.borderBrush());
        break;
    case Qt::RightToolBarArea:
        Shapes::drawLine(context, rect.topLeft(), rect.bottomLeft(), context.borderBrush());
        break;
    default: Shapes::drawBox(context, rect, 0, Qt::NoBrush, context.borderBrush()); break;
    }
}

} // namespace BRELK::ToolBars
