#include "FieldClassifiers.h"
#include "FormAnalysis.h"
#include "FormPages.h"
#include "ItemForms.h"
#include "LoginForms.h"
#include "PatternTests.h"

#include <QTest>

Q_DECLARE_METATYPE(FillAction)
Q_DECLARE_METATYPE(FieldKind)

class TestFormAnalysis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAlone_data();
    void namesAlone();
    void veto_data();
    void veto();
    void identities_data();
    void identities();
    void layers();
    void patterns();
};

// Fields of which only the old keys are known: their type and name, the action, what they are taken
// for.
void TestFormAnalysis::namesAlone_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<FillAction>("action");
    QTest::addColumn<FieldKind>("kind");
    const auto row = [](const char *type, const char *name, FillAction action, FieldKind kind) {
        QTest::addRow("%s %s %d", type, name, static_cast<int>(action))
            << QString::fromUtf8(type) << QString::fromUtf8(name) << action << kind;
    };
    const auto card = FillAction::CreditCard;
    row("text", "first_name", card, FieldKind::CardFirstName);
    row("TEXT", "LNAME", card, FieldKind::CardLastName);
    row("text", "fullname", card, FieldKind::CardLastName);
    row("password", "cvv2", card, FieldKind::CardCode);
    row("number", "securecode", card, FieldKind::CardCode);
    row("text", "card_code", card, FieldKind::CardCode);
    row("text", "promo_code", card, FieldKind::Unknown);
    row("text", "card", card, FieldKind::Unknown);
    row("text", "cardno", card, FieldKind::CardNumber);
    row("text", "company_number", card, FieldKind::Unknown);
    row("select-one", "number", card, FieldKind::Unknown);
    row("text", "username", card, FieldKind::CardHolder);
    row("select-one", "expirMonth", card, FieldKind::CardMonth);
    row("text", "valid-year", card, FieldKind::CardYear);
    row("select-one", "srokm", card, FieldKind::CardMonth);
    row("select-one", "sroky", card, FieldKind::CardYear);
    row("select-one", "month", card, FieldKind::Unknown);
    row("text", "expiration", card, FieldKind::CardExpiry);
    row("text", "delivery_date", card, FieldKind::Unknown);
    const auto identity = FillAction::Identity;
    row("text", "card-holder-first", identity, FieldKind::FirstName);
    row("text", "Фамилия", identity, FieldKind::LastName);
    row("text", "country_code", identity, FieldKind::Country);
    row("text", "gorod", identity, FieldKind::City);
    row("text", "state", identity, FieldKind::State);
    row("text", "adres1", identity, FieldKind::AddressLine1);
    row("text", "address2", identity, FieldKind::AddressLine2);
    row("text", "zip_code", identity, FieldKind::PostalCode);
    row("email", "email", identity, FieldKind::Email);
    row("tel", "phone", identity, FieldKind::Unknown);
    row("text", "telephone", identity, FieldKind::Phone);
    row("text", "birthdate", identity, FieldKind::BirthDate);
    row("select-one", "birth_month", identity, FieldKind::BirthMonth);
    row("select-one", "birth_year", identity, FieldKind::BirthYear);
    row("select-one", "year", identity, FieldKind::Unknown);
    row("radio", "gender", identity, FieldKind::Gender);
    row("checkbox", "gender", identity, FieldKind::Unknown);
    row("select-one", "country", identity, FieldKind::Unknown);
}

void TestFormAnalysis::namesAlone()
{
    QFETCH(QString, type);
    QFETCH(QString, name);
    QFETCH(FillAction, action);
    const FormField field({{QStringLiteral("type"), type}, {QStringLiteral("name"), name}});
    QTEST(kindOfNames(field, action), "kind");
    QTEST(analyseForm({field}, {}, action).first(), "kind");
}

// What must stay empty, beside what is filled.
void TestFormAnalysis::veto_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<QString>("values");
    const auto row = [](const char *fields, const char *values) {
        QTest::addRow("%s", fields) << QByteArray(fields) << QString::fromUtf8(values);
    };
    const QByteArray password = R"(, {"type":"password","label":"Password"})";
    const char *never[] = {
        R"({"label":"Enter the code","autocomplete":"one-time-code","name":"user"})",
        R"({"label":"User name","inputtype":"search"})",
        R"({"label":"User name","isSearch":true})",
        R"({"label":"User name","visible":false})",
        R"({"label":"User name","isFixed":true})",
        R"({"name":"login_captcha"})",
        R"({"label":"What is 3 + 4?","name":"user"})",
        R"({"label":"Gift card number"})",
        R"({"label":"Security question","name":"login_answer"})"};
    for (const char *field : never) {
        QTest::addRow("%s", field) << QByteArray(field) + password << QStringLiteral("-|secret");
    }
    row(R"({"name":"user","inputtype":"email"})",
        "anna"); // the password comes on the next page
    row(R"({"name":"email","inputtype":"email"})", "-");
    row(R"({"label":"E-mail"}, {"type":"password","label":"New password"})", "-|-");
    row(R"({"label":"E-mail"}, {"type":"password","autocomplete":"new-password"})", "-|-");
    row(R"({"type":"password","label":"Old password"}, {"type":"password","label":"New password"},
            {"type":"password","label":"Repeat"})",
        "secret|-|-");
    // One password is the old one.
    row(R"({"type":"password","textBefore":"Старый пароль","name":"passwd"},
            {"type":"password","textBefore":"Новый пароль","name":"newpasswd"},
            {"type":"password","textBefore":"Подтверждение","name":"newpasswd2"})",
        "secret|-|-");
    row(R"({"type":"password","label":"Password","heading":"Sign up"}, {"type":"password","label":"Confirm password"},
            {"type":"password","label":"Security PIN"})",
        "-|-|-");
    row(R"({"type":"password","label":"Password"}, {"type":"password","label":"Confirm password"},
            {"label":"User name"}, {"type":"password","label":"Password"})",
        "-|-|-|-");
    row(R"({"type":"password","label":"Memorable answer"}, {"type":"password","label":"Password"})",
        "-|secret");
    row(R"({"label":"User name","isFilled":true}, {"type":"password","label":"Password"})",
        "anna|secret");
    row(R"({"label":"Account ID"}, {"label":"User name"}, {"type":"password","label":"Password"})",
        "-|anna|secret");
    row(R"({"type":"password","label":"1st","maxlength":1}, {"type":"password","label":"4th","maxlength":1})",
        "-|-");
    row(R"({"label":"User name"}, {"type":"password","label":"Password"}, {"type":"password","label":"What is your favourite film?"})",
        "anna|secret|-");
    row(R"({"type":"password","label":"Passcode","maxlength":6,"heading":"Enter security code"})",
        "-");
    row(R"({"label":"E-mail"}, {"type":"password","label":"Password","placeholder":"8 characters or more"})",
        "-|-");
    row(R"({"label":"Library card number"}, {"type":"password","label":"Password"})",
        "anna|secret");
    row(R"({"label":"Device name"}, {"type":"password","label":"Wi-Fi password"})", "-|-");
    row(R"({"type":"password","label":"Last 4 digits of your SSN"})", "-");
    row(R"({"label":"New e-mail"}, {"type":"password","label":"Password"})", "-|secret");
    row(R"({"label":"Workspace address","heading":"Sign in"})", "-");
    row(R"({"label":"Street","heading":"Sign in"})", "-");
    row(R"({"label":"User name","heading":"Sign in"}, {"type":"password","label":"Password"},
            {"type":"password","label":"2nd level passcode"})",
        "anna|secret|-");
    row(R"({"type":"password","label":"New password"}, {"type":"password","label":"Confirm password"},
            {"type":"password","label":"Password"})",
        "-|-|secret");
    row(R"({"label":"E-mail","heading":"Sign up"}, {"label":"User name"},
            {"type":"password","label":"Password","autocomplete":"current-password"})",
        "-|-|-");
    row(R"({"label":"User name"}, {"type":"password","label":"Password"}, {"type":"password","label":"Social security number"})",
        "anna|secret|-");
    row(R"({"type":"password","label":"Password","autocomplete":"current-password"},
            {"type":"password","label":"Repeat password"})",
        "-|-");
}

void TestFormAnalysis::veto()
{
    QFETCH(QByteArray, fields);
    const QJsonObject page = pageOf(fields);
    const auto forms = fillLoginForms(page, QStringLiteral("anna"), QStringLiteral("secret"));
    QTEST(valuesOf(forms, fieldsIn(page)), "values");
}

// Which labels take a value of a person's in a form that asks for an address, a card or neither,
// and which speak of something or somebody else.
void TestFormAnalysis::identities_data()
{
    QTest::addColumn<QString>("around");
    QTest::addColumn<QString>("label");
    QTest::addColumn<FieldKind>("kind");
    const QString address = QStringLiteral("Street|City|Postcode");
    const QString american = QStringLiteral("Street|City|State|ZIP code");
    const QString zip = QStringLiteral("Street|City|ZIP code");
    const QString person = QStringLiteral("E-mail");
    const QString card = QStringLiteral("Card number|Expiry date");
    const auto rows = [](const QString &around, FieldKind kind, const char *labels) {
        const QStringList list = QString::fromUtf8(labels).split(QLatin1Char('|'));
        for (const QString &label : list)
            QTest::addRow("%s, %s", qPrintable(around), qPrintable(label))
                << around << label << kind;
    };
    rows(address, FieldKind::State, "County|State/County|Region|Bundesland|Provincia|Область");
    rows(american, FieldKind::Unknown, "County|Region");
    rows(zip, FieldKind::Unknown, "County");
    rows(person, FieldKind::Unknown, "County|Region");
    rows(address, FieldKind::AddressLine2,
         "Apt/Suite|Unit|Piso|Adresszusatz|Piso y puerta|Квартира");
    rows(address, FieldKind::HouseNumber, "House name or number|Hausnummer");
    rows(address, FieldKind::Unknown,
         "Floor|Locality|P.O. Box|Postfach|Address line 3|Gate code|Landmark|Ortsteil|Район|VAT "
         "ID|NIF|"
         "Company registration number|Gift card code|Coupon");
    rows(QStringLiteral("Street|Postcode"), FieldKind::City, "Locality|Village|Suburb");
    rows(address, FieldKind::Company, "Company|Company name (if any)");
    rows(person, FieldKind::Website, "Company website");
    rows(person, FieldKind::FullName, "Your name|Customer name|Recipient");
    rows(person, FieldKind::FirstName, "Patient first name|First and middle names|Vorname");
    rows(person, FieldKind::Phone, "Home phone|Best phone number to reach you|Telefon (tagsüber)");
    rows(person, FieldKind::Unknown,
         "Project name|Pet's name|Name of the school|Name des Kindes|Nombre de la mascota|"
         "Nom du projet|Имя ребёнка|Mother's first name|Manager's phone|Emergency contact phone|"
         "Alternate phone|Phone extension|Hotel address|Wallet address|City of birth|"
         "Ville de naissance|State of issue|Country type|Land-Kennzeichen|Password hint|Type "
         "d'adresse|Тип адреса|Ort, Datum|URL "
         "photo/logo|IPv4 address|Postcode or town|Date|Event "
         "date|Suffix|Nationality");
    rows(QStringLiteral("IBAN"), FieldKind::Unknown, "Recipient|Empfänger");
    rows(QStringLiteral("Your name|Your e-mail"), FieldKind::Unknown, "Recipient's name");
    rows(QStringLiteral("Description"), FieldKind::Unknown, "Name");
    rows(card, FieldKind::CardHolder, "Name|Name on card|Karteninhaber");
    rows(card, FieldKind::CardCode, "Security code|CVC|Prüfnummer|Cryptogramme");
    rows(card, FieldKind::Unknown,
         "Gift card number|Store credit code|Loyalty card number|Kundenkarte|License expiration "
         "date|"
         "Card nickname|Issue number|Order number|Kontoinhaber");
}

void TestFormAnalysis::identities()
{
    QFETCH(QString, around);
    QFETCH(QString, label);
    QVector<FormField> fields;
    const QStringList labels = around.split(QLatin1Char('|')) << label;
    for (const QString &text : labels)
        fields.append(lineOf(text));
    QFETCH(FieldKind, kind);
    const auto kindIn = [&](FillAction action) { return analyseForm(fields, {}, action).last(); };
    const bool isCard = isCardKind(kind);
    QCOMPARE(kindIn(FillAction::CreditCard), isCard ? kind : FieldKind::Unknown);
    QCOMPARE(kindIn(FillAction::Identity), isCard ? FieldKind::Unknown : kind);
}

void TestFormAnalysis::layers()
{
    const auto kindOf = [](const char *members) {
        const QJsonObject page = pageOf(members);
        const QJsonObject field = page.value(QLatin1String("elements"))[0].toObject();
        return analyseForm({FormField(field)}, {}, FillAction::Identity).first();
    };
    QCOMPARE(kindOf(R"({"autocomplete":"section-a shipping address-level2","name":"zip"})"),
             FieldKind::City);
    QCOMPARE(kindOf(R"({"autocomplete":"home fax tel","label":"Phone"})"), FieldKind::Unknown);
    // The token of a password in a plain field is there only to keep others out.
    QCOMPARE(kindOf(R"({"autocomplete":"new-password","label":"City"})"), FieldKind::City);
    QCOMPARE(kindOf(R"({"name":"x_gorod_y"})"), FieldKind::City);
    QCOMPARE(kindOf(R"({"name":"thetownhere"})"), FieldKind::City);
    // A word in the name gives way to what a person reads.
    QCOMPARE(kindOf(R"({"name":"countrycode","label":"Telephone"})"), FieldKind::Phone);
    QCOMPARE(kindOf(R"({"name":"estate","label":"Quantity"})"), FieldKind::Unknown);
    // A generated password goes where one is chosen, and leaves the old one alone.
    const QJsonObject readable = pageOf(R"({"label":"PIN","maxlength":4}, {"label":"Password"},
        {"label":"Repeat password"})");
    QCOMPARE(valuesOf(fillPasswordForms(readable, QStringLiteral("new")), 3),
             QStringLiteral("-|new|new"));
    const QJsonObject page = pageOf(R"({"type":"password","label":"Current password"},
        {"type":"password","label":"New password"}, {"type":"password","label":"Confirm"})");
    QCOMPARE(valuesOf(fillPasswordForms(page, QStringLiteral("new")), 3),
             QStringLiteral("-|new|new"));
}

// A pattern that says no is listened to, unless it is one that a page could stop the program
// with.
void TestFormAnalysis::patterns()
{
    const auto takes = [](const char *pattern, const char *text = "01/30/2029") {
        return PatternTests().takes(QLatin1String(pattern), QLatin1String(text));
    };
    QVERIFY(takes("\\d{2}/\\d{2}", "01/30"));
    for (const char *plain : {"\\d{2}/\\d{2}", "(\\d{4} ?){4}", "(?:a|b)+", "[(+*]+", "\\(\\d+\\)"})
        QVERIFY2(!takes(plain), plain);
    for (const char *unsafe : {"(\\d+)+x", "((a*)b){2}", "(?=x)a", "(?<!x)a", "(.)\\1", "(?R)",
                               "(*ACCEPT)a", "(?C1)a", "a)|(?:b", "\\Qa", "(a"})
        QVERIFY2(takes(unsafe), unsafe);
    // Each would say no after trying all ways; the limit of steps ends it before.
    for (const char *hostile : {"(.|.|.|.)*[xy]", "(.|.)*(.|.)*(.|.)*(.|.)*[xy]"})
        QVERIFY2(takes(hostile), hostile);

    PatternTests page;
    for (int i = 0; i < 40; ++i)
        QVERIFY(!page.takes(QString::number(i), QStringLiteral("x")));
    QVERIFY(page.takes(QStringLiteral("40"), QStringLiteral("x")));  // one too many
    QVERIFY(!page.takes(QStringLiteral("39"), QStringLiteral("x"))); // known
}

QTEST_APPLESS_MAIN(TestFormAnalysis)
#include "tst_formanalysis.moc"
