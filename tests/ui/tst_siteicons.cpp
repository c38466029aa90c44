#include "../Text.h"
#include "main/SiteIcons.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

namespace {

QByteArray picture(const QSize &size, const char *format)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format))
        qFatal("no picture");
    return bytes;
}

/// A good picture whose header tells another size.
QByteArray withSize(QByteArray png, quint32 width, quint32 height)
{
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    // The header's own check sum, as in every PNG: over its name and its 13 bytes.
    quint32 sum = ~0U;
    for (const char byte : png.mid(12, 17)) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) ? 0xedb88320U : 0U);
    }
    qToBigEndian(~sum, png.data() + 29);
    return png;
}

/// A GIF of one dot that goes on for ever, each time with as many pictures as are asked for.
QByteArray endlessGif(int pictures)
{
    QByteArray gif("GIF89a\1\0\1\0\x80\0\0\xff\0\0\0\0\0", 19);
    gif += QByteArray("\x21\xff\x0bNETSCAPE2.0\3\1\0\0\0", 19);
    for (int i = 0; i < pictures; ++i)
        gif += QByteArray("\x21\xf9\4\0\1\0\0\0\x2c\0\0\0\0\1\0\1\0\0\2\2\x44\1\0", 23);
    return gif + ';';
}

} // namespace

/// The icons come from web sites: whatever their bytes are, a window shows a small picture of them
/// or none.

class TestSiteIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesOfAnySite_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("shown");
        const QByteArray png = picture({64, 64}, "PNG");
        QTest::newRow("a good one") << png << true;
        QTest::newRow("one that claims to be huge") << withSize(png, 60000, 60000) << false;
        QTest::newRow("one that claims to be wide") << withSize(png, 60000, 1) << false;
        QTest::newRow("one of no size") << withSize(png, 0, 0) << false;
        QTest::newRow("the beginning of one") << png.left(40) << false;
        QTest::newRow("a name alone") << png.left(8) << false;
        QTest::newRow("nothing") << QByteArray() << false;
        QTest::newRow("a text") << QByteArray("<html>not found</html>") << false;
        QTest::newRow("a file beyond bounds") << png + QByteArray(1024 * 1024, 'x') << false;
        QTest::newRow("a drawing that refers to a file")
            << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                          "<image href='file:///etc/passwd' width='9' height='9'/></svg>")
            << false;
        QTest::newRow("an animation without end") << endlessGif(2000) << true;
    }
    void bytesOfAnySite()
    {
        QFETCH(QByteArray, bytes);
        const QTemporaryDir folder;
        QFile file(folder.filePath("icon.png"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        SiteIcons icons;
        icons.setFolder(folder.path());
        const QPixmap icon = icons.icon("icon.png"_s, 32);
        QTEST(!icon.isNull(), "shown");
        QVERIFY(icon.width() <= 32 && icon.height() <= 32);
    }

    void iconOfADomainAppearsWhenItIsThere()
    {
        const QTemporaryDir folder;
        const QString domain = "shop.example"_s;
        SiteIcons icons;
        icons.setFolder(folder.path());
        QVERIFY(icons.icon({}, 32, domain).isNull());
        QVERIFY(SiteIconFolder(folder.path()).store(domain, "png", picture({64, 64}, "PNG")));
        QSignalSpy changed(&icons, &SiteIcons::changed);
        icons.onUpdateFavicons(domain);
        QCOMPARE(changed.size(), 1);
        QVERIFY(!icons.icon({}, 32, "www.shop.example"_s).isNull());
        // The icon that comes with a kind of item gives way, one that the item names does not.
        QVERIFY(!icons.icon(":/icons/login.svg"_s, 32, domain).isNull());
        QVERIFY(icons.icon("own.png"_s, 32, domain).isNull());
        icons.setFolder({});
        QVERIFY(icons.icon({}, 32, domain).isNull());
    }

    void nothingOutsideTheFolder()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("icons"_s));
        QFile outside(folder.filePath("outside.png"_s));
        QVERIFY(outside.open(QIODevice::WriteOnly));
        outside.write(picture({8, 8}, "PNG"));
        outside.close();
        SiteIcons icons;
        icons.setFolder(folder.filePath("icons"_s));
        for (const QString &name :
             {"../outside.png"_s, ".."_s, outside.fileName(), "..\\outside.png"_s})
            QVERIFY(icons.icon(name, 32).isNull());
    }
};

QTEST_MAIN(TestSiteIcons)
#include "tst_siteicons.moc"
