#pragma once

#include <cstdint>
#include <istream>
#include <optional>

/// The user id that the kernel's table of TCP connections (/proc/net/tcp) names for the end at
/// 127.0.0.1:`port` of the connection to 127.0.0.1:`toPort`; none when the connection is not in it.
std::optional<unsigned> connectionOwner(std::istream &table, std::uint16_t port,
                                        std::uint16_t toPort);
