#include "PasswordChangeDesk.h"

#include "ChangePasswordDialog.h"
#include "GPMAppCore.h"
#include "ProgressDialog.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

ProgressDialog::Way wayToFolder(const QString &folder)
{
    return {PasswordChangeDesk::tr("Open folder"),
            [folder] { QDesktopServices::openUrl(QUrl::fromLocalFile(folder)); }};
}

} // namespace

PasswordChangeDesk::PasswordChangeDesk(GPMAppCore &core, const Theme &theme, QObject *parent)
    : QObject(parent)
    , m_core(core)
    , m_theme(theme)
{
    connect(&core, &GPMAppCore::requestLock, this, [this] {
        if (m_dialog)
            m_dialog->reject();
    });
    connect(&core, &GPMAppCore::unlockFinished, this, &PasswordChangeDesk::tellInterrupted);
}

void PasswordChangeDesk::open()
{
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    if (!safe || !safe->isUnlocked())
        return;
    QDialog *shown = m_dialog;
    if (safe->isChangingPassword()) {
        // One at a time: what is under way is shown, whoever has begun it.
        if (!m_progress || !m_progress->isRunning())
            showProgress(safe);
        shown = m_progress;
    } else if (!shown) {
        m_dialog = new ChangePasswordDialog(
            {[safe](const QString &password) { return safe->isPassword(password); }, safe->hint(),
             m_core.platform()},
            m_theme, m_window);
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_dialog, &ChangePasswordDialog::confirmed, this, &PasswordChangeDesk::start);
        shown = m_dialog;
    }
    shown->show();
    shown->raise();
    shown->activateWindow();
}

void PasswordChangeDesk::makeProgress(const QString &text)
{
    delete m_progress;
    m_progress = new ProgressDialog(tr("Change Password"), text, m_theme, m_window);
    m_progress->setAttribute(Qt::WA_DeleteOnClose);
}

void PasswordChangeDesk::showProgress(const std::shared_ptr<GPMSafe> &safe)
{
    m_cancelled = false;
    makeProgress(tr("Writing “%1” anew under its new password. You can go on working meanwhile.")
                     .arg(safe->name()));
    connect(safe.get(), &GPMSafe::passwordChangeProgress, m_progress.data(),
            &ProgressDialog::setProgress);
    // Behind the lock, if it was one that ended it.
    connect(
        safe.get(), &GPMSafe::passwordChangeFinished, m_progress.data(),
        [this, changed = std::weak_ptr<GPMSafe>(safe)](PasswordChangeOutcome outcome) {
            if (const std::shared_ptr<GPMSafe> held = changed.lock())
                tellEnd(outcome, *held);
        },
        Qt::QueuedConnection);
    connect(m_progress.data(), &ProgressDialog::cancelRequested, safe.get(),
            [this, changing = safe.get()] {
                m_cancelled = true;
                changing->cancelPasswordChange();
            });
    m_progress->show();
}

void PasswordChangeDesk::start(const QString &newPassword, const QString &hint)
{
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    if (safe->isChangingPassword()) {
        // To another password, perhaps; its end would be taken for that of this one.
        makeProgress({});
        m_progress->tell(false, ChangePasswordRules::anotherRunsMessage());
        return;
    }
    showProgress(safe);
    if (!m_core.changePassword(newPassword, hint))
        tellEnd(PasswordChangeOutcome::NotWritten, *safe);
}

void PasswordChangeDesk::tellEnd(PasswordChangeOutcome outcome, const GPMSafe &safe)
{
    using ChangePasswordRules::Stop;
    ProgressDialog::Way way;
    if (outcome == PasswordChangeOutcome::Damaged || outcome == PasswordChangeOutcome::NotWritten)
        way = wayToFolder(safe.folder());
    const Stop byProgram = safe.isUnlocked() ? Stop::Program : Stop::Lock;
    m_progress->tell(
        outcome == PasswordChangeOutcome::Changed,
        ChangePasswordRules::endMessage(outcome, safe.name(), m_cancelled ? Stop::User : byProgram),
        way);
}

void PasswordChangeDesk::tellInterrupted(SafeUnlock::Outcome outcome)
{
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    const bool oldTried = outcome == SafeUnlock::Outcome::InterruptedChange;
    if (!safe || (!oldTried && !(safe->isUnlocked() && safe->isChangeInterrupted())))
        return;
    const int opened = safe->itemCount();
    makeProgress({});
    m_progress->tell(
        false,
        ChangePasswordRules::interruptedMessage(safe->name(), oldTried ? -1 : opened,
                                                opened + safe->unreadableFiles().size()),
        wayToFolder(safe->folder()));
}
