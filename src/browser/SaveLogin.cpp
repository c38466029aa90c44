#include "SaveLogin.h"

#include "PMLogin.h"
#include "SiteAddress.h"

#include <QUrl>

#include <algorithm>
#include <cmath>

namespace {

constexpr int longestTitle = 200;
constexpr int longestUserName = 300;
constexpr int longestPath = 200;
constexpr double farthest = 100000;

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

bool isOfHost(const PMLogin &login, const QString &host)
{
    return withoutWww(hostOf(login.url())) == withoutWww(host);
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
    std::stable_partition(found.begin(), found.end(),
                          [&](const PMLogin *login) { return isOfHost(*login, page->host()); });
    return found;
}

bool isPlainPage(const QString &site)
{
    return site.startsWith(QLatin1String("http://"), Qt::CaseInsensitive);
}

/// Those that what was typed on the site may change.
QVector<const PMLogin *> changeable(const QString &site, QVector<const PMLogin *> logins)
{
    if (!isPlainPage(site))
        return logins;
    const auto isSecure = [](const PMLogin *login) {
        return SiteAddress::parse(SiteAddress::withScheme(login->url()))->isSecure();
    };
    logins.erase(std::remove_if(logins.begin(), logins.end(), isSecure), logins.end());
    return logins;
}

/// One line without control characters, such as those that turn the direction of writing.
QString plainLine(const QString &text, int longest)
{
    QString line;
    for (const QChar letter : text.simplified().left(longest)) {
        if (letter.isPrint() && letter.category() != QChar::Other_Format)
            line.append(letter);
    }
    return line.trimmed();
}

/// What the user can go back to. A query, a fragment and what belongs to a step in between can hold
/// what is good only once.
QString addressToKeep(const QString &site, bool isWholePage)
{
    if (!SiteAddress::parse(site))
        return hostOf(site);
    const QUrl url(site);
    const QString path = url.path(QUrl::FullyEncoded);
    QUrl kept;
    kept.setScheme(url.scheme());
    kept.setHost(url.host());
    kept.setPort(url.port());
    kept.setPath(isWholePage && path.size() <= longestPath ? path : QStringLiteral("/"),
                 QUrl::StrictMode);
    return kept.toString(QUrl::FullyEncoded);
}

int lengthOf(const QJsonObject &data, const char *key)
{
    const double value = data.value(QLatin1String(key)).toDouble();
    return static_cast<int>(std::isfinite(value) ? qBound(-farthest, value, farthest) : 0);
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

QString SaveLoginRequest::host() const
{
    return hostOf(site);
}

QRect SaveLoginRequest::placeOf(const QJsonObject &data)
{
    return {lengthOf(data, "posx"), lengthOf(data, "posy"), qMax(0, lengthOf(data, "width")),
            qMax(0, lengthOf(data, "height"))};
}

SaveLoginRequest SaveLoginRequest::fromData(const QJsonObject &data)
{
    SaveLoginRequest request;
    // A title that says only what the page is for names no site.
    const bool isNamed = data.contains(QLatin1String("siteName"));
    request.title = plainLine(textOf(data, isNamed ? "siteName" : "title"), longestTitle);
    const QString url = textOf(data, "url");
    request.site = SiteAddress::parse(url) ? url : textOf(data, "domain");
    bool isWholePage = true;
    if (data.value(QLatin1String("fields")).isArray()) {
        request.login = captureLogin(data);
        isWholePage = !request.login.userName.isEmpty() && !request.login.isSignUp;
    } else {
        request.login.password = textOf(data, "password");
    }
    if (request.login.userName.isEmpty())
        request.login.userName = textOf(data, "login");
    request.login.userName = plainLine(request.login.userName, longestUserName);
    request.address = addressToKeep(request.site, isWholePage);
    request.place = placeOf(data);
    request.faviconUrl = textOf(data, "faviconUrl");
    const QString host = withoutWww(request.host());
    if (!SiteAddress::parse(request.faviconUrl))
        request.faviconUrl =
            host.isEmpty() ? QString() : QStringLiteral("https://%1/favicon.ico").arg(host);
    return request;
}

SaveLoginOffer decideSaveLogin(const SaveLoginRequest &request,
                               const QVector<const PMLogin *> &logins)
{
    const CapturedLogin &typed = request.login;
    if (typed.password.isEmpty() || request.host().isEmpty())
        return {};
    const auto isTypedUser = [&typed](const PMLogin *login) {
        return typed.userName.isEmpty() || isSameUser(login->login(), typed.userName);
    };
    const QVector<const PMLogin *> known = loginsOfSite(request.site, logins);
    const bool isKnown = std::any_of(known.begin(), known.end(), [&](const PMLogin *login) {
        return isTypedUser(login) && login->password() == typed.password;
    });
    if (isKnown)
        return {};
    const QVector<const PMLogin *> candidates = changeable(request.site, known);
    QVector<const PMLogin *> same;
    std::copy_if(candidates.begin(), candidates.end(), std::back_inserter(same), isTypedUser);
    if (same.isEmpty() || (typed.isSignUp && typed.userName.isEmpty()))
        return {SaveLoginOffer::Add, {}, namesOf(candidates)};
    const auto former = std::find_if(same.begin(), same.end(), [&typed](const PMLogin *login) {
        return !typed.oldPassword.isEmpty() && login->password() == typed.oldPassword;
    });
    const auto here = std::count_if(same.begin(), same.end(), [&request](const PMLogin *login) {
        return isOfHost(*login, request.host());
    });
    // Nothing tells whose password it is: it shall not replace that of another account.
    if (former == same.end() && typed.userName.isEmpty() && same.size() > 1 && here != 1)
        return {SaveLoginOffer::Add, {}, namesOf(candidates)};
    const PMLogin *login = former == same.end() ? same.first() : *former;
    return {SaveLoginOffer::Update, login->id(), namesOf(candidates)};
}

void fillSaveLoginParams(const SaveLoginRequest &request, const QVector<const PMLogin *> &logins,
                         QString &siteTitle, QMap<QString, QString> &candidates)
{
    siteTitle = request.title.isEmpty() ? withoutWww(request.host()) : request.title;
    candidates = namesOf(changeable(request.site, loginsOfSite(request.site, logins)));
}
