#include "WidgetTraits.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QDateTimeEdit>
#include <QListView>
#include <QTabBar>
#include <QTimeEdit>
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

bool isCardWidget(const QWidget* widget)
{
    return inherits(widget, "BRELK::Components::CardWidget");
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

bool isDefaultComboBoxDelegate(const QObject* object)
{
    return inherits(object, "QComboBoxDelegate");
}

bool isInComboBoxPopup(const QWidget* widget)
{
    return widget && isComboBoxPopup(widget->parent());
}

bool isInTabBar(const QWidget* widget)
{
    return widget && qobject_cast<const QTabBar*>(widget->parent());
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

bool isSegmentedGroup(const QWidget* widget)
{
    return inherits(widget, "BRELK::Components::ButtonGroupWidget");
}

bool isSpinBox(const QWidget* widget)
{
    return qobject_cast<const QAbstractSpinBox*>(widget);
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
