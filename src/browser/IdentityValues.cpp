#include "IdentityValues.h"

#include "DateShape.h"
#include "FieldOptions.h"
#include "FieldPhrases.h"
#include "FieldShape.h"
#include "PMIdentity.h"
#include "PhoneShape.h"
#include "RegionCodes.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace {

QString nameIn(const QString &language, const CountryCodes &country)
{
    const QLocale locale(language.section(QLatin1Char('-'), 0, 0) + QLatin1Char('_') +
                         country.alpha2);
    const bool isKnown = locale.name().endsWith(QLatin1Char('_') + country.alpha2);
    return isKnown && !language.isEmpty() ? locale.nativeCountryName() : country.name;
}

/// Whether all choices are numbers of three figures, as those of countries are.
bool areNumeric(const QVector<FormField::Option> &options)
{
    static const QRegularExpression figures(QStringLiteral("^(\\d{3})?$"));
    return std::all_of(options.begin(), options.end(), [&](const FormField::Option &option) {
        return figures.match(option.value).hasMatch();
    });
}

QString countryOption(const CountryCodes &country, const FieldPlace &place)
{
    const FormField &field = place.field();
    QStringList words = {country.name, nameIn(place.language, country), country.alpha2,
                         country.alpha3};
    if (areNumeric(field.options()))
        words.append(country.numeric);
    const QString option = optionFor(field, words);
    return option.isEmpty() ? country.name : option;
}

/// How many letters of a code the field asks for, 0 when it asks for the name.
int lettersOfCode(const FormField &field)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\[(?:A-Z|a-z|A-Za-z|a-zA-Z)\\]\\{([23])\\}$"));
    static const QRegularExpression words(
        QStringLiteral("country.?code|\\biso\\b|ländercode|code pays|código de país"),
        QRegularExpression::CaseInsensitiveOption);
    if (field.maxLength() == 2 || field.maxLength() == 3)
        return field.maxLength();
    const QRegularExpressionMatch asked = pattern.match(field.pattern());
    if (asked.hasMatch())
        return asked.captured(1).toInt();
    const QString read = field.readTexts().join(QLatin1Char(' '));
    return words.match(read).hasMatch() ? 2 : 0;
}

QString countryText(const QString &name, const FieldPlace &place)
{
    const FormField &field = place.field();
    const auto country = countryCodes(name);
    if (!country)
        return name;
    if (field.isSelect())
        return countryOption(*country, place);
    const int letters = lettersOfCode(field);
    if (letters == 0)
        return firstThatGoes(place, {nameIn(place.language, *country), country->name});
    return letters == 2 ? country->alpha2 : country->alpha3;
}

QString stateText(const QString &name, const FormField &field)
{
    const auto state = stateCode(name);
    if (!state)
        return name;
    if (field.isSelect()) {
        const QString option = optionFor(field, {state->name, state->code});
        return option.isEmpty() ? name : option;
    }
    return field.maxLength() == 2 ? state->code : name;
}

/// Postal codes with a part that few ask for, or with a space that some refuse.
QString postalText(const QString &code, const FieldPlace &place)
{
    static const QRegularExpression extended(QStringLiteral("^\\d{5}-\\d{4}$"));
    QStringList texts = {code, QString(code).remove(QLatin1Char(' '))};
    if (extended.match(code).hasMatch())
        texts.append(code.left(5));
    return firstThatGoes(place, texts);
}

/// The first names: the second and further ones have a field of their own where a form asks so.
QString firstName(const QString &names, const FieldPlace &place)
{
    const bool isSplit = place.kinds.contains(FieldKind::MiddleName);
    return isSplit ? names.section(QLatin1Char(' '), 0, 0) : names;
}

QString middleName(const QString &names, const FormField &field)
{
    const QString further = names.section(QLatin1Char(' '), 1);
    return field.maxLength() == 1 ? further.left(1) : further;
}

/// The family's name comes first where the field says so, and by custom in Russian.
bool isFamilyFirst(const FormField &field)
{
    const QStringList texts = field.readTexts();
    for (const QString &text : texts) {
        const TextMeaning meaning = meaningOf(text, TextSort::Code, {});
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
    if (place.kinds.contains(FieldKind::HouseNumber))
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
            return answerOf(option);
    }
    return inLanguage(sex, field.isSelect() ? QString() : place.language);
}

/// The number that the field's words ask for; any other when the person has none such and no other
/// field asks for that.
PMFieldTypes::Phone phoneFor(const PMIdentity &identity, const FormField &field, bool isFurther)
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
    if (isFurther)
        return phones.first();
    for (const PMFieldTypes::Phone &phone : qAsConst(phones)) {
        if (!phone.number.isEmpty())
            return phone;
    }
    return {};
}

/// The field whose words say which phone is asked for, among those of a number in parts.
const FormField &phoneField(const FieldPlace &place)
{
    int at = place.at;
    if (place.kind() == FieldKind::PhoneCode) {
        const int next = place.kinds.indexOf(FieldKind::PhoneNumber, at);
        return place.fields.at(next < 0 ? at : next);
    }
    while (at > 0 && place.kinds.at(at) != FieldKind::PhoneArea &&
           (place.kinds.at(at) == FieldKind::PhonePrefix ||
            place.kinds.at(at) == FieldKind::PhoneLine))
        --at;
    return place.fields.at(at);
}

PMFieldTypes::Phone phoneFor(const PMIdentity &identity, const FieldPlace &place)
{
    const bool isFurther = place.kind() == FieldKind::Phone && place.at > 0 &&
                           place.kinds.at(place.at - 1) == FieldKind::Phone;
    return phoneFor(identity, phoneField(place), isFurther);
}

QString birthValue(const PMFieldTypes::Date &date, const FieldPlace &place)
{
    const FormField &field = place.field();
    switch (place.kind()) {
    case FieldKind::BirthDay:
        return date.day > 0 ? twoFigures(date.day) : QString();
    case FieldKind::BirthMonth:
        return date.month > 0 ? monthText(date.month, place) : QString();
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
        return firstName(identity.firstName().simplified(), place);
    case FieldKind::MiddleName:
        return middleName(identity.firstName().simplified(), field);
    case FieldKind::LastName:
        return identity.lastName();
    case FieldKind::FullName:
        return fullName(identity, field);
    case FieldKind::Country:
        return countryText(identity.country(), place);
    case FieldKind::State:
        return stateText(identity.state(), field);
    case FieldKind::City:
        return identity.city();
    case FieldKind::AddressLine1:
        return addressValue(identity, place);
    case FieldKind::AddressLine2:
        return identity.addressLine2();
    case FieldKind::HouseNumber:
        return streetOf(identity.addressLine1()).house;
    case FieldKind::PostalCode:
        return postalText(identity.zipCode(), place);
    case FieldKind::Email:
        return identity.email();
    case FieldKind::Phone:
    case FieldKind::PhoneNumber:
    case FieldKind::PhoneArea:
    case FieldKind::PhonePrefix:
    case FieldKind::PhoneLine:
        return phoneText(phoneFor(identity, place), place);
    case FieldKind::PhoneCode:
        return dialCodeText(phoneFor(identity, place), identity.country(), place);
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
