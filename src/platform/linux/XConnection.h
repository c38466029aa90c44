#pragma once

#include <X11/Xlib.h>

/// A connection to the X server that may be kept: when the server goes, the connection is lost and
/// the program stays. Without a server there is none from the start.
class XConnection
{
public:
    /// @param wanted without it there is none, either
    explicit XConnection(bool wanted = true);
    ~XConnection();
    XConnection(const XConnection &) = delete;
    XConnection &operator=(const XConnection &) = delete;

    /// Null while there is no connection.
    Display *display() const { return m_lost ? nullptr : m_display; }
    Window root() const { return DefaultRootWindow(m_display); }

    /// Whether the session is drawn by a Wayland compositor: an X server beside it sees the input
    /// to its own windows alone.
    static bool isGuest();

private:
    Display *m_display;
    bool m_lost = false;
};
