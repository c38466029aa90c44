#include "../Text.h"
#include "main/RelativeDate.h"

#include <QLocale>
#include <QtTest>

namespace {

const QDateTime now(QDate(2026, 3, 30), QTime(12, 0), Qt::UTC);
const qint64 hourMs = 3600000;

} // namespace

class TestRelativeDate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void days_data()
    {
        QTest::addColumn<qint64>("agoMs");
        QTest::addColumn<QString>("text");
        QTest::newRow("just now") << qint64(0) << "today"_s;
        QTest::newRow("23 hours") << 23 * hourMs << "today"_s;
        QTest::newRow("a millisecond less than a day") << 24 * hourMs - 1 << "today"_s;
        QTest::newRow("24 hours") << 24 * hourMs << "yesterday"_s;
        QTest::newRow("48 hours") << 48 * hourMs << "2 days ago"_s;
        QTest::newRow("41 days") << 41 * 24 * hourMs << "41 days ago"_s;
        QTest::newRow("a clock set back") << -30 * hourMs << "today"_s;
    }
    void days()
    {
        QFETCH(qint64, agoMs);
        QTEST(relativeDate(now.addMSecs(-agoMs), now), "text");
    }

    void momentHasLocalTimeOfDay()
    {
        const QDateTime moment = now.addDays(-1);
        const QString time =
            QLocale::system().toString(moment.toLocalTime().time(), QLocale::ShortFormat);
        QCOMPARE(relativeMoment(moment, now), "yesterday in "_s + time);
    }
};

QTEST_APPLESS_MAIN(TestRelativeDate)
#include "tst_relativedate.moc"
