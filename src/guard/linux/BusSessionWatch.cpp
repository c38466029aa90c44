#include "BusSessionWatch.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDebug>
#include <QTimer>

#include <utility>

namespace {

const QString loginService = QStringLiteral("org.freedesktop.login1");
const QString loginPath = QStringLiteral("/org/freedesktop/login1");
const QString managerInterface = QStringLiteral("org.freedesktop.login1.Manager");
const QString sessionInterface = QStringLiteral("org.freedesktop.login1.Session");

// Sleep waits until the lock page was drawn: it would show what was there before on waking up.
const int drawMs = 300;

QDBusMessage managerCall(const QString &method)
{
    return QDBusMessage::createMethodCall(loginService, loginPath, managerInterface, method);
}

} // namespace

std::unique_ptr<SessionWatch> SessionWatch::create()
{
    return std::make_unique<BusSessionWatch>(QDBusConnection::sessionBus(),
                                             QDBusConnection::systemBus());
}

BusSessionWatch::BusSessionWatch(QDBusConnection session, QDBusConnection system)
    : m_session(std::move(session))
    , m_system(std::move(system))
{
    listenToScreenSaver();
    listenToLoginManager();
}

void BusSessionWatch::listenToScreenSaver()
{
    if (!m_session.isConnected()) {
        qWarning("SessionWatch: no session bus, the screen saver cannot tell that it starts");
        return;
    }
    // Each desktop has its own name for it; some send under two, which does no harm.
    for (const char *name :
         {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.cinnamon.ScreenSaver",
          "org.mate.ScreenSaver", "org.xfce.ScreenSaver"})
        m_session.connect({}, {}, QLatin1String(name), QStringLiteral("ActiveChanged"), this,
                          SLOT(onScreenSaver(bool)));
}

void BusSessionWatch::listenToLoginManager()
{
    if (!m_system.isConnected()) {
        qWarning("SessionWatch: no system bus, the login manager cannot tell of locks and sleep");
        return;
    }
    m_system.connect(loginService, loginPath, managerInterface, QStringLiteral("PrepareForSleep"),
                     this, SLOT(onSleep(bool)));
    delaySleep();
    findSession(QStringLiteral("auto"), qEnvironmentVariable("XDG_SESSION_ID"));
}

void BusSessionWatch::findSession(const QString &id, const QString &otherId)
{
    QDBusMessage call = managerCall(QStringLiteral("GetSession"));
    call << id;
    auto *watcher = new QDBusPendingCallWatcher(m_system.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, otherId] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (!reply.isError())
            listenToSession(reply.value().path());
        else if (!otherId.isEmpty())
            findSession(otherId, {});
        else
            qWarning() << "SessionWatch: the login manager knows no session of ours:"
                       << reply.error().name();
    });
}

void BusSessionWatch::listenToSession(const QString &path)
{
    m_system.connect(loginService, path, sessionInterface, QStringLiteral("Lock"), this,
                     SLOT(onLock()));
    m_system.connect(loginService, path, QStringLiteral("org.freedesktop.DBus.Properties"),
                     QStringLiteral("PropertiesChanged"), this,
                     SLOT(onSessionProperties(QString, QVariantMap, QStringList)));
    Q_EMIT sessionFound();
}

void BusSessionWatch::delaySleep()
{
    QDBusMessage call = managerCall(QStringLiteral("Inhibit"));
    call << QStringLiteral("sleep") << QStringLiteral("Glaceron Password Manager")
         << tr("Locking the safe") << QStringLiteral("delay");
    auto *watcher = new QDBusPendingCallWatcher(m_system.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
        if (!reply.isError())
            m_delay = reply.value();
    });
}

void BusSessionWatch::onScreenSaver(bool active)
{
    if (active)
        Q_EMIT happened(LockReason::ScreenSaver);
}

void BusSessionWatch::onLock()
{
    Q_EMIT happened(LockReason::SessionLocked);
}

void BusSessionWatch::onSessionProperties(const QString &interface, const QVariantMap &changed,
                                          const QStringList &)
{
    if (interface != sessionInterface)
        return;
    if (changed.value(QStringLiteral("LockedHint")).toBool())
        Q_EMIT happened(LockReason::SessionLocked);
    if (!changed.value(QStringLiteral("Active"), true).toBool())
        Q_EMIT happened(LockReason::UserSwitched);
}

void BusSessionWatch::onSleep(bool begins)
{
    if (!begins) {
        Q_EMIT awake();
        delaySleep();
        return;
    }
    Q_EMIT happened(LockReason::Sleep);
    QTimer::singleShot(drawMs, this, [this] { m_delay = {}; });
}
