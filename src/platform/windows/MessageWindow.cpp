#include "MessageWindow.h"

#include <utility>

namespace {

const wchar_t className[] = L"GlaceronMessages";

} // namespace

MessageWindow::MessageWindow(Handler handler)
    : m_handler(std::move(handler))
{
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = className;
    // Refused when an earlier window has registered it.
    RegisterClassExW(&windowClass);
    m_window = CreateWindowExW(WS_EX_TOOLWINDOW, className, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                               nullptr, instance, nullptr);
    if (m_window)
        SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

MessageWindow::~MessageWindow()
{
    if (!m_window)
        return;
    SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
    DestroyWindow(m_window);
}

LRESULT CALLBACK MessageWindow::procedure(HWND window, UINT message, WPARAM word, LPARAM value)
{
    const auto *self =
        reinterpret_cast<const MessageWindow *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self)
        self->m_handler(message, word, value);
    // A tool that asks all windows of a program to close must not make it deaf.
    if (message == WM_CLOSE)
        return 0;
    return DefWindowProcW(window, message, word, value);
}
