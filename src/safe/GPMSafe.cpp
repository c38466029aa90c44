#include "GPMSafe.h"

#include "DeletedList.h"
#include "ExportTask.h"
#include "FolderPath.h"
#include "ItemRemoval.h"
#include "ItemTimes.h"
#include "NewSafe.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QMutexLocker>
#include <QUuid>
#include <QtConcurrent>

#include <algorithm>
#include <utility>

GPMSafe::GPMSafe(SafeEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_state(std::move(environment))
    , m_saving(*this, m_state)
    , m_attachments(*this, m_state)
    , m_meetings(*this, m_state)
    , m_drafts(m_state.environment)
    , m_passwordChange(m_state, m_drafts, [this] {
        m_meetings.take();
        m_attachments.handOn();
    })
{
    connect(&m_lock.idle, &QFutureWatcher<void>::finished, this, &GPMSafe::settleOn);
    connect(&m_passwordChange, &SafePasswordChange::progress, this,
            &GPMSafe::passwordChangeProgress);
    connect(&m_passwordChange, &SafePasswordChange::finished, this,
            &GPMSafe::onPasswordChangeFinished);
}

GPMSafe::~GPMSafe()
{
    lock();
}

bool GPMSafe::init(const QString &folder, const QString &password, const QString &name,
                   const QString &hint)
{
    if (isOpen()) {
        qWarning() << "GPMSafe::init"
                   << "Safe already opened";
        return false;
    }
    const SafeFolder newFolder(folder);
    if (!canHoldNewSafe(newFolder, password))
        return false;
    const auto secret = std::make_shared<const SecretBytes>(SecretBytes::fromText(password));
    SafeDescription description;
    description.name = name;
    description.hint = hint;
    description.created = m_state.environment.clock().toMSecsSinceEpoch();
    description.modified = description.created;
    if (!writeNewSafe(m_state.environment, newFolder, description, secret->view())) {
        qWarning() << "GPMSafe::init"
                   << "Can't write the files of a new safe at:" << folder;
        return false;
    }
    m_state.folder = newFolder;
    m_state.description = description;
    m_state.password = secret;
    m_drafts.open(canonicalFolder(folder), m_state.password);
    Q_EMIT itemsReset();
    Q_EMIT lockedChanged(false);
    return true;
}

bool GPMSafe::open(const QString &folder)
{
    if (!QDir(folder).exists()) {
        qWarning() << "GPMSafe::open"
                   << "Safe directory doesn't exists at location:" << folder;
        return false;
    }
    const auto description = readDescription(*m_state.environment.files, folder);
    return description && open(folder, *description);
}

bool GPMSafe::open(const QString &folder, const SafeDescription &description)
{
    if (isOpen()) {
        qWarning() << "GPMSafe::open"
                   << "Safe already opened";
        return false;
    }
    m_state.folder = SafeFolder(folder);
    m_state.description = description;
    return true;
}

bool GPMSafe::readMetaFile()
{
    const QMutexLocker locker(m_state.mutex.get());
    const std::optional<SafeDescription> description =
        readDescription(*m_state.environment.files, folder());
    if (!description)
        return false;
    m_state.description = *description;
    return true;
}

bool GPMSafe::writeMetaFile(const QString &targetPath)
{
    const QByteArray json = m_state.description.toJson();
    const QMutexLocker locker(m_state.mutex.get());
    const bool written = targetPath.isEmpty()
                             ? writeDescription(*m_state.environment.files, folder(), json)
                             : m_state.environment.files->writeBytes(
                                   targetPath, json, QIODevice::WriteOnly | QIODevice::Text);
    if (!written)
        qWarning() << "GPMSafe::writeMetaFile"
                   << "Can't save safe meta file:"
                   << (targetPath.isEmpty() ? m_state.folder.path(SafeLayout::meta) : targetPath);
    return written;
}

QFuture<bool> GPMSafe::renameAsync(const QString &name)
{
    setName(name);
    cancelMeeting();
    return QtConcurrent::run(&m_state.writer,
                             [files = m_state.environment.files, root = folder(),
                              mutex = m_state.mutex, json = m_state.description.toJson()] {
                                 const QMutexLocker locker(mutex.get());
                                 return writeDescription(*files, root, json);
                             });
}

bool GPMSafe::saveChanges()
{
    if (!isUnlocked())
        return false;
    m_passwordChange.stop();
    waitForWriter();
    return m_saving.saveNow().good();
}

void GPMSafe::saveChangesAsync()
{
    // While a lock waits the safe itself still brings things in.
    if (!m_state.isUnlocked())
        return;
    if (isChangingPassword()) {
        m_saveWaits = true;
        return;
    }
    cancelMeeting();
    m_saving.saveLater();
}

bool GPMSafe::mayChangePassword(const QString &newPassword) const
{
    const char operation[] = "GPMSafe::changePassword";
    if (newPassword.isEmpty()) {
        qWarning() << operation << "Empty password are not allowed";
        return false;
    }
    if (!isUnlocked()) {
        qWarning() << operation << "Safe is locked:" << folder();
        return false;
    }
    return !isChangingPassword();
}

bool GPMSafe::changePassword(const QString &newPassword,
                             const std::function<void(int, int)> &progress)
{
    if (!mayChangePassword(newPassword))
        return false;
    // A meeting with the mirror holds the lock file, too.
    settle();
    return m_passwordChange.run(newPassword, progress);
}

bool GPMSafe::changePasswordAsync(const QString &newPassword, const QString &hint)
{
    if (!mayChangePassword(newPassword))
        return false;
    cancelMeeting();
    m_passwordChange.start(newPassword, hint);
    return true;
}

void GPMSafe::onPasswordChangeFinished(PasswordChangeOutcome outcome)
{
    // What had to wait goes on under the password that is in force now.
    if (std::exchange(m_saveWaits, false))
        saveChangesAsync();
    m_attachments.addWaiting();
    Q_EMIT passwordChangeFinished(outcome);
    if (m_lock.step == Lock::UnderWay)
        awaitWriter();
}

std::unique_ptr<ArchiveTask> GPMSafe::exportArchive(const QString &archivePath)
{
    return isOpen() ? makeExportTask(m_state, archivePath) : nullptr;
}

bool GPMSafe::isPassword(const QString &password) const
{
    return isUnlocked() && SecretBytes::fromText(password) == *m_state.password;
}

QString GPMSafe::id() const
{
    return QDir(folder()).dirName();
}

QDateTime GPMSafe::created() const
{
    return QDateTime::fromMSecsSinceEpoch(m_state.description.created, Qt::UTC);
}

QDateTime GPMSafe::modified() const
{
    return QDateTime::fromMSecsSinceEpoch(m_state.description.modified, Qt::UTC);
}

PMListItem *GPMSafe::addItem(std::unique_ptr<PMListItem> item)
{
    return isUnlocked() && item ? takeIn(std::move(item)) : nullptr;
}

PMListItem *GPMSafe::takeIn(std::unique_ptr<PMListItem> item)
{
    if (item->id().isEmpty())
        item->setId(QUuid::createUuid().toString(QUuid::WithoutBraces));
    if (m_state.items.item(item->id()))
        return nullptr;
    const QDateTime now = m_state.environment.clock();
    if (item->created().isNull())
        item->setCreated(now);
    if (item->modified().isNull())
        item->setModified(now);
    item->markChanged();
    PMListItem *added = m_state.items.add(std::move(item));
    if (isUnlocked())
        Q_EMIT itemAdded(added->id());
    return added;
}

void GPMSafe::touchItem(PMListItem &item)
{
    const qint64 time =
        nextModified(m_state.environment.clock().toMSecsSinceEpoch(),
                     item.modified().toMSecsSinceEpoch(), m_state.environment.random);
    item.setModified(QDateTime::fromMSecsSinceEpoch(time, Qt::UTC));
    item.markChanged();
}

bool GPMSafe::removeItems(const QStringList &ids)
{
    if (!isUnlocked() || isChangingPassword() || !commitDeleted(ids))
        return false;
    // A write still under way would bring the file back.
    waitForWriter();
    QStringList known;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(known),
                 [this](const QString &id) { return item(id) != nullptr; });
    const QSet<QString> left = removeItemFiles(*m_state.environment.files, m_state.folder, known);
    for (const QString &id : std::as_const(known)) {
        if (left.contains(id))
            continue;
        Q_EMIT itemAboutToBeRemoved(id);
        m_state.items.remove(id);
        Q_EMIT itemRemoved(id);
    }
    return left.isEmpty();
}

bool GPMSafe::commitDeleted(const QStringList &ids)
{
    const QMutexLocker locker(m_state.mutex.get());
    if (recordDeletedIds(*m_state.environment.files, m_state.folder.path(SafeLayout::deletedList),
                         ids))
        return true;
    qWarning() << "GPMSafe::commitDeleted"
               << "Can't commit delete info to 'deleted' list:"
               << m_state.folder.path(SafeLayout::deletedList);
    return false;
}

bool GPMSafe::meetMirror(const QString &mirrorFolder, const SyncRecord::Deletions &deleted)
{
    return isUnlocked() && !isChangingPassword() && m_meetings.start(mirrorFolder, deleted);
}

void GPMSafe::settle()
{
    waitForWriter();
    m_attachments.handOn();
    waitForWriter();
}

/// Who waits goes on from what a meeting has brought, and does not write over it unseen.
void GPMSafe::waitForWriter()
{
    cancelMeeting();
    m_state.writer.waitForDone();
    m_meetings.take();
    m_saving.take();
}
