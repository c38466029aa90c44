#pragma once

#include "SessionWatch.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QVariantMap>

/// Listens to the screen saver on the session bus and to the login manager on the system bus. Works
/// without either, which is logged.
class BusSessionWatch : public SessionWatch
{
    Q_OBJECT

public:
    BusSessionWatch(QDBusConnection session, QDBusConnection system);

Q_SIGNALS:
    /// The login manager has answered which session is ours.
    void sessionFound();

private Q_SLOTS:
    void onScreenSaver(bool active);
    void onLock();
    void onSessionProperties(const QString &interface, const QVariantMap &changed,
                             const QStringList &invalidated);
    void onSleep(bool begins);

private:
    void listenToScreenSaver();
    void listenToLoginManager();
    void findSession(const QString &id, const QString &otherId);
    void listenToSession(const QString &path);
    void delaySleep();

    QDBusConnection m_session;
    QDBusConnection m_system;
    QDBusUnixFileDescriptor m_delay; ///< while we hold it, sleep waits for us
};
