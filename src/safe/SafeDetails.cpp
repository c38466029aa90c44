#include "SafeDetails.h"

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
            details.lastBackup = lastBackup(backups, folder, details.description);
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
