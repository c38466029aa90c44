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

namespace {

const QString itemId = QStringLiteral("item-1");
const QString site = QStringLiteral("https://www.bank.example/login");
const char *const discardedReply =
    "^Missing item id or timestamp for plugin replay: .* - discarded$";

QJsonValue json(const QByteArray &text)
{
    return QJsonDocument::fromJson("[" + text + "]").array().at(0);
}

/// The result that describes a page with these forms, named with "+" between them.
QJsonValue pageWith(const QString &names)
{
    static const QHash<QString, QByteArray> forms = {
        {QStringLiteral("login"), R"({"formUid":"login","fields":[
            {"opid":"1","type":"text","visible":true,"name":"username"},
            {"opid":"2","type":"password","visible":true}]})"},
        {QStringLiteral("name"), R"({"formUid":"name","fields":[
            {"opid":"3","type":"text","visible":true,"name":"email"}]})"},
        {QStringLiteral("password"), R"({"formUid":"password","fields":[
            {"opid":"4","type":"password","visible":true}]})"},
        {QStringLiteral("card"), R"({"formUid":"card","fields":[
            {"opid":"6","type":"text","visible":true,"name":"cardnumber"}]})"},
        {QStringLiteral("person"), R"({"formUid":"person","fields":[
            {"opid":"7","type":"text","visible":true,"name":"city"}]})"},
        {QStringLiteral("search"), R"({"formUid":"search","fields":[
            {"opid":"5","type":"text","visible":true,"name":"q"}]})"}};
    QByteArrayList list;
    for (const QString &name : names.split(QLatin1Char('+')))
        list.append(forms.value(name));
    return json(R"({"docinfo":{"forms":[)" + list.join(',') + "]}}");
}

QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

QJsonObject payloadOf(const QJsonObject &frame)
{
    return frame.value(QLatin1String("payload")).toObject();
}

/// The actions of the frames; for a fill the form, its values in brackets, and "!" for submit.
QString summary(const QVector<QJsonObject> &frames)
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

void expectWarning(const char *pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromUtf8(pattern)));
}

} // namespace

class TestFormFillFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void asks_data();
    void asks();
    void refusedItems();
    void wrongAddress();
    void withoutExtension();
    void cardsAndIdentities();
    void conversation_data();
    void conversation();
    void oddReply_data();
    void oddReply();
    void payloads();
    void onlyTheNewestRequestCounts();
    void otherConnectionCannotAnswer();
    void itemThatHasGone();
    void siteIcon();
    void placesPassword();
    void passwordWaitsForItsOwnAnswer();
    void passwordIsForgotten();
    void clearForgetsAll();

private:
    void become(const QString &kind);
    void request(const QString &kind, const QString &callerId = {}, const QString &option = {});
    void requestLogin(const QString &callerId = {}, const QString &option = {})
    {
        request(QStringLiteral("login"), callerId, option);
    }
    QJsonObject reply(const QString &forms, const QString &tabUrl = site,
                      const QString &reason = QStringLiteral("login")) const;
    QJsonObject placeReply();
    QString answer(const QJsonObject &payload,
                   const QString &action = QStringLiteral("collectDocumentResults"));

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

void TestFormFillFlow::initTestCase()
{
    expectWarning("^Can't load app settings");
    QVERIFY(GPMAppSettings(m_folder.path(), m_folder.path()).storeSettings());
}

void TestFormFillFlow::init()
{
    auto login = std::make_unique<PMLogin>();
    m_login = login.get();
    m_login->setId(itemId);
    m_login->setTitle(QStringLiteral("Bank"));
    m_login->setUrl(QStringLiteral("https://bank.example"));
    m_login->setLogin(QStringLiteral("anna"));
    m_login->setPassword(QStringLiteral("secret"));
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

void TestFormFillFlow::cleanup()
{
    m_client.reset();
    m_flow.reset();
    m_server.reset();
}

/// Makes the item one of the kind "creditcard" or "identity".
void TestFormFillFlow::become(const QString &kind)
{
    auto card = std::make_unique<PMCreditCard>();
    card->setNumber(QStringLiteral("4111111111111111"));
    auto identity = std::make_unique<PMIdentity>();
    identity->setCity(QStringLiteral("Kassel"));
    if (kind == QLatin1String("identity"))
        m_item = std::move(identity);
    else
        m_item = std::move(card);
    m_item->setId(itemId);
}

/// Leaves the payload that the extension got in m_request; empty when it got none.
void TestFormFillFlow::request(const QString &kind, const QString &callerId, const QString &option)
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

/// An answer to the latest request.
QJsonObject TestFormFillFlow::reply(const QString &forms, const QString &tabUrl,
                                    const QString &reason) const
{
    return {{QStringLiteral("reason"), reason},
            {QStringLiteral("itemid"), itemId},
            {QStringLiteral("timestamp"), m_request.value(QLatin1String("timestamp"))},
            {QStringLiteral("tabUrl"), tabUrl},
            {QStringLiteral("result"), pageWith(forms)}};
}

/// What the extension receives upon its answer.
QString TestFormFillFlow::answer(const QJsonObject &payload, const QString &action)
{
    m_client->sayHello();
    m_client->frames.clear();
    m_client->sendFrame(action, payload);
    m_client->sayHello();
    return summary(m_client->frames);
}

void TestFormFillFlow::asks_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("setting");
    QTest::addColumn<QString>("sentUrl");
    QTest::addColumn<QString>("openMode");
    using Settings = GPMAppSettings;
    const QString plain = QStringLiteral("http://bank.example");
    QTest::newRow("tab") << "bank.example"
                         << "" << int(Settings::Current) << plain << "current";
    QTest::newRow("new tab") << plain << "x" << int(Settings::NewTab) << plain << "newtab";
    QTest::newRow("window") << plain << "" << int(Settings::NewWindow) << plain << "window";
    QTest::newRow("option") << plain << "current" << int(Settings::NewTab) << plain << "current";
    QTest::newRow("no reload") << "https://bank.example"
                               << "currentNoReload" << int(Settings::NewTab)
                               << "https://bank.example"
                               << "currentNoReload";
}

void TestFormFillFlow::asks()
{
    QFETCH(QString, url);
    QFETCH(QString, option);
    QFETCH(int, setting);
    QFETCH(QString, sentUrl);
    QFETCH(QString, openMode);
    m_login->setUrl(url);
    m_settings->setPluginOpenMode(static_cast<GPMAppSettings::PluginOpenMode>(setting));
    requestLogin(m_callerId, option);
    const QJsonObject expected = {{QStringLiteral("reason"), QStringLiteral("login")},
                                  {QStringLiteral("itemid"), itemId},
                                  {QStringLiteral("timestamp"), QStringLiteral("1700000000000")},
                                  {QStringLiteral("url"), sentUrl},
                                  {QStringLiteral("openmode"), openMode}};
    QCOMPARE(m_request, expected);
}

void TestFormFillFlow::refusedItems()
{
    expectWarning("^Can't login. Item not found. Item id: \"gone\"$");
    m_flow->doLoginDefaultAction(QStringLiteral("gone"), {}, {});
    m_item = std::make_unique<PMSecureNote>();
    m_item->setId(itemId);
    expectWarning("^Can't login. Item must be type of \\[Login\\]. Item id: \"item-1\"$");
    requestLogin();
    QVERIFY(m_request.isEmpty());
}

void TestFormFillFlow::wrongAddress()
{
    QSignalSpy notice(m_flow.get(), &FormFillFlow::userNotice);
    m_login->setUrl(QStringLiteral("my bank"));
    requestLogin();
    QVERIFY(m_request.isEmpty());
    const QString said = QStringLiteral("Item Bank has wrong url: my bank");
    QCOMPARE(notice, (QList<QVariantList>{{QStringLiteral("Can't login."), said}}));
}

void TestFormFillFlow::withoutExtension()
{
    m_client->close();
    QTRY_VERIFY(!m_server->hasConnections());
    QSignalSpy open(m_flow.get(), &FormFillFlow::openInBrowserRequested);
    m_login->setUrl(QStringLiteral("bank.example/a"));
    m_flow->doLoginDefaultAction(itemId, {}, {});
    expectWarning("^Caller id is not empty but there are no connected extensions$");
    m_flow->doLoginDefaultAction(itemId, m_callerId, {});
    const QVariantList address = {QUrl(QStringLiteral("http://bank.example/a"))};
    QCOMPARE(open, (QList<QVariantList>{address, address}));
}

void TestFormFillFlow::cardsAndIdentities()
{
    for (const auto &kind : {QStringLiteral("creditcard"), QStringLiteral("identity")}) {
        become(kind);
        request(kind);
        QCOMPARE(text(m_request, "reason"), kind);
        QCOMPARE(text(m_request, "openmode"), QStringLiteral("currentNoReload"));
        answer(reply(QStringLiteral("card+person"), site, kind));
        QCOMPARE(text(payloadOf(m_client->frames.first()), "reason"), kind);
    }
    expectWarning("^Can't fill credit card data. Item must be type of \\[Credit Card\\].");
    m_flow->doCreditCardDefaultAction(itemId, {}, {});
    expectWarning("^Can't fill identity. Item not found. Item id: \"gone\"$");
    m_flow->doIdentityDefaultAction(QStringLiteral("gone"), {}, {});
    m_client->close();
    QTRY_VERIFY(!m_server->hasConnections());
    QSignalSpy notice(m_flow.get(), &FormFillFlow::userNotice);
    expectWarning("^No connected extensions!$");
    m_flow->doIdentityDefaultAction(itemId, {}, {});
    QCOMPARE(notice.size(), 1);
}

// Each line is an answer to the request, "action address forms", and what the extension then gets
// and the user is told. A card and an identity are filled into the page that is open, whatever its
// site, when it is encrypted, and once for a request.
void TestFormFillFlow::conversation_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("given");
    const auto row = [](const char *name, const char *lines, const char *given = "") {
        QTest::newRow(name) << QString::fromUtf8(lines).split(QLatin1String(" | "))
                            << QString::fromUtf8(given);
    };
    row("login form", "page site login -> login(anna,secret)! | page site login -> discarded");
    row("user name first, password on the next page",
        "page site name -> name(anna)! | page site password -> password(secret)! | "
        "page site password -> discarded");
    row("user name asked for again", "page site name -> name(anna)! | page site name -> ");
    row("nothing to fill after the user name", "page site name -> name(anna)! | page site search ->"
                                               " | page site password -> password(secret)!");
    row("other pages after the user name",
        "page site name -> name(anna)! | page https://evil.test/ password -> | "
        "page http://www.bank.example/ password -> ");

    row("another site", "page https://bank.example.evil.test/ login -> findLoginPage");
    row("plain page", "page http://www.bank.example/ login -> findLoginPage");
    row("page of the browser", "page chrome://newtab/ login -> findLoginPage");
    row("login page found", "page site search -> findLoginPage | "
                            "loginpage site search+login -> login(anna,secret)!");
    row("login page asked for once",
        "page site search -> findLoginPage | page site search -> | page chrome://newtab/ search ->"
        " | loginpage site search -> ");
    row("login page without being asked", "loginpage site search -> ");
    row("login page of another site",
        "page site search -> findLoginPage | loginpage https://evil.test/ login -> ");

    row("two forms, none with a password", "page site name+name -> name(anna) name(anna)");
    row("first form with a password is submitted, last",
        "page site name+login+password+name -> "
        "name(anna) password(secret) name(anna) login(anna,secret)!");

    const char *const submits = "page site login -> login(anna,secret)!";
    const char *const fills = "page site login -> login(anna,secret)";
    row("main window submits", submits, "main-submits");
    row("main window fills", fills, "extension-submits");
    row("extension submits", submits, "extension-submits from-extension");
    row("extension fills", fills, "main-submits from-extension");
    row("login submits", submits, "login-submits from-extension");
    row("login fills", fills, "login-fills main-submits");

    const char *const open[][2] = {{"creditcard", "card(4111111111111111)"},
                                   {"identity", "person(Kassel)"}};
    for (const auto &kind : open) {
        const QByteArray all = "https://elsewhere.example/ login+card+person -> ";
        const QByteArray page = "page " + all;
        const QByteArray filled = page + kind[1] + " used";
        const QByteArray discarded = page + "discarded";
        const auto rowOf = [&](const char *name, const QByteArray &lines) {
            row((QByteArray(kind[0]) + ", " + name).constData(), lines.constData(), kind[0]);
        };
        rowOf("once", filled + " | " + discarded);
        rowOf("as a login", "login " + all + "discarded");
        // The user may be on another page by now.
        rowOf("late", "wait 31000 | " + discarded + " | wait -31000 | " + discarded);
        rowOf("in time", "wait 30000 | " + filled);
        rowOf("nothing to fill", "page site search -> told");
        for (const char *readable :
             {"http://shop.example/", "http://127.0.0.1/", "''", "file:///a"})
            rowOf(readable, "page " + QByteArray(readable) + " card+person -> unencrypted");
    }
}

void TestFormFillFlow::conversation()
{
    QFETCH(QStringList, lines);
    QFETCH(QString, given);
    const auto isGiven = [&](const char *word) { return given.contains(QLatin1String(word)); };
    if (!given.isEmpty() && !isGiven("main-submits"))
        m_settings->setLoginMode(GPMAppSettings::Fill);
    if (isGiven("extension-submits"))
        m_settings->setPluginLoginMode(GPMAppSettings::PluginFillAndSubmit);
    if (isGiven("login-submits"))
        m_login->setFillType(PMFieldTypes::LoginFillType::FillAndSubmit);
    if (isGiven("login-fills"))
        m_login->setFillType(PMFieldTypes::LoginFillType::OnlyFill);
    QString kind = QStringLiteral("login");
    if (isGiven("creditcard") || isGiven("identity"))
        become(kind = given);
    request(kind, isGiven("from-extension") ? m_callerId : QString());
    for (const QString &line : qAsConst(lines)) {
        const QStringList words = line.section(QLatin1String(" ->"), 0, 0).split(QLatin1Char(' '));
        const QString expected = line.section(QLatin1String(" ->"), 1).trimmed();
        if (words.at(0) == QLatin1String("wait")) {
            m_now += words.at(1).toInt();
            continue;
        }
        const bool isDiscarded = expected == QLatin1String("discarded");
        if (isDiscarded)
            expectWarning(discardedReply);
        const QString address = words.at(1) == QLatin1String("site")
                                    ? site
                                    : QString(words.at(1)).remove(QLatin1Char('\''));
        const bool isForLogin = words.at(0) != QLatin1String("page");
        const QJsonObject payload =
            reply(words.at(2), address, isForLogin ? QStringLiteral("login") : kind);
        QSignalSpy notice(m_flow.get(), &FormFillFlow::userNotice);
        QSignalSpy used(m_flow.get(), &FormFillFlow::itemUsed);
        const bool isLoginPage = words.at(0) == QLatin1String("loginpage");
        QString outcome =
            isLoginPage ? answer(payload, QStringLiteral("loginPageLoaded")) : answer(payload);
        if (kind != QLatin1String("login")) {
            const QString told = notice.value(0).value(0).toString();
            const bool isOpen = told == QLatin1String("This page is not encrypted");
            outcome += QLatin1String(isOpen ? "unencrypted" : told.isEmpty() ? "" : "told");
            outcome += QLatin1String(used.isEmpty() ? "" : " used");
        }
        QCOMPARE(outcome, isDiscarded ? QString() : expected);
    }
}

// A good answer with one member replaced, or taken out where the value is empty.
void TestFormFillFlow::oddReply_data()
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
    row("reason", R"("docinfo")", "^Unknown reason for replay$");
    row("reason", "1", "^Unknown reason for replay$");
    row("reason", R"("identity")", discardedReply);
    row("timestamp", "", discardedReply);
    row("timestamp", "1700000000000", discardedReply);
    row("timestamp", R"("1700000000001")", discardedReply);
    row("itemid", "", discardedReply);
    row("itemid", R"(["item-1"])", discardedReply);
    row("itemid", R"("item-2")", discardedReply);
    for (const char *empty : {"{}", "[{}]", R"("docinfo")", "null"})
        row("result", empty, "^Empty result returned$");
    const QByteArray deep = QByteArray(900, '[') + QByteArray(900, ']');
    for (const QByteArray &unusable : QByteArrayList{
             R"({"docinfo":[{"forms":[]}]})", R"({"forms":[]})",
             R"({"docinfo":{"forms":1,"elements":{}}})", R"({"docinfo":{"forms":)" + deep + "}}",
             R"({"docinfo":{"elements":[{"visible":)" + deep + "}]}}"})
        row("result", unusable, "");
    row("tabUrl", "", "");
    row("tabUrl", R"(["https://bank.example/"])", "");
}

void TestFormFillFlow::oddReply()
{
    QFETCH(QString, key);
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, warning);
    requestLogin();
    QJsonObject payload = reply(QStringLiteral("login"));
    payload.remove(key);
    if (!value.isEmpty())
        payload.insert(key, json(value));
    if (!warning.isEmpty())
        expectWarning(warning.constData());
    QCOMPARE(answer(payload), warning.isEmpty() ? QStringLiteral("findLoginPage") : QString());
    QCOMPARE(answer(reply(QStringLiteral("login"))), QStringLiteral("login(anna,secret)!"));
}

void TestFormFillFlow::payloads()
{
    QSignalSpy used(m_flow.get(), &FormFillFlow::itemUsed);
    requestLogin();
    answer(reply(QStringLiteral("search")));
    const QJsonValue asked =
        json(R"({"reason":"login","itemid":"item-1","timestamp":"1700000000000",
                      "url":"https://bank.example","openmode":"getLoginPageData"})");
    QCOMPARE(m_client->frames.value(0).value(QLatin1String("payload")), asked);
    QVERIFY(used.isEmpty());
    answer(reply(QStringLiteral("name")));
    const QJsonValue filled = json(R"({"reason":"login","formUid":"name","submit":true,
                      "elements":[{"opid":"3","gpmid":"","value":"anna"}]})");
    QCOMPARE(m_client->frames.value(0).value(QLatin1String("payload")), filled);
    answer(reply(QStringLiteral("password")));
    QCOMPARE(used, (QList<QVariantList>{{itemId}}));
}

void TestFormFillFlow::onlyTheNewestRequestCounts()
{
    requestLogin();
    const QJsonObject first = reply(QStringLiteral("login"));
    requestLogin(); // in the same millisecond
    expectWarning(discardedReply);
    QCOMPARE(answer(first), QString());
    QCOMPARE(answer(reply(QStringLiteral("login"))), QStringLiteral("login(anna,secret)!"));
}

void TestFormFillFlow::otherConnectionCannotAnswer()
{
    requestLogin(m_callerId);
    const QJsonObject payload = reply(QStringLiteral("login"));
    m_flow->placePasswordValue(QStringLiteral("n3w"));
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
    QCOMPARE(answer(reply(QStringLiteral("login"))), QStringLiteral("login(anna,secret)"));
}

void TestFormFillFlow::itemThatHasGone()
{
    requestLogin();
    m_item.reset();
    expectWarning("^Item not found within current safe object: \"item-1\"$");
    QCOMPARE(answer(reply(QStringLiteral("login"))), QString());
}

void TestFormFillFlow::siteIcon()
{
    QSignalSpy spy(m_flow.get(), &FormFillFlow::siteIconReported);
    const auto reported = [&](const char *icon, const QString &tabUrl, const char *iconAddress) {
        m_login->setIcon(QString::fromLatin1(icon));
        requestLogin();
        QJsonObject payload = reply(QStringLiteral("login"), tabUrl);
        payload.insert(QStringLiteral("faviconUrl"), QString::fromLatin1(iconAddress));
        answer(payload);
        return spy.isEmpty() ? QVariantList() : spy.takeFirst();
    };
    const char *const address = "https://cdn.test/icon.png";
    const QVariantList expected = {QStringLiteral("bank.example"), QString::fromLatin1(address)};
    QCOMPARE(reported(":/icons/login.png", site, address), expected);
    QVERIFY(reported("/favicon/bank.png", site, address).isEmpty());
    QVERIFY(reported("", QStringLiteral("https://evil.test/"), address).isEmpty());
    QVERIFY(reported("", site, "file:///etc/passwd").isEmpty());
}

void TestFormFillFlow::placesPassword()
{
    m_flow->placePasswordValue(QStringLiteral("n3w"));
    m_client->sayHello();
    const QJsonValue asked =
        json(R"({"reason":"placepwd","timestamp":"1700000000000","openmode":"currentNoReload"})");
    QCOMPARE(m_client->frames.value(0).value(QLatin1String("payload")), asked);

    QJsonObject payload = placeReply();
    payload.insert(QStringLiteral("result"), pageWith(QStringLiteral("name+login+password")));
    QJsonObject unnamed = payload;
    unnamed.remove(QStringLiteral("timestamp"));
    QCOMPARE(answer(unnamed), QString());
    QCOMPARE(answer(payload), QStringLiteral("login(n3w) password(n3w)"));
    const QJsonValue placed = json(R"({"reason":"placepwd","formUid":"password",
                      "elements":[{"opid":"4","gpmid":"","value":"n3w"}]})");
    QCOMPARE(m_client->frames.value(1).value(QLatin1String("payload")), placed);
    QCOMPARE(answer(payload), QString());

    m_client->close();
    QTRY_VERIFY(!m_server->hasConnections());
    expectWarning("^No connected extension: it seems like plugins are not installed$");
    m_flow->placePasswordValue(QStringLiteral("n3w"));
}

/// The payload that answers the request for a password's page, with the request's own stamp.
QJsonObject TestFormFillFlow::placeReply()
{
    m_client->sayHello();
    QJsonObject payload = reply(QStringLiteral("password"));
    payload.insert(QStringLiteral("reason"), QStringLiteral("placepwd"));
    payload.insert(QStringLiteral("timestamp"),
                   payloadOf(m_client->frames.last()).value(QLatin1String("timestamp")));
    return payload;
}

void TestFormFillFlow::passwordWaitsForItsOwnAnswer()
{
    m_flow->placePasswordValue(QStringLiteral("old"));
    const QJsonObject late = placeReply();
    m_flow->placePasswordValue(QStringLiteral("n3w"));
    const QJsonObject payload = placeReply();
    QCOMPARE(answer(late), QString());
    QCOMPARE(answer(payload), QStringLiteral("password(n3w)"));
}

void TestFormFillFlow::passwordIsForgotten()
{
    m_flow->placePasswordValue(QStringLiteral("n3w"));
    QJsonObject payload = placeReply();
    m_now += 30001;
    QCOMPARE(answer(payload), QString());

    // And by itself, without an answer.
    m_flow->placePasswordValue(QStringLiteral("n3w"));
    payload = placeReply();
    auto *timer = m_flow->findChild<QTimer *>();
    QSignalSpy forgotten(timer, &QTimer::timeout);
    QVERIFY(timer->isActive());
    timer->start(0);
    QVERIFY(forgotten.wait());
    QCOMPARE(answer(payload), QString());
}

void TestFormFillFlow::clearForgetsAll()
{
    requestLogin();
    m_flow->placePasswordValue(QStringLiteral("n3w"));
    const QJsonObject place = placeReply();
    m_flow->clear();
    const QJsonObject payload = reply(QStringLiteral("login"));
    expectWarning(discardedReply);
    QCOMPARE(answer(payload), QString());
    QCOMPARE(answer(place), QString());
}

QTEST_GUILESS_MAIN(TestFormFillFlow)
#include "tst_formfillflow.moc"
