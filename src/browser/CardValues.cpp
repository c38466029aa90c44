#include "CardValues.h"

#include "DateShape.h"
#include "PMCreditCard.h"

#include <QRegularExpression>

namespace {

QString digitsOf(const QString &text)
{
    QString digits;
    for (const QChar letter : text) {
        if (letter.isDigit())
            digits += letter;
    }
    return digits;
}

/// The numbers that begin with 34 and 37 are read in three groups, all others in fours.
QString grouped(const QString &digits)
{
    const bool isLong =
        digits.startsWith(QLatin1String("34")) || digits.startsWith(QLatin1String("37"));
    QStringList groups;
    if (isLong && digits.size() == 15) {
        groups = QStringList{digits.left(4), digits.mid(4, 6), digits.mid(10)};
    } else {
        for (int at = 0; at < digits.size(); at += 4)
            groups.append(digits.mid(at, 4));
    }
    return groups.join(QLatin1Char(' '));
}

/// The part of the number for one of several short fields side by side.
QString groupAt(const QString &digits, const FieldPlace &place)
{
    int from = 0;
    for (int i = 0; i < place.at; ++i) {
        if (place.kinds.at(i) == FieldKind::CardNumber)
            from += place.fields.at(i).maxLength();
    }
    return digits.mid(from, place.field().maxLength());
}

QString numberValue(const QString &number, const FieldPlace &place)
{
    static const QRegularExpression groups(QStringLiteral("^\\S{4} \\S{4,6} "));
    const FormField &field = place.field();
    const QString digits = digitsOf(number);
    const int most = field.maxLength();
    if (most > 0 && most <= 6 && place.kinds.count(FieldKind::CardNumber) > 1)
        return groupAt(digits, place);
    const bool wantsGroups = groups.match(field.placeholder().trimmed()).hasMatch() &&
                             field.inputType() != QLatin1String("number");
    const bool takesDigits = matchesPattern(place, digits);
    const QString inGroups = grouped(digits);
    if ((wantsGroups || !takesDigits) && fits(field, inGroups) && matchesPattern(place, inGroups))
        return inGroups;
    return fits(field, digits) ? digits : QString();
}

/// The option that names the brand of the card, by its first figures.
QString brandValue(const QString &number, const FieldPlace &place)
{
    static const QVector<QPair<QString, QStringList>> brands = {
        {QStringLiteral("^4"), {QStringLiteral("visa")}},
        {QStringLiteral("^(5[1-5]|2[2-7])"), {QStringLiteral("master")}},
        {QStringLiteral("^3[47]"), {QStringLiteral("american"), QStringLiteral("amex")}}};
    const QString digits = digitsOf(number);
    for (const auto &brand : brands) {
        if (!QRegularExpression(brand.first).match(digits).hasMatch())
            continue;
        const QVector<FormField::Option> options = place.field().options();
        for (const FormField::Option &option : options) {
            for (const QString &word : brand.second) {
                if (option.text.contains(word, Qt::CaseInsensitive))
                    return option.text;
            }
        }
    }
    return {};
}

QString whole(const FormField &field, const QString &text)
{
    return fits(field, text) ? text : QString();
}

} // namespace

QString cardValue(const PMCreditCard &card, const FieldPlace &place)
{
    const FormField &field = place.field();
    const QString holder = card.cardholder().simplified();
    const PMFieldTypes::Date expire = card.expire();
    switch (place.kind()) {
    case FieldKind::CardFirstName:
        return holder.section(QLatin1Char(' '), 0, -2);
    case FieldKind::CardLastName:
        return holder.section(QLatin1Char(' '), -1);
    case FieldKind::CardHolder:
        return holder;
    case FieldKind::CardNumber:
        return numberValue(card.number(), place);
    case FieldKind::CardCode:
        return whole(field, card.code());
    case FieldKind::CardMonth:
        return expire.month > 0 ? whole(field, twoFigures(expire.month)) : QString();
    case FieldKind::CardYear:
        return expire.year > 0 ? yearText(expire.year, field) : QString();
    case FieldKind::CardExpiry:
        return expiryText(expire, place);
    case FieldKind::CardType:
        return brandValue(card.number(), place);
    default:
        return {};
    }
}
