#include "PhoneShape.h"

#include "DateShape.h"

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

/// A mask without a plus sign, such as "(000) 000-0000", shows all the figures that there are.
bool isNationalMask(const QString &placeholder)
{
    static const QRegularExpression mask(QStringLiteral("^[(\\d_#xX][\\d_#xX() .-]{8,}$"));
    return mask.match(placeholder.trimmed()).hasMatch() &&
           !placeholder.trimmed().startsWith(QLatin1String("00"));
}

bool names(const QString &text, const QString &digits)
{
    static const QRegularExpression code(QStringLiteral("\\+\\s?([\\d -]+)"));
    const QRegularExpressionMatch found = code.match(text);
    return found.hasMatch() && digitsOf(found.captured(1)) == digits;
}

} // namespace

QString phoneText(const PMFieldTypes::Phone &phone, const FieldPlace &place)
{
    const FormField &field = place.field();
    const QString number = phone.number.trimmed();
    const QString code = digitsOf(phone.code);
    if (number.isEmpty() || place.kind() == FieldKind::PhoneNumber)
        return fits(field, number) ? number : QString();
    QStringList texts;
    if (!code.isEmpty() && !number.startsWith(QLatin1Char('+'))) {
        texts.append(QLatin1Char('+') + code + QLatin1Char(' ') + number);
        texts.append(QLatin1Char('+') + code + digitsOf(number));
    }
    texts.append(number);
    texts.append(digitsOf(number));
    if (isNationalMask(field.placeholder()) && texts.size() == 4)
        texts.move(2, 0);
    if (field.inputType() == QLatin1String("number"))
        texts = QStringList(code + digitsOf(number));
    for (const QString &text : qAsConst(texts)) {
        if (fits(field, text) && matchesPattern(place, text))
            return text;
    }
    return fits(field, texts.first()) ? texts.first() : QString();
}

QString dialCodeText(const PMFieldTypes::Phone &phone, const QString &country,
                     const FieldPlace &place)
{
    const FormField &field = place.field();
    const QString code = digitsOf(phone.code);
    if (code.isEmpty())
        return {};
    const QVector<FormField::Option> options = field.options();
    QString first;
    for (const FormField::Option &option : options) {
        const bool isIt =
            names(option.text, code) || names(option.value, code) || option.value.trimmed() == code;
        if (!isIt)
            continue;
        // Several countries share the code 1.
        if (!country.isEmpty() && option.text.contains(country, Qt::CaseInsensitive))
            return option.text;
        if (first.isEmpty())
            first = option.text;
    }
    if (field.isSelect())
        return first;
    const QString withPlus = QLatin1Char('+') + code;
    const bool takesPlus = field.inputType() != QLatin1String("number") && fits(field, withPlus) &&
                           matchesPattern(place, withPlus);
    return takesPlus ? withPlus : code;
}
