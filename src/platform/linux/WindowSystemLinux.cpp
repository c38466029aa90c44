#include "WindowSystem.h"

#include "XConnection.h"

#include <X11/Xatom.h>
#include <X11/extensions/shape.h>

#include <string>

namespace {

/// A window may be gone by the time that the server reads of it: that must not end the program.
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

class QuietErrors
{
public:
    QuietErrors()
        : m_before(XSetErrorHandler(ignoreError))
    {
    }
    ~QuietErrors() { XSetErrorHandler(m_before); }
    QuietErrors(const QuietErrors &) = delete;
    QuietErrors &operator=(const QuietErrors &) = delete;

private:
    XErrorHandler m_before;
};

} // namespace

bool WindowSystem::hasCompositor()
{
    const XConnection connection;
    Display *display = connection.display();
    if (!display)
        return false;
    const std::string name = "_NET_WM_CM_S" + std::to_string(DefaultScreen(display));
    return XGetSelectionOwner(display, XInternAtom(display, name.c_str(), False)) != None;
}

void WindowSystem::setShadowMargins(std::uintptr_t window, const Margins &shadow, int grip,
                                    int width, int height)
{
    const XConnection connection;
    Display *display = connection.display();
    if (!display)
        return;
    const QuietErrors quiet;
    // Left, right, top, bottom.
    const long extents[] = {shadow.left, shadow.right, shadow.top, shadow.bottom};
    const Atom name = XInternAtom(display, "_GTK_FRAME_EXTENTS", False);
    XChangeProperty(display, window, name, XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char *>(extents), 4);
    const auto held = [grip](int margin) { return margin > grip ? margin - grip : 0; };
    XRectangle inside;
    inside.x = static_cast<short>(held(shadow.left));
    inside.y = static_cast<short>(held(shadow.top));
    inside.width = static_cast<unsigned short>(width - inside.x - held(shadow.right));
    inside.height = static_cast<unsigned short>(height - inside.y - held(shadow.bottom));
    XShapeCombineRectangles(display, window, ShapeInput, 0, 0, &inside, 1, ShapeSet, Unsorted);
    XSync(display, False);
}

void WindowSystem::adoptFrame(std::uintptr_t, bool) {}

bool WindowSystem::answerFrameMessage(void *, std::intptr_t *)
{
    return false;
}

bool WindowSystem::hideFromCapture(std::uintptr_t, bool)
{
    return false;
}

std::optional<bool> WindowSystem::prefersDark()
{
    return std::nullopt;
}

bool WindowSystem::wantsStillness()
{
    return false;
}
