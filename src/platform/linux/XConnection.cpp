#include "XConnection.h"

#include <cstdlib>

XConnection::XConnection()
    : m_display(XOpenDisplay(nullptr))
{
    if (!m_display)
        return;
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
