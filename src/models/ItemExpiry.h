#pragma once

#include <QDate>

#include <optional>

class PMListItem;

/// How many days before its last day an item counts as expiring.
constexpr int expiryWarningDays = 60;

/// The last day on which the card or document that an item describes is valid; nothing for kinds
/// that do not expire, and while month or year are not known. A card is valid to the end of its
/// month, and so is a document whose day is not known.
std::optional<QDate> itemExpiry(const PMListItem &item);

/// Whether the last day is over or at most expiryWarningDays away.
bool expiresSoon(const QDate &lastDay, const QDate &today);

/// Whether the last day is over.
bool isExpired(const QDate &lastDay, const QDate &today);
