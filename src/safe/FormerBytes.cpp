#include "FormerBytes.h"

#include "SafeLayout.h"
#include "SyncFiles.h"

#include <QDebug>

#include <algorithm>

void noteFormerBytes(FileLayer &files, const SafeFolder &safe, const QVector<ItemFileName> &names,
                     const WorkControl &control)
{
    const int mostOfAnItem = 4;
    const QString path = safe.path(SafeLayout::syncRecord);
    const auto bytes = files.read(path);
    auto record = bytes ? SyncRecord::fromJson(*bytes) : std::nullopt;
    if (!record)
        return;
    QMap<QString, QStringList> former;
    for (const ItemFileName &name : names) {
        QStringList hashes = record->former.value(name.id);
        const QString hash = hashOfFile(files, safe.contentPath(name), control);
        if (!hash.isEmpty() && !hashes.contains(hash))
            hashes.append(hash);
        former.insert(name.id, hashes.mid(std::max(0, hashes.size() - mostOfAnItem)));
    }
    record->former = former;
    if (!control.isCancelled() && !files.writeBytes(path, record->toJson()))
        qWarning() << "GPMSafe::changePassword"
                   << "Can't write:" << path;
}
