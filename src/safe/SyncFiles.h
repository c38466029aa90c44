#pragma once

#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "SyncRecord.h"

#include <QMap>
#include <QString>

#include <optional>

/// The files of one side of a synchronisation: a safe or its mirror.
struct SyncListing
{
    QMap<QString, FileStamp> content;    ///< by file name
    QMap<QString, FileStamp> attachment; ///< by file name

    /// Nothing when the side is not there, or cannot be listed.
    static std::optional<SyncListing> of(const SafeFolder &folder);
};

/// Nothing for a file that is not there.
std::optional<FileStamp> stampOf(const QString &path);

/// The hash of bytes in the form of fileHash().
QString hashOf(const QByteArray &bytes);

/// Copies a file whole or not at all. False, too, when its bytes are not those of the hash.
bool copySynced(FileLayer &files, const QString &from, const QString &to, const QString &hash);
