#pragma once

#include <QScrollBar>

// Stand in for widgets of other libraries, which the style knows by their names.

namespace BRELK::Components {

class ButtonGroupWidget : public QWidget
{
    Q_OBJECT
};

/// `QWidget` has a property "minimized" of its own that cannot be set.
class CardWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool minimized MEMBER minimized)

public:
    bool minimized = false;
};

class RangeSlider : public QWidget
{
    Q_OBJECT
};

} // namespace BRELK::Components

namespace BRELK::PeriodicTable {

class PeriodicTableView : public QWidget
{
    Q_OBJECT
};

} // namespace BRELK::PeriodicTable

/// Declares what `QWidget` has read-only.
class MinimizableScrollBar : public QScrollBar
{
    Q_OBJECT
    Q_PROPERTY(bool minimized MEMBER minimized)

public:
    bool minimized = false;
};
