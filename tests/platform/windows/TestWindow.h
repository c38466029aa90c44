#pragma once

#include <functional>
#include <vector>
#include <windows.h>

/// A shown window that takes down what it gets.
class TestWindow
{
public:
    explicit TestWindow(DWORD style = WS_OVERLAPPEDWINDOW);
    ~TestWindow();
    TestWindow(const TestWindow &) = delete;
    TestWindow &operator=(const TestWindow &) = delete;

    HWND handle() const { return m_window; }
    bool takeKeyboard();
    int count(UINT message, WPARAM word) const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM word, LPARAM value);

    HWND m_window;
    std::vector<MSG> m_messages;
};

/// Delivers messages until the condition holds. False after ten seconds.
bool waitUntil(const std::function<bool()> &condition);

/// Presses a key, or releases it, as the keyboard would.
void sendKey(WORD key, bool down);
