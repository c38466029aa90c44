#include "SystemHotkeys.h"
#include "XConnection.h"

#include <X11/XKBlib.h>
#include <X11/keysym.h>
#include <map>
#include <utility>
#include <vector>

namespace {

using Keys = SystemHotkeys;

KeySym specialKeySym(char32_t key)
{
    if (key >= Keys::F1 && key <= Keys::F24)
        return XK_F1 + (key - Keys::F1);
    struct Row
    {
        char32_t key;
        KeySym symbol;
    };
    static const Row rows[] = {{Keys::Escape, XK_Escape},
                               {Keys::Tab, XK_Tab},
                               {Keys::Backspace, XK_BackSpace},
                               {Keys::Return, XK_Return},
                               {Keys::Insert, XK_Insert},
                               {Keys::Delete, XK_Delete},
                               {Keys::Home, XK_Home},
                               {Keys::End, XK_End},
                               {Keys::PageUp, XK_Prior},
                               {Keys::PageDown, XK_Next},
                               {Keys::Left, XK_Left},
                               {Keys::Up, XK_Up},
                               {Keys::Right, XK_Right},
                               {Keys::Down, XK_Down},
                               {Keys::Pause, XK_Pause},
                               {Keys::Print, XK_Print},
                               {Keys::ScrollLock, XK_Scroll_Lock}};
    for (const Row &row : rows) {
        if (row.key == key)
            return row.symbol;
    }
    return NoSymbol;
}

KeySym keySym(char32_t key)
{
    if (key >= Keys::F1)
        return specialKeySym(key);
    // Latin 1 is itself, the rest of Unicode follows above this offset.
    return key < 0x100 ? key : 0x01000000 + key;
}

unsigned modifierMask(unsigned modifiers)
{
    return (modifiers & Keys::Shift ? unsigned(ShiftMask) : 0U) |
           (modifiers & Keys::Control ? unsigned(ControlMask) : 0U) |
           (modifiers & Keys::Alt ? unsigned(Mod1Mask) : 0U) |
           (modifiers & Keys::Meta ? unsigned(Mod4Mask) : 0U);
}

const unsigned ourModifiers = ShiftMask | ControlMask | Mod1Mask | Mod4Mask;
// Caps Lock and Num Lock: a combination counts whatever they are.
const unsigned lockStates[] = {0, LockMask, Mod2Mask, LockMask | Mod2Mask};

/// Notes instead of the usual handler that the server refused something.
class ErrorTrap
{
public:
    explicit ErrorTrap(Display *display)
        : m_display(display)
    {
        s_refused = false;
        m_before = XSetErrorHandler([](Display *, XErrorEvent *) {
            s_refused = true;
            return 0;
        });
    }
    ~ErrorTrap() { XSetErrorHandler(m_before); }
    ErrorTrap(const ErrorTrap &) = delete;
    ErrorTrap &operator=(const ErrorTrap &) = delete;

    bool refused() const
    {
        XSync(m_display, False);
        return s_refused;
    }

private:
    static bool s_refused;
    Display *m_display;
    XErrorHandler m_before;
};

bool ErrorTrap::s_refused = false;

class SystemHotkeysLinux : public SystemHotkeys
{
public:
    SystemHotkeysLinux()
    {
        // A key that is held repeats without seeming to be let go.
        if (m_server.display())
            XkbSetDetectableAutoRepeat(m_server.display(), True, nullptr);
    }

    Result add(int id, const Combination &combination) override
    {
        Display *display = m_server.display();
        if (!display)
            return Result::Unsupported;
        const KeyCode code = XKeysymToKeycode(display, keySym(combination.key));
        if (code == 0)
            return Result::Unsupported;
        const Grab grab = {combination, code, modifierMask(combination.modifiers)};
        if (!take(grab)) {
            release(grab);
            return Result::Taken;
        }
        m_grabs[id] = grab;
        return Result::Registered;
    }

    void remove(int id) override
    {
        const auto grab = m_grabs.find(id);
        if (grab == m_grabs.end())
            return;
        release(grab->second);
        m_grabs.erase(grab);
    }

    int descriptor() const override
    {
        Display *display = m_server.display();
        return display ? ConnectionNumber(display) : -1;
    }

    void readEvents() override
    {
        std::vector<int> pressed;
        while (m_server.display() && XPending(m_server.display()) > 0) {
            XEvent event = {};
            XNextEvent(m_server.display(), &event);
            if (event.type == MappingNotify)
                followKeyboard(event.xmapping);
            else if (event.type == KeyRelease)
                m_held = 0;
            else if (event.type == KeyPress &&
                     std::exchange(m_held, event.xkey.keycode) != event.xkey.keycode)
                notePress(event.xkey, pressed);
        }
        for (const int id : pressed)
            tellPressed(id);
    }

private:
    struct Grab
    {
        Combination combination;
        KeyCode code = 0;
        unsigned modifiers = 0;
    };

    bool take(const Grab &grab)
    {
        const ErrorTrap trap(m_server.display());
        for (const unsigned locks : lockStates)
            XGrabKey(m_server.display(), grab.code, grab.modifiers | locks, m_server.root(), False,
                     GrabModeAsync, GrabModeAsync);
        return !trap.refused();
    }

    void release(const Grab &grab)
    {
        if (!m_server.display())
            return;
        // What another program holds is left to it.
        const ErrorTrap trap(m_server.display());
        for (const unsigned locks : lockStates)
            XUngrabKey(m_server.display(), grab.code, grab.modifiers | locks, m_server.root());
        (void)trap.refused();
    }

    /// Another layout may have the key in another place.
    void followKeyboard(XMappingEvent &mapping)
    {
        XRefreshKeyboardMapping(&mapping);
        if (mapping.request != MappingKeyboard)
            return;
        for (auto &[id, grab] : m_grabs) {
            const KeyCode code = XKeysymToKeycode(m_server.display(), keySym(grab.combination.key));
            if (code == 0 || code == grab.code)
                continue;
            release(grab);
            grab.code = code;
            take(grab);
        }
    }

    void notePress(const XKeyEvent &key, std::vector<int> &pressed) const
    {
        for (const auto &[id, grab] : m_grabs) {
            if (grab.code == key.keycode && grab.modifiers == (key.state & ourModifiers))
                pressed.push_back(id);
        }
    }

    XConnection m_server{!XConnection::isGuest()};
    std::map<int, Grab> m_grabs;
    unsigned m_held = 0; ///< the key that is down
};

} // namespace

std::unique_ptr<SystemHotkeys> SystemHotkeys::create()
{
    return std::make_unique<SystemHotkeysLinux>();
}
