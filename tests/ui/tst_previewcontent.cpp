#include "../Text.h"
#include "attachments/PreviewContent.h"

#include <QBuffer>
#include <QtTest>

namespace {

QByteArray pictureBytes(const QSize &size, const char *format = "PNG")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

} // namespace

class TestPreviewContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contents_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &bytes, int kind,
                            const QString &text = {}) {
            QTest::newRow(name) << bytes << kind << text;
        };
        const QString word = "Grüße €"_s;
        row("empty", {}, PreviewContent::Text);
        row("UTF-8", word.toUtf8(), PreviewContent::Text, word);
        row("UTF-8 with mark", "\xef\xbb\xbf" + word.toUtf8(), PreviewContent::Text, word);
        row("UTF-16 LE", QByteArray("\xff\xfeG\0\xfc\0", 6), PreviewContent::Text, "Gü"_s);
        row("UTF-16 BE", QByteArray("\xfe\xff\0G\0\xfc", 6), PreviewContent::Text, "Gü"_s);
        row("Latin-1",
            "Gr\xfc\xdf"
            "e",
            PreviewContent::Text, "Grüße"_s);
        row("binary", QByteArray("MZ\0\1\2", 5), PreviewContent::None);
        row("drawing", "<svg xmlns='http://www.w3.org/2000/svg'/>", PreviewContent::Text,
            "<svg xmlns='http://www.w3.org/2000/svg'/>"_s);
        row("picture", pictureBytes({30, 20}), PreviewContent::Picture);
        row("jpeg", pictureBytes({30, 20}, "JPG"), PreviewContent::Picture);
        row("cut picture", pictureBytes({300, 200}).left(60), PreviewContent::None);
        QByteArray huge = pictureBytes({30, 20});
        // The size in the file's head: 60,000 by 60,000.
        huge.replace(16, 8, QByteArray("\0\0\xea\x60\0\0\xea\x60", 8));
        row("picture of gigabytes", huge, PreviewContent::None);
    }
    void contents()
    {
        QFETCH(QByteArray, bytes);
        const PreviewContent content = PreviewContent::of(bytes);
        QTEST(int(content.kind), "kind");
        QTEST(content.text, "text");
        QCOMPARE(content.kind == PreviewContent::Picture, !content.picture.isNull());
    }

    void contentsAreBounded()
    {
        const PreviewContent text = PreviewContent::of(QByteArray(5000000, 'x'));
        QVERIFY(text.cut);
        QVERIFY(text.text.size() < 300000);
        for (const QString &line : text.text.split(QLatin1Char('\n')))
            QVERIFY(line.size() <= 2000);
        const PreviewContent lines = PreviewContent::of(QByteArray("a\n").repeated(9000));
        QVERIFY(lines.cut);
        QCOMPARE(lines.text.count(QLatin1Char('\n')), 4999);
        const PreviewContent wide = PreviewContent::of(pictureBytes({9000, 30}));
        QCOMPARE(wide.pictureSize, QSize(9000, 30));
        QCOMPARE(wide.picture.width(), 4096);
    }
};

QTEST_MAIN(TestPreviewContent)
#include "tst_previewcontent.moc"
