#pragma once

#include "BackupName.h"
#include "FileLayer.h"
#include "SafeDescription.h"

#include <QDateTime>
#include <QVector>

/// An archive of a safe as a list shows it.
struct BackupEntry
{
    QString path;
    qint64 size = 0; ///< in bytes
    QDateTime made;
    SafeDescription description; ///< name, hint and times of the safe in it
    QByteArray passId;
    std::optional<BackupName> name; ///< nothing for an archive that the user exported
};

/// The archives in a folder that hold a safe, newest first. Reads the description of each without
/// unpacking the rest; what is no such archive is passed over. On any thread.
/// @param safeFolder only periodic backups of a folder of that name, when it is given
QVector<BackupEntry> listBackups(FileLayer &files, const QString &folder,
                                 const QString &safeFolder = {});

/// What an archive says of its safe; nothing when it holds none.
std::optional<BackupEntry> readBackup(FileLayer &files, const QString &path);
