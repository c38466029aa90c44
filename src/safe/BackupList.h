#pragma once

#include "ArchiveResult.h"
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
    bool timeKnown = true;       ///< else `made` is right by its day alone
    SafeDescription description; ///< name, hint and times of the safe in it
    QByteArray passId;
    std::optional<BackupName> name; ///< nothing for an archive that the user exported
    /// Other than Done for a file whose description cannot be read: why.
    ArchiveResult::Outcome outcome = ArchiveResult::Outcome::Done;

    bool good() const { return outcome == ArchiveResult::Outcome::Done; }
    /// Whether it holds the safe as it is: its items, its name and its password.
    bool holds(const SafeDescription &safe, const QByteArray &safePassId) const;
};

/// The files in a folder that are called like archives, newest first, the damaged ones among them.
/// Reads the description of each without unpacking the rest. On any thread.
/// @param safeFolder only periodic backups of a folder of that name, when it is given
QVector<BackupEntry> listArchives(FileLayer &files, const QString &folder,
                                  const QString &safeFolder = {});

/// Those of them that can be read.
QVector<BackupEntry> listBackups(FileLayer &files, const QString &folder,
                                 const QString &safeFolder = {});

/// What an archive says of its safe; see the outcome.
BackupEntry readBackup(FileLayer &files, const QString &path);
