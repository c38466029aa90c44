#include "LockGuard.h"

#include "GPMAppSettings.h"

#include <QDebug>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

const char *const screenSaverLogLine = "Screensaver activated";
const int msPerMinute = 60000;
const int usualLimit = 3;
// What the counter of ticks can measure.
const int longestLimit = std::numeric_limits<std::uint32_t>::max() / msPerMinute;

const char *sessionLogLine(LockReason reason)
{
    switch (reason) {
    case LockReason::ScreenSaver:
        return screenSaverLogLine;
    case LockReason::SessionLocked:
        return "Session locked";
    case LockReason::UserSwitched:
        return "User switched";
    default:
        return "Computer goes to sleep";
    }
}

} // namespace

LockGuard::LockGuard(const GPMAppSettings &settings, std::function<bool()> isUnlocked,
                     std::unique_ptr<UserActivity> activity, Clock clock, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_isUnlocked(std::move(isUnlocked))
    , m_activity(std::move(activity))
    , m_clock(std::move(clock))
{
}

int LockGuard::inactivityLimit()
{
    const int minutes = m_settings.inactivityInterval();
    if (minutes > 0 && minutes <= longestLimit)
        return minutes;
    if (std::exchange(m_refusedLimit, minutes) != minutes)
        qWarning() << "LockGuard: inactivity_interval makes no sense:" << minutes;
    return usualLimit;
}

qint64 LockGuard::limitMs()
{
    return qint64(inactivityLimit()) * msPerMinute;
}

void LockGuard::checkSleep()
{
    // Asked every time: it measures from the last time.
    if (wasAsleep(limitMs()) && m_settings.autolockInactive())
        lock(LockReason::Sleep, "Locked after sleep");
}

void LockGuard::checkInactivity()
{
    checkSleep();
    // Asked even while the user does not want it: the settings tell whether it can be done.
    // In this order: input between the two would seem to come from the future, that is, to be
    // seven weeks old.
    const std::optional<std::uint32_t> lastInput = m_activity->lastInputTick();
    if (!lastInput) {
        m_missedAnswers = std::min(m_missedAnswers + 1, toleratedMisses);
        if (m_settings.autolockInactive() && !seesInput() && !std::exchange(m_saidMissing, true))
            qWarning("LockGuard: the system does not tell when the last input was");
        return;
    }
    m_missedAnswers = 0;
    const std::uint32_t idleMs = m_activity->tickCount() - *lastInput;
    if (m_settings.autolockInactive() && idleMs > limitMs())
        lock(LockReason::Inactivity, "Locked due user inactivity");
}

bool LockGuard::wasAsleep(qint64 limitMs)
{
    // Two clocks, since either may stand still: that of ticks with a virtual machine, the other
    // when it is set back.
    const QDateTime now = m_clock();
    const std::uint32_t tick = m_activity->tickCount();
    const QDateTime lastCheck = std::exchange(m_lastCheck, now);
    const std::uint32_t lastTick = std::exchange(m_lastTick, tick);
    if (!lastCheck.isValid())
        return false;
    return lastCheck.msecsTo(now) > limitMs || tick - lastTick > limitMs;
}

void LockGuard::checkScreenSaverRunning()
{
    if (m_settings.autolockScreensaver() && m_activity->screenSaverRunning().value_or(false))
        lock(LockReason::ScreenSaver, screenSaverLogLine);
}

void LockGuard::checkBackupJob()
{
    if (m_backupCheck)
        m_backupCheck();
}

void LockGuard::onSessionEvent(LockReason reason)
{
    if (reason == LockReason::ScreenSaver && !m_settings.autolockScreensaver())
        return;
    if (!m_isUnlocked()) {
        // An unlocking that still runs must not end behind a locked screen.
        Q_EMIT lockDue(reason);
        return;
    }
    lock(reason, sessionLogLine(reason));
}

void LockGuard::lock(LockReason reason, const char *logLine)
{
    if (!m_isUnlocked())
        return;
    qInfo("%s", logLine);
    Q_EMIT lockDue(reason);
}
