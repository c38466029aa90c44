#include "Check.h"
#include "OtherProgram.h"
#include "Platform.h"
#include "SystemHotkeys.h"
#include "TestWindow.h"

namespace {

using Keys = SystemHotkeys;

void pressKey(WORD key)
{
    sendKey(key, true);
    sendKey(key, false);
}

void enterKey()
{
    TestWindow window;
    CHECK(window.takeKeyboard());
    CHECK(Platform::create()->pressEnterKey());
    // The mark behind it shows that nothing came in between.
    pressKey(VK_F9);
    CHECK(waitUntil([&] { return window.count(WM_KEYUP, VK_F9) == 1; }));
    CHECK_EQUAL(window.count(WM_KEYDOWN, VK_RETURN), 1);
    CHECK_EQUAL(window.count(WM_CHAR, L'\r'), 1);
    CHECK_EQUAL(window.count(WM_KEYUP, VK_RETURN), 0);
    sendKey(VK_RETURN, false);
    CHECK(waitUntil([&] { return window.count(WM_KEYUP, VK_RETURN) == 1; }));
}

void capsLock()
{
    TestWindow window;
    CHECK(window.takeKeyboard());
    const auto platform = Platform::create();
    const bool before = platform->capsLockOn();
    for (const bool on : {!before, before}) {
        pressKey(VK_CAPITAL);
        CHECK(waitUntil([&] { return platform->capsLockOn() == on; }));
    }
    // Held down, it is not on for that.
    sendKey(VK_SHIFT, true);
    CHECK_EQUAL(platform->capsLockOn(), before);
    sendKey(VK_SHIFT, false);
}

void hotkeyClash()
{
    const auto keys = Keys::create();
    const auto result = [&](int id, const Keys::Combination &combination) {
        return static_cast<int>(keys->add(id, combination));
    };
    const int registered = static_cast<int>(Keys::Result::Registered);
    const int taken = static_cast<int>(Keys::Result::Taken);
    const int unsupported = static_cast<int>(Keys::Result::Unsupported);
    const Keys::Combination held = {Keys::Control | Keys::Alt, U'k'};
    {
        OtherProgram other(L"hotkey");
        CHECK(other.isReady());
        CHECK_EQUAL(result(1, held), taken);
        CHECK_EQUAL(result(2, {Keys::Control | Keys::Alt | Keys::Shift, U'k'}), registered);
        CHECK_EQUAL(other.end(), 0);
    }
    CHECK_EQUAL(result(1, held), registered);
    CHECK_EQUAL(static_cast<int>(Keys::create()->add(1, held)), taken);
    keys->remove(1);
    CHECK_EQUAL(static_cast<int>(Keys::create()->add(1, held)), registered);
    CHECK_EQUAL(result(3, {Keys::Control, U'\u0436'}), unsupported);
    CHECK_EQUAL(result(4, {Keys::Control, U'\U0001F511'}), unsupported);
    CHECK_EQUAL(result(5, {Keys::Control, Keys::ScrollLock + 1}), unsupported);
}

void hotkeyPressed()
{
    struct Row
    {
        Keys::Combination combination;
        std::vector<WORD> keys;
    };
    const Row rows[] = {
        {{Keys::Control | Keys::Alt, U'l'}, {VK_CONTROL, VK_MENU, 'L'}},
        {{Keys::Control | Keys::Shift, U'5'}, {VK_CONTROL, VK_SHIFT, '5'}},
        {{Keys::Alt, Keys::F1}, {VK_MENU, VK_F1}},
        {{Keys::Control, Keys::F24}, {VK_CONTROL, VK_F24}},
        {{Keys::Control | Keys::Alt, Keys::PageDown}, {VK_CONTROL, VK_MENU, VK_NEXT}},
    };
    TestWindow window;
    CHECK(window.takeKeyboard());
    const auto keys = Keys::create();
    std::vector<int> pressed;
    keys->setHandler([&](int id) { pressed.push_back(id); });
    int id = 0;
    for (const Row &row : rows) {
        CHECK(keys->add(++id, row.combination) == Keys::Result::Registered);
        for (const WORD key : row.keys)
            sendKey(key, true);
        for (auto key = row.keys.rbegin(); key != row.keys.rend(); ++key)
            sendKey(*key, false);
        CHECK(waitUntil([&] { return !pressed.empty(); }));
        CHECK_EQUAL(pressed.size(), 1U);
        CHECK_EQUAL(pressed.empty() ? 0 : pressed.front(), id);
        pressed.clear();
    }
    for (; id > 0; --id)
        keys->remove(id);
    sendKey(VK_MENU, true);
    pressKey(VK_F1);
    sendKey(VK_MENU, false);
    CHECK(waitUntil([&] { return window.count(WM_SYSKEYUP, VK_F1) == 1; }));
    CHECK(pressed.empty());
}

const Checks::Group groups[] = {{"enter key", enterKey},
                                {"caps lock", capsLock},
                                {"hotkey clash", hotkeyClash},
                                {"hotkey pressed", hotkeyPressed}};

} // namespace
