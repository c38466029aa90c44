#include "MirrorRemoval.h"

#include "SafeDescriptionFile.h"
#include "SafeFolder.h"
#include "SafeLayout.h"
#include "SyncFileName.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <functional>

namespace {

const char *const ownFiles[] = {SafeLayout::mirrorDeletions, SafeLayout::passId,
                                SafeLayout::restore, SafeLayout::meta};

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

} // namespace

bool removeMirror(FileLayer &files, const QString &mirrorFolder, qint64 created)
{
    const SafeFolder mirror(mirrorFolder);
    if (!QFileInfo(mirrorFolder).isDir())
        return true;
    const auto json = files.read(mirror.path(SafeLayout::meta));
    const auto description = json ? parseDescription(*json) : std::nullopt;
    const auto isItem = [](const QString &name) { return SyncFileName::parse(name).has_value(); };
    bool good = !description || description->created == created;
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
