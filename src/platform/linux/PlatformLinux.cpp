#include "ConnectionOwner.h"
#include "Platform.h"
#include "XConnection.h"

#include <X11/XKBlib.h>
#include <X11/keysym.h>

#include <fstream>

#include <unistd.h>

namespace {

class PlatformLinux : public Platform
{
public:
    /// A sent event, not a synthetic key of the server: a key that the server believes held down
    /// would repeat for ever without its key-up.
    bool pressEnterKey() override
    {
        const XConnection server;
        Display *display = server.display();
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
        event.xkey.root = server.root();
        event.xkey.time = CurrentTime;
        event.xkey.same_screen = True;
        event.xkey.keycode = XKeysymToKeycode(display, XK_Return);
        const bool sent = XSendEvent(display, focus, True, KeyPressMask, &event) != 0;
        XSync(display, False);
        return sent;
    }

    bool capsLockOn() override
    {
        const XConnection server;
        Display *display = server.display();
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

    bool isForeignConnection(std::uint16_t port, std::uint16_t toPort) override
    {
        for (const char *path : {"/proc/net/tcp", "/proc/net/tcp6"}) {
            std::ifstream table(path);
            const std::optional<unsigned> owner = connectionOwner(table, port, toPort);
            if (owner)
                return *owner != getuid();
        }
        return false;
    }
};

} // namespace

std::unique_ptr<Platform> Platform::create()
{
    return std::make_unique<PlatformLinux>();
}
