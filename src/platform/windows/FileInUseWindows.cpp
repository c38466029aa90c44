#include "FileInUse.h"

#include "WideText.h"

#include <windows.h>

namespace {

const DWORD patienceMs = 500;
const DWORD pauseMs = 10;

/// Alone with it, which only those hinder who have it open.
bool isInUse(const std::wstring &path)
{
    const HANDLE file = CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(file);
    return false;
}

} // namespace

bool waitWhileFileInUse(const std::string &path)
{
    // Scanners, indexers and clients of cloud folders look at what was just written.
    const std::wstring name = wide(path);
    const DWORD start = GetTickCount();
    while (isInUse(name)) {
        if (GetTickCount() - start >= patienceMs)
            return false;
        Sleep(pauseMs);
    }
    return true;
}
