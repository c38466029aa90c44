#include "GPMFaviconDownloader.h"
#include "IconServer.h"
#include "TestCertificates.h"

#include <QDir>
#include <QSignalSpy>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace IconServer;

namespace {

/// As Server, encrypted.
class SecureServer : public Server
{
public:
    TestCertificates::Identity identity;
    bool isMute = false; ///< whoever connects hears nothing
    int connections = 0;

protected:
    void incomingConnection(qintptr descriptor) override
    {
        ++connections;
        auto *socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        if (isMute)
            return;
        socket->setLocalCertificate(identity.certificate);
        socket->setPrivateKey(identity.key);
        listenTo(socket);
        socket->startServerEncryption();
    }
};

const QByteArray endless = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";

} // namespace

/// Icons of sites that prove who they are, as nearly all of them do.
class TestIconsOverTls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void proofs_data();
    void proofs();
    void ways_data();
    void ways();
    void slowSites_data();
    void slowSites();

private:
    void download(const QString &address);
    QString stored() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files).join(QLatin1Char(' '));
    }

    TestCertificates::Authority m_authority;
    TestCertificates::Authority m_stranger;
    std::unique_ptr<SecureServer> m_secure;
    std::unique_ptr<Server> m_plain;
    std::unique_ptr<QTemporaryDir> m_folder;
    IconNetwork m_network;
};

void TestIconsOverTls::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_secure = std::make_unique<SecureServer>();
    m_plain = std::make_unique<Server>();
    m_secure->identity = m_authority.issue("DNS:site.example,DNS:*.site.example");
    m_secure->answers.insert("/icon", answer(picture("PNG")));
    m_plain->answers.insert("/icon", answer(picture("PNG")));
    m_network = {};
    m_network.tls.addCaCertificate(m_authority.root());
    m_network.isPublic = [](const QHostAddress &address) {
        return address == QHostAddress(QHostAddress::LocalHost) || isPublicAddress(address);
    };
    m_network.resolve = [](const QString &host, QObject *, const IconNetwork::Resolved &resolved) {
        const bool isNear = host.startsWith(QLatin1String("nearby"));
        resolved({isNear ? QHostAddress(QStringLiteral("10.0.0.1"))
                         : QHostAddress(QHostAddress::LocalHost)});
    };
    m_network.fallbacks = [](const QString &) { return QVector<QUrl>(); };
}

/// Until the icon is there or given up. "{s}" and "{p}" stand for the ports of the two servers.
void TestIconsOverTls::download(const QString &address)
{
    GPMFaviconDownloader downloader(m_network);
    downloader.setFolder(m_folder->path());
    QString url = address;
    url.replace(QLatin1String("{s}"), QString::number(m_secure->serverPort()));
    url.replace(QLatin1String("{p}"), QString::number(m_plain->serverPort()));
    downloader.download(url, QStringLiteral("site.example"));
    QVERIFY(QTest::qWaitFor([&downloader] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return downloader.findChildren<IconFetch *>().isEmpty();
    }));
}

void TestIconsOverTls::proofs_data()
{
    QTest::addColumn<QByteArray>("hosts");
    QTest::addColumn<int>("days");
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("its own") << QByteArray("DNS:site.example") << 1 << true << true;
    QTest::newRow("of another site") << QByteArray("DNS:other.example") << 1 << true << false;
    // The address that is connected to is not what the user knows.
    QTest::newRow("of the address") << QByteArray("IP:127.0.0.1") << 1 << true << false;
    QTest::newRow("run out") << QByteArray("DNS:site.example") << -1 << true << false;
    QTest::newRow("of nobody known") << QByteArray("DNS:site.example") << 1 << false << false;
}

void TestIconsOverTls::proofs()
{
    QFETCH(QByteArray, hosts);
    QFETCH(int, days);
    QFETCH(bool, isKnown);
    QFETCH(bool, isTaken);
    m_secure->identity = (isKnown ? m_authority : m_stranger).issue(hosts.constData(), days);
    download(QStringLiteral("https://site.example:{s}/icon"));
    QCOMPARE(stored(), isTaken ? QStringLiteral("site.example.png") : QString());
    // Nothing is even asked of who proves nothing.
    QCOMPARE(m_secure->requests.size(), isTaken ? 1 : 0);
}

void TestIconsOverTls::ways_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<int>("connections"); // to both servers
    const QByteArray secure = "https://site.example:{s}/away";
    const auto row = [secure](const char *name, const char *target, bool isTaken, int connections) {
        QTest::newRow(name) << secure << QByteArray(target) << isTaken << connections;
    };
    row("to another host", "https://www.site.example:{s}/icon", true, 2);
    row("to a path", "/icon", true, 2);
    // The open connection leads to the same computer, but does not speak for that name.
    row("to a host without proof", "https://other.example:{s}/icon", false, 2);
    row("to a plain page", "http://site.example:{p}/icon", false, 1);
    row("to an address nearby", "https://10.0.0.1:{s}/icon", false, 1);
    row("to a name of a computer nearby", "https://nearby.example:{s}/icon", false, 1);
    row("to this computer", "https://localhost:{s}/icon", false, 2);
    QTest::newRow("from a plain page") << QByteArray("http://site.example:{p}/away")
                                       << QByteArray("https://site.example:{s}/icon") << true << 2;
}

void TestIconsOverTls::ways()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, target);
    target.replace("{s}", QByteArray::number(m_secure->serverPort()));
    target.replace("{p}", QByteArray::number(m_plain->serverPort()));
    m_secure->answers.insert("/away", redirect(target));
    m_plain->answers.insert("/away", redirect(target));
    download(QString::fromLatin1(first));
    QFETCH(bool, isTaken);
    QCOMPARE(stored(), isTaken ? QStringLiteral("site.example.png") : QString());
    QTEST(m_secure->connections + m_plain->requests.size(), "connections");
}

void TestIconsOverTls::slowSites_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("isMute");
    QTest::newRow("proves nothing, ever") << QByteArray() << true;
    QTest::newRow("never answers") << QByteArray() << false;
    QTest::newRow("never ends") << endless + picture("PNG") << false;
    QTest::newRow("much too long") << endless + QByteArray(4 * 1024 * 1024, 'x') << false;
}

/// However it delays, it is left for the next place after its time.
void TestIconsOverTls::slowSites()
{
    QFETCH(QByteArray, reply);
    QFETCH(bool, isMute);
    m_secure->isMute = isMute;
    m_secure->keepsOpen = true;
    m_secure->answers.insert("/icon", reply);
    m_network.limit = std::chrono::milliseconds(1000);
    const QUrl next(QStringLiteral("http://site.example:%1/icon").arg(m_plain->serverPort()));
    m_network.fallbacks = [next](const QString &) { return QVector<QUrl>{next}; };
    download(QStringLiteral("https://site.example:{s}/icon"));
    QCOMPARE(m_secure->connections, 1);
    QCOMPARE(m_plain->requests.size(), 1);
    QCOMPARE(stored(), QStringLiteral("site.example.png"));
}

QTEST_GUILESS_MAIN(TestIconsOverTls)
#include "tst_iconsovertls.moc"
