#include "../Text.h"
#include "PMAttachment.h"
#include "PMCountryTable.h"
#include "PMDriverLicense.h"
#include "PMFieldTypes.h"
#include "PMItemFactory.h"
#include "PMLogin.h"

#include <QMetaProperty>
#include <QSignalSpy>
#include <QtTest>

using PMFieldTypes::Date;
using PMFieldTypes::Phone;

class TestPmItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dates_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("read");
        const QString empty = "00000000"_s;
        QTest::newRow("short year") << "00050102"_s
                                    << "00050102"_s;
        QTest::newRow("no day") << "20290100"_s
                                << "20290100"_s;
        QTest::newRow("leap day") << "19840229"_s
                                  << "19840229"_s;
        for (const char *bad :
             {"", "2029", "2029-01-0", "20291301", "20290132", "+2029010", "202901011", "٢٠٢٩٠١٠١"})
            QTest::newRow(bad) << QString::fromUtf8(bad) << empty;
    }
    void dates()
    {
        QFETCH(QString, text);
        QFETCH(QString, read);
        QCOMPARE(Date::fromText(text).toText(), read);
    }

    void phones_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("number");
        const auto row = [](const char *text, const char *code, const char *number) {
            QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(code)
                                << QString::fromLatin1(number);
        };
        row("+44;1234", "44", "1234");
        row("+1-684;55;6", "1-684", "55;6");
        row("+;", "", "");
        row("+;77", "", "77");
        row("44;1234", "", "");
        row("+441234", "", "");
        row(";+", "", "");
        row("", "", "");
    }
    void phones()
    {
        QFETCH(QString, text);
        QFETCH(QString, code);
        QFETCH(QString, number);
        const Phone phone = Phone::fromText(text);
        QCOMPARE(phone.code, code);
        QCOMPARE(phone.number, number);
        if (!phone.isEmpty())
            QCOMPARE(phone.toText(), text);
        QCOMPARE(Phone().toText(), "+;"_s);
    }

    /// The names are the keys of stored documents, so none may change.
    void everyKindHasItsFields_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("fields");
        const auto row = [](PMListItem::Type type, const char *fields) {
            QTest::addRow("%d", type) << static_cast<int>(type) << QString::fromLatin1(fields);
        };
        row(PMListItem::Login, "password login fillType strength");
        row(PMListItem::CreditCard,
            "cardType code cardholder bank bankSite bankPhone expire number");
        row(PMListItem::BankAccount,
            "bankName name accountType routing number swift iban pin phone address");
        row(PMListItem::Identity,
            "firstName lastName birthDate email country phone phoneCell phoneBusiness zipCode "
            "state city addressLine1 addressLine2 website skype jobTitle company gender");
        row(PMListItem::Passport, "fullName nationality passportType birthPlace birthDate number "
                                  "authority issuedDate country expireDate");
        row(PMListItem::SSN, "name number");
        row(PMListItem::DriverLicense, "fullName adress height birthDate number licenseClass "
                                       "conditions state country expireDate gender");
        row(PMListItem::SecureNote, "text");
        row(PMListItem::FtpAccount, "server username password");
        row(PMListItem::SoftwareLicense, "version licenseKey");
        row(PMListItem::Attachment, "id filename hash");
    }
    void everyKindHasItsFields()
    {
        QFETCH(int, type);
        QFETCH(QString, fields);
        const auto item = makeItem(static_cast<PMListItem::Type>(type));
        QCOMPARE(static_cast<int>(item->type()), type);
        const QMetaObject *meta = item->metaObject();
        QStringList own;
        for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            own.append(QString::fromLatin1(property.name()));
            QVERIFY(property.isReadable() && property.isWritable() && property.isStored());
            QCOMPARE(property.notifySignal().name(), QByteArray(property.name()) + "Changed");
        }
        QCOMPARE(own.join(QLatin1Char(' ')), fields);
    }

    void noItemOfNoKind()
    {
        QVERIFY(!makeItem(PMListItem::UndefinedItem));
        QVERIFY(!makeItem(static_cast<PMListItem::Type>(15)));
    }

    void changesAreCountedOnlyWhenThereAreAny()
    {
        PMLogin login;
        QSignalSpy password(&login, &PMLogin::passwordChanged);
        QVERIFY(!login.isChanged());
        login.setPassword("x"_s);
        login.setPassword("x"_s);
        QCOMPARE(password.count(), 1);
        QVERIFY(login.isChanged());
        const quint64 written = login.revision();
        login.setUseCount(1);
        login.markSaved(written);
        QVERIFY(login.isChanged());
        login.markSaved(login.revision());
        login.markSaved(written); // a late report
        QVERIFY(!login.isChanged());
    }

    void anAttachmentHasOneId()
    {
        PMAttachment attachment;
        QSignalSpy own(&attachment, &PMAttachment::idChanged);
        static_cast<PMListItem &>(attachment).setId("a"_s);
        QCOMPARE(attachment.property("id").toString(), "a"_s);
        QCOMPARE(own.count(), 1);
    }

    void countries()
    {
        const PMCountryTable table;
        const QVector<PMCountryTable::Country> &rows = table.countries();
        QVERIFY(rows.size() > 230);
        QStringList names;
        const QRegularExpression code("^[1-9][0-9]{0,2}(-[0-9]{3,4})?$"_s);
        for (const PMCountryTable::Country &row : rows) {
            names.append(row.name);
            QVERIFY2(code.match(row.code).hasMatch(), qPrintable(row.name));
        }
        QStringList sorted = names;
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(names, sorted);
        QCOMPARE(names.removeDuplicates(), 0);
        QCOMPARE(names.mid(0, 8).join(QLatin1Char(',')),
                 "Afghanistan,Albania,Algeria,American Samoa,Andorra,Angola,"
                 "Anguilla,Antarctica"_s);
        QCOMPARE(names.mid(names.size() - 3).join(QLatin1Char(',')), "Yemen,Zambia,Zimbabwe"_s);
        QCOMPARE(table.find("american samoa"_s)->code, "1-684"_s);
        QVERIFY(!table.find("Atlantis"_s));
    }
};

QTEST_GUILESS_MAIN(TestPmItems)
#include "tst_pmitems.moc"
