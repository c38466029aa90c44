#include "SafeDetails.h"

#include "BackupList.h"
#include "SafeDescriptionFile.h"
#include "SafeFiles.h"
#include "SafeLayout.h"

#include <QDir>
#include <QHash>

namespace {

SafeDetails lookAt(const SafeEnvironment &environment, const QString &folder)
{
    SafeDetails details;
    details.folder = folder;
    if (!QDir(folder).exists()) {
        details.place = whyGone(folder);
        return details;
    }
    const auto description = readDescription(*environment.files, folder);
    if (!description) {
        details.place = SafePlace::NoSafe;
        return details;
    }
    details.description = *description;
    if (const auto files = SafeFiles::list(SafeFolder(folder)))
        details.size = files->totalSize;
    return details;
}

/// When the safe was backed up last. Backups go by the name of its folder; another safe in a folder
/// of that name was created at another time.
QDateTime lastBackup(const QVector<BackupEntry> &newestFirst, const SafeDetails &safe)
{
    const QString folderName = QDir(safe.folder).dirName();
    for (const BackupEntry &backup : newestFirst) {
        if (backup.name && backup.name->safeFolder == folderName &&
            backup.description.created == safe.description.created)
            return backup.made;
    }
    return {};
}

} // namespace

QVector<SafeDetails> readSafeDetails(const SafeEnvironment &environment, const QStringList &folders,
                                     const QString &backupFolder, const WorkControl &control)
{
    const QVector<BackupEntry> backups = listBackups(*environment.files, backupFolder);
    QHash<QByteArray, QString> origins; // by what two copies have in common
    QVector<SafeDetails> all;
    for (const QString &folder : folders) {
        if (control.isCancelled())
            break;
        SafeDetails details = lookAt(environment, folder);
        if (details.place == SafePlace::Here) {
            details.lastBackup = lastBackup(backups, details);
            const auto passId =
                environment.files->read(SafeFolder(folder).path(SafeLayout::passId));
            const QByteArray mark =
                QByteArray::number(details.description.created) + passId.value_or(QByteArray());
            details.copyOf = origins.value(mark);
            if (passId && details.copyOf.isEmpty())
                origins.insert(mark, folder);
        }
        all.append(details);
    }
    return all;
}
