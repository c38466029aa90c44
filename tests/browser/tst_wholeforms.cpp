#include "FormAnalysis.h"
#include "FormPages.h"
#include "ItemForms.h"

#include <QTest>

Q_DECLARE_METATYPE(FieldKind)

class TestWholeForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languages_data();
    void languages();
    void wholeForms_data();
    void wholeForms();
};

// Words that mean something in some languages and something else in others.
void TestWholeForms::languages_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("label");
    QTest::addColumn<FieldKind>("kind");
    const auto row = [](const char *language, const char *label, FieldKind kind) {
        QTest::addRow("%s, %s", language, label)
            << QString::fromUtf8(language) << QString::fromUtf8(label) << kind;
    };
    row("es-MX", "Nombre", FieldKind::FullName);
    row("fr", "Nombre", FieldKind::Unknown);
    row("de", "Handy", FieldKind::Phone);
    row("en", "Handy", FieldKind::Unknown);
    row("", "Handy", FieldKind::Phone);
    row("pl", "Kraj", FieldKind::Country);
    row("cs", "Kraj", FieldKind::State);
    row("de-AT", "Firma", FieldKind::Company);
    row("it", "Firma", FieldKind::Unknown);
    row("pt", "Apelido", FieldKind::LastName);
    row("pt-BR", "Apelido", FieldKind::Unknown);
}

void TestWholeForms::languages()
{
    QFETCH(QString, label);
    QFETCH(QString, language);
    const auto around = FormSurroundings::of({}, {{QStringLiteral("language"), language}});
    QTEST(
        analyseForm({lineOf(QStringLiteral("E-Mail")), lineOf(label)}, around, FillAction::Identity)
            .last(),
        "kind");
}

// What the fields of a form receive together, of a person and of a card.
void TestWholeForms::wholeForms_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<QString>("values");
    const auto row = [](const QByteArray &fields, const char *values) {
        QTest::addRow("%s", fields.constData()) << fields << QString::fromUtf8(values);
    };
    const QByteArray list = R"({"type":"select-one","visible":false,"autocomplete":")";
    const QByteArray lists = list + R"(cc-number"}, )" + list + R"(cc-csc"}, )" + list +
                             R"(cc-exp"}, )" + list + R"(cc-exp-month"}, )" + list +
                             R"(given-name"}, )" + list + R"(country"}, )" + list +
                             R"(bday-year"}, )" + list + R"(tel-country-code"})";
    row(lists, "-|-|-|-|-|-|-|-");
    row(lists + R"(, {"label":"Card number"})", "-|-|-|09|-|-|-|-|4111111111111111");
    row(lists + R"(, {"label":"Card number","visible":false})", "-|-|-|-|-|-|-|-|-");
    row(lists + R"(, {"label":"City"})", "-|-|-|-|-|Germany|-|-|Kassel");
    row(lists + R"(, {"label":"City","isFilled":true})", "-|-|-|-|-|-|-|-|-");
    row(lists + R"(, {"autocomplete":"bday-day"})", "-|-|-|-|-|-|1990|-|01");
    row(R"({"type":"select-one","autocomplete":"cc-csc"}, {"label":"Card number"})",
        "-|4111111111111111");
    const QByteArray buttons =
        R"({"label":"Male","type":"radio","name":"g","value":"1","visible":false},
           {"label":"Female","type":"radio","name":"g","value":"2","visible":false})";
    row(buttons, "-|-");
    row(buttons + R"(, {"label":"City"})", "-|2|Kassel");
    row(R"({"label":"City"}, {"label":"City","visible":false}, )" + list + R"(country"})",
        "Kassel|-|-");
    row(R"({"label":"City"}, {"label":"State"}, )" + list + R"(address-level1"})",
        "Kassel|Hesse|-");
    // Where one is called, no gender.
    const QByteArray phone = R"({"type":"radio","name":"p","value":")";
    row(phone + R"(H"}, )" + phone + R"(M"}, )" + phone + R"(W"}, {"label":"City"})",
        "-|-|-|Kassel");
    // The second of two people.
    const QByteArray rower = R"({"label":"First name","name":"rower%_first"},
        {"label":"City","name":"rower%_town"}, {"label":"E-mail","name":"rower%_mail"}, )";
    row(QByteArray(rower).replace('%', '1') + QByteArray(rower).replace('%', '2') +
            R"({"label":"Street","name":"street1"})",
        "Ana|Kassel|ana@example.com|-|-|-|Lange Straße 12 b");
    row(R"({"label":"Home phone"}, {"label":"Night phone"}, {"label":"Mobile phone"})",
        "+49 561 12345|-|+49 170 999");
    row(R"({"label":"Phone"}, {"label":"Mobile phone"})", "+49 561 12345|-");
    row(R"({"placeholder":"e.g. flat or building name","textBefore":"Address line 1"},
           {"placeholder":"e.g. street name","textBefore":"Address line 2"}, {"label":"City"})",
        "Lange Straße 12 b|Hinterhaus|Kassel");
    // Who has no number at work does not write the same again.
    row(R"({"label":"Home phone"}, {"label":"Work phone"}, {"label":"City"})",
        "+49 561 12345|-|Kassel");
    row(R"({"label":"Phone","textBefore":"+49"}, {"label":"E-mail","textAfter":"@example.com"})",
        "561 12345|-");
    const QByteArray card = R"({"label":"Card number"}, )";
    row(card + R"({"label":"Expire month","placeholder":"Example: 04"})", "4111111111111111|09");
    row(card + R"({"label":"Credit card expiration month","maxlength":2})", "4111111111111111|09");
    row(card + R"({"name":"CreditCardInfo.ExpirationYear","maxlength":2})", "4111111111111111|29");
    row(card +
            R"({"label":"Exp month","placeholder":"YYYY"}, {"label":"Exp year","placeholder":"MM"})",
        "4111111111111111|2029|09");
    row(R"({"label":"Telefone","name":"tel"}, {"name":"tel"}, {"label":"Cidade"})", "-|-|Kassel");
    const QByteArray gift = R"(,"heading":"Redeem gift cards"})";
    row(card + R"({"label":"Card number")" + gift + R"(, {"label":"Security code")" + gift,
        "4111111111111111|-|-");
    row(card + R"({"label":"Your name","heading":"Card details"}, {"label":"City"})",
        "4111111111111111|Ana Maria Lind|Kassel");
    row(R"({"label":"Numero carta di credito"}, {"label":"Data di scadenza"}, {"label":"Data di scadenza"},
           {"label":"Telefono","maxlength":3})",
        "4111111111111111|09|2029|-");
    row(card + R"({"name":"CreditCardMonth","label":"Month","maxlength":2},
           {"name":"CreditCardYear","label":"Year","maxlength":2}, {"label":"Credit card holder"})",
        "4111111111111111|09|29|Ana Maria Lind");
    row(R"({"label":"Card number","type":"password","name":"k"}, {"label":"Valid until"},
           {"label":"Cashier ID","name":"cid"})",
        "4111111111111111|09/29|-");
    // Streets, their numbers, and what is only called an address.
    row(R"({"label":"Main address house number","name":"addressHouseNumber"},
           {"label":"Street"}, {"label":"Address country"}, {"label":"City"})",
        "12 b|Lange Straße|Germany|Kassel");
    row(R"({"label":"Address handle"}, {"label":"Address"}, {"label":"Street"}, {"label":"City"})",
        "-|Lange Straße 12 b|-|Kassel");
    row(R"({"label":"Telephone","inputtype":"email"}, {"label":"E-mail","inputtype":"email"})",
        "-|ana@example.com");
    row(card + R"({"label":"EXP","name":"expireMonth"}, {"label":"Security code"})",
        "4111111111111111|09/29|123");
    row(card + R"({"label":"Valid thru","type":"select-one"}, {"name":"t"})",
        "4111111111111111|09|-");
    row(card +
            R"({"label":"Expiry","inputtype":"search"}, {"placeholder":"First name last name","textBefore":"Name on card"},
           {"label":"City","inputtype":"search"})",
        "4111111111111111|09/29|Ana Maria Lind|-");
    // What nobody sees, and the picture of a field, tell nothing of those around them.
    const QByteArray fixed = R"({"textBefore":"Street","isFixed":true}, )";
    row(fixed + R"({"name":"street"}, {"label":"City"}, {"label":"City","visible":false},
           {"label":"Phone"}, {"label":"Evening phone"})",
        "-|Lange Straße 12 b|Kassel|-|+49 561 12345|-");
    row(R"({"label":"Address"}, {"label":"Billing address line 3"}, {"label":"City"}, {"label":"Area pin","name":"pin"})",
        "Lange Straße 12 b|-|Kassel|34117");
    row(R"({"label":"Name of harbour","name":"street"}, {"label":"Address heading"}, {"label":"E-mail"}, {"label":"Address"})",
        "-|-|ana@example.com|Lange Straße 12 b");
    // A caption that is written before the next field is that one's.
    row(R"({"label":"City"}, {"textAfter":"Country"}, {"textBefore":"Country"})",
        "Kassel|-|Germany");
    row(R"({"label":"Vereinsart","name":"city"}, {"label":"Traglast","name":"capacity"},
           {"label":"Nach Rücksprache","inputtype":"tel"}, {"inputtype":"tel"})",
        "-|-|-|+49 561 12345");
    // Who stands beside the user, and what.
    row(R"({"label":"Pet's name","heading":"Your pet"}, {"label":"Date of birth","heading":"Your pet"},
           {"label":"First name","heading":"You"}, {"label":"E-mail","heading":"You"})",
        "-|-|Ana|ana@example.com");
    row(R"({"label":"First name","heading":"Student"}, {"label":"First name","heading":"Guardian"},
           {"label":"Street","heading":"Guardian"})",
        "-|Ana|Lange Straße 12 b");
    row(R"({"label":"Vorname","heading":"Ihre Daten"}, {"label":"Telefon","heading":"Ihre Daten"},
           {"label":"Ort","heading":"Vermieter"}, {"label":"Firma","heading":"Vermieter"})",
        "Ana|+49 561 12345|-|-");
    row(R"({"label":"Name","heading":"Contact"}, {"label":"E-mail","heading":"Contact"},
           {"label":"Name","heading":"Shipping"}, {"label":"City","heading":"Shipping"},
           {"label":"City","heading":"Billing"})",
        "Ana Lind|ana@example.com|Ana Lind|Kassel|Kassel");
    row(R"({"label":"First name","heading":"Personal details"}, {"label":"E-mail","heading":"Contact"},
           {"label":"Full name","heading":"Host in the country"}, {"label":"City","heading":"Host in the country"})",
        "Ana|ana@example.com|-|-");
    row(R"({"label":"Recipient name"}, {"label":"Recipient e-mail"}, {"label":"Your e-mail"})",
        "-|-|ana@example.com");
    row(R"({"label":"First name"}, {"label":"Last name"}, {"label":"Contact person"}, {"label":"Show phone number?","type":"select-one"}, {"label":"Phone"})",
        "Ana|Lind|-|-|+49 561 12345");
    row(R"({"label":"Name"}, {"label":"Last name"}, {"label":"City"}, {"label":"Name"}, {"label":"Last name"}, {"label":"City"})",
        "Ana|Lind|Kassel|Ana|Lind|Kassel");
    row(R"({"label":"First name"}, {"label":"Last name"}, {"label":"City"}, {"label":"E-mail"}, {"label":"Full name (K) *"
},
           {"label":"City (K) *"}, {"label":"E-mail (K) *"})",
        "Ana|Lind|Kassel|ana@example.com|-|-|-");
    row(R"({"label":"Address type","type":"select-one"}, {"label":"Address"}, {"label":"City"})",
        "-|Lange Straße 12 b|Kassel");
    row(R"({"label":"Address","inputtype":"number"}, {"label":"Address line 2"}, {"label":"House number"},
           {"label":"City"}, {"label":"Middle name"})",
        "-|-|-|Kassel|-");
    // A word that is not known makes something else of the known one, unless the name agrees.
    row(R"({"label":"Landmark address"}, {"label":"Telephone kiosk"}, {"label":"Telephone kiosk","name":"telephone"},
           {"label":"First name"}, {"label":"Surname glyph"}, {"label":"City"})",
        "-|-|+49 561 12345|Ana|-|Kassel");
    row(R"({"label":"Director (full name) *"
    }, {"label":"E-mail"}, {"label":"Badge","inputtype":"email"})",
        "-|ana@example.com|-");
    row(R"({"label":"Birthday","name":"day","maxlength":2}, {"name":"month","maxlength":2}, {"name":"by","maxlength":4})",
        "01|02|1990");
    row(card + R"({"label":"Valid until"}, {"label":"Date"})", "4111111111111111|09/29|-");
    row(R"({"label":"Nom"}, {"label":"Prénom"}, {"label":"Ville"}, {"label":"Nom"}, {"label":"Prénom"}, {"label":"Ville"})",
        "Lind|Ana|Kassel|Lind|Ana|Kassel");
    row(R"({"label":"Name","name":"firstname"}, {"label":"E-mail"})", "Ana Lind|ana@example.com");
    row(R"({"label":"Phone","maxlength":3}, {"name":"phone_prefix","maxlength":3},
           {"name":"phone_suffix","maxlength":5})",
        "561|123|45");
    row(R"({"label":"First name and initial","name":"tp1"}, {"label":"Last name"}, {"label":"First name","heading":"Dependents"})",
        "Ana|Lind|-");
    // What one label says for several fields, and what contradicts it.
    row(R"({"label":"Straße, Hausnummer"}, {"name":"strnr"}, {"label":"City, State/Province, ZIP","name":"town"},
           {"name":"province"}, {"name":"zipcode"})",
        "Lange Straße|12 b|Kassel|Hesse|34117");
    row(R"({"label":"Name (last, first) *","name":"name_last"
}, {"placeholder":"Type your ZIP code"},
           {"placeholder":"Last ins. carrier","name":"prior"}, {"label":"City"})",
        "Ana Lind|34117|-|Kassel");
    row(R"({"label":"Имя","name":"username"}, {"label":"Email"},
           {"label":"Текущий пароль","type":"password"}, {"label":"Новый пароль","type":"password"})",
        "-|ana@example.com|-|-");
    row(R"({"label":"Ваше имя"}, {"label":"Отчество"}, {"label":"Фамилия"})", "Ana|-|Lind");
    row(R"({"label":"Street","heading":"Tenant"}, {"label":"City","heading":"Tenant"},
           {"label":"City","heading":"Signature"}, {"label":"E-mail","heading":"Invite a friend"})",
        "Lange Straße 12 b|Kassel|-|-");
    const QByteArray sexes =
        R"("type":"select-one","options":[{"text":"Male","value":"1"},{"text":"Female","value":"2"}]})";
    row(R"({"label":"Date of birth","name":"day",)" + sexes + R"(, {"label":"Gender",)" + sexes +
            R"(, {"name":"x",)" + sexes,
        "-|Female|-");
}

void TestWholeForms::wholeForms()
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

QTEST_APPLESS_MAIN(TestWholeForms)
#include "tst_wholeforms.moc"
