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
    void everyFieldIsAProperty();
    void everyPropertyOfAKindIsShown();
    void valuesAsAPersonReadsThem();
    void urls_data();
    void urls();
    void days_data();
    void days();
    void cardNumbers_data();
    void cardNumbers();
    void summariesNameTheItemAlone();
    void rowsSayWhatIsPaintedOnThem();
    void draftLeavesTheItemAlone();
    void writingCompletesTheLogin();

private:
    QTemporaryDir m_folder;
    GPMAppSettings m_settings{m_folder.path(), m_folder.path()};

    QString text(const PMListItem &item, const char *property) const;
};

QString TestItemFields::text(const PMListItem &item, const char *property) const
{
    for (const ItemField &field : itemFields(item.type())) {
        if (qstrcmp(field.property, property) == 0)
            return itemFieldText(item, field, m_settings);
    }
    return QStringLiteral("no such field");
}

void TestItemFields::everyFieldIsAProperty()
{
    for (int type = PMListItem::Login; type < PMListItem::UndefinedItem; ++type) {
        const auto item = makeItem(PMListItem::Type(type));
        QVERIFY(!itemFields(item->type()).isEmpty());
        for (const ItemField &field : itemFields(item->type()))
            QVERIFY2(item->metaObject()->indexOfProperty(field.property) >= 0, field.property);
    }
}

void TestItemFields::everyPropertyOfAKindIsShown()
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

void TestItemFields::valuesAsAPersonReadsThem()
{
    PMCreditCard card;
    QCOMPARE(text(card, "cardType"), QString());
    QCOMPARE(text(card, "expire"), QString());
    QCOMPARE(text(card, "bankPhone"), QString());
    card.setExpire({2027, 1, 0});
    card.setBankPhone({QStringLiteral("44"), QStringLiteral("2079 460000")});
    card.setCardType(PMCreditCard::MasterCard);
    QCOMPARE(text(card, "expire"), QStringLiteral("January 2027"));
    QCOMPARE(text(card, "bankPhone"), QStringLiteral("+44 2079 460000"));
    QCOMPARE(text(card, "cardType"), QStringLiteral("MasterCard"));

    PMIdentity identity;
    QCOMPARE(text(identity, "gender"), QString());
    identity.setGender(PMFieldTypes::Gender::Female);
    QCOMPARE(text(identity, "gender"), QStringLiteral("Female"));

    PMLogin login;
    m_settings.setLoginMode(GPMAppSettings::Fill);
    QCOMPARE(text(login, "fillType"), QStringLiteral("Use application setting (only fill)"));
    login.setFillType(PMFieldTypes::LoginFillType::FillAndSubmit);
    QCOMPARE(text(login, "fillType"), QStringLiteral("Fill and submit"));
}

void TestItemFields::urls_data()
{
    QTest::addColumn<QString>("entered");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("complete");
    const auto row = [](const char *entered, bool valid, const char *complete) {
        QTest::newRow(entered) << QString::fromUtf8(entered) << valid
                               << QString::fromUtf8(complete);
    };
    row("", true, "");
    row("https://mail.example/login", true, "https://mail.example/login");
    row("http://127.0.0.1:8080/", true, "http://127.0.0.1:8080/");
    row("mail.example/login", true, "https://mail.example/login");
    row("not an address", false, "not an address");
    row("https://", false, "https://");
}

void TestItemFields::urls()
{
    QFETCH(QString, entered);
    QTEST(FieldRules::isUrl(entered), "valid");
    QTEST(FieldRules::completeUrl(entered), "complete");
}

void TestItemFields::days_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QString>("day");   // as it is stored; "none" for what is no day
    QTest::addColumn<QString>("month"); // the same, read as the month of a card
    const auto row = [](const char *locale, const char *entered, const char *day,
                        const char *month) {
        QTest::addRow("%s %s", locale, entered)
            << QString::fromLatin1(locale) << QString::fromUtf8(entered) << QString::fromLatin1(day)
            << QString::fromLatin1(month);
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

void TestItemFields::days()
{
    QFETCH(QString, locale);
    QFETCH(QString, entered);
    const QLocale tongue(locale);
    const auto stored = [](const std::optional<PMFieldTypes::Date> &date) {
        return date ? date->toText() : QStringLiteral("none");
    };
    const auto day = DateText::parseDay(entered, tongue);
    QTEST(stored(day), "day");
    QTEST(stored(DateText::parseMonth(entered, tongue)), "month");
    // What the editor writes, it reads.
    if (day)
        QCOMPARE(stored(DateText::parseDay(DateText::day(*day, tongue), tongue)), stored(day));
}

void TestItemFields::cardNumbers_data()
{
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QString>("grouped");
    QTest::addColumn<int>("brand");
    const auto row = [](const char *entered, const char *grouped,
                        PMCreditCard::CreditCardType brand) {
        QTest::newRow(entered) << QString::fromLatin1(entered) << QString::fromLatin1(grouped)
                               << int(brand);
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

void TestItemFields::cardNumbers()
{
    QFETCH(QString, entered);
    QTEST(CardNumber::grouped(entered), "grouped");
    QTEST(int(CardNumber::brand(entered)), "brand");
}

void TestItemFields::summariesNameTheItemAlone()
{
    const auto summary = [](PMListItem::Type type,
                            std::initializer_list<std::pair<const char *, const char *>> values) {
        const auto item = makeItem(type);
        for (const auto &value : values)
            item->setProperty(value.first, QString::fromLatin1(value.second));
        return itemSummary(*item);
    };
    const QString end = QString(4, QChar(0x2022)) + QLatin1Char(' ');
    QCOMPARE(summary(PMListItem::CreditCard, {{"number", "5555 5555 5555 4444"}, {"bank", "B"}}),
             end + QStringLiteral("4444"));
    QCOMPARE(summary(PMListItem::CreditCard, {{"bank", "B"}, {"code", "123"}}),
             QStringLiteral("B"));
    QCOMPARE(summary(PMListItem::BankAccount, {{"iban", "GB33 BUKB 2020 1555"}, {"pin", "4711"}}),
             end + QStringLiteral("1555"));
    // The end would be most of it.
    QCOMPARE(summary(PMListItem::Passport, {{"number", "123456"}, {"country", "Spain"}}),
             QStringLiteral("Spain"));
    QCOMPARE(summary(PMListItem::Identity, {{"city", "Bristol"}, {"lastName", "Martin"}}),
             QStringLiteral("Bristol"));
    QCOMPARE(summary(PMListItem::SSN, {{"number", "QQ123456C"}}), QString());
    QCOMPARE(summary(PMListItem::SecureNote, {{"text", "the code is 1234"}}), QString());
    QCOMPARE(summary(PMListItem::SoftwareLicense, {{"licenseKey", "ABCD-1234-5678"}}), QString());
}

void TestItemFields::rowsSayWhatIsPaintedOnThem()
{
    PMCreditCard card;
    card.setTitle(QStringLiteral("Travel card"));
    card.setSecondaryText(QStringLiteral("Bank of the North"));
    const QDate today(2026, 12, 1);
    QCOMPARE(itemDescription(card, today),
             QStringLiteral("Travel card, Credit card, Bank of the North"));
    card.setFavorite(true);
    card.setExpire({2026, 12, 0});
    QCOMPARE(itemDescription(card, today),
             QStringLiteral("Travel card, Credit card, Bank of the North, Favourite, Expires in 30 "
                            "days"));
}

void TestItemFields::draftLeavesTheItemAlone()
{
    PMLogin login;
    login.setLogin(QStringLiteral("ana"));
    ItemDraft draft(login, itemFields(PMListItem::Login), false);
    QVERIFY(!draft.isModified());
    draft.setValue("login", QStringLiteral("bea"));
    QVERIFY(draft.isModified());
    QCOMPARE(login.login(), QStringLiteral("ana"));
    draft.setValue("login", QStringLiteral("ana"));
    QVERIFY(!draft.isModified());

    QTest::ignoreMessage(QtWarningMsg, "! Ui: Try to write unbinded field for property createdBy");
    draft.setValue("createdBy", 1);
    QVERIFY(!draft.isModified());
}

void TestItemFields::writingCompletesTheLogin()
{
    PMLogin login;
    ItemDraft draft(login, itemFields(PMListItem::Login), true);
    draft.setValue("login", QStringLiteral("ana"));
    draft.setValue("password", QStringLiteral("tr0ub4dor&3 horse Battery"));
    draft.setValue("url", QStringLiteral("mail.example"));
    draft.setValue("fillType", int(PMFieldTypes::LoginFillType::OnlyFill));
    draft.writeTo(login);
    QCOMPARE(login.secondaryText(), QStringLiteral("ana"));
    QCOMPARE(login.strength(), PMFieldTypes::PasswordStrength::Strong);
    QCOMPARE(login.url(), QStringLiteral("https://mail.example"));
    QCOMPARE(login.fillType(), PMFieldTypes::LoginFillType::OnlyFill);
}

QTEST_GUILESS_MAIN(TestItemFields)
#include "tst_itemfields.moc"
