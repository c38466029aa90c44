#include "MirrorChoice.h"

#include "FolderPath.h"
#include "SafeDescriptionFile.h"
#include "SafeFolder.h"
#include "SyncFolders.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

bool isInOrSame(const QString &path, const QString &folder)
{
    if (folder.isEmpty())
        return false;
    const QString outer = folderKey(folder);
    return (folderKey(path) + QLatin1Char('/'))
        .startsWith(outer.endsWith(QLatin1Char('/')) ? outer : outer + QLatin1Char('/'));
}

QString mirrorName(const MirrorChoice::Wish &wish)
{
    const QString own =
        wish.created != 0 ? QString::number(wish.created, 16) : QDir(wish.safeFolder).dirName();
    return QStringLiteral("safe-") + own;
}

bool isAmong(const QStringList &folders, const QString &folder)
{
    return std::any_of(folders.begin(), folders.end(),
                       [&folder](const QString &each) { return isSameFolder(each, folder); });
}

/// The description of the safe whose folder this is or lies in.
std::optional<SafeDescription> safeAround(FileLayer &files, const QString &folder)
{
    QDir place(canonicalFolder(folder));
    do {
        if (SafeFolder(place.path()).holdsSafe())
            return readDescription(files, place.path()).value_or(SafeDescription());
    } while (place.cdUp());
    return std::nullopt;
}

} // namespace

MirrorChoice MirrorChoice::make(FileLayer &files, const Wish &wish)
{
    const QString shared = canonicalFolder(wish.sharedFolder);
    if (!QFileInfo(shared).isDir())
        return {Fault::NotThere};
    if (isInOrSame(shared, wish.safeFolder))
        return {Fault::InsideSafe};
    if (isInOrSame(wish.safeFolder, shared))
        return {Fault::AroundSafe};
    if (isInOrSame(shared, wish.backupFolder))
        return {Fault::InBackups};

    MirrorChoice choice{Fault::None, shared + QLatin1Char('/') + mirrorName(wish)};
    choice.joins = QFileInfo(choice.folder).isDir();
    const QVector<MirroredSafe> there = mirroredSafes(files, shared);
    QString name;
    for (const MirroredSafe &safe : there) {
        const bool isOwn = wish.created != 0 && safe.created == wish.created;
        if (isSameFolder(safe.path, shared) && !isOwn)
            return {Fault::OtherSafe, {}, false, safe.name};
        if (isSameFolder(safe.path, choice.folder) && safe.created != wish.created)
            return {Fault::OtherSafe, {}, false, safe.name};
        if (!isOwn)
            continue;
        choice.folder = safe.path;
        choice.joins = true;
        name = safe.name;
        break;
    }
    // A safe's folder holds nothing of others, unless it is this very mirror.
    const auto around = safeAround(files, shared);
    if (around && !isSameFolder(choice.folder, shared))
        return {Fault::OtherSafe, {}, false, around->name};
    if (isInOrSame(choice.folder, wish.safeFolder))
        return {Fault::InsideSafe};
    if (isInOrSame(wish.safeFolder, choice.folder))
        return {Fault::AroundSafe};
    // A copy of this safe that is itself in use is no mirror.
    if (isAmong(wish.safeFolders, choice.folder))
        return {Fault::OtherSafe, {}, false, name};
    if (isAmong(wish.taken, choice.folder))
        return {Fault::Taken};
    return choice;
}
