#pragma once

#include "BackupList.h"

#include <QStringList>
#include <QVector>

/// What lies in a folder of backups, and what it means for the safes.
struct BackupOverview
{
    enum class Place {
        Usable,      ///< is there, or can be made
        NotThere,    ///< as on a drive that is not connected
        NotWritable, ///< or not readable
    };

    struct Safe
    {
        QString folder;
        bool available = false;          ///< its description could be read
        std::optional<BackupEntry> last; ///< its newest backup
        bool unchanged = false;          ///< since its newest backup
    };

    QString folder;
    Place place = Place::Usable;
    QVector<BackupEntry> archives; ///< newest first, the damaged ones among them
    QVector<Safe> safes;           ///< in the order they were given

    /// On any thread.
    static BackupOverview read(FileLayer &files, const QString &folder,
                               const QStringList &safeFolders);
};

/// The newest of the backups, newest first, that is one of the safe in a folder; two safes may lie
/// in folders of the same name.
std::optional<BackupEntry> lastBackup(const QVector<BackupEntry> &backups,
                                      const QString &safeFolder, const SafeDescription &safe);
