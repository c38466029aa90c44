#include "IconFetch.h"
#include "IconServer.h"
#include "SiteIconFolder.h"
#include "SiteIconImage.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace IconServer;

/// The rules of site icons, without a network: where they may come from, which is whose, what is
/// one.
class TestIconRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void redirects_data();
    void redirects();
    void addresses_data();
    void addresses();
    void lookup_data();
    void lookup();
    void hiddenSizes();

private:
    QTemporaryDir m_folder;
};

void TestIconRules::redirects_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("followed");
    QTest::newRow("kept secret") << "https://a.example/"
                                 << "https://b.example/" << true;
    QTest::newRow("made secret") << "http://a.example/"
                                 << "https://a.example/" << true;
    QTest::newRow("plain") << "http://a.example/"
                           << "http://b.example/" << true;
    QTest::newRow("no longer secret") << "https://a.example/"
                                      << "http://a.example/" << false;
    QTest::newRow("data") << "https://a.example/"
                          << "data:image/png;base64,AA==" << false;
    QTest::newRow("no host") << "http://a.example/"
                             << "http:///x" << false;
}

void TestIconRules::redirects()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QTEST(IconFetch::mayFollow(QUrl(from), QUrl(to)), "followed");
}

void TestIconRules::addresses_data()
{
    QTest::addColumn<bool>("isPublic");
    for (const char *text :
         {"93.184.216.34", "1.1.1.1", "172.15.255.255", "172.32.0.0", "100.63.255.255",
          "100.128.0.0", "192.167.255.255", "223.255.255.255", "2606:4700::1111", "2a00:1450::1",
          "64:ff9b::101:101", "::ffff:1.1.1.1"})
        QTest::newRow(text) << true;
    for (const char *text : {"0.0.0.0",
                             "0.1.2.3",
                             "10.0.0.1",
                             "10.255.255.255",
                             "100.64.0.1",
                             "127.0.0.1",
                             "127.255.255.254",
                             "169.254.169.254",
                             "172.16.0.1",
                             "172.31.255.255",
                             "192.0.0.1",
                             "192.0.2.1",
                             "192.168.1.1",
                             "198.18.0.1",
                             "198.19.255.255",
                             "198.51.100.1",
                             "203.0.113.9",
                             "224.0.0.1",
                             "240.0.0.1",
                             "255.255.255.255",
                             "::",
                             "::1",
                             "::ffff:10.0.0.1",
                             "::ffff:127.0.0.1",
                             "::127.0.0.1",
                             "fe80::1",
                             "fec0::1",
                             "fc00::1",
                             "fd12:3456::1",
                             "ff02::1",
                             "2001:db8::1",
                             "2001::1",
                             "2002:0a00:0001::1",
                             "64:ff9b::a00:1",
                             "64:ff9b:1::1",
                             "100::1",
                             ""})
        QTest::newRow(*text ? text : "none") << false;
}

void TestIconRules::addresses()
{
    QTEST(isPublicAddress(QHostAddress(QLatin1String(QTest::currentDataTag()))), "isPublic");
}

void TestIconRules::lookup_data()
{
    QTest::addColumn<QString>("domain");
    QTest::addColumn<QString>("file");
    QTest::newRow("its own") << "shop.example"
                             << "shop.example.png";
    QTest::newRow("with www") << "www.shop.example"
                              << "shop.example.png";
    QTest::newRow("capitals") << "Shop.Example"
                              << "shop.example.png";
    QTest::newRow("its own before the one above") << "mail.shop.example"
                                                  << "mail.shop.example.ico";
    QTest::newRow("the one above") << "a.shop.example"
                                   << "shop.example.png";
    QTest::newRow("one beside it") << "b.club.example"
                                   << "a.club.example.png";
    QTest::newRow("IP address") << "10.1.2.3"
                                << "10.1.2.3.png";
    QTest::newRow("another IP address") << "11.1.2.3"
                                        << "";
    QTest::newRow("international")
        << QStringLiteral("b\u00fccher.example") << "xn--bcher-kva.example.png";
    QTest::newRow("ends alike") << "xshop.example"
                                << "";
    QTest::newRow("begins alike") << "shop.examples"
                                  << "";
    QTest::newRow("one of another owner") << "b.github.io"
                                          << "";
    QTest::newRow("under the same suffix") << "b.co.uk"
                                           << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("a path") << "../outside"
                            << "";
    QTest::newRow("a path inside") << "x/../shop.example"
                                   << "";
    QTest::newRow("dots") << ".."
                          << "";
}

void TestIconRules::lookup()
{
    for (const char *name :
         {"shop.example.png", "mail.shop.example.ico", "a.club.example.png", "10.1.2.3.png",
          "xn--bcher-kva.example.png", "a.github.io.png", "a.co.uk.png"}) {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QFETCH(QString, domain);
    QFETCH(QString, file);
    SiteIconFolder icons(m_folder.path());
    QCOMPARE(icons.iconPath(domain), file.isEmpty() ? QString() : m_folder.filePath(file));
    if (file.isEmpty() && domain.contains(QLatin1String("..")))
        QVERIFY(!icons.store(domain, "png", picture("PNG")));
}

/// An icon file is a list of pictures, whose sizes it does not have to tell.
void TestIconRules::hiddenSizes()
{
    const auto ico = [](const QByteArray &content) {
        return QByteArray("\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0", 14) +
               QByteArray(1, static_cast<char>(content.size() & 0xff)) +
               QByteArray(1, static_cast<char>(content.size() >> 8)) +
               QByteArray("\0\0\x16\0\0\0", 6) + content;
    };
    QByteArray png = picture("PNG");
    QCOMPARE(SiteIconImage::format(ico(png)), QByteArray("ico"));
    QCOMPARE(SiteIconImage::read(ico(png), 8).size(), QSize(8, 8));
    png[18] = '\x7f'; // 32,000 dots wide
    QCOMPARE(SiteIconImage::format(ico(png)), QByteArray());
    QCOMPARE(SiteIconImage::format(ico(png).left(30)), QByteArray());
}

QTEST_GUILESS_MAIN(TestIconRules)
#include "tst_iconrules.moc"
