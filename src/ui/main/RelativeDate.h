#pragma once

#include <QDateTime>
#include <QString>

/// "today", "yesterday" or "3 days ago", by the whole days that have passed since the moment.
QString relativeDate(const QDateTime &moment, const QDateTime &now);

/// The same with the time of day, "yesterday in 18:04".
QString relativeMoment(const QDateTime &moment, const QDateTime &now);
