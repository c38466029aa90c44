#include "BrowserLink.h"

#include <utility>

BrowserLink::BrowserLink(quint16 port, Platform &platform, FormFillFlow::FindItem findItem,
                         GPMAppSettings &settings, QObject *parent)
    : QObject(parent)
    , m_server(port, true, platform)
    , m_flow(m_server, std::move(findItem), settings)
{
    connect(&m_server, &GPMWebSocketServer::activatePluginWindow, this,
            [this](const QString &callerId, const QString &, const QJsonObject &wish) {
                Q_EMIT quickAccessRequested(QuickAccessWish::fromExtension(callerId, wish));
            });
    connect(&m_flow, &FormFillFlow::userNotice, this, &BrowserLink::message);
    connect(&m_flow, &FormFillFlow::openInBrowserRequested, this, &BrowserLink::openAddress);
    connect(&m_flow, &FormFillFlow::itemUsed, this, &BrowserLink::itemUsed);
}
