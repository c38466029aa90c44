#include "KeywordScore.h"

#include <QTest>

namespace {

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'));
}

} // namespace

class TestKeywordScore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void score_data();
    void score();
    void anyAndPair();
};

void TestKeywordScore::score_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("keywords");
    QTest::addColumn<float>("expected");
    const QStringList holder = words("cardholder|cholder|holder|name");
    QTest::newRow("keyword before text") << words("holder|cardholder") << holder << 1.0F;
    QTest::newRow("second") << words("my-cholder") << holder << 0.75F;
    QTest::newRow("last") << words("|username") << holder << 0.25F;
    QTest::newRow("case") << words("Ваш ПАРОЛЬ") << words("пароль") << 1.0F;
    QTest::newRow("no hit") << words("card") << holder << 0.0F;
    QTest::newRow("no keywords") << words("card") << QStringList() << 0.0F;
}

void TestKeywordScore::score()
{
    QFETCH(QStringList, texts);
    QFETCH(QStringList, keywords);
    QTEST(keywordScore(texts, keywords), "expected");
}

void TestKeywordScore::anyAndPair()
{
    QVERIFY(containsAny(words("|Sign-UP now"), words("registr|sign-up")));
    QVERIFY(!containsAny(words("sign in"), words("registr|sign-up")));
    QVERIFY(containsPair(words("x|ExpirMonth"), words("month"), words("expir|valid")));
    QVERIFY(!containsPair(words("month|expiry"), words("month"), words("expir|valid")));
}

QTEST_APPLESS_MAIN(TestKeywordScore)
#include "tst_keywordscore.moc"
