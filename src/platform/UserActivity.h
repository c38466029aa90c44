#pragma once

#include <cstdint>
#include <memory>
#include <optional>

/// Tells since when the user is away. Ticks are milliseconds in an unsigned counter of 32 bits that
/// wraps and that goes on while the computer sleeps. What the system does not tell is missing.
class UserActivity
{
public:
    virtual ~UserActivity() = default;

    /// The implementation for the system that this was built for.
    static std::unique_ptr<UserActivity> create();

    virtual std::uint32_t tickCount() = 0;

    /// The tick of the last input from keyboard or mouse, to whichever program.
    virtual std::optional<std::uint32_t> lastInputTick() = 0;

    virtual std::optional<bool> screenSaverRunning() = 0;

protected:
    UserActivity() = default;
    UserActivity(const UserActivity &) = delete;
    UserActivity &operator=(const UserActivity &) = delete;
};
