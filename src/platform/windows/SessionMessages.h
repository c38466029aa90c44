#pragma once

#include <functional>
#include <memory>

/// What Windows tells a program about the session of its user.
class SessionMessages
{
public:
    enum class Event { Locked, UserSwitched, GoingToSleep };
    using Handler = std::function<void(Event)>;

    virtual ~SessionMessages() = default;

    /// Calls the handler from the event loop of this thread.
    static std::unique_ptr<SessionMessages> create(const Handler &handler);

protected:
    SessionMessages() = default;
    SessionMessages(const SessionMessages &) = delete;
    SessionMessages &operator=(const SessionMessages &) = delete;
};
