#include "Pages.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/StateGrid.h"

#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QSpinBox>

namespace Gallery {

namespace {

constexpr int FieldWidth = 19 * Unit;

QDate sampleDay()
{
    return {2024, 5, 17};
}

QTime sampleTime()
{
    return {9, 41};
}

template <class Field>
Field* sized(Field* field)
{
    field->setFixedWidth(FieldWidth);
    return field;
}

QSpinBox* makeSpinBox()
{
    auto* box = sized(new QSpinBox);
    box->setRange(0, 100);
    box->setValue(42);
    box->setSuffix(QStringLiteral(" mm"));
    return box;
}

QSpinBox* makePlusMinus()
{
    QSpinBox* box = makeSpinBox();
    box->setButtonSymbols(QAbstractSpinBox::PlusMinus);
    return box;
}

QSpinBox* makeWithoutButtons()
{
    QSpinBox* box = makeSpinBox();
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    return box;
}

QSpinBox* makeAtMaximum()
{
    QSpinBox* box = makeSpinBox();
    box->setValue(box->maximum());
    return box;
}

QSpinBox* makeReadOnly()
{
    QSpinBox* box = makeSpinBox();
    box->setReadOnly(true);
    return box;
}

QDoubleSpinBox* makeDoubleSpinBox()
{
    auto* box = sized(new QDoubleSpinBox);
    box->setValue(3.14);
    return box;
}

QWidget* makeFrameless()
{
    QSpinBox* box = makeSpinBox();
    box->setFrame(false);
    return box;
}

QDateEdit* makeDateEdit(bool calendar)
{
    auto* edit = sized(new QDateEdit(sampleDay()));
    edit->setCalendarPopup(calendar);
    return edit;
}

const QVector<State>& fieldStates()
{
    static const QVector<State> sStates{State::Normal, State::Hovered, State::Focused,
                                        State::Disabled};
    return sStates;
}

void addNumbers(Section& section)
{
    auto* grid = new StateGrid(fieldStates());
    grid->addRow(QStringLiteral("Integer"), makeSpinBox);
    grid->addRow(QStringLiteral("Real"), makeDoubleSpinBox);
    grid->addRow(QStringLiteral("Plus and minus"), makePlusMinus);
    grid->addRow(QStringLiteral("At its maximum"), makeAtMaximum);
    grid->addRow(QStringLiteral("Without buttons"), makeWithoutButtons);
    grid->addRow(QStringLiteral("Read-only"), makeReadOnly);
    grid->addRow(QStringLiteral("No frame"), makeFrameless);
    grid->addRow(QStringLiteral("Error"), [] { return with(makeSpinBox(), "drawErrorIndicator"); });
    section.add(grid);
}

void addDates(Section& section)
{
    auto* grid = new StateGrid(fieldStates());
    grid->addRow(QStringLiteral("Date"), [] { return makeDateEdit(false); });
    grid->addRow(QStringLiteral("Date with calendar"), [] { return makeDateEdit(true); });
    grid->addRow(QStringLiteral("Time"), [] { return sized(new QTimeEdit(sampleTime())); });
    grid->addRow(QStringLiteral("Date and time"),
                 [] { return sized(new QDateTimeEdit(QDateTime(sampleDay(), sampleTime()))); });
    section.add(grid);
}

QCalendarWidget* makeCalendar()
{
    auto* calendar = new QCalendarWidget;
    calendar->setSelectedDate(sampleDay());
    calendar->setGridVisible(false);
    return calendar;
}

} // namespace

void fillSpinBoxes(Page& page)
{
    addNumbers(page.addSection(QStringLiteral("Numbers"),
                               QStringLiteral("Hovered: over the upper button.")));
    addDates(page.addSection(QStringLiteral("Dates and times")));
    page.addSection(QStringLiteral("Calendar")).add(pair(makeCalendar(), makeCalendar()));
}

} // namespace Gallery
