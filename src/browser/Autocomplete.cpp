#include "Autocomplete.h"

#include "FormField.h"

#include <QHash>

namespace {

const QHash<QString, FieldKind> &tokens()
{
    static const QHash<QString, FieldKind> kinds = {
        {QStringLiteral("username"), FieldKind::UserName},
        {QStringLiteral("current-password"), FieldKind::CurrentPassword},
        {QStringLiteral("new-password"), FieldKind::NewPassword},
        {QStringLiteral("one-time-code"), FieldKind::Never},
        {QStringLiteral("name"), FieldKind::FullName},
        {QStringLiteral("given-name"), FieldKind::FirstName},
        {QStringLiteral("family-name"), FieldKind::LastName},
        {QStringLiteral("additional-name"), FieldKind::MiddleName},
        {QStringLiteral("honorific-prefix"), FieldKind::Other},
        {QStringLiteral("honorific-suffix"), FieldKind::Other},
        {QStringLiteral("nickname"), FieldKind::Other},
        {QStringLiteral("organization"), FieldKind::Company},
        {QStringLiteral("organization-title"), FieldKind::JobTitle},
        {QStringLiteral("street-address"), FieldKind::AddressLine1},
        {QStringLiteral("address-line1"), FieldKind::AddressLine1},
        {QStringLiteral("address-line2"), FieldKind::AddressLine2},
        {QStringLiteral("address-line3"), FieldKind::Other},
        {QStringLiteral("address-level1"), FieldKind::State},
        {QStringLiteral("address-level2"), FieldKind::City},
        {QStringLiteral("address-level3"), FieldKind::Other},
        {QStringLiteral("address-level4"), FieldKind::Other},
        {QStringLiteral("country"), FieldKind::Country},
        {QStringLiteral("country-name"), FieldKind::Country},
        {QStringLiteral("postal-code"), FieldKind::PostalCode},
        {QStringLiteral("cc-name"), FieldKind::CardHolder},
        {QStringLiteral("cc-given-name"), FieldKind::CardFirstName},
        {QStringLiteral("cc-additional-name"), FieldKind::Other},
        {QStringLiteral("cc-family-name"), FieldKind::CardLastName},
        {QStringLiteral("cc-number"), FieldKind::CardNumber},
        {QStringLiteral("cc-exp"), FieldKind::CardExpiry},
        {QStringLiteral("cc-exp-month"), FieldKind::CardMonth},
        {QStringLiteral("cc-exp-year"), FieldKind::CardYear},
        {QStringLiteral("cc-csc"), FieldKind::CardCode},
        {QStringLiteral("cc-type"), FieldKind::CardType},
        {QStringLiteral("transaction-currency"), FieldKind::Other},
        {QStringLiteral("transaction-amount"), FieldKind::Other},
        {QStringLiteral("language"), FieldKind::Other},
        {QStringLiteral("bday"), FieldKind::BirthDate},
        {QStringLiteral("bday-day"), FieldKind::BirthDay},
        {QStringLiteral("bday-month"), FieldKind::BirthMonth},
        {QStringLiteral("bday-year"), FieldKind::BirthYear},
        {QStringLiteral("sex"), FieldKind::Gender},
        {QStringLiteral("url"), FieldKind::Website},
        {QStringLiteral("photo"), FieldKind::Other},
        {QStringLiteral("impp"), FieldKind::Other},
        {QStringLiteral("email"), FieldKind::Email},
        {QStringLiteral("tel"), FieldKind::Phone},
        {QStringLiteral("tel-country-code"), FieldKind::PhoneCode},
        {QStringLiteral("tel-national"), FieldKind::PhoneNumber},
        {QStringLiteral("tel-area-code"), FieldKind::PhoneArea},
        {QStringLiteral("tel-local"), FieldKind::PhoneLine},
        {QStringLiteral("tel-local-prefix"), FieldKind::PhonePrefix},
        {QStringLiteral("tel-local-suffix"), FieldKind::PhoneLine},
        {QStringLiteral("tel-extension"), FieldKind::Other}};
    return kinds;
}

bool isPasswordKind(FieldKind kind)
{
    return kind == FieldKind::NewPassword || kind == FieldKind::CurrentPassword;
}

} // namespace

FieldKind kindOfAutocomplete(const FormField &field)
{
    const QString told = field.autocomplete().toLower();
    if (told.isEmpty())
        return FieldKind::Unknown;
    QStringList words = told.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (!words.isEmpty() && words.last() == QLatin1String("webauthn"))
        words.removeLast();
    const QString token = words.isEmpty() ? QString() : words.takeLast();
    const FieldKind kind = tokens().value(token, FieldKind::Unknown);
    // The number of a fax is asked for with the same token.
    const bool isFax =
        words.contains(QLatin1String("fax")) || words.contains(QLatin1String("pager"));
    if (isFax && kind != FieldKind::Unknown)
        return FieldKind::Other;
    const bool isPassword = field.isPassword();
    const bool canBe =
        isPassword ? isPasswordKind(kind) || kind == FieldKind::CardCode || kind == FieldKind::Never
                   : !isPasswordKind(kind);
    return canBe ? kind : FieldKind::Unknown;
}
