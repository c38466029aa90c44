#include "UserActivity.h"
#include "XConnection.h"

#include <X11/extensions/scrnsaver.h>
#include <ctime>

namespace {

class UserActivityLinux : public UserActivity
{
public:
    UserActivityLinux()
    {
        int event = 0;
        int error = 0;
        if (m_server.display() && XScreenSaverQueryExtension(m_server.display(), &event, &error))
            m_info.reset(XScreenSaverAllocInfo());
    }

    std::uint32_t tickCount() override
    {
        timespec now = {};
        clock_gettime(CLOCK_BOOTTIME, &now);
        const auto seconds = static_cast<std::uint64_t>(now.tv_sec);
        return static_cast<std::uint32_t>(seconds * 1000 +
                                          static_cast<std::uint64_t>(now.tv_nsec) / 1000000);
    }

    std::optional<std::uint32_t> lastInputTick() override
    {
        if (!query())
            return {};
        return tickCount() - static_cast<std::uint32_t>(m_info->idle);
    }

    std::optional<bool> screenSaverRunning() override
    {
        if (!query())
            return {};
        return m_info->state == ScreenSaverOn;
    }

private:
    struct Free
    {
        void operator()(XScreenSaverInfo *info) const { XFree(info); }
    };

    bool query()
    {
        return m_info && m_server.display() &&
               XScreenSaverQueryInfo(m_server.display(), m_server.root(), m_info.get()) != 0 &&
               m_server.display();
    }

    XConnection m_server{!XConnection::isGuest()};
    std::unique_ptr<XScreenSaverInfo, Free> m_info;
};

} // namespace

std::unique_ptr<UserActivity> UserActivity::create()
{
    return std::make_unique<UserActivityLinux>();
}
