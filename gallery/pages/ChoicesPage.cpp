#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/StateGrid.h"

#include <QCheckBox>
#include <QRadioButton>

namespace Gallery {

namespace {

QCheckBox* makeCheckBox(Qt::CheckState state)
{
    auto* box = new QCheckBox(QStringLiteral("Snap to grid"));
    box->setTristate(state == Qt::PartiallyChecked);
    box->setCheckState(state);
    return box;
}

QCheckBox* makeSwitch(Qt::CheckState state)
{
    QCheckBox* box = with(makeCheckBox(state), "switch");
    box->setText(QStringLiteral("Live view"));
    return box;
}

QRadioButton* makeRadioButton(bool checked)
{
    auto* button = new QRadioButton(QStringLiteral("Metric"));
    button->setAutoExclusive(false);
    button->setChecked(checked);
    return button;
}

template <class Button>
Button* withIcon(Button* button)
{
    button->setIcon(BRELK::ThemeResources::getIcon(QStringLiteral("view.calendar")));
    return button;
}

template <class Button>
Button* aligned(Button* button, Qt::Alignment alignment)
{
    button->setMinimumWidth(20 * Unit);
    return with(button, "textAlignment", static_cast<int>(alignment | Qt::AlignVCenter));
}

void addCheckBoxes(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Off"), [] { return makeCheckBox(Qt::Unchecked); });
    grid->addRow(QStringLiteral("On"), [] { return makeCheckBox(Qt::Checked); });
    grid->addRow(QStringLiteral("Partly"), [] { return makeCheckBox(Qt::PartiallyChecked); });
    grid->addRow(QStringLiteral("Error"),
                 [] { return with(makeCheckBox(Qt::Unchecked), "drawErrorIndicator"); });
    grid->addRow(QStringLiteral("Error, on"),
                 [] { return with(makeCheckBox(Qt::Checked), "drawErrorIndicator"); });
    grid->addRow(QStringLiteral("With icon"), [] { return withIcon(makeCheckBox(Qt::Checked)); });
    grid->addRow(QStringLiteral("No label"), [] { return new QCheckBox; });
    section.add(grid);
}

void addRadioButtons(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Off"), [] { return makeRadioButton(false); });
    grid->addRow(QStringLiteral("On"), [] { return makeRadioButton(true); });
    grid->addRow(QStringLiteral("Error"),
                 [] { return with(makeRadioButton(false), "drawErrorIndicator"); });
    grid->addRow(QStringLiteral("With icon"), [] { return withIcon(makeRadioButton(true)); });
    section.add(grid);
}

void addSwitches(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Off"), [] { return makeSwitch(Qt::Unchecked); });
    grid->addRow(QStringLiteral("On"), [] { return makeSwitch(Qt::Checked); });
    grid->addRow(QStringLiteral("Partly"), [] { return makeSwitch(Qt::PartiallyChecked); });
    grid->addRow(QStringLiteral("Error"),
                 [] { return with(makeSwitch(Qt::Checked), "drawErrorIndicator"); });
    section.add(grid);
}

void addLabels(Section& section)
{
    auto* manyLines = new QCheckBox(QStringLiteral("A label of\ntwo lines"));
    section.add(row({captioned(QStringLiteral("Two lines"), manyLines),
                     captioned(QStringLiteral("Label at the far end"),
                               aligned(makeCheckBox(Qt::Checked), Qt::AlignRight)),
                     captioned(QStringLiteral("Label in the middle"),
                               aligned(makeRadioButton(true), Qt::AlignHCenter))}));
}

} // namespace

void fillChoices(Page& page)
{
    addCheckBoxes(page.addSection(QStringLiteral("Check boxes")));
    addRadioButtons(page.addSection(QStringLiteral("Radio buttons")));
    addSwitches(page.addSection(QStringLiteral("Switches"),
                                QStringLiteral("Check boxes with the property \"switch\".")));
    addLabels(page.addSection(QStringLiteral("Labels"),
                              QStringLiteral("Placed with the property \"textAlignment\".")));
}

} // namespace Gallery
