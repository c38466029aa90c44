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
    // One at a time: what is under way is shown instead.
    QDialog *shown = m_dialog;
    if (!shown && safe->isChangingPassword())
        shown = m_progress;
    if (!shown) {
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

void PasswordChangeDesk::start(const QString &newPassword, const QString &hint)
{
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    m_cancelled = false;
    delete m_progress;
    m_progress = new ProgressDialog(
        tr("Change Password"),
        tr("Writing “%1” anew under its new password. You can go on working meanwhile.")
            .arg(safe->name()),
        m_theme, m_window);
    m_progress->setAttribute(Qt::WA_DeleteOnClose);
    connect(safe.get(), &GPMSafe::passwordChangeProgress, m_progress.data(),
            &ProgressDialog::setProgress);
    // Behind the lock, if it was one that ended it.
    connect(
        safe.get(), &GPMSafe::passwordChangeFinished, m_progress.data(),
        [this](PasswordChangeOutcome outcome) { tellEnd(outcome); }, Qt::QueuedConnection);
    connect(m_progress.data(), &ProgressDialog::cancelRequested, safe.get(), [this, safe] {
        m_cancelled = true;
        safe->cancelPasswordChange();
    });
    m_progress->show();
    if (!m_core.changePassword(newPassword, hint))
        tellEnd(PasswordChangeOutcome::NotWritten);
}

void PasswordChangeDesk::tellEnd(PasswordChangeOutcome outcome)
{
    if (!m_progress)
        return;
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    ProgressDialog::Way way;
    if (safe &&
        (outcome == PasswordChangeOutcome::Damaged || outcome == PasswordChangeOutcome::NotWritten))
        way = wayToFolder(safe->folder());
    m_progress->tell(
        outcome == PasswordChangeOutcome::Changed,
        ChangePasswordRules::endMessage(outcome, safe ? safe->name() : QString(), m_cancelled),
        way);
}

void PasswordChangeDesk::tellInterrupted(SafeUnlock::Outcome outcome)
{
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    const bool oldTried = outcome == SafeUnlock::Outcome::InterruptedChange;
    if (!safe || (!oldTried && !(safe->isUnlocked() && safe->isChangeInterrupted())))
        return;
    const int opened = safe->itemCount();
    delete m_progress;
    m_progress = new ProgressDialog(tr("Change Password"), {}, m_theme, m_window);
    m_progress->setAttribute(Qt::WA_DeleteOnClose);
    m_progress->tell(
        false,
        ChangePasswordRules::interruptedMessage(safe->name(), oldTried ? -1 : opened,
                                                opened + safe->unreadableFiles().size()),
        wayToFolder(safe->folder()));
}
