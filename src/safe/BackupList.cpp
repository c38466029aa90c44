#include "BackupList.h"

#include "ArchiveReader.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

/// When the archive was made. The day in its name stays when a copy of the file gets a new time.
QDateTime timeOf(const QFileInfo &file, const std::optional<BackupName> &name)
{
    const QDateTime time = file.lastModified();
    return name && name->day != time.date() ? name->day.startOfDay() : time;
}

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

std::optional<BackupEntry> readBackup(FileLayer &files, const QString &path)
{
    ArchiveReader archive(files, path);
    if (archive.open() != ArchiveResult::Outcome::Done)
        return std::nullopt;
    const std::optional<SafeDescription> description = describe(archive);
    if (!description)
        return std::nullopt;
    const QByteArray passId =
        archive.file(SafeLayout::passId).value_or(description->passId.toLatin1());
    if (passId.isEmpty())
        return std::nullopt;
    const QFileInfo file(path);
    const std::optional<BackupName> name = BackupName::parse(file.fileName());
    return BackupEntry{path, file.size(), timeOf(file, name), *description, passId, name};
}

QVector<BackupEntry> listBackups(FileLayer &files, const QString &folder, const QString &safeFolder)
{
    QVector<BackupEntry> list;
    const QDir place(folder);
    const QStringList names = place.entryList({QStringLiteral("*.gpm")}, QDir::Files);
    for (const QString &fileName : names) {
        const std::optional<BackupName> name = BackupName::parse(fileName);
        if (!safeFolder.isEmpty() && (!name || name->safeFolder != safeFolder))
            continue;
        if (const auto entry = readBackup(files, place.filePath(fileName)))
            list.append(*entry);
    }
    std::stable_sort(list.begin(), list.end(),
                     [](const BackupEntry &a, const BackupEntry &b) { return a.made > b.made; });
    return list;
}
