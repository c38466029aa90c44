#pragma once

#include "PublicAddress.h"

#include <QNetworkReply>
#include <QObject>
#include <QSslConfiguration>
#include <QTimer>
#include <QUrl>
#include <QVector>

#include <chrono>
#include <functional>

class QNetworkAccessManager;

/// The network as icons are fetched from it; tests put their own in its place.
struct IconNetwork
{
    using Resolved = std::function<void(const QVector<QHostAddress> &)>;

    /// The addresses of a host, none when there are none; `context` is gone when nobody waits.
    std::function<void(const QString &host, QObject *context, const Resolved &)> resolve =
        &IconNetwork::resolveBySystem;
    std::function<bool(const QHostAddress &)> isPublic = &isPublicAddress;
    /// Where the icon of a domain is looked for after the address that the page gave.
    std::function<QVector<QUrl>(const QString &domain)> fallbacks = &IconNetwork::usualPlaces;
    std::chrono::milliseconds limit =
        std::chrono::seconds(15); ///< of one address with its redirects
    /// How sites prove who they are; what is trusted is what the system trusts.
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();

    static void resolveBySystem(const QString &host, QObject *context, const Resolved &resolved);
    static QVector<QUrl> usualPlaces(const QString &domain);
};

/// Fetches the icon of one domain: from the address that its page gave, else from the usual places.
/// Pages are not trusted: nothing is asked of the computers nearby unless the domain is one.
class IconFetch : public QObject
{
    Q_OBJECT

public:
    /// Manager and network outlive this.
    /// @param places tried in this order
    IconFetch(QNetworkAccessManager &manager, const IconNetwork &network, const QString &domain,
              const QVector<QUrl> &places, QObject *parent);
    ~IconFetch() override;

    void start();
    const QString &domain() const { return m_domain; }

    /// Whether an icon may be asked for at the address, as far as its text tells.
    static bool isWebAddress(const QUrl &url);
    /// Whether a redirect may be followed, as far as the addresses tell.
    static bool mayFollow(const QUrl &from, const QUrl &to);

Q_SIGNALS:
    /// The address had no icon.
    void failed(const QUrl &address);
    /// Once, as the last thing; both empty when there is no icon.
    void finished(const QByteArray &format, const QByteArray &bytes);

private:
    void tryNext();
    void request(const QUrl &url);
    void connectTo(const QVector<QHostAddress> &addresses);
    void onProgress();
    void onReply();
    void giveUp();
    void dropReply();

    QNetworkAccessManager &m_manager;
    const IconNetwork &m_network;
    QString m_domain;
    QVector<QUrl> m_places;
    QUrl m_place; ///< the one of them that is tried
    QUrl m_url;   ///< where its redirects have led
    int m_redirects = 0;
    QNetworkReply *m_reply = nullptr;
    QObject *m_resolving = nullptr;
    QTimer m_limit;
};
