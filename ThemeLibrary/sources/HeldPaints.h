#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

namespace BRELK {

/// Holds back what windows paint until the layouts and timers that are due have had their say: each
/// of them may ask for a paint of its own. Then each window is painted once.
class HeldPaints : public QObject
{
public:
    /// From now on; for longer if it is going on already.
    static void start();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    HeldPaints();

    int m_rounds = 0;
    QBasicTimer m_allDue;
    QVector<QPointer<QWidget>> m_windows;
};

} // namespace BRELK
