#include "WindowFront.h"
#include "XConnection.h"

#include <X11/Xatom.h>

namespace {

/// The server's present time, which it tells with a change of a property.
Time serverTime(Display *display, Window root)
{
    const Window window = XCreateSimpleWindow(display, root, 0, 0, 1, 1, 0, 0, 0);
    XSelectInput(display, window, PropertyChangeMask);
    XChangeProperty(display, window, XA_WM_NAME, XA_STRING, 8, PropModeAppend, nullptr, 0);
    XEvent event = {};
    XWindowEvent(display, window, PropertyChangeMask, &event);
    XDestroyWindow(display, window);
    return event.xproperty.time;
}

} // namespace

bool putWindowInFront(std::uintptr_t window)
{
    const XConnection server;
    Display *display = server.display();
    if (!display)
        return false;
    // Window managers let a window come forward that the user used later than the one in front,
    // and a hotkey or the browser was used now.
    const auto handle = static_cast<Window>(window);
    const Time now = serverTime(display, server.root());
    XChangeProperty(display, handle, XInternAtom(display, "_NET_WM_USER_TIME", False), XA_CARDINAL,
                    32, PropModeReplace, reinterpret_cast<const unsigned char *>(&now), 1);
    const long fromProgram = 1;
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = handle;
    event.xclient.message_type = XInternAtom(display, "_NET_ACTIVE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = fromProgram;
    event.xclient.data.l[1] = static_cast<long>(now);
    const Status sent = XSendEvent(display, server.root(), False,
                                   SubstructureNotifyMask | SubstructureRedirectMask, &event);
    XSync(display, False);
    return sent != 0;
}
