#include "SaveLogin.h"

#include "PMLogin.h"
#include "SiteAddress.h"

#include <QDebug>

#include <algorithm>

namespace {

constexpr int longestTitle = 200;

QString textOf(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

QString hostOf(const QString &site)
{
    const auto address = SiteAddress::parse(SiteAddress::withScheme(site));
    return address ? address->host() : QString();
}

QString withoutWww(const QString &host)
{
    return host.startsWith(QLatin1String("www.")) ? host.mid(4) : host;
}

/// The logins of the site that are not in the trash, those of the very host first.
QVector<const PMLogin *> loginsOfSite(const QString &site, const QVector<const PMLogin *> &logins)
{
    QVector<const PMLogin *> found;
    const auto page = SiteAddress::parse(SiteAddress::withScheme(site));
    if (!page)
        return found;
    for (const PMLogin *login : logins) {
        const auto address = SiteAddress::parse(SiteAddress::withScheme(login->url()));
        if (address && !login->deleted() && address->isSameSite(*page))
            found.append(login);
    }
    std::stable_partition(found.begin(), found.end(), [&](const PMLogin *login) {
        return withoutWww(hostOf(login->url())) == withoutWww(page->host());
    });
    return found;
}

/// E-mail addresses and user names mean the same in capitals.
bool isSameUser(const QString &a, const QString &b)
{
    return a.trimmed().compare(b.trimmed(), Qt::CaseInsensitive) == 0;
}

QMap<QString, QString> namesOf(const QVector<const PMLogin *> &logins)
{
    QMap<QString, QString> names;
    for (const PMLogin *login : logins)
        names.insert(login->id(), login->login().isEmpty() ? login->title() : login->login());
    return names;
}

} // namespace

SaveLoginRequest SaveLoginRequest::fromData(const QJsonObject &data)
{
    SaveLoginRequest request;
    request.title = textOf(data, "title").simplified().left(longestTitle);
    const QString url = textOf(data, "url");
    request.site = SiteAddress::parse(url) ? url : textOf(data, "domain");
    if (data.value(QLatin1String("fields")).isArray()) {
        request.login = captureLogin(data);
    } else {
        request.login.userName = textOf(data, "login");
        request.login.password = textOf(data, "password");
    }
    request.faviconUrl = textOf(data, "faviconUrl");
    const QString host = withoutWww(hostOf(request.site));
    if (!SiteAddress::parse(request.faviconUrl))
        request.faviconUrl =
            host.isEmpty() ? QString() : QStringLiteral("https://%1/favicon.ico").arg(host);
    qDebug() << "Try favicon download:" << request.faviconUrl;
    return request;
}

SaveLoginOffer decideSaveLogin(const SaveLoginRequest &request,
                               const QVector<const PMLogin *> &logins)
{
    const CapturedLogin &typed = request.login;
    if (typed.password.isEmpty() || hostOf(request.site).isEmpty())
        return {};
    const QVector<const PMLogin *> known = loginsOfSite(request.site, logins);
    QVector<const PMLogin *> same;
    for (const PMLogin *login : known) {
        if (typed.userName.isEmpty() || isSameUser(login->login(), typed.userName))
            same.append(login);
    }
    const bool isKnown = std::any_of(same.begin(), same.end(), [&](const PMLogin *login) {
        return login->password() == typed.password;
    });
    if (isKnown)
        return {};
    if (same.isEmpty() || (typed.isSignUp && typed.userName.isEmpty()))
        return {SaveLoginOffer::Add, {}, namesOf(known)};
    return {SaveLoginOffer::Update, same.first()->id(), namesOf(known)};
}

void fillSaveLoginParams(const SaveLoginRequest &request, const QVector<const PMLogin *> &logins,
                         QString &siteTitle, QMap<QString, QString> &candidates)
{
    siteTitle = request.title.isEmpty() ? withoutWww(hostOf(request.site)) : request.title;
    candidates = namesOf(loginsOfSite(request.site, logins));
}
