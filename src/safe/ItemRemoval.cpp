#include "ItemRemoval.h"

#include "SafeLayout.h"

#include <QDebug>
#include <QDirIterator>

QSet<QString> removeItemFiles(FileLayer &files, const SafeFolder &folder, const QStringList &ids)
{
    // Every generation: one that an earlier change of password left could come to life again. The
    // folders are listed once, since each listing takes as long as there are items.
    const QSet<QString> wanted(ids.begin(), ids.end());
    QStringList paths;
    for (const char *inner : {SafeLayout::content, SafeLayout::attachment}) {
        QDirIterator each(folder.path(inner), QDir::Files);
        while (each.hasNext()) {
            const QString path = each.next();
            if (wanted.contains(ItemFileName::parse(each.fileName()).id))
                paths.append(path);
        }
    }
    QSet<QString> left;
    for (const QString &path : qAsConst(paths)) {
        if (files.remove(path))
            continue;
        qWarning() << "GPMSafe::removeItems"
                   << "Can't remove item file:" << path;
        left.insert(ItemFileName::parse(QFileInfo(path).fileName()).id);
    }
    return left;
}
