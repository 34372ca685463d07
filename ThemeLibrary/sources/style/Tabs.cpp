#include "Families.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "TabSides.h"
#include "ThemeNames.h"

#include <QApplication>
#include <QPainterPath>
#include <QTabBar>

// Tab bars and tab widgets.
//
// Properties, of the bar or widget and with "app" in front of the application:
// "currentTabHighlighted", "smallTabSize", "baseTabSize", "mediumTabSize", "largeTabSize"; of a tab
// widget: "stretched".

namespace BRELK::Tabs {

using TabSides::Side;

namespace {

constexpr int CloseButtonInset = 2;
constexpr int SelectedTextGain = 2;

bool isCurrentTabHighlighted(const StyleContext& context)
{
    return WidgetProperties::tabFlag(context.widget, WidgetProperties::CurrentTabHighlighted)
           || WidgetProperties::flag(qApp, WidgetProperties::AppCurrentTabHighlighted);
}

bool hasWiderText(const StyleContext& context, const QStyleOptionTab& tab)
{
    return context.widget && !isCurrentTabHighlighted(context)
           && context.style.getTabBackgroundState(tab) == BaseStyle::TabBackground_Selected;
}

} // namespace

QRect barRect(const StyleContext& context, const QStyleOptionTabWidgetFrame& frame,
              QStyle::SubElement element)
{
    const QRect base = context.baseRect(element);
    if (!context.flag(WidgetProperties::Stretched))
        return base;
    const Side side = TabSides::of(frame.shape);
    QRect rect = base;
    if (side == Side::West || side == Side::East)
        rect.setHeight(context.widget->height());
    else
        rect.setWidth(context.widget->width());
    if (context.rightToLeft()) // Deliberate: it grows to where the tabs go on.
        rect.moveRight(base.right());
    return rect;
}

QRect textRect(const StyleContext& context, const QStyleOptionTab& tab, QStyle::SubElement element)
{
    const QRect rect = context.style.QCommonStyle::subElementRect(element, &tab, context.widget);
    if (!hasWiderText(context, tab))
        return rect;
    switch (TabSides::of(tab.shape)) {
    case Side::West: return rect.adjusted(0, -SelectedTextGain, 0, 0);
    case Side::East: return rect.adjusted(0, 0, 0, SelectedTextGain);
    default: return rect.adjusted(0, 0, SelectedTextGain, 0);
    }
}

QRect rightButtonRect(const StyleContext& context, const QStyleOptionTab& tab,
                      QStyle::SubElement element)
{
    QRect rect = context.baseRect(element);
    switch (tab.shape) {
    case QTabBar::RoundedNorth:
    case QTabBar::RoundedSouth:
        if (context.rightToLeft()) // Deliberate: the far edge is where the text ends.
            rect.moveLeft(tab.rect.left() + CloseButtonInset);
        else
            rect.moveRight(tab.rect.right() - CloseButtonInset);
        break;
    case QTabBar::RoundedWest: rect.moveTop(tab.rect.top() + CloseButtonInset); break;
    case QTabBar::RoundedEast: rect.moveBottom(tab.rect.bottom() - CloseButtonInset); break;
    default: break;
    }
    return rect;
}

namespace {

/// Deliberate: unlike the font, only the properties of the bar and of its tab widget decide.
ThemeNames::RadiusName radiusName(const QWidget* bar)
{
    if (WidgetProperties::tabFlag(bar, WidgetProperties::SmallTabSize))
        return ThemeNames::SmallSize;
    if (WidgetProperties::tabFlag(bar, WidgetProperties::BaseTabSize))
        return ThemeNames::BaseSize;
    if (WidgetProperties::tabFlag(bar, WidgetProperties::MediumTabSize))
        return ThemeNames::MediumSize;
    return WidgetProperties::tabFlag(bar, WidgetProperties::LargeTabSize) ? ThemeNames::LargeSize
                                                                          : ThemeNames::MediumSize;
}

bool isTriangular(QTabBar::Shape shape)
{
    return shape >= QTabBar::TriangularNorth;
}

/// A tab with slanted sides: a trapezium with cut corners, ten points drawn for a tab above its
/// page and turned for the others.
QPolygonF triangularTab(const QRectF& rect, Side side)
{
    constexpr qreal Slant = 8;
    constexpr qreal Cut = 2;
    const bool upright = TabSides::isUpright(side);
    const qreal length = upright ? rect.height() : rect.width();
    const qreal depth = upright ? rect.width() : rect.height();
    QPolygonF points;
    points << QPointF(0, depth) << QPointF(Cut, depth - Cut) << QPointF(Slant - Cut, Cut)
           << QPointF(Slant, Cut / 2) << QPointF(Slant + Cut, 0) << QPointF(length - Slant - Cut, 0)
           << QPointF(length - Slant, Cut / 2) << QPointF(length - Slant + Cut, Cut)
           << QPointF(length - Cut, depth - Cut) << QPointF(length, depth);
    for (QPointF& point : points) {
        switch (side) {
        case Side::North: point += rect.topLeft(); break;
        case Side::South: point = {rect.left() + point.x(), rect.bottom() - point.y()}; break;
        case Side::West: point = {rect.left() + point.y(), rect.top() + point.x()}; break;
        case Side::East: point = {rect.right() - point.y(), rect.top() + point.x()}; break;
        }
    }
    return points;
}

bool isFirst(const QStyleOptionTab& tab)
{
    return tab.position == QStyleOptionTab::Beginning
           || tab.position == QStyleOptionTab::OnlyOneTab;
}

/// Tabs that are not selected are a little lower and end at the line that the page begins with.
/// Neighbours share one border line.
QRect shapeRect(const PaintContext& context, const QStyleOptionTab& tab, Side side, bool selected)
{
    constexpr int Lowering = 2;
    const int overlap = isFirst(tab) ? 0 : 1;
    const int lowering = selected ? 0 : Lowering;
    const int line = selected ? 0 : context.metric(QStyle::PM_TabBarBaseOverlap);
    const int toLeft = tab.direction == Qt::RightToLeft ? 0 : overlap;
    const int toRight = overlap - toLeft;
    switch (side) {
    case Side::North: return tab.rect.adjusted(-toLeft, lowering, toRight, -line);
    case Side::South: return tab.rect.adjusted(-toLeft, line, toRight, -lowering);
    case Side::West: return tab.rect.adjusted(lowering, -overlap, -line, 0);
    default: return tab.rect.adjusted(line, -overlap, -lowering, 0);
    }
}

QBrush tabBackground(const PaintContext& context, BaseStyle::TabBackgroundState state)
{
    constexpr int Depth = 8; ///< percent, by which tabs in the application's color lie behind
    const bool selected = state == BaseStyle::TabBackground_Selected;
    const QBrush& themed = context.brush(selected ? ThemeNames::TabBackgroundActiveBrush
                                                  : ThemeNames::TabBackgroundBrush);
    if (!OwnColors::has(context, QPalette::Window))
        return themed;
    const QBrush own = OwnColors::ground(context, QPalette::Window, themed);
    return selected ? own : OwnColors::deeper(own, Depth);
}

QBrush themedForeground(const PaintContext& context, BaseStyle::TabBackgroundState state,
                        const QBrush& given)
{
    if (!context.enabled())
        return context.brush(ThemeNames::ForegroundDisabledBrush);
    switch (state) {
    case BaseStyle::TabBackground_Highlighted:
        return context.brush(ThemeNames::TabForegroundMouseOverBrush);
    case BaseStyle::TabBackground_Selected:
        return isCurrentTabHighlighted(context)
                   ? QBrush(context.color(ThemeNames::MainUpLevel1Color))
                   : given;
    default: return given;
    }
}

QBrush tabForeground(const PaintContext& context, const QStyleOptionTab& tab)
{
    const QBrush given = tab.palette.brush(QPalette::WindowText);
    if (context.widget && given != context.widget->palette().brush(QPalette::WindowText))
        return given; // the application colors this tab
    const BaseStyle::TabBackgroundState state = context.style.getTabBackgroundState(tab);
    const QBrush themed = themedForeground(context, state, given);
    if (!OwnColors::has(context, QPalette::Window)
        && !OwnColors::has(context, QPalette::WindowText))
        return themed;
    if (OwnColors::isForThis(context, QPalette::WindowText))
        return themed;
    return OwnColors::readable(tabBackground(context, state),
                               {themed, given, context.style.getPalette().windowText()});
}

/// `rect` without what of its last row, which it shares with the page, the page's line leaves free
/// at scales between whole ones.
QRectF upToPage(const PaintContext& context, const QRectF& rect, Side side)
{
    const qreal rest = 1 - Shapes::borderInside(context.painter, rect, Qt::black).pen.widthF();
    switch (side) {
    case Side::North: return rect.adjusted(0, 0, 0, -rest);
    case Side::South: return rect.adjusted(0, rest, 0, 0);
    case Side::West: return rect.adjusted(0, 0, -rest, 0);
    default: return rect.adjusted(rest, 0, 0, 0);
    }
}

QRectF outerEdges(const Shapes::Border& border)
{
    const qreal half = border.pen.widthF() / 2;
    return border.line.adjusted(-half, -half, half, half);
}

/// A square border, quicker than as a box; where two sides meet it is painted once.
void paintEdges(const PaintContext& context, const QRect& rect, const QBrush& brush)
{
    const Shapes::Border border = Shapes::borderInside(context.painter, rect, brush);
    const qreal width = border.pen.widthF();
    for (const Side edge : {Side::North, Side::South, Side::West, Side::East}) {
        const QRectF line =
            TabSides::along(edge, outerEdges(border), TabSides::isUpright(edge) ? width : 0, width);
        if (line.height() > 0)
            context.painter.fillRect(line, brush);
    }
}

} // namespace

void paintFrame(const PaintContext& context)
{
    const PainterSaver saver(context.painter);
    const QRect& rect = context.option.rect;
    context.painter.fillRect(
        QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5),
        OwnColors::ground(context, QPalette::Window,
                          context.brush(ThemeNames::TabBackgroundActiveBrush)));
    if (const auto* frame = qstyleoption_cast<const QStyleOptionTabWidgetFrame*>(&context.option)) {
        // The selected tab and its page are one surface: no line between them.
        const Side side = TabSides::of(frame->shape);
        const bool upright = TabSides::isUpright(side);
        const QRect tab = frame->selectedTabRect & rect.adjusted(-1, -1, 1, 1);
        const QRect gap =
            tab.adjusted(upright ? 0 : 1, upright ? 1 : 0, upright ? 0 : -1, upright ? -1 : 0);
        context.painter.setClipRegion(QRegion(rect).subtracted(gap));
    }
    paintEdges(context, rect, context.borderBrush());
}

void paintBarBase(const PaintContext& context, const QStyleOptionTabBarBase& bar)
{
    const Side side = TabSides::of(bar.shape);
    const QRect edge = TabSides::along(TabSides::opposite(side), bar.rect, 0, 1).toRect();
    const QRegion line = QRegion(edge).subtracted(bar.selectedTabRect);
    for (const QRect& part : line)
        Shapes::drawBox(context, upToPage(context, part, side), 0, context.borderBrush(),
                        Qt::NoBrush);
}

void paintCloseButton(const PaintContext& context)
{
    const QIcon icon = context.style.standardIcon(QStyle::SP_DockWidgetCloseButton, &context.option,
                                                  context.widget);
    const QBrush brush = BaseStyle::buttonBrushes(&context.option, context.widget).foregroundBrush;
    Shapes::drawIcon(context, icon, brush, context.option.rect,
                     context.metric(QStyle::PM_TabCloseIndicatorWidth));
}

void paintShape(const PaintContext& context, const QStyleOptionTab& tab)
{
    const BaseStyle::TabBackgroundState state = context.style.getTabBackgroundState(tab);
    const bool selected = state == BaseStyle::TabBackground_Selected;
    const bool highlighted = state == BaseStyle::TabBackground_Highlighted;
    const QBrush fill = tabBackground(context, state);
    const QBrush border =
        highlighted ? context.brush(ThemeNames::TabBorderMouseOverBrush) : context.borderBrush();
    const Side side = TabSides::of(tab.shape);
    const QRect rect = shapeRect(context, tab, side, selected);

    if (isTriangular(tab.shape)) {
        const PainterSaver saver(context.painter);
        QPainterPath path;
        const Shapes::Border edge = Shapes::borderInside(context.painter, rect, border);
        path.addPolygon(triangularTab(edge.line, side));
        context.painter.setRenderHint(QPainter::Antialiasing);
        context.painter.setPen(edge.pen);
        context.painter.setBrush(fill);
        context.painter.drawPath(path);
        return;
    }
    const QRectF shape = selected ? upToPage(context, rect, side) : QRectF(rect);
    Shapes::drawBox(context, shape, Shapes::cornerRadius(radiusName(context.widget)), fill, border,
                    TabSides::pageCorners(side));
    constexpr int AccentThickness = 2;
    constexpr int AccentInset = 8; // clear of the round corners
    const Shapes::Border line = Shapes::borderInside(context.painter, shape, border);
    const qreal width = line.pen.widthF();
    if (line.pen.style() != Qt::NoPen)
        context.painter.fillRect(
            TabSides::along(TabSides::opposite(side), outerEdges(line), width, width), fill);
    if (selected)
        Shapes::drawBox(context, TabSides::along(side, rect, AccentInset, AccentThickness), 0,
                        context.brush(ThemeNames::MainBrush), QBrush());
}

namespace {

/// Turns the painter so that the label of an upright tab can be drawn lying, from the corner where
/// the text begins.
void turn(QPainter& painter, const QRect& rect, Side side)
{
    constexpr int RightAngle = 90;
    const QRect edges = rect.adjusted(0, 0, 1, 1);
    painter.translate(side == Side::East ? edges.topRight() : edges.bottomLeft());
    painter.rotate(side == Side::East ? RightAngle : -RightAngle);
}

/// The icon stands before the text, where the common style left room for it.
void paintIcon(const PaintContext& context, const QStyleOptionTab& tab, const QBrush& brush)
{
    constexpr int Spacing = 4;
    const QRect text =
        context.style.QCommonStyle::subElementRect(QStyle::SE_TabBarTabText, &tab, context.widget);
    const int extent = context.metric(QStyle::PM_TabBarIconSize);
    const QSize wanted = tab.iconSize.isValid() ? tab.iconSize : QSize(extent, extent);
    const QSize size = tab.icon.actualSize(wanted).boundedTo(wanted);
    QRect rect(text.left() - Spacing - size.width(), text.y(), size.width(), text.height());
    if (context.rightToLeft() && !TabSides::isUpright(TabSides::of(tab.shape)))
        rect.moveLeft(text.right() + 1 + Spacing);
    const QIcon::State state = context.has(QStyle::State_Selected) ? QIcon::On : QIcon::Off;
    Shapes::drawIcon(context, tab.icon, brush, rect, size, state);
}

/// Deliberate: where the text gains room on one side in both directions, it stands mirrored.
QRect labelRect(const PaintContext& context, const QStyleOptionTab& tab)
{
    const QRect rect = context.part(QStyle::SE_TabBarTabText);
    const bool isMirrored = context.rightToLeft() && !TabSides::isUpright(TabSides::of(tab.shape));
    return isMirrored && hasWiderText(context, tab) ? rect.translated(-SelectedTextGain, 0) : rect;
}

/// `rect` without what lies, along the tab, from `button` to the tab's end.
QRect beside(QRect rect, const QRect& button, bool upright)
{
    constexpr int Distance = 1;
    if (!rect.intersects(button))
        return rect;
    const QPoint middle = rect.center();
    if (upright && button.center().y() < middle.y())
        rect.setTop(button.bottom() + 1 + Distance);
    else if (upright)
        rect.setBottom(button.top() - 1 - Distance);
    else if (button.center().x() < middle.x())
        rect.setLeft(button.right() + 1 + Distance);
    else
        rect.setRight(button.left() - 1 - Distance);
    return rect;
}

void paintFocus(const PaintContext& context, const QStyleOptionTab& tab)
{
    const int inset = 2 + context.metric(QStyle::PM_DefaultFrameWidth);
    const bool upright = TabSides::isUpright(TabSides::of(tab.shape));
    auto focus = optionFrom<QStyleOptionFocusRect>(tab);
    focus.rect.adjust(inset, inset, -inset, -inset);
    // Qt places the buttons across the tab as if that were at the origin.
    QStyleOptionTab atOrigin = tab;
    atOrigin.rect.moveTo(0, 0);
    const auto part = [&](QStyle::SubElement element) {
        return context.proxy()
            .subElementRect(element, &atOrigin, context.widget)
            .translated(tab.rect.topLeft());
    };
    if (!tab.leftButtonSize.isEmpty())
        focus.rect = beside(focus.rect, part(QStyle::SE_TabBarTabLeftButton), upright);
    if (!tab.rightButtonSize.isEmpty())
        focus.rect = beside(focus.rect, part(QStyle::SE_TabBarTabRightButton), upright);
    context.draw(QStyle::PE_FrameFocusRect, focus);
}

/// The picture of a tab that is dragged is painted by a painter that nobody gave the bar's font.
void setFontOfDragged(const PaintContext& context)
{
    const auto* bar = qobject_cast<const QTabBar*>(context.widget);
    if (bar && bar->isMovable() && context.painter.font() == QFont())
        context.painter.setFont(bar->font());
}

} // namespace

void paintLabel(const PaintContext& context, const QStyleOptionTab& tab)
{
    const QBrush foreground = tabForeground(context, tab);
    const Side side = TabSides::of(tab.shape);
    {
        const PainterSaver saver(context.painter);
        setFontOfDragged(context);
        if (TabSides::isUpright(side))
            turn(context.painter, tab.rect, side);
        if (!tab.icon.isNull())
            paintIcon(context, tab, foreground);
        Shapes::drawText(context, labelRect(context, tab), Qt::AlignCenter | Qt::TextShowMnemonic,
                         tab.text, foreground);
    }
    if (context.has(QStyle::State_HasFocus))
        paintFocus(context, tab);
}

} // namespace BRELK::Tabs
