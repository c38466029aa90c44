#include "ItemExpiry.h"

#include "PMCreditCard.h"
#include "PMDriverLicense.h"
#include "PMPassport.h"

namespace {

PMFieldTypes::Date storedExpiry(const PMListItem &item)
{
    switch (item.type()) {
    case PMListItem::CreditCard: {
        PMFieldTypes::Date date = static_cast<const PMCreditCard &>(item).expire();
        date.day = 0;
        return date;
    }
    case PMListItem::Passport:
        return static_cast<const PMPassport &>(item).expireDate();
    case PMListItem::DriverLicense:
        return static_cast<const PMDriverLicense &>(item).expireDate();
    default:
        return {};
    }
}

} // namespace

std::optional<QDate> itemExpiry(const PMListItem &item)
{
    const PMFieldTypes::Date stored = storedExpiry(item);
    const QDate month(stored.year, stored.month, 1);
    if (stored.year <= 0 || !month.isValid())
        return std::nullopt;
    const QDate day(stored.year, stored.month, stored.day);
    // A day that the month does not have stands for its end.
    return day.isValid() ? day : month.addMonths(1).addDays(-1);
}

bool expiresSoon(const QDate &lastDay, const QDate &today)
{
    return lastDay <= today.addDays(expiryWarningDays);
}

bool isExpired(const QDate &lastDay, const QDate &today)
{
    return lastDay < today;
}
