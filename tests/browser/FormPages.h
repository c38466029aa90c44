#pragma once

#include "FormFiller.h"
#include "PMCreditCard.h"
#include "PMIdentity.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

/// A visible line of text of which only the label is known beside.
inline FormField lineOf(const QString &label)
{
    return FormField({{QStringLiteral("type"), QStringLiteral("text")},
                      {QStringLiteral("visible"), true},
                      {QStringLiteral("label"), label}});
}

/// The values of all fields, in the order of the page; "-" for a field that receives none.
inline QString valuesOf(const QVector<FilledForm> &forms, int count)
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
inline QJsonObject pageOf(const QByteArray &list, const char *language = "en")
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

inline int fieldsIn(const QJsonObject &page)
{
    return page.value(QLatin1String("elements")).toArray().size();
}

inline void fillIn(PMCreditCard &card)
{
    card.setCardholder(QStringLiteral("Ana Maria Lind"));
    card.setNumber(QStringLiteral("4111 1111 1111 1111"));
    card.setCode(QStringLiteral("123"));
    card.setExpire({2029, 9, 0});
}

inline void fillIn(PMIdentity &identity)
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
