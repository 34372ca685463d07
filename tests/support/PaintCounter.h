#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QTest>

/// Counts the paint events of every widget while it lives.
class PaintCounter : public QObject
{
public:
    PaintCounter() { qApp->installEventFilter(this); }

    /// Waits until nothing is left to be painted.
    static void wait()
    {
        constexpr int Settling = 50;
        QTest::qWait(Settling);
    }

    /// Waits until nothing is left to be painted, and forgets the paints so far.
    void settle()
    {
        wait();
        m_paints.clear();
    }

    int paintsOf(const QObject* widget) const { return m_paints.value(widget); }

    /// The paint events of all widgets.
    int all() const
    {
        int sum = 0;
        for (const int count : m_paints)
            sum += count;
        return sum;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++m_paints[watched];
        return false;
    }

private:
    QHash<const QObject*, int> m_paints;
};
