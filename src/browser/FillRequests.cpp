#include "FillRequests.h"

#include <algorithm>

qint64 FillRequests::nextTimestamp(qint64 now)
{
    // Two requests in one millisecond, or a clock set back, must not share a stamp.
    m_lastTimestamp = std::max(now, m_lastTimestamp + 1);
    return m_lastTimestamp;
}

qint64 FillRequests::add(const QString &itemId, FillRequest request, qint64 now)
{
    request.timestamp = nextTimestamp(now);
    m_requests.insert(itemId, request);
    return request.timestamp;
}

std::optional<FillRequest> FillRequests::find(const QString &itemId, qint64 timestamp) const
{
    const auto request = m_requests.find(itemId);
    if (request == m_requests.end() || request->timestamp != timestamp)
        return std::nullopt;
    return *request;
}

void FillRequests::markAskedForLoginPage(const QString &itemId)
{
    const auto request = m_requests.find(itemId);
    if (request != m_requests.end())
        request->askedForLoginPage = true;
}

void FillRequests::markFilled(const QString &itemId)
{
    const auto request = m_requests.find(itemId);
    if (request != m_requests.end())
        request->hasFilled = true;
}
