#include "XConnection.h"

#include <cstdlib>

XConnection::XConnection(bool wanted)
    : m_display(wanted ? XOpenDisplay(nullptr) : nullptr)
{
    if (!m_display)
        return;
    // The usual handlers end the program. After these a window that is gone does no harm, and each
    // connection decides what its loss means; that of the windows still ends the program.
    XSetErrorHandler([](Display *, XErrorEvent *) { return 0; });
    XSetIOErrorHandler([](Display *) { return 0; });
    XSetIOErrorExitHandler(
        m_display, [](Display *, void *lost) { *static_cast<bool *>(lost) = true; }, &m_lost);
}

XConnection::~XConnection()
{
    if (m_display)
        XCloseDisplay(m_display);
}

bool XConnection::isGuest()
{
    const char *compositor = std::getenv("WAYLAND_DISPLAY");
    return compositor && *compositor;
}
