#include "DesktopScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QDebug>

#include <utility>

// The settings portal of the freedesktop specifications.

namespace BRELK {

namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString Namespace = QStringLiteral("org.freedesktop.appearance");
const QString Key = QStringLiteral("color-scheme");

class PortalListener : public QObject
{
    Q_OBJECT

public:
    PortalListener(QObject* parent, std::function<void(bool)> tell)
        : QObject(parent)
        , m_tell(std::move(tell))
        , m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("varn")))
    {
        if (!m_bus.isConnected())
            return;
        // Of whatever service: to ask for the owner of a name would mean to wait.
        m_bus.connect({}, Path, Interface, QStringLiteral("SettingChanged"), this,
                      SLOT(settingChanged(QString, QString, QDBusVariant)));
        auto* watcher = new QDBusServiceWatcher(Service, m_bus,
                                                QDBusServiceWatcher::WatchForRegistration, this);
        connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &PortalListener::ask);
        ask();
    }

    bool isConnected() const { return m_bus.isConnected(); }

private Q_SLOTS:

    void settingChanged(const QString& space, const QString& key, const QDBusVariant& value)
    {
        if (space == Namespace && key == Key)
            use(value.variant());
    }

private:
    void ask()
    {
        m_isKnown = false;
        constexpr int Timeout = 5000; ///< in milliseconds; a portal may be started by the question
        QDBusMessage question =
            QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("Read"));
        question << Namespace << Key;
        auto* call = new QDBusPendingCallWatcher(m_bus.asyncCall(question, Timeout), this);
        connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
            call->deleteLater();
            const QDBusPendingReply<QVariant> reply = *call;
            // What was told in the meantime is newer.
            if (!reply.isError() && !m_isKnown)
                use(reply.value());
        });
    }

    void use(QVariant value)
    {
        constexpr uint Dark = 1;
        while (value.userType() == qMetaTypeId<QDBusVariant>())
            value = value.value<QDBusVariant>().variant();
        if (value.userType() != QMetaType::UInt) {
            qDebug().noquote() << "The desktop's color-scheme is no number:" << value;
            return;
        }
        m_isKnown = true;
        const auto tell = m_tell; // which may delete this
        tell(value.toUInt() == Dark);
    }

    const std::function<void(bool)> m_tell;
    QDBusConnection m_bus; ///< stays for the next one: to close it under open questions is not safe
    bool m_isKnown = false;
};

} // namespace

QObject* listenToDesktop(QObject* parent, std::function<void(bool dark)> tell)
{
    auto* listener = new PortalListener(parent, std::move(tell));
    if (listener->isConnected())
        return listener;
    delete listener;
    return nullptr;
}

} // namespace BRELK

#include "DesktopSchemeDBus.moc"
