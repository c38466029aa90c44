#pragma once

#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "SyncRecord.h"
#include "WorkControl.h"

#include <QMap>
#include <QString>

#include <optional>

/// The files of one side of a synchronisation: a safe or its mirror. Those whose names are none of
/// a safe's are left out, and so are links, pipes and the like.
struct SyncListing
{
    QMap<QString, FileStamp> content;    ///< by file name
    QMap<QString, FileStamp> attachment; ///< by file name
    qint64 taken = 0;                    ///< when, by the clock of the files

    /// Nothing when the side is not there, cannot be listed or holds more than any safe does.
    /// @param copies with providers' conflict copies, which in a safe are the user's own files
    static std::optional<SyncListing> of(const SafeFolder &folder, bool copies);

    /// Whether a folder holds a file of an item, of whatever generation.
    static bool hasItem(const QMap<QString, FileStamp> &files, const QString &id);
};

/// Now, as the times of files count: ms since an epoch of the system's own.
qint64 fileClock();

/// A mirror is a folder that others write to. Whether its two folders are folders of its own and no
/// links that lead elsewhere.
bool isOwnMirror(const SafeFolder &mirror);

/// The content of a small file that is nothing but a file; nothing otherwise.
std::optional<QByteArray> readPlainFile(FileLayer &files, const QString &path);

/// Nothing for a file that is not there.
std::optional<FileStamp> stampOf(const QString &path);

/// A stamp to be remembered for bytes that were read after it had been taken. One so young that
/// another change could still get the same becomes one that no file has: some file systems count in
/// steps of two seconds.
FileStamp settled(const FileStamp &stamp, qint64 taken);

/// The stamp to be remembered for a file just written.
FileStamp unsettled(const FileStamp &stamp);

/// Whether an item's file, or that of an attachment, is longer than any that a safe has.
bool isTooLong(const FileStamp &stamp, bool attachment);

/// The hash of bytes in the form of fileHash().
QString hashOf(const QByteArray &bytes);

/// The hash of a file; empty when it cannot be read, or was cancelled.
QString hashOfFile(FileLayer &files, const QString &path, const WorkControl &control);

/// Copies a file whole or not at all. False, too, when its bytes are not those of the hash, or it
/// was cancelled.
bool copySynced(FileLayer &files, const QString &from, const QString &to, const QString &hash,
                const WorkControl &control);
