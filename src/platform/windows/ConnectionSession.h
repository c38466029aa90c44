#pragma once

#include <cstdint>
#include <optional>

/// The process at the end 127.0.0.1:`port` of a connection to 127.0.0.1:`toPort`; 0 when the system
/// does not know it.
std::optional<unsigned long> connectionProcess(std::uint16_t port, std::uint16_t toPort);

/// The session that a process belongs to, whosever it is. Nothing when it has ended.
std::optional<unsigned long> processSession(unsigned long process);

/// Whether a session is that of another user: neither that of this program nor that of services,
/// which on some computers stand between a browser and whoever it talks to.
bool isForeignSession(unsigned long session, unsigned long own);
