#include "MessageWindow.h"
#include "SystemHotkeys.h"

namespace {

using Keys = SystemHotkeys;

UINT specialKeyCode(char32_t key)
{
    if (key >= Keys::F1 && key <= Keys::F24)
        return static_cast<UINT>(VK_F1 + (key - Keys::F1));
    struct Row
    {
        char32_t key;
        UINT code;
    };
    static const Row rows[] = {
        {Keys::Escape, VK_ESCAPE},  {Keys::Tab, VK_TAB},          {Keys::Backspace, VK_BACK},
        {Keys::Return, VK_RETURN},  {Keys::Insert, VK_INSERT},    {Keys::Delete, VK_DELETE},
        {Keys::Home, VK_HOME},      {Keys::End, VK_END},          {Keys::PageUp, VK_PRIOR},
        {Keys::PageDown, VK_NEXT},  {Keys::Left, VK_LEFT},        {Keys::Up, VK_UP},
        {Keys::Right, VK_RIGHT},    {Keys::Down, VK_DOWN},        {Keys::Pause, VK_PAUSE},
        {Keys::Print, VK_SNAPSHOT}, {Keys::ScrollLock, VK_SCROLL}};
    for (const Row &row : rows) {
        if (row.key == key)
            return row.code;
    }
    return 0;
}

/// The key that has the character in the present layout; 0 when none has.
UINT keyCode(char32_t key)
{
    if (key >= Keys::F1)
        return specialKeyCode(key);
    if (key > 0xffff)
        return 0;
    const SHORT found = VkKeyScanW(static_cast<WCHAR>(key));
    return found == -1 ? 0 : LOBYTE(found);
}

UINT modifierMask(unsigned modifiers)
{
    return (modifiers & Keys::Shift ? UINT(MOD_SHIFT) : 0U) |
           (modifiers & Keys::Control ? UINT(MOD_CONTROL) : 0U) |
           (modifiers & Keys::Alt ? UINT(MOD_ALT) : 0U) |
           (modifiers & Keys::Meta ? UINT(MOD_WIN) : 0U);
}

class SystemHotkeysWindows : public SystemHotkeys
{
public:
    Result add(int id, const Combination &combination) override
    {
        const UINT code = keyCode(combination.key);
        if (!m_window.handle() || code == 0)
            return Result::Unsupported;
        const UINT modifiers = modifierMask(combination.modifiers) | MOD_NOREPEAT;
        if (RegisterHotKey(m_window.handle(), id, modifiers, code))
            return Result::Registered;
        return GetLastError() == ERROR_HOTKEY_ALREADY_REGISTERED ? Result::Taken
                                                                 : Result::Unsupported;
    }

    void remove(int id) override { UnregisterHotKey(m_window.handle(), id); }

private:
    MessageWindow m_window{[this](UINT message, WPARAM id, LPARAM) {
        if (message == WM_HOTKEY)
            tellPressed(static_cast<int>(id));
    }};
};

} // namespace

std::unique_ptr<SystemHotkeys> SystemHotkeys::create()
{
    return std::make_unique<SystemHotkeysWindows>();
}
