#include "WaitingExtensions.h"

#include "ExtensionFrame.h"

#include <QWebSocket>

#include <algorithm>
#include <utility>

namespace {

constexpr int most = 30;

} // namespace

void WaitingExtensions::add(QWebSocket *socket)
{
    if (m_all.size() >= most) {
        socket->abort();
        socket->deleteLater();
        return;
    }
    // A waiting socket goes on reading, so that a "hello" nobody listens to would be lost.
    connect(socket, &QWebSocket::textMessageReceived, this,
            [this, socket](const QString &message) { hear(socket, message); });
    connect(socket, &QWebSocket::disconnected, this, [this, socket] { forget(socket); });
    m_all.append(Waiting{socket, QJsonObject()});
}

bool WaitingExtensions::hasSaidHello(const QWebSocket *socket) const
{
    return std::any_of(m_all.begin(), m_all.end(), [socket](const Waiting &waiting) {
        return waiting.socket == socket && !waiting.hello.isEmpty();
    });
}

std::optional<WaitingExtensions::Waiting>
WaitingExtensions::takeFirst(const std::function<bool(const QWebSocket &)> &mayGoOn)
{
    const auto found = std::find_if(m_all.begin(), m_all.end(), [&mayGoOn](const Waiting &waiting) {
        return mayGoOn(*waiting.socket);
    });
    if (found == m_all.end())
        return std::nullopt;
    Waiting first = *found;
    m_all.erase(found);
    first.socket->disconnect(this);
    return first;
}

void WaitingExtensions::close(const QString &origin)
{
    const QVector<Waiting> all = m_all;
    for (const Waiting &waiting : all) {
        if (waiting.socket->origin() == origin)
            waiting.socket->abort();
    }
}

QVector<QWebSocket *> WaitingExtensions::takeAll()
{
    QVector<QWebSocket *> sockets;
    for (const Waiting &waiting : std::exchange(m_all, {})) {
        waiting.socket->disconnect(this);
        sockets.append(waiting.socket);
    }
    return sockets;
}

void WaitingExtensions::hear(QWebSocket *socket, const QString &message)
{
    const std::optional<QJsonObject> frame = ExtensionFrame::parse(message);
    if (!frame || !ExtensionFrame::isHello(*frame))
        return;
    for (Waiting &waiting : m_all) {
        if (waiting.socket == socket)
            waiting.hello = *frame;
    }
    Q_EMIT saidHello(socket);
}

void WaitingExtensions::forget(QWebSocket *socket)
{
    const auto isSocket = [socket](const Waiting &waiting) { return waiting.socket == socket; };
    m_all.erase(std::remove_if(m_all.begin(), m_all.end(), isSocket), m_all.end());
    socket->disconnect(this);
    socket->deleteLater();
}
