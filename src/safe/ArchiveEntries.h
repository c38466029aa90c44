#pragma once

#include <QString>
#include <QtGlobal>

/// What the entries of a safe's archive may be called, and how much they may hold.
namespace ArchiveEntries {

enum class Place {
    Safe,      ///< a file of a safe
    Elsewhere, ///< harmless, but no file of a safe: passed over
    Forbidden, ///< could be written outside the folder, here or on another system
};

/// @param name with forward slashes, as it stands in the archive
Place place(const QString &name);

/// What two names share that are the same file, here or where case does not count.
QString sameFile(const QString &name);

/// Whether an archive unpacks to more than can be meant honestly: over 4 GiB, or over a hundred
/// times its own size.
bool isTooLarge(qint64 unpackedSize, qint64 archiveSize);

/// The largest total that an archive may hold, in bytes.
constexpr qint64 largestTotal = qint64(4) << 30;

} // namespace ArchiveEntries
