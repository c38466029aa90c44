#pragma once

#include <cstdint>
#include <memory>
#include <string>

/// Every call to the operating system that Qt does not make for us. No Qt types here, so that this
/// room builds and is tested alone. All functions are safe to call where the system lacks the
/// feature: they then return false, an empty text or 0.
class Platform
{
public:
    virtual ~Platform() = default;

    /// The implementation for the system that this was built for.
    static std::unique_ptr<Platform> create();

    /// Puts one key-down of Enter, without a key-up, into the window that has the keyboard.
    virtual bool pressEnterKey() = 0;

    /// Whether Caps Lock is switched on.
    virtual bool capsLockOn() = 0;

    /// A text value below HKEY_CURRENT_USER, in UTF-8; empty where there is no registry or value.
    virtual std::string currentUserRegistryValue(const std::string &key,
                                                 const std::string &name) = 0;

    /// Version code of Windows: 0x90 for 7, 0xA0 for 8, 0xB0 for 8.1, 0xC0 for 10, 0xD0 for later
    /// ones, 0x20 to 0x80 for older ones, 0x10 for an unknown one. 0 on other systems.
    virtual int windowsVersionCode() = 0;

    /// Whether another user is at the end 127.0.0.1:`port` of a connection to 127.0.0.1:`toPort`.
    /// False also where the system does not tell.
    virtual bool isForeignConnection(std::uint16_t port, std::uint16_t toPort) = 0;

protected:
    Platform() = default;
    Platform(const Platform &) = delete;
    Platform &operator=(const Platform &) = delete;
};
