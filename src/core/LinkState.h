#pragma once

#include "GPMSafe.h"

#include <QJsonObject>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class GPMWebSocketServer;
class PageLogins;

/// Tells the extension how things stand: whether a safe is open, which one, and how many of its
/// logins belong to a page. It is told when asked and when that changes.
class LinkState : public QObject
{
    Q_OBJECT

public:
    using FindSafe = std::function<std::shared_ptr<GPMSafe>()>;

    /// The server and the logins outlive this.
    /// @param safe the current one; null while there is none
    LinkState(GPMWebSocketServer &server, PageLogins &logins, FindSafe safe,
              QObject *parent = nullptr);

public Q_SLOTS:
    /// Answers the question of an extension.
    void answer(const QString &callerId, const QJsonObject &question);
    /// Something changed that extensions want to know; told once for all that changes in one turn
    /// of the event loop.
    void tell() { m_telling.start(); }

private:
    QJsonObject stateFor(const QString &url) const;
    void tellNow();

    GPMWebSocketServer &m_server;
    PageLogins &m_logins;
    FindSafe m_safe;
    QTimer m_telling;
    QString m_caller; ///< who asked last, and about which page
    QString m_url;
};
