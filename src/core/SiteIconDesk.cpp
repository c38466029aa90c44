#include "SiteIconDesk.h"

#include "GPMSafe.h"
#include "OwnerOnlyFile.h"
#include "SafeLayout.h"

#include <QDebug>

#include <utility>

SiteIconDesk::SiteIconDesk(LinkSettings &settings, IconNetwork network, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_downloader(std::move(network))
{
    m_downloader.setEnabled(settings.siteIcons());
    connect(&m_downloader, &GPMFaviconDownloader::iconChanged, this, &SiteIconDesk::iconChanged);
}

void SiteIconDesk::setSafe(const std::shared_ptr<GPMSafe> &safe)
{
    m_safe = safe;
    follow();
}

bool SiteIconDesk::setEnabled(bool enabled)
{
    m_downloader.setEnabled(enabled);
    return m_settings.setSiteIcons(enabled);
}

void SiteIconDesk::follow()
{
    if (!m_safe || !m_safe->isUnlocked()) {
        m_downloader.setFolder({});
        return;
    }
    const QString folder = m_safe->folder() + QLatin1Char('/') + QLatin1String(SafeLayout::favicon);
    if (!makeOwnerOnlyFolder(folder))
        qWarning() << "Can't create favicon directory for safe:" << m_safe->folder();
    m_downloader.setFolder(folder);
}

void SiteIconDesk::download(const QString &domain, const QString &address)
{
    m_downloader.download(address, domain);
}
