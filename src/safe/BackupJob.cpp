#include "BackupJob.h"

#include "ArchiveReader.h"
#include "ArchiveWriter.h"
#include "FolderLock.h"
#include "FolderPath.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <tuple>

namespace {

const char operation[] = "BackupJob::run";

} // namespace

QVector<BackupJob::Result> BackupJob::run(WorkControl &control) const
{
    QVector<Result> results;
    for (const QString &folder : safeFolders) {
        const Result result = backUp(SafeFolder(folder), control, 2 * results.size());
        if (result.state == State::Failed)
            qWarning() << operation << "Can't back up safe:" << folder << result.outcome;
        results.append(result);
    }
    return results;
}

BackupJob::Result BackupJob::backUp(const SafeFolder &safe, WorkControl &control, int part) const
{
    const QString folderName = QDir(safe.root()).dirName();
    Result result{safe.root(), folderName};
    if (control.isCancelled()) {
        result.state = State::Cancelled;
        return result;
    }
    if (!safe.holdsSafe()) {
        result.state = State::Missing;
        return result;
    }
    const auto description = readDescription(*environment.files, safe.root());
    if (!description) {
        result.outcome = Outcome::SafeUnreadable;
        return result;
    }
    result.name = description->name;
    const QByteArray passId = environment.files->read(safe.path(SafeLayout::passId))
                                  .value_or(description->passId.toLatin1());
    const QVector<BackupEntry> backups = listBackups(*environment.files, backupFolder, folderName);
    const bool unchanged =
        std::any_of(backups.begin(), backups.end(),
                    [&](const BackupEntry &backup) { return backup.holds(*description, passId); });
    if (unchanged) {
        result.state = State::Unchanged;
        return result;
    }
    const QDate today = environment.clock().toLocalTime().date();
    const BackupName name{folderName, today, description->modified,
                          hasNamesake(safe.root()) ? BackupName::placeOf(safe.root()) : QString()};
    result = write(safe, result, backupFolder + QLatin1Char('/') + name.text(), control, part);
    return result;
}

BackupJob::Result BackupJob::write(const SafeFolder &safe, Result result, const QString &target,
                                   WorkControl &control, int part) const
{
    FileLayer &files = *environment.files;
    const auto failed = [&result](Outcome outcome) {
        result.outcome = outcome;
        result.state = outcome == Outcome::SafeBusy    ? State::Postponed
                       : outcome == Outcome::Cancelled ? State::Cancelled
                                                       : State::Failed;
        return result;
    };
    if (!files.makeFolder(backupFolder))
        return failed(Outcome::CannotWrite);
    FolderLock lock(safe.path(SafeLayout::lockFile));
    if (!lock.lock(0, control))
        return failed(lock.isHeldByAnother() ? Outcome::SafeBusy : Outcome::SafeUnreadable);
    clearUnfinished(QFileInfo(safe.root()).fileName());

    const QString unfinished = BackupName::unfinishedText(target);
    control.setPart(part, parts());
    ArchiveWriter writer(environment, safe, control);
    const ArchiveResult written = writer.write(unfinished);
    lock.unlock();
    if (!written.good())
        return failed(written.outcome);
    control.setPart(part + 1, parts());
    Outcome outcome = check(unfinished, control);
    if (outcome == Outcome::Done && !files.replace(unfinished, target))
        outcome = Outcome::CannotWrite;
    if (outcome != Outcome::Done) {
        files.remove(unfinished);
        return failed(outcome);
    }
    result.state = State::Written;
    result.path = target;
    for (const QString &path : written.leftOut)
        qWarning() << operation << "Can't open file, left out of the backup:" << path;
    // One that may lack something does not push out an earlier one that has it.
    if (written.leftOut.isEmpty() && !writer.mixedGenerations())
        removeOldest(safe, target);
    return result;
}

ArchiveResult::Outcome BackupJob::check(const QString &path, WorkControl &control) const
{
    ArchiveReader archive(*environment.files, path);
    Outcome outcome = archive.open();
    if (outcome == Outcome::Done)
        outcome = archive.check(control);
    if (outcome == Outcome::Cancelled)
        return outcome;
    const bool good = outcome == Outcome::Done && readBackup(*environment.files, path).good();
    if (good)
        return Outcome::Done;
    // Gone with its folder, it says nothing of the disk.
    return QFileInfo::exists(path) ? Outcome::Damaged : Outcome::CannotWrite;
}

void BackupJob::clearUnfinished(const QString &safeFolder) const
{
    const QDir place(backupFolder);
    const QStringList names = place.entryList(QDir::Files);
    for (const QString &name : names) {
        if (BackupName::isUnfinished(name, safeFolder))
            environment.files->remove(place.filePath(name));
    }
}

/// Whether another safe lies in a folder of the same name.
bool BackupJob::hasNamesake(const QString &folder) const
{
    return std::any_of(knownFolders.begin(), knownFolders.end(), [&folder](const QString &other) {
        return QDir(other).dirName() == QDir(folder).dirName() && !isSameFolder(folder, other);
    });
}

void BackupJob::removeOldest(const SafeFolder &safe, const QString &newest) const
{
    const BackupEntry made = readBackup(*environment.files, newest);
    if (!made.good())
        return;
    QVector<BackupEntry> others =
        listBackups(*environment.files, backupFolder, made.name->safeFolder);
    // Two safes may lie in folders of the same name; they differ in when they were created, and
    // copies of one in where they lie.
    const QString place = BackupName::placeOf(safe.root());
    const auto isForeign = [&](const BackupEntry &entry) {
        return entry.path == newest || entry.description.created != made.description.created ||
               !(entry.name->place.isEmpty() || entry.name->place == place);
    };
    others.erase(std::remove_if(others.begin(), others.end(), isForeign), others.end());
    // Days to come are those of a clock that was wrong: such a backup is older than the one of now.
    const auto age = [&](const BackupEntry &entry) {
        const bool possible = entry.name->day <= made.name->day;
        return std::make_tuple(possible, entry.name->day, entry.name->modified, entry.made);
    };
    std::sort(others.begin(), others.end(),
              [&age](const BackupEntry &a, const BackupEntry &b) { return age(a) > age(b); });
    for (int i = std::max(keep, 1) - 1; i < others.size(); ++i) {
        const QString &path = others.at(i).path;
        if (!environment.files->remove(path))
            qWarning() << operation << "Can't remove old backup:" << path;
    }
}
