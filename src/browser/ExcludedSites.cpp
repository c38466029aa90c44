#include "ExcludedSites.h"

#include "OwnerOnlyFile.h"
#include "SiteAddress.h"

#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

/// What the list holds for an address: the domain of its owner, or the host where there is none.
QString siteOf(const QString &address)
{
    const auto parsed = SiteAddress::parse(SiteAddress::withScheme(address));
    if (!parsed)
        return {};
    return parsed->registrableDomain().isEmpty() ? parsed->host() : parsed->registrableDomain();
}

} // namespace

ExcludedSites::ExcludedSites(const QString &filePath)
    : m_filePath(filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonArray list = QJsonDocument::fromJson(file.readAll()).array();
    for (const QJsonValue &site : list) {
        if (!site.toString().isEmpty())
            m_sites.append(site.toString());
    }
    m_sites.removeDuplicates();
    m_sites.sort();
}

bool ExcludedSites::contains(const QString &address) const
{
    const QString site = siteOf(address);
    return !site.isEmpty() && m_sites.contains(site);
}

bool ExcludedSites::add(const QString &address)
{
    const QString site = siteOf(address);
    if (site.isEmpty())
        return false;
    if (m_sites.contains(site))
        return true;
    QStringList sites = m_sites;
    sites.append(site);
    sites.sort();
    return store(sites);
}

bool ExcludedSites::remove(const QString &site)
{
    QStringList sites = m_sites;
    return sites.removeAll(site) > 0 && store(sites);
}

bool ExcludedSites::store(const QStringList &sites)
{
    if (!writeOwnerOnlyFile(m_filePath,
                            QJsonDocument(QJsonArray::fromStringList(sites)).toJson())) {
        qWarning() << "Can't store the list of excluded sites:" << m_filePath;
        return false;
    }
    m_sites = sites;
    return true;
}
