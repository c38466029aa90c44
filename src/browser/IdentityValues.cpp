#include "IdentityValues.h"

#include "DateShape.h"
#include "FieldOptions.h"
#include "FieldPhrases.h"
#include "PMIdentity.h"
#include "PhoneShape.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

namespace {

/// ISO 3166 codes by English name in lower case.
QHash<QString, QString> isoCodes()
{
    QHash<QString, QString> codes;
    const auto locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    for (const QLocale &locale : locales) {
        const QString code = locale.name().section(QLatin1Char('_'), -1);
        if (code.size() == 2)
            codes.insert(QLocale::countryToString(locale.country()).toLower(), code);
    }
    return codes;
}

QString countryText(const QString &country, const FormField &field)
{
    static const QHash<QString, QString> codes = isoCodes();
    static const QRegularExpression twoLetters(QStringLiteral("^\\[(A-Z|a-z|A-Za-z)\\]\\{2\\}$"));
    const bool wantsCode = field.maxLength() == 2 || twoLetters.match(field.pattern()).hasMatch();
    if (!wantsCode)
        return country;
    return country.size() == 2 ? country.toUpper() : codes.value(country.toLower());
}

/// The family's name comes first where the field says so, and by custom in Russian.
bool isFamilyFirst(const FormField &field)
{
    const QStringList texts = field.readTexts();
    for (const QString &text : texts) {
        const TextMeaning meaning = meaningOf(text);
        const auto words = wordsOf(text);
        if (words.value(0) == QString::fromUtf8("фио") ||
            words.value(0) == QString::fromUtf8("фамилия"))
            return true;
        if (meaning.parts.isEmpty())
            continue;
        return words.value(0) == QLatin1String("surname") ||
               words.value(0) == QLatin1String("nachname") ||
               words.join(QLatin1Char(' ')) == QLatin1String("name vorname");
    }
    return false;
}

QString fullName(const PMIdentity &identity, const FormField &field)
{
    const QString first = identity.firstName();
    const QString last = identity.lastName();
    const QStringList names =
        isFamilyFirst(field) ? QStringList{last, first} : QStringList{first, last};
    return names.join(QLatin1Char(' ')).trimmed();
}

struct Street
{
    QString name;
    QString house;
};

/// "Hauptstraße 12 b" or "12 High Street" in two; all in the name when no number is there.
Street streetOf(const QString &line)
{
    static const QRegularExpression numberLast(
        QStringLiteral("^(.*\\pL.*?)[ ,]+(\\d+(?:\\s?\\pL)?(?:[-/]\\d+(?:\\s?\\pL)?)?)$"));
    static const QRegularExpression numberFirst(
        QStringLiteral("^(\\d+\\pL?(?:[-/]\\d+\\pL?)?)[ ,]+(.*\\pL.*)$"));
    QRegularExpressionMatch found = numberLast.match(line.trimmed());
    if (found.hasMatch())
        return {found.captured(1), found.captured(2)};
    found = numberFirst.match(line.trimmed());
    if (found.hasMatch())
        return {found.captured(2), found.captured(1)};
    return {line, {}};
}

QString addressValue(const PMIdentity &identity, const FieldPlace &place)
{
    const QString line = identity.addressLine1();
    if (place.kinds.value(place.at + 1) == FieldKind::HouseNumber ||
        place.kinds.value(place.at - 1) == FieldKind::HouseNumber)
        return streetOf(line).name;
    const QString second = identity.addressLine2();
    const bool isWhole = place.field().isTextArea();
    return isWhole && !second.isEmpty() ? line + QLatin1Char('\n') + second : line;
}

QString inLanguage(Sex sex, const QString &language)
{
    static const QHash<QString, QPair<const char *, const char *>> names = {
        {QStringLiteral("de"), {"männlich", "weiblich"}},
        {QStringLiteral("es"), {"hombre", "mujer"}},
        {QStringLiteral("fr"), {"homme", "femme"}},
        {QStringLiteral("ru"), {"мужской", "женский"}}};
    const auto pair =
        names.value(language.section(QLatin1Char('-'), 0, 0).toLower(), {"male", "female"});
    return QString::fromUtf8(sex == Sex::Male ? pair.first : pair.second);
}

QString radioValue(const FormField &radio, Sex sex)
{
    const QString value = radio.value();
    const QStringList texts = {radio.label(), radio.textAfter(), value};
    for (const QString &text : texts) {
        if (sexOfChoice(text) == sex)
            return value.isEmpty() || value == QLatin1String("on") ? text : value;
    }
    return {};
}

QString genderValue(PMFieldTypes::Gender gender, const FieldPlace &place)
{
    if (gender == PMFieldTypes::Gender::Undefined)
        return {};
    const Sex sex = gender == PMFieldTypes::Gender::Male ? Sex::Male : Sex::Female;
    const FormField &field = place.field();
    if (field.isRadio())
        return radioValue(field, sex);
    const QVector<FormField::Option> options = field.options();
    for (const FormField::Option &option : options) {
        if (sexOfChoice(option.text) == sex || sexOfChoice(option.value) == sex)
            return option.text.isEmpty() ? option.value : option.text;
    }
    return inLanguage(sex, field.isSelect() ? QString() : place.language);
}

/// The number that the field's words ask for; any other when the person has none such.
PMFieldTypes::Phone phoneFor(const PMIdentity &identity, const FormField &field)
{
    static const QRegularExpression mobile(
        QStringLiteral("mobil|cell|handy|móvil|movil|celular|portable|мобильн|сотов"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression business(
        QStringLiteral("business|work|office|geschäft|dienst|trabajo|oficina|bureau|travail|рабоч"),
        QRegularExpression::CaseInsensitiveOption);
    const QString texts = (field.readTexts() + field.attributeTexts()).join(QLatin1Char(' '));
    QVector<PMFieldTypes::Phone> phones = {identity.phone(), identity.phoneCell(),
                                           identity.phoneBusiness()};
    if (mobile.match(texts).hasMatch())
        phones.move(1, 0);
    else if (business.match(texts).hasMatch())
        phones.move(2, 0);
    for (const PMFieldTypes::Phone &phone : qAsConst(phones)) {
        if (!phone.number.isEmpty())
            return phone;
    }
    return {};
}

/// The phone whose number stands beside its code.
const FormField &numberField(const FieldPlace &place)
{
    const int next = place.kinds.indexOf(FieldKind::PhoneNumber, place.at);
    return place.fields.at(next < 0 ? place.at : next);
}

QString birthValue(const PMFieldTypes::Date &date, const FieldPlace &place)
{
    const FormField &field = place.field();
    switch (place.kind()) {
    case FieldKind::BirthDay:
        return date.day > 0 ? twoFigures(date.day) : QString();
    case FieldKind::BirthMonth:
        return date.month > 0 ? twoFigures(date.month) : QString();
    case FieldKind::BirthYear:
        return date.year > 0 ? yearText(date.year, field) : QString();
    default:
        return birthText(date, place);
    }
}

} // namespace

QString identityValue(const PMIdentity &identity, const FieldPlace &place)
{
    const FormField &field = place.field();
    switch (place.kind()) {
    case FieldKind::FirstName:
        return identity.firstName();
    case FieldKind::LastName:
        return identity.lastName();
    case FieldKind::FullName:
        return fullName(identity, field);
    case FieldKind::Country:
        return countryText(identity.country(), field);
    case FieldKind::State:
        return identity.state();
    case FieldKind::City:
        return identity.city();
    case FieldKind::AddressLine1:
        return addressValue(identity, place);
    case FieldKind::AddressLine2:
        return identity.addressLine2();
    case FieldKind::HouseNumber:
        return streetOf(identity.addressLine1()).house;
    case FieldKind::PostalCode:
        return fits(field, identity.zipCode()) ? identity.zipCode() : QString();
    case FieldKind::Email:
        return identity.email();
    case FieldKind::Phone:
    case FieldKind::PhoneNumber:
        return phoneText(phoneFor(identity, field), place);
    case FieldKind::PhoneCode:
        return dialCodeText(phoneFor(identity, numberField(place)), identity.country(), place);
    case FieldKind::Gender:
        return genderValue(identity.gender(), place);
    case FieldKind::Company:
        return identity.company();
    case FieldKind::JobTitle:
        return identity.jobTitle();
    case FieldKind::Website:
        return identity.website();
    default:
        return birthValue(identity.birthDate(), place);
    }
}
