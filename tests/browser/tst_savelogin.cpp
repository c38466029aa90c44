#include "ExcludedSites.h"
#include "PMLogin.h"
#include "SaveLogin.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

QJsonObject json(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

class TestSaveLogin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void captures_data();
    void captures();
    void decides_data();
    void decides();
    void request_data();
    void request();
    void excludedSites();
};

// The title and the fields of a submitted form; user name, password and "+" for a sign-up.
void TestSaveLogin::captures_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QString>("captured");
    const auto row = [](const char *name, const char *title, const char *fields,
                        const char *captured) {
        QTest::newRow(name) << QByteArray("{\"title\":\"") + title + "\",\"fields\":[" + fields +
                                   "]}"
                            << QString::fromUtf8(captured);
    };
    const char *const plain = R"({"type":"text","visible":true,"name":"login","value":"anna"},
        {"type":"password","visible":true,"name":"pass","value":"secret"})";
    row("plain", "Hello", plain, "anna secret");
    row("title of a sign-up", "РЕГИСТРАЦИЯ", plain, "anna secret +");
    row("title in Latin", "Registration", plain, "anna secret +");
    row("sign-up in code", "Hello",
        R"({"type":"email","visible":true,"id":"signup_email","value":"a@b.c"},
           {"type":"password","visible":true,"name":"password","value":"x"})",
        "a@b.c x +");
    row("the higher score wins, the earlier of equals", "",
        R"({"type":"text","visible":true,"name":"phone","value":"1"},
           {"type":"text","visible":true,"name":"user","value":"2"},
           {"type":"text","visible":true,"name":"user2","value":"3"},
           {"type":"password","visible":true,"name":"pass","value":"p"},
           {"type":"password","visible":true,"name":"password","value":"q"})",
        "2 q");
    row("invisible, empty of value, no words", "",
        R"({"type":"text","visible":false,"name":"login","value":"x"},
           {"type":"text","visible":true,"name":"login"},
           {"type":"password","visible":true,"name":"pin","value":"p"})",
        " ");
    row("typed twice", "",
        R"({"type":"password","visible":true,"name":"password","value":"old"},
           {"type":"password","visible":true,"name":"a","value":"new"},
           {"type":"password","visible":true,"name":"b","value":"new"})",
        " new");
    row("by what is read", "",
        R"({"type":"text","visible":true,"autocomplete":"","label":"Kundennummer","value":"77"},
           {"type":"password","visible":true,"autocomplete":"","label":"Kennwort","value":"p"})",
        "77 p");
    row("a new password without a repetition", "",
        R"({"type":"password","visible":true,"autocomplete":"","label":"Old password","value":"o"},
           {"type":"password","visible":true,"autocomplete":"","label":"New password","value":"n"})",
        " n -o");
    const char *const change =
        R"({"type":"password","visible":true,"autocomplete":"","label":"Current password","value":"o"},
           {"type":"password","visible":true,"autocomplete":"","label":"New password","value":"n"},
           {"type":"password","visible":true,"autocomplete":"","label":"Repeat it","value":"n"})";
    row("a change with a repetition", "", change, " n -o");
    row("a new account without telling words", "",
        R"({"type":"text","visible":true,"autocomplete":"email","value":"a@b.c"},
           {"type":"password","visible":true,"autocomplete":"new-password","value":"n"},
           {"type":"password","visible":true,"autocomplete":"new-password","value":"n"})",
        "a@b.c n +");
    row("the code of a card is no password", "",
        R"({"type":"text","visible":true,"autocomplete":"cc-number","value":"4111"},
           {"type":"password","visible":true,"autocomplete":"cc-csc","value":"123"})",
        " ");
    row("wrong types", "", R"(5, null, {"type":[],"value":{}}, {"visible":true,"value":1})", " ");
}

void TestSaveLogin::captures()
{
    QFETCH(QByteArray, form);
    const CapturedLogin login = captureLogin(json(form));
    QTEST(login.userName + QLatin1Char(' ') + login.password +
              QLatin1String(login.isSignUp ? " +" : "") +
              (login.oldPassword.isEmpty() ? QString() : QStringLiteral(" -") + login.oldPassword),
          "captured");
}

// What was typed where, and the offer: the logins in the safe are those of the test below.
void TestSaveLogin::decides_data()
{
    QTest::addColumn<QString>("site");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("offer");
    const auto row = [](const char *site, const char *user, const char *password,
                        const char *offer) {
        QTest::addRow("%s %s %s", site, user, password)
            << QString::fromUtf8(site) << QString::fromUtf8(user) << QString::fromUtf8(password)
            << QString::fromUtf8(offer);
    };
    row("shop.example", "ana", "one", "nothing");
    row("www.shop.example", "ANA", "one", "nothing");
    row("shop.example", "ana", "new", "update ana@shop of 2");
    row("https://login.shop.example/in?a=1", "bob", "new", "update bob@login.shop of 2");
    row("shop.example", "eve", "one", "add of 2");
    row("shop.example", "", "two", "nothing");
    row("shop.example", "", "new", "update ana@shop of 2");
    row("login.shop.example", "", "new", "update bob@login.shop of 2");
    row("shop.example", "gone", "three", "add of 2");
    row("other.example", "ana", "one", "add of 0");
    row("shop.example.evil.example", "ana", "new", "add of 0");
    row("shop.example", "ana", "", "nothing");
    row("not a site", "ana", "new", "nothing");
    // A page without encryption poses as the site: it never changes what has encryption.
    row("http://shop.example", "ana", "one", "nothing");
    row("http://shop.example", "ana", "new", "add of 1");
    row("http://login.shop.example", "bob", "new", "update bob@login.shop of 1");
    // The old password tells whose it is.
    row("shop.example", "", "new after two", "update bob@login.shop of 2");
    // Nothing tells whose it is.
    row("bank.example", "", "neu", "add of 2");
    row("bank.example", "", "neu after first", "update first@bank of 2");
    row("bank.example", "", "neu after neither", "add of 2");
    row("my.bank.example", "", "neu", "add of 2");
}

void TestSaveLogin::decides()
{
    const QStringList known[] = {
        {QStringLiteral("ana@shop"), QStringLiteral("https://shop.example"), QStringLiteral("ana"),
         QStringLiteral("one")},
        {QStringLiteral("bob@login.shop"), QStringLiteral("login.shop.example"),
         QStringLiteral("bob"), QStringLiteral("two")},
        {QStringLiteral("trash"), QStringLiteral("shop.example"), QStringLiteral("gone"),
         QStringLiteral("three")},
        {QStringLiteral("elsewhere"), QStringLiteral("bank.example"), QStringLiteral("ana"),
         QStringLiteral("new")},
        {QStringLiteral("first@bank"), QStringLiteral("bank.example"), QStringLiteral("ana"),
         QStringLiteral("first")}};
    std::vector<std::unique_ptr<PMLogin>> items;
    QVector<const PMLogin *> logins;
    for (const QStringList &login : known) {
        items.push_back(std::make_unique<PMLogin>());
        items.back()->setId(login.at(0));
        items.back()->setUrl(login.at(1));
        items.back()->setLogin(login.at(2));
        items.back()->setPassword(login.at(3));
        items.back()->setDeleted(login.at(0) == QLatin1String("trash"));
        logins.append(items.back().get());
    }
    QFETCH(QString, site);
    QFETCH(QString, user);
    QFETCH(QString, password);
    SaveLoginRequest request;
    request.site = site;
    request.login = {user, password, false,
                     password.mid(4).remove(QStringLiteral("after ")).trimmed()};
    const SaveLoginOffer offer = decideSaveLogin(request, logins);
    static const QStringList actions = {QStringLiteral("nothing"), QStringLiteral("update"),
                                        QStringLiteral("add")};
    QString said = actions.at(offer.action);
    if (!offer.itemId.isEmpty())
        said += QLatin1Char(' ') + offer.itemId;
    if (offer.action != SaveLoginOffer::Nothing)
        said += QStringLiteral(" of %1").arg(offer.candidates.size());
    QTEST(said, "offer");

    QString title;
    QMap<QString, QString> candidates;
    fillSaveLoginParams(request, logins, title, candidates);
    if (offer.action != SaveLoginOffer::Nothing)
        QCOMPARE(candidates, offer.candidates);
}

void TestSaveLogin::request_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("read");
    const auto row = [](const char *data, const char *read) {
        QTest::addRow("%s", data) << QByteArray(data) << QString::fromUtf8(read);
    };
    row(R"({"title":" My \n shop\u202e ","domain":"www.shop.example","login":"ana","password":"p"})",
        "My shop|www.shop.example|ana|p|https://shop.example/favicon.ico|www.shop.example|0,0 0x0");
    row(R"({"url":"https://u:p@shop.example:8443/in/%41?token=1#x","posx":-1e300,"posy":"3",
            "width":5,"height":-9,"login":"ana",
            "fields":[{"type":"password","visible":true,"name":"pass","value":"p"}]})",
        "|https://u:p@shop.example:8443/in/%41?token=1#x|ana|p|https://shop.example/favicon.ico|"
        "https://shop.example:8443/|-100000,0 5x0");
    row(R"({"title":"Change password","siteName":"","domain":"shop.example"})",
        "|shop.example|||https://shop.example/favicon.ico|shop.example|0,0 0x0");
    row(R"({"domain":"a.example","url":"https://b.example/x","faviconUrl":"https://c.example/i.png",
            "fields":[{"type":"text","visible":true,"name":"login","value":"bob"}]})",
        "|https://b.example/x|bob||https://c.example/i.png|https://b.example/x|0,0 0x0");
    row(R"({"title":3,"domain":{},"url":"javascript:1","fields":{},"faviconUrl":"file:///etc/x"})",
        "||||||0,0 0x0");
    row(R"({"domain":"shop.example","faviconUrl":"file:///etc/x"})",
        "|shop.example|||https://shop.example/favicon.ico|shop.example|0,0 0x0");
}

void TestSaveLogin::request()
{
    QFETCH(QByteArray, data);
    const SaveLoginRequest read = SaveLoginRequest::fromData(json(data));
    const QStringList parts = {read.title,
                               read.site,
                               read.login.userName,
                               read.login.password,
                               read.faviconUrl,
                               read.address,
                               QStringLiteral("%1,%2 %3x%4")
                                   .arg(read.place.x())
                                   .arg(read.place.y())
                                   .arg(read.place.width())
                                   .arg(read.place.height())};
    QTEST(parts.join(QLatin1Char('|')), "read");
}

void TestSaveLogin::excludedSites()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sites.json"));
    ExcludedSites sites(path);
    QVERIFY(sites.add(QStringLiteral("https://login.shop.example/in")));
    QVERIFY(sites.add(QStringLiteral("192.168.0.1")));
    QVERIFY(!sites.add(QStringLiteral("javascript:alert(1)")));
    ExcludedSites again(path);
    QCOMPARE(again.sites(),
             (QStringList{QStringLiteral("192.168.0.1"), QStringLiteral("shop.example")}));
    QVERIFY(again.contains(QStringLiteral("www.shop.example")));
    QVERIFY(!again.contains(QStringLiteral("shop.example.evil.example")));
    QVERIFY(!again.contains(QString()));
    QVERIFY(again.remove(QStringLiteral("shop.example")));
    QVERIFY(!ExcludedSites(path).contains(QStringLiteral("shop.example")));

    ExcludedSites nowhere(folder.filePath(QStringLiteral("none/such/sites.json")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Can't store the list")));
    QVERIFY(!nowhere.add(QStringLiteral("shop.example")));
    QVERIFY(nowhere.sites().isEmpty());
}

QTEST_APPLESS_MAIN(TestSaveLogin)
#include "tst_savelogin.moc"
