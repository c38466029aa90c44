#include "FileSync.h"

#include <windows.h>

static std::wstring wide(const std::string &text)
{
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, &result[0], length);
    return result;
}

bool forceFileToDisk(const std::string &path)
{
    // Flushing needs the right to write.
    const HANDLE file = CreateFileW(wide(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    const bool good = FlushFileBuffers(file) != 0;
    CloseHandle(file);
    return good;
}
