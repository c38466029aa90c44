#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

class QWebSocket;

/// The frames of the link to the extension: each is one JSON object with an "action".
namespace ExtensionFrame {

/// None when the text is no object.
std::optional<QJsonObject> parse(const QString &message);
QString actionOf(const QJsonObject &frame);
bool isHello(const QJsonObject &frame);
void send(QWebSocket &socket, const QJsonObject &frame);

} // namespace ExtensionFrame
