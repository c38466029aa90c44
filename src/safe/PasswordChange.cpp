#include "PasswordChange.h"

#include "FormerBytes.h"
#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"
#include "SafeUse.h"
#include "SyncFiles.h"

#include <QDebug>
#include <QFile>
#include <QMutexLocker>
#include <QtConcurrent>

#include <algorithm>
#include <atomic>
#include <utility>

static const char operation[] = "GPMSafe::changePassword";

namespace {

/// A file that ends with a fault when the work is cancelled: whoever locks does not wait for the
/// rest of a large one.
class CancellableFile : public QFile
{
public:
    CancellableFile(const QString &path, const WorkControl &control)
        : QFile(path)
        , m_control(control)
    {
    }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        return m_control.isCancelled() ? -1 : QFile::readData(data, size);
    }

private:
    const WorkControl &m_control;
};

} // namespace

PasswordChange::PasswordChange(Safe safe)
    : m_safe(std::move(safe))
    , m_lock(m_safe.folder.path(SafeLayout::lockFile))
{
}

PasswordChangeOutcome PasswordChange::run(const WorkControl &control,
                                          const std::function<bool()> &draftsReady,
                                          const std::function<void(int)> &progress)
{
    using Outcome = PasswordChangeOutcome;
    if (SafeUse::other(m_safe.folder.root())) {
        // It would go on to save items under the old password.
        qWarning() << operation << "Another program has the safe open:" << m_safe.folder.root();
        return Outcome::Busy;
    }
    if (!m_lock.lock(m_safe.environment.lockWaitMs, control)) {
        if (control.isCancelled())
            return Outcome::Cancelled;
        qWarning() << operation
                   << "Can't take the lock file:" << m_safe.folder.path(SafeLayout::lockFile);
        return m_lock.isHeldByAnother() ? Outcome::Busy : Outcome::NotWritten;
    }
    Outcome outcome = Outcome::NotWritten;
    if (!isComplete()) {
        // What does not open now would never open again under the new password.
        qWarning() << operation << "Some object are null, cancel action";
        outcome = Outcome::Damaged;
    } else if (draftsReady()) {
        outcome = rewrite(control, progress);
    }
    if (outcome != Outcome::Changed)
        m_lock.unlock();
    return outcome;
}

/// Next generations are the first whose files are not there, so that what an interrupted change
/// left stays as it is.
void PasswordChange::chooseNames()
{
    for (Item &item : m_items) {
        item.newName = item.oldName;
        do
            ++item.newName.generation;
        while (QFile::exists(m_safe.folder.contentPath(item.newName)) ||
               QFile::exists(m_safe.folder.attachmentPath(item.newName)));
    }
}

/// Whether every attachment has its bytes.
bool PasswordChange::isComplete() const
{
    return std::all_of(m_items.begin(), m_items.end(), [this](const Item &item) {
        return !item.attachment || QFile::exists(m_safe.folder.attachmentPath(item.oldName));
    });
}

PasswordChangeOutcome PasswordChange::rewrite(const WorkControl &control,
                                              const std::function<void(int)> &progress)
{
    chooseNames();
    if (control.isCancelled())
        return PasswordChangeOutcome::Cancelled;
    if (!backUpPassId())
        return PasswordChangeOutcome::NotWritten;
    QVector<ItemFileName> names;
    for (const Item &item : std::as_const(m_items))
        names.append(item.oldName);
    noteFormerBytes(files(), m_safe.folder, names, control);
    // Behind the last item there is no way back any more.
    if (writePassId() && writeItems(control, progress) && !control.isCancelled() &&
        writeNewDescription()) {
        qDebug() << operation << "New items saved:" << m_items.size();
        qDebug() << operation << "New pass id written";
        return PasswordChangeOutcome::Changed;
    }
    cleanUp();
    return control.isCancelled() ? PasswordChangeOutcome::Cancelled
                                 : PasswordChangeOutcome::NotWritten;
}

void PasswordChange::removeOldFiles()
{
    qDebug() << operation << "Remove old items from the safe";
    for (const Item &item : std::as_const(m_items)) {
        QStringList paths{m_safe.folder.contentPath(item.oldName)};
        if (item.attachment)
            paths.append(m_safe.folder.attachmentPath(item.oldName));
        for (const QString &old : std::as_const(paths)) {
            if (!files().remove(old))
                qWarning() << operation << "Can't remove old file:" << old;
        }
    }
    m_lock.unlock();
}

bool PasswordChange::backUpPassId()
{
    const QMutexLocker locker(m_safe.mutex.get());
    // Replaced in one step, so that there is no moment with neither an old nor a new copy.
    const std::optional<QByteArray> passId = files().read(m_safe.folder.path(SafeLayout::passId));
    if (passId && files().writeBytes(m_safe.folder.path(SafeLayout::passIdBackup), *passId)) {
        m_oldPassId = *passId;
        return true;
    }
    qWarning() << operation << "Can't back up pass id file at:" << m_safe.folder.root();
    return false;
}

bool PasswordChange::writePassId()
{
    const QMutexLocker locker(m_safe.mutex.get());
    const QString passId = makePassId(m_safe.newPassword->view(), m_safe.environment.random);
    if (!passId.isEmpty() &&
        files().writeBytes(m_safe.folder.path(SafeLayout::passId), passId.toLatin1()))
        return true;
    qWarning() << operation << "Can't save pass id file at:" << m_safe.folder.root();
    return false;
}

bool PasswordChange::writeItems(const WorkControl &control,
                                const std::function<void(int)> &progress)
{
    std::atomic<bool> failed{false};
    std::atomic<int> done{0};
    QtConcurrent::blockingMap(m_items, [&](Item &item) {
        if (failed || control.isCancelled())
            return;
        if (!writeItem(item, control))
            failed = true;
        else if (const int count = ++done; progress)
            progress(count);
    });
    qDebug() << operation << "Items processed:" << done.load();
    return done == m_items.size();
}

bool PasswordChange::writeItem(Item &item, const WorkControl &control)
{
    if (item.attachment && !reencryptAttachment(item, control)) {
        if (!control.isCancelled())
            qWarning() << operation << "Can't re-encrypt attachment file:"
                       << m_safe.folder.attachmentPath(item.oldName);
        return false;
    }
    if (writeItemFile(m_safe.environment, m_safe.folder.contentPath(item.newName),
                      m_safe.newPassword->view(), item.document))
        return true;
    qWarning() << operation
               << "Can't save item to file:" << m_safe.folder.contentPath(item.newName);
    return false;
}

bool PasswordChange::reencryptAttachment(Item &item, const WorkControl &control)
{
    CancellableFile source(m_safe.folder.attachmentPath(item.oldName), control);
    if (!source.open(QIODevice::ReadOnly))
        return false;
    const QString newPath = m_safe.folder.attachmentPath(item.newName);
    const bool written = files().write(newPath, [&](QIODevice &destination) {
        return reencryptStream(m_safe.oldPassword->view(), m_safe.newPassword->view(), source,
                               destination, m_safe.environment.random);
    });
    const QString hash = written ? hashOfFile(files(), newPath, control) : QString();
    item.document.publicFields.insert(QStringLiteral("hash"), hash);
    return !hash.isEmpty();
}

bool PasswordChange::writeNewDescription()
{
    if (m_safe.newDescription.isEmpty())
        return true;
    const QMutexLocker locker(m_safe.mutex.get());
    m_descriptionTouched = true;
    if (writeDescription(files(), m_safe.folder.root(), m_safe.newDescription))
        return true;
    qWarning() << operation << "Can't save safe meta file:" << m_safe.folder.path(SafeLayout::meta);
    return false;
}

void PasswordChange::cleanUp()
{
    qWarning() << operation << "Cleanup on error";
    const QMutexLocker locker(m_safe.mutex.get());
    // A full disk may refuse even the copy; moving the backup back needs no room.
    const QString backup = m_safe.folder.path(SafeLayout::passIdBackup);
    const bool copied = files().writeBytes(m_safe.folder.path(SafeLayout::passId), m_oldPassId);
    if (!copied && !files().replace(backup, m_safe.folder.path(SafeLayout::passId)))
        qCritical() << operation << "Can't put pass id back, its copy is at:" << backup;
    else if (copied)
        files().remove(backup);
    if (m_descriptionTouched)
        writeDescription(files(), m_safe.folder.root(), m_safe.oldDescription);

    for (const Item &item : std::as_const(m_items)) {
        files().remove(m_safe.folder.contentPath(item.newName));
        if (item.attachment)
            files().remove(m_safe.folder.attachmentPath(item.newName));
    }
}
