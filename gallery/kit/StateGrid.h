#pragma once

#include "kit/Specimen.h"

#include <QVector>
#include <QWidget>

#include <functional>

class QGridLayout;

namespace Gallery {

/// A table of specimens: a column for each state, a row for each variant of a widget.
class StateGrid : public QWidget
{
public:
    using Maker = std::function<QWidget*()>;

    explicit StateGrid(QVector<State> states = allStates());

    static QVector<State> allStates();

    /// Adds the row `label`, with a widget of `make` in each state. The first, in the state Normal,
    /// can be used.
    void addRow(const QString& label, const Maker& make);

private:
    QVector<State> m_states;
    QGridLayout* m_grid;
    int m_rows = 0;
};

} // namespace Gallery
