#include "WidgetTraits.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QCommandLinkButton>
#include <QDateTimeEdit>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimeEdit>
#include <QToolBox>
#include <QToolButton>
#include <QTreeView>

namespace BRELK::WidgetTraits {

namespace {

/// For classes that no header declares; comparing names is slower than casting.
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

bool isColorWell(const QWidget* widget)
{
    return inherits(widget, "QWellArray") || inherits(widget, "QColorShowLabel");
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
    return qobject_cast<const QCommandLinkButton*>(widget);
}

bool isDefaultComboBoxDelegate(const QObject* object)
{
    return inherits(object, "QComboBoxDelegate");
}

bool isGroupBox(const QWidget* widget)
{
    return qobject_cast<const QGroupBox*>(widget);
}

bool isInComboBoxPopup(const QWidget* widget)
{
    return widget && isComboBoxPopup(widget->parent());
}

bool isInTabBar(const QWidget* widget)
{
    return widget && qobject_cast<const QTabBar*>(widget->parent());
}

bool isLabel(const QWidget* widget)
{
    return qobject_cast<const QLabel*>(widget);
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
    return qobject_cast<const QListView*>(widget);
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
    return qobject_cast<const QAbstractSpinBox*>(widget);
}

bool isStatusBar(const QWidget* widget)
{
    return qobject_cast<const QStatusBar*>(widget);
}

bool isTableView(const QWidget* widget)
{
    return qobject_cast<const QTableView*>(widget);
}

bool isTabWidgetOrBar(const QWidget* widget)
{
    return qobject_cast<const QTabWidget*>(widget) || qobject_cast<const QTabBar*>(widget);
}

bool isToolBox(const QWidget* widget)
{
    return qobject_cast<const QToolBox*>(widget);
}

bool isToolBoxButton(const QWidget* widget)
{
    return inherits(widget, "QToolBoxButton");
}

bool isTreeView(const QWidget* widget)
{
    return qobject_cast<const QTreeView*>(widget);
}

} // namespace BRELK::WidgetTraits
