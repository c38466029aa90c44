#include "GPMWebSocketServer.h"

#include "ExtensionFrame.h"
#include "ExtensionOrigins.h"
#include "Platform.h"
#include "WaitingExtensions.h"

#include <QDebug>
#include <QHash>
#include <QTimer>
#include <QUuid>
#include <QWebSocket>
#include <QWebSocketCorsAuthenticator>
#include <QWebSocketServer>

namespace {

constexpr quint64 maxFrameSize = 8ULL * 1024 * 1024;
/// Whoever is not heard yet shall not make the program keep and read much.
constexpr quint64 maxHelloSize = 16ULL * 1024;

void admit(QWebSocket &socket, quint64 longest)
{
    socket.setMaxAllowedIncomingFrameSize(longest);
    socket.setMaxAllowedIncomingMessageSize(longest);
}

} // namespace

GPMWebSocketServer::GPMWebSocketServer(quint16 port, bool debug, Platform &platform,
                                       std::chrono::milliseconds helloLimit, QObject *parent)
    : QObject(parent)
    , m_server(new QWebSocketServer(QStringLiteral("Echo Server"), QWebSocketServer::NonSecureMode,
                                    this))
    , m_debug(debug)
    , m_helloLimit(helloLimit)
    , m_waiting(new WaitingExtensions(this))
    , m_platform(platform)
{
    qDebug() << "GPMWebSocketServer::GPMWebSocketServer"
             << "Enable listening on port...start";
    connect(m_server, &QWebSocketServer::originAuthenticationRequired, this,
            &GPMWebSocketServer::checkOrigin);
    if (m_server->listen(QHostAddress::LocalHost, port) && m_debug)
        qDebug() << "Echoserver listening on port" << m_server->serverPort();
    connect(m_server, &QWebSocketServer::newConnection, this, &GPMWebSocketServer::onNewConnection);
    connect(m_server, &QWebSocketServer::closed, this, &GPMWebSocketServer::closed);
    connect(m_waiting, &WaitingExtensions::saidHello, this, &GPMWebSocketServer::onWaitingHello);
    qDebug() << "GPMWebSocketServer::GPMWebSocketServer"
             << "Enable listening on port...end";
}

GPMWebSocketServer::~GPMWebSocketServer()
{
    qDebug() << "Echoserver closing";
    const QVector<QWebSocket *> sockets = m_sockets.values().toVector() + m_waiting->takeAll();
    for (QWebSocket *socket : sockets) {
        socket->disconnect(this);
        socket->close(QWebSocketProtocol::CloseCodeGoingAway);
    }
    m_server->close();
    qDeleteAll(sockets);
    qDebug() << "Echoserver closing 2";
}

bool GPMWebSocketServer::isListening() const
{
    return m_server->isListening();
}

quint16 GPMWebSocketServer::port() const
{
    return m_server->serverPort();
}

void GPMWebSocketServer::checkOrigin(QWebSocketCorsAuthenticator *authenticator) const
{
    const bool allowed = originTrust(authenticator->origin()) != OriginTrust::Refused;
    authenticator->setAllowed(allowed);
    // Not a warning: any page could fill the log file with it.
    if (!allowed)
        qDebug() << "GPMWebSocketServer::checkOrigin"
                 << "Refused connection from origin:" << authenticator->origin();
}

void GPMWebSocketServer::onNewConnection()
{
    QWebSocket *socket = m_server->nextPendingConnection();
    if (!socket)
        return;
    if (isForeign(*socket)) {
        qWarning() << "Refused the connection of another user's program";
        socket->abort();
        socket->deleteLater();
        return;
    }
    QTimer::singleShot(m_helloLimit, socket, [this, socket] {
        if (!hasSaidHello(socket))
            socket->abort();
    });
    admit(*socket, maxHelloSize);
    if (m_sockets.isEmpty() && mayBeServed(*socket))
        serve(socket);
    else
        m_waiting->add(socket);
}

bool GPMWebSocketServer::mayBeServed(const QWebSocket &socket) const
{
    return originTrust(socket.origin()) == OriginTrust::Known ||
           (m_isApproved && m_isApproved(socket.origin()));
}

void GPMWebSocketServer::onOriginApproved(const QString &origin)
{
    if (m_sockets.isEmpty()) {
        serveNextWaiting();
        return;
    }
    // They have been told that they lack the approval; coming anew they learn how things stand.
    m_waiting->close(origin);
}

void GPMWebSocketServer::onOriginRefused(const QString &origin)
{
    const QList<QWebSocket *> sockets = m_sockets.values();
    for (QWebSocket *socket : sockets) {
        if (socket->origin() == origin)
            socket->abort();
    }
    m_waiting->close(origin);
}

bool GPMWebSocketServer::isForeign(const QWebSocket &socket) const
{
    return m_platform.isForeignConnection(socket.peerPort(), m_server->serverPort());
}

/// Also of a connection that waits.
bool GPMWebSocketServer::hasSaidHello(QWebSocket *socket) const
{
    return m_stages.value(m_sockets.key(socket)) == SaidHello || m_waiting->hasSaidHello(socket);
}

void GPMWebSocketServer::serve(QWebSocket *socket)
{
    connect(socket, &QWebSocket::textMessageReceived, this,
            &GPMWebSocketServer::processTextMessage);
    connect(socket, &QWebSocket::disconnected, this, &GPMWebSocketServer::socketDisconnected);
    const QString callerId = QUuid::createUuid().toString();
    m_sockets.insert(callerId, socket);
    m_stages.insert(callerId, Accepted);
}

void GPMWebSocketServer::onWaitingHello(QWebSocket *socket)
{
    if (mayBeServed(*socket))
        return;
    ExtensionFrame::send(*socket,
                         {{QStringLiteral("action"), QStringLiteral("state")},
                          {QStringLiteral("payload"),
                           QJsonObject{{QStringLiteral("refused"), QStringLiteral("approval")}}}});
    Q_EMIT approvalNeeded(socket->origin());
}

void GPMWebSocketServer::serveNextWaiting()
{
    const auto next =
        m_waiting->takeFirst([this](const QWebSocket &socket) { return mayBeServed(socket); });
    if (!next)
        return;
    serve(next->socket);
    if (!next->hello.isEmpty())
        answerHello(callerIdOf(next->socket), next->hello);
}

void GPMWebSocketServer::processTextMessage(const QString &message)
{
    auto *socket = qobject_cast<QWebSocket *>(sender());
    const QString callerId = callerIdOf(socket);
    const std::optional<QJsonObject> frame = ExtensionFrame::parse(message);
    logFrame(message, frame);
    if (!frame)
        return;
    if (ExtensionFrame::isHello(*frame)) {
        answerHello(callerId, *frame);
        return;
    }
    if (m_stages.value(callerId) != SaidHello)
        return;
    Q_EMIT incomingMessage(message);
    dispatch(callerId, ExtensionFrame::actionOf(*frame),
             frame->value(QLatin1String("payload")).toObject());
}

void GPMWebSocketServer::logFrame(const QString &message,
                                  const std::optional<QJsonObject> &frame) const
{
    static const QStringList secretActions = {QStringLiteral("saveLogin"),
                                              QStringLiteral("loginSubmitted")};
    if (!m_debug)
        return;
    // What the user typed into a page is not for the log.
    const QString action = frame ? ExtensionFrame::actionOf(*frame) : QString();
    qDebug() << "Message received:" << (secretActions.contains(action) ? action : message);
}

void GPMWebSocketServer::answerHello(const QString &callerId, const QJsonObject &frame)
{
    m_stages.insert(callerId, SaidHello);
    admit(*m_sockets.value(callerId), maxFrameSize);
    const QString version = frame.value(QLatin1String("version")).toString();
    const QString bundleId = frame.value(QLatin1String("bundleId")).toString();
    m_extensionVersion = version;
    m_extensionBundleId = bundleId;
    ExtensionFrame::send(*m_sockets.value(callerId),
                         {{QStringLiteral("action"), QStringLiteral("hello")},
                          {QStringLiteral("callerId"), callerId}});
    Q_EMIT hello(callerId, version, bundleId);
}

void GPMWebSocketServer::dispatch(const QString &callerId, const QString &action,
                                  const QJsonObject &payload)
{
    using Handler = void (*)(GPMWebSocketServer &, const QString &, const QJsonObject &);
    using Server = GPMWebSocketServer;
    static const QHash<QString, Handler> handlers = {
        {QStringLiteral("showWindow"),
         [](Server &server, const QString &caller, const QJsonObject &data) {
             server.onOpeningPluginWindow(caller, data);
         }},
        {QStringLiteral("saveLogin"),
         [](Server &server, const QString &caller, const QJsonObject &data) {
             Q_EMIT server.saveLogin(caller, data.value(QLatin1String("login")).toObject());
         }},
        {QStringLiteral("loginSubmitted"),
         [](Server &server, const QString &caller, const QJsonObject &data) {
             Q_EMIT server.loginSubmitted(caller, data);
         }},
        {QStringLiteral("loginDropped"),
         [](Server &server, const QString &caller, const QJsonObject &data) {
             Q_EMIT server.loginDropped(caller, data);
         }},
        {QStringLiteral("collectDocumentResults"),
         [](Server &server, const QString &caller, const QJsonObject &data) {
             Q_EMIT server.collectedDocumentInfo(caller, data);
         }},
        {QStringLiteral("loginPageLoaded"),
         [](Server &server, const QString &caller, const QJsonObject &data) {
             Q_EMIT server.loginPageLoaded(caller, data);
         }},
        {QStringLiteral("getState"),
         [](Server &server, const QString &caller, const QJsonObject &data) {
             Q_EMIT server.stateRequested(caller, data);
         }},
        {QStringLiteral("pressEnterKey"), [](Server &server, const QString &, const QJsonObject &) {
             if (!server.m_platform.pressEnterKey())
                 qWarning("GPMWebSocketServer: no window takes the Enter key");
         }}};
    if (const Handler handler = handlers.value(action))
        handler(*this, callerId, payload);
}

void GPMWebSocketServer::onOpeningPluginWindow(const QString &callerId, const QJsonObject &payload)
{
    Q_EMIT activatePluginWindow(callerId, payload.value(QLatin1String("url")).toString(), payload);
}

void GPMWebSocketServer::socketDisconnected()
{
    auto *socket = qobject_cast<QWebSocket *>(sender());
    qDebug() << "socketDisconnected:" << socket;
    const QString callerId = callerIdOf(socket);
    m_sockets.remove(callerId);
    m_stages.remove(callerId);
    m_extensionVersion.clear();
    m_extensionBundleId.clear();
    // Frames that are still in its buffer belong to nobody now.
    socket->disconnect(this);
    socket->deleteLater();
    serveNextWaiting();
}

std::optional<GPMWebSocketServer::ReplyTag>
GPMWebSocketServer::parsePluginReplay(const QString &callerId, const QJsonObject &reply) const
{
    if (!m_sockets.contains(callerId)) {
        qWarning() << "Unknown caller id:" << callerId;
        return std::nullopt;
    }
    ReplyTag tag;
    tag.requestId = reply.value(QLatin1String("request_id")).toString();
    tag.timestamp = reply.value(QLatin1String("timestamp")).toString().toLongLong();
    return tag;
}

QString GPMWebSocketServer::targetCaller(const QString &callerId) const
{
    if (m_stages.value(callerId) == SaidHello)
        return callerId;
    return m_stages.key(SaidHello);
}

void GPMWebSocketServer::sendDocumentRequest(const QString &callerId, const QJsonObject &payload)
{
    send(callerId, QStringLiteral("getDocumentData"), payload);
}

void GPMWebSocketServer::sendFillCommand(const QString &callerId, const QJsonObject &payload)
{
    send(callerId, QStringLiteral("fillForm"), payload);
}

void GPMWebSocketServer::sendFindLoginPage(const QString &callerId, const QJsonObject &payload)
{
    send(callerId, QStringLiteral("findLoginPage"), payload);
}

void GPMWebSocketServer::sendState(const QString &callerId, const QJsonObject &payload)
{
    send(callerId, QStringLiteral("state"), payload);
}

void GPMWebSocketServer::send(const QString &callerId, const QString &action,
                              const QJsonObject &payload)
{
    const QString target = targetCaller(callerId);
    if (target.isEmpty()) {
        qWarning() << "No connected extensions!";
        return;
    }
    ExtensionFrame::send(*m_sockets.value(target), {{QStringLiteral("action"), action},
                                                    {QStringLiteral("payload"), payload}});
}

QString GPMWebSocketServer::callerIdOf(QWebSocket *socket) const
{
    QString callerId = socket ? m_sockets.key(socket) : QString();
    if (callerId.isEmpty())
        qFatal("Invalid socket pointer");
    return callerId;
}
