#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QVector>
#include <QWebSocket>

/// The other end of the link: connects as an extension does and keeps every frame it gets.
class ExtensionClient : public QWebSocket
{
public:
    explicit ExtensionClient(quint16 port,
                             const QString &origin = QStringLiteral(
                                 "chrome-extension://ieciiloegilkonbpcplcagbpkoohnoib"))
        : QWebSocket(origin)
    {
        connect(this, &QWebSocket::textMessageReceived, this, [this](const QString &text) {
            frames.append(QJsonDocument::fromJson(text.toUtf8()).object());
        });
        open(QUrl(QStringLiteral("ws://127.0.0.1:%1").arg(port)));
    }

    QVector<QJsonObject> frames;

    bool isOpen() const { return state() == QAbstractSocket::ConnectedState; }

    void sendFrame(const QString &action, const QJsonObject &payload = {})
    {
        const QJsonObject frame = {{QStringLiteral("action"), action},
                                   {QStringLiteral("version"), QStringLiteral("1.1.32")},
                                   {QStringLiteral("bundleId"), QStringLiteral("test.chrome")},
                                   {QStringLiteral("payload"), payload}};
        sendTextMessage(QString::fromUtf8(QJsonDocument(frame).toJson()));
    }

    /// Says hello and waits for the answer, before which the answers to all earlier frames arrive.
    /// The caller id; empty when there was no answer.
    QString sayHello()
    {
        QSignalSpy opened(this, &QWebSocket::connected);
        QSignalSpy received(this, &QWebSocket::textMessageReceived);
        if (!isOpen() && !opened.wait())
            return {};
        sendFrame(QStringLiteral("hello"));
        while (received.wait()) {
            if (frames.last().value(QLatin1String("action")) == QLatin1String("hello"))
                return frames.takeLast().value(QLatin1String("callerId")).toString();
        }
        return {};
    }
};
