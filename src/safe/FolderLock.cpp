#include "FolderLock.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>

#include <algorithm>

FolderLock::FolderLock(const QString &lockFile)
    : m_path(lockFile)
    , m_file(lockFile)
{
    // Long work is not stale; a process that is gone is recognised by that.
    m_file.setStaleLockTime(0);
}

/// A process that dies between making the file and writing its number into it leaves one that
/// nobody would ever take for stale.
void FolderLock::removeUnnamed()
{
    const int longestMs = 2000; // between the two
    const QFileInfo file(m_path);
    if (file.exists() && file.size() == 0 &&
        file.lastModified().msecsTo(QDateTime::currentDateTime()) > longestMs)
        m_file.removeStaleLockFile();
}

bool FolderLock::lock(int waitMs, const WorkControl &control)
{
    const int turnMs = 100; // how soon a cancel is noticed
    removeUnnamed();
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
