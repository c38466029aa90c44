#include "ConnectionOwner.h"

#include <arpa/inet.h>

#include <array>
#include <cstdio>
#include <sstream>
#include <string>

namespace {

/// As the table writes it: the address as the machine's own number, the port as a plain one.
std::string localEnd(std::uint16_t port)
{
    std::array<char, 16> text = {};
    std::snprintf(text.data(), text.size(), "%08X:%04X", htonl(INADDR_LOOPBACK), unsigned{port});
    return text.data();
}

bool endsWith(const std::string &text, const std::string &end)
{
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

std::optional<unsigned> connectionOwner(std::istream &table, std::uint16_t port,
                                        std::uint16_t toPort)
{
    const std::string from = localEnd(port);
    const std::string to = localEnd(toPort);
    std::string line;
    while (std::getline(table, line)) {
        std::istringstream row(line);
        std::string number, local, remote, state, queues, timer, retries;
        unsigned owner = 0;
        row >> number >> local >> remote >> state >> queues >> timer >> retries >> owner;
        // The table of IPv6 has more digits before an address of IPv4.
        if (row && endsWith(local, from) && endsWith(remote, to))
            return owner;
    }
    return std::nullopt;
}
