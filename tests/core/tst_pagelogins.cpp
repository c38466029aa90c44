#include "../Text.h"
#include "ExtensionClient.h"
#include "GPMAppCore.h"
#include "PMLogin.h"

#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString password = "pw"_s;

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

GPMAppCore::Places placesIn(const QTemporaryDir &folder)
{
    return {folder.filePath("config"_s), folder.filePath("data"_s), folder.filePath("hidden"_s),
            freePort()};
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
        QVERIFY(m_core->createSafe("Mine"_s, password, "h"_s));
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
        add("Zoo"_s, "http://firm.example/"_s);
        add("Apex"_s, "https://FIRM.example."_s);
        add("Mail"_s, "https://mail.firm.example/login"_s);
        add("Shop"_s, "https://shop.firm.example/login"_s);
        add("Pages"_s, "https://a.github.io"_s);
        add("Router"_s, "https://127.0.0.1:8443"_s);
        add("Nowhere"_s, QString());
        add("Card"_s, "https://firm.example"_s, PMListItem::CreditCard);
        const auto *gone = add("Gone"_s, "https://mail.firm.example/"_s);
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
        const QString page = "https://firm.example/"_s;
        PMListItem *item = add("One"_s, page);
        QCOMPARE(titlesFor(page), "One"_s);
        item->setUrl("https://other.example/"_s);
        QCOMPARE(titlesFor(page), QString());
        QCOMPARE(titlesFor(item->url()), "One"_s);
        m_core->modelItemDeleted(item->id());
        QCOMPARE(titlesFor(item->url()), QString());
        m_core->modelItemRestored(item->id());
        QCOMPARE(titlesFor(item->url()), "One"_s);
        m_core->modelItemPurged(item->id());
        QCOMPARE(titlesFor("https://other.example/"_s), QString());
    }

    void theExtensionHearsHowThingsStand()
    {
        const QString page = "https://firm.example/"_s;
        add("One"_s, page);
        ExtensionClient extension(m_places.port);
        QVERIFY(!extension.sayHello().isEmpty());
        extension.frames.clear();
        // What was told unasked on the way tells nothing of the page.
        const auto last = [&] {
            const QJsonObject frame =
                extension.frames.isEmpty() ? QJsonObject{} : extension.frames.last();
            QJsonObject state = frame.value(QLatin1String("payload")).toObject();
            state.remove("url"_s);
            return state;
        };
        const auto state = [](bool locked, int logins) {
            return QJsonObject{{"locked"_s, locked}, {"safe"_s, "Mine"_s}, {"logins"_s, logins}};
        };
        extension.sendFrame("getState"_s, {{"request_id"_s, "7"_s}, {"url"_s, page}});
        QJsonObject answer = state(false, 1);
        answer.insert("request_id"_s, "7"_s);
        QTRY_COMPARE(last(), answer);

        add("Two"_s, page);
        add("Three"_s, page);
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
        const auto wish = QuickAccessWish::fromExtension("c"_s, document.object());
        QCOMPARE(wish.field ? QVariant(*wish.field) : QVariant(), field);
        QTEST(static_cast<int>(wish.section), "section");
        QVERIFY(!wish.fill && !wish.browser);
    }
};

QTEST_MAIN(TestPageLogins)
#include "tst_pagelogins.moc"
