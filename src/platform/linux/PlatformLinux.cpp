#include "Platform.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

namespace {

/// One connection to the X server for one call: the calls are rare, and a connection kept open
/// would end the program together with the server.
class XConnection
{
public:
    XConnection()
        : m_display(XOpenDisplay(nullptr))
    {
    }
    ~XConnection()
    {
        if (m_display)
            XCloseDisplay(m_display);
    }
    XConnection(const XConnection &) = delete;
    XConnection &operator=(const XConnection &) = delete;
    operator Display *() const { return m_display; }

private:
    Display *m_display;
};

class PlatformLinux : public Platform
{
public:
    /// A sent event, not a synthetic key of the server: a key that the server believes held down
    /// would repeat for ever without its key-up.
    bool pressEnterKey() override
    {
        const XConnection display;
        if (!display)
            return false;
        Window focus = None;
        int revert = 0;
        XGetInputFocus(display, &focus, &revert);
        if (focus == None || focus == PointerRoot)
            return false;

        XEvent event = {};
        event.xkey.type = KeyPress;
        event.xkey.display = display;
        event.xkey.window = focus;
        event.xkey.root = DefaultRootWindow(static_cast<Display *>(display));
        event.xkey.time = CurrentTime;
        event.xkey.same_screen = True;
        event.xkey.keycode = XKeysymToKeycode(display, XK_Return);
        const bool sent = XSendEvent(display, focus, True, KeyPressMask, &event) != 0;
        XSync(display, False);
        return sent;
    }

    bool capsLockOn() override
    {
        const XConnection display;
        XkbStateRec state = {};
        if (!display || XkbGetState(display, XkbUseCoreKbd, &state) != Success)
            return false;
        return (state.locked_mods & LockMask) != 0;
    }

    std::string currentUserRegistryValue(const std::string &, const std::string &) override
    {
        return {};
    }

    int windowsVersionCode() override { return 0; }
};

} // namespace

std::unique_ptr<Platform> Platform::create()
{
    return std::make_unique<PlatformLinux>();
}
