#pragma once

#include "SyncHeader.h"
#include "SyncItems.h"
#include "SyncVersions.h"

#include <optional>

/// One meeting of a safe with its mirror: reads both, merges item by item, writes what is missing
/// on either side and remembers it. On the writer of the safe, so that no save comes in between.
/// After an interruption at any moment the next round goes on from what is there.
class SyncRound
{
public:
    using Safe = SyncSafe;

    SyncRound(Safe safe, const QString &mirrorFolder);

    /// Counts the items that may differ. One that brings many ends early, as if cancelled, so that
    /// they are taken over in small portions.
    SyncResult run(WorkControl &control);

private:
    class Run;

    Safe m_safe;
    SafeFolder m_mirror;
};
