#include "FolderLock.h"

#include <QElapsedTimer>

#include <algorithm>

FolderLock::FolderLock(const QString &lockFile)
    : m_file(lockFile)
{
    // Long work is not stale; a process that is gone is recognised by that.
    m_file.setStaleLockTime(0);
}

bool FolderLock::lock(int waitMs, const WorkControl &control)
{
    const int turnMs = 100; // how soon a cancel is noticed
    QElapsedTimer timer;
    timer.start();
    while (!control.isCancelled()) {
        const int left = waitMs - static_cast<int>(timer.elapsed());
        if (m_file.tryLock(std::clamp(left, 0, turnMs)))
            return true;
        if (!isHeldByAnother() || left <= 0)
            return false;
    }
    return false;
}
