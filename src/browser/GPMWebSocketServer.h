#pragma once

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <optional>

class Platform;
class QWebSocket;
class QWebSocketCorsAuthenticator;
class QWebSocketServer;
class WaitingExtensions;

/// The local link to the browser extension: transport, envelope and dispatch. Serves one extension
/// at a time; further ones wait, and nothing that they send is acted on, until it has left. It
/// knows nothing of safes and items. A web page cannot connect, an extension that may be another's
/// waits until it is approved, and a connection is heard only after its "hello".
class GPMWebSocketServer : public QObject
{
    Q_OBJECT

public:
    /// What a reply says of the request that it answers.
    struct ReplyTag
    {
        QString requestId;
        qint64 timestamp = 0;
    };

    /// Listens on 127.0.0.1. When the port is taken the link is simply absent.
    /// @param port 0 for any free port
    /// @param debug whether each frame and the port go to the debug log
    /// @param platform presses the Enter key, and knows whose a connection is; must outlive the
    /// server
    /// @param helloLimit how long a connection may be silent before its "hello"
    GPMWebSocketServer(quint16 port, bool debug, Platform &platform,
                       std::chrono::milliseconds helloLimit = std::chrono::seconds(5),
                       QObject *parent = nullptr);
    ~GPMWebSocketServer() override;

    /// Tells which origins the user has approved; none until it is set.
    void setApprovals(std::function<bool(const QString &origin)> isApproved)
    {
        m_isApproved = std::move(isApproved);
    }

    bool isListening() const;

    /// The port that is listened on; 0 when there is none.
    quint16 port() const;

    /// Whether an extension that has said hello is being served.
    bool hasConnections() const { return !targetCaller({}).isEmpty(); }

    /// Version and browser build of the extension that said hello last; empty when it has left.
    QString extensionVersion() const { return m_extensionVersion; }
    QString extensionBundleId() const { return m_extensionBundleId; }

    /// The caller id that a command for `callerId` reaches: itself when it is connected, else the
    /// first one. Empty when none is that has said hello: what has not is no extension yet.
    QString targetCaller(const QString &callerId) const;

    /// Commands to the extension at targetCaller(). Lost, with a line in the log, when there is
    /// none.
    void sendDocumentRequest(const QString &callerId, const QJsonObject &payload);
    void sendFillCommand(const QString &callerId, const QJsonObject &payload);
    void sendFindLoginPage(const QString &callerId, const QJsonObject &payload);
    void sendState(const QString &callerId, const QJsonObject &payload);

public Q_SLOTS:
    /// Emits activatePluginWindow() for the address in the payload, and with all of it.
    void onOpeningPluginWindow(const QString &callerId, const QJsonObject &payload);
    void onNewConnection();
    /// The extension of the origin goes on when no other is served.
    void onOriginApproved(const QString &origin);
    /// Ends its connections.
    void onOriginRefused(const QString &origin);
    void processTextMessage(const QString &message);
    void socketDisconnected();

    /// Reads which request a reply answers; what is missing or no string is empty or 0. None, with
    /// a line in the log, when the caller is not connected: the reply is to be dropped.
    std::optional<GPMWebSocketServer::ReplyTag> parsePluginReplay(const QString &callerId,
                                                                  const QJsonObject &reply) const;

Q_SIGNALS:
    void closed();
    /// Each frame of an extension that has said hello, as it came.
    void incomingMessage(const QString &message);
    /// @param wish the extension's word on what is wanted, where and for what page
    void activatePluginWindow(const QString &callerId, const QString &url, const QJsonObject &wish);
    /// The extension wants to know how things stand.
    void stateRequested(const QString &callerId, const QJsonObject &data);
    void loginPageLoaded(const QString &callerId, const QJsonObject &data);
    void collectedDocumentInfo(const QString &callerId, const QJsonObject &data);
    void saveLogin(const QString &callerId, const QJsonObject &data);
    /// A page sent a login; whether it was accepted comes as saveLogin() or loginDropped().
    void loginSubmitted(const QString &callerId, const QJsonObject &data);
    void loginDropped(const QString &callerId, const QJsonObject &data);
    /// The extension has its caller id already.
    void hello(const QString &callerId, const QString &version, const QString &bundleId);
    /// An extension that has said hello must be approved first. It has been told so.
    void approvalNeeded(const QString &origin);

private:
    enum Stage { Accepted = 0, SaidHello = 1 };

    void checkOrigin(QWebSocketCorsAuthenticator *authenticator) const;
    bool isForeign(const QWebSocket &socket) const;
    bool mayBeServed(const QWebSocket &socket) const;
    bool hasSaidHello(QWebSocket *socket) const;
    void serve(QWebSocket *socket);
    void onWaitingHello(QWebSocket *socket);
    void serveNextWaiting();
    void answerHello(const QString &callerId, const QJsonObject &frame);
    void dispatch(const QString &callerId, const QString &action, const QJsonObject &payload);
    void logFrame(const QString &message, const std::optional<QJsonObject> &frame) const;
    void send(const QString &callerId, const QString &action, const QJsonObject &payload);
    QString callerIdOf(QWebSocket *socket) const;

    QWebSocketServer *m_server;
    QMap<QString, QWebSocket *> m_sockets;
    QMap<QString, Stage> m_stages;
    bool m_debug;
    std::chrono::milliseconds m_helloLimit;
    QString m_extensionVersion;
    QString m_extensionBundleId;
    WaitingExtensions *m_waiting;
    Platform &m_platform;
    std::function<bool(const QString &)> m_isApproved;
};
