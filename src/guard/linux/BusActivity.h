#pragma once

#include "UserActivity.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>

/// Asks the compositor for the idle time where the X server does not know it. Asked once a second,
/// it answers with what the compositor said last, since to wait would hold the window up.
class BusActivity : public UserActivity
{
public:
    /// @param system what else the system tells
    BusActivity(std::unique_ptr<UserActivity> system, QDBusConnection session);

    std::uint32_t tickCount() override { return m_system->tickCount(); }
    std::optional<std::uint32_t> lastInputTick() override;
    std::optional<bool> screenSaverRunning() override { return m_system->screenSaverRunning(); }

private:
    void ask();

    std::unique_ptr<UserActivity> m_system;
    QDBusConnection m_session;
    QObject m_context; ///< ends the calls that are under way
    bool m_asking = false;
    std::optional<std::uint32_t> m_lastInput;
    std::uint32_t m_answered = 0;
};
