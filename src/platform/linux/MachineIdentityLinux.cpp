#include "MachineIdentity.h"

#include <algorithm>
#include <fstream>

namespace {

bool isMachineId(const std::string &text)
{
    const auto isHex = [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
    return text.size() == 32 && std::all_of(text.begin(), text.end(), isHex);
}

} // namespace

std::string machineIdentity()
{
    for (const char *path : {"/etc/machine-id", "/var/lib/dbus/machine-id"}) {
        std::ifstream file(path);
        std::string id;
        // A system that was never started says "uninitialized".
        if (std::getline(file, id) && isMachineId(id))
            return id;
    }
    return {};
}
