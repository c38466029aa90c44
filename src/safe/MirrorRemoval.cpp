#include "MirrorRemoval.h"

#include "FolderPath.h"
#include "SafeDescriptionFile.h"
#include "SafeFolder.h"
#include "SafeLayout.h"
#include "SyncFileName.h"
#include "SyncFiles.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <functional>

namespace {

const char *const ownFiles[] = {SafeLayout::mirrorDeletions, SafeLayout::passId,
                                SafeLayout::restore, SafeLayout::oldMeta, SafeLayout::meta};

bool isOwnFile(const QString &name)
{
    return std::any_of(std::begin(ownFiles), std::end(ownFiles), [&name](const char *own) {
        return name == QLatin1String(own) || isConflictCopyOf(name, QLatin1String(own));
    });
}

bool removeFrom(FileLayer &files, const QString &folder,
                const std::function<bool(const QString &)> &isOwn)
{
    bool good = true;
    const QStringList names = QDir(folder).entryList(QDir::Files);
    for (const QString &name : names) {
        if (isOwn(name))
            good = files.remove(folder + QLatin1Char('/') + name) && good;
    }
    return good;
}

bool isItem(const QString &name)
{
    return SyncFileName::parse(name).has_value();
}

/// Of a mirror without description only what holds no item may go.
bool isMirrorOf(FileLayer &files, const SafeFolder &mirror, qint64 created)
{
    if (!isOwnMirror(mirror) || QFileInfo(mirror.root()).isSymLink())
        return false;
    for (const char *name : {SafeLayout::meta, SafeLayout::oldMeta, SafeLayout::restore}) {
        const auto json = readPlainFile(files, mirror.path(name));
        const auto description = json ? parseDescription(*json) : std::nullopt;
        if (description)
            return description->created == created;
    }
    const QStringList names = QDir(mirror.path(SafeLayout::content)).entryList(QDir::Files);
    return std::none_of(names.begin(), names.end(), isItem);
}

} // namespace

bool removeMirror(FileLayer &files, const QString &mirrorFolder, qint64 created,
                  const QStringList &safeFolders)
{
    const SafeFolder mirror(mirrorFolder);
    if (!QFileInfo(mirrorFolder).isDir())
        return true;
    const bool isSafe =
        std::any_of(safeFolders.begin(), safeFolders.end(),
                    [&](const QString &folder) { return isSameFolder(folder, mirrorFolder); });
    bool good = !isSafe && isMirrorOf(files, mirror, created);
    // The description goes last: a mirror that is half removed is still known as that of its safe.
    for (const char *inner : {SafeLayout::content, SafeLayout::attachment}) {
        good = good && removeFrom(files, mirror.path(inner), isItem);
        if (good)
            QDir().rmdir(mirror.path(inner));
    }
    good = good && removeFrom(files, mirror.root(), isOwnFile);
    if (good)
        QDir().rmdir(mirror.root());
    else
        qWarning() << "CloudSync::turnOff"
                   << "Can't remove the mirror:" << mirrorFolder;
    return good;
}
