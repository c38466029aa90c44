#include "CardValues.h"

#include "DateShape.h"
#include "FieldShape.h"
#include "PMCreditCard.h"

#include <QRegularExpression>

namespace {

/// The numbers that begin with 34 and 37 are read in three groups, all others in fours.
QStringList groupsOf(const QString &digits)
{
    const bool isLong =
        digits.startsWith(QLatin1String("34")) || digits.startsWith(QLatin1String("37"));
    if (isLong && digits.size() == 15)
        return {digits.left(4), digits.mid(4, 6), digits.mid(10)};
    QStringList groups;
    for (int at = 0; at < digits.size(); at += 4)
        groups.append(digits.mid(at, 4));
    return groups;
}

/// What the placeholder shows between groups; null when it shows none.
QChar shownBetweenGroups(const FormField &field)
{
    static const QRegularExpression groups(QStringLiteral("^\\S{4}([ -])\\S{4,6}\\1"));
    if (field.inputType() == QLatin1String("number"))
        return {};
    const QRegularExpressionMatch found = groups.match(field.placeholder().trimmed());
    return found.hasMatch() ? found.captured(1).at(0) : QChar();
}

QString numberValue(const QString &number, const FieldPlace &place)
{
    const QString digits = digitsOf(number);
    const QStringList groups = groupsOf(digits);
    const QString part = partAt(place, groups);
    if (!part.isEmpty())
        return part;
    QStringList texts = {digits, groups.join(QLatin1Char(' ')), groups.join(QLatin1Char('-'))};
    const QChar between = shownBetweenGroups(place.field());
    if (!between.isNull())
        texts.move(between == QLatin1Char(' ') ? 1 : 2, 0);
    return firstThatGoes(place, texts);
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
                    return answerOf(option);
            }
        }
    }
    return {};
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
        return card.code();
    case FieldKind::CardMonth:
        return expire.month > 0 ? monthText(expire.month, place) : QString();
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
