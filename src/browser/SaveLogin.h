#pragma once

#include "LoginCapture.h"

#include <QMap>
#include <QRect>
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
    /// What a new login is opened with: the page that asked for all of it, else the site.
    QString address = {};
    /// The browser's window on the screen, as far as it is told; null when it is not.
    QRect place = {};

    QString host() const;

    /// From the data of "saveLogin": "siteName", or "title" where there is none, "url" (or
    /// "domain"), "faviconUrl", the place, and the login itself as "fields" of the submitted form,
    /// or as "login" and "password". A "login" beside fields is the user name of a page before.
    static SaveLoginRequest fromData(const QJsonObject &data);
    /// "posx", "posy", "width" and "height"; null when they are missing.
    static QRect placeOf(const QJsonObject &data);
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
/// without a user name, the login that had the old password, or the first of the site; else add.
/// What was typed into a page without encryption never changes a login that has it: anybody on the
/// way can pose as such a page.
SaveLoginOffer decideSaveLogin(const SaveLoginRequest &request,
                               const QVector<const PMLogin *> &logins);

/// For the dialog: what the site is called and its logins, by id. A title that names nothing gives
/// way to the host.
void fillSaveLoginParams(const SaveLoginRequest &request, const QVector<const PMLogin *> &logins,
                         QString &siteTitle, QMap<QString, QString> &candidates);
