// Unlocking and locking.

#include "GPMSafe.h"

#include "SafeLayout.h"

#include <QDebug>
#include <QTimer>
#include <QtConcurrent>

#include <utility>

bool GPMSafe::unlock(const QString &password)
{
    if (isSettling())
        lock();
    if (!canUnlock())
        return false;
    SafeUnlock attempt(m_state.environment, m_state.folder, m_state.description,
                       std::make_shared<const SecretBytes>(SecretBytes::fromText(password)));
    const SafeUnlock::Outcome outcome = attempt.run();
    if (outcome == SafeUnlock::Outcome::Unlocked) {
        takeUnlocked(attempt);
        return true;
    }
    SafeUnlock::logFailure(outcome, m_state.folder);
    return false;
}

void GPMSafe::unlockAsync(const QString &password, const QString &mirrorFolder)
{
    m_unlock.reset();
    if (!isSettling() && !canUnlock()) {
        // Later, like every other answer.
        QTimer::singleShot(0, this,
                           [this] { Q_EMIT unlockFinished(SafeUnlock::Outcome::Unreadable); });
        return;
    }
    m_unlock = std::make_unique<SafeUnlock>(
        m_state.environment, m_state.folder, m_state.description,
        std::make_shared<const SecretBytes>(SecretBytes::fromText(password)));
    m_unlock->setMirror(mirrorFolder);
    connect(m_unlock.get(), &SafeUnlock::progress, this, &GPMSafe::unlockProgress);
    connect(m_unlock.get(), &SafeUnlock::finished, this, &GPMSafe::onUnlockFinished);
    // Else it begins when the last lock is done.
    if (!isSettling())
        m_unlock->start();
}

void GPMSafe::cancelUnlock()
{
    if (!m_unlock)
        return;
    m_unlock->cancel();
    if (!isSettling())
        return;
    m_unlock.reset();
    QTimer::singleShot(0, this, [this] { Q_EMIT unlockFinished(SafeUnlock::Outcome::Cancelled); });
}

bool GPMSafe::canUnlock() const
{
    if (isOpen() && !m_state.isUnlocked())
        return true;
    qWarning() << "GPMSafe::unlock"
               << "Safe is not open or unlocked already:" << folder();
    return false;
}

void GPMSafe::takeUnlocked(SafeUnlock &attempt)
{
    m_state.password = attempt.password();
    m_drafts.open(attempt.home(), m_state.password);
    m_state.unreadableFiles = attempt.items().unreadableFiles();
    m_state.changeInterrupted = attempt.items().looksInterrupted() && attempt.hasFormerPassId();
    m_state.items.exchange(attempt.items().takeEntries());
    for (const QString &name : std::as_const(m_state.unreadableFiles))
        qWarning() << "GPMSafe::unlock"
                   << "Can't read item file:"
                   << m_state.folder.contentPath(ItemFileName::parse(name));
    Q_EMIT itemsReset();
    Q_EMIT lockedChanged(false);
}

void GPMSafe::onUnlockFinished(SafeUnlock::Outcome outcome)
{
    SafeUnlock *attempt = m_unlock.release();
    // Its own signal led here, so it goes later.
    attempt->disconnect(this);
    attempt->deleteLater();
    if (outcome == SafeUnlock::Outcome::Unlocked)
        takeUnlocked(*attempt);
    else
        SafeUnlock::logFailure(outcome, m_state.folder);
    Q_EMIT unlockFinished(outcome);
}

void GPMSafe::lockWithin(int quietMs)
{
    lockAsync();
    while (isSettling()) {
        if (!waitForStep(quietMs)) {
            giveUpWriting();
            return;
        }
        if (isChangingPassword())
            m_passwordChange.stop(); // goes on with what had to wait for it
        else
            settleOn();
    }
}

void GPMSafe::lockAsync(Unsaved unsaved)
{
    m_unlock.reset();
    if (!m_state.isUnlocked())
        return;
    if (isSettling()) {
        // Who locks because the user has gone does not want a question.
        if (unsaved == Unsaved::Keep || m_lock.step == Lock::Asking)
            m_lock.unsaved = unsaved;
        if (m_lock.step == Lock::Asking)
            awaitWriter();
        return;
    }
    m_lock.unsaved = unsaved;
    m_lock.step = Lock::UnderWay;
    m_passwordChange.cancel();
    cancelMeeting();
    m_meetings.take();
    const bool isIdle = !isWriting() && m_attachments.isIdle() && !m_state.items.hasChanged();
    m_drafts.seal(true);
    Q_EMIT itemsReset();
    if (isIdle) {
        finishLock({});
        return;
    }
    awaitWriter();
    m_lock.isTold = true;
    Q_EMIT lockedChanged(true);
}

void GPMSafe::awaitWriter()
{
    // Behind everything that the writer has been given.
    m_lock.step = Lock::UnderWay;
    if (!isChangingPassword())
        m_lock.idle.setFuture(QtConcurrent::run(&m_state.writer, [] {}));
}

/// What the step under way waits for is done.
void GPMSafe::settleOn()
{
    if (!isSettling() || isChangingPassword())
        return;
    switch (m_lock.step) {
    case Lock::UnderWay:
        m_meetings.take();
        m_attachments.handOn();
        m_saving.take();
        // The last save does not try again what one before it cannot write.
        if (m_saving.isUnderWay()) {
            awaitWriter();
            return;
        }
        if (m_givesUp) {
            finishLock({});
            return;
        }
        m_saving.saveLater();
        m_lock.step = Lock::LastSave;
        m_lock.idle.setFuture(QtConcurrent::run(&m_state.writer, [] {}));
        return;
    case Lock::LastSave:
        m_saving.take();
        onLastSave();
        return;
    case Lock::Drafts:
        finishLock(m_saving.last());
        return;
    case Lock::Asking:
    case Lock::None:
        return;
    }
}

void GPMSafe::onLastSave()
{
    if (m_saving.last().good()) {
        finishLock({});
        return;
    }
    if (m_lock.unsaved == Unsaved::Ask) {
        m_lock.step = Lock::Asking;
        Q_EMIT lockFailed();
        if (m_lock.step != Lock::Asking)
            return;
    }
    if (m_givesUp) {
        finishLock({});
        return;
    }
    m_saving.keepUnsaved(m_drafts);
    m_lock.step = Lock::Drafts;
    m_lock.idle.setFuture(m_drafts.idle());
}

void GPMSafe::reopen()
{
    if (m_lock.step != Lock::Asking)
        return;
    // It waits for the lock, and would do so for ever.
    cancelUnlock();
    m_lock.step = Lock::None;
    m_lock.isTold = false;
    m_drafts.seal(false);
    Q_EMIT itemsReset();
    Q_EMIT lockedChanged(false);
}

bool GPMSafe::waitForStep(int quietMs)
{
    if (m_lock.step == Lock::Drafts)
        return m_drafts.waitForIdle(quietMs);
    int steps = *m_state.steps;
    while (!m_state.writer.waitForDone(quietMs)) {
        if (steps == *m_state.steps)
            return false;
        steps = *m_state.steps;
    }
    return true;
}

/// A drive does not answer: the drafts lie elsewhere.
void GPMSafe::giveUpWriting()
{
    qWarning() << "GPMSafe::lock"
               << "The folder of the safe does not answer:" << folder();
    if (m_lock.step != Lock::Drafts && !m_givesUp)
        m_saving.keepUnsaved(m_drafts);
    // What still comes of it must not reach a safe that is locked, or opened again.
    m_passwordChange.abandon();
    m_attachments.abandon();
    m_saving.abandon();
    m_saveWaits = false;
    SaveJob::Result result;
    result.failedPaths.append(folder());
    finishLock(result);
}

void GPMSafe::finishLock(const SaveJob::Result &result)
{
    const bool wasTold = std::exchange(m_lock.isTold, false);
    m_givesUp = false;
    m_savedAtLock = result.good();
    if (result.good())
        m_drafts.removeSaved();
    m_drafts.close();
    m_state.password.reset();
    m_state.unreadableFiles.clear();
    ItemStore::Entries items = m_state.items.exchange({});
    ++m_state.session;
    m_lock.step = Lock::None;
    items.clear();
    if (!wasTold)
        Q_EMIT lockedChanged(true);
    // Who is told of it finds the safe locked.
    if (!result.good())
        Q_EMIT saved(false, result.failedPaths);
    Q_EMIT lockSettled();
    if (m_unlock && !m_state.isUnlocked())
        m_unlock->start();
}
