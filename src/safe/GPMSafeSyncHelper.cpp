#include "GPMSafeSyncHelper.h"

#include "SafeLayout.h"
#include "SyncMirror.h"

#include <QDebug>

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
    connect(&m_watch, &FolderWatch::changed, this, &GPMSafeSyncHelper::onMirrorChanged);
    connect(m_safe.get(), &GPMSafe::lockedChanged, this, &GPMSafeSyncHelper::onLockedChanged);
    connect(m_safe.get(), &GPMSafe::saved, this, &GPMSafeSyncHelper::synchronize);
    connect(m_safe.get(), &GPMSafe::passwordChangeFinished, this, &GPMSafeSyncHelper::synchronize);
    connect(m_safe.get(), &GPMSafe::mirrorMet, this, &GPMSafeSyncHelper::onFinished);
    connect(m_safe.get(), &GPMSafe::meetingProgress, this, &GPMSafeSyncHelper::progress);
    connect(m_safe.get(), &GPMSafe::itemAboutToBeRemoved, this, &GPMSafeSyncHelper::onItemRemoved);
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
    return SyncMirror::enableSynchronization(files, mirrorFolder);
}

void GPMSafeSyncHelper::synchronize()
{
    m_burst.stop();
    m_again.stop();
    m_isPaused = false;
    if (!m_safe->isUnlocked())
        return;
    if (m_isRunning) {
        m_onceMore = true;
        return;
    }
    m_onceMore = false;
    const SafeFolder mirror(m_mirrorFolder);
    m_watch.watch(
        {mirror.root(), mirror.path(SafeLayout::content), mirror.path(SafeLayout::attachment)});
    m_told = m_deleted;
    m_isRunning = m_safe->meetMirror(m_mirrorFolder, m_told);
    const bool isFirstPart = m_counted.time.isNull();
    m_counted.time = m_environment.clock();
    if (m_isRunning && isFirstPart)
        Q_EMIT started();
}

void GPMSafeSyncHelper::pause()
{
    m_burst.stop();
    m_again.stop();
    m_isPaused = true;
    m_onceMore = false;
    m_counted = {};
    m_safe->cancelMeeting();
    m_watch.stop();
}

void GPMSafeSyncHelper::onLockedChanged(bool locked)
{
    if (locked) {
        pause();
        m_isRunning = false;
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
    const PMListItem *item = m_safe->item(id);
    const qint64 version = item ? item->modified().toMSecsSinceEpoch() : 0;
    m_deleted.insert(id, {m_environment.clock().toMSecsSinceEpoch(), 0, {version}});
    // Many may go at a time.
    if (!m_isPaused)
        m_burst.start(m_pauses.burstMs);
}

bool GPMSafeSyncHelper::goesOn(const SyncResult &result) const
{
    return !m_isPaused && m_safe->isUnlocked() &&
           (m_onceMore || result.state == SyncState::Cancelled);
}

void GPMSafeSyncHelper::onFinished(const SyncResult &result)
{
    m_isRunning = false;
    if (result.state == SyncState::Done || result.state == SyncState::Waiting) {
        for (auto told = m_told.begin(); told != m_told.end(); ++told) {
            if (m_deleted.value(told.key()) == told.value())
                m_deleted.remove(told.key());
        }
    }
    // Those that the meeting removed were told of by the mirror.
    for (const QString &id : result.removed)
        m_deleted.remove(id);
    count(result);
    if (result.state == SyncState::Cancelled) {
        if (goesOn(result))
            QTimer::singleShot(0, this, &GPMSafeSyncHelper::synchronize);
        return;
    }
    m_last = std::exchange(m_counted, {});
    if (m_last.state == SyncState::Done || m_last.state == SyncState::Waiting)
        m_lastMet = m_last.time;
    if (result.state == SyncState::NewPasswordNeeded)
        askForPassword(result.otherPassId);
    if (!m_isPaused)
        m_again.start(m_pauses.againMs);
    Q_EMIT synchronized(result.state);
    if (goesOn(result))
        QTimer::singleShot(0, this, &GPMSafeSyncHelper::synchronize);
}

void GPMSafeSyncHelper::count(const SyncResult &result)
{
    m_counted.state = result.state;
    m_counted.time = m_environment.clock();
    m_counted.received += result.received;
    m_counted.sent += result.sent;
    m_counted.removed += result.removed.size();
    m_counted.copies += result.copies;
    m_counted.waiting.clear();
    for (const QString &id : result.waiting) {
        const PMListItem *item = m_safe->item(id);
        m_counted.waiting.append(item ? item->title() : id);
    }
}

void GPMSafeSyncHelper::askForPassword(const QByteArray &passId)
{
    if (passId == m_askedFor)
        return;
    m_askedFor = passId;
    Q_EMIT newPasswordNeeded();
}
