#pragma once

#include "RandomSource.h"

#include <QDate>
#include <QString>

class PMListItem;

/// What can be wrong with an item.
enum class HealthProblem { Weak, Reused, Old, Insecure, Expiring };
constexpr int healthProblemCount = 5;

/// The password of a kind that has one; empty for other kinds.
QString itemPassword(const PMListItem &item);

/// Whether an address is a plain http one of a host on the open net: not of this computer, of the
/// local network, or of a name without a dot.
bool isInsecureAddress(const QString &address);

/// Whether a password that was last changed with its item then is older than two years.
bool isOldPassword(const QDateTime &modified, const QDate &today);

/// Whether the user does not want to be told of a problem of an item. That ends when what it is
/// about changes: the password, the address, or the date.
bool isHealthIgnored(const PMListItem &item, HealthProblem problem);

/// Notes it with the item, which counts as changed then but keeps its time of change.
void setHealthIgnored(PMListItem &item, HealthProblem problem, bool ignored,
                      const RandomSource &random = systemRandom);
