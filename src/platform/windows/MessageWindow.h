#pragma once

#include <functional>
#include <windows.h>

/// A window that is never shown and gets messages of the system. The event loop of its thread
/// delivers them. It is a top-level one, since others get no broadcasts.
class MessageWindow
{
public:
    using Handler = std::function<void(UINT message, WPARAM word, LPARAM value)>;

    explicit MessageWindow(Handler handler);
    ~MessageWindow();
    MessageWindow(const MessageWindow &) = delete;
    MessageWindow &operator=(const MessageWindow &) = delete;

    /// Null when it could not be made.
    HWND handle() const { return m_window; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM word, LPARAM value);

    Handler m_handler;
    HWND m_window;
};
