#include "ForeignClipboard.h"
#include "WideText.h"

#include <cwchar>
#include <windows.h>

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
    if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
        if (const auto *characters = static_cast<const wchar_t *>(GlobalLock(data))) {
            // Who put it there may have left out its end.
            text = utf8({characters, wcsnlen(characters, GlobalSize(data) / sizeof(wchar_t))});
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    return text;
}
