#pragma once

#include "../Text.h"
#include "ExtensionClient.h"
#include "FakePlatform.h"
#include "FormFillFlow.h"
#include "GPMAppSettings.h"
#include "GPMWebSocketServer.h"
#include "PMCreditCard.h"
#include "PMIdentity.h"
#include "PMLogin.h"
#include "PMSecureNote.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

const QString itemId = "item-1"_s;
const QString site = "https://www.bank.example/login"_s;
const char *const discardedReply =
    "^Missing item id or timestamp for plugin replay: .* - discarded$";

/// A value as JSON has it, also with the quotes that need no escaping here.
inline QJsonValue json(QByteArray text)
{
    return QJsonDocument::fromJson("[" + text.replace('\'', '"') + "]").array().at(0);
}

/// The result that describes a page with these forms, named with "+" between them.
inline QJsonValue pageWith(const QString &names)
{
    static const QHash<QString, QByteArray> forms = {
        {"login"_s, R"({"formUid":"login","fields":[
            {"opid":"1","type":"text","visible":true,"name":"username"},
            {"opid":"2","type":"password","visible":true}]})"},
        {"name"_s, R"({"formUid":"name","fields":[
            {"opid":"3","type":"text","visible":true,"name":"email"}]})"},
        {"password"_s, R"({"formUid":"password","fields":[
            {"opid":"4","type":"password","visible":true}]})"},
        {"card"_s, R"({"formUid":"card","fields":[
            {"opid":"6","type":"text","visible":true,"name":"cardnumber"}]})"},
        {"person"_s, R"({"formUid":"person","fields":[
            {"opid":"7","type":"text","visible":true,"name":"city"}]})"},
        {"search"_s, R"({"formUid":"search","fields":[
            {"opid":"5","type":"text","visible":true,"name":"q"}]})"}};
    QByteArrayList list;
    for (const QString &name : names.split(QLatin1Char('+')))
        list.append(forms.value(name));
    return json(R"({"docinfo":{"forms":[)" + list.join(',') + "]}}");
}

inline QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

inline QJsonObject payloadOf(const QJsonObject &frame)
{
    return frame.value(QLatin1String("payload")).toObject();
}

/// The actions of the frames; for a fill the form, its values in brackets, and "!" for submit.
inline QString summary(const QVector<QJsonObject> &frames)
{
    QStringList lines;
    for (const QJsonObject &frame : frames) {
        const QJsonObject payload = payloadOf(frame);
        QStringList values;
        const QJsonArray elements = payload.value(QLatin1String("elements")).toArray();
        for (const QJsonValue &element : elements)
            values.append(text(element.toObject(), "value"));
        const bool submits = payload.value(QLatin1String("submit")).toBool();
        lines.append(text(frame, "action") != QLatin1String("fillForm")
                         ? text(frame, "action")
                         : text(payload, "formUid") + QLatin1Char('(') +
                               values.join(QLatin1Char(',')) + QLatin1String(submits ? ")!" : ")"));
    }
    return lines.join(QLatin1Char(' '));
}

inline void expectWarning(const char *pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromUtf8(pattern)));
}

/// The flow between a real server and an extension that says what it receives.
class FillTest : public QObject
{
protected:
    void storeSettings()
    {
        expectWarning("^Can't load app settings");
        QVERIFY(GPMAppSettings(m_folder.path(), m_folder.path()).storeSettings());
    }

    void start()
    {
        auto login = std::make_unique<PMLogin>();
        m_login = login.get();
        m_login->setId(itemId);
        m_login->setTitle("Bank"_s);
        m_login->setUrl("https://bank.example"_s);
        m_login->setLogin("anna"_s);
        m_login->setPassword("secret"_s);
        m_item = std::move(login);
        m_now = 1700000000000;
        m_request = {};
        m_settings = std::make_unique<GPMAppSettings>(m_folder.path(), m_folder.path());
        m_server = std::make_unique<GPMWebSocketServer>(quint16(0), false, m_platform);
        m_flow = std::make_unique<FormFillFlow>(
            *m_server, [this](const QString &id) { return id == itemId ? m_item.get() : nullptr; },
            *m_settings, [this] { return QDateTime::fromMSecsSinceEpoch(m_now, Qt::UTC); });
        connect(m_server.get(), &GPMWebSocketServer::collectedDocumentInfo, m_flow.get(),
                &FormFillFlow::parsePluginReplay);
        connect(m_server.get(), &GPMWebSocketServer::loginPageLoaded, m_flow.get(),
                &FormFillFlow::fillLoginPage);
        m_client = std::make_unique<ExtensionClient>(m_server->port());
        m_callerId = m_client->sayHello();
        QVERIFY(!m_callerId.isEmpty());
    }

    void end()
    {
        m_client.reset();
        m_flow.reset();
        m_server.reset();
    }

    /// Makes the item one of the kind "creditcard" or "identity".
    void become(const QString &kind)
    {
        auto card = std::make_unique<PMCreditCard>();
        card->setNumber("4111111111111111"_s);
        auto identity = std::make_unique<PMIdentity>();
        identity->setCity("Kassel"_s);
        if (kind == QLatin1String("identity"))
            m_item = std::move(identity);
        else
            m_item = std::move(card);
        m_item->setId(itemId);
    }

    /// Leaves the payload that the extension got in m_request; empty when it got none.
    void request(const QString &kind, const QString &callerId = {}, const QString &option = {})
    {
        m_client->frames.clear();
        if (kind == QLatin1String("creditcard"))
            m_flow->doCreditCardDefaultAction(itemId, callerId, option);
        else if (kind == QLatin1String("identity"))
            m_flow->doIdentityDefaultAction(itemId, callerId, option);
        else
            m_flow->doLoginDefaultAction(itemId, callerId, option);
        m_client->sayHello();
        m_request = m_client->frames.isEmpty() ? QJsonObject() : payloadOf(m_client->frames.last());
    }

    void requestLogin(const QString &callerId = {}, const QString &option = {})
    {
        request("login"_s, callerId, option);
    }

    /// An answer to the latest request.
    QJsonObject reply(const QString &forms, const QString &tabUrl = site,
                      const QString &reason = "login"_s) const
    {
        return {{"reason"_s, reason},
                {"itemid"_s, itemId},
                {"timestamp"_s, m_request.value(QLatin1String("timestamp"))},
                {"tabUrl"_s, tabUrl},
                {"result"_s, pageWith(forms)}};
    }

    /// What the extension receives upon its answer.
    QString answer(const QJsonObject &payload, const QString &action = "collectDocumentResults"_s)
    {
        m_client->sayHello();
        m_client->frames.clear();
        m_client->sendFrame(action, payload);
        m_client->sayHello();
        return summary(m_client->frames);
    }

    /// The payload that answers the request for a password's page, with the request's own stamp.
    QJsonObject placeReply()
    {
        m_client->sayHello();
        QJsonObject payload = reply("password"_s);
        payload.insert("reason"_s, "placepwd"_s);
        payload.insert("timestamp"_s,
                       payloadOf(m_client->frames.last()).value(QLatin1String("timestamp")));
        return payload;
    }

    QTemporaryDir m_folder;
    FakePlatform m_platform;
    std::unique_ptr<PMListItem> m_item;
    PMLogin *m_login = nullptr;
    std::unique_ptr<GPMAppSettings> m_settings;
    std::unique_ptr<GPMWebSocketServer> m_server;
    std::unique_ptr<FormFillFlow> m_flow;
    std::unique_ptr<ExtensionClient> m_client;
    QString m_callerId;
    QJsonObject m_request;
    qint64 m_now = 0;
};
