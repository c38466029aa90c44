#pragma once

#include "ArchiveResult.h"
#include "BackupList.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "WorkControl.h"

#include <QStringList>
#include <QVector>

/// Backs up safes, one after the other, into one folder; on any thread.
struct BackupJob
{
    enum class State {
        Written,
        Unchanged, ///< the last backup holds the safe as it is
        Missing,   ///< the safe's folder is not there, as on a drive that is not connected
        Postponed, ///< its password is being changed, or it is being archived
        Failed,
        Cancelled,
    };

    struct Result
    {
        QString folder; ///< of the safe
        QString name;   ///< of the safe, or of its folder where that is not known
        State state = State::Failed;
        ArchiveResult::Outcome outcome = ArchiveResult::Outcome::Done; ///< why it failed
        QString path{};                                                ///< of the backup written
    };

    SafeEnvironment environment;
    QString backupFolder;
    int keep = 1; ///< how many backups of each safe stay; the one just written always does
    QStringList safeFolders;
    QStringList knownFolders{}; ///< of all safes, those that are not to be backed up as well

    /// A failure is logged and leaves the earlier backups alone.
    QVector<Result> run(WorkControl &control) const;

private:
    using Outcome = ArchiveResult::Outcome;

    Result backUp(const SafeFolder &safe, WorkControl &control, int part) const;
    Result write(const SafeFolder &safe, Result result, const QString &target, WorkControl &control,
                 int part) const;
    Outcome check(const QString &path, WorkControl &control) const;
    void clearUnfinished(const QString &safeFolder) const;
    void removeOldest(const SafeFolder &safe, const QString &newest) const;
    bool hasNamesake(const QString &folder) const;
    int parts() const { return 2 * safeFolders.size(); } ///< writing and checking each
};
