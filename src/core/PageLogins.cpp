#include "PageLogins.h"

#include "PMLogin.h"

#include <QElapsedTimer>

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

const int sliceMs = 4;

QString plainHost(const SiteAddress &address)
{
    const QString host = address.host();
    return host.startsWith(QLatin1String("www.")) ? host.mid(4) : host;
}

} // namespace

PageLogins::PageLogins(QObject *parent)
    : QObject(parent)
{
    connect(&m_reading, &QTimer::timeout, this, &PageLogins::readSome);
    m_announcement.setSingleShot(true);
    m_announcement.setInterval(0);
    connect(&m_announcement, &QTimer::timeout, this, &PageLogins::changed);
}

PageLogins::~PageLogins()
{
    // It may hold the safe as the last one, which tells of its end.
    setSafe(nullptr);
}

void PageLogins::setSafe(const std::shared_ptr<GPMSafe> &safe)
{
    if (m_safe)
        m_safe->disconnect(this);
    m_safe = safe;
    if (m_safe) {
        connect(m_safe.get(), &GPMSafe::itemsReset, this, &PageLogins::reload);
        connect(m_safe.get(), &GPMSafe::itemAdded, this,
                [this](const QString &id) { add(m_safe->item(id)); });
        connect(m_safe.get(), &GPMSafe::itemAboutToBeRemoved, this, &PageLogins::remove);
    }
    reload();
}

void PageLogins::reload()
{
    m_places.clear();
    m_bySite.clear();
    m_unread.clear();
    if (m_safe) {
        for (PMListItem *item : m_safe->items())
            follow(item);
    }
    if (!m_unread.isEmpty())
        m_reading.start(0);
    announce();
}

void PageLogins::follow(PMListItem *item)
{
    if (item->type() != PMListItem::Login)
        return;
    m_unread.append(item);
    connect(item, &PMListItem::timestampChanged, this, [this, item] {
        // Uses are counted far more often than addresses change.
        const auto place = m_places.constFind(item);
        const bool same = place != m_places.constEnd() && place->url == item->url() &&
                          place->deleted == item->deleted();
        if (same || place == m_places.constEnd())
            return;
        forget(item);
        read(item);
        announce();
    });
}

void PageLogins::add(PMListItem *item)
{
    follow(item);
    readAll();
    announce();
}

void PageLogins::remove(const QString &id)
{
    PMListItem *item = m_safe->item(id);
    item->disconnect(this);
    m_unread.removeAll(item);
    forget(item);
    announce();
}

void PageLogins::read(PMListItem *item)
{
    Place place{item->url(), item->deleted(), {}};
    if (!place.deleted && !place.url.isEmpty())
        place.address = SiteAddress::parse(SiteAddress::withScheme(place.url));
    if (place.address)
        m_bySite[place.address->site()].append(item);
    m_places.insert(item, place);
}

void PageLogins::forget(PMListItem *item)
{
    const Place place = m_places.take(item);
    if (!place.address)
        return;
    const auto site = m_bySite.find(place.address->site());
    site->removeOne(item);
    if (site->isEmpty())
        m_bySite.erase(site);
}

void PageLogins::readSome()
{
    // Between events, so that neither unlocking nor the first page has to wait for all of them.
    QElapsedTimer slice;
    slice.start();
    while (!m_unread.isEmpty() && slice.elapsed() < sliceMs)
        read(m_unread.takeLast());
    if (m_unread.isEmpty())
        m_reading.stop();
}

void PageLogins::readAll()
{
    while (!m_unread.isEmpty())
        read(m_unread.takeLast());
    m_reading.stop();
}

QStringList PageLogins::idsFor(const QString &pageUrl)
{
    const std::optional<SiteAddress> page = SiteAddress::parse(pageUrl);
    if (!page)
        return {};
    readAll();
    // Its own host first; made once for each, as there may be many.
    using Key = std::tuple<bool, QString, QString>;
    std::vector<Key> found;
    const QString host = plainHost(*page);
    for (PMListItem *item : m_bySite.value(page->site())) {
        const SiteAddress &address = *m_places.constFind(item)->address;
        if (mayFillLogin(address, *page))
            found.emplace_back(plainHost(address) != host, item->title().toCaseFolded(),
                               item->id());
    }
    std::sort(found.begin(), found.end());
    QStringList ids;
    for (const Key &key : found)
        ids.append(std::get<2>(key));
    return ids;
}

QVector<const PMLogin *> PageLogins::loginsOf(const QString &site)
{
    QVector<const PMLogin *> found;
    const std::optional<SiteAddress> address = SiteAddress::parse(SiteAddress::withScheme(site));
    if (!address)
        return found;
    readAll();
    for (const PMListItem *item : m_bySite.value(address->site())) {
        if (const auto *login = qobject_cast<const PMLogin *>(item))
            found.append(login);
    }
    return found;
}

void PageLogins::announce()
{
    if (!m_announcement.isActive())
        m_announcement.start();
}
