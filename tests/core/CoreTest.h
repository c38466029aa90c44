#pragma once

#include "../Text.h"
#include "../guard/FakeActivity.h"
#include "GPMAppCore.h"
#include "PMItemFactory.h"
#include "PMLogin.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QWebSocket>
#include <QtTest>

inline quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/// The browser extension's end of the link.
class Extension : public QObject
{
public:
    explicit Extension(quint16 port)
    {
        connect(&m_socket, &QWebSocket::textMessageReceived, this, [this](const QString &text) {
            received.append(QJsonDocument::fromJson(text.toUtf8()).object());
        });
        connect(&m_socket, &QWebSocket::connected, this, [this] { send("hello"_s, {}); });
        m_socket.open(QUrl("ws://127.0.0.1:%1"_s.arg(port)));
    }

    void send(const QString &action, const QJsonObject &payload)
    {
        const QJsonObject frame{{"action"_s, action},
                                {"version"_s, "1.1.32"_s},
                                {"bundleId"_s, "glaceron.chrome"_s},
                                {"payload"_s, payload}};
        m_socket.sendTextMessage(QString::fromUtf8(QJsonDocument(frame).toJson()));
    }

    bool hasReceived(const QString &action) const
    {
        return std::any_of(received.begin(), received.end(), [&action](const QJsonObject &frame) {
            return frame.value("action"_s) == action;
        });
    }

    QVector<QJsonObject> received;

private:
    QWebSocket m_socket;
};

/// A page with a login form at the address, as the answer to a request.
inline QJsonObject answerTo(const QJsonObject &request, const char *address)
{
    const QByteArray form =
        "[{'formUid':'f','fields':[{'opid':'1','gpmid':'1','type':'text','visible':true,"
        "'name':'user'},{'opid':'2','gpmid':'2','type':'password','visible':true}]}]";
    const QJsonArray forms = QJsonDocument::fromJson(QByteArray(form).replace('\'', '"')).array();
    QJsonObject answer = request;
    answer.remove("url"_s);
    answer.remove("openmode"_s);
    answer.insert("tabUrl"_s, QLatin1String(address));
    answer.insert("result"_s, QJsonObject{{"docinfo"_s, QJsonObject{{"forms"_s, forms}}}});
    return answer;
}

/// A core whose files lie in a folder of its own, and a browser that may talk to it.
class CoreTest : public QObject
{
protected:
    void start()
    {
        m_home = std::make_unique<QTemporaryDir>();
        m_port = freePort();
        m_core = std::make_unique<GPMAppCore>(
            GPMAppCore::Places{m_home->filePath("config"_s),
                               m_home->filePath("data"_s),
                               m_home->filePath("hidden"_s),
                               m_port,
                               {},
                               [user = m_user] { return std::make_unique<FakeActivity>(user); }});
        m_core->startServer();
    }

    PMLogin *addLogin(const char *title)
    {
        auto item = m_core->modelCreateItem(PMListItem::Login);
        item->setTitle(QString::fromLatin1(title));
        item->setUrl("https://shop.example/login"_s);
        item->setProperty("login", "ana"_s);
        item->setProperty("password", "s3cret"_s);
        return qobject_cast<PMLogin *>(m_core->modelAddItem(std::move(item)));
    }
    /// What the extension is asked when a login of a new safe is to be filled.
    QJsonObject requestForALogin(Extension &extension)
    {
        const auto received = [&extension](int count) {
            return QTest::qWaitFor([&] { return extension.received.size() == count; });
        };
        if (!m_core->createSafe("Mine"_s, "pw"_s, "h"_s) || !received(1))
            return {};
        m_core->doItemDefaultAction(addLogin("Shop")->id(), QString(), QString());
        return received(2) ? extension.received.at(1).value("payload"_s).toObject() : QJsonObject();
    }
    QString reopened(const QString &id, const char *field)
    {
        GPMSafe safe;
        if (!safe.open(m_core->currentSafe()->folder()) || !safe.unlock("pw"_s))
            return "does not open"_s;
        return safe.item(id) ? safe.item(id)->property(field).toString() : "gone"_s;
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<GPMAppCore> m_core;
    quint16 m_port = 0;
    std::shared_ptr<FakeActivity::State> m_user = std::make_shared<FakeActivity::State>();
};
