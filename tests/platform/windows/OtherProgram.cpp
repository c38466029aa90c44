#include "OtherProgram.h"

#include "Platform.h"
#include "SecretMemory.h"
#include "SystemHotkeys.h"
#include "TestWindow.h"
#include "UserActivity.h"

#include <cstdio>
#include <cstring>

namespace {

const wchar_t readyName[] = L"GlaceronTestReady";
const wchar_t endName[] = L"GlaceronTestEnd";
const DWORD patience = 20000;

/// What is ready until the checks say that it is enough.
int stay()
{
    const HANDLE end = OpenEventW(SYNCHRONIZE, FALSE, endName);
    const HANDLE ready = OpenEventW(EVENT_MODIFY_STATE, FALSE, readyName);
    SetEvent(ready);
    return waitUntil([end] { return WaitForSingleObject(end, 0) == WAIT_OBJECT_0; }) ? 0 : 1;
}

/// The same, but takes no messages.
int stayDeaf()
{
    const HANDLE end = OpenEventW(SYNCHRONIZE, FALSE, endName);
    SetEvent(OpenEventW(EVENT_MODIFY_STATE, FALSE, readyName));
    return WaitForSingleObject(end, patience) == WAIT_OBJECT_0 ? 0 : 1;
}

/// For the checks of the installer, which end it.
int runOn()
{
    std::puts("runs");
    std::fflush(stdout);
    WaitForSingleObject(GetCurrentProcess(), 60000);
    return 0;
}

int holdHotkey()
{
    const auto keys = SystemHotkeys::create();
    if (keys->add(1, {SystemHotkeys::Control | SystemHotkeys::Alt, U'k'}) !=
        SystemHotkeys::Result::Registered)
        return 2;
    return stay();
}

int holdForeground()
{
    TestWindow window;
    return window.takeKeyboard() ? stay() : 2;
}

int holdClipboard()
{
    const TestWindow window;
    if (!OpenClipboard(window.handle()))
        return 2;
    const int result = stay();
    CloseClipboard();
    return result;
}

HANDLE givenText()
{
    const wchar_t text[] = L"given";
    const HGLOBAL data = GlobalAlloc(GMEM_MOVEABLE, sizeof(text));
    std::memcpy(GlobalLock(data), text, sizeof(text));
    GlobalUnlock(data);
    return data;
}

/// Owns this text; for none promises one, and then does not answer.
int ownClipboard(HANDLE text)
{
    const TestWindow window;
    if (!OpenClipboard(window.handle()))
        return 2;
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, text);
    CloseClipboard();
    return text ? stay() : stayDeaf();
}

/// As scanners of files do, for whom nobody may remove it.
int holdFile()
{
    const HANDLE file = CreateFileW(OtherProgram::filePath().c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return 2;
    const int result = stay();
    CloseHandle(file);
    return result;
}

int holdSecrets()
{
    std::vector<void *> secrets(OtherProgram::secretCount);
    for (void *&secret : secrets)
        secret = allocateSecretMemory(32);
    const int result = stay();
    for (void *secret : secrets)
        freeSecretMemory(secret, 32);
    return result;
}

} // namespace

OtherProgram::OtherProgram(const std::wstring &part)
    : m_ready(CreateEventW(nullptr, TRUE, FALSE, readyName))
    , m_end(CreateEventW(nullptr, TRUE, FALSE, endName))
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, &path[0], MAX_PATH));
    std::wstring command = L"\"" + path + L"\" " + part;
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(path.c_str(), &command[0], nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &process))
        return;
    CloseHandle(process.hThread);
    m_process = process.hProcess;
}

OtherProgram::~OtherProgram()
{
    end();
    CloseHandle(m_ready);
    CloseHandle(m_end);
}

bool OtherProgram::isReady() const
{
    const auto isSet = [](HANDLE handle) {
        return WaitForSingleObject(handle, 0) == WAIT_OBJECT_0;
    };
    return m_process && waitUntil([&] { return isSet(m_ready) || isSet(m_process); }) &&
           isSet(m_ready);
}

void OtherProgram::tellToEnd() const
{
    SetEvent(m_end);
}

int OtherProgram::end()
{
    if (!m_process)
        return -1;
    tellToEnd();
    DWORD code = 0;
    const bool ended = WaitForSingleObject(m_process, patience) == WAIT_OBJECT_0 &&
                       GetExitCodeProcess(m_process, &code);
    CloseHandle(m_process);
    m_process = nullptr;
    return ended ? static_cast<int>(code) : -1;
}

std::wstring OtherProgram::filePath()
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    return std::wstring(folder) + L"h\u00e4lt \u0436.txt";
}

int OtherProgram::act(const std::wstring &part)
{
    if (part == L"run")
        return runOn();
    if (part == L"hotkey")
        return holdHotkey();
    if (part == L"foreground")
        return holdForeground();
    if (part == L"clipboard")
        return holdClipboard();
    if (part == L"text")
        return ownClipboard(givenText());
    if (part == L"promise")
        return ownClipboard(nullptr);
    if (part == L"file")
        return holdFile();
    if (part.rfind(L"secrets", 0) == 0)
        return holdSecrets();
    if (part == L"version")
        return Platform::create()->windowsVersionCode();
    if (part == L"screensaver")
        return UserActivity::create()->screenSaverRunning().value_or(false) ? 1 : 0;
    return 3;
}
