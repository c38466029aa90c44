#include "ForeignClipboard.h"
#include "WideText.h"

#include <cwchar>
#include <windows.h>

namespace {

/// Text may be made only when it is asked for, and for that Windows waits half a minute for who
/// owns it: whoever does not answer to nothing is not asked for more.
bool ownerAnswers(int timeoutMs)
{
    const HWND owner = GetClipboardOwner();
    DWORD_PTR answer = 0;
    return !owner || SendMessageTimeoutW(owner, WM_NULL, 0, 0, SMTO_ABORTIFHUNG | SMTO_BLOCK,
                                         static_cast<UINT>(timeoutMs), &answer) != 0;
}

} // namespace

std::optional<std::string> foreignClipboardText(int timeoutMs)
{
    // Another program may have it open for a moment.
    const DWORD start = GetTickCount();
    while (!OpenClipboard(nullptr)) {
        if (GetTickCount() - start >= static_cast<DWORD>(timeoutMs))
            return {};
        Sleep(5);
    }
    std::optional<std::string> text;
    if (const HANDLE data = ownerAnswers(timeoutMs) ? GetClipboardData(CF_UNICODETEXT) : nullptr) {
        if (const auto *characters = static_cast<const wchar_t *>(GlobalLock(data))) {
            // Who put it there may have left out its end.
            text = utf8({characters, wcsnlen(characters, GlobalSize(data) / sizeof(wchar_t))});
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    return text;
}
