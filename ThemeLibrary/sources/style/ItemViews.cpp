#include "ArrowIcons.h"
#include "Families.h"
#include "Foregrounds.h"
#include "ItemColors.h"
#include "Opacities.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeNames.h"
#include "WidgetTraits.h"

#include <QCursor>
#include <QListView>
#include <QScrollBar>
#include <QTableView>
#include <QTextLayout>

// Lists, tables, trees, column views and their rows.
//
// Properties: "customItemViewPalette", "drawChildIndicatorInListView", "drawItemsSeparators",
// "flatView", "highlightItemsOnMouseHover".

namespace BRELK::ItemViews {

namespace {

int listViewPadding(const BaseStyle& style)
{
    std::optional<int>& padding = themeValues().listViewPadding;
    if (!padding)
        padding = style.pixelMetric(QStyle::PixelMetric(BaseStyle::BRELK_PM_ListViewPadding),
                                    nullptr, nullptr);
    return *padding;
}

bool isInListMode(const QWidget* widget)
{
    const auto* list = qobject_cast<const QListView*>(widget);
    return list && list->viewMode() == QListView::ListMode;
}

/// Whether a row of a list tells, at its end, that its item has children.
bool showsChildren(const QWidget* widget, const QStyleOptionViewItem& item)
{
    const QAbstractItemModel* model = item.index.model();
    return isInListMode(widget) && model
           && WidgetProperties::flag(widget, WidgetProperties::DrawChildIndicatorInListView)
           && !WidgetTraits::isComboBoxList(widget) && model->hasChildren(item.index);
}

} // namespace

QSize itemSize(const MeasureContext& context, const QStyleOptionViewItem& item,
               const QSize& contents)
{
    const QSize base = context.baseSize(QStyle::CT_ItemViewItem, contents);
    const int indicator = showsChildren(context.widget, item) ? context.indicatorSize() : 0;
    return {base.width() + indicator,
            qMax(base.height(), context.metric(QStyle::PM_HeaderDefaultSectionSizeVertical))};
}

QRect markRect(const StyleContext& context, QStyle::SubElement element)
{
    const QRect base = context.baseRect(element);
    if (!base.isValid() || !isInListMode(context.widget)
        || !WidgetTraits::isCascadingListPanel(context.widget))
        return base;
    return base.translated(listViewPadding(context.style), 0);
}

QRect textRect(const StyleContext& context, QStyle::SubElement element)
{
    const QRect base = context.baseRect(element);
    if (!base.isValid() || !isInListMode(context.widget))
        return base;
    if (WidgetTraits::isComboBoxList(context.widget))
        return base.translated(-1, 0);
    if (!WidgetTraits::isCascadingListPanel(context.widget))
        return base;
    const int padding = listViewPadding(context.style);
    return base.adjusted(padding, 0, -padding, 0);
}

namespace {

constexpr int TextMargin = 1; ///< beside the focus margin, between text and rectangle

/// In a table that selects rows, the toolkit repaints the whole row under the mouse, but tells it
/// to one cell.
bool isInHoveredRow(const StyleContext& context, const QStyleOptionViewItem& item)
{
    const auto* table = qobject_cast<const QTableView*>(context.widget);
    if (!table || !table->viewport()->underMouse() || !context.enabled()
        || table->selectionBehavior() != QAbstractItemView::SelectRows)
        return false;
    const QPoint position = table->viewport()->mapFromGlobal(QCursor::pos());
    return table->rowAt(position.y()) == item.index.row();
}

bool isHighlighted(const StyleContext& context, const QStyleOptionViewItem& item)
{
    return (BaseStyle::isHovered(&item) || isInHoveredRow(context, item))
           && context.flag(WidgetProperties::HighlightItemsOnMouseHover);
}

void paintSelection(const PaintContext& context)
{
    if (context.has(QStyle::State_Selected))
        context.painter.fillRect(context.option.rect, ItemColors::selection(context));
}

void paintHover(const PaintContext& context, const QStyleOptionViewItem& item)
{
    if (context.has(QStyle::State_Selected) || !isHighlighted(context, item))
        return;
    const qreal opacity = context.painter.opacity();
    context.painter.setOpacity(opacity * Opacities::HoveredItem);
    context.painter.fillRect(item.rect, context.brush(ThemeNames::MainBrush));
    context.painter.setOpacity(opacity);
}

bool hasSeparators(const StyleContext& context)
{
    if (!context.flag(WidgetProperties::DrawItemsSeparators)
        || context.flag(WidgetProperties::FlatView)
        || WidgetTraits::isInComboBoxPopup(context.widget)
        || WidgetTraits::isPeriodicTable(context.widget))
        return false;
    return !WidgetTraits::isListView(context.widget) || isInListMode(context.widget);
}

/// Whether an item's state calls for another background than the view's, which lies under it
/// already. A view that the application gave a color of its own keeps it.
bool hasThemedBackground(const StyleContext& context)
{
    if (context.enabled() || context.flag(WidgetProperties::CustomItemViewPalette))
        return false;
    return context.option.palette.brush(QPalette::Active, QPalette::Base)
           == themeValues().brushes.value(ThemeNames::ItemViewBackgroundBrush, true);
}

void paintSeparator(const PaintContext& context)
{
    const QRect& rect = context.option.rect;
    constexpr int OwnDepth = 12; ///< percent, on the application's ground
    if (!hasSeparators(context))
        return;
    const QBrush line = OwnColors::has(context, QPalette::Base)
                            ? OwnColors::deeper(context.option.palette.base(), OwnDepth)
                            : context.color(ThemeNames::BackgroundColor);
    Shapes::drawLine(context, rect.bottomLeft(), rect.bottomRight(), line);
}

/// The room that a thin scroll bar over the list takes from its rows.
int scrollBarRoom(const StyleContext& context)
{
    const auto* list = qobject_cast<const QListView*>(context.widget);
    const QScrollBar* bar = list ? list->verticalScrollBar() : nullptr;
    return bar && bar->isVisible() && WidgetTraits::isMinimizedScrollBar(bar)
               ? listViewPadding(context.style)
               : 0;
}

/// The item by which its parts are asked for. The base style lays the text out to place the parts,
/// although where the text gets all the room that is left its size does not matter: 37,000 of the
/// 87,000 instructions that a row then takes. Another style around this one may want to read it.
QStyleOptionViewItem layoutItem(const StyleContext& context, const QStyleOptionViewItem& item)
{
    QStyleOptionViewItem layout = item;
    if (item.showDecorationSelected && &context.proxy() == &context.style)
        layout.text.clear();
    return layout;
}

void paintCheckBox(const PaintContext& context, const QStyleOptionViewItem& item, const QRect& rect)
{
    QStyleOptionViewItem check = item;
    check.rect = rect;
    check.state &= ~QStyle::State_HasFocus;
    check.palette.setCurrentColorGroup(ItemColors::group(context));
    switch (item.checkState) {
    case Qt::Checked: check.state |= QStyle::State_On; break;
    case Qt::PartiallyChecked: check.state |= QStyle::State_NoChange; break;
    default: check.state |= QStyle::State_Off; break;
    }
    context.draw(QStyle::PE_IndicatorItemViewItemCheck, check);
}

void paintIcon(const PaintContext& context, const QStyleOptionViewItem& item, const QRect& rect,
               const QBrush& brush)
{
    const QSize size = item.icon.actualSize(item.decorationSize);
    const QIcon::State state = context.has(QStyle::State_Open) ? QIcon::On : QIcon::Off;
    context.proxy().drawItemPixmap(
        &context.painter, rect,
        int(QStyle::visualAlignment(item.direction, item.decorationAlignment)),
        Shapes::iconPixmap(context, item.icon, brush, size, state));
}

bool isOneLine(const QStyleOptionViewItem& item, const QRect& rect)
{
    return !item.text.contains(QChar::LineSeparator) && !item.text.contains(QLatin1Char('\n'))
           && (!(item.features & QStyleOptionViewItem::WrapText)
               || rect.height() < 2 * item.fontMetrics.height());
}

/// `text` with the last of its lines that fit into `rect` elided when more follow.
QString fittingLines(const QStyleOptionViewItem& item, const QRect& rect, const QString& text)
{
    const bool wraps = item.features & QStyleOptionViewItem::WrapText;
    QTextOption option;
    option.setTextDirection(item.direction);
    option.setWrapMode(wraps ? QTextOption::WordWrap : QTextOption::ManualWrap);
    QTextLayout layout(text, item.font);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0;
    int lastStart = 0;
    QTextLine line = layout.createLine();
    for (; line.isValid(); line = layout.createLine()) {
        line.setLineWidth(rect.width());
        height += line.height();
        if (line.lineNumber() > 0 && height > rect.height())
            break;
        lastStart = line.textStart();
    }
    layout.endLayout();
    if (!line.isValid())
        return text;
    QString rest = text.mid(lastStart);
    rest.replace(QChar::LineSeparator, QLatin1Char(' '));
    return text.left(lastStart)
           + item.fontMetrics.elidedText(rest, item.textElideMode, rect.width());
}

/// Lines that wrap at words and end where the rectangle does.
void paintLines(const PaintContext& context, const QStyleOptionViewItem& item, const QRect& rect,
                int alignment, const QBrush& brush)
{
    const int wrap = item.features & QStyleOptionViewItem::WrapText ? int(Qt::TextWordWrap) : 0;
    QString text = item.text;
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    text = fittingLines(item, rect, text);
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    const PainterSaver saver(context.painter);
    context.painter.setClipRect(rect, Qt::IntersectClip);
    context.painter.setPen(QPen(brush, 1));
    context.proxy().drawItemText(&context.painter, rect, alignment | wrap, item.palette,
                                 context.enabled(), text, QPalette::NoRole);
}

void paintText(const PaintContext& context, const QStyleOptionViewItem& item, const QRect& whole,
               const QBrush& brush)
{
    const int margin = context.metric(QStyle::PM_FocusFrameHMargin) + TextMargin;
    const int room =
        scrollBarRoom(context)
        + (showsChildren(context.widget, item) ? context.measure().indicatorSize() : 0);
    const QRect rect = context.rightToLeft() ? whole.adjusted(margin + room, 0, -margin, 0)
                                             : whole.adjusted(margin, 0, -margin - room, 0);
    Qt::Alignment given = item.displayAlignment;
    if (!(given & Qt::AlignVertical_Mask)) // a model that names one side does not mean the top
        given |= Qt::AlignVCenter;
    const int alignment = int(QStyle::visualAlignment(item.direction, given));
    context.painter.setFont(item.font);
    if (!isOneLine(item, rect)) {
        paintLines(context, item, rect, alignment, brush);
        return;
    }
    Shapes::drawText(context, rect, alignment | Qt::TextSingleLine, item.text, brush,
                     item.textElideMode);
}

void paintChildIndicator(const PaintContext& context, const QBrush& brush)
{
    const QRect& rect = context.option.rect;
    const int side = context.measure().indicatorSize();
    const int end = listViewPadding(context.style) / 2 + scrollBarRoom(context);
    const QRect place(rect.right() + 1 - end - side, rect.y(), side, rect.height());
    Shapes::drawIcon(context, themeValues().rightArrow.icon(), brush, context.visual(place), side);
}

void paintItemFocus(const PaintContext& context, const QStyleOptionViewItem& item)
{
    auto focus = optionFrom<QStyleOptionFocusRect>(item);
    focus.rect = context.part(QStyle::SE_ItemViewItemFocusRect);
    focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    focus.backgroundColor = item.palette.color(
        ItemColors::group(context),
        context.has(QStyle::State_Selected) ? QPalette::Highlight : QPalette::Window);
    context.draw(QStyle::PE_FrameFocusRect, focus);
}

/// Views hide focus marks: where the keyboard is in them shows the selection, or a border around an
/// item outside of it.
void paintCurrent(const PaintContext& context)
{
    if (context.has(QStyle::State_KeyboardFocusChange) && !context.has(QStyle::State_Selected)
        && context.flag(WidgetProperties::HideFocusRect))
        Shapes::drawInnerBorder(context, context.option.rect, 0, // clear of a table's grid
                                context.brush(ThemeNames::MainBrush));
}

void paintArrow(const PaintContext& context, bool down)
{
    QStyleOption arrow = context.option;
    const int side = context.measure().indicatorSize();
    arrow.rect = QRect(0, 0, side, side);
    arrow.rect.moveCenter(context.option.rect.center());
    Foregrounds::set(arrow, ItemColors::words(context));
    const QStyle::PrimitiveElement sideways =
        context.rightToLeft() ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
    ArrowIcons::drawOf(context, down ? QStyle::PE_IndicatorArrowDown : sideways, arrow);
}

} // namespace

void paintPanel(const PaintContext& context, const QStyleOptionViewItem& item)
{
    const QRect& rect = item.rect;
    if (hasThemedBackground(context) && !(item.features & QStyleOptionViewItem::Alternate))
        context.painter.fillRect(rect, context.brush(ThemeNames::ItemViewBackgroundBrush));
    if (item.backgroundBrush.style() != Qt::NoBrush) {
        const QPointF origin = context.painter.brushOrigin();
        context.painter.setBrushOrigin(rect.topLeft());
        context.painter.fillRect(rect, item.backgroundBrush);
        context.painter.setBrushOrigin(origin);
    }
    paintSelection(context);
    if (!WidgetTraits::isTreeView(context.widget))
        paintHover(context, item);
    paintSeparator(context);
}

void paintRow(const PaintContext& context, const QStyleOptionViewItem& item)
{
    if (item.features & QStyleOptionViewItem::Alternate)
        context.painter.fillRect(
            item.rect,
            OwnColors::ground(context, QPalette::AlternateBase,
                              context.brush(ThemeNames::ItemViewAlternateBackgroundBrush)));
    // In a tree the row begins before its first item, with the branches.
    if (!WidgetTraits::isTreeView(context.widget))
        return;
    paintSelection(context);
    paintHover(context, item);
    paintSeparator(context);
}

void paintBranch(const PaintContext& context)
{
    if (context.has(QStyle::State_Children))
        paintArrow(context, context.has(QStyle::State_Open));
}

void paintColumnViewArrow(const PaintContext& context)
{
    paintArrow(context, false);
}

void paintItem(const PaintContext& context, const QStyleOptionViewItem& item)
{
    const PainterSaver saver(context.painter);
    context.draw(QStyle::PE_PanelItemViewItem, item);
    const QStyleOptionViewItem layout = layoutItem(context, item);
    const auto part = [&](QStyle::SubElement element) {
        return context.proxy().subElementRect(element, &layout, context.widget);
    };
    if (item.features & QStyleOptionViewItem::HasCheckIndicator)
        paintCheckBox(context, item, part(QStyle::SE_ItemViewItemCheckIndicator));
    const QBrush brush = ItemColors::words(context);
    if (!item.icon.isNull())
        paintIcon(context, item, part(QStyle::SE_ItemViewItemDecoration), brush);
    if (!item.text.isEmpty())
        paintText(context, item, part(QStyle::SE_ItemViewItemText), brush);
    if (showsChildren(context.widget, item))
        paintChildIndicator(context, brush);
    if (context.has(QStyle::State_HasFocus)) {
        paintCurrent(context);
        paintItemFocus(context, item);
    }
}

void paintColumnViewGrip(const PaintContext& context)
{
    constexpr int GripLength = 20;
    const QRect& rect = context.option.rect;
    const int from = rect.top() + (rect.height() - GripLength) / 2;
    Shapes::drawGrips(context, Qt::Vertical, from, from + GripLength,
                      rect.left() + (rect.width() - Shapes::GripSize) / 2);
}

} // namespace BRELK::ItemViews
