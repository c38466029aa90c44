#include "Platform.h"

#include "ConnectionSession.h"
#include "SystemCall.h"
#include "WideText.h"
#include "WindowsVersion.h"

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
        const auto call =
            systemCall<LONG(WINAPI *)(OSVERSIONINFOW *)>(L"ntdll.dll", "RtlGetVersion");
        OSVERSIONINFOW info = {};
        info.dwOSVersionInfoSize = sizeof(info);
        if (!call || call(&info) != 0)
            return 0x10;
        return ::windowsVersionCode(info.dwMajorVersion, info.dwMinorVersion, info.dwBuildNumber);
    }

    bool isForeignConnection(std::uint16_t port, std::uint16_t toPort) override
    {
        const std::optional<unsigned long> process = connectionProcess(port, toPort);
        const std::optional<unsigned long> session =
            process ? processSession(*process) : std::nullopt;
        DWORD own = 0;
        return session && ProcessIdToSessionId(GetCurrentProcessId(), &own) &&
               isForeignSession(*session, own);
    }
};

} // namespace

std::unique_ptr<Platform> Platform::create()
{
    return std::make_unique<PlatformWindows>();
}
