#include "CapturedLogins.h"

#include <algorithm>

CapturedLogins::CapturedLogins(Clock clock, QObject *owner)
    : m_clock(std::move(clock))
    , m_timer(owner)
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, owner, [this] { forgetOld(); });
}

void CapturedLogins::add(const QString &callerId, const QString &captureId,
                         const SaveLoginRequest &request)
{
    take(callerId, captureId);
    while (m_captures.size() >= most)
        m_captures.removeFirst();
    m_captures.append({callerId, captureId, request, m_clock().addMSecs(patience.count())});
    forgetOld();
}

std::optional<std::pair<SaveLoginRequest, QDateTime>> CapturedLogins::take(const QString &callerId,
                                                                           const QString &captureId)
{
    // A timer stands still while the computer sleeps.
    forgetOld();
    const auto found =
        std::find_if(m_captures.begin(), m_captures.end(), [&](const Capture &capture) {
            return capture.callerId == callerId && capture.captureId == captureId;
        });
    if (found == m_captures.end())
        return std::nullopt;
    const auto taken = std::make_pair(found->request, found->until);
    m_captures.erase(found);
    return taken;
}

void CapturedLogins::clear()
{
    m_captures.clear();
    m_timer.stop();
}

void CapturedLogins::forgetOld()
{
    const QDateTime now = m_clock();
    // A clock that was set back must not keep them longer.
    const auto isOver = [&now](const Capture &capture) {
        const qint64 left = now.msecsTo(capture.until);
        return left <= 0 || left > patience.count();
    };
    m_captures.erase(std::remove_if(m_captures.begin(), m_captures.end(), isOver),
                     m_captures.end());
    if (m_captures.isEmpty())
        m_timer.stop();
    else
        m_timer.start(static_cast<int>(now.msecsTo(m_captures.first().until)));
}
