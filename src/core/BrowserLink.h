#pragma once

#include "FormFillFlow.h"
#include "GPMAppSettings.h"
#include "GPMWebSocketServer.h"
#include "OpenPage.h"
#include "OriginApprovals.h"
#include "Platform.h"
#include "QuickAccessWish.h"

#include <QObject>
#include <QUrl>

/// The link to the browser's extension: the server it connects to and the flow of requests and
/// answers. A port that is taken is logged and leaves the program without the link.
class BrowserLink : public QObject
{
    Q_OBJECT

public:
    /// @param port on 127.0.0.1
    /// @param approvals who may connect; outlives the link
    /// @param findItem an item of the open safe by its id; null when there is none
    BrowserLink(quint16 port, Platform &platform, OriginApprovals &approvals,
                FormFillFlow::FindItem findItem, GPMAppSettings &settings,
                QObject *parent = nullptr);

    GPMWebSocketServer &server() { return m_server; }
    const GPMWebSocketServer &server() const { return m_server; }
    FormFillFlow &flow() { return m_flow; }
    OpenPage &openPage() { return m_openPage; }
    bool hasExtension() const { return m_server.hasConnections(); }

Q_SIGNALS:
    /// Something that the user has to know.
    void message(const QString &title, const QString &text);
    /// An address to be opened in the default browser.
    void openAddress(const QUrl &url);
    /// Quick access is wanted for the browser's page.
    void quickAccessRequested(const QuickAccessWish &wish);
    void itemUsed(const QString &itemId);

private:
    GPMWebSocketServer m_server;
    FormFillFlow m_flow;
    OpenPage m_openPage;
};
