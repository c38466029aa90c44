#include "BackupList.h"

#include "ArchiveReader.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

std::optional<SafeDescription> describe(ArchiveReader &archive)
{
    for (const char *name : {SafeLayout::meta, SafeLayout::oldMeta, SafeLayout::restore}) {
        const std::optional<QByteArray> json = archive.file(name);
        std::optional<SafeDescription> description = json ? parseDescription(*json) : std::nullopt;
        if (description)
            return description;
    }
    return std::nullopt;
}

} // namespace

bool BackupEntry::holds(const SafeDescription &safe, const QByteArray &safePassId) const
{
    return name && name->modified == safe.modified && description.toJson() == safe.toJson() &&
           passId == safePassId;
}

BackupEntry readBackup(FileLayer &files, const QString &path)
{
    const QFileInfo file(path);
    BackupEntry entry;
    entry.path = path;
    entry.size = file.size();
    entry.name = BackupName::parse(file.fileName());
    // The day in the name stays when a copy of the file gets a new time.
    entry.made = file.lastModified();
    entry.timeKnown = !entry.name || entry.name->day == entry.made.date();
    if (!entry.timeKnown)
        entry.made = entry.name->day.startOfDay();

    ArchiveReader archive(files, path);
    entry.outcome = archive.open();
    if (!entry.good())
        return entry;
    const std::optional<SafeDescription> description = describe(archive);
    if (description) {
        entry.description = *description;
        entry.passId = archive.file(SafeLayout::passId).value_or(description->passId.toLatin1());
    }
    // What is called like a backup had a safe in it.
    using Outcome = ArchiveResult::Outcome;
    if (entry.passId.isEmpty())
        entry.outcome = entry.name ? Outcome::Damaged : Outcome::NoSafe;
    return entry;
}

QVector<BackupEntry> listArchives(FileLayer &files, const QString &folder,
                                  const QString &safeFolder)
{
    QVector<BackupEntry> list;
    const QDir place(folder);
    const QStringList names = place.entryList({QStringLiteral("*.gpm")}, QDir::Files);
    for (const QString &fileName : names) {
        const std::optional<BackupName> name = BackupName::parse(fileName);
        if (safeFolder.isEmpty() || (name && name->safeFolder == safeFolder))
            list.append(readBackup(files, place.filePath(fileName)));
    }
    std::stable_sort(list.begin(), list.end(),
                     [](const BackupEntry &a, const BackupEntry &b) { return a.made > b.made; });
    return list;
}

QVector<BackupEntry> listBackups(FileLayer &files, const QString &folder, const QString &safeFolder)
{
    QVector<BackupEntry> list = listArchives(files, folder, safeFolder);
    list.erase(std::remove_if(list.begin(), list.end(),
                              [](const BackupEntry &entry) { return !entry.good(); }),
               list.end());
    return list;
}
