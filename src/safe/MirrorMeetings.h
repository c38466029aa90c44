#pragma once

#include "SafeState.h"
#include "SyncMeeting.h"

class GPMSafe;

/// The meetings of a safe with its mirror, one at a time, and what each of them brings.
class MirrorMeetings
{
public:
    /// Both outlive the object.
    MirrorMeetings(GPMSafe &safe, SafeState &state);

    bool start(const QString &mirrorFolder, const SyncRecord::Deletions &deleted);
    void cancel();
    /// Takes what an ended meeting brought, where that was not done yet.
    void take();

private:
    void takeResult(const SyncResult &result);
    void takeItem(const SyncResult::Item &taken);
    void keepBeside(const SyncResult::Item &taken, PMListItem &edited);
    void dropItem(const QString &id);

    GPMSafe &m_safe;
    SafeState &m_state;
    std::unique_ptr<SyncMeeting> m_meeting;
};
