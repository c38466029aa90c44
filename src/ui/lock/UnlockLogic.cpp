#include "UnlockLogic.h"

#include "GPMAppCore.h"

#include <QDir>

#include <algorithm>
#include <utility>

UnlockLogic::UnlockLogic(GPMAppCore &core, QObject *parent)
    : QObject(parent)
    , m_core(core)
{
    connect(&core.knownSafes(), &KnownSafes::changed, this, &UnlockLogic::reload);
    connect(&core.knownSafes(), &KnownSafes::answered, this, &UnlockLogic::onAnswered);
    connect(&core, &GPMAppCore::currentSafeChanged, this, &UnlockLogic::takeCurrentSafe);
    connect(&core, &GPMAppCore::safeLockedChanged, this, [this](bool locked) {
        // The lock was called off.
        if (!locked)
            dropPending();
        Q_EMIT changed();
    });
    connect(&core, &GPMAppCore::lockSettled, this, &UnlockLogic::changed);
    connect(&core, &GPMAppCore::unlockCancelled, this, &UnlockLogic::dropPending);
    connect(&core, &GPMAppCore::unlockFinished, this, &UnlockLogic::onFinished);
    connect(&core, &GPMAppCore::unlockProgress, this, [this](int done, int total) {
        m_done = done;
        m_total = total;
        Q_EMIT changed();
    });
    // A page that is made anew, in another language for one, shows the safe that was chosen.
    if (const std::shared_ptr<GPMSafe> &safe = core.currentSafe())
        m_folder = safe->folder();
    reload();
}

UnlockLogic::State UnlockLogic::state() const
{
    if (m_unlocking)
        return State::Unlocking;
    if (m_safes.isEmpty())
        return State::NoSafes;
    const KnownSafes::Entry *entry = chosen();
    if (!entry)
        return State::NoneChosen;
    if (entry->looking || m_awaited == m_folder)
        return State::Looking;
    return entry->available ? State::Ready : State::Unavailable;
}

QString UnlockLogic::hint() const
{
    const KnownSafes::Entry *entry = chosen();
    return entry ? entry->hint : QString();
}

bool UnlockLogic::isSaving() const
{
    return m_core.currentSafe() && m_core.currentSafe()->isSettling();
}

QString UnlockLogic::invitation() const
{
    const QString &reason = m_core.lockReason();
    return reason.isEmpty() ? tr("Unlock your safe to go on") : reason;
}

QString UnlockLogic::firstOf(const QString &preferredFolder) const
{
    const auto find = [this](const auto &accept) {
        const auto entry = std::find_if(m_safes.cbegin(), m_safes.cend(), accept);
        return entry == m_safes.cend() ? QString() : entry->folder;
    };
    QString folder = find([&](const KnownSafes::Entry &entry) {
        return (entry.available || entry.looking) && entry.folder == preferredFolder;
    });
    if (folder.isEmpty())
        folder = find([](const KnownSafes::Entry &entry) { return entry.available; });
    if (folder.isEmpty())
        folder = find([](const KnownSafes::Entry &entry) { return entry.looking; });
    return folder;
}

void UnlockLogic::chooseFirst(const QString &preferredFolder)
{
    reload();
    const int most = m_safes.size();
    for (int i = 0; i < most; ++i) {
        const QString folder = firstOf(preferredFolder);
        if (folder.isEmpty())
            return;
        choose(folder);
        // One that is not there any more is known to be so now.
        if (m_core.currentSafe() || !m_awaited.isEmpty())
            return;
    }
}

void UnlockLogic::choose(const QString &folder)
{
    if (m_unlocking)
        return;
    m_folder = folder;
    m_awaited.clear();
    m_message.clear();
    m_openElsewhere = false;
    if (!m_core.selectSafe(folder)) {
        // It stays chosen, so that the page can say what is wrong with it.
        m_folder = folder;
        if (m_core.knownSafes().isLate(folder))
            m_awaited = folder;
        m_message = whyNot(folder).arg(QDir::toNativeSeparators(folder));
    }
    reload();
    Q_EMIT changed();
}

QString UnlockLogic::whyNot(const QString &folder) const
{
    if (m_awaited == folder)
        return tr("Looking for this safe. Its drive does not answer yet:\n%1");
    const SafeLook *look = m_core.knownSafes().lookAt(folder);
    return look && look->place == SafePlace::DriveGone
               ? tr("This safe is on a drive that is not connected. Connect it, then choose the "
                    "safe again:\n%1")
               : tr("This safe is not available. Check that its folder is there:\n%1");
}

void UnlockLogic::onAnswered(const QString &folder)
{
    if (folder == m_awaited && folder == m_folder && !m_core.knownSafes().isLate(folder))
        choose(folder);
}

void UnlockLogic::unlock(const QString &password)
{
    if (m_unlocking)
        return;
    if (!m_core.currentSafe()) {
        setMessage(m_folder.isEmpty() ? tr("No any safe is selected") : m_message);
        return;
    }
    if (password.isEmpty()) {
        // No safe has an empty password.
        setMessage(tr("Wrong Password! Try again"));
        Q_EMIT refused();
        return;
    }
    m_message.clear();
    m_unlocking = true;
    m_done = 0;
    m_total = 0;
    m_pending = std::make_unique<SecretBytes>(SecretBytes::fromText(password));
    // Told once: the next time the user wants it.
    if (std::exchange(m_openElsewhere, false))
        passOn();
    else
        lookForOther();
}

/// Not here: the drive may take its time.
void UnlockLogic::lookForOther()
{
    const auto other = std::make_shared<std::optional<SafeUse::Other>>();
    const QString folder = m_core.currentSafe()->folder();
    const int attempt = ++m_attempt;
    m_look.run([folder, other] { *other = SafeUse::other(folder); },
               [this, attempt, other] {
                   // It may have been cancelled, and another one begun.
                   if (m_pending && attempt == m_attempt)
                       onLookedForOther(*other);
               });
    Q_EMIT changed();
}

void UnlockLogic::onLookedForOther(const std::optional<SafeUse::Other> &other)
{
    if (!other) {
        passOn();
        return;
    }
    m_pending.reset();
    m_unlocking = false;
    m_openElsewhere = true;
    setMessage(
        other->isHere
            ? tr("Another program on this computer has this safe open. What both change at "
                 "the same time can get lost, so close it there first.")
            : tr("This safe is open on the computer “%1”, or was when that computer stopped. "
                 "What both change at the same time can get lost, so close it there first.")
                  .arg(other->computer));
}

void UnlockLogic::passOn()
{
    const std::unique_ptr<SecretBytes> secret = std::move(m_pending);
    QString password = QString::fromUtf8(secret->data(), static_cast<int>(secret->size()));
    Q_EMIT changed();
    m_core.unlockCurrentSafe(password);
    wipe(password);
}

void UnlockLogic::cancel()
{
    if (!m_unlocking)
        return;
    m_core.cancelUnlock();
}

void UnlockLogic::dropPending()
{
    if (!m_pending)
        return;
    m_pending.reset();
    onFinished(SafeUnlock::Outcome::Cancelled);
}

const KnownSafes::Entry *UnlockLogic::chosen() const
{
    const auto entry =
        std::find_if(m_safes.cbegin(), m_safes.cend(),
                     [this](const KnownSafes::Entry &safe) { return safe.folder == m_folder; });
    return entry == m_safes.cend() ? nullptr : &*entry;
}

void UnlockLogic::reload()
{
    m_safes = m_core.knownSafes().entries();
    Q_EMIT safesChanged();
}

void UnlockLogic::takeCurrentSafe()
{
    m_pending.reset();
    m_unlocking = false;
    m_openElsewhere = false;
    m_message.clear();
    m_folder = m_core.currentSafe() ? m_core.currentSafe()->folder() : QString();
    Q_EMIT changed();
}

void UnlockLogic::onFinished(SafeUnlock::Outcome outcome)
{
    m_unlocking = false;
    switch (outcome) {
    case SafeUnlock::Outcome::Unlocked:
    case SafeUnlock::Outcome::Cancelled:
        setMessage({});
        break;
    case SafeUnlock::Outcome::WrongPassword:
        setMessage(tr("Wrong Password! Try again"));
        break;
    case SafeUnlock::Outcome::FormerPassword:
        setMessage(tr("This is the password from before it was changed. Use the new one."));
        break;
    case SafeUnlock::Outcome::InterruptedChange:
        setMessage(tr("This is the password from before a change that was interrupted."));
        break;
    case SafeUnlock::Outcome::MirrorPassword:
        setMessage(tr("This password was set on another computer. Unlock with the former one; then "
                      "you are asked for this one."));
        break;
    case SafeUnlock::Outcome::Unreadable:
        setMessage(tr("The safe could not be read. Check that its folder is there and that you "
                      "may read it, then try again."));
        break;
    }
    if (outcome != SafeUnlock::Outcome::Unlocked)
        Q_EMIT refused();
}

void UnlockLogic::setMessage(const QString &message)
{
    m_message = message;
    Q_EMIT changed();
}
