#include "kit/StateGrid.h"

#include "kit/Page.h"

#include <QGridLayout>
#include <QLabel>

namespace Gallery {

namespace {

constexpr int LeastColumnWidth = 14 * Unit;

} // namespace

StateGrid::StateGrid(QVector<State> states)
    : m_states(std::move(states)), m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(3 * Unit);
    m_grid->setVerticalSpacing(3 * Unit / 2);
    for (int column = 0; column < m_states.size(); ++column) {
        m_grid->addWidget(makeCaption(nameOf(m_states.at(column))), 0, column + 1);
        m_grid->setColumnMinimumWidth(column + 1, LeastColumnWidth);
    }
    m_grid->setColumnStretch(m_states.size() + 1, 1);
}

QVector<State> StateGrid::allStates()
{
    return {State::Normal, State::Hovered, State::Pressed, State::Focused, State::Disabled};
}

void StateGrid::addRow(const QString& label, const Maker& make)
{
    ++m_rows;
    QLabel* caption = makeLabel(label);
    caption->setMinimumWidth(LabelWidth);
    m_grid->addWidget(caption, m_rows, 0);
    for (int column = 0; column < m_states.size(); ++column) {
        QWidget* specimen = make();
        specimen->setAccessibleName(label);
        force(*specimen, m_states.at(column));
        m_grid->addWidget(specimen, m_rows, column + 1, Qt::AlignLeft | Qt::AlignVCenter);
    }
}

} // namespace Gallery
