#pragma once

#include "Platform.h"

class FakePlatform : public Platform
{
public:
    int enterPresses = 0;
    bool foreignConnections = false;

    bool pressEnterKey() override
    {
        ++enterPresses;
        return true;
    }
    bool capsLockOn() override { return false; }
    std::string currentUserRegistryValue(const std::string &, const std::string &) override
    {
        return {};
    }
    int windowsVersionCode() override { return 0; }
    bool isForeignConnection(std::uint16_t, std::uint16_t) override { return foreignConnections; }
};
