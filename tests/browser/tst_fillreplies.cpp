#include "../Text.h"
#include "FillTest.h"

/// Answers that are odd, late or not for us; and the password that waits for its page.
class TestFillReplies : public FillTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { storeSettings(); }
    void init() { start(); }
    void cleanup() { end(); }

    // A good answer with one member replaced, or taken out where the value is empty.
    void oddReply_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QByteArray>("warning");
        const auto row = [](const char *key, const QByteArray &value, const char *warning) {
            QTest::addRow("%s %s", key, value.left(40).constData())
                << QString::fromLatin1(key) << value << QByteArray(warning);
        };
        row("reason", "", "^Missing plugin replay format: no reason why$");
        row("result", "", "^Missing plugin replay format$");
        row("reason", "'docinfo'", "^Unknown reason for replay$");
        row("reason", "1", "^Unknown reason for replay$");
        row("reason", "'identity'", discardedReply);
        row("timestamp", "", discardedReply);
        row("timestamp", "1700000000000", discardedReply);
        row("timestamp", "'1700000000001'", discardedReply);
        row("itemid", "", discardedReply);
        row("itemid", "['item-1']", discardedReply);
        row("itemid", "'item-2'", discardedReply);
        for (const char *empty : {"{}", "[{}]", "'docinfo'", "null"})
            row("result", empty, "^Empty result returned$");
        const QByteArray deep = QByteArray(900, '[') + QByteArray(900, ']');
        for (const QByteArray &unusable : QByteArrayList{
                 "{'docinfo':[{'forms':[]}]}", "{'forms':[]}",
                 "{'docinfo':{'forms':1,'elements':{}}}", "{'docinfo':{'forms':" + deep + "}}",
                 "{'docinfo':{'elements':[{'visible':" + deep + "}]}}"})
            row("result", unusable, "");
        row("tabUrl", "", "");
        row("tabUrl", "['https://bank.example/']", "");
    }
    void oddReply()
    {
        QFETCH(QString, key);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, warning);
        requestLogin();
        QJsonObject payload = reply("login"_s);
        payload.remove(key);
        if (!value.isEmpty())
            payload.insert(key, json(value));
        if (!warning.isEmpty())
            expectWarning(warning.constData());
        QCOMPARE(answer(payload), warning.isEmpty() ? "findLoginPage"_s : QString());
        QCOMPARE(answer(reply("login"_s)), "login(anna,secret)!"_s);
    }

    void payloads()
    {
        QSignalSpy used(m_flow.get(), &FormFillFlow::itemUsed);
        requestLogin();
        answer(reply("search"_s));
        const QJsonValue asked =
            json("{'reason':'login','itemid':'item-1','timestamp':'1700000000000',"
                 "'url':'https://bank.example','openmode':'getLoginPageData'}");
        QCOMPARE(m_client->frames.value(0).value(QLatin1String("payload")), asked);
        QVERIFY(used.isEmpty());
        answer(reply("name"_s));
        const QJsonValue filled = json("{'reason':'login','formUid':'name','submit':true,"
                                       "'elements':[{'opid':'3','gpmid':'','value':'anna'}]}");
        QCOMPARE(m_client->frames.value(0).value(QLatin1String("payload")), filled);
        answer(reply("password"_s));
        QCOMPARE(used, (QList<QVariantList>{{itemId}}));
    }

    void onlyTheNewestRequestCounts()
    {
        requestLogin();
        const QJsonObject first = reply("login"_s);
        requestLogin(); // in the same millisecond
        expectWarning(discardedReply);
        QCOMPARE(answer(first), QString());
        QCOMPARE(answer(reply("login"_s)), "login(anna,secret)!"_s);
    }

    void otherConnectionCannotAnswer()
    {
        requestLogin(m_callerId);
        const QJsonObject payload = reply("login"_s);
        m_flow->placePasswordValue("n3w"_s);
        const QJsonObject place = placeReply();
        const QString gone = m_callerId;
        m_client = std::make_unique<ExtensionClient>(m_server->port());
        QVERIFY(!m_client->sayHello().isEmpty());
        expectWarning(discardedReply);
        QCOMPARE(answer(payload), QString());
        expectWarning("^Unknown caller id:");
        m_flow->parsePluginReplay(gone, payload);
        QCOMPARE(answer(place), QString());

        requestLogin(gone); // goes to the extension that is there
        QCOMPARE(answer(reply("login"_s)), "login(anna,secret)"_s);
    }

    void placesPassword()
    {
        m_flow->placePasswordValue("n3w"_s);
        m_client->sayHello();
        const QJsonValue asked =
            json("{'reason':'placepwd','timestamp':'1700000000000','openmode':'currentNoReload'}");
        QCOMPARE(m_client->frames.value(0).value(QLatin1String("payload")), asked);

        QJsonObject payload = placeReply();
        payload.insert("result"_s, pageWith("name+login+password"_s));
        QJsonObject unnamed = payload;
        unnamed.remove("timestamp"_s);
        QCOMPARE(answer(unnamed), QString());
        QCOMPARE(answer(payload), "login(n3w) password(n3w)"_s);
        const QJsonValue placed = json("{'reason':'placepwd','formUid':'password',"
                                       "'elements':[{'opid':'4','gpmid':'','value':'n3w'}]}");
        QCOMPARE(m_client->frames.value(1).value(QLatin1String("payload")), placed);
        QCOMPARE(answer(payload), QString());

        m_client->close();
        QTRY_VERIFY(!m_server->hasConnections());
        expectWarning("^No connected extension: it seems like plugins are not installed$");
        m_flow->placePasswordValue("n3w"_s);
    }

    void passwordWaitsForItsOwnAnswer()
    {
        m_flow->placePasswordValue("old"_s);
        const QJsonObject late = placeReply();
        m_flow->placePasswordValue("n3w"_s);
        const QJsonObject payload = placeReply();
        QCOMPARE(answer(late), QString());
        QCOMPARE(answer(payload), "password(n3w)"_s);
    }

    void passwordIsForgotten()
    {
        m_flow->placePasswordValue("n3w"_s);
        QJsonObject payload = placeReply();
        m_now += 30001;
        QCOMPARE(answer(payload), QString());

        // And by itself, without an answer.
        m_flow->placePasswordValue("n3w"_s);
        payload = placeReply();
        auto *timer = m_flow->findChild<QTimer *>();
        QSignalSpy forgotten(timer, &QTimer::timeout);
        QVERIFY(timer->isActive());
        timer->start(0);
        QVERIFY(forgotten.wait());
        QCOMPARE(answer(payload), QString());
    }

    void clearForgetsAll()
    {
        requestLogin();
        m_flow->placePasswordValue("n3w"_s);
        const QJsonObject place = placeReply();
        m_flow->clear();
        const QJsonObject payload = reply("login"_s);
        expectWarning(discardedReply);
        QCOMPARE(answer(payload), QString());
        QCOMPARE(answer(place), QString());
    }
};

QTEST_GUILESS_MAIN(TestFillReplies)
#include "tst_fillreplies.moc"
