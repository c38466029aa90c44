#include "SafeExport.h"

#include "ArchiveWriter.h"
#include "FolderLock.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace {

using Outcome = ArchiveResult::Outcome;

const char operation[] = "GPMSafe::exportArchive";

/// Clears away what an export of the safe left in a folder that was killed. Its lock is held.
void clearUnfinished(FileLayer &files, const QDir &place, const QString &unfinished)
{
    const QStringList names = place.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        if (name.startsWith(unfinished))
            files.remove(place.filePath(name));
    }
}

/// Writes under a name that file managers hide, so that no half archive is ever seen.
ArchiveResult writeAside(const SafeEnvironment &environment, const SafeFolder &folder,
                         const QString &archivePath, WorkControl &control)
{
    FileLayer &files = *environment.files;
    const QDir place(QFileInfo(archivePath).absolutePath());
    const QString unfinished = QStringLiteral(".%1.part").arg(QDir(folder.root()).dirName());
    clearUnfinished(files, place, unfinished);
    const QString aside = place.filePath(unfinished);
    ArchiveResult result = ArchiveWriter(environment, folder, control).write(aside);
    if (!result.good())
        return result;
    if (!files.replace(aside, archivePath)) {
        files.remove(aside);
        return {Outcome::CannotWrite};
    }
    result.path = archivePath;
    return result;
}

ArchiveResult lockAndWrite(const SafeEnvironment &environment, const SafeFolder &folder,
                           const QString &archivePath, WorkControl &control)
{
    if (!QDir(folder.root()).exists())
        return {Outcome::NotFound};
    FolderLock lock(folder.path(SafeLayout::lockFile));
    if (!lock.lock(environment.lockWaitMs, control)) {
        if (control.isCancelled())
            return {Outcome::Cancelled};
        return {lock.isHeldByAnother() ? Outcome::SafeBusy : Outcome::SafeUnreadable};
    }
    return writeAside(environment, folder, archivePath, control);
}

} // namespace

ArchiveResult exportSafe(const SafeEnvironment &environment, const SafeFolder &folder,
                         const QString &archivePath, WorkControl &control)
{
    const ArchiveResult result = lockAndWrite(environment, folder, archivePath, control);
    for (const QString &path : result.leftOut)
        qWarning() << operation << "Can't open file, left out of the archive:" << path;
    if (!result.good() && result.outcome != ArchiveResult::Outcome::Cancelled)
        qWarning() << operation << "Can't export safe:" << folder.root() << result.outcome;
    return result;
}
