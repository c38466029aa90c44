#include "SaveJob.h"

#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QMutexLocker>
#include <QStringList>
#include <QtConcurrent>

#include <optional>

namespace {

struct EncryptItem
{
    using result_type = std::optional<QByteArray>;

    result_type operator()(const SaveJob::Item &item) const
    {
        return encryptItem(job->environment, job->password->view(), item.document);
    }

    const SaveJob *job;
};

} // namespace

QString SaveJob::path(const Item &item) const
{
    return QStringList{folder, QLatin1String(SafeLayout::content), item.fileName.text()}.join(
        QLatin1Char('/'));
}

SaveJob::Result SaveJob::run() const
{
    Result result;
    if (items.isEmpty())
        return result;
    // The keys take the time, and a lock may be waiting for the last of many items.
    const auto texts = QtConcurrent::mapped(items, EncryptItem{this});
    for (int i = 0; i < items.size(); ++i) {
        const Item &item = items.at(i);
        const std::optional<QByteArray> text = texts.resultAt(i);
        ++*steps;
        const QMutexLocker locker(mutex.get());
        if (text && environment.files->writeBytes(path(item), *text)) {
            result.saved.append({item.id, item.revision, item.fileName, {}, item.modified, {}});
            continue;
        }
        qWarning() << "GPMSafe::saveChanges"
                   << "Can't save item to file:" << path(item);
        result.failedPaths.append(path(item));
    }
    const QMutexLocker locker(mutex.get());
    if (!writeDescription(*environment.files, folder, description)) {
        const QString metaPath = folder + QLatin1Char('/') + QLatin1String(SafeLayout::meta);
        qWarning() << "GPMSafe::saveChanges"
                   << "Can't save safe meta file:" << metaPath;
        result.failedPaths.append(metaPath);
    }
    return result;
}
