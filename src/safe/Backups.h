#pragma once

#include "BackupJob.h"
#include "BackupOverview.h"
#include "KnownSafes.h"
#include "WorkerTask.h"

#include <QFuture>
#include <QHash>
#include <QObject>

#include <memory>

/// The periodic backups of all known safes: when they run, and who hears of it.
class Backups : public QObject
{
    Q_OBJECT

public:
    /// @param standardFolder where backups go while the settings name no folder
    Backups(GPMAppSettings &settings, const KnownSafes &safes, const QString &standardFolder,
            SafeEnvironment environment = {}, QObject *parent = nullptr);
    /// Cancels a run and waits until it has stopped.
    ~Backups() override;

    /// Starts a run when one is due. Cheap; to be called once a second.
    void check();

    /// Starts a run whether it is due or not. False while one is under way, or without a safe.
    bool backUpNow();

    /// Stops a run soon; finished() tells when.
    void cancel();
    /// Stops a run and waits for that, without a signal; none follows within a minute.
    void stop();
    bool isRunning() const { return m_task != nullptr; }

    QString folder() const;
    /// When the next run begins, the one that tries again among them; null while backups are
    /// switched off. Not in the past.
    QDateTime next() const;

    /// How the last run of this program ended; empty before.
    const QVector<BackupJob::Result> &lastResults() const { return m_lastResults; }

    /// While somebody shows the results of runs, failed() stays quiet.
    void setShown(bool shown) { m_shown = shown; }

    /// What lies in the folder, with every known safe. Read on a worker.
    QFuture<BackupOverview> overview() const;
    /// The archives in any folder, read on a worker.
    QFuture<BackupOverview> archivesIn(const QString &folder) const;

Q_SIGNALS:
    void started();
    void progress(qint64 done, qint64 total);
    /// Every safe of the run with what became of it.
    void finished(const QVector<BackupJob::Result> &results);
    /// Those that failed and that the user has not been told of or shown. Each is told of once
    /// until it succeeds again, or fails in another way, or the user starts a run.
    void failed(const QVector<BackupJob::Result> &results);

private:
    QStringList safeFolders() const;
    void start(const QStringList &safeFolders);
    void onFinished(const QVector<BackupJob::Result> &results);
    void tellFailures(const QVector<BackupJob::Result> &results);
    void waitBeforeNext(int seconds);
    bool isWaiting() const;

    GPMAppSettings &m_settings;
    const KnownSafes &m_safes;
    QString m_standardFolder;
    SafeEnvironment m_environment;
    std::unique_ptr<WorkerTask> m_task;
    QStringList m_again; ///< safes that a run could not back up
    QDateTime m_waitUntil;
    QHash<QString, ArchiveResult::Outcome> m_told; ///< by folder
    QVector<BackupJob::Result> m_lastResults;
    bool m_shown = false;
};
