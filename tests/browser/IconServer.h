#pragma once

#include <QBuffer>
#include <QHash>
#include <QImage>
#include <QTcpServer>
#include <QTcpSocket>

// A web server for the tests of site icons, and what it answers.

namespace IconServer {

inline QByteArray picture(const char *format)
{
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format))
        qFatal("no picture");
    return bytes;
}

inline QByteArray answer(const QByteArray &body, const QByteArray &status = "200 OK")
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\nSet-Cookie: seen=1\r\nConnection: close\r\n\r\n" + body;
}

/// A web server; "{}" in an answer stands for its port.
class Server : public QTcpServer
{
public:
    QHash<QByteArray, QByteArray> answers; ///< none: the request is left open
    QByteArrayList requests;
    bool keepsOpen = false; ///< after an answer
    QByteArrayList paths() const
    {
        QByteArrayList list;
        for (const QByteArray &request : requests)
            list.append(request.split(' ').value(1));
        return list;
    }

    Server()
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("no server");
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto *socket = new QTcpSocket(this);
        socket->setSocketDescriptor(descriptor);
        listenTo(socket);
    }

    void listenTo(QTcpSocket *socket)
    {
        connect(socket, &QTcpSocket::readyRead, this, std::bind(&Server::serve, this, socket));
    }

private:
    void serve(QTcpSocket *socket)
    {
        const QByteArray request = socket->readAll();
        requests.append(request);
        QByteArray reply = answers.value(request.split(' ').value(1));
        if (reply.isEmpty())
            return;
        if (reply.contains("{}"))
            reply.replace("{}", QByteArray::number(serverPort()));
        socket->write(reply);
        if (!keepsOpen)
            socket->disconnectFromHost();
    }
};

inline QByteArray redirect(const QByteArray &target)
{
    return "HTTP/1.1 302 Found\r\nLocation: " + target +
           "\r\nSet-Cookie: seen=1\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
}

} // namespace IconServer
