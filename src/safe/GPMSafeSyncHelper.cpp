#include "GPMSafeSyncHelper.h"

#include "SafeCrypto.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QFileInfo>

#include <utility>

GPMSafeSyncHelper::GPMSafeSyncHelper(std::shared_ptr<GPMSafe> safe, const QString &mirrorFolder,
                                     const SafeEnvironment &environment, Pauses pauses,
                                     QObject *parent)
    : QObject(parent)
    , m_safe(std::move(safe))
    , m_mirrorFolder(mirrorFolder)
    , m_environment(environment)
    , m_pauses(pauses)
{
    m_burst.setSingleShot(true);
    m_again.setSingleShot(true);
    connect(&m_burst, &QTimer::timeout, this, &GPMSafeSyncHelper::synchronize);
    connect(&m_again, &QTimer::timeout, this, &GPMSafeSyncHelper::synchronize);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this,
            &GPMSafeSyncHelper::onMirrorChanged);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this,
            &GPMSafeSyncHelper::onMirrorChanged);
    connect(m_safe.get(), &GPMSafe::lockedChanged, this, &GPMSafeSyncHelper::onLockedChanged);
    connect(m_safe.get(), &GPMSafe::saved, this, &GPMSafeSyncHelper::synchronize);
    connect(m_safe.get(), &GPMSafe::mirrorMet, this, &GPMSafeSyncHelper::onFinished);
    connect(m_safe.get(), &GPMSafe::itemRemoved, this, &GPMSafeSyncHelper::onItemRemoved);
    if (m_safe->isUnlocked())
        onLockedChanged(false);
}

GPMSafeSyncHelper::~GPMSafeSyncHelper()
{
    m_safe->disconnect(this);
    pause();
}

bool GPMSafeSyncHelper::enableSynchronization(FileLayer &files, const QString &mirrorFolder)
{
    const SafeFolder mirror(mirrorFolder);
    if (files.makeFolder(mirror.path(SafeLayout::content)) &&
        files.makeFolder(mirror.path(SafeLayout::attachment)))
        return true;
    qWarning() << "GPMSafe::enableSynchronization"
               << "Can't create safe synchronization directory:" << mirrorFolder;
    return false;
}

void GPMSafeSyncHelper::synchronize()
{
    m_burst.stop();
    m_again.stop();
    if (!m_safe->isUnlocked())
        return;
    if (isRunning()) {
        m_onceMore = true;
        return;
    }
    m_onceMore = false;
    watch();
    m_told = m_deleted;
    m_isRunning = m_safe->meetMirror(m_mirrorFolder, m_told);
    if (m_isRunning)
        Q_EMIT started();
}

void GPMSafeSyncHelper::pause()
{
    m_burst.stop();
    m_again.stop();
    m_onceMore = false;
    m_safe->cancelMeeting();
    m_isRunning = false;
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
}

bool GPMSafeSyncHelper::opensMirror(const QString &password) const
{
    const auto passId =
        m_environment.files->read(SafeFolder(m_mirrorFolder).path(SafeLayout::passId));
    const SecretBytes secret = SecretBytes::fromText(password);
    return passId && checkPassId(secret.view(), QString::fromLatin1(*passId));
}

void GPMSafeSyncHelper::onLockedChanged(bool locked)
{
    if (locked) {
        pause();
        m_askedFor.clear();
    } else {
        synchronize();
    }
}

void GPMSafeSyncHelper::onMirrorChanged()
{
    if (m_safe->isUnlocked())
        m_burst.start(m_pauses.burstMs);
}

void GPMSafeSyncHelper::onItemRemoved(const QString &id)
{
    m_deleted.insert(id, m_environment.clock().toMSecsSinceEpoch());
    // Many may go at a time.
    m_burst.start(m_pauses.burstMs);
}

void GPMSafeSyncHelper::onFinished(const SyncResult &result)
{
    m_isRunning = false;
    m_last = summaryOf(result);
    if (result.state == SyncState::Done || result.state == SyncState::Waiting) {
        m_lastMet = m_last.time;
        for (auto told = m_told.begin(); told != m_told.end(); ++told) {
            if (m_deleted.value(told.key()) == told.value())
                m_deleted.remove(told.key());
        }
    }
    // Those that the meeting removed were told of by the mirror.
    for (const QString &id : result.removed)
        m_deleted.remove(id);
    if (result.state == SyncState::NewPasswordNeeded)
        askForPassword();
    m_again.start(m_pauses.againMs);
    Q_EMIT synchronized(result.state);
    if (m_onceMore || result.state == SyncState::Cancelled)
        QTimer::singleShot(0, this, &GPMSafeSyncHelper::synchronize);
}

SyncSummary GPMSafeSyncHelper::summaryOf(const SyncResult &result) const
{
    SyncSummary summary{result.state,
                        m_environment.clock(),
                        result.received,
                        result.sent,
                        result.removed.size(),
                        result.copies,
                        {}};
    for (const QString &id : result.waiting) {
        const PMListItem *item = m_safe->item(id);
        summary.waiting.append(item ? item->title() : id);
    }
    return summary;
}

void GPMSafeSyncHelper::watch()
{
    const SafeFolder mirror(m_mirrorFolder);
    const QStringList watched = m_watcher.directories();
    for (const QString &folder :
         {mirror.root(), mirror.path(SafeLayout::content), mirror.path(SafeLayout::attachment)}) {
        if (!watched.contains(folder) && QFileInfo(folder).isDir())
            m_watcher.addPath(folder);
    }
}

void GPMSafeSyncHelper::askForPassword()
{
    const QByteArray passId =
        m_environment.files->read(SafeFolder(m_mirrorFolder).path(SafeLayout::passId))
            .value_or(QByteArray());
    if (passId == m_askedFor)
        return;
    m_askedFor = passId;
    Q_EMIT newPasswordNeeded();
}
