#include "GPMSafe.h"

#include "DeletedList.h"
#include "NewSafe.h"
#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeExport.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFutureWatcher>
#include <QLockFile>
#include <QMutexLocker>
#include <QSet>
#include <QUuid>
#include <QtConcurrent>

#include <chrono>
#include <future>
#include <utility>

GPMSafe::GPMSafe(SafeEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_environment(std::move(environment))
    , m_intake(m_writer,
               [this](AttachmentIntake::Arrival arrival) { takeAttachment(std::move(arrival)); })
    , m_drafts(m_environment)
{
    m_writer.setMaxThreadCount(1);
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
    if (!QDir(folder).exists()) {
        qWarning() << "GPMSafe::init"
                   << "Directory not found:" << folder;
        return false;
    }
    const SafeFolder newFolder(folder);
    if (newFolder.holdsSafe()) {
        qWarning() << "GPMSafe::init"
                   << "There is a safe already at:" << folder;
        return false;
    }
    if (password.isEmpty()) {
        qWarning() << "GPMSafe::init"
                   << "Invalid password data";
        return false;
    }

    const auto secret = std::make_shared<const SecretBytes>(SecretBytes::fromText(password));
    SafeDescription description;
    description.name = name;
    description.hint = hint;
    description.created = m_environment.clock().toMSecsSinceEpoch();
    description.modified = description.created;
    if (!writeNewSafe(m_environment, newFolder, description, secret->view())) {
        qWarning() << "GPMSafe::init"
                   << "Can't write the files of a new safe at:" << folder;
        return false;
    }
    m_folder = newFolder;
    m_description = description;
    m_password = secret;
    m_drafts.open(id(), m_password);
    Q_EMIT itemsReset();
    Q_EMIT lockedChanged(false);
    return true;
}

bool GPMSafe::open(const QString &folder)
{
    if (isOpen()) {
        qWarning() << "GPMSafe::open"
                   << "Safe already opened";
        return false;
    }
    if (!QDir(folder).exists()) {
        qWarning() << "GPMSafe::open"
                   << "Safe directory doesn't exists at location:" << folder;
        return false;
    }
    m_folder = SafeFolder(folder);
    if (readMetaFile())
        return true;
    m_folder = {};
    return false;
}

bool GPMSafe::readMetaFile()
{
    const QMutexLocker locker(m_mutex.get());
    const std::optional<SafeDescription> description =
        readDescription(*m_environment.files, folder());
    if (!description)
        return false;
    m_description = *description;
    return true;
}

bool GPMSafe::writeMetaFile(const QString &targetPath)
{
    const QByteArray json = m_description.toJson();
    const QMutexLocker locker(m_mutex.get());
    const bool written = targetPath.isEmpty()
                             ? writeDescription(*m_environment.files, folder(), json)
                             : m_environment.files->writeBytes(
                                   targetPath, json, QIODevice::WriteOnly | QIODevice::Text);
    if (!written)
        qWarning() << "GPMSafe::writeMetaFile"
                   << "Can't save safe meta file:"
                   << (targetPath.isEmpty() ? m_folder.path(SafeLayout::meta) : targetPath);
    return written;
}

bool GPMSafe::unlock(const QString &password)
{
    const std::unique_ptr<SafeUnlock> attempt = makeUnlock(password);
    if (!attempt)
        return false;
    const SafeUnlock::Outcome outcome = attempt->run();
    if (outcome == SafeUnlock::Outcome::Unlocked) {
        takeUnlocked(*attempt);
        return true;
    }
    logFailure(outcome);
    return false;
}

void GPMSafe::unlockAsync(const QString &password)
{
    m_unlock = makeUnlock(password);
    if (!m_unlock) {
        // Later, like every other answer.
        QTimer::singleShot(0, this,
                           [this] { Q_EMIT unlockFinished(SafeUnlock::Outcome::Unreadable); });
        return;
    }
    connect(m_unlock.get(), &SafeUnlock::progress, this, &GPMSafe::unlockProgress);
    connect(m_unlock.get(), &SafeUnlock::finished, this, &GPMSafe::onUnlockFinished);
    m_unlock->start();
}

void GPMSafe::cancelUnlock()
{
    if (m_unlock)
        m_unlock->cancel();
}

std::unique_ptr<SafeUnlock> GPMSafe::makeUnlock(const QString &password)
{
    if (password.isEmpty()) {
        qWarning() << "GPMSafe::unlock"
                   << "Empty password are not allowed";
        return nullptr;
    }
    if (!isOpen() || isUnlocked()) {
        qWarning() << "GPMSafe::unlock"
                   << "Safe is not open or unlocked already:" << folder();
        return nullptr;
    }
    std::optional<QByteArray> passId = m_environment.files->read(m_folder.path(SafeLayout::passId));
    if (!passId && !m_description.passId.isEmpty())
        passId = m_description.passId.toLatin1();
    if (!passId) {
        qWarning() << "GPMSafe::unlock"
                   << "Can't read pass id file:" << m_folder.path(SafeLayout::passId);
        return nullptr;
    }
    return std::make_unique<SafeUnlock>(
        m_environment, m_folder.path(SafeLayout::content), QString::fromLatin1(*passId),
        std::make_shared<const SecretBytes>(SecretBytes::fromText(password)));
}

void GPMSafe::logFailure(SafeUnlock::Outcome outcome) const
{
    if (outcome == SafeUnlock::Outcome::WrongPassword)
        qWarning() << "GPMSafe::unlock"
                   << "Pass id doesn't match specified password";
    else if (outcome == SafeUnlock::Outcome::Unreadable)
        qWarning() << "GPMSafe::unlock"
                   << "Can't read safe content directory:" << folder();
}

void GPMSafe::takeUnlocked(SafeUnlock &attempt)
{
    m_password = attempt.password();
    m_drafts.open(id(), m_password);
    m_unreadableFiles = attempt.items().unreadableFiles();
    m_items.exchange(attempt.items().takeEntries());
    for (const QString &name : std::as_const(m_unreadableFiles))
        qWarning() << "GPMSafe::unlock"
                   << "Can't read item file:" << m_folder.contentPath(ItemFileName::parse(name));
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
        logFailure(outcome);
    Q_EMIT unlockFinished(outcome);
}

void GPMSafe::lock()
{
    m_unlock.reset();
    waitForWriter();
    if (!isUnlocked())
        return;
    m_intake.handOn();
    waitForWriter();
    const SaveJob::Result result = makeSaveJob().run();
    m_items.markSaved(result.saved);
    keepUnsaved();
    if (!result.good())
        Q_EMIT saved(false, result.failedPaths);
    m_drafts.close();
    m_password.reset();
    m_unreadableFiles.clear();
    // Views let go of the items before these go.
    ItemStore::Entries items = m_items.exchange({});
    ++m_session;
    Q_EMIT itemsReset();
    items.clear();
    Q_EMIT lockedChanged(true);
}

void GPMSafe::keepUnsaved()
{
    // The folder of the safe may be gone, or full; that of the drafts lies elsewhere.
    const QVector<SaveJob::Item> unsaved = m_items.changed();
    for (const SaveJob::Item &item : unsaved) {
        const bool trashed = item.document.publicFields.value(QStringLiteral("deleted")).toBool();
        if (!trashed)
            m_drafts.keep(
                {DraftStore::newKey(), item.document, item.written.isNull(), item.written});
    }
}

bool GPMSafe::saveChanges()
{
    if (!isUnlocked())
        return false;
    waitForWriter();
    const SaveJob::Result result = makeSaveJob().run();
    m_items.markSaved(result.saved);
    return result.good();
}

void GPMSafe::saveChangesAsync()
{
    if (!isUnlocked())
        return;
    cancelMeeting();
    auto *watcher = new QFutureWatcher<SaveJob::Result>(this);
    const int session = m_session;
    connect(watcher, &QFutureWatcher<SaveJob::Result>::finished, this, [this, watcher, session] {
        watcher->deleteLater();
        const SaveJob::Result result = watcher->result();
        // After a lock there may be other objects of the same items, with revisions of their own.
        if (session == m_session)
            m_items.markSaved(result.saved);
        Q_EMIT saved(result.good(), result.failedPaths);
    });
    const SaveJob job = makeSaveJob();
    watcher->setFuture(QtConcurrent::run(&m_writer, [job] { return job.run(); }));
}

SaveJob GPMSafe::makeSaveJob()
{
    SaveJob job{m_environment, folder(), m_password, m_mutex, m_items.changed(), {}};
    if (!job.items.isEmpty())
        m_description.modified = m_environment.clock().toMSecsSinceEpoch();
    job.description = m_description.toJson();
    return job;
}

bool GPMSafe::changePassword(const QString &newPassword,
                             const std::function<void(int, int)> &progress)
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
    // A meeting with the mirror holds the lock file, too.
    waitForWriter();
    QLockFile lockFile(m_folder.path(SafeLayout::lockFile));
    // A long change is not stale; one whose process is gone is recognised by that.
    lockFile.setStaleLockTime(0);
    if (!lockFile.tryLock(m_environment.lockWaitMs)) {
        qWarning() << operation
                   << "Can't take the lock file:" << m_folder.path(SafeLayout::lockFile);
        return false;
    }
    waitForWriter();
    m_intake.handOn();
    waitForWriter();
    qDebug() << operation << "Starting password change, safe id:" << id() << " name:" << name();

    QVector<PasswordChange::Item> items = m_items.planPasswordChange(m_folder);
    if (!m_unreadableFiles.isEmpty() || !PasswordChange::isComplete(items, m_folder)) {
        // What does not open now would never open again under the new password.
        qWarning() << operation << "Some object are null, cancel action";
        return false;
    }
    const int total = items.size();
    const auto password = std::make_shared<const SecretBytes>(SecretBytes::fromText(newPassword));
    const QMutexLocker locker(m_mutex.get());
    PasswordChange change(m_environment, m_folder, m_password->view(), password->view(),
                          std::move(items));
    const auto report = [&](int done) { progress(done, total); };
    if (!m_drafts.prepareChange(password->view()))
        return false;
    if (!change.run(progress ? std::function<void(int)>(report) : nullptr)) {
        m_drafts.rollBackChange();
        return false;
    }
    m_drafts.commitChange(password);
    qDebug() << operation << "Write new items to the safe";
    m_items.takePasswordChange(change.items());
    change.removeOldFiles();
    m_password = password;
    return true;
}

std::unique_ptr<ArchiveTask> GPMSafe::exportArchive(const QString &archivePath)
{
    if (!isOpen())
        return nullptr;
    const auto saved = std::make_shared<std::promise<void>>();
    QtConcurrent::run(&m_writer, [saved] { saved->set_value(); });
    const std::shared_future<void> allSaved = saved->get_future().share();
    const SafeEnvironment environment = m_environment;
    const SafeFolder safeFolder = m_folder;
    return std::make_unique<ArchiveTask>([=](WorkControl &control) {
        while (allSaved.wait_for(std::chrono::milliseconds(100)) != std::future_status::ready) {
            if (control.isCancelled())
                return ArchiveResult{ArchiveResult::Outcome::Cancelled};
        }
        return exportSafe(environment, safeFolder, archivePath, control);
    });
}

bool GPMSafe::isPassword(const QString &password) const
{
    return isUnlocked() && SecretBytes::fromText(password) == *m_password;
}

QString GPMSafe::id() const
{
    return QDir(folder()).dirName();
}

QDateTime GPMSafe::created() const
{
    return QDateTime::fromMSecsSinceEpoch(m_description.created, Qt::UTC);
}

QDateTime GPMSafe::modified() const
{
    return QDateTime::fromMSecsSinceEpoch(m_description.modified, Qt::UTC);
}

PMListItem *GPMSafe::addItem(std::unique_ptr<PMListItem> item)
{
    if (!isUnlocked() || !item)
        return nullptr;
    if (item->id().isEmpty())
        item->setId(QUuid::createUuid().toString(QUuid::WithoutBraces));
    if (m_items.item(item->id()))
        return nullptr;
    const QDateTime now = m_environment.clock();
    if (item->created().isNull())
        item->setCreated(now);
    if (item->modified().isNull())
        item->setModified(now);
    item->markChanged();
    PMListItem *added = m_items.add(std::move(item));
    Q_EMIT itemAdded(added->id());
    return added;
}

bool GPMSafe::prepareAttachment(PMListItem &item) const
{
    if (!isUnlocked() || item.type() != PMListItem::Attachment)
        return false;
    if (item.id().isEmpty())
        item.setId(QUuid::createUuid().toString(QUuid::WithoutBraces));
    return !m_items.item(item.id());
}

PMListItem *GPMSafe::addAttachment(std::unique_ptr<PMListItem> item, QIODevice &bytes)
{
    if (!item || !prepareAttachment(*item))
        return nullptr;
    const QString target = m_folder.attachmentPath({item->id(), 0});
    const bool written = m_environment.files->write(target, [&](QIODevice &destination) {
        return cryptStream(m_password->view(), bytes, destination, CryptDirection::Encrypt,
                           m_environment.random);
    });
    if (!written) {
        qWarning() << "GPMSafe::addAttachment"
                   << "Can't save attachment to file:" << target;
        return nullptr;
    }
    item->setProperty("hash", fileHash(target));
    return addItem(std::move(item));
}

void GPMSafe::addAttachmentAsync(std::unique_ptr<PMListItem> item, const AttachmentSource &source,
                                 const QString &parentId)
{
    if (!item || !prepareAttachment(*item))
        return;
    cancelMeeting();
    const QString target = m_folder.attachmentPath({item->id(), 0});
    m_intake.add(std::move(item), parentId, {m_environment, target, m_password, source});
}

void GPMSafe::takeAttachment(AttachmentIntake::Arrival arrival)
{
    const AttachmentJob::Result result = arrival.result.result();
    const QString id = arrival.item->id();
    const QString title = arrival.item->title();
    if (result.fault == AttachmentFault::None) {
        arrival.item->setProperty("hash", result.hash);
        addItem(std::move(arrival.item));
        if (PMListItem *parent = m_items.item(arrival.parentId)) {
            parent->setRefs(parent->refs() + QStringList{id});
            touchItem(*parent);
        }
        saveChangesAsync();
    }
    Q_EMIT attachmentDone(id, title, result.fault);
}

bool GPMSafe::readAttachment(const QString &id, QIODevice &destination) const
{
    const std::optional<AttachmentReader> reader = attachmentReader(id);
    return reader && reader->read(destination);
}

std::optional<AttachmentReader> GPMSafe::attachmentReader(const QString &id) const
{
    const std::optional<ItemFileName> name = m_items.fileName(id);
    if (!name)
        return std::nullopt;
    return AttachmentReader(m_folder.attachmentPath(*name), m_password);
}

qint64 GPMSafe::attachmentSize(const QString &id) const
{
    const std::optional<ItemFileName> name = m_items.fileName(id);
    return name ? plainSize(m_folder.attachmentPath(*name)) : -1;
}

void GPMSafe::touchItem(PMListItem &item)
{
    item.setModified(m_environment.clock());
    item.markChanged();
}

bool GPMSafe::removeItems(const QStringList &ids)
{
    if (!isUnlocked() || !commitDeleted(ids))
        return false;
    // A write still under way would bring the file back.
    waitForWriter();
    const QHash<QString, QStringList> files = filesOf(ids);
    bool good = true;
    for (const QString &id : ids) {
        if (!m_items.item(id))
            continue;
        if (!removeFiles(files.value(id))) {
            good = false;
            continue;
        }
        Q_EMIT itemAboutToBeRemoved(id);
        m_items.remove(id);
        Q_EMIT itemRemoved(id);
    }
    return good;
}

QHash<QString, QStringList> GPMSafe::filesOf(const QStringList &ids) const
{
    // Every generation: one that an earlier change of password left could come to life again. The
    // folders are listed once, since each listing takes as long as there are items.
    const QSet<QString> wanted(ids.begin(), ids.end());
    QHash<QString, QStringList> files;
    for (const char *inner : {SafeLayout::content, SafeLayout::attachment}) {
        QDirIterator each(m_folder.path(inner), QDir::Files);
        while (each.hasNext()) {
            const QString path = each.next();
            const QString id = ItemFileName::parse(each.fileName()).id;
            if (wanted.contains(id))
                files[id].append(path);
        }
    }
    return files;
}

bool GPMSafe::removeFiles(const QStringList &paths)
{
    bool good = true;
    for (const QString &path : paths) {
        if (m_environment.files->remove(path))
            continue;
        qWarning() << "GPMSafe::removeItems"
                   << "Can't remove item file:" << path;
        good = false;
    }
    return good;
}

bool GPMSafe::commitDeleted(const QStringList &ids)
{
    const QMutexLocker locker(m_mutex.get());
    if (recordDeletedIds(*m_environment.files, m_folder.path(SafeLayout::deletedList), ids))
        return true;
    qWarning() << "GPMSafe::commitDeleted"
               << "Can't commit delete info to 'deleted' list:"
               << m_folder.path(SafeLayout::deletedList);
    return false;
}

bool GPMSafe::meetMirror(const QString &mirrorFolder, const QMap<QString, qint64> &deleted)
{
    if (!isUnlocked() || (m_meeting && !m_meeting->isTaken()))
        return false;
    // What the last one brought may just be told of.
    if (m_meeting)
        m_meeting.release()->deleteLater();
    m_meeting = std::make_unique<SyncMeeting>(
        m_writer, SyncRound({m_environment, m_folder, m_password, m_mutex, deleted}, mirrorFolder),
        [this](const SyncResult &result) { takeMeeting(result); });
    return true;
}

void GPMSafe::cancelMeeting()
{
    if (m_meeting)
        m_meeting->cancel();
}

/// Who waits goes on from what a meeting has brought, and does not write over it unseen.
void GPMSafe::waitForWriter()
{
    cancelMeeting();
    m_writer.waitForDone();
    if (m_meeting)
        m_meeting->take();
}

void GPMSafe::takeMeeting(const SyncResult &result)
{
    if (!isUnlocked())
        return;
    for (const SyncResult::Item &taken : result.taken)
        takeItem(taken);
    for (const QString &id : result.removed)
        dropItem(id);
    if (result.descriptionTaken)
        readMetaFile();
    Q_EMIT mirrorMet(result);
}

void GPMSafe::takeItem(const SyncResult::Item &taken)
{
    PMListItem *known = m_items.item(taken.name.id);
    if (known && known->isChanged()) {
        // Edited here meanwhile: that will be saved, and what came is kept beside it.
        m_items.setFileName(taken.name);
        std::unique_ptr<PMListItem> copy = taken.document.toItem();
        if (copy && copy->type() != PMListItem::Attachment) {
            copy->setId(QString());
            copy->setTitle(syncCopyTitle(copy->title(), copy->modified(), known->modified()));
            copy->setDeleted(true);
            addItem(std::move(copy));
        }
        saveChangesAsync();
        return;
    }
    if (known && taken.document.applyTo(*known)) {
        known->setId(taken.name.id);
        known->markSaved(known->revision());
        m_items.setFileName(taken.name);
        return;
    }
    std::unique_ptr<PMListItem> item = taken.document.toItem();
    if (known || !item)
        return;
    item->setId(taken.name.id);
    item->markSaved(item->revision());
    m_items.add(std::move(item));
    m_items.setFileName(taken.name);
    Q_EMIT itemAdded(taken.name.id);
}

void GPMSafe::dropItem(const QString &id)
{
    const PMListItem *item = m_items.item(id);
    // An edit that is not saved yet is later than the deletion.
    if (!item || item->isChanged())
        return;
    Q_EMIT itemAboutToBeRemoved(id);
    m_items.remove(id);
    Q_EMIT itemRemoved(id);
}
