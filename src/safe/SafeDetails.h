#pragma once

#include "BackupOverview.h"
#include "SafeDescription.h"
#include "SafeEnvironment.h"
#include "SafePlace.h"
#include "WorkControl.h"

#include <QDateTime>
#include <QStringList>
#include <QVector>

/// What lies on the disk of one safe, for a list of them.
struct SafeDetails
{
    QString folder;
    SafePlace place = SafePlace::Here;
    SafeDescription description;           ///< while it is Here
    qint64 size = 0;                       ///< in bytes
    std::optional<BackupEntry> lastBackup; ///< nothing: none in the folder of the backups
    QString copyOf; ///< folder of another one in the list that it is a copy of
};

/// Looks at the folders, in their order, and at the backups there are. On any thread, where it
/// takes as long as the disk does; what a cancel cuts short is left out.
QVector<SafeDetails> readSafeDetails(const SafeEnvironment &environment, const QStringList &folders,
                                     const QString &backupFolder, const WorkControl &control);
