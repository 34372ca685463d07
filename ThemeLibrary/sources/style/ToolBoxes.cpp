#include "Families.h"
#include "Foregrounds.h"
#include "Opacities.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

// The tabs of tool boxes.

namespace BRELK::ToolBoxes {

namespace {

/// Whether a style sheet, which draws labels itself, would go on to the label of the tab's own
/// button: it neither mirrors the label nor recolors the icon.
bool leavesLabelToSheet(const PaintContext& context)
{
    const QPaintDevice* device = context.painter.device();
    return device && device->devType() == QInternal::Widget
           && WidgetTraits::isToolBoxButton(static_cast<const QWidget*>(device)) && context.widget
           && !qobject_cast<const BaseStyle*>(context.widget->style());
}

/// Lets the base style fill `rect` with what `part` holds.
void paintLabelPart(const PaintContext& context, QStyleOptionToolBox& part, const QRect& rect)
{
    // What the base style keeps free inside the contents of a tab.
    constexpr int StartMargin = 4;
    constexpr int EndMargin = 8;
    const QRect contents = context.style.QProxyStyle::subElementRect(QStyle::SE_ToolBoxTabContents,
                                                                     &part, context.widget);
    const int start = StartMargin + contents.left() - part.rect.left();
    const int end = EndMargin + part.rect.right() - contents.right();
    part.rect = context.visual(rect).adjusted(-start, 0, end, 0);
    context.style.QProxyStyle::drawControl(QStyle::CE_ToolBoxTabLabel, &part, &context.painter,
                                           context.widget);
}

QBrush tabBrush(const StyleContext& context)
{
    return OwnColors::ground(context, QPalette::Button,
                             context.brush(ThemeNames::BackgroundUpLevel1Brush));
}

} // namespace

void paintTabShape(const PaintContext& context, const QStyleOptionToolBox& tab)
{
    constexpr int OwnStep = 8; ///< percent, of the application's ground
    const QRect& rect = tab.rect;
    const bool pressed = BaseStyle::isPressed(tab);
    const bool raised = pressed || BaseStyle::isHovered(&tab);
    const bool isOwn = OwnColors::has(context, QPalette::Button);
    const QBrush ground = tabBrush(context);
    context.painter.fillRect(rect, raised && isOwn ? OwnColors::deeper(ground, OwnStep) : ground);
    if (raised && !isOwn) {
        QColor step = context.color(ThemeNames::BackgroundUpLevel2Color);
        // A step as light as the words on it is only hinted at.
        if (Shapes::isLight(step) == Shapes::isLight(tab.palette.color(QPalette::ButtonText)))
            step.setAlphaF(Opacities::HoveredToolBoxTab);
        context.painter.fillRect(rect, step);
    }
    // Deliberate: what is pressed is told from what is pointed at by a wider line in the accent.
    const QBrush line = pressed ? context.brush(ThemeNames::MainBrush) : context.borderBrush();
    Shapes::drawLine(context, rect.bottomLeft(), rect.bottomRight(), line);
    if (pressed)
        Shapes::drawLine(context, {rect.left(), rect.bottom() - 1},
                         {rect.right(), rect.bottom() - 1}, line);
    if (leavesLabelToSheet(context)) {
        context.draw(QStyle::CE_ToolBoxTabLabel, tab);
        // Deliberate: the button draws nothing after this but the sheet's label, and asks no style
        // whether it should. It happens under any application sheet, also the library's own, and
        // leaves icons the color they are drawn in: 1.16:1 on the tabs of a light theme.
        context.painter.setClipRect(QRect());
    }
}

void paintTabLabel(const PaintContext& context, const QStyleOptionToolBox& tab)
{
    constexpr int Padding = 10;
    constexpr int IconSpacing = 8;
    const PainterSaver saver(context.painter); // the base style leaves the selected tab's font
    const int iconSize = context.metric(QStyle::PM_SmallIconSize);
    const QBrush brush =
        OwnColors::words(context, QPalette::ButtonText, QPalette::Button, tabBrush(context));
    QRect textRect = tab.rect.adjusted(Padding, 0, -Padding, 0);
    // Deliberate: the base style draws the icon as it gets it and does not mirror, so it gets the
    // two parts one by one.
    if (!tab.icon.isNull()) {
        QStyleOptionToolBox icon = tab;
        icon.text.clear();
        icon.icon = Foregrounds::commonModifyStyleOptionIcon(tab.icon, brush);
        paintLabelPart(context, icon, {textRect.topLeft(), QSize(iconSize, tab.rect.height())});
        textRect.adjust(iconSize + IconSpacing, 0, 0, 0);
    }
    QStyleOptionToolBox text = tab;
    text.icon = QIcon();
    Foregrounds::set(text, brush);
    paintLabelPart(context, text, textRect);
}

} // namespace BRELK::ToolBoxes
