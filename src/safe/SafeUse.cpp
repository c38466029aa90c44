#include "SafeUse.h"

#include "SafeFolder.h"
#include "SafeLayout.h"

#include <QCoreApplication>
#include <QSysInfo>

static std::unique_ptr<QLockFile> makeLock(const QString &folder)
{
    auto lock = std::make_unique<QLockFile>(SafeFolder(folder).path(SafeLayout::openLock));
    // A safe may stay open for days; a process that is gone is recognised by that.
    lock->setStaleLockTime(0);
    return lock;
}

std::optional<SafeUse::Other> SafeUse::other(const QString &folder)
{
    const std::unique_ptr<QLockFile> lock = makeLock(folder);
    if (lock->tryLock(0) || lock->error() != QLockFile::LockFailedError)
        return std::nullopt;
    qint64 process = 0;
    QString computer;
    QString program;
    if (!lock->getLockInfo(&process, &computer, &program))
        return std::nullopt;
    const bool isHere = computer == QSysInfo::machineHostName();
    if (isHere && process == QCoreApplication::applicationPid())
        return std::nullopt;
    return Other{computer, isHere};
}

bool SafeUse::take(const QString &folder, bool takeOver)
{
    release();
    std::unique_ptr<QLockFile> lock = makeLock(folder);
    bool taken = lock->tryLock(0);
    if (!taken && takeOver && lock->error() == QLockFile::LockFailedError)
        taken = lock->removeStaleLockFile() && lock->tryLock(0);
    if (taken)
        m_lock = std::move(lock);
    return taken;
}
