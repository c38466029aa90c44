#include "ArchiveWriter.h"

#include "ArchiveEntries.h"

#include <QDebug>
#include <QFileInfo>

#include <quazip.h>
#include <quazipfile.h>

#include <algorithm>

namespace {

const int pieceSize = 131072;
// Sizes from here on need the larger fields of Zip64.
const qint64 largestPlainSize = 0xfffffffe;

QuaZipNewInfo entryInfo(const SafeFiles::File &file)
{
    QuaZipNewInfo info(file.entryName);
    // Earlier years have no place in an archive.
    const QDateTime earliest(QDate(1980, 1, 1), QTime(0, 0));
    info.dateTime = std::max(QFileInfo(file.path).lastModified(), earliest);
    info.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    return info;
}

} // namespace

ArchiveWriter::ArchiveWriter(const SafeEnvironment &environment, const SafeFolder &folder,
                             WorkControl &control)
    : m_environment(environment)
    , m_folder(folder)
    , m_control(control)
    , m_piece(pieceSize, Qt::Uninitialized)
{
}

ArchiveResult ArchiveWriter::write(const QString &target)
{
    if (!m_folder.holdsSafe())
        return {Outcome::NoSafe};
    std::optional<SafeFiles> files = SafeFiles::list(m_folder);
    if (!files)
        return {Outcome::SafeUnreadable};
    m_files = *files;
    // What could not be unpacked again is not packed.
    if (m_files.totalSize > ArchiveEntries::largestTotal)
        return {Outcome::TooLarge};

    m_control.setTotal(m_files.totalSize);
    Outcome outcome = Outcome::CannotWrite;
    const bool written = m_environment.files->write(target, [&](QIODevice &device) {
        outcome = writeEntries(device);
        return outcome == Outcome::Done;
    });
    if (!written)
        return {outcome == Outcome::Done ? Outcome::CannotWrite : outcome};
    return {Outcome::Done, target, m_leftOut, QFileInfo(target).size()};
}

ArchiveResult::Outcome ArchiveWriter::writeEntries(QIODevice &device)
{
    QuaZip zip(&device);
    zip.setAutoClose(false);
    zip.setUtf8Enabled(true);
    zip.setDataDescriptorWritingEnabled(false);
    if (!zip.open(QuaZip::mdCreate))
        return Outcome::CannotWrite;
    for (const SafeFiles::File &file : std::as_const(m_files.files)) {
        const Outcome outcome = writeEntry(zip, file);
        if (outcome != Outcome::Done)
            return outcome;
    }
    zip.close();
    if (zip.getZipError() != ZIP_OK)
        return Outcome::CannotWrite;
    // Files may have grown since they were listed.
    return ArchiveEntries::isTooLarge(m_written, device.size()) ? Outcome::TooLarge : Outcome::Done;
}

ArchiveResult::Outcome ArchiveWriter::writeEntry(QuaZip &zip, const SafeFiles::File &file)
{
    // An archive that holds both would not be unpacked.
    const QString name = ArchiveEntries::sameFile(file.entryName);
    if (m_names.contains(name)) {
        m_leftOut.append(file.path);
        return Outcome::Done;
    }
    const std::unique_ptr<QIODevice> source = m_environment.files->open(file.path);
    if (!source) {
        if (!m_folder.holdsSafe())
            return Outcome::SafeUnreadable;
        // An item that was deleted meanwhile is no loss.
        if (QFileInfo::exists(file.path))
            m_leftOut.append(file.path);
        return Outcome::Done;
    }
    m_names.insert(name);
    zip.setZip64Enabled(source->size() > largestPlainSize);
    QuaZipFile entry(&zip);
    if (!entry.open(QIODevice::WriteOnly, entryInfo(file)))
        return Outcome::CannotWrite;
    const Outcome outcome = copy(*source, entry);
    entry.close();
    if (outcome == Outcome::Done && entry.getZipError() != ZIP_OK)
        return Outcome::CannotWrite;
    return outcome;
}

ArchiveResult::Outcome ArchiveWriter::copy(QIODevice &source, QIODevice &entry)
{
    for (;;) {
        if (m_control.isCancelled())
            return Outcome::Cancelled;
        const qint64 count = source.read(m_piece.data(), m_piece.size());
        if (count < 0)
            return Outcome::SafeUnreadable;
        if (count == 0)
            return Outcome::Done;
        if (entry.write(m_piece.constData(), count) != count)
            return Outcome::CannotWrite;
        m_written += count;
        m_control.advance(count);
    }
}
