#include "Revocable.h"

#include "ThemeValues.h"

#include <QCalendarWidget>
#include <QEvent>
#include <QLCDNumber>
#include <QTextCharFormat>

namespace BRELK::Revocable {

namespace {

// The properties tell what the style changed: what the application sets later is left alone.
constexpr char FlattenedDigits[] = "_varn_flattenedDigits";
constexpr char WeekendBrush[] = "_varn_calmWeekends";

template <class Widget>
Widget& as(QWidget& widget)
{
    return static_cast<Widget&>(widget);
}

void changeWeekends(QCalendarWidget& calendar, const QBrush& from, const QBrush& to)
{
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
        QTextCharFormat format = calendar.weekdayTextFormat(day);
        if (format.foreground() == from) {
            format.setForeground(to);
            calendar.setWeekdayTextFormat(day, format);
        }
    }
}

/// Keeps a status bar as high as the lines that it shows.
class StatusBarHeight : public QObject
{
public:
    explicit StatusBarHeight(QWidget& bar) : QObject(&bar)
    {
        setObjectName(QLatin1String(Name));
        bar.installEventFilter(this);
        fit(bar);
        // One without a parent is polished by its own layout, which then sets the minimum of a
        // window.
        if (bar.isWindow())
            QMetaObject::invokeMethod(
                this, [this, &bar] { fit(bar); }, Qt::QueuedConnection);
    }

    static StatusBarHeight* of(const QWidget& bar)
    {
        return static_cast<StatusBarHeight*>(
            bar.findChild<QObject*>(QLatin1String(Name), Qt::FindDirectChildrenOnly));
    }

    void fit(QWidget& bar)
    {
        const int height = qMax(Height, bar.minimumSizeHint().height());
        if (bar.minimumHeight() >= height && bar.minimumHeight() != m_given)
            return; // the application's
        m_given = height;
        bar.setMinimumHeight(height);
    }

    bool eventFilter(QObject* bar, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            fit(*static_cast<QWidget*>(bar));
        return false;
    }

private:
    static constexpr int Height = 34;
    static constexpr char Name[] = "_varn_statusBarHeight";

    int m_given = 0;
};

} // namespace

void flattenDigits(BaseStyle&, QWidget& widget)
{
    auto& number = as<QLCDNumber>(widget);
    if (number.property(FlattenedDigits).isValid())
        return;
    number.setProperty(FlattenedDigits, true);
    if (number.segmentStyle() == QLCDNumber::Filled)
        number.setSegmentStyle(QLCDNumber::Flat);
}

void raiseDigits(QWidget& widget)
{
    auto& number = as<QLCDNumber>(widget);
    if (number.segmentStyle() != QLCDNumber::Flat || !number.property(FlattenedDigits).isValid())
        return;
    number.setSegmentStyle(QLCDNumber::Filled);
    number.setProperty(FlattenedDigits, {});
}

void calmWeekends(BaseStyle&, QWidget& widget)
{
    const QVariant given = widget.property(WeekendBrush);
    const QBrush calm = themeValues().colors.value(ThemeNames::StatusDangerColor);
    changeWeekends(as<QCalendarWidget>(widget), given.isValid() ? given.value<QBrush>() : Qt::red,
                   calm);
    widget.setProperty(WeekendBrush, calm);
}

void reddenWeekends(QWidget& widget)
{
    const QVariant given = widget.property(WeekendBrush);
    if (given.isValid())
        changeWeekends(as<QCalendarWidget>(widget), given.value<QBrush>(), Qt::red);
    widget.setProperty(WeekendBrush, {});
}

void raiseStatusBar(BaseStyle&, QWidget& widget)
{
    if (StatusBarHeight* known = StatusBarHeight::of(widget))
        known->fit(widget);
    else
        new StatusBarHeight(widget);
}

void lowerStatusBar(QWidget& widget)
{
    delete StatusBarHeight::of(widget);
}

} // namespace BRELK::Revocable
