#pragma once

#include "CloudNews.h"
#include "CloudRemoval.h"
#include "CloudStatus.h"
#include "GPMSafeSyncHelper.h"
#include "KnownSafes.h"
#include "MirrorChoice.h"
#include "SafeFacts.h"

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>

/// Keeps safes alike to their copies in a folder that other computers share: turns that on and
/// off, meets the mirror of the current safe, and knows how it stands with each.
class CloudSync : public QObject
{
    Q_OBJECT

public:
    /// @param backupFolder where backups go, which no mirror may lie in
    CloudSync(KnownSafes &safes, std::function<QString()> backupFolder,
              GPMSafeSyncHelper::Pauses pauses = {}, QObject *parent = nullptr);
    /// Waits until what is being removed is gone.
    ~CloudSync() override;

    /// The safe that is kept alike while it is unlocked; null for none.
    void setSafe(const std::shared_ptr<GPMSafe> &safe);

    CloudStatus status(const QString &safeFolder) const;
    /// That of the current safe.
    CloudStatus status() const;

    /// Begins to mirror a safe into a folder that is shared with other computers; turnedOn()
    /// follows. A mirror of the same safe that is there is joined. The safe may be locked.
    void turnOn(const QString &safeFolder, const QString &sharedFolder);
    /// The same with a mirror that is known to be that of the safe.
    void join(const QString &safeFolder, const QString &mirrorFolder);

    /// Stops mirroring a safe. Its copy in the cloud folder stays, or is removed behind this, if
    /// need be with the next start of the program; copyRemoved() tells then.
    void turnOff(const QString &safeFolder, bool removeCopy);

    /// Waits until what is being removed is gone, as before the program ends; not for ever.
    void finish();

    /// Meets the mirror of the current safe, if it has one.
    void synchronize();

    /// Whether the password of the current safe was changed on another computer, and not given yet.
    bool needsPassword() const;

    enum class Taking {
        Taken,
        Wrong,      ///< it does not open the mirror
        NotChanged, ///< the safe could not be encrypted anew; it is as it was
        Busy,       ///< it is being backed up or archived
        NotNeeded,  ///< the safe was locked, or has the password already
    };
    /// Gives the current safe the password that its mirror has, and goes on; passwordTaken()
    /// follows, and passwordProgress() before.
    void takePassword(const QString &password);

Q_SIGNALS:
    /// What status() says of the safe of a folder has changed.
    void statusChanged(const QString &safeFolder);
    /// Synchronising a safe was turned on, or not because of a fault.
    void turnedOn(const QString &safeFolder, const MirrorChoice &choice);
    void turnedOff(const QString &safeFolder);
    void copyRemoved(const QString &mirrorFolder, bool good);
    /// Items of the current safe came from the mirror, or have gone as they were deleted elsewhere.
    /// Once for all that come together.
    void itemsCame(int received, int removed);
    /// The current safe needs the password that its mirror has. Once for each.
    void passwordNeeded();
    void passwordProgress(int done, int total);
    void passwordTaken(CloudSync::Taking result);
    /// Something is in the way that the user has to know of. Once until it is over.
    void troubled(const CloudStatus &status);

private:
    struct Mirrored
    {
        QString safe;
        QString mirror;
    };

    template <typename Result>
    void work(const std::function<Result()> &job, const std::function<void(const Result &)> &then);
    QVector<Mirrored> mirrorsOfOthers(const QString &safeFolder) const;
    bool isCurrent(const QString &safeFolder) const;
    void startHelper();
    void stopHelper();
    void onFactsChanged(const QString &safeFolder);
    void onLockedChanged(bool locked);
    void onStarted();
    void onProgress(int done, int total);
    void onMet(SyncState state);
    void noteMeeting(int afterSeconds);
    void tellTrouble();
    void tellChange();
    void removeWhenMet(const QString &safeFolder);
    void changePassword(const SecretBytes &password);
    void onPasswordChanged(PasswordChangeOutcome outcome);

    FileLayer &files() const { return *m_environment.files; }

    KnownSafes &m_safes;
    SafeFacts &m_facts;
    SafeEnvironment m_environment;
    std::function<QString()> m_backupFolder;
    GPMSafeSyncHelper::Pauses m_pauses;
    std::shared_ptr<GPMSafe> m_safe;
    std::unique_ptr<GPMSafeSyncHelper> m_helper; ///< while the safe is mirrored
    QString m_mirrorFolder;
    int m_done = 0;
    int m_total = 0;
    bool m_isTaking = false;                                      ///< a password
    CloudStatus::State m_told = CloudStatus::State::Synchronised; ///< the last trouble
    QThreadPool m_worker; ///< one thread, so that what is asked for keeps its order
    CloudRemoval m_removal;
    CloudNews m_news;
};

Q_DECLARE_METATYPE(CloudSync::Taking)
