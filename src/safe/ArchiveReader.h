#pragma once

#include "ArchiveResult.h"
#include "FileLayer.h"
#include "WorkControl.h"

#include <QSet>
#include <QString>

#include <functional>
#include <memory>

class QuaZip;
struct QuaZipFileInfo64;

/// Reads the archive of a safe, entry by entry, and believes nothing of what it says: names, sizes
/// and checksums are looked at while it unpacks.
class ArchiveReader
{
public:
    using Outcome = ArchiveResult::Outcome;

    ArchiveReader(FileLayer &files, const QString &path);
    ~ArchiveReader();

    /// First of all.
    Outcome open();

    /// Is given the name of a file of the safe and what writes its content; returns whether it was
    /// written.
    using Keep = std::function<bool(const QString &name, const FileLayer::Produce &content)>;

    /// Unpacks every entry to its end and hands the files of a safe on, in the order of the
    /// archive. Other entries are checked alike and dropped.
    Outcome unpack(WorkControl &control, const Keep &keep);

    /// Unpacks every entry and keeps none.
    Outcome check(WorkControl &control);

    /// The content of one small file, without the others being unpacked; nothing when it is not
    /// there, damaged, or larger than 1 MiB.
    std::optional<QByteArray> file(const char *name);

private:
    Outcome examine(const QuaZipFileInfo64 &info);
    Outcome unpackEntry(const QuaZipFileInfo64 &info, WorkControl &control, const Keep &keep);
    Outcome copy(const QuaZipFileInfo64 &info, QIODevice *destination, WorkControl &control);
    qint64 claimedTotal();
    bool isWholeCount(int entries) const;

    FileLayer &m_files;
    QString m_path;
    std::unique_ptr<QIODevice> m_device;
    std::unique_ptr<QuaZip> m_zip;
    QSet<QString> m_names;
    qint64 m_unpacked = 0;
};
