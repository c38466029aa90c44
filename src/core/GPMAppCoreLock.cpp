// Locking the safe, and what goes with it.

#include "GPMAppCore.h"

#include <QScopeGuard>

/// How long a lock that is waited for may not get on.
static const int longestQuietMs = 10000;

void GPMAppCore::lockCurrentSafe()
{
    lockBecause(LockReason::User);
}

void GPMAppCore::lockForUser()
{
    lockSafe(LockReason::User, GPMSafe::Unsaved::Ask);
}

void GPMAppCore::lockBecause(LockReason reason)
{
    lockSafe(reason, GPMSafe::Unsaved::Keep);
    // No key is to lie in the memory of a computer that sleeps.
    if (reason == LockReason::Sleep)
        settleLocks();
}

void GPMAppCore::settleLocks()
{
    if (m_safe && m_safe->isSettling())
        m_safe->lockWithin(longestQuietMs);
    m_settling.finish(longestQuietMs);
}

void GPMAppCore::lockSafe(LockReason reason, GPMSafe::Unsaved unsaved)
{
    // At the end of the program nobody waits for an unlocking that still runs.
    cancelUnlock();
    // Another program that hangs may hold the clipboard up: the safe does not wait for it.
    const auto clearClipboard = qScopeGuard([this] {
        if (m_settings.clearClipboard())
            m_clipboard.clear();
    });
    if (m_safe && m_safe->isSettling())
        m_safe->lockAsync(unsaved);
    if (!m_safe || !m_safe->isUnlocked())
        return;
    m_lockReason = lockReasonText(reason, m_guard.inactivityLimit());
    Q_EMIT requestKeepDraft();
    Q_EMIT requestLock();
    if (m_link)
        m_link->flow().clear();
    m_loginSaving.clear();
    m_safe->lockAsync(unsaved);
    m_privateFiles.wipe();
}

void GPMAppCore::giveUpChanges()
{
    if (!m_safe || !(m_safe->isUnlocked() || m_safe->isSettling()))
        return;
    m_safe->giveUpChanges();
    Q_EMIT changesGivenUp();
}

void GPMAppCore::prepareForSessionEnd()
{
    Q_EMIT requestKeepDraft();
    saveCurrentSafe();
    settleLocks();
    m_privateFiles.wipe();
}
