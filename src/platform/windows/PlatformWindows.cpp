#include "Platform.h"
#include "WideText.h"

#include <windows.h>

namespace {

class PlatformWindows : public Platform
{
public:
    bool pressEnterKey() override
    {
        const auto scan = static_cast<BYTE>(MapVirtualKeyW(VK_RETURN, MAPVK_VK_TO_VSC));
        keybd_event(VK_RETURN, scan, 0, 0);
        return true;
    }

    bool capsLockOn() override { return (GetKeyState(VK_CAPITAL) & 1) != 0; }

    std::string currentUserRegistryValue(const std::string &key, const std::string &name) override
    {
        DWORD bytes = 0;
        if (RegGetValueW(HKEY_CURRENT_USER, wide(key).c_str(), wide(name).c_str(), RRF_RT_REG_SZ,
                         nullptr, nullptr, &bytes) != ERROR_SUCCESS)
            return {};
        std::wstring value(bytes / sizeof(wchar_t), L'\0');
        if (RegGetValueW(HKEY_CURRENT_USER, wide(key).c_str(), wide(name).c_str(), RRF_RT_REG_SZ,
                         nullptr, value.data(), &bytes) != ERROR_SUCCESS)
            return {};
        value.resize(bytes / sizeof(wchar_t));
        while (!value.empty() && value.back() == L'\0')
            value.pop_back();
        return utf8(value);
    }

    /// The kernel's own answer: the documented version call reports 6.2 to programs without a
    /// manifest for newer systems.
    int windowsVersionCode() override
    {
        using RtlGetVersionCall = LONG(WINAPI *)(OSVERSIONINFOW *);
        const HMODULE kernel = GetModuleHandleW(L"ntdll.dll");
        if (!kernel)
            return 0;
        const auto call = reinterpret_cast<RtlGetVersionCall>(
            reinterpret_cast<void *>(GetProcAddress(kernel, "RtlGetVersion")));
        OSVERSIONINFOW info = {};
        info.dwOSVersionInfoSize = sizeof(info);
        if (!call || call(&info) != 0)
            return 0;

        struct Row
        {
            DWORD major;
            DWORD minor;
            int code;
        };
        static const Row rows[] = {{5, 0, 0x20}, {5, 1, 0x30}, {5, 2, 0x40}, {6, 0, 0x80},
                                   {6, 1, 0x90}, {6, 2, 0xA0}, {6, 3, 0xB0}};
        for (const Row &row : rows) {
            if (info.dwMajorVersion == row.major && info.dwMinorVersion == row.minor)
                return row.code;
        }
        const DWORD firstBuildOfEleven = 22000;
        if (info.dwMajorVersion == 10)
            return info.dwBuildNumber < firstBuildOfEleven ? 0xC0 : 0xD0;
        return info.dwMajorVersion > 10 ? 0xD0 : 0x10;
    }

    /// Not asked: a connection leads to its owner only by way of a process that may have ended.
    bool isForeignConnection(std::uint16_t, std::uint16_t) override { return false; }
};

} // namespace

std::unique_ptr<Platform> Platform::create()
{
    return std::make_unique<PlatformWindows>();
}
