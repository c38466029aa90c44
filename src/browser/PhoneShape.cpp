#include "PhoneShape.h"

#include "FieldShape.h"
#include "PMCountryTable.h"
#include "RegionCodes.h"

#include <QRegularExpression>

namespace {

/// Within these countries a number is dialled with a zero before it.
bool hasTrunkZero(const QString &code)
{
    static const QStringList codes =
        QStringLiteral("27 31 32 33 40 41 43 44 46 49 61 62 64 66 81 82 84 90 91 92 94 353 358 380")
            .split(QLatin1Char(' '));
    return codes.contains(code);
}

/// A telephone number by its parts, all but the first two figures alone.
struct Parts
{
    QString code;
    QString number; ///< as it was typed, without the code and the zero before it
    QString area;
    QString rest;

    explicit Parts(const PMFieldTypes::Phone &phone)
        : code(digitsOf(phone.code))
        , number(phone.number.trimmed())
    {
        static const QRegularExpression notDigits(QStringLiteral("\\D+"));
        if (hasTrunkZero(code) && number.startsWith(QLatin1Char('0')))
            number.remove(0, 1);
        const QString digits = digitsOf(number);
        const QStringList groups = number.split(notDigits, Qt::SkipEmptyParts);
        if (groups.size() > 1)
            area = groups.first();
        else if (digits.size() == 10)
            area = digits.left(3);
        rest = digits.mid(area.size());
    }

    QString digits() const { return area + rest; }
    QString zero() const { return hasTrunkZero(code) ? QStringLiteral("0") : QString(); }
    bool isWhole() const { return number.startsWith(QLatin1Char('+')); }
};

/// How "2125550123" is written where numbers have ten figures.
QStringList inTens(const Parts &parts)
{
    if (parts.digits().size() != 10)
        return {};
    QStringList texts;
    for (const char *mask : {"000-000-0000", "(000) 000-0000", "000 000 0000", "000.000.0000"})
        texts.append(inMask(QLatin1String(mask), parts.digits()));
    return texts;
}

/// A mask without a plus sign, such as "(000) 000-0000", shows all the figures that there are.
bool isNationalMask(const QString &placeholder)
{
    static const QRegularExpression mask(QStringLiteral("^[(\\d_#xX][\\d_#xX() .-]{8,}$"));
    return mask.match(placeholder).hasMatch() && !placeholder.startsWith(QLatin1String("00"));
}

QString wholeNumber(const Parts &parts, const FieldPlace &place)
{
    const QString placeholder = place.field().placeholder().trimmed();
    const QStringList national = {parts.zero() + parts.number, parts.zero() + parts.digits(),
                                  parts.number, parts.digits()};
    if (place.field().inputType() == QLatin1String("number"))
        return parts.code + parts.digits();
    if (parts.isWhole() || parts.code.isEmpty())
        return firstThatGoes(place, national);
    const QString plus = QLatin1Char('+') + parts.code;
    const QStringList international = {plus + QLatin1Char(' ') + parts.number,
                                       plus + parts.digits()};
    if (!isNationalMask(placeholder))
        return firstThatGoes(place, international + national + inTens(parts));
    QStringList texts = national + inTens(parts) + international;
    const QString masked = inMask(placeholder, parts.digits());
    if (!masked.isEmpty())
        texts.prepend(masked);
    return firstThatGoes(place, texts);
}

/// Whether an option names the code, as "+49", "0049" or "49" do.
bool namesCode(const FormField::Option &option, const QString &code)
{
    static const QRegularExpression shown(QStringLiteral("(?:\\+\\s?|^00)([\\d -]+)"));
    for (const QString &text : {option.text, option.value}) {
        const QRegularExpressionMatch found = shown.match(text);
        if (text.trimmed() == code || (found.hasMatch() && digitsOf(found.captured(1)) == code))
            return true;
    }
    return false;
}

/// The country whose numbers begin with the code: the person's own where several share it.
QString countryOf(const QString &code, const QString &own)
{
    const auto isOf = [&](const PMCountryTable::Country &country) {
        return digitsOf(country.code) == code;
    };
    const auto owned = PMCountryTable::instance().find(own);
    if (owned && isOf(*owned))
        return owned->name;
    for (const PMCountryTable::Country &country : PMCountryTable::instance().countries()) {
        if (isOf(country))
            return country.name;
    }
    return {};
}

QString codeOption(const QString &code, const QString &country, const FormField &field)
{
    const QString name = countryOf(code, country);
    const auto codes = countryCodes(name);
    const QStringList words =
        codes ? QStringList{codes->name, codes->alpha2, codes->alpha3} : QStringList{};
    QString first;
    const QVector<FormField::Option> options = field.options();
    for (const FormField::Option &option : options) {
        if (!namesCode(option, code))
            continue;
        // Several countries share the code 1.
        const bool isIts = words.contains(option.value, Qt::CaseInsensitive) ||
                           (!name.isEmpty() && option.text.contains(name, Qt::CaseInsensitive));
        if (isIts)
            return answerOf(option);
        if (first.isEmpty())
            first = answerOf(option);
    }
    return first.isEmpty() ? optionFor(field, words) : first;
}

} // namespace

QString phoneText(const PMFieldTypes::Phone &phone, const FieldPlace &place)
{
    const Parts parts(phone);
    const bool hasPrefix = place.kinds.contains(FieldKind::PhonePrefix);
    if (parts.number.isEmpty())
        return {};
    switch (place.kind()) {
    case FieldKind::PhoneNumber:
        return firstThatGoes(place, {parts.number, parts.digits()});
    case FieldKind::PhoneArea: {
        const bool isNational = !place.kinds.contains(FieldKind::PhoneCode);
        return parts.area.isEmpty()
                   ? QString()
                   : firstThatGoes(
                         place, {(isNational ? parts.zero() : QString()) + parts.area, parts.area});
    }
    case FieldKind::PhonePrefix:
        return parts.area.isEmpty() ? QString() : parts.rest.left(3);
    case FieldKind::PhoneLine:
        if (!place.kinds.contains(FieldKind::PhoneArea))
            return parts.digits();
        return parts.area.isEmpty() ? QString() : parts.rest.mid(hasPrefix ? 3 : 0);
    default:
        return wholeNumber(parts, place);
    }
}

QString dialCodeText(const PMFieldTypes::Phone &phone, const QString &country,
                     const FieldPlace &place)
{
    const FormField &field = place.field();
    const QString code = digitsOf(phone.code);
    if (code.isEmpty())
        return {};
    if (field.isSelect())
        return codeOption(code, country, field);
    if (field.inputType() == QLatin1String("number"))
        return code;
    return firstThatGoes(place, {QLatin1Char('+') + code, code, QLatin1String("00") + code});
}
