#include "GPMFaviconDownloader.h"

#include <QFileInfo>
#include <QNetworkProxy>

#include <algorithm>
#include <utility>

namespace {

const int mostAtOnce = 4;
const int mostWaiting = 100;
const int mostFailed = 2000;
const int daysFresh = 30;

} // namespace

GPMFaviconDownloader::GPMFaviconDownloader(IconNetwork network, Clock clock, QObject *parent)
    : QObject(parent)
    , m_network(std::move(network))
    , m_clock(std::move(clock))
{
    // To ask the system for a proxy can block for seconds, and a proxy would resolve names anew:
    // the address that was judged is the one to connect to.
    m_manager.setProxy(QNetworkProxy::NoProxy);
    connect(&m_manager, &QNetworkAccessManager::finished, this,
            &GPMFaviconDownloader::dataDownloaded);
}

GPMFaviconDownloader::~GPMFaviconDownloader()
{
    endAll();
}

void GPMFaviconDownloader::setFolder(const QString &folder)
{
    if (m_folder == folder)
        return;
    endAll();
    m_folder = folder;
    m_icons = SiteIconFolder(folder);
}

void GPMFaviconDownloader::setEnabled(bool enabled)
{
    m_enabled = enabled;
    if (!enabled)
        endAll();
}

void GPMFaviconDownloader::endAll()
{
    qDeleteAll(m_waiting + m_running);
    m_waiting.clear();
    m_running.clear();
}

bool GPMFaviconDownloader::isKnown(const QString &domain) const
{
    const QString path = m_icons.ownIconPath(domain);
    if (!path.isEmpty() && QFileInfo(path).lastModified().daysTo(m_clock()) < daysFresh)
        return true;
    const QVector<IconFetch *> all = m_waiting + m_running;
    return std::any_of(all.begin(), all.end(),
                       [&domain](const IconFetch *fetch) { return fetch->domain() == domain; });
}

void GPMFaviconDownloader::download(const QString &address, const QString &domain)
{
    if (!m_enabled || m_folder.isEmpty() || domain.isEmpty() || isKnown(domain) ||
        m_waiting.size() >= mostWaiting)
        return;
    QVector<QUrl> places;
    const QUrl given(address, QUrl::StrictMode);
    if (IconFetch::isWebAddress(given))
        places.append(given);
    const QString bare = domain.startsWith(QLatin1String("www.")) ? domain.mid(4) : domain;
    for (const QUrl &place : m_network.fallbacks(bare)) {
        if (!places.contains(place))
            places.append(place);
    }
    const auto hasFailed = [this](const QUrl &place) { return m_failed.contains(place); };
    places.erase(std::remove_if(places.begin(), places.end(), hasFailed), places.end());
    if (places.isEmpty())
        return;
    auto *fetch = new IconFetch(m_manager, m_network, domain, places, this);
    connect(fetch, &IconFetch::failed, this, [this](const QUrl &place) {
        if (m_failed.size() < mostFailed)
            m_failed.insert(place);
    });
    connect(fetch, &IconFetch::finished, this,
            [this, fetch](const QByteArray &format, const QByteArray &bytes) {
                keep(fetch, format, bytes);
            });
    m_waiting.append(fetch);
    startNext();
}

void GPMFaviconDownloader::startNext()
{
    while (m_running.size() < mostAtOnce && !m_waiting.isEmpty()) {
        IconFetch *fetch = m_waiting.takeFirst();
        m_running.append(fetch);
        // Not before the caller has gone on: it may end at once.
        QMetaObject::invokeMethod(fetch, &IconFetch::start, Qt::QueuedConnection);
    }
}

void GPMFaviconDownloader::keep(IconFetch *fetch, const QByteArray &format, const QByteArray &bytes)
{
    m_running.removeOne(fetch);
    fetch->deleteLater(); // its own signal led here
    const QString domain = fetch->domain();
    if (!format.isEmpty() && m_icons.store(domain, format, bytes))
        Q_EMIT iconChanged(domain);
    startNext();
}
