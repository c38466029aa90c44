#pragma once

#include "Clock.h"

#include <QJsonObject>
#include <QString>
#include <QTimer>

/// A password on its way into a page; forgotten, and wiped, when that page is not described within
/// half a minute.
class WaitingPassword
{
public:
    /// @param owner the object that its timer belongs to; outlives it
    WaitingPassword(Clock clock, QObject *owner);
    ~WaitingPassword();

    /// @param callerId the connection that was asked for the page
    /// @param timestamp names the request, in milliseconds since the epoch
    void start(const QString &password, const QString &callerId, qint64 timestamp);
    void forget();

    /// Whether the answer is to the request for this password. A late one describes a page that the
    /// user may have left.
    bool isFor(const QString &callerId, const QJsonObject &payload) const;

    const QString &password() const { return m_password; }

private:
    Clock m_clock;
    QString m_password;
    QString m_callerId;
    qint64 m_timestamp = 0;
    QTimer m_forgetTimer;
};
