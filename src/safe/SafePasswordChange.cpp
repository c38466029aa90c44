#include "SafePasswordChange.h"

#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QtConcurrent>

#include <utility>

static const char operation[] = "GPMSafe::changePassword";

/// How long the event loop may be held to copy items.
const int sliceMs = 10;

SafePasswordChange::SafePasswordChange(SafeState &state, DraftStore &drafts,
                                       std::function<void()> takeWritten)
    : m_state(state)
    , m_drafts(drafts)
    , m_takeWritten(std::move(takeWritten))
{
    connect(&m_slice, &QTimer::timeout, this, &SafePasswordChange::collect);
    connect(&m_writerIdle, &QFutureWatcher<void>::finished, this, [this] {
        if (!isRunning())
            return;
        m_takeWritten();
        for (const PMListItem *item : m_state.items.items())
            m_toCollect.append(item->id());
        m_slice.start(0);
    });
    connect(&m_work, &QFutureWatcher<PasswordChangeOutcome>::finished, this, [this] {
        if (m_isWriting)
            take(m_work.result());
    });
}

bool SafePasswordChange::run(const QString &newPassword,
                             const std::function<void(int, int)> &report)
{
    prepare(newPassword, std::nullopt);
    for (const PMListItem *item : m_state.items.items())
        m_change->add(*m_state.items.forPasswordChange(item->id()));
    const int total = m_change->itemCount();
    const auto tell = [&](int done) {
        if (report)
            report(done, total);
    };
    const PasswordChangeOutcome outcome =
        m_state.unreadableFiles.isEmpty()
            ? m_change->run(
                  *m_control, [this] { return m_draftsReady.result(); }, tell)
            : PasswordChangeOutcome::Damaged;
    const QSignalBlocker quiet(this);
    take(outcome);
    m_state.writer.waitForDone();
    m_drafts.wait();
    return outcome == PasswordChangeOutcome::Changed;
}

void SafePasswordChange::start(const QString &newPassword, const QString &hint)
{
    prepare(newPassword, hint);
    m_writerIdle.setFuture(QtConcurrent::run(&m_state.writer, [] {}));
}

void SafePasswordChange::prepare(const QString &newPassword, const std::optional<QString> &hint)
{
    qDebug() << operation
             << "Starting password change, safe id:" << QDir(m_state.folder.root()).dirName()
             << " name:" << m_state.description.name;
    m_newPassword = std::make_shared<const SecretBytes>(SecretBytes::fromText(newPassword));
    m_newDescription.reset();
    if (hint && *hint != m_state.description.hint) {
        m_newDescription = m_state.description;
        m_newDescription->hint = *hint;
        m_newDescription->modified = m_state.environment.clock().toMSecsSinceEpoch();
    }
    m_change = std::make_shared<PasswordChange>(
        PasswordChange::Safe{m_state.environment, m_state.folder, m_state.password, m_newPassword,
                             m_state.mutex, m_state.description.toJson(),
                             m_newDescription ? m_newDescription->toJson() : QByteArray()});
    m_control = std::make_shared<WorkControl>();
    m_toCollect.clear();
    m_draftsReady = m_drafts.prepareChange(m_newPassword);
}

void SafePasswordChange::collect()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_toCollect.isEmpty() && timer.elapsed() < sliceMs) {
        const auto item = m_state.items.forPasswordChange(m_toCollect.takeLast());
        if (item)
            m_change->add(*item);
    }
    if (!m_toCollect.isEmpty())
        return;
    m_slice.stop();
    write();
}

void SafePasswordChange::write()
{
    if (!m_state.unreadableFiles.isEmpty()) {
        qWarning() << operation << "Some object are null, cancel action";
        take(PasswordChangeOutcome::Damaged);
        return;
    }
    m_isWriting = true;
    const int total = m_change->itemCount();
    const auto tell = [this, total](int done) {
        // From several threads; a later one may come first.
        QMetaObject::invokeMethod(this, [this, done, total] {
            if (isRunning())
                Q_EMIT progress(done, total);
        });
    };
    m_work.setFuture(QtConcurrent::run(
        &m_state.writer, [change = m_change, control = m_control, ready = m_draftsReady, tell] {
            return change->run(
                *control, [&ready] { return ready.result(); }, tell);
        }));
}

void SafePasswordChange::cancel()
{
    if (!isRunning())
        return;
    m_control->cancel();
    // What has begun to write is cleared away by the writer.
    if (!m_isWriting)
        take(PasswordChangeOutcome::Cancelled);
}

void SafePasswordChange::stop()
{
    if (!isRunning())
        return;
    cancel();
    if (isRunning())
        take(m_work.future().result());
}

void SafePasswordChange::abandon()
{
    if (!isRunning())
        return;
    m_slice.stop();
    m_toCollect.clear();
    m_newPassword.reset();
    const std::shared_ptr<PasswordChange> change = std::exchange(m_change, nullptr);
    if (!std::exchange(m_isWriting, false))
        return;
    // Behind it: what it came to is on the disk, where unlocking finds it.
    QtConcurrent::run(&m_state.writer, [change, work = m_work.future()] {
        if (work.result() == PasswordChangeOutcome::Changed)
            change->removeOldFiles();
    });
}

void SafePasswordChange::take(PasswordChangeOutcome outcome)
{
    m_slice.stop();
    m_toCollect.clear();
    const std::shared_ptr<PasswordChange> change = std::exchange(m_change, nullptr);
    m_isWriting = false;
    if (outcome == PasswordChangeOutcome::Changed) {
        qDebug() << operation << "Write new items to the safe";
        m_state.items.takePasswordChange(change->items());
        m_state.password = m_newPassword;
        if (m_newDescription)
            m_state.description = *m_newDescription;
        m_drafts.commitChange();
        QtConcurrent::run(&m_state.writer, [change] { change->removeOldFiles(); });
    } else {
        m_drafts.rollBackChange();
    }
    m_newPassword.reset();
    Q_EMIT finished(outcome);
}
