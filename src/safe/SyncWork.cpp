#include "SyncWork.h"

#include <QDebug>

bool SyncWork::fail(SyncSide side, const QString &path)
{
    if (result.state == SyncState::Done && !control.isCancelled())
        qWarning() << "GPMSafeSyncHelper::synchronize"
                   << "Can't write:" << path;
    return fail(side);
}

bool SyncWork::fail(SyncSide side)
{
    // What was cancelled is no failure.
    if (result.state == SyncState::Done && control.isCancelled())
        result.state = SyncState::Cancelled;
    else if (result.state == SyncState::Done)
        result.state =
            side == SyncSide::Local ? SyncState::SafeNotWritten : SyncState::MirrorNotWritten;
    return false;
}
