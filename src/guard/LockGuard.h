#pragma once

#include "Clock.h"
#include "LockReason.h"
#include "UserActivity.h"

#include <QObject>

#include <functional>
#include <memory>

class GPMAppSettings;

/// Decides when an open safe is to be locked: the user is away, the screen saver runs, or something
/// happened to the session. Its checks are made once a second.
class LockGuard : public QObject
{
    Q_OBJECT

public:
    static const int checkMs = 1000;

    /// @param isUnlocked whether a safe is open and unlocked
    LockGuard(const GPMAppSettings &settings, std::function<bool()> isUnlocked,
              std::unique_ptr<UserActivity> activity, Clock clock = systemTime,
              QObject *parent = nullptr);

    /// What the timer drives besides the guard's own checks.
    void setBackupCheck(const std::function<void()> &check) { m_backupCheck = check; }

    /// The minutes without input after which the safe locks: those of the settings, or the default
    /// where they make no sense.
    int inactivityLimit();

    /// Whether the system tells when there was input; without it nobody ever seems to be away.
    bool seesInput() const { return m_missedAnswers < toleratedMisses; }

public Q_SLOTS:
    /// Whether the computer slept longer than the limit since anything was checked last. Also asked
    /// between the seconds: when the computer wakes, and before a window draws or takes input.
    void checkSleep();
    void checkInactivity();
    void checkScreenSaverRunning();
    void checkBackupJob();

    /// Something happened that locks the safe at once. The screen saver does so where the settings
    /// want it.
    void onSessionEvent(LockReason reason);

Q_SIGNALS:
    void lockDue(LockReason reason);

private:
    /// The first answer of some systems takes its time.
    static constexpr int toleratedMisses = 10;

    qint64 limitMs();
    bool wasAsleep(qint64 limitMs);
    void lock(LockReason reason, const char *logLine);

    const GPMAppSettings &m_settings;
    std::function<bool()> m_isUnlocked;
    std::unique_ptr<UserActivity> m_activity;
    Clock m_clock;
    std::function<void()> m_backupCheck;
    QDateTime m_lastCheck;
    std::uint32_t m_lastTick = 0;
    std::optional<int> m_refusedLimit; ///< the one that was logged last
    int m_missedAnswers = 0;           ///< since the last one
    bool m_saidMissing = false;
};
