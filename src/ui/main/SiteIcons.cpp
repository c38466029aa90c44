#include "SiteIcons.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

namespace {

const qint64 largestFile = 1024 * 1024;
const int largestSide = 2048;
const int kept = 500;

} // namespace

QImage readSiteIcon(const QString &path, int side)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > largestFile)
        return {};
    QImageReader reader(path);
    // The content tells the format, the name is the site's.
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead() || reader.format().startsWith("svg") || reader.format() == "pdf")
        return {};
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > largestSide || size.height() > largestSide)
        return {};
    reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}

SiteIcons::SiteIcons(QObject *parent)
    : QObject(parent)
    , m_cache(kept)
{
}

void SiteIcons::setFolder(const QString &folder)
{
    m_folder = folder;
    m_cache.clear();
}

QPixmap SiteIcons::icon(const QString &fileName, int side)
{
    if (m_folder.isEmpty() || fileName.isEmpty() || fileName == QStringLiteral("..") ||
        fileName.contains(QLatin1Char('/')) || fileName.contains(QLatin1Char('\\')))
        return {};
    const QString key = QStringLiteral("%1/%2").arg(side).arg(fileName);
    if (const QPixmap *found = m_cache.object(key))
        return *found;
    const QImage image = readSiteIcon(m_folder + QLatin1Char('/') + fileName, side);
    const QPixmap pixmap = image.isNull() ? QPixmap() : QPixmap::fromImage(image);
    m_cache.insert(key, new QPixmap(pixmap));
    return pixmap;
}

void SiteIcons::retryMissing()
{
    const QStringList keys = m_cache.keys();
    for (const QString &key : keys) {
        if (m_cache.object(key)->isNull())
            m_cache.remove(key);
    }
}
