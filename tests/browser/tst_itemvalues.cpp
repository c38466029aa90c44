#include "../Text.h"
#include "FormPages.h"
#include "ItemForms.h"

#include <QTest>

class TestItemValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cardShapes_data()
    {
        QTest::addColumn<QByteArray>("fields");
        QTest::addColumn<QString>("values");
        const auto row = [](const char *fields, const char *values) {
            QTest::addRow("%s", fields) << QByteArray(fields) << QString::fromUtf8(values);
        };
        const auto expiry = [&](const char *members, const char *value) {
            QTest::addRow("%s", members)
                << QByteArray("{\"autocomplete\":\"cc-exp\",") + members + "}"
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
        row(R"({"label":"Card number","maxlength":4}, {"maxlength":4}, {"maxlength":4},
                {"maxlength":4,"textAfter":"Expiry date"}, {"label":"Expiry date","maxlength":4})",
            "4111|1111|1111|1111|0929");
        row(R"({"label":"Card number"}, {"label":"Card number again"})",
            "4111111111111111|4111111111111111");
        row(R"({"label":"Card number","placeholder":"0000 0000 0000 0000"})",
            "4111 1111 1111 1111");
        row(R"({"label":"Card number","placeholder":"0000-0000-0000-0000"})",
            "4111-1111-1111-1111");
        row(R"({"label":"Name on card","maxlength":8}, {"label":"Card number"})",
            "-|4111111111111111");
        row(R"({"label":"Full name"}, {"label":"Card number"})", "Ana Maria Lind|4111111111111111");
        row(R"({"label":"Full name"}, {"label":"Card number"}, {"label":"Address"}, {"label":"CVC"})",
            "-|4111111111111111|-|123");
        // A card that is asked for by its number alone, among other things, is not for paying.
        row(R"({"label":"Full name"}, {"label":"Card number"}, {"label":"E-mail"})", "-|-|-");
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
        row(R"({"label":"Code","heading":"Verification code"}, {"label":"Card number"}, {"label":"Card holder"})",
            "-|4111111111111111|Ana Maria Lind");
    }
    void cardShapes()
    {
        QFETCH(QByteArray, fields);
        PMCreditCard card;
        fillIn(card);
        const QJsonObject page = pageOf(fields);
        QTEST(valuesOf(fillCardForms(page, card), fieldsIn(page)), "values");
    }

    void identityShapes_data()
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
        row((codes + R"([{"text":"FR","value":"1"},{"text":"DE","value":"2"}])" + beside)
                .constData(),
            "DE|561 12345");
        row((codes + R"([{"text":"+33","value":"+33"},{"text":"0049","value":"a"}])" + beside)
                .constData(),
            "0049|561 12345");
        row((codes + R"([{"text":"+490","value":"1"},{"text":"","value":"49"}])" + beside)
                .constData(),
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
    void identityShapes()
    {
        QFETCH(QByteArray, fields);
        QFETCH(QByteArray, language);
        PMIdentity identity;
        fillIn(identity);
        const QJsonObject page = pageOf(fields, language.constData());
        QTEST(valuesOf(fillIdentityForms(page, identity), fieldsIn(page)), "values");
    }

    // A person of New York, whose first name, number and codes have further parts.
    void americanShapes_data()
    {
        QTest::addColumn<QByteArray>("fields");
        QTest::addColumn<QString>("values");
        const auto row = [](const char *fields, const char *values) {
            QTest::addRow("%s", fields) << QByteArray(fields) << QString::fromUtf8(values);
        };
        row(R"({"label":"State"}, {"label":"State","maxlength":2})", "New York|NY");
        const char *states[][2] = {
            {R"([{"text":"NJ","value":"43"},{"text":"NY","value":"44"}])", "NY"},
            {R"([{"text":"New Jersey","value":"NJ"},{"text":"New York","value":"NY"}])",
             "New York"},
            {R"([{"text":"Нью-Джерси","value":"NJ"},{"text":"Нью-Йорк","value":"NY"}])",
             "Нью-Йорк"}};
        for (const auto &list : states) {
            const QByteArray field =
                QByteArray(R"({"label":"State","type":"select-one","options":)");
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
    void americanShapes()
    {
        QFETCH(QByteArray, fields);
        PMIdentity identity;
        identity.setFirstName("Ana Maria  Eva"_s);
        identity.setLastName("Lind"_s);
        identity.setCountry("United States"_s);
        identity.setState("New York"_s);
        identity.setZipCode("10001-1234"_s);
        identity.setPhone({"1"_s, "2125550123"_s});
        const QJsonObject page = pageOf(fields, "en-US");
        QTEST(valuesOf(fillIdentityForms(page, identity), fieldsIn(page)), "values");
    }

    // Fields that say no more than their names are not known to be parts.
    void namesAloneTakeAll()
    {
        PMCreditCard card;
        fillIn(card);
        QJsonArray fields;
        for (int i = 0; i < 4; ++i)
            fields.append(QJsonObject{
                {"opid"_s, QString::number(i)}, {"type"_s, "text"_s}, {"name"_s, "cardnumber"_s}});
        const QJsonObject page = {{"elements"_s, fields}};
        const QString number = "4111111111111111"_s;
        QCOMPARE(valuesOf(fillCardForms(page, card), 4),
                 QStringList({number, number, number, number}).join(QLatin1Char('|')));
    }
};

QTEST_APPLESS_MAIN(TestItemValues)
#include "tst_itemvalues.moc"
