#include "Check.h"
#include "OtherProgram.h"
#include "SessionMessages.h"
#include "TestWindow.h"
#include "UserActivity.h"

#include <wtsapi32.h>

namespace {

void lastInput()
{
    TestWindow window;
    CHECK(window.takeKeyboard());
    const auto activity = UserActivity::create();
    const std::uint32_t before = activity->tickCount();
    sendKey(VK_SHIFT, true);
    sendKey(VK_SHIFT, false);
    CHECK(waitUntil([&] {
        const auto tick = activity->lastInputTick();
        return tick && std::int32_t(*tick - before) >= 0;
    }));
    const std::uint32_t first = activity->lastInputTick().value_or(0);
    CHECK(std::int32_t(activity->tickCount() - first) >= 0);

    // Without input the idle time grows.
    CHECK(waitUntil([&] { return activity->tickCount() - first >= 50; }));
    CHECK_EQUAL(activity->lastInputTick().value_or(0), first);
    sendKey(VK_SHIFT, true);
    sendKey(VK_SHIFT, false);
    CHECK(waitUntil([&] { return activity->lastInputTick().value_or(first) - first >= 50; }));
}

void screenSaver()
{
    const auto activity = UserActivity::create();
    for (const BOOL running : {FALSE, TRUE, FALSE}) {
        SystemParametersInfoW(SPI_SETSCREENSAVERRUNNING, UINT(running), nullptr, 0);
        CHECK(activity->screenSaverRunning().has_value());
        CHECK_EQUAL(activity->screenSaverRunning().value_or(!running), running != FALSE);
        OtherProgram other(L"screensaver");
        CHECK_EQUAL(other.end(), int(running));
    }
}

void sessionMessages()
{
    using Event = SessionMessages::Event;
    std::vector<Event> events;
    auto messages = SessionMessages::create([&](Event event) { events.push_back(event); });
    const HWND window = FindWindowW(L"GlaceronMessages", nullptr);
    CHECK(window != nullptr);
    struct Row
    {
        const char *name;
        UINT message;
        WPARAM word;
        std::vector<Event> events;
    };
    const Row rows[] = {
        {"locked", WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, {Event::Locked}},
        {"unlocked", WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK, {}},
        {"another user", WM_WTSSESSION_CHANGE, WTS_CONSOLE_DISCONNECT, {Event::UserSwitched}},
        {"back", WM_WTSSESSION_CHANGE, WTS_CONSOLE_CONNECT, {}},
        {"remote end", WM_WTSSESSION_CHANGE, WTS_REMOTE_DISCONNECT, {Event::UserSwitched}},
        {"sleep", WM_POWERBROADCAST, PBT_APMSUSPEND, {Event::GoingToSleep}},
        {"awake", WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC, {}},
        {"battery", WM_POWERBROADCAST, PBT_APMPOWERSTATUSCHANGE, {}},
        {"the same number", WM_USER, WTS_SESSION_LOCK, {}},
    };
    // Asked to close, it goes on listening.
    SendMessageW(window, WM_CLOSE, 0, 0);
    for (const Row &row : rows) {
        events.clear();
        SendMessageW(window, row.message, row.word, 1);
        CHECK_ROW(row.name, events == row.events, true);
    }
    messages.reset();
    CHECK(FindWindowW(L"GlaceronMessages", nullptr) == nullptr);
}

const Checks::Group groups[] = {{"last input", lastInput},
                                {"screen saver", screenSaver},
                                {"session messages", sessionMessages}};

} // namespace
