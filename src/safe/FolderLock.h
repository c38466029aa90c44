#pragma once

#include "WorkControl.h"

#include <QLockFile>

/// A lock file that is held while the files of a folder must stay as they are. For work on a
/// worker.
class FolderLock
{
public:
    explicit FolderLock(const QString &lockFile);

    /// Waits so long for the one who holds it, unless cancelled.
    bool lock(int waitMs, const WorkControl &control);
    void unlock() { m_file.unlock(); }

    /// After a lock that failed: whether somebody holds it, rather than that it cannot be made.
    bool isHeldByAnother() const { return m_file.error() == QLockFile::LockFailedError; }

private:
    void removeUnnamed();

    QString m_path;
    QLockFile m_file;
};
