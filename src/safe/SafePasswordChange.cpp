#include "SafePasswordChange.h"

#include "PasswordChange.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QLockFile>
#include <QMutexLocker>

#include <utility>

static const char operation[] = "GPMSafe::changePassword";

SafePasswordChange::SafePasswordChange(SafeState &state, DraftStore &drafts)
    : m_state(state)
    , m_drafts(drafts)
{
}

bool SafePasswordChange::run(const QString &newPassword,
                             const std::function<void(int, int)> &progress)
{
    QLockFile lockFile(m_state.folder.path(SafeLayout::lockFile));
    // A long change is not stale; one whose process is gone is recognised by that.
    lockFile.setStaleLockTime(0);
    if (!lockFile.tryLock(m_state.environment.lockWaitMs)) {
        qWarning() << operation
                   << "Can't take the lock file:" << m_state.folder.path(SafeLayout::lockFile);
        return false;
    }
    return rewrite(newPassword, progress);
}

bool SafePasswordChange::rewrite(const QString &newPassword,
                                 const std::function<void(int, int)> &progress)
{
    qDebug() << operation
             << "Starting password change, safe id:" << QDir(m_state.folder.root()).dirName()
             << " name:" << m_state.description.name;
    QVector<PasswordChange::Item> items = m_state.items.planPasswordChange(m_state.folder);
    if (!m_state.unreadableFiles.isEmpty() || !PasswordChange::isComplete(items, m_state.folder)) {
        // What does not open now would never open again under the new password.
        qWarning() << operation << "Some object are null, cancel action";
        return false;
    }
    const int total = items.size();
    const auto password = std::make_shared<const SecretBytes>(SecretBytes::fromText(newPassword));
    const QMutexLocker locker(m_state.mutex.get());
    PasswordChange change(m_state.environment, m_state.folder, m_state.password->view(),
                          password->view(), std::move(items));
    const auto report = [&](int done) { progress(done, total); };
    if (!m_drafts.prepareChange(password->view()))
        return false;
    if (!change.run(progress ? std::function<void(int)>(report) : nullptr)) {
        m_drafts.rollBackChange();
        return false;
    }
    m_drafts.commitChange(password);
    qDebug() << operation << "Write new items to the safe";
    m_state.items.takePasswordChange(change.items());
    change.removeOldFiles();
    m_state.password = password;
    return true;
}
