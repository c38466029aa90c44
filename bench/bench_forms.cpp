// How long the reading of a page of 5,000 fields takes, for every action.

#include "FormAnalysis.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QString>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int fieldCount = 5000;
constexpr int rounds = 21;

struct Words
{
    const char *name;
    const char *label;
};

/// Twenty fields of a shop, over and over, each with names of its own.
QVector<FormField> makeFields()
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
    QVector<FormField> fields;
    for (int i = 0; i < fieldCount; ++i) {
        const Words &word = words[i % 20];
        const QString name = QStringLiteral("row[%1][%2]").arg(i).arg(QLatin1String(word.name));
        const QString label = QString::fromUtf8(word.label);
        fields.append(FormField({{QStringLiteral("type"), QStringLiteral("text")},
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
                                 {QStringLiteral("placeholder"), QString()}}));
    }
    return fields;
}

void measure(const char *name, FillAction action, const QVector<FormField> &fields)
{
    QVector<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        const auto kinds = analyseForm(fields, {}, action);
        times.append(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        if (kinds.size() != fieldCount)
            std::abort();
    }
    std::sort(times.begin(), times.end());
    std::printf("%-12s %6.1f ms (median of %d, %d fields)\n", name, times.at(rounds / 2), rounds,
                fieldCount);
}

} // namespace

int main()
{
    const QVector<FormField> fields = makeFields();
    measure("login", FillAction::Login, fields);
    measure("card", FillAction::CreditCard, fields);
    measure("identity", FillAction::Identity, fields);
    return 0;
}
