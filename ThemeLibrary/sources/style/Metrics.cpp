#include "Families.h"
#include "InputMetrics.h"
#include "StyleContext.h"

#include <array>

// What the style measures: each metric stands here once. What is not here is the base style's.

namespace BRELK {

namespace {

enum class Unit : unsigned char {
    BaseStyle, ///< nobody's here
    Pixels,
    Scaled, ///< pixels of a screen of 96 dots per inch
    Row, ///< the padding above and below the text of a row, scaled
    Indicator ///< what is added to the side of an indicator, scaled
};

struct Metric
{
    unsigned name;
    Unit unit;
    int value;
    int (*exception)(const MeasureContext&) = nullptr; ///< where a number does not do
};

constexpr Metric pixels(unsigned name, int value)
{
    return {name, Unit::Pixels, value};
}

constexpr Metric scaled(unsigned name, int value)
{
    return {name, Unit::Scaled, value};
}

constexpr Metric row(unsigned name, int padding)
{
    return {name, Unit::Row, padding};
}

constexpr Metric indicator(unsigned name, int added = 0)
{
    return {name, Unit::Indicator, added};
}

constexpr Metric by(unsigned name, int (*exception)(const MeasureContext&))
{
    return {name, Unit::Pixels, 0, exception};
}

// clang-format off
constexpr Metric Metrics[] = {
    // Buttons. The default one needs no room of its own, and pressed labels stay where they are.
    scaled(QStyle::PM_ButtonMargin, 8),
    scaled(QStyle::PM_ButtonIconSize, 16),
    pixels(QStyle::PM_ButtonDefaultIndicator, 0),
    pixels(QStyle::PM_ButtonShiftHorizontal, 0),
    pixels(QStyle::PM_ButtonShiftVertical, 0),
    by(QStyle::PM_MenuButtonIndicator, Arrows::indicatorWidth),

    by(QStyle::PM_IndicatorWidth, CheckBoxes::indicatorWidth),
    indicator(QStyle::PM_IndicatorHeight),
    indicator(QStyle::PM_ExclusiveIndicatorWidth),
    indicator(QStyle::PM_ExclusiveIndicatorHeight),
    by(QStyle::PM_CheckBoxLabelSpacing, CheckBoxes::labelSpacing),
    scaled(QStyle::PM_RadioButtonLabelSpacing, 8),

    // Frames
    by(QStyle::PM_DefaultFrameWidth, Frames::frameWidth),
    pixels(QStyle::PM_SpinBoxFrameWidth, InputMetrics::SpinBoxFrame),
    scaled(QStyle::PM_ToolTipLabelFrameWidth, 4),
    by(QStyle::PM_FocusFrameHMargin, Frames::focusMargin),
    scaled(QStyle::PM_FocusFrameVMargin, 2),

    // Layouts and windows
    by(QStyle::PM_LayoutLeftMargin, WindowParts::layoutMargin),
    by(QStyle::PM_LayoutTopMargin, WindowParts::layoutMargin),
    by(QStyle::PM_LayoutRightMargin, WindowParts::layoutMargin),
    by(QStyle::PM_LayoutBottomMargin, WindowParts::layoutMargin),
    scaled(QStyle::PM_LayoutHorizontalSpacing, 8),
    scaled(QStyle::PM_LayoutVerticalSpacing, 4),
    scaled(QStyle::PM_SplitterWidth, 6),
    by(QStyle::PM_SmallIconSize, LineEdits::iconSize),
    scaled(QStyle::PM_LargeIconSize, 32),
    scaled(QStyle::PM_MessageBoxIconSize, 32),

    // Item views
    scaled(BaseStyle::BRELK_PM_ListViewPadding, 8),
    row(QStyle::PM_HeaderDefaultSectionSizeVertical, 3),
    scaled(QStyle::PM_HeaderDefaultSectionSizeHorizontal, 100),
    pixels(QStyle::PM_HeaderMargin, 0), // the padding of sections is their own
    scaled(QStyle::PM_HeaderGripMargin, 4),
    indicator(QStyle::PM_HeaderMarkSize, -6),
    scaled(QStyle::PM_ListViewIconSize, 16),
    scaled(QStyle::PM_IconViewIconSize, 32),
    indicator(QStyle::PM_TreeViewIndentation, 4),

    // Menus. The panel has the border in it; a frame besides would be drawn over it.
    pixels(QStyle::PM_MenuHMargin, 2),
    by(QStyle::PM_MenuVMargin, Menus::panelMargin),
    pixels(QStyle::PM_MenuPanelWidth, 0),
    pixels(QStyle::PM_MenuDesktopFrameWidth, 0),
    scaled(QStyle::PM_MenuScrollerHeight, 20),
    scaled(QStyle::PM_MenuTearoffHeight, 12),
    scaled(QStyle::PM_MenuBarHMargin, 2),
    scaled(QStyle::PM_MenuBarVMargin, 2),
    pixels(QStyle::PM_MenuBarItemSpacing, 0),
    pixels(QStyle::PM_MenuBarPanelWidth, 0),
    pixels(QStyle::PM_SubMenuOverlap, -1),

    // Bars and sliders. A progress bar grows by the pixel; scroll bars touch the view and do not
    // cover it.
    pixels(QStyle::PM_ProgressBarChunkWidth, 1),
    scaled(QStyle::PM_ScrollBarExtent, 14),
    scaled(QStyle::PM_ScrollBarSliderMin, 32),
    pixels(QStyle::PM_ScrollView_ScrollBarSpacing, 0),
    pixels(QStyle::PM_ScrollView_ScrollBarOverlap, 0),
    scaled(QStyle::PM_SliderControlThickness, 16),
    scaled(QStyle::PM_SliderLength, 16),
    scaled(QStyle::PM_SliderThickness, 12), // the groove is half of it, less two
    scaled(QStyle::PM_SliderTickmarkOffset, 4),
    by(QStyle::PM_SliderSpaceAvailable, Sliders::spaceAvailable),

    // Tabs stand side by side, on the frame, and do not move when selected.
    scaled(QStyle::PM_TabBarTabHSpace, 24), // of both sides together
    scaled(QStyle::PM_TabBarTabVSpace, 12),
    scaled(QStyle::PM_TabBarIconSize, 16),
    scaled(QStyle::PM_TabBarScrollButtonWidth, 24),
    indicator(QStyle::PM_TabCloseIndicatorWidth),
    indicator(QStyle::PM_TabCloseIndicatorHeight),
    pixels(QStyle::PM_TabBarBaseOverlap, 1),
    pixels(QStyle::PM_TabBarBaseHeight, 0),
    pixels(QStyle::PM_TabBarTabOverlap, 0),
    pixels(QStyle::PM_TabBarTabShiftHorizontal, 0),
    pixels(QStyle::PM_TabBarTabShiftVertical, 0),

    // Title bars and docks
    row(QStyle::PM_TitleBarHeight, 5),
    scaled(QStyle::PM_TitleBarButtonIconSize, 16),
    scaled(QStyle::PM_TitleBarButtonSize, 24),
    scaled(QStyle::PM_DockWidgetTitleMargin, 6),
    scaled(QStyle::PM_DockWidgetTitleBarButtonMargin, 4),
    scaled(QStyle::PM_DockWidgetSeparatorExtent, 4),
    scaled(QStyle::PM_DockWidgetHandleExtent, 8),
    pixels(QStyle::PM_DockWidgetFrameWidth, 1),
    scaled(QStyle::PM_MdiSubWindowFrameWidth, 4),
    scaled(QStyle::PM_MdiSubWindowMinimizedWidth, 196),

    // Tool bars
    scaled(QStyle::PM_ToolBarIconSize, 24),
    scaled(QStyle::PM_ToolBarItemMargin, 2),
    scaled(QStyle::PM_ToolBarItemSpacing, 2),
    scaled(QStyle::PM_ToolBarHandleExtent, 8),
    scaled(QStyle::PM_ToolBarSeparatorExtent, 9),
    scaled(QStyle::PM_ToolBarExtensionExtent, 16),
    pixels(QStyle::PM_ToolBarFrameWidth, 0),
};
// clang-format on

/// The places of Qt's metrics, and one for the style's own.
constexpr unsigned Places = QStyle::PM_TitleBarButtonSize + 2;

constexpr unsigned placeOf(unsigned name)
{
    return name == BaseStyle::BRELK_PM_ListViewPadding ? Places - 1 : name;
}

/// The table by place: finding a row takes no search.
constexpr auto ByPlace = [] {
    std::array<Metric, Places> metrics{};
    for (const Metric& metric : Metrics)
        metrics[placeOf(metric.name)] = metric;
    return metrics;
}();

int valueOf(const Metric& metric, const MeasureContext& context)
{
    if (metric.exception)
        return metric.exception(context);
    switch (metric.unit) {
    case Unit::Scaled: return context.dpiScaled(metric.value);
    case Unit::Row: return context.rowHeight(metric.value);
    case Unit::Indicator: return context.indicatorSize() + context.dpiScaled(metric.value);
    default: return metric.value;
    }
}

} // namespace

int BaseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const
{
    const unsigned place = placeOf(unsigned(metric));
    if (place >= Places || ByPlace[place].unit == Unit::BaseStyle)
        return QProxyStyle::pixelMetric(metric, option, widget);
    return valueOf(ByPlace[place], {*this, option, widget});
}

} // namespace BRELK
