#include "ExtensionFrame.h"

#include <QJsonDocument>
#include <QWebSocket>

std::optional<QJsonObject> ExtensionFrame::parse(const QString &message)
{
    const QJsonDocument document = QJsonDocument::fromJson(message.toUtf8());
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

QString ExtensionFrame::actionOf(const QJsonObject &frame)
{
    return frame.value(QLatin1String("action")).toString();
}

bool ExtensionFrame::isHello(const QJsonObject &frame)
{
    return actionOf(frame) == QLatin1String("hello");
}

void ExtensionFrame::send(QWebSocket &socket, const QJsonObject &frame)
{
    const QByteArray text = QJsonDocument(frame).toJson(QJsonDocument::Compact);
    socket.sendTextMessage(QString::fromUtf8(text));
}
