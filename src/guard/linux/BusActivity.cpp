#include "BusActivity.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace {

// An older answer says nothing: the compositor hangs.
const std::uint32_t longestAgeMs = 5000;

} // namespace

BusActivity::BusActivity(std::unique_ptr<UserActivity> system, QDBusConnection session)
    : m_system(std::move(system))
    , m_session(std::move(session))
{
    ask();
}

std::optional<std::uint32_t> BusActivity::lastInputTick()
{
    ask();
    if (tickCount() - m_answered > longestAgeMs)
        return {};
    return m_lastInput;
}

void BusActivity::ask()
{
    if (m_asking || !m_session.isConnected())
        return;
    m_asking = true;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.gnome.Mutter.IdleMonitor"),
        QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core"),
        QStringLiteral("org.gnome.Mutter.IdleMonitor"), QStringLiteral("GetIdletime"));
    // Another desktop does not answer, and this one perhaps not yet.
    call.setAutoStartService(false);
    auto *watcher = new QDBusPendingCallWatcher(m_session.asyncCall(call), &m_context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &m_context, [this, watcher] {
        watcher->deleteLater();
        m_asking = false;
        const QDBusPendingReply<qulonglong> reply = *watcher;
        if (reply.isError())
            return;
        m_answered = tickCount();
        m_lastInput = m_answered - static_cast<std::uint32_t>(reply.value());
    });
}
