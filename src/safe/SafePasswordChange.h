#pragma once

#include "DraftStore.h"
#include "SafeState.h"

#include <functional>

/// The change of a safe's password: its items, its drafts and the password that is held.
class SafePasswordChange
{
public:
    /// Both outlive the object.
    SafePasswordChange(SafeState &state, DraftStore &drafts);

    /// With nothing left for the writer to do. On failure, logged, everything is as it was.
    bool run(const QString &newPassword, const std::function<void(int done, int total)> &progress);

private:
    bool rewrite(const QString &newPassword,
                 const std::function<void(int done, int total)> &progress);

    SafeState &m_state;
    DraftStore &m_drafts;
};
