#include "MachineIdentity.h"

#include <windows.h>

#include <winioctl.h>

#include <cstddef>

namespace {

/// Asked without any right to read or write, so that every user may. The text ends at a zero or at
/// the end of what was written.
std::string diskSerial()
{
    const HANDLE disk = CreateFileW(L"\\\\.\\PhysicalDrive0", 0, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    if (disk == INVALID_HANDLE_VALUE)
        return {};
    STORAGE_PROPERTY_QUERY query{};
    query.PropertyId = StorageDeviceProperty;
    query.QueryType = PropertyStandardQuery;
    alignas(STORAGE_DEVICE_DESCRIPTOR) char answer[4096] = {};
    DWORD written = 0;
    const bool told = DeviceIoControl(disk, IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof(query),
                                      answer, sizeof(answer), &written, nullptr) != 0;
    CloseHandle(disk);
    if (!told || written < sizeof(STORAGE_DEVICE_DESCRIPTOR))
        return {};
    const auto *descriptor = reinterpret_cast<const STORAGE_DEVICE_DESCRIPTOR *>(answer);
    std::string serial;
    if (descriptor->SerialNumberOffset == 0)
        return serial;
    for (std::size_t at = descriptor->SerialNumberOffset; at < written && answer[at]; ++at) {
        if (answer[at] != ' ')
            serial += answer[at];
    }
    return serial;
}

/// Of the volume that Windows is on, for disks that tell no serial number.
std::string volumeSerial()
{
    wchar_t folder[MAX_PATH] = {};
    if (GetWindowsDirectoryW(folder, MAX_PATH) < 3)
        return {};
    folder[3] = 0;
    DWORD serial = 0;
    if (!GetVolumeInformationW(folder, nullptr, 0, &serial, nullptr, nullptr, nullptr, 0))
        return {};
    return serial == 0 ? std::string() : std::to_string(serial);
}

} // namespace

std::string machineIdentity()
{
    const std::string serial = diskSerial();
    return serial.empty() ? volumeSerial() : serial;
}
