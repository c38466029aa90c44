#include "GPMSafe.h"

#include "DeletedList.h"
#include "ExportTask.h"
#include "ItemRemoval.h"
#include "ItemTimes.h"
#include "NewSafe.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QMutexLocker>
#include <QTimer>
#include <QUuid>

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
    m_drafts.open(id(), m_state.password);
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

bool GPMSafe::unlock(const QString &password)
{
    if (!canUnlock())
        return false;
    const std::unique_ptr<SafeUnlock> attempt =
        SafeUnlock::make(m_state.environment, m_state.folder, m_state.description, password);
    if (!attempt)
        return false;
    const SafeUnlock::Outcome outcome = attempt->run();
    if (outcome == SafeUnlock::Outcome::Unlocked) {
        takeUnlocked(*attempt);
        return true;
    }
    SafeUnlock::logFailure(outcome, m_state.folder);
    return false;
}

void GPMSafe::unlockAsync(const QString &password, const QString &mirrorFolder)
{
    m_unlock = canUnlock() ? SafeUnlock::make(m_state.environment, m_state.folder,
                                              m_state.description, password)
                           : nullptr;
    if (!m_unlock) {
        // Later, like every other answer.
        QTimer::singleShot(0, this,
                           [this] { Q_EMIT unlockFinished(SafeUnlock::Outcome::Unreadable); });
        return;
    }
    m_unlock->setMirror(mirrorFolder);
    connect(m_unlock.get(), &SafeUnlock::progress, this, &GPMSafe::unlockProgress);
    connect(m_unlock.get(), &SafeUnlock::finished, this, &GPMSafe::onUnlockFinished);
    m_unlock->start();
}

void GPMSafe::cancelUnlock()
{
    if (m_unlock)
        m_unlock->cancel();
}

bool GPMSafe::canUnlock() const
{
    if (isOpen() && !isUnlocked())
        return true;
    qWarning() << "GPMSafe::unlock"
               << "Safe is not open or unlocked already:" << folder();
    return false;
}

void GPMSafe::takeUnlocked(SafeUnlock &attempt)
{
    m_state.password = attempt.password();
    m_drafts.open(id(), m_state.password);
    m_state.unreadableFiles = attempt.items().unreadableFiles();
    FileLayer &files = *m_state.environment.files;
    const auto former = files.read(m_state.folder.path(SafeLayout::passIdBackup));
    m_state.changeInterrupted = attempt.items().looksInterrupted() && former &&
                                former != files.read(m_state.folder.path(SafeLayout::passId));
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

void GPMSafe::lock()
{
    m_unlock.reset();
    m_passwordChange.stop();
    waitForWriter();
    if (!isUnlocked())
        return;
    settle();
    SaveJob::Result result;
    if (!std::exchange(m_givesUp, false)) {
        result = m_saving.saveNow();
        m_saving.keepUnsaved(m_drafts);
    }
    m_savedAtLock = result.good();
    m_drafts.close();
    m_state.password.reset();
    m_state.unreadableFiles.clear();
    // Views let go of the items before these go.
    ItemStore::Entries items = m_state.items.exchange({});
    ++m_state.session;
    Q_EMIT itemsReset();
    items.clear();
    Q_EMIT lockedChanged(true);
    // Who is told of it finds the safe locked.
    if (!result.good())
        Q_EMIT saved(false, result.failedPaths);
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
    if (!isUnlocked())
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
    if (!isUnlocked() || !item)
        return nullptr;
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
    return !isChangingPassword() && m_meetings.start(mirrorFolder, deleted);
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
}
