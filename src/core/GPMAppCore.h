#pragma once

#include "ActivitySource.h"
#include "ArchiveTask.h"
#include "Backups.h"
#include "BrowserLink.h"
#include "BrowserWatch.h"
#include "ClipboardKeeper.h"
#include "CloudFolders.h"
#include "CloudSync.h"
#include "EventGate.h"
#include "GPMAppSettings.h"
#include "Hotkeys.h"
#include "ItemChanges.h"
#include "KnownSafes.h"
#include "LinkSettings.h"
#include "LinkState.h"
#include "LockGuard.h"
#include "LoginSaving.h"
#include "OpenSafeTrace.h"
#include "OriginApprovals.h"
#include "PageLogins.h"
#include "Platform.h"
#include "PrivateFiles.h"
#include "SessionWatch.h"
#include "SettlingSafes.h"
#include "SiteIconDesk.h"

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

/// The application's controller: owns the current safe, the browser link and the settings, and
/// hands each command on to the part that does the work.
class GPMAppCore : public QObject
{
    Q_OBJECT

public:
    /// Where the program keeps its files and listens, and whom it asks about the user.
    struct Places
    {
        QString configFolder;       ///< "config.json"
        QString dataFolder;         ///< new safes, in its folder "safes"
        QString hiddenFolder;       ///< log and backups
        quint16 port = 7899;        ///< of the browser link on 127.0.0.1
        QString runtimeFolder = {}; ///< for files that end with the session; may be empty
        std::function<std::unique_ptr<UserActivity>()> activity = &makeUserActivity;
        QStringList cloudInfoFiles = providerInfoFiles(); ///< where the cloud folder is told of
        GPMSafeSyncHelper::Pauses cloudPauses = {};
        std::optional<BrowserPlaces> browsers = {}; ///< those of the system when left out
        int lookWaitMs = SafeEnvironment().lookWaitMs;
    };

    explicit GPMAppCore(const Places &places, QObject *parent = nullptr);
    ~GPMAppCore() override;

    /// The program's own core, made on first use with the standard places of the system.
    static GPMAppCore &instance();

    /// Brings up the link to the browser extension. A port that is taken is logged and leaves the
    /// program without the link. Once, before the first command on an item.
    void startServer();

    /// Registers the hotkeys and listens to what happens to the user's session. Once, when the
    /// signals are connected.
    void startWatching();

    GPMAppSettings &settings() { return m_settings; }
    KnownSafes &knownSafes() { return m_knownSafes; }
    /// What this computer remembers of each safe.
    SafeFacts &safeFacts() { return m_knownSafes.facts(); }
    ClipboardKeeper &clipboard() { return m_clipboard; }
    Platform &platform() { return *m_platform; }
    /// Copies of attachments for other programs; wiped when the safe locks and at the end.
    PrivateFiles &privateFiles() { return m_privateFiles; }
    LockGuard &guard() { return m_guard; }
    Backups &backups() { return m_backups; }
    /// Keeps safes alike to their copies in a cloud folder.
    CloudSync &cloud() { return m_cloud; }
    CloudFolders &cloudFolders() { return m_cloudFolders; }
    /// Which logins belong to a page.
    PageLogins &pageLogins() { return m_pageLogins; }
    /// Offers to save what the user types into pages.
    LoginSaving &loginSaving() { return m_loginSaving; }

    /// The browsers of this computer.
    BrowserWatch &browsers() { return m_browsers; }
    /// Fetches the icons of web sites.
    SiteIconDesk &siteIcons() { return m_siteIcons; }
    /// What the user decided about browsers.
    LinkSettings &linkSettings() { return m_linkSettings; }
    /// Which extensions may connect besides the known ones.
    OriginApprovals &approvals() { return m_approvals; }

    /// Why the safe was locked, for the user; empty when the user did it or none was open.
    const QString &lockReason() const { return m_lockReason; }

    /// The open safe, locked or not; null while none is chosen.
    const std::shared_ptr<GPMSafe> &currentSafe() const { return m_safe; }

    /// The object of the safe of a folder while there is one: the current safe, or one that was
    /// locked and still saves.
    std::shared_ptr<GPMSafe> heldSafe(const QString &folder) const;

    /// Whether a browser's extension is connected, which can be asked to fill.
    bool hasExtension() const { return m_link && m_link->hasExtension(); }
    /// For which browsers the connected extension was built; empty while none is.
    QString extensionBundle() const
    {
        return hasExtension() ? m_link->server().extensionBundleId() : QString();
    }

    /// Makes a safe and opens it. False, with nothing left behind, when it cannot be made.
    /// @param folder an empty or a new one; one in the standard place when it is left out
    bool createSafe(const QString &name, const QString &password, const QString &hint,
                    const QString &folder = {});

    /// Makes the safe of a folder the current one, locked. False when there is none; then none is
    /// the current one.
    bool selectSafe(const QString &folder);

    /// A new item of the kind, not yet in the safe; none for an unknown kind.
    std::unique_ptr<PMListItem> modelCreateItem(PMListItem::Type type) const;
    /// Takes a new item into the safe and saves; null when the safe is locked.
    PMListItem *modelAddItem(std::unique_ptr<PMListItem> item);

    /// Starts to change the password of the open safe, and stops a backup for that; progress and
    /// end are told by the safe. False when it cannot begin.
    bool changePassword(const QString &newPassword, const QString &hint);

    /// Writes what is changed, now. False when something could not be written: it stays marked as
    /// changed, and no message is sent. True when there is nothing to write.
    bool saveCurrentSafe();

    /// Whether something changed is not on the disk, as after a save that failed.
    bool hasUnsavedChanges() const;

    /// Loses what is not saved when the safe locks next, as the user has decided.
    void giveUpChanges();

    /// The items in the trash.
    QStringList trashedIds() const;
    /// The attachments that go with items when these are deleted for good: those that no other item
    /// refers to.
    QStringList attachmentsGoingWith(const QStringList &itemIds) const;

    /// Keeps and saves what there is, as the session is about to end; the safe stays open, since
    /// that can still be called off.
    void prepareForSessionEnd();

public Q_SLOTS:
    /// Starts to unlock the current safe; unlockProgress() and unlockFinished() follow.
    void unlockCurrentSafe(const QString &password);
    void cancelUnlock();
    void lockCurrentSafe();
    /// The same for a user who can be asked: GPMSafe::lockFailed() asks about what cannot be saved.
    void lockForUser();
    /// Waits until locked safes have saved what they still had, as the program is about to end.
    /// Not for a drive that does not answer.
    void settleLocks();

    /// Made once a second, in this order.
    void checkInactivity() { m_guard.checkInactivity(); }
    void checkScreenSaverRunning() { m_guard.checkScreenSaverRunning(); }
    void checkBackupJob() { m_guard.checkBackupJob(); }

    void doItemDefaultAction(const QString &itemId, const QString &callerId, const QString &option);
    void doLoginDefaultAction(const QString &itemId, const QString &callerId,
                              const QString &option);
    void doCreditCardDefaultAction(const QString &itemId, const QString &callerId,
                                   const QString &option);
    void doIdentityDefaultAction(const QString &itemId, const QString &callerId,
                                 const QString &option);
    void placePasswordValue(const QString &password);
    void parsePluginReplay(const QString &callerId, const QJsonObject &data);
    void fillLoginPage(const QString &callerId, const QJsonObject &data);
    void saveLogin(const QString &callerId, const QJsonObject &data);
    void fillSaveLoginParams(QString &siteTitle, QMap<QString, QString> &candidates) const;
    void onHello(const QString &callerId, const QString &version, const QString &bundleId);

    /// Another icon is there for the logins of a domain.
    void onUpdateFavicons(const QString &domain) { Q_EMIT siteIconChanged(domain); }

    /// The item's fields were edited: sets its time of change and saves.
    void modelItemChanged(const QString &itemId);
    /// The item was used outside a browser, as when its password was copied.
    void modelItemUsed(const QString &itemId) { m_items.countUse(itemId); }
    /// Moves an item to the trash, or back.
    void modelItemDeleted(const QString &itemId);
    void modelItemRestored(const QString &itemId);
    /// The same for many at once, with one save.
    void modelItemsDeleted(const QStringList &itemIds);
    void modelItemsRestored(const QStringList &itemIds);
    /// Makes items favourites, or no longer so.
    void modelItemsMarked(const QStringList &itemIds, bool favorite);
    /// Deletes items for good.
    void modelItemPurged(const QString &itemId);
    void modelItemsPurged(const QStringList &itemIds);
    /// Deletes everything in the trash for good.
    void modelClearTrash();
    /// Takes everything out of the trash.
    void modelRestoreAll();

    /// Starts to make a safe from an archive; importProgress() and importFinished() follow. A call
    /// while one runs is ignored.
    void importSafeArchive(const QString &archivePath);
    void cancelImport();

    /// Meets the mirror of the current safe now, if it has one.
    void syncCurrentSafeSource() { m_cloud.synchronize(); }

    /// Brings quick access up for the user, who is in another program.
    void openQuickAccess();

    /// The user clicked the tray icon, or chose its first entry.
    void onSystrayIconActivated() { Q_EMIT requestShowMainWindow({}); }

    void exitPasswordManager();

Q_SIGNALS:
    /// Another safe, or none, is the current one.
    void currentSafeChanged();
    void unlockProgress(int done, int total);
    void unlockFinished(SafeUnlock::Outcome outcome);
    /// Who is about to unlock the safe shall not.
    void unlockCancelled();
    void safeLockedChanged(bool locked);
    /// The current safe, locked before, is done with what it still had to save.
    void lockSettled();
    /// See GPMSafe::lockFailed().
    void lockFailed();
    void siteIconChanged(const QString &domain);
    void importProgress(qint64 done, qint64 total);
    /// `path` of the result is the folder of the new safe, which is known and locked.
    void importFinished(const ArchiveResult &result);
    /// The safe is about to be locked; it is still open.
    void requestLock();
    /// What is being edited is to be kept now.
    void requestKeepDraft();
    /// What is not saved is to be lost, and so is what was kept of it.
    void changesGivenUp();
    /// The main window is to come to the front; the address is that of the browser's page, if any.
    void requestShowMainWindow(const QString &url);
    void requestQuickAccess(const QuickAccessWish &wish);
    /// The page that the user saw when quick access was opened without one.
    void quickAccessPageFound(const QString &url);
    /// Something that the user has to know.
    void message(const QString &title, const QString &text);
    /// An address to be opened in the default browser.
    void openAddress(const QUrl &url);
    void quitRequested();

private:
    void setSafe(const std::shared_ptr<GPMSafe> &safe);
    void startGuard();
    void lockBecause(LockReason reason);
    void lockSafe(LockReason reason, GPMSafe::Unsaved unsaved);
    void tellBackupFailures(const QVector<BackupJob::Result> &results);
    void tellSaveResult(bool good, const QStringList &failedPaths);

    std::unique_ptr<Platform> m_platform;
    GPMAppSettings m_settings;
    LinkSettings m_linkSettings;
    OriginApprovals m_approvals;
    SiteIconDesk m_siteIcons;
    BrowserWatch m_browsers;
    KnownSafes m_knownSafes;
    OpenSafeTrace m_trace;
    Backups m_backups;
    CloudSync m_cloud;
    CloudFolders m_cloudFolders;
    std::unique_ptr<ArchiveTask> m_import;
    ClipboardKeeper m_clipboard;
    PrivateFiles m_privateFiles;
    LockGuard m_guard;
    QTimer m_guardTimer;
    EventGate m_eventGate{[this] { m_guard.checkSleep(); }};
    std::unique_ptr<Hotkeys> m_hotkeys;
    std::unique_ptr<SessionWatch> m_sessionWatch;
    QString m_lockReason;
    quint16 m_port;
    ItemChanges m_items;
    PageLogins m_pageLogins;
    LoginSaving m_loginSaving;
    std::unique_ptr<BrowserLink> m_link;
    std::unique_ptr<LinkState> m_linkState;
    SettlingSafes m_settling;
    std::shared_ptr<GPMSafe> m_safe;
};
