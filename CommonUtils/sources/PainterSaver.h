#pragma once

#include <QPainter>

namespace BRELK {

/// Saves a painter's state and restores it at the end of the scope.
class PainterSaver
{
public:
    explicit PainterSaver(QPainter& painter) : m_painter(painter) { m_painter.save(); }

    ~PainterSaver() { m_painter.restore(); }

    Q_DISABLE_COPY_MOVE(PainterSaver)

private:
    QPainter& m_painter;
};

} // namespace BRELK
