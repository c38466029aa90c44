#include "ForeignClipboard.h"
#include "XConnection.h"

#include <X11/Xatom.h>
#include <chrono>
#include <poll.h>

namespace {

using Steady = std::chrono::steady_clock;

// Longer texts come in pieces, which is nothing for a short wait.
const long longestText = 1 << 18;

bool waitForAnswer(Display *display, XEvent &answer, Steady::time_point until)
{
    while (!XCheckTypedEvent(display, SelectionNotify, &answer)) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(until - Steady::now()).count();
        pollfd server = {ConnectionNumber(display), POLLIN, 0};
        if (left <= 0 || poll(&server, 1, static_cast<int>(left)) <= 0)
            return false;
    }
    return true;
}

std::optional<std::string> takeText(Display *display, Window window, Atom property)
{
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char *data = nullptr;
    const int result = XGetWindowProperty(display, window, property, 0, longestText / 4, True,
                                          AnyPropertyType, &type, &format, &count, &rest, &data);
    std::optional<std::string> text;
    if (result == Success && data && format == 8 && rest == 0)
        text.emplace(reinterpret_cast<const char *>(data), count);
    if (data)
        XFree(data);
    return text;
}

} // namespace

std::optional<std::string> foreignClipboardText(int timeoutMs)
{
    const XConnection server;
    Display *display = server.display();
    if (!display)
        return {};
    const Atom text = XInternAtom(display, "UTF8_STRING", False);
    const Atom property = XInternAtom(display, "GLACERON_CLIPBOARD", False);
    const Window window = XCreateSimpleWindow(display, server.root(), 0, 0, 1, 1, 0, 0, 0);
    XConvertSelection(display, XInternAtom(display, "CLIPBOARD", False), text, property, window,
                      CurrentTime);
    XFlush(display);
    XEvent answer = {};
    const auto until = Steady::now() + std::chrono::milliseconds(timeoutMs);
    if (!waitForAnswer(display, answer, until) || answer.xselection.property == None)
        return {};
    return takeText(display, window, property);
}
