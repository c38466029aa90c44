#pragma once

#include "BackupJob.h"
#include "BackupOverview.h"

#include <QCoreApplication>
#include <QHash>

/// What backups are said to be, without a window.
class BackupTexts
{
    Q_DECLARE_TR_FUNCTIONS(BackupTexts)

public:
    /// "today at 09:12", by the calendar of the computer's place; the day alone where the time of
    /// it is not known.
    static QString moment(const QDateTime &moment, const QDateTime &now, bool timeKnown = true);
    static QString moment(const BackupEntry &entry, const QDateTime &now);

    /// The name of what a file of a backup holds; the file's own where that cannot be read.
    static QString name(const BackupEntry &entry);
    /// When it was made and how large it is, or that it is damaged.
    static QString detail(const BackupEntry &entry, const QDateTime &now);

    /// When the newest backup of all was made.
    static QString headline(const BackupOverview &overview, const QDateTime &now);
    /// What becomes of the next one.
    /// @param next null while backups are switched off
    static QString next(const QDateTime &next, const QDateTime &now);
    /// What is wrong with the folder, and what to do; empty when nothing is.
    static QString placeFault(const BackupOverview &overview);
    /// One safe and its newest backup.
    static QString ofSafe(const QString &name, const BackupOverview::Safe &safe,
                          const QDateTime &now);

    struct Report
    {
        bool good = true;
        QString text; ///< a line for each way in which safes ended
    };
    /// How a run ended: what was backed up, what had not changed, what failed and what to do.
    static Report report(const QVector<BackupJob::Result> &results);
};
