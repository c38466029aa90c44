#include "PublicAddress.h"

#include <QPair>
#include <QString>

#include <algorithm>
#include <iterator>

namespace {

struct Range
{
    const char *network;
    int bits;
};

/// What has a meaning of its own among the addresses of version 4.
const Range reserved[] = {
    {"0.0.0.0", 8},      {"10.0.0.0", 8},     {"100.64.0.0", 10}, {"127.0.0.0", 8},
    {"169.254.0.0", 16}, {"172.16.0.0", 12},  {"192.0.0.0", 24},  {"192.0.2.0", 24},
    {"192.88.99.0", 24}, {"192.168.0.0", 16}, {"198.18.0.0", 15}, {"198.51.100.0", 24},
    {"203.0.113.0", 24}, {"224.0.0.0", 3},
};

/// All else of version 6 is local, reserved, or not handed out.
const Range global = {"2000::", 3};

/// Tunnels, whose other end is hidden in the address, examples, and what routers do not pass on.
const Range reservedInGlobal[] = {
    {"2001::", 23}, {"2001:db8::", 32}, {"2002::", 16}, {"3fff::", 20}};

/// Addresses of version 4 as networks of version 6 alone reach them.
const Range translated = {"64:ff9b::", 96};

const char *const localDomains[] = {"localhost", "local",    "localdomain", "lan",  "home",
                                    "home.arpa", "internal", "intranet",    "corp", "private"};

bool isIn(const QHostAddress &address, const Range &range)
{
    return address.isInSubnet(QHostAddress(QLatin1String(range.network)), range.bits);
}

template <typename Ranges>
bool isInOne(const QHostAddress &address, const Ranges &ranges)
{
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [&address](const Range &range) { return isIn(address, range); });
}

quint32 lastFourBytes(const QHostAddress &address)
{
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    quint32 value = 0;
    for (int i = 12; i < 16; ++i)
        value = (value << 8) | bytes[i];
    return value;
}

} // namespace

bool isPublicAddress(const QHostAddress &address)
{
    bool isVersion4 = false;
    const quint32 version4 = address.toIPv4Address(&isVersion4); // a mapped one, too
    if (isVersion4)
        return !isInOne(QHostAddress(version4), reserved);
    if (address.protocol() != QAbstractSocket::IPv6Protocol)
        return false;
    if (isIn(address, translated))
        return isPublicAddress(QHostAddress(lastFourBytes(address)));
    return isIn(address, global) && !isInOne(address, reservedInGlobal);
}

bool isLocalHost(const QString &host)
{
    const QHostAddress address(host);
    if (!address.isNull())
        return !isPublicAddress(address);
    if (!host.contains(QLatin1Char('.')))
        return !host.isEmpty();
    return std::any_of(std::begin(localDomains), std::end(localDomains), [&host](const char *name) {
        return host.endsWith(QLatin1Char('.') + QLatin1String(name));
    });
}
