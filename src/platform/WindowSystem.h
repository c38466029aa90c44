#pragma once

#include <cstdint>
#include <optional>

/// What windows with a frame of our own ask of the system. Safe to call where the system lacks it.
namespace WindowSystem {

/// Around a window, in device pixels.
struct Margins
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// Whether something blends windows, so that a shadow can be drawn around them. X11 alone.
bool hasCompositor();

/// Tells the window manager that the margins of a window are its shadow, which it then leaves out
/// when it places the window beside others, and lets the pointer through there. X11 alone.
/// @param window the native identifier
/// @param grip how much of the margins stays with the window, to be dragged
void setShadowMargins(std::uintptr_t window, const Margins &shadow, int grip, int width,
                      int height);

/// Gives a window without a frame back what the system knows of framed ones: its shadow, snapping,
/// the animations of minimising and maximising. Windows alone.
void adoptFrame(std::uintptr_t window, bool resizable);

/// Answers the messages by which the system draws and drags the frame of an adopted window. Windows
/// alone.
/// @param message the native message
/// @return whether it is answered, by the result
bool answerFrameMessage(void *message, std::intptr_t *result);

/// Leaves a window out of screenshots, recordings and shared screens, or lets it appear there
/// again. False where the system cannot. Windows alone.
bool hideFromCapture(std::uintptr_t window, bool hide);

/// Whether the user has chosen dark windows, where Qt's palette does not follow that. Windows
/// alone.
std::optional<bool> prefersDark();

/// Whether the user has switched animations off. Windows alone.
bool wantsStillness();

} // namespace WindowSystem
