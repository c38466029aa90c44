#include "UserActivity.h"

#include <windows.h>

namespace {

class UserActivityWindows : public UserActivity
{
public:
    std::uint32_t tickCount() override { return GetTickCount(); }

    std::optional<std::uint32_t> lastInputTick() override
    {
        LASTINPUTINFO info = {};
        info.cbSize = sizeof(info);
        if (!GetLastInputInfo(&info))
            return {};
        return info.dwTime;
    }

    std::optional<bool> screenSaverRunning() override
    {
        BOOL running = FALSE;
        if (!SystemParametersInfoW(SPI_GETSCREENSAVERRUNNING, 0, &running, 0))
            return {};
        return running != FALSE;
    }
};

} // namespace

std::unique_ptr<UserActivity> UserActivity::create()
{
    return std::make_unique<UserActivityWindows>();
}
