#pragma once

#include "Clock.h"
#include "SaveLogin.h"

#include <QTimer>
#include <QVector>

#include <chrono>
#include <optional>

/// Logins that were sent by a page of which nobody knows yet whether it accepted them. Kept for a
/// minute at most, and only a few: a page can submit as often as it likes.
class CapturedLogins
{
public:
    static constexpr std::chrono::milliseconds patience = std::chrono::seconds(60);
    static constexpr int most = 8;

    /// @param owner the object that its timer belongs to; outlives it
    CapturedLogins(Clock clock, QObject *owner);

    /// @param callerId the connection that reported it, which alone can name it again
    void add(const QString &callerId, const QString &captureId, const SaveLoginRequest &request);
    /// Hands it out, once, with the end of its minute; none when there is none such, or no more.
    std::optional<std::pair<SaveLoginRequest, QDateTime>> take(const QString &callerId,
                                                               const QString &captureId);
    void clear();

    int count() const { return m_captures.size(); }

private:
    struct Capture
    {
        QString callerId;
        QString captureId;
        SaveLoginRequest request;
        QDateTime until;
    };

    void forgetOld();

    Clock m_clock;
    QVector<Capture> m_captures; ///< the oldest first
    QTimer m_timer;
};
