#include "SafeFiles.h"

#include "ArchiveEntries.h"
#include "ItemFile.h"
#include "SafeLayout.h"

#include <QDir>
#include <QSet>

std::optional<SafeFiles> SafeFiles::list(const SafeFolder &folder)
{
    SafeFiles list;
    for (const char *name : {SafeLayout::meta, SafeLayout::restore, SafeLayout::passId}) {
        QString path = folder.path(name);
        // The description of an older safe goes by the name that every reader of archives knows.
        if (name == SafeLayout::meta && QFile::exists(folder.path(SafeLayout::oldMeta)))
            path = folder.path(SafeLayout::oldMeta);
        if (QFile::exists(path))
            list.add(QLatin1String(name), path);
    }
    // Items first: the bytes of an attachment are written before its item, so an item that is
    // listed has them.
    const bool listed = QDir(folder.path(SafeLayout::content)).exists() &&
                        list.addFolder(folder, SafeLayout::content) &&
                        list.addFolder(folder, SafeLayout::attachment) &&
                        list.addFolder(folder, SafeLayout::favicon);
    if (!listed)
        return std::nullopt;
    return list;
}

bool SafeFiles::addFolder(const SafeFolder &folder, const char *name)
{
    const QDir place(folder.path(name));
    if (!place.exists())
        return true;
    if (!place.isReadable())
        return false;
    QSet<QString> ids;
    const QStringList names = place.entryList(QDir::Files, QDir::Name);
    for (const QString &fileName : names) {
        const QString entryName = QLatin1String(name) + QLatin1Char('/') + fileName;
        // Files that are not ours may bear names that cannot be unpacked everywhere.
        if (isInterruptedWrite(fileName) ||
            ArchiveEntries::place(entryName) != ArchiveEntries::Place::Safe)
            continue;
        add(entryName, place.filePath(fileName));
        const QString id = ItemFileName::parse(fileName).id;
        mixedGenerations = mixedGenerations || ids.contains(id);
        ids.insert(id);
    }
    return true;
}

void SafeFiles::add(const QString &entryName, const QString &path)
{
    const qint64 size = QFileInfo(path).size();
    files.append({entryName, path, size});
    totalSize += size;
}
