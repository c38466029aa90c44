#include "ActivitySource.h"

#include "BusActivity.h"

std::unique_ptr<UserActivity> makeUserActivity()
{
    std::unique_ptr<UserActivity> system = UserActivity::create();
    // The X server beside a Wayland compositor sees the input to its own windows alone.
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return system;
    return std::make_unique<BusActivity>(std::move(system), QDBusConnection::sessionBus());
}
