#include "Revocable.h"

#include "OwnColors.h"
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

/// The bar above the days and the selected one, which the toolkit shows in the accent also when
/// they cannot be used.
void setStandingBack(QCalendarWidget& calendar, bool standsBack)
{
    constexpr uint Roles = 1U << QPalette::Highlight | 1U << QPalette::HighlightedText;
    if (auto* bar = calendar.findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar")))
        bar->setBackgroundRole(standsBack ? QPalette::Button : QPalette::Highlight);
    auto* days = calendar.findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview"));
    if (!days)
        return;
    QPalette palette = days->palette();
    const auto stepBack = [&palette](QPalette::ColorRole role, QPalette::ColorRole to) {
        palette.setBrush(QPalette::Disabled, role, palette.brush(QPalette::Disabled, to));
    };
    stepBack(QPalette::Highlight, QPalette::Midlight);
    stepBack(QPalette::HighlightedText, QPalette::Text);
    if (!standsBack)
        palette.resolve(palette.resolve() & ~Roles);
    days->setPalette(palette);
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
    auto& number = static_cast<QLCDNumber&>(widget);
    if (number.property(FlattenedDigits).isValid())
        return;
    number.setProperty(FlattenedDigits, true);
    if (number.segmentStyle() == QLCDNumber::Filled)
        number.setSegmentStyle(QLCDNumber::Flat);
}

void raiseDigits(QWidget& widget)
{
    auto& number = static_cast<QLCDNumber&>(widget);
    if (number.segmentStyle() != QLCDNumber::Flat || !number.property(FlattenedDigits).isValid())
        return;
    number.setSegmentStyle(QLCDNumber::Filled);
    number.setProperty(FlattenedDigits, {});
}

void calmCalendar(BaseStyle&, QWidget& widget)
{
    const QVariant given = widget.property(WeekendBrush);
    const QPalette& palette = widget.palette();
    const QBrush calm =
        widget.isEnabled() ? OwnColors::readable(
            palette.base(),
            {themeValues().colors.value(ThemeNames::StatusDangerColor), palette.text()})
                           : palette.brush(QPalette::Disabled, QPalette::Text);
    changeWeekends(static_cast<QCalendarWidget&>(widget),
                   given.isValid() ? given.value<QBrush>() : Qt::red, calm);
    widget.setProperty(WeekendBrush, calm);
    if (!widget.isEnabled() || given.isValid()) // one that is new and enabled stands as it should
        setStandingBack(static_cast<QCalendarWidget&>(widget), !widget.isEnabled());
}

void reddenCalendar(QWidget& widget)
{
    const QVariant given = widget.property(WeekendBrush);
    if (given.isValid())
        changeWeekends(static_cast<QCalendarWidget&>(widget), given.value<QBrush>(), Qt::red);
    widget.setProperty(WeekendBrush, {});
    setStandingBack(static_cast<QCalendarWidget&>(widget), false);
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
