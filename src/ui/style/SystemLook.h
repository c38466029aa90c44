#pragma once

/// What the system asks of the look of programs.
namespace SystemLook {

bool isDark();
bool wantsReducedMotion();

} // namespace SystemLook
