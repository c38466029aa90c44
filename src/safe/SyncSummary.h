#pragma once

#include "SyncState.h"

#include <QDateTime>
#include <QStringList>

/// What a meeting of a safe with its mirror came to, to be told to the user.
struct SyncSummary
{
    SyncState state = SyncState::Done;
    QDateTime time;   ///< when it ended; null before the first one
    int received = 0; ///< items that came from the mirror
    int sent = 0;     ///< items written to the mirror
    int removed = 0;  ///< items that are gone, as they were deleted elsewhere
    int copies = 0;   ///< versions that lost and were put into the trash
    /// What waits until a file in the mirror is whole: titles of items, and names of files for
    /// those that this safe does not have.
    QStringList waiting;
};
