#include "OpenPage.h"

#include "GPMWebSocketServer.h"

#include <utility>

namespace {

const QLatin1String reasonPage("docinfo");

} // namespace

OpenPage::OpenPage(GPMWebSocketServer &server, Clock clock, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_clock(std::move(clock))
{
}

void OpenPage::ask()
{
    m_caller = m_server.targetCaller({});
    m_timestamp.clear();
    if (m_caller.isEmpty())
        return;
    m_timestamp = QString::number(m_clock().toMSecsSinceEpoch());
    m_server.sendDocumentRequest(m_caller,
                                 {{QStringLiteral("reason"), reasonPage},
                                  {QStringLiteral("timestamp"), m_timestamp},
                                  {QStringLiteral("openmode"), QStringLiteral("currentNoReload")}});
}

bool OpenPage::take(const QString &callerId, const QJsonObject &payload)
{
    if (payload.value(QLatin1String("reason")) != reasonPage)
        return false;
    const bool isAnswer = !m_timestamp.isEmpty() && callerId == m_caller &&
                          payload.value(QLatin1String("timestamp")) == m_timestamp;
    if (isAnswer) {
        m_timestamp.clear();
        Q_EMIT found(payload.value(QLatin1String("tabUrl")).toString());
    }
    return true;
}
