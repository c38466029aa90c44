#include "main/RelativeDate.h"

#include <QLocale>
#include <QtTest>

class TestRelativeDate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void days_data();
    void days();
    void momentHasLocalTimeOfDay();
};

namespace {

const QDateTime now(QDate(2026, 3, 30), QTime(12, 0), Qt::UTC);
const qint64 hourMs = 3600000;

} // namespace

void TestRelativeDate::days_data()
{
    QTest::addColumn<qint64>("agoMs");
    QTest::addColumn<QString>("text");
    QTest::newRow("just now") << qint64(0) << QStringLiteral("today");
    QTest::newRow("23 hours") << 23 * hourMs << QStringLiteral("today");
    QTest::newRow("a millisecond less than a day") << 24 * hourMs - 1 << QStringLiteral("today");
    QTest::newRow("24 hours") << 24 * hourMs << QStringLiteral("yesterday");
    QTest::newRow("48 hours") << 48 * hourMs << QStringLiteral("2 days ago");
    QTest::newRow("41 days") << 41 * 24 * hourMs << QStringLiteral("41 days ago");
    QTest::newRow("a clock set back") << -30 * hourMs << QStringLiteral("today");
}

void TestRelativeDate::days()
{
    QFETCH(qint64, agoMs);
    QTEST(relativeDate(now.addMSecs(-agoMs), now), "text");
}

void TestRelativeDate::momentHasLocalTimeOfDay()
{
    const QDateTime moment = now.addDays(-1);
    const QString time =
        QLocale::system().toString(moment.toLocalTime().time(), QLocale::ShortFormat);
    QCOMPARE(relativeMoment(moment, now), QStringLiteral("yesterday in ") + time);
}

QTEST_APPLESS_MAIN(TestRelativeDate)
#include "tst_relativedate.moc"
