#include "WaitingPassword.h"

#include "FillRequests.h"
#include "SecretBytes.h"

WaitingPassword::WaitingPassword(Clock clock, QObject *owner)
    : m_clock(std::move(clock))
    , m_forgetTimer(owner)
{
    m_forgetTimer.setSingleShot(true);
    m_forgetTimer.setInterval(answerPatience);
    QObject::connect(&m_forgetTimer, &QTimer::timeout, [this] { forget(); });
}

WaitingPassword::~WaitingPassword()
{
    forget();
}

void WaitingPassword::start(const QString &password, const QString &callerId, qint64 timestamp)
{
    forget();
    m_password = password;
    m_callerId = callerId;
    m_timestamp = timestamp;
    m_forgetTimer.start();
}

void WaitingPassword::forget()
{
    m_forgetTimer.stop();
    wipe(m_password);
    m_password.clear();
    m_callerId.clear();
    m_timestamp = 0;
}

bool WaitingPassword::isFor(const QString &callerId, const QJsonObject &payload) const
{
    if (m_password.isEmpty() || m_callerId != callerId)
        return false;
    // A timer stands still while the computer sleeps.
    if (m_clock().toMSecsSinceEpoch() - m_timestamp > answerPatience.count())
        return false;
    return payload.value(QLatin1String("timestamp")).toString().toLongLong() == m_timestamp;
}
