#include "BrowserLink.h"

#include <utility>

BrowserLink::BrowserLink(quint16 port, Platform &platform, OriginApprovals &approvals,
                         FormFillFlow::FindItem findItem, GPMAppSettings &settings, QObject *parent)
    : QObject(parent)
    , m_server(port, true, platform)
    , m_flow(m_server, std::move(findItem), settings)
    , m_openPage(m_server)
{
    m_server.setApprovals(
        [&approvals](const QString &origin) { return approvals.isApproved(origin); });
    connect(&m_server, &GPMWebSocketServer::approvalNeeded, &approvals, &OriginApprovals::ask);
    connect(&approvals, &OriginApprovals::approvedOne, &m_server,
            &GPMWebSocketServer::onOriginApproved);
    connect(&approvals, &OriginApprovals::refusedOne, &m_server,
            &GPMWebSocketServer::onOriginRefused);
    connect(&m_server, &GPMWebSocketServer::activatePluginWindow, this,
            [this](const QString &callerId, const QString &, const QJsonObject &wish) {
                Q_EMIT quickAccessRequested(QuickAccessWish::fromExtension(callerId, wish));
            });
    connect(&m_flow, &FormFillFlow::userNotice, this, &BrowserLink::message);
    connect(&m_flow, &FormFillFlow::openInBrowserRequested, this, &BrowserLink::openAddress);
    connect(&m_flow, &FormFillFlow::itemUsed, this, &BrowserLink::itemUsed);
}
