#include "GPMAppCore.h"

#include "ArchiveMessages.h"
#include "PMItemFactory.h"

#include <QDebug>
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>

#include <algorithm>

namespace {

GPMAppCore::Places standardPlaces()
{
    GPMAppCore::Places places;
    places.configFolder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    places.dataFolder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    places.hiddenFolder =
        QDir::homePath() + QStringLiteral("/.") + QCoreApplication::applicationName();
    places.runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return places;
}

BrowserPlaces systemBrowsers(Platform &platform)
{
    BrowserPlaces places = BrowserPlaces::system([&platform](const QString &key) {
        return QString::fromStdString(platform.currentUserRegistryValue(key.toStdString(), {}));
    });
    places.isWindows = platform.windowsVersionCode() != 0;
    return places;
}

SafeEnvironment safeEnvironment(const GPMAppCore::Places &places)
{
    SafeEnvironment environment;
    environment.lookWaitMs = places.lookWaitMs;
    environment.draftsFolder = places.dataFolder + QStringLiteral("/drafts");
    return environment;
}

} // namespace

GPMAppCore::GPMAppCore(const Places &places, QObject *parent)
    : QObject(parent)
    , m_platform(Platform::create())
    , m_settings(places.configFolder, places.hiddenFolder)
    , m_linkSettings(places.configFolder + QStringLiteral("/browser.json"))
    , m_approvals(m_linkSettings)
    , m_siteIcons(m_linkSettings)
    , m_browsers(places.browsers ? *places.browsers : systemBrowsers(*m_platform))
    , m_knownSafes(m_settings, places.dataFolder + QStringLiteral("/safes"),
                   safeEnvironment(places))
    , m_trace(m_knownSafes)
    , m_backups(m_settings, m_knownSafes, places.hiddenFolder + QStringLiteral("/backup"))
    , m_cloud(
          m_knownSafes, [this] { return m_backups.folder(); }, places.cloudPauses)
    , m_cloudFolders(m_knownSafes, places.cloudInfoFiles)
    , m_privateFiles(PrivateFiles::places(places.runtimeFolder, places.dataFolder))
    , m_guard(
          m_settings, [this] { return m_safe && m_safe->isUnlocked(); }, places.activity())
    , m_port(places.port)
    , m_items([this] { return m_safe; })
    , m_loginSaving([this] { return m_safe; }, m_items, m_pageLogins,
                    places.configFolder + QStringLiteral("/excluded_sites.json"))
{
    connect(&m_items, &ItemChanges::message, this, &GPMAppCore::message);
    // What a run that did not end well left behind.
    m_privateFiles.wipe();
    m_clipboard.adoptOtherCopies([this] { return m_settings.clearClipboard(); });
    connect(this, &GPMAppCore::currentSafeChanged, &m_trace, [this] { m_trace.follow(m_safe); });
    connect(this, &GPMAppCore::requestLock, &m_trace, &OpenSafeTrace::beforeLock);
    connect(this, &GPMAppCore::currentSafeChanged, &m_cloud, [this] { m_cloud.setSafe(m_safe); });
    connect(this, &GPMAppCore::currentSafeChanged, &m_pageLogins,
            [this] { m_pageLogins.setSafe(m_safe); });
    connect(this, &GPMAppCore::safeLockedChanged, &m_loginSaving, [this](bool locked) {
        if (!locked)
            m_loginSaving.decideAgain();
    });
    connect(this, &GPMAppCore::currentSafeChanged, &m_siteIcons,
            [this] { m_siteIcons.setSafe(m_safe); });
    connect(this, &GPMAppCore::safeLockedChanged, &m_siteIcons, &SiteIconDesk::follow);
    connect(&m_loginSaving, &LoginSaving::siteIconWanted, &m_siteIcons, &SiteIconDesk::download);
    connect(&m_siteIcons, &SiteIconDesk::iconChanged, this, &GPMAppCore::onUpdateFavicons);
    connect(&m_settling, &SettlingSafes::saved, this, &GPMAppCore::tellSaveResult);
    startGuard();
}

GPMAppCore::~GPMAppCore()
{
    setSafe(nullptr);
}

GPMAppCore &GPMAppCore::instance()
{
    // Lives until the process ends: its sockets must not go after the application object.
    static GPMAppCore *core = new GPMAppCore(standardPlaces());
    return *core;
}

void GPMAppCore::startGuard()
{
    connect(&m_guard, &LockGuard::lockDue, this, &GPMAppCore::lockBecause);
    connect(&m_guardTimer, &QTimer::timeout, this, &GPMAppCore::checkInactivity);
    connect(&m_guardTimer, &QTimer::timeout, this, &GPMAppCore::checkScreenSaverRunning);
    connect(&m_guardTimer, &QTimer::timeout, this, &GPMAppCore::checkBackupJob);
    m_guard.setBackupCheck([this] {
        if (!m_safe || !m_safe->isChangingPassword())
            m_backups.check();
    });
    connect(&m_backups, &Backups::failed, this, &GPMAppCore::tellBackupFailures);
    m_guardTimer.start(LockGuard::checkMs);
}

void GPMAppCore::startWatching()
{
    m_sessionWatch = SessionWatch::create();
    connect(m_sessionWatch.get(), &SessionWatch::happened, &m_guard, &LockGuard::onSessionEvent);
    connect(m_sessionWatch.get(), &SessionWatch::awake, &m_guard, &LockGuard::checkSleep);
    m_hotkeys = std::make_unique<Hotkeys>(m_settings, SystemHotkeys::create());
    connect(m_hotkeys.get(), &Hotkeys::lockPressed, this, &GPMAppCore::lockCurrentSafe);
    connect(m_hotkeys.get(), &Hotkeys::pluginPressed, this, &GPMAppCore::openQuickAccess);
    connect(m_hotkeys.get(), &Hotkeys::taken, this, [this](const QString &combination) {
        Q_EMIT message(tr("Can't use the hotkey."),
                       tr("%1 is used by another program. Choose another combination in the "
                          "settings, or end that program and start this one anew.")
                           .arg(combination));
    });
    m_hotkeys->start();
}

bool GPMAppCore::createSafe(const QString &name, const QString &password, const QString &hint,
                            const QString &folder)
{
    const std::shared_ptr<GPMSafe> safe = m_knownSafes.create(name, password, hint, folder);
    if (!safe)
        return false;
    setSafe(safe);
    Q_EMIT safeLockedChanged(false);
    return true;
}

bool GPMAppCore::selectSafe(const QString &folder)
{
    if (m_safe && m_safe->folder() == folder)
        return true;
    const std::shared_ptr<GPMSafe> settling = m_settling.find(folder, m_knownSafes.facts());
    setSafe(settling ? settling : m_knownSafes.open(folder));
    return m_safe != nullptr;
}

std::shared_ptr<GPMSafe> GPMAppCore::heldSafe(const QString &folder) const
{
    if (m_safe && m_knownSafes.facts().isSame(m_safe->folder(), folder))
        return m_safe;
    return m_settling.find(folder, m_knownSafes.facts());
}

void GPMAppCore::setSafe(const std::shared_ptr<GPMSafe> &safe)
{
    if (m_safe == safe)
        return;
    lockCurrentSafe();
    m_lockReason.clear();
    if (m_safe) {
        m_safe->disconnect(this);
        m_settling.add(m_safe);
    }
    // One of its own signals may have led here.
    QMetaObject::invokeMethod(
        this, [former = m_safe] {}, Qt::QueuedConnection);
    m_safe = safe;
    m_settling.letGo(m_safe);
    if (m_safe) {
        connect(m_safe.get(), &GPMSafe::unlockProgress, this, &GPMAppCore::unlockProgress);
        connect(m_safe.get(), &GPMSafe::unlockFinished, this, [this](SafeUnlock::Outcome outcome) {
            if (outcome == SafeUnlock::Outcome::Unlocked)
                m_knownSafes.remember(m_safe->folder());
            Q_EMIT unlockFinished(outcome);
        });
        connect(m_safe.get(), &GPMSafe::lockedChanged, this, &GPMAppCore::safeLockedChanged);
        connect(m_safe.get(), &GPMSafe::lockSettled, this, &GPMAppCore::lockSettled);
        connect(m_safe.get(), &GPMSafe::lockFailed, this, &GPMAppCore::lockFailed);
        connect(m_safe.get(), &GPMSafe::saved, this, &GPMAppCore::tellSaveResult);
    }
    Q_EMIT currentSafeChanged();
}

void GPMAppCore::unlockCurrentSafe(const QString &password)
{
    if (m_safe)
        m_safe->unlockAsync(password, safeFacts().of(m_safe->folder()).mirrorFolder);
}

void GPMAppCore::cancelUnlock()
{
    Q_EMIT unlockCancelled();
    if (m_safe)
        m_safe->cancelUnlock();
}

bool GPMAppCore::changePassword(const QString &newPassword, const QString &hint)
{
    // It lets go of the safe soon; the change waits for that.
    m_backups.cancel();
    return m_safe && m_safe->changePasswordAsync(newPassword, hint);
}

bool GPMAppCore::saveCurrentSafe()
{
    return !m_safe || !m_safe->isUnlocked() || m_safe->saveChanges();
}

bool GPMAppCore::hasUnsavedChanges() const
{
    if (!m_safe)
        return false;
    const std::vector<PMListItem *> items = m_safe->items();
    return std::any_of(items.begin(), items.end(),
                       [](const PMListItem *item) { return item->isChanged(); });
}

std::unique_ptr<PMListItem> GPMAppCore::modelCreateItem(PMListItem::Type type) const
{
    return makeItem(type);
}

PMListItem *GPMAppCore::modelAddItem(std::unique_ptr<PMListItem> item)
{
    return m_items.add(std::move(item));
}

void GPMAppCore::modelItemChanged(const QString &itemId)
{
    m_items.changed(itemId);
}

void GPMAppCore::modelItemDeleted(const QString &itemId)
{
    m_items.setDeleted({itemId}, true);
}

void GPMAppCore::modelItemsDeleted(const QStringList &itemIds)
{
    m_items.setDeleted(itemIds, true);
}

void GPMAppCore::modelItemRestored(const QString &itemId)
{
    m_items.setDeleted({itemId}, false);
}

void GPMAppCore::modelItemsRestored(const QStringList &itemIds)
{
    m_items.setDeleted(itemIds, false);
}

void GPMAppCore::modelItemsMarked(const QStringList &itemIds, bool favorite)
{
    m_items.setFavorite(itemIds, favorite);
}

void GPMAppCore::modelItemPurged(const QString &itemId)
{
    m_items.purge({itemId});
}

void GPMAppCore::modelItemsPurged(const QStringList &itemIds)
{
    m_items.purge(itemIds);
}

void GPMAppCore::modelClearTrash()
{
    m_items.purge(trashedIds());
}

void GPMAppCore::modelRestoreAll()
{
    m_items.setDeleted(trashedIds(), false);
}

QStringList GPMAppCore::trashedIds() const
{
    return m_items.trashedIds();
}

QStringList GPMAppCore::attachmentsGoingWith(const QStringList &itemIds) const
{
    return m_items.attachmentsGoingWith(itemIds);
}

void GPMAppCore::importSafeArchive(const QString &archivePath)
{
    if (m_import)
        return;
    m_import = m_knownSafes.importArchive(archivePath);
    connect(m_import.get(), &ArchiveTask::progress, this, &GPMAppCore::importProgress);
    connect(m_import.get(), &ArchiveTask::finished, this, [this] {
        ArchiveTask *task = m_import.release();
        task->deleteLater(); // its own signal led here
        Q_EMIT importFinished(task->result());
    });
    m_import->start();
}

void GPMAppCore::cancelImport()
{
    if (m_import)
        m_import->cancel();
}

void GPMAppCore::tellBackupFailures(const QVector<BackupJob::Result> &results)
{
    QStringList lines;
    for (const BackupJob::Result &result : results)
        lines.append(tr("%1: %2").arg(result.name, exportMessage(result.outcome)));
    Q_EMIT message(tr("Can't back up."), tr("%1\n\nEarlier backups are left as they are, in:\n%2")
                                             .arg(lines.join(QLatin1Char('\n')),
                                                  QDir::toNativeSeparators(m_backups.folder())));
}

void GPMAppCore::exitPasswordManager()
{
    // They clear away what they have begun.
    m_import.reset();
    m_backups.stop();
    lockCurrentSafe();
    settleLocks();
    m_cloud.finish();
    m_knownSafes.facts().store();
    // What another program still held open when the safe was locked.
    m_privateFiles.wipe();
    Q_EMIT quitRequested();
}

void GPMAppCore::tellSaveResult(bool good, const QStringList &failedPaths)
{
    if (good)
        return;
    QStringList paths;
    for (const QString &path : failedPaths)
        paths.append(QDir::toNativeSeparators(path));
    Q_EMIT message(tr("Can't save changes."),
                   tr("These files could not be written; what they held before is still there. "
                      "Check the free space and the permissions, then save again:\n%1")
                       .arg(paths.join(QLatin1Char('\n'))));
}
