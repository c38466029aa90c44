#pragma once

#include <QDate>
#include <QString>

/// "Expires in 40 days", "Expires today" or "Expired" for an item whose last day is near or over;
/// empty for one that is valid for longer.
QString expiryText(const QDate &lastDay, const QDate &today);
