#include "InstanceChannel.h"

#include "OwnerOnlyFile.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>

namespace {

const char endOfMessage = '\n';
const char confirmation = 'k';
const int longestMessage = 4096;

} // namespace

InstanceChannel::InstanceChannel(QObject *parent)
    : QObject(parent)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &InstanceChannel::accept);
}

bool InstanceChannel::acquire(const QString &folder)
{
    if (m_lock && m_lock->isLocked())
        return true;
    // A hash, since the path of a local socket may not be longer than about a hundred bytes.
    const QByteArray hash = QCryptographicHash::hash(folder.toUtf8(), QCryptographicHash::Sha256);
    m_serverName = QStringLiteral("glaceron-") + QString::fromLatin1(hash.toHex().left(24));

    makeOwnerOnlyFolder(folder);
    m_lock = std::make_unique<QLockFile>(folder + QStringLiteral("/instance.lock"));
    m_lock->setStaleLockTime(0);
    if (!m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError)
        return false;
    // What a crashed instance left behind.
    QLocalServer::removeServer(m_serverName);
    if (!m_server.listen(m_serverName))
        qWarning("InstanceChannel::acquire Can't listen for further instances");
    return true;
}

bool InstanceChannel::send(const QString &message, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    QLocalSocket socket;
    // The running instance may hold its lock already and not listen yet.
    for (;;) {
        socket.connectToServer(m_serverName);
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime())))
            break;
        if (deadline.hasExpired())
            return false;
        QThread::msleep(20);
    }
    socket.write(message.toUtf8() + endOfMessage);
    while (socket.bytesAvailable() == 0) {
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return false;
    }
    char answer = 0;
    return socket.getChar(&answer) && answer == confirmation;
}

void InstanceChannel::accept()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readFrom(socket); });
        readFrom(socket);
    }
}

void InstanceChannel::readFrom(QLocalSocket *socket)
{
    if (!socket->canReadLine()) {
        if (socket->bytesAvailable() > longestMessage)
            socket->abort();
        return;
    }
    QByteArray line = socket->readLine(longestMessage);
    line.chop(1);
    socket->putChar(confirmation);
    socket->flush();
    Q_EMIT messageReceived(QString::fromUtf8(line));
}
