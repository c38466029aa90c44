#include "../Text.h"
#include "ExtensionClient.h"
#include "FakePlatform.h"
#include "GPMWebSocketServer.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QUuid>

#include <memory>

namespace {

constexpr int maxFrame = 8 * 1024 * 1024;

/// The origin that browsers derive from the key in the manifest of the extension.
QString originOfManifest()
{
    QFile manifest(QFINDTESTDATA("../../extension/manifest.chromium.json"));
    if (!manifest.open(QIODevice::ReadOnly))
        qFatal("No manifest");
    const QByteArray key = QByteArray::fromBase64(QJsonDocument::fromJson(manifest.readAll())
                                                      .object()
                                                      .value(QLatin1String("key"))
                                                      .toString()
                                                      .toLatin1());
    QByteArray id = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex().left(32);
    for (char &digit : id)
        digit = static_cast<char>('a' + QByteArray("0123456789abcdef").indexOf(digit));
    return "chrome-extension://"_s + QString::fromLatin1(id);
}

QString actionOf(const QJsonObject &frame)
{
    return frame.value(QLatin1String("action")).toString();
}

} // namespace

class TestGPMWebSocketServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_platform.enterPresses = 0;
        m_server = std::make_unique<GPMWebSocketServer>(quint16(0), false, m_platform);
        QVERIFY(m_server->isListening());
    }

    void cleanup() { m_server.reset(); }

    void handsOutCallerId()
    {
        QSignalSpy hello(m_server.get(), &GPMWebSocketServer::hello);
        ExtensionClient client(m_server->port());
        const QString callerId = client.sayHello();
        QCOMPARE(callerId.size(), 38);
        QVERIFY(!QUuid::fromString(callerId).isNull());
        QCOMPARE(hello.size(), 1);
        QCOMPARE(hello.at(0), (QVariantList{callerId, "1.1.32"_s, "test.chrome"_s}));
        QCOMPARE(m_server->extensionVersion(), "1.1.32"_s);
        QCOMPARE(m_server->extensionBundleId(), "test.chrome"_s);

        client.close();
        QTRY_VERIFY(!m_server->hasConnections());
        QCOMPARE(m_server->extensionVersion(), QString());
    }

    void helloIsAnsweredBeforeItIsReported()
    {
        connect(m_server.get(), &GPMWebSocketServer::hello, this,
                [this](const QString &callerId) { m_server->sendDocumentRequest(callerId, {}); });
        ExtensionClient client(m_server->port());
        QTRY_VERIFY(client.isOpen());
        client.sendFrame("hello"_s);
        QTRY_COMPARE(client.frames.size(), 2);
        QCOMPARE(actionOf(client.frames.at(0)), "hello"_s);
        QCOMPARE(actionOf(client.frames.at(1)), "getDocumentData"_s);
    }

    void requestsOfTheExtension()
    {
        QSignalSpy window(m_server.get(), &GPMWebSocketServer::activatePluginWindow);
        QSignalSpy state(m_server.get(), &GPMWebSocketServer::stateRequested);
        QSignalSpy save(m_server.get(), &GPMWebSocketServer::saveLogin);
        QSignalSpy document(m_server.get(), &GPMWebSocketServer::collectedDocumentInfo);
        QSignalSpy loginPage(m_server.get(), &GPMWebSocketServer::loginPageLoaded);
        ExtensionClient client(m_server->port());
        const QString callerId = client.sayHello();
        const QJsonObject data = {{"title"_s, "Bank"_s}};

        const QJsonObject wish = {{"url"_s, "https://bank.example/"_s}, {"kind"_s, "login"_s}};
        client.sendFrame("showWindow"_s, wish);
        client.sendFrame("getState"_s, data);
        client.sendFrame("saveLogin"_s, {{"login"_s, data}});
        client.sendFrame("collectDocumentResults"_s, data);
        client.sendFrame("loginPageLoaded"_s, data);
        client.sendFrame("pressEnterKey"_s);
        client.sendFrame("showwindow"_s);
        QVERIFY(!client.sayHello().isEmpty());

        QCOMPARE(window, (QList<QVariantList>{{callerId, "https://bank.example/"_s, wish}}));
        QCOMPARE(state, (QList<QVariantList>{{callerId, data}}));
        QCOMPARE(save, (QList<QVariantList>{{callerId, data}}));
        QCOMPARE(document, (QList<QVariantList>{{callerId, data}}));
        QCOMPARE(loginPage, (QList<QVariantList>{{callerId, data}}));
        QCOMPARE(m_platform.enterPresses, 1);
        QVERIFY(client.frames.isEmpty());
    }

    void heardOnlyAfterHello()
    {
        QSignalSpy raw(m_server.get(), &GPMWebSocketServer::incomingMessage);
        QSignalSpy save(m_server.get(), &GPMWebSocketServer::saveLogin);
        ExtensionClient client(m_server->port());
        QTRY_VERIFY(client.isOpen());
        client.sendFrame("saveLogin"_s);
        client.sendFrame("pressEnterKey"_s);
        // Nor is it told anything: who has not said hello may be anybody.
        QVERIFY(!m_server->hasConnections());
        m_server->sendFillCommand(QString(), {{"secret"_s, 1}});
        QVERIFY(!client.sayHello().isEmpty());
        QVERIFY(client.frames.isEmpty());
        QVERIFY(m_server->hasConnections());
        QVERIFY(raw.isEmpty());
        QVERIFY(save.isEmpty());
        QCOMPARE(m_platform.enterPresses, 0);

        client.sendFrame("saveLogin"_s);
        QTRY_COMPARE(save.size(), 1);
        QCOMPARE(raw.size(), 1);
    }

    void framesThatAreIgnored()
    {
        ExtensionClient client(m_server->port());
        const QString callerId = client.sayHello();
        const QByteArray deep = QByteArray(5000, '[') + QByteArray(5000, ']');
        for (const QByteArray &text : QByteArrayList{
                 "", "hello", R"([{"action":"pressEnterKey"}])", R"({"action":"pressEnterKey")",
                 R"({"action":["pressEnterKey"]})", R"({"action":"PressEnterKey"})",
                 R"({"action":"fillForm","payload":{}})", deep}) {
            client.sendTextMessage(QString::fromLatin1(text));
        }
        client.sendBinaryMessage(R"({"action":"pressEnterKey"})");
        QCOMPARE(client.sayHello(), callerId);
        QVERIFY(client.frames.isEmpty());
        QCOMPARE(m_platform.enterPresses, 0);
    }

    void origins_data()
    {
        QTest::addColumn<QString>("origin");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("Chromium") << originOfManifest() << true;
        QTest::newRow("Chromium with a slash") << originOfManifest() + QLatin1Char('/') << false;
        QTest::newRow("another's")
            << "chrome-extension://gofmckdcabcdefghijklmnopabcdefgh" << false;
        QTest::newRow("no id of Firefox") << "moz-extension://glaceron" << false;
        QTest::newRow("more than an id")
            << "moz-extension://0c4e5b2e-1f0c-4a3f-9a53-33d8b7a5d6c1.bank.example" << false;
        QTest::newRow("none") << QString() << true;
        QTest::newRow("page") << "https://bank.example" << false;
        QTest::newRow("plain page") << "http://127.0.0.1:7899" << false;
        QTest::newRow("sandboxed page") << "null" << false;
        QTest::newRow("file") << "file://" << false;
        QTest::newRow("page named like it") << "https://chrome-extension" << false;
        QTest::newRow("scheme that begins like it") << "chrome-extensions://abc" << false;
        QTest::newRow("another program") << "app://local" << false;
    }
    void origins()
    {
        QFETCH(QString, origin);
        QFETCH(bool, allowed);
        ExtensionClient client(m_server->port(), origin);
        QTRY_VERIFY(client.isOpen() || client.state() == QAbstractSocket::UnconnectedState);
        QCOMPARE(client.isOpen(), allowed);
        if (allowed)
            QVERIFY(!client.sayHello().isEmpty());
        QCOMPARE(m_server->hasConnections(), allowed);
    }

    void oversizedMessage_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<quint64>("frameSize");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("at the limit") << maxFrame << quint64(2 * maxFrame) << true;
        QTest::newRow("one frame above") << maxFrame + 1 << quint64(2 * maxFrame) << false;
        QTest::newRow("many frames above") << maxFrame + 1 << quint64(512 * 1024) << false;
    }
    void oversizedMessage()
    {
        QFETCH(int, size);
        QFETCH(quint64, frameSize);
        QFETCH(bool, accepted);
        QSignalSpy window(m_server.get(), &GPMWebSocketServer::activatePluginWindow);
        ExtensionClient client(m_server->port());
        client.setOutgoingFrameSize(frameSize);
        QVERIFY(!client.sayHello().isEmpty());
        const QString frame = QStringLiteral(R"({"action":"showWindow"})");
        client.sendTextMessage(frame + QString(size - frame.size(), QLatin1Char(' ')));
        QTRY_VERIFY(!client.isOpen() || window.size() == 1);
        QCOMPARE(client.isOpen(), accepted);
        QTRY_COMPARE(m_server->hasConnections(), accepted);
    }

    void longMessagesOnlyAfterHello()
    {
        ExtensionClient served(m_server->port());
        ExtensionClient early(m_server->port());
        QTRY_VERIFY(served.isOpen() && early.isOpen());
        early.sendFrame("hello"_s, {{"long"_s, QString(maxFrame / 2, QLatin1Char('x'))}});
        QTRY_VERIFY(!early.isOpen());
        QVERIFY(!served.sayHello().isEmpty());
        QVERIFY(served.isOpen());
    }

    void servesOneAtATime()
    {
        QSignalSpy hello(m_server.get(), &GPMWebSocketServer::hello);
        ExtensionClient first(m_server->port());
        const QString firstId = first.sayHello();
        ExtensionClient second(m_server->port());
        QTRY_VERIFY(second.isOpen());
        second.sendFrame("pressEnterKey"_s);
        second.sendFrame("hello"_s);
        second.sendFrame("pressEnterKey"_s);
        QTRY_COMPARE(second.bytesToWrite(), 0);
        // What the second one wrote is read before the second of these answers is sent.
        QCOMPARE(first.sayHello(), firstId);
        QCOMPARE(first.sayHello(), firstId);
        QVERIFY(second.frames.isEmpty());
        QCOMPARE(hello.size(), 3);
        QCOMPARE(m_server->targetCaller({}), firstId);

        first.close();
        QTRY_COMPARE(second.frames.size(), 1);
        const QString secondId = second.frames.at(0).value(QLatin1String("callerId")).toString();
        QCOMPARE(m_server->targetCaller(firstId), secondId);
        QCOMPARE(hello.size(), 4);
        QCOMPARE(m_platform.enterPresses, 0);
        second.sendFrame("pressEnterKey"_s);
        QTRY_COMPARE(m_platform.enterPresses, 1);
    }

    void waitingOnesThatLeftAreSkipped()
    {
        ExtensionClient first(m_server->port());
        QVERIFY(!first.sayHello().isEmpty());
        ExtensionClient second(m_server->port());
        QTRY_VERIFY(second.isOpen());
        ExtensionClient third(m_server->port());
        QTRY_VERIFY(third.isOpen());
        second.close();
        // The server has noticed that by the time it answers twice.
        QVERIFY(!first.sayHello().isEmpty());
        QVERIFY(!first.sayHello().isEmpty());
        first.close();
        QVERIFY(!third.sayHello().isEmpty());
    }

    void silentOnesAreClosed()
    {
        m_server = std::make_unique<GPMWebSocketServer>(quint16(0), false, m_platform,
                                                        std::chrono::milliseconds(400));
        ExtensionClient silent(m_server->port());
        QTRY_VERIFY(silent.isOpen());
        ExtensionClient extension(m_server->port());
        ExtensionClient silentBehind(m_server->port());
        QSignalSpy gone(&silentBehind, &QWebSocket::disconnected);
        QVERIFY(!extension.sayHello().isEmpty());
        QVERIFY(!silent.isOpen());
        QVERIFY(!gone.isEmpty() || gone.wait());
        QVERIFY(!extension.sayHello().isEmpty());
    }

    void otherUsersAreRefused()
    {
        m_platform.foreignConnections = true;
        QTest::ignoreMessage(QtWarningMsg, "Refused the connection of another user's program");
        ExtensionClient client(m_server->port());
        QSignalSpy closed(&client, &QWebSocket::disconnected);
        QVERIFY(closed.wait());
        m_platform.foreignConnections = false;
        QVERIFY(!ExtensionClient(m_server->port()).sayHello().isEmpty());
    }

    void commandTargets()
    {
        QTest::ignoreMessage(QtWarningMsg, "No connected extensions!");
        m_server->sendFillCommand("{gone}"_s, {});
        ExtensionClient client(m_server->port());
        const QString callerId = client.sayHello();
        const QJsonObject payload = {{"itemid"_s, "1"_s}};
        m_server->sendDocumentRequest(callerId, payload);
        m_server->sendFillCommand(QString(), payload);
        m_server->sendFindLoginPage("{gone}"_s, payload);
        QTRY_COMPARE(client.frames.size(), 3);
        const QStringList actions = {"getDocumentData"_s, "fillForm"_s, "findLoginPage"_s};
        for (int i = 0; i < actions.size(); ++i) {
            QCOMPARE(client.frames.at(i),
                     (QJsonObject{{"action"_s, actions.at(i)}, {"payload"_s, payload}}));
        }
    }

    void replyTags()
    {
        ExtensionClient client(m_server->port());
        const QString callerId = client.sayHello();
        const auto tagOf = [&](const QJsonValue &id, const QJsonValue &time) {
            return m_server
                ->parsePluginReplay(callerId, {{"request_id"_s, id}, {"timestamp"_s, time}})
                .value();
        };
        const auto tag = tagOf("r1"_s, "1700000000123"_s);
        QCOMPARE(tag.requestId, "r1"_s);
        QCOMPARE(tag.timestamp, qint64(1700000000123));
        QCOMPARE(tagOf(5, 5).requestId, QString());
        QCOMPARE(tagOf(5, 5).timestamp, qint64(0));
        QCOMPARE(tagOf({}, "0x10"_s).timestamp, qint64(0));
        QCOMPARE(tagOf({}, "9223372036854775808"_s).timestamp, qint64(0));

        QTest::ignoreMessage(QtWarningMsg, "Unknown caller id: \"{gone}\"");
        QVERIFY(!m_server->parsePluginReplay("{gone}"_s, {}));
    }

    void portTaken()
    {
        GPMWebSocketServer late(m_server->port(), true, m_platform);
        QVERIFY(!late.isListening());
        QCOMPARE(late.port(), quint16(0));
        QVERIFY(!late.hasConnections());
    }

    void closesConnections()
    {
        ExtensionClient served(m_server->port());
        QVERIFY(!served.sayHello().isEmpty());
        ExtensionClient waiting(m_server->port());
        QTRY_VERIFY(waiting.isOpen());
        m_server.reset();
        QTRY_VERIFY(!served.isOpen() && !waiting.isOpen());
    }

private:
    FakePlatform m_platform;
    std::unique_ptr<GPMWebSocketServer> m_server;
};

QTEST_GUILESS_MAIN(TestGPMWebSocketServer)
#include "tst_gpmwebsocketserver.moc"
