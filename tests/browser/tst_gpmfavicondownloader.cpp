#include "GPMFaviconDownloader.h"
#include "IconServer.h"

#include <QDir>
#include <QNetworkProxy>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace IconServer;

class TestGPMFaviconDownloader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void answers_data();
    void answers();
    void requestSaysNoMoreThanNeeded();
    void passesAnyProxy();
    void nextPlaceIsTriedOnce();
    void slowSiteIsLeft();
    void usualPlaces();
    void fewAtOnceAndNoneAfterTheEnd();
    void freshIconIsKept();
    void localSites();

private:
    QString url(const QByteArray &path, const QString &host = QStringLiteral("site.example")) const;
    void download(const QString &address, const QString &domain = QStringLiteral("site.example"));
    QStringList files() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Server> m_server;
    std::unique_ptr<GPMFaviconDownloader> m_downloader;
    IconNetwork m_network;
    QStringList m_resolved;
    QVector<QUrl> m_fallbacks;
    QDateTime m_now;
};

void TestGPMFaviconDownloader::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_server = std::make_unique<Server>();
    m_resolved.clear();
    m_fallbacks.clear();
    m_now = systemTime();
    // Of the computers nearby only the test's server is open to all.
    m_network = {};
    m_network.isPublic = [](const QHostAddress &address) {
        return address == QHostAddress(QHostAddress::LocalHost) || isPublicAddress(address);
    };
    m_network.resolve = [this](const QString &host, QObject *,
                               const IconNetwork::Resolved &resolved) {
        m_resolved.append(host);
        const QHostAddress server(QHostAddress::LocalHost);
        const QHostAddress nearby(QStringLiteral("10.0.0.1"));
        if (host == QLatin1String("nearby.example"))
            resolved({nearby});
        else if (host == QLatin1String("both.example"))
            resolved({server, nearby});
        else if (host.endsWith(QLatin1String("site.example")) || host == QLatin1String("router"))
            resolved({server});
        else
            resolved({});
    };
    m_network.fallbacks = [this](const QString &) { return m_fallbacks; };
    m_downloader = std::make_unique<GPMFaviconDownloader>(m_network, [this] { return m_now; });
    m_downloader->setFolder(m_folder->path());
}

void TestGPMFaviconDownloader::cleanup()
{
    m_downloader.reset();
}

QString TestGPMFaviconDownloader::url(const QByteArray &path, const QString &host) const
{
    return QStringLiteral("http://%1:%2%3")
        .arg(host)
        .arg(m_server->serverPort())
        .arg(QString::fromLatin1(path));
}

/// Until it has an icon or has given up: another one behind it is done.
void TestGPMFaviconDownloader::download(const QString &address, const QString &domain)
{
    QSignalSpy changed(m_downloader.get(), &GPMFaviconDownloader::iconChanged);
    m_downloader->download(address, domain);
    m_server->answers.insert("/end", answer(picture("PNG")));
    const auto isIdle = [this] { return m_downloader->findChildren<IconFetch *>().isEmpty(); };
    QVERIFY(QTest::qWaitFor([&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return isIdle();
    }));
}

QStringList TestGPMFaviconDownloader::files() const
{
    return QDir(m_folder->path()).entryList(QDir::Files);
}

void TestGPMFaviconDownloader::answers_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("requests");
    const QByteArray png = picture("PNG");
    const QString stored = QStringLiteral("site.example.png");
    QTest::newRow("picture") << answer(png) << stored << 1;
    QTest::newRow("of another kind")
        << answer(picture("BMP")) << QStringLiteral("site.example.bmp") << 1;
    QTest::newRow("page instead") << answer("<html><body>No icon here, sorry</body></html>")
                                  << QString() << 1;
    QTest::newRow("fault with a picture") << answer(png, "404 Not Found") << QString() << 1;
    QTest::newRow("drawing")
        << answer("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'></svg>")
        << QString() << 1;
    QTest::newRow("as large as may be")
        << answer(png + QByteArray(1024 * 1024 - png.size(), 'x')) << stored << 1;
    QTest::newRow("too large") << answer(png + QByteArray(1024 * 1024, 'x')) << QString() << 1;
    QTest::newRow("too large, of unknown length")
        << "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + png + QByteArray(3 * 1024 * 1024, 'x')
        << QString() << 1;
    QTest::newRow("cut off") << answer(png).chopped(5) << QString() << 1;
    QTest::newRow("redirects") << redirect("/1") << stored << 6;
    QTest::newRow("one redirect more") << redirect("/0") << QString() << 6;
    QTest::newRow("redirect to another site")
        << redirect("http://www.site.example:{}/5") << stored << 2;
    for (const char *place :
         {"http://nearby.example:{}/5", "http://10.0.0.1:{}/5", "http://127.0.0.2:{}/5",
          "http://[::1]:{}/5", "http://[::ffff:127.0.0.2]:{}/5", "http://2130706434:{}/5",
          "http://0177.0.0.2:{}/5", "http://both.example:{}/5", "http://me@site.example:{}/5",
          "http://site.example:25/5", "ftp://site.example/5", "file:///etc/hostname"})
        QTest::newRow(place) << redirect(place) << QString() << 1;
}

void TestGPMFaviconDownloader::answers()
{
    QFETCH(QByteArray, reply);
    QFETCH(QString, file);
    m_server->answers.insert("/icon", reply);
    for (int i = 0; i < 5; ++i)
        m_server->answers.insert("/" + QByteArray::number(i),
                                 redirect("/" + QByteArray::number(i + 1)));
    m_server->answers.insert("/5", answer(picture("PNG")));
    QSignalSpy changed(m_downloader.get(), &GPMFaviconDownloader::iconChanged);
    download(url("/icon"), QStringLiteral("www.site.example"));
    QCOMPARE(files(), file.isEmpty() ? QStringList() : QStringList(file));
    QCOMPARE(changed.size(), file.isEmpty() ? 0 : 1);
    QTEST(m_server->requests.size(), "requests");
}

void TestGPMFaviconDownloader::passesAnyProxy()
{
    // An address of no computer: those of this one never go through a proxy.
    m_network.resolve = [](const QString &, QObject *, const IconNetwork::Resolved &resolved) {
        resolved({QHostAddress(QStringLiteral("192.0.2.1"))});
    };
    m_network.isPublic = [](const QHostAddress &) { return true; };
    m_network.limit = std::chrono::milliseconds(300);
    m_downloader = std::make_unique<GPMFaviconDownloader>(m_network, [this] { return m_now; });
    m_downloader->setFolder(m_folder->path());
    QNetworkProxy::setApplicationProxy(
        {QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), m_server->serverPort()});
    download(QStringLiteral("http://site.example/icon"));
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    QVERIFY(m_server->requests.isEmpty());
}

void TestGPMFaviconDownloader::requestSaysNoMoreThanNeeded()
{
    m_server->answers.insert("/icon", redirect("http://www.site.example:{}/other"));
    m_server->answers.insert("/other", answer(picture("PNG")));
    download(url("/icon"));
    QCOMPARE(m_server->requests.size(), 2);
    for (const QByteArray &request : m_server->requests) {
        QStringList names;
        const QByteArrayList lines = request.split('\n').mid(1);
        for (const QByteArray &line : lines) {
            if (!line.trimmed().isEmpty())
                names.append(QString::fromLatin1(line.split(':').first()));
        }
        names.sort();
        // Those after the first two come from the network layer for every request.
        QCOMPARE(names,
                 QStringList({QStringLiteral("Accept-Encoding"), QStringLiteral("Accept-Language"),
                              QStringLiteral("Connection"), QStringLiteral("Host"),
                              QStringLiteral("User-Agent")}));
        QVERIFY(request.contains("User-Agent: Chrome\r\n"));
    }
    const QByteArray port = QByteArray::number(m_server->serverPort());
    QVERIFY(m_server->requests.at(0).contains("Host: site.example:" + port + "\r\n"));
    QVERIFY(m_server->requests.at(1).contains("Host: www.site.example:" + port + "\r\n"));
}

void TestGPMFaviconDownloader::nextPlaceIsTriedOnce()
{
    m_server->answers.insert("/icon", answer("no picture at all, but a text"));
    m_server->answers.insert("/first", answer({}, "404 Not Found"));
    m_server->answers.insert("/second", answer("<html>We could not find this page.</html>"));
    m_fallbacks = {QUrl(url("/first")), QUrl(url("/second"))};
    download(url("/icon"));
    const QByteArrayList all{"/icon", "/first", "/second"};
    QCOMPARE(m_server->paths(), all);
    QVERIFY(files().isEmpty());
    // Nor in the rest of the run; but another address is.
    download(url("/icon"));
    QCOMPARE(m_server->paths(), all);
    m_server->answers.insert("/new", answer(picture("PNG")));
    download(url("/new"));
    QCOMPARE(m_server->paths().mid(3), QByteArrayList{"/new"});
    QCOMPARE(files().size(), 1);
}

void TestGPMFaviconDownloader::slowSiteIsLeft()
{
    m_network.limit = std::chrono::milliseconds(150);
    GPMFaviconDownloader impatient(m_network);
    impatient.setFolder(m_folder->path());
    m_server->answers.insert("/next", answer(picture("PNG")));
    m_fallbacks = {QUrl(url("/next"))};
    QSignalSpy changed(&impatient, &GPMFaviconDownloader::iconChanged);
    impatient.download(url("/never"), QStringLiteral("site.example"));
    QVERIFY(changed.wait());
    QCOMPARE(m_server->paths(), (QByteArrayList{"/never", "/next"}));
}

void TestGPMFaviconDownloader::usualPlaces()
{
    m_network.fallbacks = &IconNetwork::usualPlaces;
    QCOMPARE(m_network.fallbacks(QStringLiteral("shop.example")),
             (QVector<QUrl>{QUrl(QStringLiteral("https://shop.example/favicon.ico")),
                            QUrl(QStringLiteral("https://www.shop.example/favicon.ico"))}));
    m_downloader = std::make_unique<GPMFaviconDownloader>(m_network);
    m_downloader->setFolder(m_folder->path());
    download(QStringLiteral("javascript:alert(1)"), QStringLiteral("www.shop.example"));
    QCOMPARE(m_resolved,
             (QStringList{QStringLiteral("shop.example"), QStringLiteral("www.shop.example")}));
}

void TestGPMFaviconDownloader::fewAtOnceAndNoneAfterTheEnd()
{
    for (int i = 0; i < 20; ++i)
        m_downloader->download(url("/hangs" + QByteArray::number(i)),
                               QStringLiteral("%1.site.example").arg(i));
    QTRY_COMPARE(m_server->requests.size(), 4);
    m_downloader->setEnabled(false);
    m_downloader->download(url("/off"), QStringLiteral("off.site.example"));
    m_downloader->setEnabled(true);
    m_server->answers.insert("/last", answer(picture("PNG")));
    download(url("/last"));
    QCOMPARE(m_server->requests.size(), 5);
    // The safe was locked.
    m_downloader->setFolder({});
    m_downloader->download(url("/locked"), QStringLiteral("locked.site.example"));
    QVERIFY(m_downloader->findChildren<IconFetch *>().isEmpty());
    QVERIFY(m_downloader->iconPath(QStringLiteral("site.example")).isEmpty());
}

void TestGPMFaviconDownloader::freshIconIsKept()
{
    m_server->answers.insert("/icon", answer(picture("PNG")));
    download(url("/icon"));
    m_now = m_now.addDays(29);
    download(url("/icon"));
    QCOMPARE(m_server->requests.size(), 1);
    m_now = m_now.addDays(2);
    m_server->answers.insert("/icon", answer(picture("BMP")));
    download(url("/icon"));
    QCOMPARE(files(), QStringList(QStringLiteral("site.example.bmp")));
    // Without a folder nothing is written.
    QVERIFY(m_folder->remove());
    m_now = m_now.addDays(40);
    download(url("/icon"));
    QVERIFY(!QDir(m_folder->path()).exists());
}

void TestGPMFaviconDownloader::localSites()
{
    m_network.isPublic = &isPublicAddress;
    GPMFaviconDownloader strict(m_network);
    strict.setFolder(m_folder->path());
    m_downloader.reset();
    m_server->answers.insert("/icon", answer(picture("PNG")));
    QSignalSpy changed(&strict, &GPMFaviconDownloader::iconChanged);
    // A login on the local network has its icon there, and nowhere else on it.
    strict.download(url("/icon"), QStringLiteral("site.example"));
    strict.download(url("/icon", QStringLiteral("127.0.0.1")), QStringLiteral("router"));
    strict.download(url("/icon", QStringLiteral("router")), QStringLiteral("router2"));
    strict.download(url("/icon", QStringLiteral("127.0.0.1")), QStringLiteral("127.0.0.1"));
    strict.download(url("/icon", QStringLiteral("router")), QStringLiteral("router"));
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(files(), QStringList(QStringLiteral("127.0.0.1.png")));
    QCOMPARE(m_server->requests.size(), 1);
}

QTEST_GUILESS_MAIN(TestGPMFaviconDownloader)
#include "tst_gpmfavicondownloader.moc"
