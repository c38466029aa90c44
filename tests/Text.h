#pragma once

#include <QString>

/// The text of a test, without ceremony.
inline QString operator""_s(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}
