#pragma once

#include <QJsonObject>
#include <QObject>
#include <QVector>

#include <functional>
#include <optional>

class QWebSocket;

/// Connections behind the one that is served, or without approval. Of what they send only the
/// "hello" counts. One that leaves is forgotten and deleted.
class WaitingExtensions : public QObject
{
    Q_OBJECT

public:
    struct Waiting
    {
        QWebSocket *socket = nullptr;
        QJsonObject hello; ///< empty when it has not been said yet
    };

    using QObject::QObject;

    /// Ends and deletes the connection when too many wait.
    void add(QWebSocket *socket);
    bool hasSaidHello(const QWebSocket *socket) const;
    /// The first connection that may go on, which is the caller's now.
    std::optional<Waiting> takeFirst(const std::function<bool(const QWebSocket &)> &mayGoOn);
    /// Ends those of the origin.
    void close(const QString &origin);
    QVector<QWebSocket *> takeAll();

Q_SIGNALS:
    void saidHello(QWebSocket *socket);

private:
    void hear(QWebSocket *socket, const QString &message);
    void forget(QWebSocket *socket);

    QVector<Waiting> m_all;
};
