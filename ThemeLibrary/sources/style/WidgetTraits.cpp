#include "WidgetTraits.h"

#include <QAction>
#include <QDateTimeEdit>
#include <QTimeEdit>
#include <QToolButton>

namespace BRELK::WidgetTraits {

namespace {

bool inherits(const QObject* object, const char* className)
{
    return object && object->inherits(className);
}

} // namespace

bool isCalendarButton(const QWidget* widget)
{
    return widget && widget->objectName().contains(QLatin1String("qt_calendar_"));
}

bool isCalendarPopupEditor(const QWidget* widget)
{
    const auto* editor = qobject_cast<const QDateTimeEdit*>(widget);
    return editor && !qobject_cast<const QTimeEdit*>(widget) && editor->calendarPopup();
}

bool isCardWidget(const QObject* object)
{
    return inherits(object, "BRELK::Components::CardWidget");
}

bool isCascadingListPanel(const QWidget* widget)
{
    return inherits(widget, "BRELK::Components::CascadingListViewPanel");
}

bool isColumnView(const QWidget* widget)
{
    return inherits(widget, "QColumnView");
}

bool isComboBoxList(const QWidget* widget)
{
    return inherits(widget, "QComboBoxListView");
}

bool isComboBoxPopup(const QObject* object)
{
    return inherits(object, "QComboBoxPrivateContainer");
}

bool isCommandLink(const QWidget* widget)
{
    return inherits(widget, "QCommandLinkButton");
}

bool isDefaultComboBoxDelegate(const QObject* object)
{
    return inherits(object, "QComboBoxDelegate");
}

bool isGroupBox(const QWidget* widget)
{
    return inherits(widget, "QGroupBox");
}

bool isInComboBoxPopup(const QWidget* widget)
{
    return widget && isComboBoxPopup(widget->parent());
}

bool isInTabBar(const QWidget* widget)
{
    return widget && inherits(widget->parent(), "QTabBar");
}

bool isLabel(const QWidget* widget)
{
    return inherits(widget, "QLabel");
}

bool isLineEditClearButton(const QWidget* widget)
{
    const auto* button = qobject_cast<const QToolButton*>(widget);
    const QAction* action = button ? button->defaultAction() : nullptr;
    return action && action->objectName() == QLatin1String("_q_qlineeditclearaction");
}

bool isLineEditIconButton(const QWidget* widget)
{
    return inherits(widget, "QLineEditIconButton");
}

bool isListView(const QWidget* widget)
{
    return inherits(widget, "QListView");
}

bool isMinimizedScrollBar(const QWidget* widget)
{
    return inherits(widget, "BRELK::Components::MinimizedScrollBar");
}

bool isPeriodicTable(const QWidget* widget)
{
    return inherits(widget, "BRELK::PeriodicTable::PeriodicTableView");
}

bool isRangeSlider(const QWidget* widget)
{
    return inherits(widget, "BRELK::Components::RangeSlider");
}

bool isSegmentedGroup(const QObject* object)
{
    return inherits(object, "BRELK::Components::ButtonGroupWidget");
}

bool isSpinBox(const QWidget* widget)
{
    return inherits(widget, "QAbstractSpinBox");
}

bool isStatusBar(const QWidget* widget)
{
    return inherits(widget, "QStatusBar");
}

bool isTableView(const QWidget* widget)
{
    return inherits(widget, "QTableView");
}

bool isTabWidgetOrBar(const QWidget* widget)
{
    return inherits(widget, "QTabWidget") || inherits(widget, "QTabBar");
}

bool isToolBox(const QWidget* widget)
{
    return inherits(widget, "QToolBox");
}

bool isToolBoxButton(const QWidget* widget)
{
    return inherits(widget, "QToolBoxButton");
}

bool isTreeView(const QWidget* widget)
{
    return inherits(widget, "QTreeView");
}

} // namespace BRELK::WidgetTraits
