#pragma once

#include "DraftStore.h"
#include "SafeState.h"

#include <QFuture>

#include <deque>

class GPMSafe;

/// The writing of a safe's changed items.
class SafeSaving
{
public:
    /// Both outlive the object.
    SafeSaving(GPMSafe &safe, SafeState &state);

    /// With nothing left for the writer to do, and all of that taken.
    SaveJob::Result saveNow();
    /// On the writer, without what a save under way has in hand; GPMSafe::saved() follows, unless
    /// a lock waits for it.
    void saveLater();
    /// Takes the results of saves that are done, rather than at the next turn of the event loop.
    void take();
    bool isUnderWay() const { return !m_underWay.empty(); }
    /// No longer waits for saves that do not get on.
    void abandon() { m_underWay.clear(); }
    /// The result of the last save that was taken.
    const SaveJob::Result &last() const { return m_last; }
    /// Keeps what is not written as drafts: the folder of the safe may be gone, or full, and that
    /// of the drafts lies elsewhere.
    void keepUnsaved(DraftStore &drafts) const;

private:
    SaveJob makeJob();

    GPMSafe &m_safe;
    SafeState &m_state;
    std::deque<QFuture<SaveJob::Result>> m_underWay;
    SaveJob::Result m_last;
};
