#pragma once

#include <QHostAddress>

/// Whether an address belongs to the open internet: not to this computer, a local network, a
/// range that is reserved, or a way around that leads to one of these.
bool isPublicAddress(const QHostAddress &address);

/// Whether a host is by its name a device nearby: an IP address that is not public, "localhost", a
/// name of one label, or one below a domain that local networks use.
bool isLocalHost(const QString &host);
