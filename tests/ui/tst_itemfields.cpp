#include "../Text.h"
#include "GPMAppSettings.h"
#include "PMCreditCard.h"
#include "PMIdentity.h"
#include "PMItemFactory.h"
#include "PMLogin.h"
#include "editor/CardNumber.h"
#include "editor/DateText.h"
#include "editor/FieldRules.h"
#include "editor/ItemDraft.h"
#include "editor/ItemSummary.h"
#include "main/ItemFields.h"
#include "main/ItemKinds.h"

#include <QMetaProperty>
#include <QTemporaryDir>
#include <QtTest>

class TestItemFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldIsAProperty()
    {
        for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type) {
            const auto item = makeItem(PMListItem::Type(type));
            QVERIFY(!itemFields(item->type()).isEmpty());
            for (const ItemField &field : itemFields(item->type()))
                QVERIFY2(item->metaObject()->indexOfProperty(field.property) >= 0, field.property);
        }
    }

    void everyPropertyOfAKindIsShown()
    {
        // A strength is shown with its password, the id and the hash say nothing to a person.
        const QSet<QByteArray> hidden = {"strength", "id", "hash"};
        for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type) {
            const auto item = makeItem(PMListItem::Type(type));
            const QMetaObject *kind = item->metaObject();
            for (int i = kind->propertyOffset(); i < kind->propertyCount(); ++i) {
                const char *name = kind->property(i).name();
                if (!hidden.contains(name))
                    QVERIFY2(text(*item, name) != QLatin1String("no such field"), name);
            }
        }
    }

    void valuesAsAPersonReadsThem()
    {
        PMCreditCard card;
        QCOMPARE(text(card, "cardType"), QString());
        QCOMPARE(text(card, "expire"), QString());
        QCOMPARE(text(card, "bankPhone"), QString());
        card.setExpire({2027, 1, 0});
        card.setBankPhone({"44"_s, "2079 460000"_s});
        card.setCardType(PMCreditCard::MasterCard);
        QCOMPARE(text(card, "expire"), "January 2027"_s);
        QCOMPARE(text(card, "bankPhone"), "+44 2079 460000"_s);
        QCOMPARE(text(card, "cardType"), "MasterCard"_s);

        PMIdentity identity;
        QCOMPARE(text(identity, "gender"), QString());
        identity.setGender(PMFieldTypes::Gender::Female);
        QCOMPARE(text(identity, "gender"), "Female"_s);

        PMLogin login;
        m_settings.setLoginMode(GPMAppSettings::Fill);
        QCOMPARE(text(login, "fillType"), "Use application setting (only fill)"_s);
        login.setFillType(PMFieldTypes::LoginFillType::FillAndSubmit);
        QCOMPARE(text(login, "fillType"), "Fill and submit"_s);
    }

    void urls_data()
    {
        QTest::addColumn<QString>("entered");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("complete");
        const auto row = [](const char *entered, bool valid, const char *complete) {
            QTest::newRow(entered)
                << QString::fromUtf8(entered) << valid << QString::fromUtf8(complete);
        };
        row("", true, "");
        row("https://mail.example/login", true, "https://mail.example/login");
        row("http://127.0.0.1:8080/", true, "http://127.0.0.1:8080/");
        row("mail.example/login", true, "https://mail.example/login");
        row("not an address", false, "not an address");
        row("https://", false, "https://");
    }
    void urls()
    {
        QFETCH(QString, entered);
        QTEST(FieldRules::isUrl(entered), "valid");
        QTEST(FieldRules::completeUrl(entered), "complete");
    }

    void rules_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("cardNumber");
        QTest::addColumn<QString>("message");
        const auto row = [](int type, const char *property, const QVariant &value,
                            const char *message, const char *cardNumber = "") {
            QTest::addRow("%s %s %s", property, qPrintable(value.toString()), cardNumber)
                << type << QString::fromLatin1(property) << value << QString::fromLatin1(cardNumber)
                << QString::fromUtf8(message);
        };
        const auto text = [](const char *utf8) { return QVariant(QString::fromUtf8(utf8)); };
        const auto card = PMListItem::CreditCard;
        const char *const holder =
            "Correct value is up to 26 characters in range A-Z including spaces";
        const char *const number = "Incorrect card number";
        const char *const three = "Please use 3-digit value";
        const char *const four = "Please use 4-digit value";
        row(card, "cardholder", text("JOHN SMITH"), "");
        row(card, "cardholder", text("John-Smith"), holder);
        row(card, "cardholder", text("José"), holder);
        row(card, "cardholder", text("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), "");
        row(card, "cardholder", text("ABCDEFGHIJKLMNOPQRSTUVWXYZA"), holder);
        row(card, "cardholder", text(""), "");
        row(card, "number", text("5555 5555 5555 4444"), "");
        row(card, "number", text("5555-5555-5555-4444"), "");
        row(card, "number", text("555555555555"), number);
        row(card, "number", text("1234567890123"), "");
        row(card, "number", text("1234567890123456789"), "");
        row(card, "number", text("12345678901234567890"), number);
        row(card, "number", text("5555 5555 5555 444x"), number);
        row(card, "number", text("٥٥٥٥٥٥٥٥٥٥٥٥٥٥٥٥"), number);
        row(card, "code", text("123"), "");
        row(card, "code", text("12"), three);
        row(card, "code", text("1234"), three, "4111111111111111");
        row(card, "code", text("1234"), "", "3782 822463 10005");
        row(card, "code", text("123"), four, "378282246310005");
        row(card, "expire", text("13/27"), "“13/27” is not a date");
        row(card, "bankSite", text("bank.example"), "");
        row(card, "bankSite", text("not a site"), "Url is invalid");
        row(card, "bankPhone", QVariant::fromValue(PMFieldTypes::Phone{"x"_s, "1"_s}),
            "“x” is not a country code");
        row(card, "bankPhone", QVariant::fromValue(PMFieldTypes::Phone{"1-684"_s, "1"_s}), "");
        const auto identity = PMListItem::Identity;
        row(identity, "email", text("ana@"), "“ana@” is not a complete address");
        row(identity, "email", text("ana@shop."), "“ana@shop.” is not a complete address");
        row(identity, "email", text("ana@mail.example"), "");
        row(identity, "birthDate", text("31.02.1984"), "“31.02.1984” is not a date");
        row(PMListItem::DriverLicense, "height", text("tall"), "“tall” is not a number");
        row(PMListItem::Login, "title", text(""), "Required field is empty");
    }
    void rules()
    {
        QFETCH(int, type);
        QFETCH(QString, property);
        QFETCH(QVariant, value);
        QFETCH(QString, cardNumber);
        const QVector<ItemField> fields =
            QVector<ItemField>{itemTitleField()} + itemFields(PMListItem::Type(type));
        const auto field = std::find_if(fields.begin(), fields.end(), [&](const ItemField &each) {
            return property == QLatin1String(each.property);
        });
        QVERIFY(field != fields.end());
        QTEST(FieldRules::message(*field, value, cardNumber), "message");
    }

    void days_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("day");   // as it is stored; "none" for what is no day
        QTest::addColumn<QString>("month"); // the same, read as the month of a card
        const auto row = [](const char *locale, const char *entered, const char *day,
                            const char *month) {
            QTest::addRow("%s %s", locale, entered)
                << QString::fromLatin1(locale) << QString::fromUtf8(entered)
                << QString::fromLatin1(day) << QString::fromLatin1(month);
        };
        row("C", "", "00000000", "00000000");
        row("C", "29 February 1984", "19840229", "none");
        row("C", "29 February 1985", "none", "none");
        row("C", "1984-02-29", "19840229", "none");
        row("C", "19840229", "19840229", "19840229");
        row("C", "19840200", "19840200", "19840200");
        row("en_US", "12/31/1984", "19841231", "none");
        row("en_US", "31/12/1984", "none", "none");
        row("en_GB", "31/12/1984", "19841231", "none");
        row("de_DE", "31.12.1984", "19841231", "none");
        row("de_DE", "31.12.84", "none", "none");
        row("de_DE", "31. Dezember 1984", "19841231", "none");
        row("de_DE", "31 December 1984", "19841231", "none");
        row("es_ES", "31 de diciembre de 1984", "19841231", "none");
        row("ru_RU", "31 декабря 1984 г.", "19841231", "none");
        row("C", "01/27", "none", "20270100");
        row("C", "0127", "none", "20270100");
        row("C", "1 / 2027", "none", "20270100");
        row("C", "2027-01", "none", "20270100");
        row("C", "13/27", "none", "none");
        row("C", "January 2027", "none", "20270100");
        row("de_DE", "Januar 2027", "none", "20270100");
        row("C", "soon", "none", "none");
    }
    void days()
    {
        QFETCH(QString, locale);
        QFETCH(QString, entered);
        const QLocale tongue(locale);
        const auto stored = [](const std::optional<PMFieldTypes::Date> &date) {
            return date ? date->toText() : "none"_s;
        };
        const auto day = DateText::parseDay(entered, tongue);
        QTEST(stored(day), "day");
        QTEST(stored(DateText::parseMonth(entered, tongue)), "month");
        // What the editor writes, it reads.
        if (day)
            QCOMPARE(stored(DateText::parseDay(DateText::day(*day, tongue), tongue)), stored(day));
    }

    void cardNumbers_data()
    {
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("grouped");
        QTest::addColumn<int>("brand");
        const auto row = [](const char *entered, const char *grouped,
                            PMCreditCard::CreditCardType brand) {
            QTest::newRow(entered)
                << QString::fromLatin1(entered) << QString::fromLatin1(grouped) << int(brand);
        };
        const auto none = PMCreditCard::UndefinedCard;
        row("", "", none);
        row("4", "4", PMCreditCard::Visa);
        row("4111-1111-1111-1111", "4111 1111 1111 1111", PMCreditCard::Visa);
        row("4111111111111111110", "4111 1111 1111 1111 110", PMCreditCard::Visa);
        row("50", "50", none);
        row("51", "51", PMCreditCard::MasterCard);
        row("55", "55", PMCreditCard::MasterCard);
        row("56", "56", none);
        row("2220", "2220", none);
        row("222", "222", none);
        row("2221", "2221", PMCreditCard::MasterCard);
        row("27209", "2720 9", PMCreditCard::MasterCard);
        row("2721", "2721", none);
        row("378282246310005", "3782 822463 10005", none);
        row("34000", "3400 0", none);
        row("4111 x", "4111 x", PMCreditCard::Visa);
    }
    void cardNumbers()
    {
        QFETCH(QString, entered);
        QTEST(CardNumber::grouped(entered), "grouped");
        QTEST(int(CardNumber::brand(entered)), "brand");
    }

    void summariesNameTheItemAlone()
    {
        const auto summary =
            [](PMListItem::Type type,
               std::initializer_list<std::pair<const char *, const char *>> values) {
                const auto item = makeItem(type);
                for (const auto &value : values)
                    item->setProperty(value.first, QString::fromLatin1(value.second));
                return itemSummary(*item);
            };
        const QString end = QString(4, QChar(0x2022)) + QLatin1Char(' ');
        QCOMPARE(
            summary(PMListItem::CreditCard, {{"number", "5555 5555 5555 4444"}, {"bank", "B"}}),
            end + "4444"_s);
        QCOMPARE(summary(PMListItem::CreditCard, {{"bank", "B"}, {"code", "123"}}), "B"_s);
        QCOMPARE(
            summary(PMListItem::BankAccount, {{"iban", "GB33 BUKB 2020 1555"}, {"pin", "4711"}}),
            end + "1555"_s);
        // The end would be most of it.
        QCOMPARE(summary(PMListItem::Passport, {{"number", "123456"}, {"country", "Spain"}}),
                 "Spain"_s);
        QCOMPARE(summary(PMListItem::Identity, {{"city", "Bristol"}, {"lastName", "Martin"}}),
                 "Bristol"_s);
        QCOMPARE(summary(PMListItem::SSN, {{"number", "QQ123456C"}}), QString());
        QCOMPARE(summary(PMListItem::SecureNote, {{"text", "the code is 1234"}}), QString());
        QCOMPARE(summary(PMListItem::SoftwareLicense, {{"licenseKey", "ABCD-1234-5678"}}),
                 QString());
    }

    void rowsSayWhatIsPaintedOnThem()
    {
        PMCreditCard card;
        card.setTitle("Travel card"_s);
        card.setSecondaryText("Bank of the North"_s);
        const QDate today(2026, 12, 1);
        QCOMPARE(itemDescription(card, today), "Travel card, Credit card, Bank of the North"_s);
        card.setFavorite(true);
        card.setExpire({2026, 12, 0});
        QCOMPARE(itemDescription(card, today),
                 "Travel card, Credit card, Bank of the North, Favourite, Expires in 30 "
                 "days"_s);
    }

    void draftLeavesTheItemAlone()
    {
        PMLogin login;
        login.setLogin("ana"_s);
        ItemDraft draft(login, itemFields(PMListItem::Login), false);
        QVERIFY(!draft.isModified());
        draft.setValue("login", "bea"_s);
        QVERIFY(draft.isModified());
        QCOMPARE(login.login(), "ana"_s);
        draft.setValue("login", "ana"_s);
        QVERIFY(!draft.isModified());

        QTest::ignoreMessage(QtWarningMsg,
                             "! Ui: Try to write unbinded field for property createdBy");
        draft.setValue("createdBy", 1);
        QVERIFY(!draft.isModified());
    }

    void writingCompletesTheLogin()
    {
        PMLogin login;
        ItemDraft draft(login, itemFields(PMListItem::Login), true);
        draft.setValue("login", "ana"_s);
        draft.setValue("password", "tr0ub4dor&3 horse Battery"_s);
        draft.setValue("url", "mail.example"_s);
        draft.setValue("fillType", int(PMFieldTypes::LoginFillType::OnlyFill));
        draft.writeTo(login);
        QCOMPARE(login.secondaryText(), "ana"_s);
        QCOMPARE(login.strength(), PMFieldTypes::PasswordStrength::Strong);
        QCOMPARE(login.url(), "https://mail.example"_s);
        QCOMPARE(login.fillType(), PMFieldTypes::LoginFillType::OnlyFill);
    }

private:
    QTemporaryDir m_folder;
    GPMAppSettings m_settings{m_folder.path(), m_folder.path()};

    QString text(const PMListItem &item, const char *property) const
    {
        for (const ItemField &field : itemFields(item.type())) {
            if (qstrcmp(field.property, property) == 0)
                return itemFieldText(item, field, m_settings);
        }
        return "no such field"_s;
    }
};

QTEST_GUILESS_MAIN(TestItemFields)
#include "tst_itemfields.moc"
