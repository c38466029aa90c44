#pragma once

#include "SafeFolder.h"
#include "SecretBytes.h"
#include "SyncPlan.h"
#include "SyncRecord.h"
#include "SyncResult.h"
#include "WorkControl.h"

#include <QMutex>

#include <memory>

/// The safe of a round.
struct SyncSafe
{
    SafeEnvironment environment;
    SafeFolder folder;
    std::shared_ptr<const SecretBytes> password;
    std::shared_ptr<QMutex> mutex;   ///< held for each write of the description and of items
    SyncRecord::Deletions deleted{}; ///< items just deleted
};

/// What the parts of one round share.
struct SyncWork
{
    SyncSafe safe;
    SafeFolder mirror;
    WorkControl &control;
    SyncRecord record{};
    SyncResult result{};

    FileLayer &files() const { return *safe.environment.files; }
    QByteArray password() const { return safe.password->view(); }
    qint64 now() const { return safe.environment.clock().toMSecsSinceEpoch(); }
    const SafeFolder &folder(SyncSide side) const
    {
        return side == SyncSide::Local ? safe.folder : mirror;
    }

    /// Takes note that something could not be written, and logs it the first time: a full disk
    /// fails every file. Always false.
    bool fail(SyncSide side, const QString &path);
    /// The same for what was logged already.
    bool fail(SyncSide side);
};
