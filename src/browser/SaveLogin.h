#pragma once

#include "LoginCapture.h"

#include <QMap>
#include <QString>
#include <QVector>

class PMLogin;

/// What the extension reported of a login that was typed into a page.
struct SaveLoginRequest
{
    /// Of the page.
    QString title;
    /// The page's host or its address.
    QString site;
    CapturedLogin login;
    /// Where the page names its icon, else where sites usually have it.
    QString faviconUrl;

    /// From the data of "saveLogin": "title", "domain" (or "url"), "faviconUrl", and the login
    /// itself as "fields" of the submitted form, or as "login" and "password".
    static SaveLoginRequest fromData(const QJsonObject &data);
};

/// What to do about a login that was typed.
struct SaveLoginOffer
{
    enum Action {
        Nothing, ///< it is in the safe already, or nothing was typed
        Update,  ///< the password of a login in the safe is another now
        Add
    };

    Action action = Nothing;
    /// The login to update; the first of several when the page did not say whose password it is.
    QString itemId;
    /// The logins of the site that could be updated instead, by id: what the user calls them.
    QMap<QString, QString> candidates;
};

/// Compares what was typed with the logins of the same site. Logins in the trash do not count, nor
/// do those of other sites. The same user name and password: nothing; the same user name: update;
/// without a user name, the site's login, or the choice of several; else add.
SaveLoginOffer decideSaveLogin(const SaveLoginRequest &request,
                               const QVector<const PMLogin *> &logins);

/// For the dialog: what the site is called and its logins, by id. A title that names nothing gives
/// way to the host.
void fillSaveLoginParams(const SaveLoginRequest &request, const QVector<const PMLogin *> &logins,
                         QString &siteTitle, QMap<QString, QString> &candidates);
