#include "ForeignClipboard.h"
#include "WideText.h"

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
            text = utf8(characters);
            GlobalUnlock(data);
        }
    }
    CloseClipboard();
    return text;
}
