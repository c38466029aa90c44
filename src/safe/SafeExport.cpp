#include "SafeExport.h"

#include "ArchiveWriter.h"
#include "FolderLock.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>

static const char operation[] = "GPMSafe::exportArchive";

static ArchiveResult lockAndWrite(const SafeEnvironment &environment, const SafeFolder &folder,
                                  const QString &archivePath, WorkControl &control)
{
    using Outcome = ArchiveResult::Outcome;
    if (!QDir(folder.root()).exists())
        return {Outcome::NotFound};
    FolderLock lock(folder.path(SafeLayout::lockFile));
    if (!lock.lock(environment.lockWaitMs, control)) {
        if (control.isCancelled())
            return {Outcome::Cancelled};
        return {lock.isHeldByAnother() ? Outcome::SafeBusy : Outcome::SafeUnreadable};
    }
    return ArchiveWriter(environment, folder, control).write(archivePath);
}

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
