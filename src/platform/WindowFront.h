#pragma once

#include <cstdint>

/// Puts a shown window of this program before those of all others and gives it the keyboard, as the
/// user has just asked for it. False where the system does not let a program do that.
/// @param window the system's own handle of the window
bool putWindowInFront(std::uintptr_t window);
