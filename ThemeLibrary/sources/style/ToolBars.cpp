#include "Families.h"
#include "OwnColors.h"
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
    // One surface with the menu bar, deeper than the window.
    const bool enabled = context.widget ? context.widget->isEnabled() : context.enabled();
    const QBrush ground = OwnColors::ground(
        context, QPalette::Window,
        themeValues().brushes.value(ThemeNames::BackgroundSubLevel2Brush, enabled));
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
