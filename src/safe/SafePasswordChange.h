#pragma once

#include "DraftStore.h"
#include "PasswordChange.h"
#include "SafeState.h"

#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

#include <optional>

/// The change of a safe's password: its items, its drafts and the password that is held. Runs on
/// the writer of the safe; until it ends nobody else may write there, as file names and password
/// change with it.
class SafePasswordChange : public QObject
{
    Q_OBJECT

public:
    /// Both outlive the object.
    /// @param takeWritten takes what the writer has done
    SafePasswordChange(SafeState &state, DraftStore &drafts, std::function<void()> takeWritten);

    /// To its end before it returns, with nothing left for the writer to do. On failure, logged,
    /// everything is as it was. Emits nothing.
    bool run(const QString &newPassword, const std::function<void(int done, int total)> &progress);

    /// Behind what the writer has in hand; finished() follows.
    void start(const QString &newPassword, const QString &hint);
    /// Has no effect once every file is written.
    void cancel();
    /// Cancels, waits until it has stopped and takes what came of it; finished() is emitted.
    void stop();
    /// Lets it go, without an answer: its safe is locked before the drive answers.
    void abandon();
    bool isRunning() const { return m_change != nullptr; }

Q_SIGNALS:
    void progress(int done, int total);
    void finished(PasswordChangeOutcome outcome);

private:
    void prepare(const QString &newPassword, const std::optional<QString> &hint);
    void collect();
    void write();
    void take(PasswordChangeOutcome outcome);

    SafeState &m_state;
    DraftStore &m_drafts;
    std::function<void()> m_takeWritten;
    std::shared_ptr<PasswordChange> m_change; ///< null while none runs
    std::shared_ptr<const SecretBytes> m_newPassword;
    std::optional<SafeDescription> m_newDescription;
    QFuture<bool> m_draftsReady;
    std::shared_ptr<WorkControl> m_control;
    QStringList m_toCollect;
    QTimer m_slice;
    bool m_isWriting = false; ///< every item is handed to the writer
    QFutureWatcher<void> m_writerIdle;
    QFutureWatcher<PasswordChangeOutcome> m_work;
};
