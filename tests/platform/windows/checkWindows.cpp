#include "Check.h"
#include "OtherProgram.h"
#include "TestWindow.h"
#include "WindowFront.h"
#include "WindowSystem.h"

namespace {

std::uintptr_t number(HWND window)
{
    return reinterpret_cast<std::uintptr_t>(window);
}

DWORD foregroundLockTimeout()
{
    DWORD milliseconds = 0;
    SystemParametersInfoW(SPI_GETFOREGROUNDLOCKTIMEOUT, 0, &milliseconds, 0);
    return milliseconds;
}

void toTheFront()
{
    const DWORD odd = 123457;
    SystemParametersInfoW(SPI_SETFOREGROUNDLOCKTIMEOUT, 0,
                          reinterpret_cast<void *>(static_cast<UINT_PTR>(odd)), 0);
    TestWindow window;
    TestWindow second;
    CHECK(second.takeKeyboard());
    CHECK(putWindowInFront(number(window.handle())));
    CHECK(GetForegroundWindow() == window.handle());
    // Within the program there is nothing to change.
    CHECK_EQUAL(window.count(WM_SETTINGCHANGE, SPI_SETFOREGROUNDLOCKTIMEOUT), 0);

    OtherProgram other(L"foreground");
    CHECK(other.isReady());
    CHECK(waitUntil([&] {
        DWORD process = 0;
        GetWindowThreadProcessId(GetForegroundWindow(), &process);
        return process != 0 && process != GetCurrentProcessId();
    }));
    CHECK(putWindowInFront(number(second.handle())));
    CHECK(GetActiveWindow() == second.handle());
    // The user's own choice is left as it was, and was something else meanwhile.
    CHECK_EQUAL(foregroundLockTimeout(), odd);
    CHECK_EQUAL(second.count(WM_SETTINGCHANGE, SPI_SETFOREGROUNDLOCKTIMEOUT), 2);
    // As the toolkit does behind it: Wine forgets about the window in front with the detaching.
    SetForegroundWindow(second.handle());
    CHECK(waitUntil([&] { return GetForegroundWindow() == second.handle(); }));
    CHECK_EQUAL(other.end(), 0);

    const HWND gone = TestWindow().handle();
    CHECK(!putWindowInFront(number(gone)));
    CHECK(!putWindowInFront(0));
    CHECK_EQUAL(foregroundLockTimeout(), odd);
}

void adoptedFrame()
{
    TestWindow plain(WS_POPUP);
    TestWindow fixed(WS_POPUP);
    TestWindow sized(WS_POPUP);
    WindowSystem::adoptFrame(number(fixed.handle()), false);
    WindowSystem::adoptFrame(number(sized.handle()), true);
    const auto hit = [](const TestWindow &window, int x, int y) {
        RECT outer;
        GetWindowRect(window.handle(), &outer);
        MSG message = {
            window.handle(), WM_NCHITTEST, 0, MAKELPARAM(outer.left + x, outer.top + y), 0, {0, 0}};
        std::intptr_t answer = -100;
        return WindowSystem::answerFrameMessage(&message, &answer) ? answer : -100;
    };
    RECT outer;
    GetWindowRect(sized.handle(), &outer);
    const int right = static_cast<int>(outer.right - outer.left) - 1;
    const int bottom = static_cast<int>(outer.bottom - outer.top) - 1;
    struct Row
    {
        const char *name;
        int x;
        int y;
        int zone;
    };
    const Row rows[] = {{"top left", 0, 0, HTTOPLEFT},
                        {"top", right / 2, 0, HTTOP},
                        {"top right", right, 0, HTTOPRIGHT},
                        {"left", 0, bottom / 2, HTLEFT},
                        {"right", right, bottom / 2, HTRIGHT},
                        {"bottom left", 0, bottom, HTBOTTOMLEFT},
                        {"bottom", right / 2, bottom, HTBOTTOM},
                        {"bottom right", right, bottom, HTBOTTOMRIGHT},
                        {"inside", right / 2, bottom / 2, HTCLIENT}};
    for (const Row &row : rows) {
        CHECK_ROW(row.name, hit(sized, row.x, row.y), row.zone);
        CHECK_ROW(row.name, hit(fixed, row.x, row.y), HTCLIENT);
        CHECK_ROW(row.name, hit(plain, row.x, row.y), -100);
    }

    NCCALCSIZE_PARAMS sizes = {};
    sizes.rgrc[0] = {10, 20, 310, 220};
    MSG message = {sized.handle(), WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&sizes), 0,
                   {0, 0}};
    std::intptr_t answer = -100;
    CHECK(WindowSystem::answerFrameMessage(&message, &answer));
    CHECK_EQUAL(answer, 0);
    const RECT whole = {10, 20, 310, 220};
    CHECK(EqualRect(&sizes.rgrc[0], &whole));
}

void stillness()
{
    for (const BOOL animated : {FALSE, TRUE}) {
        SystemParametersInfoW(SPI_SETCLIENTAREAANIMATION, 0,
                              reinterpret_cast<void *>(static_cast<UINT_PTR>(animated)), 0);
        CHECK_EQUAL(WindowSystem::wantsStillness(), !animated);
    }
}

void darkness()
{
    const wchar_t key[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";
    const wchar_t name[] = L"AppsUseLightTheme";
    const auto store = [&](DWORD type, const void *bytes, DWORD size) {
        RegSetKeyValueW(HKEY_CURRENT_USER, key, name, type, bytes, size);
        return WindowSystem::prefersDark().value_or(false);
    };
    const DWORD numbers[] = {0, 1};
    CHECK(store(REG_DWORD, &numbers[0], sizeof(DWORD)));
    CHECK(!store(REG_DWORD, &numbers[1], sizeof(DWORD)));
    // What makes no sense is the default.
    CHECK(!store(REG_SZ, L"0", 4));
    CHECK(!store(REG_BINARY, numbers, sizeof(numbers)));
    RegDeleteKeyValueW(HKEY_CURRENT_USER, key, name);
    CHECK(!WindowSystem::prefersDark().value_or(true));
}

/// Not every system can: what it says has to be what it did.
void capture()
{
    TestWindow window;
    const auto affinity = [&] {
        DWORD value = 0;
        return GetWindowDisplayAffinity(window.handle(), &value) ? value : 0;
    };
    CHECK_EQUAL(WindowSystem::hideFromCapture(number(window.handle()), true), affinity() != 0);
    WindowSystem::hideFromCapture(number(window.handle()), false);
    CHECK_EQUAL(affinity(), 0U);
    CHECK(!WindowSystem::hideFromCapture(0, true));
}

const Checks::Group groups[] = {{"window to the front", toTheFront},
                                {"adopted frame", adoptedFrame},
                                {"stillness", stillness},
                                {"dark windows", darkness},
                                {"screen capture", capture}};

} // namespace
