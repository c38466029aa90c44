#include "SiteIconImage.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

namespace {

const int largestSide = 2048;

bool isSmall(qint64 width, qint64 height)
{
    return width > 0 && height > 0 && width <= largestSide && height <= largestSide;
}

/// An ICO file is a list of pictures, each of which has a size of its own that the list may hide.
bool holdsSmallPictures(const QByteArray &ico)
{
    constexpr int listEntry = 16;
    const auto *bytes = reinterpret_cast<const uchar *>(ico.constData());
    const int count = qFromLittleEndian<quint16>(bytes + 4);
    if (ico.size() < 6 + count * listEntry)
        return false;
    for (int i = 0; i < count; ++i) {
        const qint64 offset = qFromLittleEndian<quint32>(bytes + 6 + i * listEntry + 12);
        if (offset + 24 > ico.size())
            return false;
        const uchar *picture = bytes + offset;
        const bool isPng = ico.mid(static_cast<int>(offset), 4) == "\x89PNG";
        const bool small = isPng ? isSmall(qFromBigEndian<quint32>(picture + 16),
                                           qFromBigEndian<quint32>(picture + 20))
                                 // The height counts a mask, too.
                                 : isSmall(qFromLittleEndian<qint32>(picture + 4),
                                           qFromLittleEndian<qint32>(picture + 8) / 2);
        if (!small)
            return false;
    }
    return count > 0;
}

} // namespace

QByteArray SiteIconImage::format(const QByteArray &bytes)
{
    if (bytes.size() < 24 || bytes.size() > largestFile)
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (format.isEmpty() || format.startsWith("svg") || format == "pdf")
        return {};
    if ((format == "ico" || format == "cur") && !holdsSmallPictures(bytes))
        return {};
    const QSize size = reader.size();
    return isSmall(size.width(), size.height()) ? format : QByteArray();
}

QImage SiteIconImage::read(const QByteArray &bytes, int side)
{
    const QByteArray known = format(bytes);
    if (known.isEmpty())
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, known);
    reader.setScaledSize(reader.size().scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return reader.read();
}
