#include "LinkState.h"

#include "GPMWebSocketServer.h"
#include "PageLogins.h"

#include <utility>

LinkState::LinkState(GPMWebSocketServer &server, PageLogins &logins, FindSafe safe, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_logins(logins)
    , m_safe(std::move(safe))
{
    m_telling.setSingleShot(true);
    m_telling.setInterval(0);
    connect(&m_telling, &QTimer::timeout, this, &LinkState::tellNow);
    connect(&server, &GPMWebSocketServer::stateRequested, this, &LinkState::answer);
    connect(&logins, &PageLogins::changed, this, &LinkState::tell);
}

void LinkState::answer(const QString &callerId, const QJsonObject &question)
{
    m_caller = callerId;
    m_url = question.value(QLatin1String("url")).toString();
    QJsonObject state = stateFor(m_url);
    state.insert(QStringLiteral("request_id"), question.value(QLatin1String("request_id")));
    m_server.sendState(callerId, state);
}

void LinkState::tellNow()
{
    if (!m_server.hasConnections())
        return;
    const QString caller = m_server.targetCaller({});
    m_server.sendState(caller, stateFor(caller == m_caller ? m_url : QString()));
}

QJsonObject LinkState::stateFor(const QString &url) const
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    const bool locked = !safe || !safe->isUnlocked();
    return {{QStringLiteral("locked"), locked},
            {QStringLiteral("safe"), safe ? safe->name() : QString()},
            {QStringLiteral("url"), url},
            {QStringLiteral("logins"), locked ? 0 : m_logins.idsFor(url).size()}};
}
