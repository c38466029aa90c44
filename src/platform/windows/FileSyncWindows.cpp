#include "FileSync.h"

#include "WideText.h"

#include <windows.h>

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
