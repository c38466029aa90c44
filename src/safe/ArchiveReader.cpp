#include "ArchiveReader.h"

#include "ArchiveEntries.h"

#include <QBuffer>
#include <QtEndian>

#include <quazip.h>
#include <quazipfile.h>

#include <algorithm>

namespace {

const int pieceSize = 131072;
const qint64 largestSmallFile = 1024 * 1024;
const char localHeader[] = "PK\3\4";
const char endOfDirectory[] = "PK\5\6"; // first in an archive without entries
const int endSize = 22;                 ///< of the record that this begins, without a comment
const quint16 storedMethod = 0;

/// Whether the record that ends an archive, with its comment, is there to its last byte.
bool endsWhole(QIODevice &device)
{
    const qint64 longestComment = 0xffff;
    device.seek(std::max<qint64>(0, device.size() - endSize - longestComment));
    const QByteArray tail = device.readAll();
    const int end = tail.lastIndexOf(endOfDirectory);
    if (end < 0 || tail.size() - end < endSize)
        return false;
    const auto *size = reinterpret_cast<const uchar *>(tail.constData()) + end + endSize - 2;
    return tail.size() - end >= endSize + qFromLittleEndian<quint16>(size);
}

ArchiveResult::Outcome notOpened(QIODevice &device)
{
    device.seek(0);
    const QByteArray start = device.read(4);
    if (start == endOfDirectory)
        return ArchiveResult::Outcome::NoSafe;
    return start == localHeader ? ArchiveResult::Outcome::Damaged
                                : ArchiveResult::Outcome::NotAnArchive;
}

} // namespace

ArchiveReader::ArchiveReader(FileLayer &files, const QString &path)
    : m_files(files)
    , m_path(path)
{
}

ArchiveReader::~ArchiveReader() = default;

ArchiveReader::Outcome ArchiveReader::open()
{
    m_device = m_files.open(m_path);
    if (!m_device)
        return Outcome::NotFound;
    m_zip = std::make_unique<QuaZip>(m_device.get());
    m_zip->setAutoClose(false);
    m_zip->setFileNameCodec("UTF-8");
    if (m_zip->open(QuaZip::mdUnzip))
        return endsWhole(*m_device) ? Outcome::Done : Outcome::Damaged;
    return notOpened(*m_device);
}

ArchiveReader::Outcome ArchiveReader::unpack(WorkControl &control, const Keep &keep)
{
    control.setTotal(claimedTotal());
    m_names.clear();
    m_unpacked = 0;
    int entries = 0;
    for (bool more = m_zip->goToFirstFile(); more; more = m_zip->goToNextFile()) {
        QuaZipFileInfo64 info;
        if (!m_zip->getCurrentFileInfo(&info))
            return Outcome::Damaged;
        Outcome outcome = examine(info);
        if (outcome == Outcome::Done)
            outcome = unpackEntry(info, control, keep);
        if (outcome != Outcome::Done)
            return outcome;
        ++entries;
    }
    return isWholeCount(entries) ? Outcome::Done : Outcome::Damaged;
}

ArchiveReader::Outcome ArchiveReader::check(WorkControl &control)
{
    return unpack(control, {});
}

std::optional<QByteArray> ArchiveReader::file(const char *name)
{
    for (bool more = m_zip->goToFirstFile(); more; more = m_zip->goToNextFile()) {
        QuaZipFileInfo64 info;
        if (!m_zip->getCurrentFileInfo(&info))
            return std::nullopt;
        if (info.name != QLatin1String(name))
            continue;
        if (info.uncompressedSize > quint64(largestSmallFile))
            return std::nullopt;
        QBuffer content;
        content.open(QIODevice::WriteOnly);
        WorkControl control;
        m_unpacked = 0;
        if (copy(info, &content, control) != Outcome::Done)
            return std::nullopt;
        return content.data();
    }
    return std::nullopt;
}

ArchiveReader::Outcome ArchiveReader::examine(const QuaZipFileInfo64 &info)
{
    const ArchiveEntries::Place place = ArchiveEntries::place(info.name);
    if (info.isSymbolicLink() || place == ArchiveEntries::Place::Forbidden)
        return Outcome::UnsafeEntry;
    const QString name =
        place == ArchiveEntries::Place::Safe ? ArchiveEntries::sameFile(info.name) : info.name;
    if (m_names.contains(name))
        return Outcome::NameTwice;
    m_names.insert(name);
    const bool readable = info.method == storedMethod || info.method == Z_DEFLATED;
    return readable && !info.isEncrypted() ? Outcome::Done : Outcome::Unsupported;
}

ArchiveReader::Outcome ArchiveReader::unpackEntry(const QuaZipFileInfo64 &info,
                                                  WorkControl &control, const Keep &keep)
{
    if (!keep || ArchiveEntries::place(info.name) != ArchiveEntries::Place::Safe)
        return copy(info, nullptr, control);
    Outcome outcome = Outcome::CannotWrite;
    const bool written = keep(info.name, [&](QIODevice &destination) {
        outcome = copy(info, &destination, control);
        return outcome == Outcome::Done;
    });
    return !written && outcome == Outcome::Done ? Outcome::CannotWrite : outcome;
}

ArchiveReader::Outcome ArchiveReader::copy(const QuaZipFileInfo64 &info, QIODevice *destination,
                                           WorkControl &control)
{
    QuaZipFile entry(m_zip.get());
    if (!entry.open(QIODevice::ReadOnly))
        return Outcome::Damaged;
    QByteArray piece(pieceSize, Qt::Uninitialized);
    quint64 size = 0;
    for (;;) {
        const qint64 count = entry.read(piece.data(), piece.size());
        if (count <= 0)
            break;
        if (control.isCancelled())
            return Outcome::Cancelled;
        m_unpacked += count;
        if (ArchiveEntries::isTooLarge(m_unpacked, m_device->size()))
            return Outcome::TooLarge;
        if (destination && destination->write(piece.constData(), count) != count)
            return Outcome::CannotWrite;
        size += static_cast<quint64>(count);
        control.advance(count);
    }
    // The checksum is compared on closing, and only when the whole size was read.
    const bool readWell = entry.getZipError() == UNZ_OK && size == info.uncompressedSize;
    entry.close();
    return readWell && entry.getZipError() == UNZ_OK ? Outcome::Done : Outcome::Damaged;
}

qint64 ArchiveReader::claimedTotal()
{
    quint64 total = 0;
    const QList<QuaZipFileInfo64> infos = m_zip->getFileInfoList64();
    for (const QuaZipFileInfo64 &info : infos)
        total += std::min(info.uncompressedSize, quint64(ArchiveEntries::largestTotal));
    return static_cast<qint64>(std::min(total, quint64(ArchiveEntries::largestTotal)));
}

bool ArchiveReader::isWholeCount(int entries) const
{
    return m_zip->getZipError() == UNZ_OK && entries == m_zip->getEntriesCount();
}
