#pragma once

#include <functional>

/// Fills a buffer with random bytes; false when the source fails. Tests give one of their own.
using RandomSource = std::function<bool(unsigned char *buffer, int size)>;

/// OpenSSL's cryptographic generator.
bool systemRandom(unsigned char *buffer, int size);
