#pragma once

#include <QString>

#include <functional>

/// Fills a buffer with random bytes; false when the source fails.
using RandomBytes = std::function<bool(unsigned char *buffer, int size)>;

/// A new random password: letters and digits that are not mistaken for each other, with some
/// places taken by special characters.
/// @param length the number of characters, 1024 at most; a negative one counts as 1024
/// @param specialCount how many of them are special; when so many places are not found there are
///     none at all
/// @param random called once, for 1024 bytes
/// @return the empty string when the random source fails
QString generatePassword(int length, int specialCount, const RandomBytes &random);
