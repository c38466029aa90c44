#include "ExpiryText.h"

#include "ItemExpiry.h"

#include <QCoreApplication>

QString expiryText(const QDate &lastDay, const QDate &today)
{
    if (!lastDay.isValid() || !expiresSoon(lastDay, today))
        return {};
    const int days = int(today.daysTo(lastDay));
    if (days < 0)
        return QCoreApplication::translate("ExpiryText", "Expired");
    if (days == 0)
        return QCoreApplication::translate("ExpiryText", "Expires today");
    // The source language has no plural forms of its own without a translation file.
    if (days == 1)
        return QCoreApplication::translate("ExpiryText", "Expires in 1 day");
    return QCoreApplication::translate("ExpiryText", "Expires in %n days", nullptr, days);
}
