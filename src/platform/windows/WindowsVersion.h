#pragma once

#include <cstdint>

/// The code of Platform::windowsVersionCode() for the numbers that Windows has for itself.
int windowsVersionCode(std::uint32_t major, std::uint32_t minor, std::uint32_t build);
