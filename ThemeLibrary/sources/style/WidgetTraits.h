#pragma once

class QObject;
class QWidget;

/// What a widget is, for widgets that are told apart by class name. Every question takes null for
/// an answer of no.
namespace BRELK::WidgetTraits {

bool isCalendarButton(const QWidget* widget); ///< one of the buttons inside a `QCalendarWidget`
bool isCalendarPopupEditor(const QWidget* widget); ///< a date edit that opens a calendar
bool isCardWidget(const QWidget* widget);
bool isCascadingListPanel(const QWidget* widget);
bool isColorWell(const QWidget* widget); ///< shows colors in the color dialog
bool isComboBoxList(const QWidget* widget); ///< the list view of a combo-box popup
bool isComboBoxPopup(const QObject* object); ///< the container of a combo-box popup
bool isDefaultComboBoxDelegate(
    const QObject* object); ///< the delegate that Qt gives to a combo box
bool isInComboBoxPopup(const QWidget* widget); ///< the parent is the container of a combo-box popup
bool isInTabBar(const QWidget* widget); ///< the parent is a tab bar
bool isLineEditClearButton(const QWidget* widget);
bool isLineEditIconButton(const QWidget* widget); ///< shows an action inside a line edit
bool isListView(const QWidget* widget);
bool isMinimizedScrollBar(const QWidget* widget);
bool isPeriodicTable(const QWidget* widget);
bool isRangeSlider(const QWidget* widget);
bool isSegmentedGroup(const QWidget* widget); ///< a button group widget
bool isSpinBox(const QWidget* widget);
bool isToolBoxButton(const QWidget* widget);
bool isTreeView(const QWidget* widget);

} // namespace BRELK::WidgetTraits
