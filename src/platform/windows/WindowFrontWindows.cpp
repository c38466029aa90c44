#include "WindowFront.h"

#include <windows.h>

namespace {

const UINT keepAndTell = SPIF_UPDATEINIFILE | SPIF_SENDCHANGE;

void setForegroundLockTimeout(DWORD milliseconds)
{
    SystemParametersInfoW(SPI_SETFOREGROUNDLOCKTIMEOUT, 0,
                          reinterpret_cast<void *>(static_cast<UINT_PTR>(milliseconds)),
                          keepAndTell);
}

/// For its life this thread counts as the one in front, which alone may choose another window.
class ForegroundRights
{
public:
    ForegroundRights()
        : m_front(GetWindowThreadProcessId(GetForegroundWindow(), nullptr))
        , m_own(GetCurrentThreadId())
    {
        if (m_front == m_own)
            return;
        AttachThreadInput(m_own, m_front, TRUE);
        m_saved = SystemParametersInfoW(SPI_GETFOREGROUNDLOCKTIMEOUT, 0, &m_timeout, 0);
        if (m_saved)
            setForegroundLockTimeout(0);
        AllowSetForegroundWindow(ASFW_ANY);
    }
    ~ForegroundRights()
    {
        if (m_front == m_own)
            return;
        if (m_saved)
            setForegroundLockTimeout(m_timeout);
        AttachThreadInput(m_own, m_front, FALSE);
    }
    ForegroundRights(const ForegroundRights &) = delete;
    ForegroundRights &operator=(const ForegroundRights &) = delete;

private:
    DWORD m_front;
    DWORD m_own;
    DWORD m_timeout = 0;
    BOOL m_saved = FALSE;
};

} // namespace

bool putWindowInFront(std::uintptr_t window)
{
    const auto handle = reinterpret_cast<HWND>(window);
    if (!IsWindow(handle))
        return false;
    bool inFront = false;
    {
        const ForegroundRights rights;
        inFront = SetForegroundWindow(handle) != FALSE;
    }
    SetActiveWindow(handle);
    return inFront;
}
