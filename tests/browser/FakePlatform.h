#pragma once

#include "Platform.h"

class FakePlatform : public Platform
{
public:
    int enterPresses = 0;

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
};
