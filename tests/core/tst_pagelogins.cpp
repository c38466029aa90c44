#include "ExtensionClient.h"
#include "GPMAppCore.h"
#include "PMLogin.h"

#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString password = QStringLiteral("pw");

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

GPMAppCore::Places placesIn(const QTemporaryDir &folder)
{
    return {folder.filePath(QStringLiteral("config")), folder.filePath(QStringLiteral("data")),
            folder.filePath(QStringLiteral("hidden")), freePort()};
}

} // namespace

/// What belongs to a page, and what the extension hears of it.
class TestPageLogins : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    GPMAppCore::Places m_places = placesIn(m_folder);
    std::unique_ptr<GPMAppCore> m_core;

    PMListItem *add(const QString &title, const QString &url,
                    PMListItem::Type type = PMListItem::Login)
    {
        auto item = m_core->modelCreateItem(type);
        item->setTitle(title);
        item->setUrl(url);
        return m_core->modelAddItem(std::move(item));
    }

    QString titlesFor(const QString &page)
    {
        QStringList titles;
        for (const QString &id : m_core->pageLogins().idsFor(page))
            titles.append(m_core->currentSafe()->item(id)->title());
        return titles.join(QLatin1Char(' '));
    }

private Q_SLOTS:
    void init()
    {
        m_core = std::make_unique<GPMAppCore>(m_places);
        m_core->startServer();
        QVERIFY(m_core->createSafe(QStringLiteral("Mine"), password, QStringLiteral("h")));
    }
    void cleanup() { m_core.reset(); }

    void loginsOfAPage_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("titles");
        const auto row = [](const char *page, const char *titles) {
            QTest::newRow(page) << QString::fromUtf8(page) << QString::fromUtf8(titles);
        };
        row("https://mail.firm.example/a?b#c", "Mail Apex Shop Zoo");
        row("https://www.firm.example/", "Apex Zoo Mail Shop");
        row("http://mail.firm.example/", "Zoo");
        row("https://notfirm.example/", "");
        row("https://a.github.io/", "Pages");
        row("https://b.github.io/", "");
        row("https://127.0.0.1:8443/x", "Router");
        row("https://127.0.0.1/", "");
        row("about:blank", "");
        row("", "");
    }
    void loginsOfAPage()
    {
        add(QStringLiteral("Zoo"), QStringLiteral("http://firm.example/"));
        add(QStringLiteral("Apex"), QStringLiteral("https://FIRM.example."));
        add(QStringLiteral("Mail"), QStringLiteral("https://mail.firm.example/login"));
        add(QStringLiteral("Shop"), QStringLiteral("https://shop.firm.example/login"));
        add(QStringLiteral("Pages"), QStringLiteral("https://a.github.io"));
        add(QStringLiteral("Router"), QStringLiteral("https://127.0.0.1:8443"));
        add(QStringLiteral("Nowhere"), QString());
        add(QStringLiteral("Card"), QStringLiteral("https://firm.example"), PMListItem::CreditCard);
        const auto *gone =
            add(QStringLiteral("Gone"), QStringLiteral("https://mail.firm.example/"));
        m_core->modelItemDeleted(gone->id());
        QFETCH(QString, page);
        QTEST(titlesFor(page), "titles");
        // The same when they are read anew.
        m_core->lockCurrentSafe();
        QCOMPARE(titlesFor(page), QString());
        QSignalSpy finished(m_core.get(), &GPMAppCore::unlockFinished);
        m_core->unlockCurrentSafe(password);
        QVERIFY(finished.wait());
        QTEST(titlesFor(page), "titles");
    }

    void followsWhatIsEdited()
    {
        const QString page = QStringLiteral("https://firm.example/");
        PMListItem *item = add(QStringLiteral("One"), page);
        QCOMPARE(titlesFor(page), QStringLiteral("One"));
        item->setUrl(QStringLiteral("https://other.example/"));
        QCOMPARE(titlesFor(page), QString());
        QCOMPARE(titlesFor(item->url()), QStringLiteral("One"));
        m_core->modelItemDeleted(item->id());
        QCOMPARE(titlesFor(item->url()), QString());
        m_core->modelItemRestored(item->id());
        QCOMPARE(titlesFor(item->url()), QStringLiteral("One"));
        m_core->modelItemPurged(item->id());
        QCOMPARE(titlesFor(QStringLiteral("https://other.example/")), QString());
    }

    void theExtensionHearsHowThingsStand()
    {
        const QString page = QStringLiteral("https://firm.example/");
        add(QStringLiteral("One"), page);
        ExtensionClient extension(m_places.port);
        QVERIFY(!extension.sayHello().isEmpty());
        extension.frames.clear();
        // What was told unasked on the way tells nothing of the page.
        const auto last = [&] {
            const QJsonObject frame =
                extension.frames.isEmpty() ? QJsonObject{} : extension.frames.last();
            QJsonObject state = frame.value(QLatin1String("payload")).toObject();
            state.remove(QStringLiteral("url"));
            return state;
        };
        const auto state = [](bool locked, int logins) {
            return QJsonObject{{QStringLiteral("locked"), locked},
                               {QStringLiteral("safe"), QStringLiteral("Mine")},
                               {QStringLiteral("logins"), logins}};
        };
        extension.sendFrame(
            QStringLiteral("getState"),
            {{QStringLiteral("request_id"), QStringLiteral("7")}, {QStringLiteral("url"), page}});
        QJsonObject answer = state(false, 1);
        answer.insert(QStringLiteral("request_id"), QStringLiteral("7"));
        QTRY_COMPARE(last(), answer);

        add(QStringLiteral("Two"), page);
        add(QStringLiteral("Three"), page);
        QTRY_COMPARE(last(), state(false, 3));
        m_core->lockCurrentSafe();
        QTRY_COMPARE(last(), state(true, 0));
        const int before = extension.frames.size();
        m_core->unlockCurrentSafe(password);
        QTRY_COMPARE(last(), state(false, 3));
        QVERIFY2(extension.frames.size() <= before + 3, "told of every item");
    }

    void aWishIsReadAsAStrangersWord_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QVariant>("field");
        QTest::addColumn<int>("section");
        const auto row = [](const char *name, const QByteArray &json, const QVariant &field,
                            QuickAccessWish::Section section = QuickAccessWish::Section::Logins) {
            QTest::newRow(name) << json << field << static_cast<int>(section);
        };
        row("whole", "{'kind':'identity','field':{'left':-5.6,'top':7,'width':30,'height':4}}",
            QRect(-6, 7, 30, 4), QuickAccessWish::Section::Identities);
        row("a generator", "{'kind':'generate'}", {}, QuickAccessWish::Section::Generator);
        row("a strange kind", "{'kind':['creditcard']}", {});
        row("texts", "{'field':{'left':'5','top':7,'width':30,'height':4}}", {});
        row("without a height", "{'field':{'left':5,'top':7,'width':30}}", {});
        row("nothing in it", "{'field':{'left':5,'top':7,'width':0,'height':4}}", {});
        row("off the world", "{'field':{'left':1e300,'top':7,'width':30,'height':4}}", {});
        row("a list", "{'field':[5,7,30,4]}", {});
    }
    void aWishIsReadAsAStrangersWord()
    {
        QFETCH(QByteArray, json);
        QFETCH(QVariant, field);
        const QJsonDocument document = QJsonDocument::fromJson(json.replace('\'', '"'));
        QVERIFY(document.isObject());
        const auto wish = QuickAccessWish::fromExtension(QStringLiteral("c"), document.object());
        QCOMPARE(wish.field ? QVariant(*wish.field) : QVariant(), field);
        QTEST(static_cast<int>(wish.section), "section");
        QVERIFY(!wish.fill && !wish.browser);
    }
};

QTEST_MAIN(TestPageLogins)
#include "tst_pagelogins.moc"
