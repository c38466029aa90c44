#include "WindowSystem.h"

#include <dwmapi.h>
#include <windows.h>
#include <windowsx.h>

#include <set>

namespace {

std::set<HWND> &adopted()
{
    static std::set<HWND> windows;
    return windows;
}

SIZE frameSize()
{
    const int padding = GetSystemMetrics(SM_CXPADDEDBORDER);
    return {GetSystemMetrics(SM_CXSIZEFRAME) + padding, GetSystemMetrics(SM_CYSIZEFRAME) + padding};
}

/// The whole window is the client's. Maximised, the system lets the frame hang over the screen's
/// edges; and a taskbar that hides itself needs a line to come back at.
LRESULT answerSize(HWND window, LPARAM parameter)
{
    if (!IsZoomed(window))
        return 0;
    auto &sizes = *reinterpret_cast<NCCALCSIZE_PARAMS *>(parameter);
    RECT &client = sizes.rgrc[0];
    const SIZE frame = frameSize();
    client.left += frame.cx;
    client.right -= frame.cx;
    client.top += frame.cy;
    client.bottom -= frame.cy;
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    APPBARDATA bar = {};
    bar.cbSize = sizeof(bar);
    const bool hides = (SHAppBarMessage(ABM_GETSTATE, &bar) & ABS_AUTOHIDE) != 0;
    if (hides && EqualRect(&client, &monitor.rcMonitor))
        --client.bottom;
    return 0;
}

/// The edges and corners drag the window's size.
LRESULT answerHit(HWND window, LPARAM parameter)
{
    const bool resizable = (GetWindowLongPtrW(window, GWL_STYLE) & WS_MAXIMIZEBOX) != 0;
    if (!resizable || IsZoomed(window))
        return HTCLIENT;
    RECT outer;
    GetWindowRect(window, &outer);
    const POINT point = {GET_X_LPARAM(parameter), GET_Y_LPARAM(parameter)};
    const SIZE frame = frameSize();
    const int column = point.x < outer.left + frame.cx     ? 0
                       : point.x >= outer.right - frame.cx ? 2
                                                           : 1;
    const int row = point.y < outer.top + frame.cy / 2   ? 0
                    : point.y >= outer.bottom - frame.cy ? 2
                                                         : 1;
    static const LRESULT zones[3][3] = {{HTTOPLEFT, HTTOP, HTTOPRIGHT},
                                        {HTLEFT, HTCLIENT, HTRIGHT},
                                        {HTBOTTOMLEFT, HTBOTTOM, HTBOTTOMRIGHT}};
    return zones[row][column];
}

} // namespace

bool WindowSystem::hasCompositor()
{
    return false;
}

void WindowSystem::setShadowMargins(std::uintptr_t, const Margins &, int, int, int) {}

void WindowSystem::adoptFrame(std::uintptr_t window, bool resizable)
{
    const auto handle = reinterpret_cast<HWND>(window);
    adopted().insert(handle);
    const LONG_PTR style = GetWindowLongPtrW(handle, GWL_STYLE);
    const LONG_PTR sizing = resizable ? WS_THICKFRAME | WS_MAXIMIZEBOX | WS_MINIMIZEBOX : 0;
    SetWindowLongPtrW(handle, GWL_STYLE, style | WS_CAPTION | WS_SYSMENU | sizing);
    // A line of frame is enough for the system to draw its shadow around the window.
    const MARGINS line = {0, 0, 1, 0};
    DwmExtendFrameIntoClientArea(handle, &line);
    SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOOWNERZORDER |
                     SWP_NOACTIVATE);
}

bool WindowSystem::answerFrameMessage(void *message, std::intptr_t *result)
{
    const MSG &asked = *static_cast<MSG *>(message);
    const auto window = adopted().find(asked.hwnd);
    if (window == adopted().end())
        return false;
    switch (asked.message) {
    case WM_NCCALCSIZE:
        if (!asked.wParam)
            return false;
        *result = answerSize(asked.hwnd, asked.lParam);
        return true;
    case WM_NCHITTEST:
        *result = answerHit(asked.hwnd, asked.lParam);
        return true;
    case WM_NCACTIVATE:
        // Without a region to draw, or the classic frame would flash up.
        *result = DefWindowProcW(asked.hwnd, WM_NCACTIVATE, asked.wParam, -1);
        return true;
    case WM_NCDESTROY:
        adopted().erase(window);
        return false;
    default:
        return false;
    }
}

bool WindowSystem::hideFromCapture(std::uintptr_t window, bool hide)
{
    const DWORD leftOut = 0x11; // WDA_EXCLUDEFROMCAPTURE, which is not in all headers
    const auto handle = reinterpret_cast<HWND>(window);
    if (!hide)
        return SetWindowDisplayAffinity(handle, WDA_NONE) != FALSE;
    // Older systems only know to show it black.
    return SetWindowDisplayAffinity(handle, leftOut) ||
           SetWindowDisplayAffinity(handle, WDA_MONITOR);
}

std::optional<bool> WindowSystem::prefersDark()
{
    DWORD light = 1;
    DWORD size = sizeof(light);
    RegGetValueW(HKEY_CURRENT_USER,
                 L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                 L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
    return light == 0;
}

bool WindowSystem::wantsStillness()
{
    BOOL animated = TRUE;
    SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &animated, 0);
    return !animated;
}
