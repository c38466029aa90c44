#pragma once

#include "FolderWatch.h"
#include "GPMSafe.h"
#include "SyncRound.h"
#include "SyncSummary.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <memory>

/// Keeps a safe and its mirror alike while the safe is unlocked: meets the mirror when the safe is
/// unlocked, after every save and deletion, whenever the watched mirror changes, and once in a
/// while. Lives on the GUI thread; a meeting runs on the safe's writer, and gives way to everything
/// else that wants to write.
class GPMSafeSyncHelper : public QObject
{
    Q_OBJECT

public:
    struct Pauses
    {
        int burstMs = 2000;  ///< of quiet before the mirror is looked at after a change
        int againMs = 60000; ///< until it is looked at without one
    };

    /// @param mirrorFolder of this safe alone; see enableSynchronization()
    GPMSafeSyncHelper(std::shared_ptr<GPMSafe> safe, const QString &mirrorFolder,
                      const SafeEnvironment &environment, Pauses pauses, QObject *parent = nullptr);
    /// Stops a meeting under way; the next one goes on from there.
    ~GPMSafeSyncHelper() override;

    /// Makes the mirror's folders where they are not there. False, logged, when that fails.
    static bool enableSynchronization(FileLayer &files, const QString &mirrorFolder);

    /// Meets the mirror now, or at once after the meeting under way. Nothing while the safe is
    /// locked. To be called, too, once the safe has the password that was asked for.
    void synchronize();
    /// Stops a meeting under way and looks at the mirror no more until synchronize().
    void pause();

    bool isRunning() const { return m_isRunning && !m_isPaused; }
    /// What came of the last meeting.
    SyncState state() const { return m_last.state; }
    const SyncSummary &last() const { return m_last; }
    /// When both sides last met, whether or not a file still waits; null when they did not since
    /// this helper is there.
    QDateTime lastMet() const { return m_lastMet; }

Q_SIGNALS:
    /// A meeting begins; synchronized() follows, unless pause() comes first. One that brings much,
    /// or gives way to who saves, goes on in several parts and counts as one.
    void started();
    /// How far the meeting under way is, counted in items that may differ.
    void progress(int done, int total);
    /// After each meeting, when the safe's items are those that it brought.
    void synchronized(SyncState state);
    /// Once for every new password of the mirror.
    void newPasswordNeeded();

private:
    void onLockedChanged(bool locked);
    void onMirrorChanged();
    void onItemRemoved(const QString &id);
    void onFinished(const SyncResult &result);
    bool goesOn(const SyncResult &result) const;
    void count(const SyncResult &result);
    void askForPassword(const QByteArray &passId);

    std::shared_ptr<GPMSafe> m_safe;
    QString m_mirrorFolder;
    SafeEnvironment m_environment;
    Pauses m_pauses;
    FolderWatch m_watch;
    QTimer m_burst;
    QTimer m_again;
    SyncRecord::Deletions m_deleted; ///< since the last meeting that ended well
    SyncRecord::Deletions m_told;    ///< those that the meeting under way knows
    QByteArray m_askedFor;           ///< pass id of the mirror
    bool m_isRunning = false;
    bool m_onceMore = false;
    bool m_isPaused = false;
    SyncSummary m_counted; ///< the parts of the meeting under way that have ended
    SyncSummary m_last;
    QDateTime m_lastMet;
};
