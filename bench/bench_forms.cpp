// How much time of the processor a page of 5,000 fields takes, for every action: its analysis
// alone, and the whole way from the JSON document to the values.

#include "FormAnalysis.h"
#include "ItemForms.h"
#include "LoginForms.h"
#include "PMCreditCard.h"
#include "PMIdentity.h"

#include <QJsonArray>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr int fieldCount = 5000;
constexpr int rounds = 21;

struct Words
{
    const char *name;
    const char *label;
};

/// Twenty fields of a shop, over and over, each with names of its own.
QJsonObject makePage()
{
    static const Words words[] = {{"billing_first_name", "First name"},
                                  {"billing_last_name", "Last name"},
                                  {"company", "Company name (optional)"},
                                  {"street", "Straße und Hausnummer"},
                                  {"address_2", "Apartment, suite, unit, etc."},
                                  {"city", "Town / City"},
                                  {"region_id", "Bundesland"},
                                  {"postcode", "Postcode / ZIP"},
                                  {"country", "Country / Region"},
                                  {"telephone", "Телефон"},
                                  {"email", "Adresse e-mail"},
                                  {"cc_number", "Número de tarjeta"},
                                  {"exp_month", "Expiration date"},
                                  {"exp_year", ""},
                                  {"cvv", "Security code"},
                                  {"coupon_code", "Coupon code"},
                                  {"quantity", "Quantity"},
                                  {"x17", "Something that is not known"},
                                  {"birthday", "Date of birth"},
                                  {"comment", "Order notes"}};
    QJsonArray fields;
    for (int i = 0; i < fieldCount; ++i) {
        const Words &word = words[i % 20];
        const QString name = QStringLiteral("row[%1][%2]").arg(i).arg(QLatin1String(word.name));
        const QString label = QString::fromUtf8(word.label);
        fields.append(QJsonObject{{QStringLiteral("opid"), QString::number(i)},
                                  {QStringLiteral("type"), QStringLiteral("text")},
                                  {QStringLiteral("inputtype"), QStringLiteral("text")},
                                  {QStringLiteral("visible"), true},
                                  {QStringLiteral("name"), name},
                                  {QStringLiteral("id"), name},
                                  {QStringLiteral("class"), QStringLiteral("form-control")},
                                  {QStringLiteral("sourceContext"), label},
                                  {QStringLiteral("sourceLabelFor"), label},
                                  {QStringLiteral("autocomplete"), QString()},
                                  {QStringLiteral("label"), label},
                                  {QStringLiteral("textBefore"), label},
                                  {QStringLiteral("placeholder"), QString()}});
    }
    return {{QStringLiteral("language"), QStringLiteral("en")},
            {QStringLiteral("elements"), fields}};
}

QJsonObject repeated(const QJsonObject &field, int count)
{
    QJsonArray fields;
    for (int i = 0; i < count; ++i)
        fields.append(field);
    return {{QStringLiteral("elements"), fields}};
}

/// Pages that are written to keep the program busy; none is longer than a message may be.
QVector<QPair<const char *, QJsonObject>> hostilePages()
{
    const auto field = [](const char *label, const char *type = "text") {
        return QJsonObject{{QStringLiteral("type"), QLatin1String(type)},
                           {QStringLiteral("visible"), true},
                           {QStringLiteral("autocomplete"), QString()},
                           {QStringLiteral("label"), QLatin1String(label)}};
    };
    QJsonArray options;
    for (int i = 0; i < 300; ++i)
        options.append(QJsonObject{{QStringLiteral("text"), QStringLiteral("Mrs %1").arg(i)}});
    QJsonObject list = field("Country", "select-one");
    list.insert(QStringLiteral("options"), options);
    QJsonObject pattern = field("City");
    pattern.insert(QStringLiteral("pattern"), QStringLiteral("(.|.)*(.|.)*(.|.)*(.|.)*[xy]"));
    QJsonObject texts = field("Name");
    for (const char *key : {"label", "textBefore", "placeholder", "ariaLabel"})
        texts.insert(QLatin1String(key), QStringLiteral("Aa ").repeated(330 - key[0]));
    QJsonObject one = field("City");
    one.insert(QStringLiteral("label"), QString(8 << 20, QLatin1Char('(')));
    return {{"100,000 fields", repeated(field("City"), 100000)},
            {"5,000 names", repeated(field("Name"), 5000)},
            {"5,000 numbers", repeated(field("Number"), 5000)},
            {"5,000 cards", repeated(field("Card number"), 5000)},
            {"1,500 long lists", repeated(list, 1500)},
            {"5,000 patterns", repeated(pattern, 5000)},
            {"2,000 long fields", repeated(texts, 2000)},
            {"8 MiB in one text", repeated(one, 1)}};
}

template <typename Fill>
void measure(const char *name, const Fill &fill)
{
    QVector<double> times;
    int filled = 0;
    for (int i = 0; i < rounds; ++i) {
        const std::clock_t start = std::clock();
        filled = fill();
        times.append(1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    std::sort(times.begin(), times.end());
    std::printf("%-20s %6.1f ms (median of %d, %d fields, %d filled)\n", name, times.at(rounds / 2),
                rounds, fieldCount, filled);
}

} // namespace

int main()
{
    const QJsonObject page = makePage();
    PMCreditCard card;
    card.setNumber(QStringLiteral("4111111111111111"));
    card.setCode(QStringLiteral("123"));
    card.setCardholder(QStringLiteral("Ana Lind"));
    card.setExpire({2029, 9, 0});
    PMIdentity identity;
    identity.setFirstName(QStringLiteral("Ana"));
    identity.setLastName(QStringLiteral("Lind"));
    identity.setCountry(QStringLiteral("Germany"));
    identity.setCity(QStringLiteral("Kassel"));
    identity.setZipCode(QStringLiteral("34117"));
    identity.setAddressLine1(QStringLiteral("Lange Straße 12"));
    identity.setEmail(QStringLiteral("ana@example.com"));
    identity.setPhone({QStringLiteral("49"), QStringLiteral("561 12345")});
    identity.setBirthDate({1990, 2, 1});
    QVector<FormField> fields;
    for (const QJsonValue &field : page.value(QLatin1String("elements")).toArray())
        fields.append(FormField(field.toObject()));
    const auto count = [](const QVector<FilledForm> &forms) {
        return forms.isEmpty() ? 0 : forms.first().fields.size();
    };
    const auto analyse = [&](FillAction action) {
        const QVector<FieldKind> kinds = analyseForm(fields, {}, action);
        return kinds.size() - kinds.count(FieldKind::Unknown);
    };
    measure("analysis, login", [&] { return analyse(FillAction::Login); });
    measure("analysis, card", [&] { return analyse(FillAction::CreditCard); });
    measure("analysis, identity", [&] { return analyse(FillAction::Identity); });
    const QString text = QStringLiteral("ana");
    measure("whole, login", [&] { return count(fillLoginForms(page, text, text)); });
    measure("whole, card", [&] { return count(fillCardForms(page, card)); });
    measure("whole, identity", [&] { return count(fillIdentityForms(page, identity)); });
    for (const auto &hostile : hostilePages()) {
        const QJsonObject &each = hostile.second;
        measure(hostile.first, [&] {
            return count(fillCardForms(each, card)) + count(fillIdentityForms(each, identity));
        });
    }
    return 0;
}
