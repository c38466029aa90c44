#pragma once

#include "DraftStore.h"
#include "SafeState.h"

class GPMSafe;

/// The writing of a safe's changed items.
class SafeSaving
{
public:
    /// Both outlive the object.
    SafeSaving(GPMSafe &safe, SafeState &state);

    /// With nothing left for the writer to do.
    SaveJob::Result saveNow();
    /// On the writer; GPMSafe::saved() follows.
    void saveLater();
    /// Keeps what is still not written as drafts: the folder of the safe may be gone, or full, and
    /// that of the drafts lies elsewhere.
    void keepUnsaved(DraftStore &drafts);

private:
    SaveJob makeJob();

    GPMSafe &m_safe;
    SafeState &m_state;
};
