#include "FieldClassifiers.h"
#include "FormAnalysis.h"
#include "ItemForms.h"
#include "LoginForms.h"
#include "PMCreditCard.h"
#include "PMIdentity.h"
#include "PatternTests.h"

#include <QJsonDocument>
#include <QTest>

Q_DECLARE_METATYPE(FillAction)
Q_DECLARE_METATYPE(FieldKind)

namespace {

QJsonObject json(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

/// The values of all fields, in the order of the page; "-" for a field that receives none.
QString valuesOf(const QVector<FilledForm> &forms, int count)
{
    QStringList values;
    for (int i = 0; i < count; ++i)
        values.append(QStringLiteral("-"));
    for (const FilledForm &form : forms) {
        for (const FilledForm::Field &field : form.fields)
            values[field.opid.toInt()] = field.value;
    }
    return values.join(QLatin1Char('|'));
}

/// A page of fields as the extension reports them: visible lines of text unless they say otherwise.
QJsonObject pageOf(const QByteArray &list, const char *language = "en")
{
    QJsonArray fields = QJsonDocument::fromJson("[" + list + "]").array();
    for (int i = 0; i < fields.size(); ++i) {
        QJsonObject field = fields.at(i).toObject();
        field.insert(QStringLiteral("opid"), QString::number(i));
        const QVector<QPair<QString, QJsonValue>> usual = {
            {QStringLiteral("type"), QStringLiteral("text")},
            {QStringLiteral("visible"), true},
            {QStringLiteral("autocomplete"), QString()}};
        for (const auto &pair : usual) {
            if (!field.contains(pair.first))
                field.insert(pair.first, pair.second);
        }
        fields.replace(i, field);
    }
    return {{QStringLiteral("language"), QLatin1String(language)},
            {QStringLiteral("elements"), fields}};
}

int fieldsIn(const QJsonObject &page)
{
    return page.value(QLatin1String("elements")).toArray().size();
}

void fillIn(PMCreditCard &card)
{
    card.setCardholder(QStringLiteral("Ana Maria Lind"));
    card.setNumber(QStringLiteral("4111 1111 1111 1111"));
    card.setCode(QStringLiteral("123"));
    card.setExpire({2029, 9, 0});
}

void fillIn(PMIdentity &identity)
{
    identity.setFirstName(QStringLiteral("Ana"));
    identity.setLastName(QStringLiteral("Lind"));
    identity.setBirthDate({1990, 2, 1});
    identity.setGender(PMFieldTypes::Gender::Female);
    identity.setEmail(QStringLiteral("ana@example.com"));
    identity.setCountry(QStringLiteral("Germany"));
    identity.setState(QStringLiteral("Hesse"));
    identity.setCity(QStringLiteral("Kassel"));
    identity.setZipCode(QStringLiteral("34117"));
    identity.setAddressLine1(QStringLiteral("Lange Straße 12 b"));
    identity.setAddressLine2(QStringLiteral("Hinterhaus"));
    identity.setPhone({QStringLiteral("49"), QStringLiteral("561 12345")});
    identity.setPhoneCell({QStringLiteral("49"), QStringLiteral("170 999")});
}

} // namespace

class TestFormAnalysis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAlone_data();
    void namesAlone();
    void cardShapes_data();
    void cardShapes();
    void identityShapes_data();
    void identityShapes();
    void americanShapes_data();
    void americanShapes();
    void veto_data();
    void veto();
    void layers();
    void hiddenChoices_data();
    void hiddenChoices();
    void patterns();
    void badInput();
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

void TestFormAnalysis::cardShapes_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<QString>("values");
    const auto row = [](const char *fields, const char *values) {
        QTest::addRow("%s", fields) << QByteArray(fields) << QString::fromUtf8(values);
    };
    const auto expiry = [&](const char *members, const char *value) {
        QTest::addRow("%s", members) << QByteArray("{\"autocomplete\":\"cc-exp\",") + members + "}"
                                     << QString::fromUtf8(value);
    };
    expiry(R"("label":"Expiry")", "09/29");
    expiry(R"("placeholder":"MM / YY")", "09/29");
    expiry(R"("placeholder":"MM/YYYY")", "09/2029");
    expiry(R"("label":"Expires, YYYY-MM")", "2029-09");
    expiry(R"("label":"Exp. date [MMYY]", "maxlength":4)", "0929");
    expiry(R"("label":"Gültig bis: MM/JJJJ")", "09/2029");
    expiry(R"("placeholder":"ММ/ГГ")", "09/29");
    expiry(R"("placeholder":"MM/AA")", "09/29");
    expiry(R"("maxlength":4)", "0929");
    expiry(R"("maxlength":7)", "09/2029");
    expiry(R"("pattern":"\\d{2}/\\d{4}")", "09/2029");
    expiry(R"("pattern":"(0[1-9]|1[0-2])[0-9]{2}")", "0929");
    expiry(R"("inputtype":"month")", "2029-09");
    expiry(R"("maxlength":3)", "-");
    row(R"({"label":"Card number"}, {"label":"Month","placeholder":"MM"}, {"label":"Year","maxlength":2})",
        "4111111111111111|09|29");
    row(R"({"label":"Number"}, {"label":"Expiry","type":"select-one"}, {"type":"select-one"}, {"label":"CVC"})",
        "4111111111111111|09|2029|123");
    row(R"({"label":"Card number","maxlength":4}, {"maxlength":4}, {"maxlength":4}, {"maxlength":4})",
        "4111|1111|1111|1111");
    row(R"({"label":"Card number"}, {}, {}, {})", "4111|1111|1111|1111");
    row(R"({"label":"Card number"}, {"label":"Card number again"})",
        "4111111111111111|4111111111111111");
    row(R"({"label":"Card number","placeholder":"0000 0000 0000 0000"})", "4111 1111 1111 1111");
    row(R"({"label":"Card number","placeholder":"0000-0000-0000-0000"})", "4111-1111-1111-1111");
    row(R"({"label":"Name on card","maxlength":8}, {"label":"Card number"})", "-|4111111111111111");
    row(R"({"label":"Full name"}, {"label":"Card number"})", "Ana Maria Lind|4111111111111111");
    row(R"({"label":"Full name"}, {"label":"Card number"}, {"label":"Address"})",
        "-|4111111111111111|-");
    // A paper that expires, with its day, is no card.
    row(R"({"label":"Number"}, {"label":"Valid until","placeholder":"DD.MM.YYYY"})", "-|-");
    row(R"({"label":"Number"}, {"label":"Expiry"})", "-|-");
    row(R"({"label":"Card number","placeholder":"0000 0000 0000 0000","maxlength":16})",
        "4111111111111111");
    row(R"({"label":"Card number","pattern":"(\\d{4} ?){4}"})", "4111111111111111");
    row(R"({"label":"Card number","maxlength":10})", "-");
    row(R"({"label":"Card number"}, {"label":"CVV","maxlength":2})", "4111111111111111|-");
    row(R"({"label":"First name on card"}, {"label":"Last name on card"}, {"label":"Card number"})",
        "Ana Maria|Lind|4111111111111111");
    row(R"({"label":"Card type","type":"select-one","options":[{"text":"MasterCard","value":"m"},{"text":"VISA","value":"v"}]},
            {"label":"Card number","isFilled":true}, {"label":"Name on card","isFixed":true})",
        "VISA|-|-");
    // A word in a name, or a heading, is not enough for a card's secrets.
    row(R"({"name":"room_number"}, {"name":"zz","class":"cardnumber"}, {"name":"estate_code"})",
        "-|-|-");
    row(R"({"name":"zzcardnumberzz"}, {"name":"zzcvv2zz"})", "-|-");
    row(R"({"name":"zzcardnumberzz"}, {"autocomplete":"cc-name"})",
        "4111111111111111|Ana Maria Lind");
    row(R"({"label":"Number","heading":"Card"}, {"label":"Code","heading":"Card"})", "-|-");
    row(R"({"label":"Number","heading":"Card"}, {"label":"Name on card"}, {"label":"Code"})",
        "4111111111111111|Ana Maria Lind|123");
    row(R"({"label":"Code","heading":"Verification code"}, {"label":"Card number"})",
        "-|4111111111111111");
}

void TestFormAnalysis::cardShapes()
{
    QFETCH(QByteArray, fields);
    PMCreditCard card;
    fillIn(card);
    const QJsonObject page = pageOf(fields);
    QTEST(valuesOf(fillCardForms(page, card), fieldsIn(page)), "values");
}

void TestFormAnalysis::identityShapes_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QString>("values");
    const auto row = [](const char *fields, const char *values, const char *language = "en") {
        QTest::addRow("%s %s", language, fields)
            << QByteArray(fields) << QByteArray(language) << QString::fromUtf8(values);
    };
    row(R"({"label":"Full name"})", "Ana Lind");
    row(R"({"label":"ФИО"})", "Lind Ana", "ru");
    row(R"({"label":"Vorname"}, {"label":"Name"})", "Ana|Lind", "de");
    row(R"({"label":"Country"}, {"label":"Country","maxlength":2})", "Germany|DE");
    row(R"({"label":"Straße"}, {"label":"Nr."})", "Lange Straße|12 b", "de");
    row(R"({"label":"Straße und Hausnummer"})", "Lange Straße 12 b", "de");
    row(R"({"label":"Address","type":"textarea"})", "Lange Straße 12 b\nHinterhaus");
    row(R"({"label":"Phone"})", "+49 561 12345");
    row(R"({"label":"Mobile phone"})", "+49 170 999");
    row(R"({"label":"Phone","pattern":"\\+?[0-9]+"})", "+4956112345");
    row(R"({"label":"Phone","placeholder":"(000) 000-0000"})", "0561 12345");
    row(R"({"label":"Phone","maxlength":10})", "0561 12345");
    row(R"({"label":"Phone","maxlength":8})", "56112345");
    row(R"({"label":"Phone","maxlength":5})", "-");
    row(R"({"label":"Phone code","type":"select-one","options":[{"text":"France +33","value":"fr"},{"text":"Germany +49 ","value":"de"}]},
            {"label":"Phone number"})",
        "Germany +49 |561 12345");
    row(R"({"label":"Dialling code"}, {"label":"Mobile number"})", "+49|170 999");
    row(R"({"label":"Vorwahl"}, {"label":"Rufnummer"})", "0561|12345", "de");
    row(R"({"autocomplete":"tel-country-code"}, {"autocomplete":"tel-area-code"}, {"autocomplete":"tel-local"})",
        "+49|561|12345");
    const QByteArray beside = R"(}, {"label":"Phone"})";
    const QByteArray codes = R"({"label":"Country code","type":"select-one","options":)";
    row((codes + R"([{"text":"France","value":"FR"},{"text":"Germany","value":"DE"}])" + beside)
            .constData(),
        "Germany|561 12345");
    row((codes + R"([{"text":"FR","value":"1"},{"text":"DE","value":"2"}])" + beside).constData(),
        "DE|561 12345");
    row((codes + R"([{"text":"+33","value":"+33"},{"text":"0049","value":"a"}])" + beside)
            .constData(),
        "0049|561 12345");
    row((codes + R"([{"text":"+490","value":"1"},{"text":"","value":"49"}])" + beside).constData(),
        "49|561 12345");
    const QByteArray countries = R"({"label":"Country","type":"select-one","options":)";
    const char *lists[][2] = {
        {R"([{"text":"Frankreich","value":"1"},{"text":"Deutschland","value":"2"}])",
         "Deutschland"},
        {R"([{"text":"FR","value":"FRA"},{"text":"DE","value":"DEU"}])", "DE"},
        {R"([{"text":"Francja","value":"FRA"},{"text":"Niemcy","value":"DEU"}])", "Niemcy"},
        {R"([{"text":"Francja","value":"250"},{"text":"Niemcy","value":"276"}])", "Niemcy"},
        // Numbers of the page's own are none of countries.
        {R"([{"text":"Tuvalu","value":"276"},{"text":"Samoa","value":"7"}])", "Germany"}};
    for (const auto &list : lists)
        row((countries + list[0] + R"(}, {"label":"City"})").constData(),
            (QByteArray(list[1]) + "|Kassel").constData(), "de");
    row((countries + R"([{"text":"Germany","value":"1"}]})").constData(),
        "-"); // of the page itself
    row(R"({"label":"Country","pattern":"[A-Z]{3}"}, {"label":"Country, ISO"
}, {"label":"Land"})",
        "DEU|DE|Deutschland", "de");
    row(R"({"label":"First name"}, {"label":"M.I.","maxlength":1}, {"label":"Last name"})",
        "Ana|-|Lind");
    row(R"({"label":"Address","maxlength":12}, {"label":"Zip","maxlength":4}, {"label":"Email","maxlength":9})",
        "-|-|-");
    row(R"({"label":"Birth date: MM/DD/YYYY","maxlength":2
    }, {"textBefore":"/","maxlength":2}, {"textBefore":"/","maxlength":4})",
        "02|01|1990");
    row(R"({"label":"Geburtsdatum TT.MM.JJJJ","maxlength":2
    }, {"maxlength":2}, {"maxlength":4})",
        "01|02|1990", "de");
    row(R"({"heading":"Date of birth","label":"Month","placeholder":"MMMM"}, {"heading":"Date of birth","label":"Month","placeholder":"Jan"})",
        "février|févr.", "fr");
    row(R"({"heading":"Date of birth","label":"Month","type":"select-one","options":[{"text":"1 - January","value":"0"},{"text":"2 - February","value":"1"}]},
            {"heading":"Date of birth","label":"Year"})",
        "2 - February|1990");
    const char *dates[][3] = {
        {"DD/MM/YYYY", "en", "01/02/1990"}, {"MM/DD/YYYY", "en", "02/01/1990"},
        {"TT.MM.JJJJ", "de", "01.02.1990"}, {"JJ/MM/AAAA", "fr", "01/02/1990"},
        {"дд.мм.гггг", "ru", "01.02.1990"}, {"yyyy-mm-dd", "en", "1990-02-01"},
        {"", "de", "01.02.1990"},           {"", "en-US", "02/01/1990"},
        {"", "en-GB", "01/02/1990"},        {"", "en", "1990-02-01"}};
    for (const auto &date : dates) {
        const QByteArray field =
            QByteArray("{\"label\":\"Date of birth\",\"placeholder\":\"") + date[0] + "\"}";
        row(field.constData(), date[2], date[1]);
    }
    row(R"({"label":"Date of birth","inputtype":"date"})", "1990-02-01", "de");
    row(R"({"heading":"Date of birth","label":"Day"}, {"heading":"Date of birth","label":"Month"}, {"heading":"Date of birth","label":"Year"})",
        "01|02|1990");
    row(R"({"label":"Anrede","type":"select-one","options":[{"text":"Herr","value":"1"},{"text":"Frau","value":"2"}]})",
        "Frau", "de");
    row(R"({"label":"Male","type":"radio","name":"g","value":"1"}, {"label":"Female","type":"radio","name":"g","value":"2"})",
        "-|2");
    row(R"({"label":"Geschlecht"})", "weiblich", "de");
    row(R"({"label":"City"}, {"label":"Zip","isFilled":true}, {"label":"Email","isFixed":true})",
        "Kassel|-|-");
}

// A person of New York, whose first name, number and codes have further parts.
void TestFormAnalysis::americanShapes_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<QString>("values");
    const auto row = [](const char *fields, const char *values) {
        QTest::addRow("%s", fields) << QByteArray(fields) << QString::fromUtf8(values);
    };
    row(R"({"label":"State"}, {"label":"State","maxlength":2})", "New York|NY");
    const char *states[][2] = {
        {R"([{"text":"NJ","value":"43"},{"text":"NY","value":"44"}])", "NY"},
        {R"([{"text":"New Jersey","value":"NJ"},{"text":"New York","value":"NY"}])", "New York"},
        {R"([{"text":"Нью-Джерси","value":"NJ"},{"text":"Нью-Йорк","value":"NY"}])", "Нью-Йорк"}};
    for (const auto &list : states) {
        const QByteArray field = QByteArray(R"({"label":"State","type":"select-one","options":)");
        row((field + list[0] + "}").constData(), list[1]);
    }
    row(R"({"label":"First name"}, {"label":"Middle name"}, {"label":"Last name"})",
        "Ana|Maria Eva|Lind");
    row(R"({"label":"First name"}, {"label":"M.I.","maxlength":1}, {"label":"Last name"})",
        "Ana|M|Lind");
    row(R"({"label":"First name"}, {"label":"Last name"}, {"label":"Zip","maxlength":5})",
        "Ana Maria Eva|Lind|10001");
    row(R"({"label":"Daytime phone","maxlength":3}, {"textBefore":"-","maxlength":3
    }, {"textBefore":"-","maxlength":4})",
        "212|555|0123");
    row(R"({"label":"Phone","maxlength":3}, {"maxlength":7})", "212|5550123");
    row(R"({"label":"Phone","maxlength":3}, {"label":"City"})", "-|-");
    row(R"({"label":"Phone","placeholder":"(555) 555-5555"})", "(212) 555-0123");
    row(R"({"label":"Phone","pattern":"[0-9]{3}-[0-9]{3}-[0-9]{4}"})", "212-555-0123");
    row(R"({"label":"Phone","maxlength":10})", "2125550123");
    row(R"({"label":"Phone code","type":"select-one","options":[{"text":"Canada +1","value":"CA"
    },{"text":"United States +1","value":"US"}]
    },
            {"label":"Phone number"})",
        "United States +1|2125550123");
}

void TestFormAnalysis::americanShapes()
{
    QFETCH(QByteArray, fields);
    PMIdentity identity;
    identity.setFirstName(QStringLiteral("Ana Maria  Eva"));
    identity.setLastName(QStringLiteral("Lind"));
    identity.setCountry(QStringLiteral("United States"));
    identity.setState(QStringLiteral("New York"));
    identity.setZipCode(QStringLiteral("10001-1234"));
    identity.setPhone({QStringLiteral("1"), QStringLiteral("2125550123")});
    const QJsonObject page = pageOf(fields, "en-US");
    QTEST(valuesOf(fillIdentityForms(page, identity), fieldsIn(page)), "values");
}

void TestFormAnalysis::identityShapes()
{
    QFETCH(QByteArray, fields);
    QFETCH(QByteArray, language);
    PMIdentity identity;
    fillIn(identity);
    const QJsonObject page = pageOf(fields, language.constData());
    QTEST(valuesOf(fillIdentityForms(page, identity), fieldsIn(page)), "values");
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
    row(R"({"label":"Workspace address","heading":"Sign in"})", "-");
    row(R"({"label":"Street","heading":"Sign in"})", "-");
    row(R"({"label":"User name"}, {"type":"password","label":"Password"}, {"type":"password","label":"Social security number"})",
        "anna|secret|-");
}

void TestFormAnalysis::veto()
{
    QFETCH(QByteArray, fields);
    const QJsonObject page = pageOf(fields);
    const auto forms = fillLoginForms(page, QStringLiteral("anna"), QStringLiteral("secret"));
    QTEST(valuesOf(forms, fieldsIn(page)), "values");
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
    const QJsonObject page = pageOf(R"({"type":"password","label":"Current password"},
        {"type":"password","label":"New password"}, {"type":"password","label":"Confirm"})");
    QCOMPARE(valuesOf(fillPasswordForms(page, QStringLiteral("new")), 3),
             QStringLiteral("-|new|new"));
}

// A list that nobody sees is filled only beside what the user sees filled.
void TestFormAnalysis::hiddenChoices_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<QString>("values");
    const auto row = [](const char *fields, const char *values) {
        QTest::addRow("%s", fields) << QByteArray(fields) << QString::fromUtf8(values);
    };
    const QByteArray list = R"({"type":"select-one","visible":false,"autocomplete":")";
    const QByteArray lists = list + R"(cc-number"}, )" + list + R"(cc-csc"}, )" + list +
                             R"(cc-exp"}, )" + list + R"(cc-exp-month"}, )" + list +
                             R"(given-name"}, )" + list + R"(country"}, )" + list +
                             R"(bday-year"}, )" + list + R"(tel-country-code"})";
    row(lists.constData(), "-|-|-|-|-|-|-|-");
    row((lists + R"(, {"label":"Card number"})").constData(), "-|-|-|09|-|-|-|-|4111111111111111");
    row((lists + R"(, {"label":"Card number","visible":false})").constData(), "-|-|-|-|-|-|-|-|-");
    row((lists + R"(, {"label":"City"})").constData(), "-|-|-|-|-|Germany|-|-|Kassel");
    row((lists + R"(, {"label":"City","isFilled":true})").constData(), "-|-|-|-|-|-|-|-|-");
    row((lists + R"(, {"autocomplete":"bday-day"})").constData(), "-|-|-|-|-|-|1990|-|01");
    row(R"({"type":"select-one","autocomplete":"cc-csc"}, {"label":"Card number"})",
        "-|4111111111111111");
    const QByteArray buttons =
        R"({"label":"Male","type":"radio","name":"g","value":"1","visible":false},
           {"label":"Female","type":"radio","name":"g","value":"2","visible":false})";
    row(buttons.constData(), "-|-");
    row((buttons + R"(, {"label":"City"})").constData(), "-|2|Kassel");
}

void TestFormAnalysis::hiddenChoices()
{
    QFETCH(QByteArray, fields);
    PMCreditCard card;
    fillIn(card);
    PMIdentity identity;
    fillIn(identity);
    const QJsonObject page = pageOf(fields);
    QTEST(valuesOf(fillCardForms(page, card) + fillIdentityForms(page, identity), fieldsIn(page)),
          "values");
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

void TestFormAnalysis::badInput()
{
    PMIdentity identity;
    fillIn(identity);
    const QJsonObject wrong = json(R"({"title":[],"language":{},"forms":[{"buttons":{},"fields":[
        {"autocomplete":7,"label":[],"options":"x","maxlength":"4","pattern":{},"visible":true,
         "type":"text","name":"city"},
        {"autocomplete":"","type":"select-one","visible":true,"options":[null,[],{"text":1}]},
        {"autocomplete":"","type":"text","visible":true,"label":"Phone","maxlength":-4,
         "pattern":"(((","opid":"0"}]}]})");
    QCOMPARE(fillIdentityForms(wrong, identity).size(), 1);
    const QString lone(QChar(0xD800));
    const QString large = QString(1 << 22, QLatin1Char('a'));
    for (const QString &text : {lone, large, QString(1 << 20, QLatin1Char('('))}) {
        QJsonObject page = pageOf(R"({"label":"Phone"})");
        QJsonObject field = page.value(QLatin1String("elements"))[0].toObject();
        for (const char *key : {"placeholder", "pattern", "name", "heading", "textBefore"})
            field.insert(QLatin1String(key), text);
        page.insert(QStringLiteral("elements"), QJsonArray{field});
        QVERIFY(!fillIdentityForms(page, identity).isEmpty());
    }
    // More fields than anybody fills, in one form or over the whole page.
    const QJsonObject city = pageOf(R"({"label":"City"})");
    QJsonArray many;
    for (int i = 0; i < 800; ++i)
        many.append(city.value(QLatin1String("elements"))[0]);
    const QJsonObject half = {{QStringLiteral("fields"), many}};
    const auto forms = fillIdentityForms({{QStringLiteral("forms"), QJsonArray{half, half, half}},
                                          {QStringLiteral("elements"), many}},
                                         identity);
    QCOMPARE(forms.size(), 2);
    QCOMPARE(forms.last().fields.size(), 200);

    // Lengths whose sum is no int.
    PMCreditCard card;
    fillIn(card);
    const QJsonObject page = pageOf(R"({"label":"Card number","maxlength":2147483647},
                  {"label":"Card number","maxlength":2147483647}, {"maxlength":4})");
    QCOMPARE(valuesOf(fillCardForms(page, card), 3),
             QStringLiteral("4111111111111111|4111111111111111|-"));
}

QTEST_APPLESS_MAIN(TestFormAnalysis)
#include "tst_formanalysis.moc"
