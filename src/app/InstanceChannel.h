#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <memory>

class QLocalSocket;

/// The meeting point of the instances that share one folder: the first to come holds a lock file
/// and listens on a local socket, the others send to it.
class InstanceChannel : public QObject
{
    Q_OBJECT

public:
    explicit InstanceChannel(QObject *parent = nullptr);

    /// Tries to become the instance of the folder, which is made when it is missing. False only
    /// when another one is; a folder that cannot be written to has no other.
    bool acquire(const QString &folder);

    /// Sends a message to the instance of the folder given to acquire(). False when it did not
    /// confirm within the time. Blocks meanwhile.
    bool send(const QString &message, int timeoutMs);

Q_SIGNALS:
    void messageReceived(const QString &message);

private:
    void accept();
    void readFrom(QLocalSocket *socket);

    QString m_serverName;
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer m_server;
};
