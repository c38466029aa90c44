#include "ItemExpiry.h"
#include "PMFieldTypes.h"
#include "PMItemFactory.h"

#include <QtTest>

class TestItemExpiry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lastDay_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QByteArray>("property");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QDate>("expected");
        const auto row = [](const char *name, PMListItem::Type type, const char *property,
                            const char *stored, const QDate &expected) {
            QTest::newRow(name) << int(type) << QByteArray(property) << QString::fromLatin1(stored)
                                << expected;
        };
        row("card", PMListItem::CreditCard, "expire", "20270200", {2027, 2, 28});
        row("card in a leap year", PMListItem::CreditCard, "expire", "20280200", {2028, 2, 29});
        row("card with a day", PMListItem::CreditCard, "expire", "20271203", {2027, 12, 31});
        row("card without a month", PMListItem::CreditCard, "expire", "20270000", {});
        row("empty card", PMListItem::CreditCard, "expire", "00000000", {});
        row("passport", PMListItem::Passport, "expireDate", "20300117", {2030, 1, 17});
        row("issued passport", PMListItem::Passport, "issuedDate", "20300117", {});
        row("licence without a day", PMListItem::DriverLicense, "expireDate", "20300400",
            {2030, 4, 30});
        row("licence of no such day", PMListItem::DriverLicense, "expireDate", "20300231",
            {2030, 2, 28});
        row("born identity", PMListItem::Identity, "birthDate", "20200231", {});
    }
    void lastDay()
    {
        QFETCH(int, type);
        QFETCH(QByteArray, property);
        QFETCH(QString, stored);
        const auto item = makeItem(static_cast<PMListItem::Type>(type));
        QVERIFY(item->setProperty(property.constData(),
                                  QVariant::fromValue(PMFieldTypes::Date::fromText(stored))));
        QTEST(itemExpiry(*item).value_or(QDate()), "expected");
    }

    void warning_data()
    {
        QTest::addColumn<QDate>("last");
        QTest::addColumn<bool>("soon");
        QTest::addColumn<bool>("expired");
        QTest::newRow("61 days") << QDate(2026, 3, 4) << false << false;
        QTest::newRow("60 days") << QDate(2026, 3, 3) << true << false;
        QTest::newRow("last day") << QDate(2026, 1, 2) << true << false;
        QTest::newRow("the day after") << QDate(2026, 1, 1) << true << true;
    }
    void warning()
    {
        QFETCH(QDate, last);
        const QDate today(2026, 1, 2);
        QTEST(expiresSoon(last, today), "soon");
        QTEST(isExpired(last, today), "expired");
    }
};

QTEST_GUILESS_MAIN(TestItemExpiry)
#include "tst_itemexpiry.moc"
