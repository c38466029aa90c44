#pragma once

#include "Clock.h"
#include "FillRequests.h"
#include "WaitingPassword.h"

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVector>

#include <functional>

class GPMAppSettings;
class GPMWebSocketServer;
class PMListItem;
class PMLogin;
struct FilledForm;

/// Fills items into pages: asks the extension for a page, decides on its answer what goes where,
/// and sends the values. What is answered is not trusted: only the newest request of an item
/// counts, only from the connection that was asked, and a login goes to pages of its own site
/// alone.
class FormFillFlow : public QObject
{
    Q_OBJECT

public:
    /// The item with the id in the open safe; null when there is none.
    using FindItem = std::function<PMListItem *(const QString &id)>;

    /// The server and the settings must outlive the flow.
    FormFillFlow(GPMWebSocketServer &server, FindItem findItem, const GPMAppSettings &settings,
                 Clock clock = systemTime, QObject *parent = nullptr);

    /// Forgets all that is pending, as when the safe is locked.
    void clear();

public Q_SLOTS:
    /// Starts the login into the item's site. Without an extension its address is to be opened in
    /// the default browser.
    /// @param callerId the extension that the user chose the item in; empty for the main window
    /// @param option "currentNoReload" or "current"; anything else means the mode of the settings
    void doLoginDefaultAction(const QString &itemId, const QString &callerId,
                              const QString &option);

    /// Starts filling the card, or the person, into the page that the user sees.
    /// @param callerId the extension that the user chose the item in; empty for the main window
    void doCreditCardDefaultAction(const QString &itemId, const QString &callerId,
                                   const QString &option);
    void doIdentityDefaultAction(const QString &itemId, const QString &callerId,
                                 const QString &option);

    /// Starts putting the password into the page that the user sees; forgotten when that page is
    /// not described within half a minute.
    void placePasswordValue(const QString &password);

    /// The extension's answer to a request; dropped when it is not one that is waited for.
    void parsePluginReplay(const QString &callerId, const QJsonObject &payload);

    /// The extension's answer to the wish for the login page.
    void fillLoginPage(const QString &callerId, const QJsonObject &payload);

Q_SIGNALS:
    /// Something that the user must be told, in plain text.
    void userNotice(const QString &title, const QString &text);
    /// No extension can do it: the address is to be opened in the default browser.
    void openInBrowserRequested(const QUrl &address);
    /// Values of the item were sent to a page; once a request.
    void itemUsed(const QString &itemId);
    /// The page of a login that has no icon of its own names one. The address is the page's word.
    void siteIconReported(const QString &domain, const QString &iconAddress);

private:
    /// Whether the extension may still be asked for the login page when this one does not do.
    enum class LoginPage { MayBeAskedFor, IsThis };

    /// What the log and the extension hear of an action on a kind of item.
    struct ItemAction;

    PMListItem *findItem(const ItemAction &action, const QString &itemId) const;
    void fillOpenPage(const ItemAction &action, const QString &itemId, const QString &callerId);
    /// Enters the request and sends it, with what the payload has already.
    void sendRequest(const ItemAction &action, const QString &itemId, const QString &callerId,
                     QJsonObject payload);
    void placeWaitingPassword(const QString &callerId, const QJsonObject &payload);
    void continueFill(const QString &callerId, const QString &reason, const QJsonObject &payload,
                      LoginPage loginPage);
    std::optional<FillRequest> findRequest(const QString &callerId, const QString &reason,
                                           const QJsonObject &payload);
    void fillLogin(const PMLogin &login, const FillRequest &request, const QJsonObject &payload,
                   LoginPage loginPage);
    void fillItem(const PMListItem &item, const FillRequest &request, const QJsonObject &payload);
    void askForLoginPage(const PMLogin &login, const FillRequest &request);
    void sendLoginForms(const QString &callerId, const QVector<FilledForm> &forms, bool submit);
    void reportSiteIcon(const PMLogin &login, const QString &iconAddress);
    bool isSubmitted(const PMLogin &login, const FillRequest &request) const;
    QString openModeFor(const QString &option) const;

    GPMWebSocketServer &m_server;
    FindItem m_findItem;
    const GPMAppSettings &m_settings;
    Clock m_clock;
    FillRequests m_requests;
    WaitingPassword m_waiting;
};
