#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QTest>

/// Counts the events of one type that every widget gets while it lives.
class EventCounter : public QObject
{
public:
    explicit EventCounter(QEvent::Type type = QEvent::Paint) : m_type(type)
    {
        qApp->installEventFilter(this);
    }

    /// Waits until nothing is left to be painted.
    static void wait()
    {
        constexpr int Settling = 50;
        QTest::qWait(Settling);
    }

    /// Waits until nothing is left to be painted, and forgets what was counted.
    void settle()
    {
        wait();
        m_counts.clear();
    }

    int of(const QObject* widget) const { return m_counts.value(widget); }

    int all() const
    {
        int sum = 0;
        for (const int count : m_counts)
            sum += count;
        return sum;
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == m_type)
            ++m_counts[watched];
        return false;
    }

private:
    QEvent::Type m_type;
    QHash<const QObject*, int> m_counts;
};
