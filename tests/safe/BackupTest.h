#pragma once

#include "ArchiveTesting.h"
#include "BackupSchedule.h"
#include "Backups.h"
#include "SafeDescriptionFile.h"

#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using Outcome = ArchiveResult::Outcome;
using State = BackupJob::State;

const QDateTime firstDay(QDate(2026, 3, 4), QTime(12, 0));

/// What a user's edit does to the description.
inline void setModified(const QString &safe, qint64 modified)
{
    FileLayer files;
    SafeDescription description = *readDescription(files, safe);
    description.modified = modified;
    if (!writeDescription(files, safe, description.toJson()))
        qFatal("can't write the description");
}

/// Counts what is read.
class CountingFile : public QFile
{
public:
    CountingFile(const QString &path, qint64 &count)
        : QFile(path)
        , m_count(count)
    {
        open(ReadOnly | Unbuffered);
    }

protected:
    qint64 readData(char *bytes, qint64 size) override
    {
        const qint64 count = QFile::readData(bytes, size);
        m_count += std::max<qint64>(count, 0);
        return count;
    }

private:
    qint64 &m_count;
};

/// Gives another file in place of the one whose path holds the text.
inline std::shared_ptr<OpeningFiles> swapped(const QString &name, const QString &instead)
{
    auto files = std::make_shared<OpeningFiles>();
    files->name = name;
    files->change = [instead](const QString &) { return FileLayer().open(instead); };
    return files;
}

/// The backups of the program, with a clock that the test sets.
struct Program
{
    Program(const QString &folder, const QStringList &safes)
        : settings(folder + "/config"_s, {}, [this] { return now; })
        , known(settings, folder + "/safes"_s, environment())
        , backups(settings, known, folder + "/hidden/backup"_s, environment())
        , finished(&backups, &Backups::finished)
        , failed(&backups, &Backups::failed)
    {
        settings.setBackupPath({});
        settings.setRecentList(safes);
    }

    SafeEnvironment environment()
    {
        SafeEnvironment result;
        result.clock = [this] { return now; };
        return result;
    }
    /// Whether the timer starts a run now; waits for its end.
    bool runs()
    {
        backups.check();
        return backups.isRunning() && finished.wait();
    }

    QDateTime now = firstDay.toUTC();
    GPMAppSettings settings;
    KnownSafes known;
    Backups backups;
    QSignalSpy finished;
    QSignalSpy failed;
};

/// A safe and the folder of its backups.
class BackupTest : public QObject
{
protected:
    void start()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_folder = m_temporary->filePath("hidden/backup"_s);
        m_known.clear();
        m_safe = newSafe("My_safe"_s, 5);
    }

    QVector<BackupJob::Result> run(const QStringList &safes, int day = 0,
                                   const Files &layer = realFiles(), int keep = 3)
    {
        BackupJob job;
        job.environment = environmentOf(layer, firstDay.addDays(day));
        job.backupFolder = m_folder;
        job.keep = keep;
        job.safeFolders = safes;
        job.knownFolders = m_known;
        WorkControl control;
        return job.run(control);
    }
    BackupJob::Result runOne(int day = 0, const Files &layer = realFiles())
    {
        return run({m_safe}, day, layer).first();
    }
    /// A backup on each of three days.
    void runThreeDays()
    {
        for (int day = 0; day < 3; ++day) {
            setModified(m_safe, 0x200 + day);
            QCOMPARE(runOne(day).state, State::Written);
        }
    }
    QString newSafe(const QString &place, qint64 created)
    {
        const QString path = m_temporary->filePath(place);
        makeSmallSafe(path);
        FileLayer files;
        SafeDescription description = *readDescription(files, path);
        description.created = created;
        description.modified = 0x100;
        writeDescription(files, path, description.toJson());
        return path;
    }
    QStringList files() const
    {
        return QDir(m_folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static QStringList archives(const QString &safe, const QStringList &rests)
    {
        QStringList list;
        for (const QString &rest : rests)
            list.append("%1_%2.gpm"_s.arg(safe, rest));
        return list;
    }

    std::unique_ptr<QTemporaryDir> m_temporary;
    QStringList m_known;
    QString m_safe;
    QString m_folder; ///< of the backups
};
