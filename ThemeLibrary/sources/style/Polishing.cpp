#include "BaseStyle.h"
#include "Families.h"
#include "HandOuts.h"
#include "OwnColors.h"
#include "Revocable.h"
#include "ThemeValues.h"
#include "WidgetProperties.h"
#include "WidgetTraits.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QDockWidget>
#include <QGroupBox>
#include <QLCDNumber>
#include <QLabel>
#include <QLayout>
#include <QListView>
#include <QMainWindow>
#include <QPixmap>
#include <QProgressBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolBox>
#include <QTreeView>

// What polish does to widgets: rows of a question and an action, tried in order on every widget.

namespace BRELK {

namespace {

namespace Properties = WidgetProperties;

constexpr int ToolBoxButtonHeight = 42;

template <class Widget>
bool is(const QWidget* widget)
{
    return qobject_cast<const Widget*>(widget);
}

template <const char* Property>
bool has(const QWidget* widget)
{
    return Properties::flag(widget, Property);
}

/// Sets `role` for all groups to the theme brush `name`, and for the Disabled group to its twin.
void setPaletteBrush(QWidget& widget, QPalette::ColorRole role, ThemeNames::BrushName name)
{
    QPalette palette = widget.palette();
    palette.setBrush(role, themeValues().brushes.value(name));
    palette.setBrush(QPalette::Disabled, role, themeValues().brushes.value(name, false));
    widget.setPalette(palette);
}

void readUpwards(BaseStyle&, QWidget& widget)
{
    static_cast<QProgressBar&>(widget).setTextDirection(QProgressBar::BottomToTop);
}

bool hasThemedBase(const QWidget* widget)
{
    return is<QAbstractItemView>(widget) && !has<Properties::CustomItemViewPalette>(widget);
}

/// Under an application's own palette the words in a view are not the theme's, so its ground is not
/// either.
void setThemedBase(BaseStyle& style, QWidget& widget)
{
    constexpr uint Base = 1U << QPalette::Base;
    if (!OwnColors::isForAll(style, QPalette::Base)) {
        setPaletteBrush(widget, QPalette::Base, ThemeNames::ItemViewBackgroundBrush);
        return;
    }
    QPalette palette = widget.palette();
    if (palette.brush(QPalette::Base)
        != BaseStyle::getBrush(ThemeNames::ItemViewBackgroundBrush, true))
        return;
    palette.resolve(palette.resolve() & ~Base);
    widget.setPalette(palette);
}

bool hasThemedItems(const QWidget* widget)
{
    return is<QAbstractItemView>(widget) && !has<Properties::CustomItemDelegate>(widget);
}

void setItemDrawing(BaseStyle&, QWidget& widget)
{
    if (!is<QTreeView>(&widget)) {
        widget.setProperty(Properties::HighlightItemsOnMouseHover, true);
        widget.setMouseTracking(true);
    }
    if (!is<QTableView>(&widget))
        widget.setProperty(Properties::DrawItemsSeparators, true);
    if (is<QListView>(&widget))
        widget.setProperty(Properties::DrawChildIndicatorInListView, true);
    widget.setProperty(Properties::HideFocusRect, true);
}

void fadeDisabledLabel(BaseStyle&, QWidget& widget)
{
    QPalette palette = widget.palette();
    palette.setBrush(QPalette::Disabled, QPalette::WindowText,
                     themeValues().brushes.value(ThemeNames::ForegroundBrush, false));
    widget.setPalette(palette);
}

bool tracksHover(const QWidget* widget)
{
    return is<QTabBar>(widget) || is<QGroupBox>(widget);
}

void trackHover(BaseStyle&, QWidget& widget)
{
    widget.setAttribute(Qt::WA_Hover);
}

bool hasTabFont(const QWidget* widget)
{
    return is<QTabWidget>(widget) || is<QTabBar>(widget);
}

ThemeNames::FontName tabFontName(const QWidget& tabs)
{
    ThemeNames::FontName name = ThemeNames::MediumFont;
    if (Properties::flag(qApp, Properties::AppSmallTabSize))
        name = ThemeNames::SmallFont;
    else if (Properties::flag(qApp, Properties::AppBaseTabSize))
        name = ThemeNames::BaseFont;
    else if (Properties::flag(qApp, Properties::AppLargeTabSize))
        name = ThemeNames::LargeFont;

    if (Properties::tabFlag(&tabs, Properties::SmallTabSize))
        name = ThemeNames::SmallFont;
    else if (Properties::tabFlag(&tabs, Properties::BaseTabSize))
        name = ThemeNames::BaseFont;
    // Deliberate: the large size wins over the other two.
    if (Properties::tabFlag(&tabs, Properties::LargeTabSize))
        name = ThemeNames::LargeFont;
    return name;
}

/// In an application that writes larger than the theme, tabs keep step with the texts around them.
QFont inStep(QFont font)
{
    const qreal themed = themeValues().fonts.value(ThemeNames::BaseFont).pointSizeF();
    const QFont given = QApplication::font();
    const bool isGiven = given.resolve() & QFont::SizeResolved;
    if (isGiven && themed > 0 && font.pointSizeF() > 0 && given.pointSizeF() > themed)
        font.setPointSizeF(font.pointSizeF() * given.pointSizeF() / themed);
    return font;
}

void setTabFont(BaseStyle&, QWidget& widget)
{
    const QFont font = inStep(themeValues().fonts.value(tabFontName(widget)));
    widget.setProperty(Properties::StyleSheetWidgetFont, font);
    widget.setFont(font);
}

/// The pages keep the font that they would have without the tabs', and hear nothing of that.
void keepPagesFont(BaseStyle&, QWidget& widget)
{
    auto* pages = widget.findChild<QWidget*>(QStringLiteral("qt_tabwidget_stackedwidget"),
                                             Qt::FindDirectChildrenOnly);
    const QWidget* parent = widget.parentWidget();
    if (!pages)
        return;
    QFont font = parent ? parent->font() : QApplication::font();
    font.resolve(QFont::AllPropertiesResolved);
    pages->setFont(font);
}

void lightenViewport(BaseStyle&, QWidget& widget)
{
    static_cast<QScrollArea&>(widget).viewport()->setBackgroundRole(QPalette::Light);
}

bool hasOwnBackground(const QWidget* widget)
{
    return (is<QMainWindow>(widget) && widget->isWindow()) || is<QDockWidget>(widget)
           || has<Properties::CardHeader>(widget) || has<Properties::CardContents>(widget)
           || has<Properties::CardFooter>(widget);
}

void paintBackground(BaseStyle&, QWidget& widget)
{
    widget.setAttribute(Qt::WA_StyledBackground);
}

void fadeSubtitle(BaseStyle& style, QWidget& widget)
{
    if (!OwnColors::isForAll(style, QPalette::Window)) // it need not be read there
        setPaletteBrush(widget, QPalette::WindowText, ThemeNames::ForegroundDisabledBrush);
}

bool isComboBoxList(const QWidget* widget)
{
    return is<QAbstractItemView>(widget) && WidgetTraits::isInComboBoxPopup(widget);
}

/// What the library's style sheet asks for; without it, or under another, the list looks the same.
void dressComboBoxList(BaseStyle&, QWidget& widget)
{
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Base,
                     BaseStyle::getColor(ThemeNames::BackgroundUpLevel1Color, true));
    widget.setPalette(palette);
}

void replaceDelegate(BaseStyle&, QWidget& widget)
{
    ComboBoxes::replaceDelegate(static_cast<QComboBox&>(widget));
}

bool isGroupContainer(const QWidget* widget)
{
    return has<Properties::ButtonGroupContainer>(widget)
           || has<Properties::ColorButtonContainer>(widget);
}

bool showsRoundedPixmap(const QWidget* widget)
{
    return !Properties::value(widget, Properties::RoundedPixmap).value<QPixmap>().isNull();
}

void watch(BaseStyle& style, QWidget& widget)
{
    widget.installEventFilter(&style);
}

bool hasNoShadow(const QWidget* widget)
{
    return widget->windowFlags() & Qt::NoDropShadowWindowHint;
}

void castShadow(BaseStyle&, QWidget& widget)
{
    // Setting flags would hide and show the window again, and hang the application while a popup is
    // open.
    widget.overrideWindowFlags(widget.windowFlags() & ~Qt::NoDropShadowWindowHint);
}

void raiseToolBoxButton(BaseStyle&, QWidget& widget)
{
    widget.setMinimumHeight(qMax(widget.minimumHeight(), ToolBoxButtonHeight));
}

void closeUpToolBox(BaseStyle&, QWidget& widget)
{
    if (QLayout* layout = widget.layout()) {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
    }
}

void forgetHover(QWidget& widget)
{
    widget.setAttribute(Qt::WA_Hover, false);
}

struct PolishRule
{
    bool (*applies)(const QWidget*);
    void (*polish)(BaseStyle&, QWidget&);
    void (*unpolish)(QWidget&); // Deliberate: most of what polish sets stays.
};

// clang-format off
constexpr PolishRule Rules[] = {
    {is<QProgressBar>,                 readUpwards, ProgressBars::endAnimation},
    {hasThemedBase,                    setThemedBase, {}},
    {hasThemedItems,                   setItemDrawing, {}},
    {is<QLabel>,                       fadeDisabledLabel, {}},
    {tracksHover,                      trackHover, forgetHover},
    {is<QTabWidget>,                   keepPagesFont, {}},
    {hasTabFont,                       setTabFont, {}},
    {is<QLCDNumber>,                   Revocable::flattenDigits, Revocable::raiseDigits},
    {is<QStatusBar>,                   Revocable::raiseStatusBar, Revocable::lowerStatusBar},
    {is<QScrollArea>,                  lightenViewport, {}},
    {hasOwnBackground,                 paintBackground, {}},
    {has<Properties::CardTitle>,       HandOuts::setCardTitleFonts, {}},
    {has<Properties::CardSubtitle>,    fadeSubtitle, {}},
    {WidgetTraits::isCardWidget,       HandOuts::dressCard, {}},
    {is<QComboBox>,                    replaceDelegate, {}},
    {isComboBoxList,                   dressComboBoxList, {}},
    {isGroupContainer,                 HandOuts::roundGroupContainer, {}},
    {WidgetTraits::isSegmentedGroup,   HandOuts::dressButtonGroup, {}},
    {showsRoundedPixmap,               HandOuts::dressRoundedPixmap, {}},
    {has<Properties::PillFont>,        HandOuts::setPillFont, {}},
    {WidgetTraits::isPeriodicTable,    HandOuts::dressPeriodicTable, {}},
    {WidgetTraits::isRangeSlider,      HandOuts::dressRangeSlider, {}},
    {is<QCommandLinkButton>,           watch, {}},
    {hasNoShadow,                      castShadow, {}},
    {WidgetTraits::isToolBoxButton,    raiseToolBoxButton, {}},
    {is<QToolBox>,                     closeUpToolBox, {}},
    {WidgetTraits::isLineEditIconButton, watch, {}},
    {is<QCalendarWidget>,              Revocable::calmCalendar, Revocable::reddenCalendar},
    {is<QCalendarWidget>,              watch, {}},
};

// clang-format on

/// The base style has these painted again whenever the mouse comes or goes.
bool looksTheSameUnderMouse(const QWidget* widget)
{
    return is<QProgressBar>(widget) || is<QSplitterHandle>(widget);
}

} // namespace

void BaseStyle::polish(QWidget* widget)
{
    if (!widget)
        return;
    const bool hovers = widget->testAttribute(Qt::WA_Hover);
    QProxyStyle::polish(widget);
    if (!hovers && looksTheSameUnderMouse(widget))
        widget->setAttribute(Qt::WA_Hover, false);
    for (const PolishRule& rule : Rules) {
        if (rule.applies(widget))
            rule.polish(*this, *widget);
    }
}

void BaseStyle::unpolish(QWidget* widget)
{
    if (!widget)
        return;
    QProxyStyle::unpolish(widget);
    if (is<QCalendarWidget>(widget)) // or the palette of the next style would calm it again
        widget->removeEventFilter(this);
    for (const PolishRule& rule : Rules) {
        if (rule.unpolish && rule.applies(widget))
            rule.unpolish(*widget);
    }
}

void BaseStyle::polish(QApplication* app)
{
    QProxyStyle::polish(app);
    disconnect(app, &QGuiApplication::paletteChanged, this,
               nullptr); // a style sheet polishes again
    connect(app, &QGuiApplication::paletteChanged, this, [this] {
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget* widget : widgets)
            if (widget->testAttribute(Qt::WA_WState_Polished) && hasThemedBase(widget))
                setThemedBase(*this, *widget);
    });
}

void BaseStyle::unpolish(QApplication* app)
{
    disconnect(app, &QGuiApplication::paletteChanged, this, nullptr);
    QProxyStyle::unpolish(app);
}

} // namespace BRELK
