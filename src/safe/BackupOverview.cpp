#include "BackupOverview.h"

#include "SafeDescriptionFile.h"
#include "SafeFolder.h"
#include "SafeLayout.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

BackupOverview::Place stateOf(const QString &folder)
{
    using Place = BackupOverview::Place;
    const QFileInfo info(folder);
    if (info.exists())
        return info.isDir() && info.isWritable() && info.isReadable() ? Place::Usable
                                                                      : Place::NotWritable;
    // A run makes the folder, in one that is there and may be written to.
    QString parent = info.absolutePath();
    while (!QFileInfo::exists(parent) && parent != QFileInfo(parent).absolutePath())
        parent = QFileInfo(parent).absolutePath();
    const QFileInfo above(parent);
    return above.isDir() && above.isWritable() ? Place::Usable : Place::NotThere;
}

BackupOverview::Safe stateOf(FileLayer &files, const QString &folder,
                             const QVector<BackupEntry> &archives)
{
    BackupOverview::Safe safe;
    safe.folder = folder;
    const SafeFolder place(folder);
    if (!place.holdsSafe())
        return safe;
    const std::optional<SafeDescription> description = readDescription(files, folder);
    if (!description)
        return safe;
    safe.available = true;
    safe.last = lastBackup(archives, folder, *description);
    if (safe.last)
        safe.unchanged = safe.last->holds(
            *description,
            files.read(place.path(SafeLayout::passId)).value_or(description->passId.toLatin1()));
    return safe;
}

} // namespace

std::optional<BackupEntry> lastBackup(const QVector<BackupEntry> &backups,
                                      const QString &safeFolder, const SafeDescription &safe)
{
    const QString name = QDir(safeFolder).dirName();
    const auto isOfSafe = [&](const BackupEntry &entry) {
        return entry.good() && entry.name && entry.name->safeFolder == name &&
               entry.description.created == safe.created;
    };
    const auto found = std::find_if(backups.begin(), backups.end(), isOfSafe);
    return found == backups.end() ? std::nullopt : std::make_optional(*found);
}

BackupOverview BackupOverview::read(FileLayer &files, const QString &folder,
                                    const QStringList &safeFolders)
{
    BackupOverview overview;
    overview.folder = folder;
    overview.place = stateOf(folder);
    overview.archives = listArchives(files, folder);
    for (const QString &safe : safeFolders)
        overview.safes.append(stateOf(files, safe, overview.archives));
    return overview;
}
