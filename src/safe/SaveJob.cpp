#include "SaveJob.h"

#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QMutexLocker>

SaveJob::Result SaveJob::run() const
{
    Result result;
    if (items.isEmpty())
        return result;
    const QString content = folder + QLatin1Char('/') + QLatin1String(SafeLayout::content);
    for (const Item &item : items) {
        const QString path = content + QLatin1Char('/') + item.fileName.text();
        const QMutexLocker locker(mutex.get());
        if (writeItemFile(environment, path, password->view(), item.document)) {
            result.saved.append({item.id, item.revision, item.fileName, {}, item.modified, {}});
            continue;
        }
        qWarning() << "GPMSafe::saveChanges"
                   << "Can't save item to file:" << path;
        result.failedPaths.append(path);
    }
    const QMutexLocker locker(mutex.get());
    if (!writeDescription(*environment.files, folder, description)) {
        const QString path = folder + QLatin1Char('/') + QLatin1String(SafeLayout::meta);
        qWarning() << "GPMSafe::saveChanges"
                   << "Can't save safe meta file:" << path;
        result.failedPaths.append(path);
    }
    return result;
}
