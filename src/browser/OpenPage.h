#pragma once

#include "Clock.h"

#include <QJsonObject>
#include <QObject>

class GPMWebSocketServer;

/// Asks the extension which page the user sees, for what is opened without its doing. Only the
/// answer to the newest question counts, from the connection that was asked.
class OpenPage : public QObject
{
    Q_OBJECT

public:
    /// The server must outlive this.
    explicit OpenPage(GPMWebSocketServer &server, Clock clock = systemTime,
                      QObject *parent = nullptr);

    /// found() follows when an extension is connected and answers.
    void ask();

    /// Whether a reply answers such a question; it is dealt with then.
    bool take(const QString &callerId, const QJsonObject &payload);

Q_SIGNALS:
    void found(const QString &url);

private:
    GPMWebSocketServer &m_server;
    Clock m_clock;
    QString m_caller;
    QString m_timestamp; ///< of the question; empty when none is open
};
