#include "Families.h"
#include "StyleContext.h"
#include "WidgetTraits.h"

#include <QListView>

// Lists, tables, trees, column views and their rows.

namespace BRELK::ItemViews {

namespace {

constexpr int ListPadding = 8;
constexpr int RowPadding = 4;
constexpr int HeaderMargin = 4;
constexpr int HeaderMarkSize = 16;
constexpr int SectionWidth = 100;
constexpr int ListIconSize = 16;
constexpr int IconModeIconSize = 32;
constexpr int Indentation = 20;

int listViewPadding(const BaseStyle& style)
{
    static const int sListViewPadding = style.pixelMetric(
        QStyle::PixelMetric(BaseStyle::BRELK_PM_ListViewPadding), nullptr, nullptr);
    return sListViewPadding;
}

bool isInListMode(const QWidget* widget)
{
    const auto* list = qobject_cast<const QListView*>(widget);
    return list && list->viewMode() == QListView::ListMode;
}

QRect shiftedInPanel(const StyleContext& context, const QRect& base)
{
    if (!base.isValid() || !isInListMode(context.widget)
        || !WidgetTraits::isCascadingListPanel(context.widget))
        return base;
    return base.translated(listViewPadding(context.style), 0);
}

} // namespace

int metric(QStyle::PixelMetric metric, const MeasureContext& context)
{
    switch (unsigned(metric)) {
    case QStyle::PM_HeaderMargin:
    case QStyle::PM_HeaderGripMargin: return context.dpiScaled(HeaderMargin);
    case QStyle::PM_HeaderMarkSize: return context.dpiScaled(HeaderMarkSize);
    case QStyle::PM_HeaderDefaultSectionSizeHorizontal: return context.dpiScaled(SectionWidth);
    case QStyle::PM_HeaderDefaultSectionSizeVertical: return context.rowHeight(RowPadding);
    case QStyle::PM_ListViewIconSize: return context.dpiScaled(ListIconSize);
    case QStyle::PM_IconViewIconSize: return context.dpiScaled(IconModeIconSize);
    case QStyle::PM_TreeViewIndentation: return context.dpiScaled(Indentation);
    default: return context.dpiScaled(ListPadding);
    }
}

QSize itemSize(const MeasureContext& context, const QStyleOptionViewItem&, const QSize&,
               const QSize& base)
{
    return {base.width(), qMax(base.height(), context.rowHeight(RowPadding))};
}

QRect indicatorRect(const StyleContext& context, const QRect& base)
{
    return shiftedInPanel(context, base);
}

QRect decorationRect(const StyleContext& context, const QRect& base)
{
    return shiftedInPanel(context, base);
}

QRect textRect(const StyleContext& context, const QRect& base)
{
    if (!base.isValid() || !isInListMode(context.widget))
        return base;
    if (WidgetTraits::isComboBoxList(context.widget))
        return base.translated(-1, 0);
    if (!WidgetTraits::isCascadingListPanel(context.widget))
        return base;
    const int padding = listViewPadding(context.style);
    return base.adjusted(padding, 0, -padding, 0);
}

void paintPanel(const PaintContext& context, const QStyleOptionViewItem&)
{
    context.drawByBase(QStyle::PE_PanelItemViewItem);
}

void paintRow(const PaintContext& context, const QStyleOptionViewItem&)
{
    context.drawByBase(QStyle::PE_PanelItemViewRow);
}

void paintBranch(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorBranch);
}

void paintColumnViewArrow(const PaintContext& context)
{
    context.drawByBase(QStyle::PE_IndicatorColumnViewArrow);
}

void paintItem(const PaintContext& context, const QStyleOptionViewItem&)
{
    context.drawByBase(QStyle::CE_ItemViewItem);
}

void paintColumnViewGrip(const PaintContext& context)
{
    context.drawByBase(QStyle::CE_ColumnViewGrip);
}

} // namespace BRELK::ItemViews
