#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

namespace BRELK {

/// Switches to one of two themes as the desktop prefers, for as long as it lives.
class DesktopFollower
{
public:
    DesktopFollower(const QString& light, const QString& dark);
    ~DesktopFollower();

    Q_DISABLE_COPY_MOVE(DesktopFollower)

    /// Does what the desktop has asked for last, unless that is done or a switch is going on.
    void obey();

private:
    QPointer<QObject> m_listener;
    QString m_wanted; ///< empty once it is done
    QString m_obeyed;
};

} // namespace BRELK
