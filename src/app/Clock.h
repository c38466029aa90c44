#pragma once

#include <QDateTime>

#include <functional>

/// The current time in UTC. Tests give one of their own.
using Clock = std::function<QDateTime()>;

inline QDateTime systemTime()
{
    return QDateTime::currentDateTimeUtc();
}
