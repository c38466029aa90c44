#include "../Text.h"
#include "CoreTest.h"

namespace {

/// A web site that has a picture at every address.
class Site : public QTcpServer
{
public:
    int requests = 0;

    Site()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, std::bind(&Site::answer, this, socket));
        });
    }

    QString icon() const { return "http://127.0.0.1:%1/icon"_s.arg(serverPort()); }

private:
    void answer(QTcpSocket *socket)
    {
        ++requests;
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        socket->write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + bytes);
        socket->disconnectFromHost();
    }
};

} // namespace

/// What the core does with browsers and sites.
class TestCoreLink : public CoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { start(); }
    void cleanup() { m_core.reset(); }

    void aLoginGoesToItsSiteAndIsCounted()
    {
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, "h"_s));
        const PMLogin *login = addLogin("Shop");
        Extension extension(m_port);
        QTRY_COMPARE(extension.received.size(), 1);
        m_core->doItemDefaultAction(login->id(), QString(), QString());
        QTRY_COMPARE(extension.received.size(), 2);
        const QJsonObject request = extension.received.at(1).value("payload"_s).toObject();
        QCOMPARE(request.value("openmode"_s).toString(), "current"_s);
        extension.send("collectDocumentResults"_s, answerTo(request, "https://www.shop.example/"));
        QTRY_COMPARE(extension.received.size(), 3);
        const QJsonObject fill = extension.received.at(2).value("payload"_s).toObject();
        QCOMPARE(extension.received.at(2).value("action"_s).toString(), "fillForm"_s);
        const QJsonArray elements = fill.value("elements"_s).toArray();
        QCOMPARE(elements.at(0).toObject().value("value"_s).toString(), "ana"_s);
        QCOMPARE(elements.at(1).toObject().value("value"_s).toString(), "s3cret"_s);
        QCOMPARE(fill.value("submit"_s).toBool(), true);
        QCOMPARE(login->useCount(), 1);
        QVERIFY(login->lastAccessed().isValid());
    }

    void nothingIsFilledOnceTheSafeIsLocked()
    {
        Extension extension(m_port);
        const QJsonObject request = requestForALogin(extension);
        QVERIFY(!request.isEmpty());
        m_core->lockCurrentSafe();
        QSignalSpy finished(m_core.get(), &GPMAppCore::unlockFinished);
        m_core->unlockCurrentSafe("pw"_s);
        QVERIFY(finished.wait());
        // An answer to what was asked before the lock; a page to open tells when it was seen.
        QSignalSpy shown(m_core.get(), &GPMAppCore::requestQuickAccess);
        extension.send("collectDocumentResults"_s, answerTo(request, "https://shop.example/"));
        extension.send("showWindow"_s, {{"url"_s, "x"_s}});
        QVERIFY(shown.wait());
        QVERIFY(!extension.hasReceived("fillForm"_s));
    }

    void nothingIsFilledRightAfterALongSleep()
    {
        Extension extension(m_port);
        const QJsonObject request = requestForALogin(extension);
        QVERIFY(!request.isEmpty());
        m_core->checkInactivity();
        m_user->tick += 4 * 60 * 1000;
        extension.send("collectDocumentResults"_s, answerTo(request, "https://shop.example/"));
        QTRY_VERIFY(!m_core->currentSafe()->isUnlocked());
        extension.send("getState"_s, {{"request_id"_s, 7}});
        const auto isAnswer = [](const QJsonObject &frame) {
            return frame.value("action"_s) == "state"_s &&
                   frame.value("payload"_s)[QLatin1String("request_id")] == 7;
        };
        QTRY_VERIFY(std::any_of(extension.received.begin(), extension.received.end(), isAnswer));
        QVERIFY(!extension.hasReceived("fillForm"_s));
    }

    void anOldExtensionIsToldOf()
    {
        QSignalSpy message(m_core.get(), &GPMAppCore::message);
        m_core->onHello("c"_s, "1.0.1.100"_s, "glaceron.chrome"_s);
        QCOMPARE(message.count(), 1);
        QCOMPARE(message.at(0).at(0).toString(), "Warning"_s);
        QCOMPARE(message.at(0).at(1).toString(),
                 "Invalid plugin version for Chrome extension: 1.0.1.100"_s);
        m_core->onHello("c"_s, "1.1.32"_s, "glaceron.chrome"_s);
        QCOMPARE(message.count(), 1);
    }

    void aPortThatIsTaken()
    {
        // The core of init() has it.
        GPMAppCore core(GPMAppCore::Places{m_home->filePath("config2"_s),
                                           m_home->filePath("data2"_s),
                                           m_home->filePath("hidden2"_s), m_port});
        core.startServer();
        QVERIFY(core.createSafe("n"_s, "p"_s, "h"_s));
        auto item = core.modelCreateItem(PMListItem::Login);
        item->setUrl("shop.example/in"_s);
        QSignalSpy opened(&core, &GPMAppCore::openAddress);
        core.doItemDefaultAction(core.modelAddItem(std::move(item))->id(), QString(), QString());
        QCOMPARE(opened.at(0).at(0).toUrl(), QUrl("http://shop.example/in"_s));
    }

    void iconsOfSitesGoIntoTheOpenSafe()
    {
        Site site;
        QSignalSpy changed(m_core.get(), &GPMAppCore::siteIconChanged);
        SiteIconDesk &icons = m_core->siteIcons();
        icons.download("127.0.0.1"_s, site.icon());
        QVERIFY(m_core->createSafe("Mine"_s, "pw"_s, {}));
        const QDir folder(m_core->currentSafe()->folder() + "/favicon"_s);
        QVERIFY(icons.setEnabled(false));
        icons.download("127.0.0.1"_s, site.icon());
        QVERIFY(icons.setEnabled(true));
        icons.download("127.0.0.1"_s, site.icon());
        QVERIFY(changed.wait());
        QCOMPARE(changed.first(), QVariantList{"127.0.0.1"_s});
        QCOMPARE(folder.entryList(QDir::Files), QStringList("127.0.0.1.png"_s));

        // What is under way when the safe locks comes to nothing.
        QVERIFY(QFile::remove(folder.filePath("127.0.0.1.png"_s)));
        m_core->unlockCurrentSafe("pw"_s);
        icons.download("localhost"_s, site.icon());
        m_core->lockCurrentSafe();
        icons.download("127.0.0.1"_s, site.icon());
        QVERIFY(icons.findChildren<IconFetch *>().isEmpty());
        QCOMPARE(site.requests, 1);
    }
};

QTEST_MAIN(TestCoreLink)
#include "tst_corelink.moc"
