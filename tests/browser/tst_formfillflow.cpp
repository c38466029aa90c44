#include "../Text.h"
#include "FillTest.h"

/// What is asked of pages, and what is filled into them.
class TestFormFillFlow : public FillTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { storeSettings(); }
    void init() { start(); }
    void cleanup() { end(); }

    void asks_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("option");
        QTest::addColumn<int>("setting");
        QTest::addColumn<QString>("sentUrl");
        QTest::addColumn<QString>("openMode");
        using Settings = GPMAppSettings;
        const QString plain = "http://bank.example"_s;
        QTest::newRow("tab") << "bank.example"
                             << "" << int(Settings::Current) << plain << "current";
        QTest::newRow("new tab") << plain << "x" << int(Settings::NewTab) << plain << "newtab";
        QTest::newRow("window") << plain << "" << int(Settings::NewWindow) << plain << "window";
        QTest::newRow("option") << plain << "current" << int(Settings::NewTab) << plain
                                << "current";
        QTest::newRow("no reload")
            << "https://bank.example"
            << "currentNoReload" << int(Settings::NewTab) << "https://bank.example"
            << "currentNoReload";
    }
    void asks()
    {
        QFETCH(QString, url);
        QFETCH(QString, option);
        QFETCH(int, setting);
        QFETCH(QString, sentUrl);
        QFETCH(QString, openMode);
        m_login->setUrl(url);
        m_settings->setPluginOpenMode(static_cast<GPMAppSettings::PluginOpenMode>(setting));
        requestLogin(m_callerId, option);
        const QJsonObject expected = {{"reason"_s, "login"_s},
                                      {"itemid"_s, itemId},
                                      {"timestamp"_s, "1700000000000"_s},
                                      {"url"_s, sentUrl},
                                      {"openmode"_s, openMode}};
        QCOMPARE(m_request, expected);
    }

    void refusedItems()
    {
        expectWarning("^Can't login. Item not found. Item id: \"gone\"$");
        m_flow->doLoginDefaultAction("gone"_s, {}, {});
        m_item = std::make_unique<PMSecureNote>();
        m_item->setId(itemId);
        expectWarning("^Can't login. Item must be type of \\[Login\\]. Item id: \"item-1\"$");
        requestLogin();
        QVERIFY(m_request.isEmpty());
    }

    void wrongAddress()
    {
        QSignalSpy notice(m_flow.get(), &FormFillFlow::userNotice);
        m_login->setUrl("my bank"_s);
        requestLogin();
        QVERIFY(m_request.isEmpty());
        const QString said = "Item Bank has wrong url: my bank"_s;
        QCOMPARE(notice, (QList<QVariantList>{{"Can't login."_s, said}}));
    }

    void withoutExtension()
    {
        m_client->close();
        QTRY_VERIFY(!m_server->hasConnections());
        QSignalSpy open(m_flow.get(), &FormFillFlow::openInBrowserRequested);
        m_login->setUrl("bank.example/a"_s);
        m_flow->doLoginDefaultAction(itemId, {}, {});
        expectWarning("^Caller id is not empty but there are no connected extensions$");
        m_flow->doLoginDefaultAction(itemId, m_callerId, {});
        const QVariantList address = {QUrl("http://bank.example/a"_s)};
        QCOMPARE(open, (QList<QVariantList>{address, address}));
    }

    void cardsAndIdentities()
    {
        for (const auto &kind : {"creditcard"_s, "identity"_s}) {
            become(kind);
            request(kind);
            QCOMPARE(text(m_request, "reason"), kind);
            QCOMPARE(text(m_request, "openmode"), "currentNoReload"_s);
            answer(reply("card+person"_s, site, kind));
            QCOMPARE(text(payloadOf(m_client->frames.first()), "reason"), kind);
        }
        expectWarning("^Can't fill credit card data. Item must be type of \\[Credit Card\\].");
        m_flow->doCreditCardDefaultAction(itemId, {}, {});
        expectWarning("^Can't fill identity. Item not found. Item id: \"gone\"$");
        m_flow->doIdentityDefaultAction("gone"_s, {}, {});
        m_client->close();
        QTRY_VERIFY(!m_server->hasConnections());
        QSignalSpy notice(m_flow.get(), &FormFillFlow::userNotice);
        expectWarning("^No connected extensions!$");
        m_flow->doIdentityDefaultAction(itemId, {}, {});
        QCOMPARE(notice.size(), 1);
    }

    // Each line is an answer to the request, "action address forms", and what the extension then
    // gets and the user is told. A card and an identity are filled into the page that is open,
    // whatever its site, when it is encrypted, and once for a request.
    void conversation_data()
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
        row("nothing to fill after the user name",
            "page site name -> name(anna)! | page site search ->"
            " | page site password -> password(secret)!");
        row("other pages after the user name",
            "page site name -> name(anna)! | page https://evil.test/ password -> | "
            "page http://www.bank.example/ password -> ");

        row("another site", "page https://bank.example.evil.test/ login -> findLoginPage");
        row("plain page", "page http://www.bank.example/ login -> findLoginPage");
        row("page of the browser", "page chrome://newtab/ login -> findLoginPage");
        row("login page found", "page site search -> findLoginPage | "
                                "loginpage site search+login -> login(anna,secret)!");
        row("login page asked for once", "page site search -> findLoginPage | page site search -> "
                                         "| page chrome://newtab/ search ->"
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
    void conversation()
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
        QString kind = "login"_s;
        if (isGiven("creditcard") || isGiven("identity"))
            become(kind = given);
        request(kind, isGiven("from-extension") ? m_callerId : QString());
        for (const QString &line : qAsConst(lines)) {
            const QStringList words =
                line.section(QLatin1String(" ->"), 0, 0).split(QLatin1Char(' '));
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
            const QJsonObject payload = reply(words.at(2), address, isForLogin ? "login"_s : kind);
            QSignalSpy notice(m_flow.get(), &FormFillFlow::userNotice);
            QSignalSpy used(m_flow.get(), &FormFillFlow::itemUsed);
            const bool isLoginPage = words.at(0) == QLatin1String("loginpage");
            QString outcome = isLoginPage ? answer(payload, "loginPageLoaded"_s) : answer(payload);
            if (kind != QLatin1String("login")) {
                const QString told = notice.value(0).value(0).toString();
                const bool isOpen = told == QLatin1String("This page is not encrypted");
                outcome += QLatin1String(isOpen ? "unencrypted" : told.isEmpty() ? "" : "told");
                outcome += QLatin1String(used.isEmpty() ? "" : " used");
            }
            QCOMPARE(outcome, isDiscarded ? QString() : expected);
        }
    }

    void itemThatHasGone()
    {
        requestLogin();
        m_item.reset();
        expectWarning("^Item not found within current safe object: \"item-1\"$");
        QCOMPARE(answer(reply("login"_s)), QString());
    }

    void siteIcon()
    {
        QSignalSpy spy(m_flow.get(), &FormFillFlow::siteIconReported);
        const auto reported = [&](const char *icon, const QString &tabUrl,
                                  const char *iconAddress) {
            m_login->setIcon(QString::fromLatin1(icon));
            requestLogin();
            QJsonObject payload = reply("login"_s, tabUrl);
            payload.insert("faviconUrl"_s, QString::fromLatin1(iconAddress));
            answer(payload);
            return spy.isEmpty() ? QVariantList() : spy.takeFirst();
        };
        const char *const address = "https://cdn.test/icon.png";
        const QVariantList expected = {"bank.example"_s, QString::fromLatin1(address)};
        QCOMPARE(reported(":/icons/login.png", site, address), expected);
        QVERIFY(reported("/favicon/bank.png", site, address).isEmpty());
        QVERIFY(reported("", "https://evil.test/"_s, address).isEmpty());
        QVERIFY(reported("", site, "file:///etc/passwd").isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestFormFillFlow)
#include "tst_formfillflow.moc"
