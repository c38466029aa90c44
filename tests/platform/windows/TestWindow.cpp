#include "TestWindow.h"

#include <algorithm>

TestWindow::TestWindow(DWORD style)
{
    const wchar_t name[] = L"GlaceronTest";
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = name;
    RegisterClassExW(&windowClass);
    m_window = CreateWindowExW(0, name, L"", style, 40, 40, 300, 200, nullptr, nullptr,
                               windowClass.hInstance, nullptr);
    SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    ShowWindow(m_window, SW_SHOW);
}

TestWindow::~TestWindow()
{
    SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
    DestroyWindow(m_window);
}

bool TestWindow::takeKeyboard()
{
    SetForegroundWindow(m_window);
    SetFocus(m_window);
    return waitUntil(
        [this] { return GetFocus() == m_window && GetForegroundWindow() == m_window; });
}

int TestWindow::count(UINT message, WPARAM word) const
{
    return static_cast<int>(
        std::count_if(m_messages.begin(), m_messages.end(), [&](const MSG &each) {
            return each.message == message && each.wParam == word;
        }));
}

LRESULT CALLBACK TestWindow::procedure(HWND window, UINT message, WPARAM word, LPARAM value)
{
    auto *self = reinterpret_cast<TestWindow *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self)
        self->m_messages.push_back({window, message, word, value, 0, {0, 0}});
    return DefWindowProcW(window, message, word, value);
}

bool waitUntil(const std::function<bool()> &condition)
{
    const ULONGLONG end = GetTickCount64() + 10000;
    while (!condition()) {
        const ULONGLONG now = GetTickCount64();
        if (now >= end)
            return false;
        // Wakes at least now and then: not every change comes with a message.
        MsgWaitForMultipleObjects(
            0, nullptr, FALSE, static_cast<DWORD>(std::min<ULONGLONG>(end - now, 20)), QS_ALLINPUT);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return true;
}

void sendKey(WORD key, bool down)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof(input));
}
