#include "Theme.h"
#include "ThemeQApplication.h"
#include "ThemeSwitcher.h"

#include <QtDBus>
#include <QtTest>
#include <QtWidgets>

#include <csignal>
#include <sys/prctl.h>

using namespace BRELK;

/// The settings portal of a desktop.
class Portal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QVariant scheme = 0U;
    bool answers = true;
    int questions = 0;

    void change(const QVariant& to)
    {
        scheme = to;
        Q_EMIT SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                              QStringLiteral("color-scheme"), QDBusVariant(scheme));
    }

public Q_SLOTS:

    QDBusVariant Read(const QString& space, const QString& key)
    {
        ++questions;
        if (!answers)
            setDelayedReply(true);
        else if (space + key != QLatin1String("org.freedesktop.appearancecolor-scheme"))
            sendErrorReply(QDBusError::InvalidArgs);
        return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
    }

Q_SIGNALS:
    void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);
};

/// Changes the desktop's mind while the theme is being switched.
class Fickle : public QWidget
{
public:
    Portal* portal = nullptr;

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() != QEvent::StyleChange || !portal)
            return;
        std::exchange(portal, nullptr)->change(1U);
        QTest::qWait(100);
    }
};

/// Ends with the test, however that ends.
class Daemon : public QProcess
{
protected:
    void setupChildProcess() override { ::prctl(PR_SET_PDEATHSIG, SIGKILL); }
};

/// Themes by the preference of a desktop, on a bus of its own.
class tst_DesktopScheme : public QObject
{
    Q_OBJECT

private:
    static constexpr int Patience = 300; ///< in milliseconds, for what must not happen

    inline static const QString BusName = QStringLiteral("desktop");

    Daemon m_daemon;
    std::unique_ptr<Portal> m_portal;
    QStringList m_themes; ///< as they were switched to

    static ThemeSwitcher& switcher() { return ThemeSwitcher::getInstance(); }

    static QDBusConnection desktop() { return QDBusConnection(BusName); }

    static void follow()
    {
        switcher().followDesktop(QStringLiteral("Light"), QStringLiteral("HighContrast"));
    }

    void addPortal()
    {
        m_portal = std::make_unique<Portal>();
        QVERIFY(desktop().registerObject(
            QStringLiteral("/org/freedesktop/portal/desktop"), m_portal.get(),
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        QVERIFY(desktop().registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    void endBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    static QStringList themes(const char* names)
    {
        return QString::fromLatin1(names).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }

private Q_SLOTS:

    void initTestCase()
    {
        connect(&switcher(), &ThemeSwitcher::switched, this, [this] {
            m_themes += static_cast<ThemeQApplication*>(qApp)->getCurrentTheme()->getName();
        });
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address")});
        if (!m_daemon.waitForStarted() || !m_daemon.waitForReadyRead())
            QSKIP("dbus-daemon is not installed");
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_daemon.readLine().trimmed());
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, BusName);
        QVERIFY(desktop().isConnected());
    }

    void init()
    {
        addPortal();
        m_themes.clear();
    }

    void cleanup()
    {
        switcher().stopFollowingDesktop();
        desktop().unregisterService(QStringLiteral("org.freedesktop.portal.Desktop"));
        m_portal.reset();
    }

    void cleanupTestCase() { endBus(); }

    void followsUntilItIsStopped()
    {
        m_portal->scheme = 1U;
        follow();
        QTRY_COMPARE(m_themes, themes("HighContrast"));
        m_portal->change(1U);
        m_portal->change(0U); // no preference
        QTRY_COMPARE(m_themes, themes("HighContrast Light"));
        m_portal->change(2U);
        switcher().switchTo(QStringLiteral("Dark"));
        m_portal->change(2U);
        m_portal->change(1U);
        QTRY_COMPARE(m_themes, themes("HighContrast Light Dark HighContrast"));
        switcher().stopFollowingDesktop();
        m_portal->change(2U);
        QTest::qWait(Patience);
        QCOMPARE(m_themes.size(), 4);
    }

    void silentPortalsAreNotWaitedFor()
    {
        m_portal->answers = false;
        QElapsedTimer watch;
        watch.start();
        follow();
        QVERIFY(watch.elapsed() < Patience);
        QTRY_COMPARE(m_portal->questions, 1);
        m_portal->change(1U);
        QTRY_COMPARE(m_themes, themes("HighContrast"));
    }

    void portalsMayComeLater()
    {
        cleanup();
        follow();
        QTest::qWait(Patience);
        QCOMPARE(m_themes, QStringList());
        addPortal();
        QTRY_COMPARE(m_themes, themes("Light"));
    }

    void garbageChangesNothing()
    {
        m_portal->scheme = QStringLiteral("dark");
        follow();
        QTRY_COMPARE(m_portal->questions, 1);
        Q_EMIT m_portal->SettingChanged(QStringLiteral("org.freedesktop.appearance"),
                                        QStringLiteral("accent-color"), QDBusVariant(1U));
        m_portal->change(QStringList{QStringLiteral("1")});
        QTest::qWait(Patience);
        QCOMPARE(m_themes, QStringList());
        m_portal->change(4000000000U); // as if it were 0
        QTRY_COMPARE(m_themes, themes("Light"));
    }

    void changesDuringASwitchAreObeyedAfterIt()
    {
        follow();
        QTRY_COMPARE(m_themes, themes("Light"));
        Fickle widget;
        widget.show();
        widget.portal = m_portal.get();
        switcher().switchTo(QStringLiteral("Dark"));
        QTRY_COMPARE(m_themes, themes("Light Dark HighContrast"));
    }

    void slotsMayStopIt()
    {
        QObject receiver;
        connect(&switcher(), &ThemeSwitcher::switched, &receiver,
                [] { switcher().stopFollowingDesktop(); });
        follow();
        QTRY_COMPARE(m_themes, themes("Light"));
        m_portal->change(1U);
        QTest::qWait(Patience);
        QCOMPARE(m_themes, themes("Light"));
    }

    void busesMayBeGone()
    {
        follow();
        QTRY_COMPARE(m_themes, themes("Light"));
        endBus();
        QTest::qWait(Patience);
        follow();
        QTest::qWait(Patience);
        QCOMPARE(m_themes, themes("Light"));
    }
};

int main(int argc, char** argv)
{
    ThemeQApplication application(argc, argv, QStringLiteral("Dark"),
                                  QStringLiteral(VARN_THEME_REPOSITORY));
    tst_DesktopScheme test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_DesktopScheme.moc"
