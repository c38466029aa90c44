#include "IconFetch.h"

#include "SiteIconImage.h"

#include <QHostInfo>
#include <QNetworkAccessManager>

#include <algorithm>

namespace {

const int mostRedirects = 5;

bool isSpecialPort(int port)
{
    // Those of mail, printers and the like, which web sites do not use.
    return port >= 0 && port < 1024 && port != 80 && port != 443;
}

} // namespace

void IconNetwork::resolveBySystem(const QString &host, QObject *context, const Resolved &resolved)
{
    QHostInfo::lookupHost(host, context, [resolved](const QHostInfo &info) {
        resolved(info.addresses().toVector());
    });
}

QVector<QUrl> IconNetwork::usualPlaces(const QString &domain)
{
    QVector<QUrl> places;
    for (const char *prefix : {"", "www."}) {
        QUrl url;
        url.setScheme(QStringLiteral("https"));
        url.setHost(QLatin1String(prefix) + domain);
        url.setPath(QStringLiteral("/favicon.ico"));
        places.append(url);
    }
    return places;
}

IconFetch::IconFetch(QNetworkAccessManager &manager, const IconNetwork &network,
                     const QString &domain, const QVector<QUrl> &places, QObject *parent)
    : QObject(parent)
    , m_manager(manager)
    , m_network(network)
    , m_domain(domain)
    , m_places(places)
{
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, &IconFetch::giveUp);
}

IconFetch::~IconFetch()
{
    dropReply();
}

void IconFetch::start()
{
    tryNext();
}

bool IconFetch::isWebAddress(const QUrl &url)
{
    const bool isWeb =
        url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    return isWeb && url.isValid() && !url.host().isEmpty() && url.userInfo().isEmpty() &&
           !isSpecialPort(url.port());
}

bool IconFetch::mayFollow(const QUrl &from, const QUrl &to)
{
    const QLatin1String secure("https");
    return isWebAddress(to) && (from.scheme() != secure || to.scheme() == secure);
}

void IconFetch::tryNext()
{
    if (m_places.isEmpty()) {
        Q_EMIT finished({}, {});
        return;
    }
    m_place = m_places.takeFirst();
    m_redirects = 0;
    m_limit.start(m_network.limit);
    request(m_place);
}

void IconFetch::request(const QUrl &url)
{
    if (!isWebAddress(url)) {
        giveUp();
        return;
    }
    m_url = url;
    const QString host = url.host(QUrl::FullyEncoded);
    const QHostAddress literal(host);
    if (!literal.isNull()) {
        connectTo({literal});
        return;
    }
    m_resolving = new QObject(this);
    m_network.resolve(host, m_resolving, [this](const QVector<QHostAddress> &addresses) {
        m_resolving->deleteLater();
        m_resolving = nullptr;
        connectTo(addresses);
    });
}

void IconFetch::connectTo(const QVector<QHostAddress> &addresses)
{
    const QString host = m_url.host(QUrl::FullyEncoded);
    const bool mayBeNear = host == m_domain && isLocalHost(m_domain);
    const bool allowed =
        !addresses.isEmpty() &&
        (mayBeNear || std::all_of(addresses.begin(), addresses.end(), m_network.isPublic));
    if (!allowed) {
        giveUp();
        return;
    }
    // A network without version 6 would keep the user waiting.
    const auto version4 =
        std::find_if(addresses.begin(), addresses.end(), [](const QHostAddress &address) {
            return address.protocol() == QAbstractSocket::IPv4Protocol;
        });
    // The very address that was judged: a name may mean another one the next time.
    QUrl url = m_url;
    url.setHost((version4 == addresses.end() ? addresses.first() : *version4).toString());
    QNetworkRequest get(url);
    get.setPeerVerifyName(host);
    get.setSslConfiguration(m_network.tls);
    QString hostHeader = host.contains(QLatin1Char(':')) ? QStringLiteral("[%1]").arg(host) : host;
    if (m_url.port() >= 0)
        hostHeader += QStringLiteral(":%1").arg(m_url.port());
    get.setRawHeader("Host", hostHeader.toLatin1());
    get.setRawHeader("User-Agent", "Chrome");
    for (const QNetworkRequest::Attribute attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        get.setAttribute(attribute, QNetworkRequest::Manual);
    m_reply = m_manager.get(get);
    // More than is allowed, or it would wait for room before it tells that it is too much.
    m_reply->setReadBufferSize(2 * SiteIconImage::largestFile);
    connect(m_reply, &QNetworkReply::readyRead, this, &IconFetch::onProgress);
    connect(m_reply, &QNetworkReply::finished, this, &IconFetch::onReply);
}

void IconFetch::onProgress()
{
    if (m_reply->bytesAvailable() > SiteIconImage::largestFile)
        giveUp();
}

void IconFetch::onReply()
{
    QNetworkReply *reply = m_reply;
    const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty()) {
        dropReply();
        const QUrl next = m_url.resolved(target);
        if (!mayFollow(m_url, next) || ++m_redirects > mostRedirects)
            giveUp();
        else
            request(next);
        return;
    }
    const QByteArray bytes =
        reply->error() == QNetworkReply::NoError ? reply->readAll() : QByteArray();
    dropReply();
    const QByteArray format = SiteIconImage::format(bytes);
    if (format.isEmpty()) {
        giveUp();
        return;
    }
    m_limit.stop();
    Q_EMIT finished(format, bytes);
}

void IconFetch::giveUp()
{
    m_limit.stop();
    dropReply();
    delete m_resolving;
    m_resolving = nullptr;
    Q_EMIT failed(m_place);
    tryNext();
}

void IconFetch::dropReply()
{
    if (!m_reply)
        return;
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}
