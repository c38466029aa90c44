#include "SiteAddress.h"

#include "PublicSuffixes.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

namespace {

/// Scheme, user, host and port: all that decides the site. The rest may hold characters that are no
/// part of a strict address and that browsers let stand.
QString upToPath(const QString &address)
{
    static const QRegularExpression pattern(QStringLiteral("^https?://[^/?#]*"),
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(address).captured();
}

/// Browsers and QUrl disagree on some texts: browsers take a backslash for a slash and drop control
/// characters, and they keep letters that older rules for international names rewrite, so that
/// "straße" is another site than "strasse". What is read in two ways is not trusted.
bool isReadAlikeByAll(const QString &address)
{
    static const QString rewritten = QStringLiteral("\u00DF\u1E9E\u03C2\u200C\u200D");
    return std::none_of(address.begin(), address.end(), [](QChar c) {
        return c <= QLatin1Char(' ') || c == QLatin1Char('\x7F') || c == QLatin1Char('\\') ||
               rewritten.contains(c);
    });
}

/// An address of another kind before which a scheme was put, as "http://ftp://bank.example": what
/// stands for the host there is none.
bool hasSecondScheme(const QString &address)
{
    static const QRegularExpression pattern(QStringLiteral("^https?://[a-z][a-z0-9+.-]*://"),
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(address).hasMatch();
}

/// A name that ends so is a mistyped IP address to a browser.
bool isNumber(const QString &label)
{
    static const QRegularExpression pattern(QStringLiteral("^([0-9]+|0x[0-9a-f]*)$"));
    return pattern.match(label).hasMatch();
}

QString lastLabel(const QString &host)
{
    return host.mid(host.lastIndexOf(QLatin1Char('.')) + 1);
}

/// The host as sites are compared by; empty when it is none.
QString normalisedHost(const QUrl &url)
{
    QString host = url.host(QUrl::FullyEncoded).toLower();
    const QHostAddress ip(host);
    if (!ip.isNull())
        return ip.toString();
    if (host.endsWith(QLatin1Char('.')))
        host.chop(1);
    const bool hasEmptyLabel = host.startsWith(QLatin1Char('.')) ||
                               host.endsWith(QLatin1Char('.')) ||
                               host.contains(QLatin1String(".."));
    if (hasEmptyLabel || isNumber(lastLabel(host)))
        return {};
    return host;
}

/// IP addresses must not be looked up: the list sees "0.1" as a domain in 127.0.0.1.
QString registrableDomainOf(const QString &host)
{
    const bool isLocal = lastLabel(host) == QLatin1String("localhost");
    if (isLocal || !QHostAddress(host).isNull())
        return {};
    return PublicSuffixes::shipped().registrableDomain(host);
}

} // namespace

QString SiteAddress::withScheme(const QString &address)
{
    const QString text = address.trimmed();
    const bool hasScheme = text.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) ||
                           text.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
    return hasScheme ? text : QLatin1String("http://") + text;
}

std::optional<SiteAddress> SiteAddress::parse(const QString &address)
{
    const QString site = upToPath(address);
    if (!isReadAlikeByAll(site) || hasSecondScheme(address))
        return std::nullopt;
    const QUrl url(site, QUrl::StrictMode);
    if (!url.isValid())
        return std::nullopt;
    SiteAddress result;
    result.m_host = normalisedHost(url);
    if (result.m_host.isEmpty())
        return std::nullopt;
    result.m_registrableDomain = registrableDomainOf(result.m_host);
    result.m_isSecure = url.scheme() == QLatin1String("https");
    result.m_port = url.port(result.m_isSecure ? 443 : 80);
    return result;
}

bool SiteAddress::isSameSite(const SiteAddress &other) const
{
    return site() == other.site();
}

QString SiteAddress::site() const
{
    // A domain has no colon.
    return m_registrableDomain.isEmpty() ? QStringLiteral("%1:%2").arg(m_host).arg(m_port)
                                         : m_registrableDomain;
}

bool mayFillLogin(const SiteAddress &login, const SiteAddress &page)
{
    return (page.isSecure() || !login.isSecure()) && login.isSameSite(page);
}

bool mayFillLogin(const QString &loginAddress, const QString &pageAddress)
{
    const auto login = SiteAddress::parse(SiteAddress::withScheme(loginAddress));
    const auto page = SiteAddress::parse(pageAddress);
    return login && page && mayFillLogin(*login, *page);
}
