#include "FieldText.h"

#include "CardNumber.h"
#include "CountryNames.h"
#include "DateText.h"

using PMFieldTypes::Date;

namespace {

bool isTyped(const ItemField &field)
{
    return field.form == ItemField::Date || field.form == ItemField::Month ||
           field.form == ItemField::Number;
}

QVariant numberValue(const QString &text)
{
    if (text.trimmed().isEmpty())
        return 0;
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber && number >= 0 ? QVariant(number) : QVariant(text);
}

} // namespace

QString FieldText::fromValue(const ItemField &field, const QVariant &value, const QLocale &locale)
{
    if (!isUnderstood(field, value))
        return value.toString();
    switch (field.form) {
    case ItemField::Date:
        return DateText::day(value.value<Date>(), locale);
    case ItemField::Month:
        return DateText::month(value.value<Date>());
    case ItemField::Number:
        return value.toInt() == 0 ? QString() : value.toString();
    case ItemField::CardNumber:
        return CardNumber::grouped(value.toString());
    case ItemField::Country:
        return CountryNames::shown(value.toString());
    default:
        return value.toString();
    }
}

QVariant FieldText::toValue(const ItemField &field, const QString &text, const QLocale &locale)
{
    switch (field.form) {
    case ItemField::Date:
    case ItemField::Month: {
        const auto date = field.form == ItemField::Date ? DateText::parseDay(text, locale)
                                                        : DateText::parseMonth(text, locale);
        return date ? QVariant::fromValue(*date) : QVariant(text);
    }
    case ItemField::Number:
        return numberValue(text);
    case ItemField::CardNumber:
        return CardNumber::digits(text);
    case ItemField::Country:
        return CountryNames::stored(text);
    default:
        return text;
    }
}

bool FieldText::isUnderstood(const ItemField &field, const QVariant &value)
{
    return !isTyped(field) || value.userType() != QMetaType::QString;
}

bool FieldText::isEmpty(const ItemField &field, const QVariant &value)
{
    if (!isUnderstood(field, value))
        return false;
    switch (field.form) {
    case ItemField::Date:
    case ItemField::Month:
        return value.value<Date>().isEmpty();
    case ItemField::Phone:
        return value.value<PMFieldTypes::Phone>().isEmpty();
    case ItemField::Number:
    case ItemField::Gender:
        return value.toInt() == 0;
    default:
        return value.toString().isEmpty();
    }
}
