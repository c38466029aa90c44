#include "GPMUpdateChecker.h"

#include "UpdateQuery.h"

#include <QNetworkProxy>
#include <QNetworkReply>

namespace {

const int mostRedirects = 3;
const qint64 secondsBetween = 24 * 60 * 60;
const qint64 secondsAfterFailure = 60 * 60;

/// A moment that has not come yet was taken before the clock was set back.
bool isPast(const QDateTime &moment, qint64 seconds, const QDateTime &now)
{
    return !moment.isValid() || moment > now || moment.secsTo(now) >= seconds;
}

} // namespace

GPMUpdateChecker::GPMUpdateChecker(const Parts &parts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
{
    // The system's proxy is looked up while the caller waits, for seconds at worst.
    m_network.setProxy(QNetworkProxy::NoProxy);
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this,
            [this] { fail(QStringLiteral("No answer in time")); });
}

GPMUpdateChecker::~GPMUpdateChecker()
{
    dropReply();
}

void GPMUpdateChecker::setEndpoint(const QUrl &endpoint)
{
    m_endpoint = UpdateQuery::isEndpoint(endpoint) ? endpoint : QUrl();
}

void GPMUpdateChecker::checkIfDue()
{
    const QDateTime now = m_parts.clock();
    if (m_state != Asking && m_parts.isWanted() &&
        isPast(m_parts.lastCheck(), secondsBetween, now) &&
        isPast(m_lastTry, secondsAfterFailure, now))
        ask(false);
}

void GPMUpdateChecker::checkNow()
{
    m_byUser = true;
    if (m_state != Asking)
        ask(true);
}

void GPMUpdateChecker::ask(bool byUser)
{
    if (!hasEndpoint())
        return;
    m_byUser = byUser;
    m_lastTry = m_parts.clock();
    m_redirects = 0;
    m_state = Asking;
    m_parts.log(QStringLiteral("GPMUpdateChecker::ask: Asks %1").arg(m_endpoint.host()));
    m_limit.start(m_parts.limit);
    request(UpdateQuery::address(m_endpoint, m_parts.version, m_parts.productId,
                                 m_parts.machineHash()));
    Q_EMIT stateChanged();
}

void GPMUpdateChecker::request(const QUrl &url)
{
    m_url = url;
    QNetworkRequest get(url);
    // Left alone, the network would tell of the user's language, and unpack what is too much.
    get.setRawHeader("User-Agent", "Glaceron");
    get.setRawHeader("Accept-Language", "en");
    get.setRawHeader("Accept-Encoding", "identity");
    for (const QNetworkRequest::Attribute attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        get.setAttribute(attribute, QNetworkRequest::Manual);
    m_reply = m_network.get(get);
    m_reply->setReadBufferSize(2 * UpdateNews::largest);
    connect(m_reply, &QNetworkReply::readyRead, this, [this] {
        if (m_reply->bytesAvailable() > UpdateNews::largest)
            fail(QStringLiteral("The answer is too large"));
    });
    connect(m_reply, &QNetworkReply::finished, this, &GPMUpdateChecker::onReply);
}

void GPMUpdateChecker::onReply()
{
    QNetworkReply *reply = m_reply;
    const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QNetworkReply::NetworkError error = reply->error();
    const QByteArray answer = reply->readAll();
    dropReply();
    if (!target.isEmpty()) {
        const QUrl next = m_url.resolved(target);
        if (!UpdateQuery::mayFollow(m_url, next) || ++m_redirects > mostRedirects)
            fail(QStringLiteral("Led elsewhere"));
        else
            request(next);
        return;
    }
    // Texts of the network's errors hold the address, and with it the hash.
    if (error != QNetworkReply::NoError || status != 200)
        fail(QStringLiteral("Error %1, status %2").arg(int(error)).arg(status));
    else
        judge(answer);
}

void GPMUpdateChecker::judge(const QByteArray &answer)
{
    const std::optional<UpdateNews> news = UpdateNews::read(answer);
    if (!news) {
        fail(QStringLiteral("The answer is not understood"));
        return;
    }
    m_parts.setLastCheck(m_parts.clock());
    m_parts.log(QStringLiteral("GPMUpdateChecker::judge: Newest version %1").arg(news->version));
    // An older one would bring mended faults back.
    const QString installed = m_parts.installedVersion();
    const bool newer = isNewerVersion(news->version, m_parts.version) &&
                       (installed.isEmpty() || isNewerVersion(news->version, installed));
    m_news = newer ? *news : UpdateNews();
    finish(newer ? NewVersion : UpToDate);
}

void GPMUpdateChecker::fail(const QString &why)
{
    m_parts.log(QStringLiteral("GPMUpdateChecker::fail: %1").arg(why));
    finish(Failed);
}

void GPMUpdateChecker::finish(State state)
{
    m_limit.stop();
    dropReply();
    m_state = state;
    const bool byUser = m_byUser;
    m_byUser = false;
    Q_EMIT stateChanged();
    if (state == NewVersion && (byUser || m_parts.isWanted()))
        Q_EMIT newVersionFound(m_news, byUser);
}

void GPMUpdateChecker::dropReply()
{
    if (!m_reply)
        return;
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}
