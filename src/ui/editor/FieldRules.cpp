#include "FieldRules.h"

#include "CardNumber.h"
#include "FieldText.h"
#include "PMFieldTypes.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QUrl>
#include <QVariant>

namespace {

QString words(const char *source)
{
    return QCoreApplication::translate("FieldRules", source);
}

bool matches(const QString &text, const char *pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern)))
        .match(text)
        .hasMatch();
}

bool isCompleteUrl(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty() && !url.host().isEmpty();
}

QString withScheme(const QString &text)
{
    return text.contains(QLatin1String("://")) ? text : QStringLiteral("https://") + text;
}

QString securityCodeMessage(const QString &text, const QString &cardNumber)
{
    // The cards of one maker have a code of four digits on their front.
    const bool four = CardNumber::securityCodeLength(cardNumber) == 4;
    if (matches(text, four ? "[0-9]{4}" : "[0-9]{3}"))
        return {};
    return four ? words(QT_TRANSLATE_NOOP("FieldRules", "Please use 4-digit value"))
                : words(QT_TRANSLATE_NOOP("FieldRules", "Please use 3-digit value"));
}

QString ruleMessage(ItemField::Rule rule, const QString &text, const QString &cardNumber)
{
    switch (rule) {
    case ItemField::CardHolder:
        return matches(text, "[A-Za-z ]{1,26}")
                   ? QString()
                   : words(QT_TRANSLATE_NOOP("FieldRules",
                                             "Correct value is up to 26 characters in range A-Z "
                                             "including spaces"));
    case ItemField::CardNumberDigits:
        return matches(text, "(?:[0-9][ -]*){13,19}")
                   ? QString()
                   : words(QT_TRANSLATE_NOOP("FieldRules", "Incorrect card number"));
    case ItemField::CardCode:
        return securityCodeMessage(text, cardNumber);
    case ItemField::Url:
        return FieldRules::isUrl(text) ? QString()
                                       : words(QT_TRANSLATE_NOOP("FieldRules", "Url is invalid"));
    case ItemField::Email:
        return matches(text, "[^@\\s]+@[^@\\s.]+(\\.[^@\\s.]+)*")
                   ? QString()
                   : words(QT_TRANSLATE_NOOP("FieldRules", "“%1” is not a complete address"))
                         .arg(text);
    case ItemField::AnyText:
        break;
    }
    return {};
}

QString phoneMessage(const PMFieldTypes::Phone &phone)
{
    if (phone.code.isEmpty() || matches(phone.code, "[0-9][0-9 -]*"))
        return {};
    return words(QT_TRANSLATE_NOOP("FieldRules", "“%1” is not a country code")).arg(phone.code);
}

} // namespace

QString FieldRules::message(const ItemField &field, const QVariant &value,
                            const QString &cardNumber)
{
    if (field.form == ItemField::Phone)
        return phoneMessage(value.value<PMFieldTypes::Phone>());
    const QString text = value.toString();
    if (!FieldText::isUnderstood(field, value)) {
        return field.form == ItemField::Number
                   ? words(QT_TRANSLATE_NOOP("FieldRules", "“%1” is not a number")).arg(text)
                   : words(QT_TRANSLATE_NOOP("FieldRules", "“%1” is not a date")).arg(text);
    }
    if (text.isEmpty())
        return field.has(ItemField::Required)
                   ? words(QT_TRANSLATE_NOOP("FieldRules", "Required field is empty"))
                   : QString();
    return ruleMessage(field.rule, text, cardNumber);
}

bool FieldRules::isUrl(const QString &text)
{
    return text.isEmpty() || isCompleteUrl(withScheme(text));
}

QString FieldRules::completeUrl(const QString &text)
{
    return !text.isEmpty() && isUrl(text) ? withScheme(text) : text;
}
