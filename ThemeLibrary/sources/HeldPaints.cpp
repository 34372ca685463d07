#include "HeldPaints.h"

#include <QCoreApplication>
#include <QEvent>

namespace BRELK {

namespace {

QPointer<HeldPaints> s_paints; ///< while it holds any back

} // namespace

HeldPaints::HeldPaints() : QObject(QCoreApplication::instance())
{
    QCoreApplication::instance()->installEventFilter(this);
}

void HeldPaints::start()
{
    if (!s_paints)
        s_paints = new HeldPaints;
    s_paints->m_rounds = 0;
    s_paints->m_allDue.start(0, s_paints);
}

bool HeldPaints::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest || !watched->isWidgetType())
        return false;
    auto* window = static_cast<QWidget*>(watched);
    if (!m_windows.contains(window))
        m_windows.append(window);
    return true;
}

void HeldPaints::timerEvent(QTimerEvent*)
{
    // Timers of no time fire in the order in which they were started, so those of layouts are due
    // by the second round.
    constexpr int Rounds = 2;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (++m_rounds < Rounds)
        return;
    m_allDue.stop();
    s_paints.clear();
    QCoreApplication::instance()->removeEventFilter(this);
    deleteLater();
    setParent(nullptr);
    for (const QPointer<QWidget>& window : qAsConst(m_windows)) {
        QEvent request(QEvent::UpdateRequest);
        if (window)
            QCoreApplication::sendEvent(window, &request);
    }
}

} // namespace BRELK
