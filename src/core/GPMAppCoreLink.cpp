// What the core does between the browser link and its parts.

#include "GPMAppCore.h"
#include "PluginVersion.h"

void GPMAppCore::startServer()
{
    if (m_link)
        return;
    m_link = std::make_unique<BrowserLink>(
        m_port, *m_platform, m_approvals,
        [this](const QString &id) { return m_safe ? m_safe->item(id) : nullptr; }, m_settings);
    m_linkState =
        std::make_unique<LinkState>(m_link->server(), m_pageLogins, [this] { return m_safe; });
    connect(this, &GPMAppCore::safeLockedChanged, m_linkState.get(), &LinkState::tell);
    connect(this, &GPMAppCore::currentSafeChanged, m_linkState.get(), &LinkState::tell);
    // What waited in the socket while the computer slept finds the safe locked.
    connect(&m_link->server(), &GPMWebSocketServer::incomingMessage, &m_guard,
            &LockGuard::checkSleep);
    connect(&m_link->server(), &GPMWebSocketServer::hello, this, &GPMAppCore::onHello);
    connect(&m_link->server(), &GPMWebSocketServer::collectedDocumentInfo, this,
            &GPMAppCore::parsePluginReplay);
    connect(&m_link->server(), &GPMWebSocketServer::loginPageLoaded, this,
            &GPMAppCore::fillLoginPage);
    connect(&m_link->openPage(), &OpenPage::found, this, &GPMAppCore::quickAccessPageFound);
    connect(m_link.get(), &BrowserLink::quickAccessRequested, this,
            &GPMAppCore::requestQuickAccess);
    connect(m_link.get(), &BrowserLink::message, this, &GPMAppCore::message);
    connect(m_link.get(), &BrowserLink::openAddress, this, &GPMAppCore::openAddress);
    connect(&m_link->flow(), &FormFillFlow::siteIconReported, &m_siteIcons,
            &SiteIconDesk::download);
    connect(m_link.get(), &BrowserLink::itemUsed, &m_items, &ItemChanges::countUse);
    connect(m_link.get(), &BrowserLink::itemUsed, &m_loginSaving, &LoginSaving::noteFilled);
    connect(&m_link->server(), &GPMWebSocketServer::saveLogin, this, &GPMAppCore::saveLogin);
    connect(&m_link->server(), &GPMWebSocketServer::loginSubmitted, &m_loginSaving,
            &LoginSaving::keepSubmitted);
    connect(&m_link->server(), &GPMWebSocketServer::loginDropped, &m_loginSaving,
            &LoginSaving::dropSubmitted);
}

void GPMAppCore::openQuickAccess()
{
    QuickAccessWish wish;
    if (m_link)
        wish.callerId = m_link->server().targetCaller({});
    Q_EMIT requestQuickAccess(wish);
    // It opens without waiting for the browser.
    if (m_link)
        m_link->openPage().ask();
}

void GPMAppCore::doItemDefaultAction(const QString &itemId, const QString &callerId,
                                     const QString &option)
{
    const PMListItem *item = m_safe ? m_safe->item(itemId) : nullptr;
    if (!item)
        return;
    if (item->type() == PMListItem::Login)
        doLoginDefaultAction(itemId, callerId, option);
    else if (item->type() == PMListItem::CreditCard)
        doCreditCardDefaultAction(itemId, callerId, option);
    else if (item->type() == PMListItem::Identity)
        doIdentityDefaultAction(itemId, callerId, option);
}

void GPMAppCore::doCreditCardDefaultAction(const QString &itemId, const QString &callerId,
                                           const QString &option)
{
    m_link->flow().doCreditCardDefaultAction(itemId, callerId, option);
}

void GPMAppCore::doIdentityDefaultAction(const QString &itemId, const QString &callerId,
                                         const QString &option)
{
    m_link->flow().doIdentityDefaultAction(itemId, callerId, option);
}

void GPMAppCore::doLoginDefaultAction(const QString &itemId, const QString &callerId,
                                      const QString &option)
{
    m_link->flow().doLoginDefaultAction(itemId, callerId, option);
}

void GPMAppCore::placePasswordValue(const QString &password)
{
    m_link->flow().placePasswordValue(password);
}

void GPMAppCore::parsePluginReplay(const QString &callerId, const QJsonObject &data)
{
    if (!m_link->openPage().take(callerId, data))
        m_link->flow().parsePluginReplay(callerId, data);
}

void GPMAppCore::fillLoginPage(const QString &callerId, const QJsonObject &data)
{
    m_link->flow().fillLoginPage(callerId, data);
}

void GPMAppCore::onHello(const QString &callerId, const QString &version, const QString &bundleId)
{
    const std::optional<QString> warning = pluginVersionWarning(version, bundleId);
    if (!warning)
        return;
    m_link->server().sendState(callerId, {{QStringLiteral("refused"), QStringLiteral("version")}});
    Q_EMIT message(tr("Warning"), *warning);
}

void GPMAppCore::saveLogin(const QString &callerId, const QJsonObject &data)
{
    m_loginSaving.saveLogin(callerId, data);
}

void GPMAppCore::fillSaveLoginParams(QString &siteTitle, QMap<QString, QString> &candidates) const
{
    m_loginSaving.fillSaveLoginParams(siteTitle, candidates);
}
