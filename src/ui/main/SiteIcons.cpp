#include "SiteIcons.h"

#include "SiteIconImage.h"

#include <QFile>
#include <QFileInfo>

namespace {

const int kept = 500;

} // namespace

QImage readSiteIcon(const QString &path, int side)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > SiteIconImage::largestFile ||
        !file.open(QIODevice::ReadOnly))
        return {};
    // The content tells the format, the name is the site's.
    return SiteIconImage::read(file.read(SiteIconImage::largestFile + 1), side);
}

SiteIcons::SiteIcons(QObject *parent)
    : QObject(parent)
    , m_cache(kept)
{
}

void SiteIcons::setFolder(const QString &folder)
{
    m_folder = folder;
    m_icons = SiteIconFolder(folder);
    m_cache.clear();
}

QString SiteIcons::pathOf(const QString &fileName, const QString &domain) const
{
    const bool isBuiltIn = fileName.startsWith(QLatin1Char(':'));
    if (m_folder.isEmpty() || fileName.isEmpty() || isBuiltIn)
        return m_icons.iconPath(domain);
    if (fileName == QStringLiteral("..") || fileName.contains(QLatin1Char('/')) ||
        fileName.contains(QLatin1Char('\\')))
        return {};
    return m_folder + QLatin1Char('/') + fileName;
}

QPixmap SiteIcons::icon(const QString &fileName, int side, const QString &domain)
{
    if (m_folder.isEmpty() || (fileName.isEmpty() && domain.isEmpty()))
        return {};
    const QString key = QStringLiteral("%1/%2/%3").arg(side).arg(fileName, domain);
    if (const QPixmap *found = m_cache.object(key))
        return *found;
    const QString path = pathOf(fileName, domain);
    const QImage image = path.isEmpty() ? QImage() : readSiteIcon(path, side);
    const QPixmap pixmap = image.isNull() ? QPixmap() : QPixmap::fromImage(image);
    m_cache.insert(key, new QPixmap(pixmap));
    return pixmap;
}

void SiteIcons::retryMissing()
{
    m_icons.refresh();
    const QStringList keys = m_cache.keys();
    for (const QString &key : keys) {
        if (m_cache.object(key)->isNull())
            m_cache.remove(key);
    }
}

void SiteIcons::onUpdateFavicons(const QString &)
{
    // Few are shown at a time, and reading them again is quick.
    m_icons.refresh();
    m_cache.clear();
    Q_EMIT changed();
}
