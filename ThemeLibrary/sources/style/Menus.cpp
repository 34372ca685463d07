#include "ArrowIcons.h"
#include "Families.h"
#include "Foregrounds.h"
#include "Opacities.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "Texts.h"
#include "ThemeNames.h"

#include <qdrawutil.h>

// Menus and menu bars.

namespace BRELK::Menus {

namespace {

constexpr int PanelMargin = 4;
constexpr int RowPadding = 5;
constexpr int SeparatorHeight = 9;
constexpr int ItemPadding = 8;
constexpr int ShortcutSpacing = 24; ///< between a text and the shortcuts
constexpr int BarItemPadding = 8;
constexpr int BarRowPadding = 4;

} // namespace

int panelMargin(const MeasureContext& context)
{
    return context.metric(QStyle::PM_MenuHMargin) + context.dpiScaled(PanelMargin);
}

namespace {

/// The columns of a row, from its start to its end; the shortcut stands at the end of the text
/// column.
struct Columns
{
    int mark; ///< check mark or icon, with the room around it
    int end; ///< the arrow of a submenu, with the room around it
};

Columns columnsOf(const MeasureContext& context, const QStyleOptionMenuItem& item)
{
    const int padding = context.dpiScaled(ItemPadding);
    const int mark = qBound(context.indicatorSize(), item.maxIconWidth, QWIDGETSIZE_MAX);
    return {mark + 2 * padding, context.indicatorSize() + padding};
}

bool isSection(const QStyleOptionMenuItem& item)
{
    return item.menuItemType == QStyleOptionMenuItem::Separator && !item.text.isEmpty();
}

} // namespace

QSize itemSize(const MeasureContext& context, const QStyleOptionMenuItem& item,
               const QSize& contents)
{
    if (item.menuItemType == QStyleOptionMenuItem::Separator && !isSection(item))
        return {contents.width(), context.dpiScaled(SeparatorHeight)};
    const Columns columns = columnsOf(context, item);
    const int height =
        qMax(contents.height() + context.dpiScaled(PanelMargin), context.rowHeight(RowPadding));
    return {columns.mark + contents.width() + context.dpiScaled(ShortcutSpacing) + columns.end,
            height};
}

QSize barItemSize(const MeasureContext& context, const QStyleOptionMenuItem&, const QSize& contents)
{
    return {contents.width() + 2 * context.dpiScaled(BarItemPadding),
            qMax(contents.height(), context.rowHeight(BarRowPadding))};
}

namespace {

/// Of the popup of a combo box that a menu's delegate paints.
bool isComboBoxItem(const QStyleOptionMenuItem& item)
{
    return WidgetProperties::flag(item.styleObject, WidgetProperties::IsComboBoxPopupItem);
}

bool isSelected(const StyleContext& context)
{
    return context.has(QStyle::State_Selected) && context.enabled();
}

void paintSeparator(const PaintContext& context, const QStyleOptionMenuItem& item)
{
    const int padding = context.measure().dpiScaled(ItemPadding);
    QRect rect = item.rect.adjusted(padding, 0, -padding, 0);
    const QBrush& line = context.style.lightOutlineBrush(item.palette);
    if (isSection(item)) {
        QFont font = item.font;
        font.setBold(true);
        context.painter.setFont(font);
        const int width =
            qMin(context.painter.fontMetrics().horizontalAdvance(item.text), rect.width());
        const QRect text(rect.x(), rect.y(), width, rect.height());
        Shapes::drawText(context, context.visual(text), Qt::AlignCenter | Qt::TextSingleLine,
                         item.text, item.palette.brush(QPalette::Text));
        rect.setLeft(text.right() + padding);
    }
    rect = context.visual(rect);
    if (rect.width() > 0)
        Shapes::drawLine(context, {rect.left(), rect.center().y()},
                         {rect.right(), rect.center().y()}, line);
}

/// Quieter than the mark inside it, in the same color.
void paintMarkBorder(const PaintContext& context, const QRect& rect, int radius,
                     const QBrush& brush)
{
    const qreal opacity = context.painter.opacity();
    context.painter.setOpacity(isSelected(context) ? opacity : opacity * Opacities::MenuMarkBorder);
    Shapes::drawBox(context, rect, radius, QBrush(), brush);
    context.painter.setOpacity(opacity);
}

/// A box or circle for what can be checked, with the mark in it when it is; an icon in a box when
/// that is checked.
void paintMark(const PaintContext& context, const QStyleOptionMenuItem& item, const QRect& column,
               const QBrush& brush)
{
    const int side = context.measure().indicatorSize();
    QRect rect(0, 0, side, side);
    rect.moveCenter(column.center());
    const bool checkable = item.checkType != QStyleOptionMenuItem::NotCheckable;
    if (!item.icon.isNull()) {
        const QIcon::State state = item.checked ? QIcon::On : QIcon::Off;
        const int extent = context.metric(QStyle::PM_SmallIconSize);
        if (checkable && item.checked)
            paintMarkBorder(context, rect.adjusted(-2, -2, 2, 2), 2, brush);
        Shapes::drawIcon(context, item.icon, brush, column, QSize(extent, extent), state);
    } else if (checkable) {
        const bool exclusive = item.checkType == QStyleOptionMenuItem::Exclusive;
        paintMarkBorder(context, rect, exclusive ? side / 2 : 2, brush);
        if (item.checked && exclusive)
            context.style.drawRadioMark(&context.painter, rect.adjusted(2, 2, -2, -2), brush);
        else if (item.checked)
            context.style.drawCheckMark(&context.painter, rect, brush);
    }
}

void paintTexts(const PaintContext& context, const QStyleOptionMenuItem& item, const QRect& rect,
                const QBrush& brush)
{
    const bool isDefault = item.menuItemType == QStyleOptionMenuItem::DefaultItem;
    QFont font = item.font;
    if (isDefault)
        font.setBold(true);
    context.painter.setFont(font);
    const int tab = item.text.indexOf(QLatin1Char('\t'));
    const int textFlags = int(QStyle::visualAlignment(item.direction, Qt::AlignLeft))
                          | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextSingleLine
                          | Qt::TextDontClip;
    QRect textRect = rect;
    if (tab >= 0) {
        // The menu measured it as it is in other items, which are not bold.
        const int boldWidth =
            isDefault ? Texts::width(context.painter, 0, item.text.mid(tab + 1)) : 0;
        const int shortcutWidth = qBound(0, qMax(item.tabWidth, boldWidth), rect.width());
        const QRect shortcut(rect.right() + 1 - shortcutWidth, rect.y(), shortcutWidth,
                             rect.height());
        const int flags = int(QStyle::visualAlignment(item.direction, Qt::AlignRight))
                          | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip;
        Shapes::drawText(context, context.visual(shortcut), flags, item.text.mid(tab + 1), brush);
        textRect.setRight(shortcut.left() - 1);
    }
    Shapes::drawText(context, context.visual(textRect), textFlags,
                     tab >= 0 ? item.text.left(tab) : item.text, brush);
}

QBrush selectionBrush(const StyleContext& context)
{
    return OwnColors::ground(context, QPalette::Highlight, context.color(ThemeNames::MainColor));
}

QBrush selectedBrush(const StyleContext& context)
{
    return OwnColors::words(context, QPalette::HighlightedText, QPalette::Highlight,
                            context.color(ThemeNames::MainColor));
}

QBrush itemBrush(const PaintContext& context, const QStyleOptionMenuItem& item)
{
    if (isSelected(context))
        return selectedBrush(context);
    if (isComboBoxItem(item)) {
        const QBrush themed = BaseStyle::buttonBrushes(&item, context.widget).foregroundBrush;
        if (!OwnColors::has(context, QPalette::Text) && themed.style() != Qt::NoBrush)
            return themed;
    }
    return OwnColors::words(context, QPalette::Text, QPalette::Base,
                            context.brush(ThemeNames::BackgroundSubLevel1Brush));
}

/// What lies behind a whole menu bar: one surface, with or without disabled items. The toolkit asks
/// for the empty area without a state.
QBrush barBrush(const PaintContext& context)
{
    const bool enabled = context.widget ? context.widget->isEnabled() : context.enabled();
    const QBrush& themed =
        themeValues().brushes.value(ThemeNames::BackgroundSubLevel2Brush, enabled);
    return OwnColors::ground(context, QPalette::Window, themed);
}

} // namespace

void paintPanel(const PaintContext& context)
{
    constexpr int BorderDarkness = 160;
    if (context.option.rect.isEmpty())
        return;
    const PainterSaver saver(context.painter);
    const QColor border = context.option.palette.color(QPalette::Window).darker(BorderDarkness);
    const QBrush fill = OwnColors::ground(
        context, QPalette::Base, themeValues().brushes.value(ThemeNames::BackgroundSubLevel1Brush));
    const QRect& rect = context.option.rect;
    qDrawPlainRect(&context.painter, rect, border, 1, &fill);
    // On a dark screen a darker edge is not seen: there a light one lies inside it.
    if (fill.style() == Qt::SolidPattern && !Shapes::isLight(fill.color()))
        Shapes::drawInnerBorder(context, rect, 0, BaseStyle::getBorderBrush(true));
}

void paintItem(const PaintContext& context, const QStyleOptionMenuItem& item)
{
    const PainterSaver saver(context.painter);
    if (isSelected(context))
        context.painter.fillRect(item.rect, selectionBrush(context));
    else if (isComboBoxItem(item))
        context.painter.fillRect(item.rect, context.brush(ThemeNames::BackgroundSubLevel1Brush));
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        paintSeparator(context, item);
        return;
    }
    const MeasureContext measure = context.measure();
    const Columns columns = columnsOf(measure, item);
    const QRect& rect = item.rect;
    const QBrush brush = itemBrush(context, item);
    const QRect mark(rect.x(), rect.y(), columns.mark, rect.height());
    paintMark(context, item, context.visual(mark), brush);
    paintTexts(context, item, rect.adjusted(columns.mark, 0, -columns.end, 0), brush);

    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        QStyleOptionMenuItem arrow = item;
        const int side = measure.indicatorSize();
        arrow.rect = context.visual(
            {rect.right() + 1 - columns.end, rect.y() + (rect.height() - side) / 2, side, side});
        Foregrounds::set(arrow, brush);
        ArrowIcons::drawOf(context,
                           context.rightToLeft() ? QStyle::PE_IndicatorArrowLeft
                                                 : QStyle::PE_IndicatorArrowRight,
                           arrow);
    }
}

void paintTearoff(const PaintContext& context, const QStyleOptionMenuItem& item)
{
    // Deliberate: the base style gets an option made ready for it. It fills the row with the color
    // of buttons and draws two dashed lines, a dark and a light one: here the color of menus and
    // one line like that of separators.
    const QBrush fill = OwnColors::ground(
        context, QPalette::Base, themeValues().brushes.value(ThemeNames::BackgroundSubLevel1Brush));
    QStyleOptionMenuItem tearoff = item;
    tearoff.palette.setBrush(QPalette::Button, fill);
    tearoff.palette.setBrush(QPalette::Dark, context.style.lightOutlineBrush(item.palette));
    tearoff.palette.setBrush(QPalette::Light, Qt::transparent);
    context.style.QProxyStyle::drawControl(QStyle::CE_MenuTearoff, &tearoff, &context.painter,
                                           context.widget);
}

void paintBarItem(const PaintContext& context, const QStyleOptionMenuItem& item)
{
    constexpr int HoverLine = 2;
    const PainterSaver saver(context.painter);
    const QRect& rect = item.rect;
    const bool open = isSelected(context) && BaseStyle::isPressed(item);
    const QBrush main = selectionBrush(context);
    context.painter.fillRect(rect, open ? main : barBrush(context));
    if (isSelected(context) && !open)
        context.painter.fillRect(
            QRect(rect.x(), rect.bottom() + 1 - HoverLine, rect.width(), HoverLine), main);

    const bool isOwn = OwnColors::has(context, QPalette::Window);
    const QBrush brush =
        open ? selectedBrush(context)
             : OwnColors::words(context, isOwn ? QPalette::WindowText : QPalette::ButtonText,
                                QPalette::Window, barBrush(context));
    if (item.icon.isNull()) {
        Shapes::drawText(context, rect,
                         Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine
                             | Qt::TextDontClip,
                         item.text, brush);
        return;
    }
    Shapes::drawIcon(context, item.icon, brush, rect, context.metric(QStyle::PM_SmallIconSize));
}

void paintBarEmptyArea(const PaintContext& context)
{
    context.painter.fillRect(context.option.rect, barBrush(context));
}

} // namespace BRELK::Menus
