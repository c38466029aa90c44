#include "ItemFields.h"

#include "GPMAppSettings.h"
#include "PMCreditCard.h"
#include "PMFieldTypes.h"
#include "editor/CardNumber.h"
#include "editor/CountryNames.h"
#include "editor/DateText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QVariant>

namespace {

using Fields = QVector<ItemField>;

using F = ItemField;

const F titleField = {"title", QT_TRANSLATE_NOOP("ItemFields", "Title"), F::Line, F::Required};
const F noteField = {"note", QT_TRANSLATE_NOOP("ItemFields", "Note"), F::Multiline};
const F foldedNote = {"note", QT_TRANSLATE_NOOP("ItemFields", "Note"), F::Multiline, F::Folded};

const Fields loginFields = {
    {"login", QT_TRANSLATE_NOOP("ItemFields", "User name")},
    {"password", QT_TRANSLATE_NOOP("ItemFields", "Password"), F::Password},
    {"url", QT_TRANSLATE_NOOP("ItemFields", "Web site"), F::Link, F::None, F::Url},
    {"fillType", QT_TRANSLATE_NOOP("ItemFields", "When logging in"), F::FillType, F::NoCopy},
    noteField};

const Fields cardFields = {
    {"number", QT_TRANSLATE_NOOP("ItemFields", "Card number"), F::CardNumber, F::None,
     F::CardNumberDigits},
    {"cardType", QT_TRANSLATE_NOOP("ItemFields", "Card type"), F::CardType, F::NoCopy | F::OnFace},
    {"cardholder", QT_TRANSLATE_NOOP("ItemFields", "Card holder"), F::Line, F::None, F::CardHolder},
    {"expire", QT_TRANSLATE_NOOP("ItemFields", "Expires"), F::Month, F::Expiry},
    {"code", QT_TRANSLATE_NOOP("ItemFields", "Security code"), F::SecurityCode, F::Beside,
     F::CardCode},
    {"bank", QT_TRANSLATE_NOOP("ItemFields", "Bank")},
    {"bankPhone", QT_TRANSLATE_NOOP("ItemFields", "Bank phone"), F::Phone},
    {"bankSite", QT_TRANSLATE_NOOP("ItemFields", "Bank web site"), F::Link, F::Folded, F::Url},
    noteField};

const Fields accountFields = {
    {"bankName", QT_TRANSLATE_NOOP("ItemFields", "Bank")},
    {"accountType", QT_TRANSLATE_NOOP("ItemFields", "Account type"), F::Line, F::Beside},
    {"name", QT_TRANSLATE_NOOP("ItemFields", "Account holder")},
    {"number", QT_TRANSLATE_NOOP("ItemFields", "Account number")},
    {"routing", QT_TRANSLATE_NOOP("ItemFields", "Routing number"), F::Line, F::Beside},
    {"iban", QT_TRANSLATE_NOOP("ItemFields", "IBAN")},
    {"swift", QT_TRANSLATE_NOOP("ItemFields", "SWIFT")},
    {"pin", QT_TRANSLATE_NOOP("ItemFields", "PIN"), F::Secret, F::Beside},
    {"phone", QT_TRANSLATE_NOOP("ItemFields", "Phone"), F::Phone},
    {"url", QT_TRANSLATE_NOOP("ItemFields", "Web site"), F::Link, F::Folded, F::Url},
    {"address", QT_TRANSLATE_NOOP("ItemFields", "Address"), F::Multiline, F::Folded},
    noteField};

const Fields identityFields = {
    {"firstName", QT_TRANSLATE_NOOP("ItemFields", "First name")},
    {"lastName", QT_TRANSLATE_NOOP("ItemFields", "Last name"), F::Line, F::Beside},
    {"birthDate", QT_TRANSLATE_NOOP("ItemFields", "Birth date"), F::Date},
    {"gender", QT_TRANSLATE_NOOP("ItemFields", "Gender"), F::Gender, F::Beside},
    {"email", QT_TRANSLATE_NOOP("ItemFields", "E-mail"), F::Line, F::None, F::Email},
    {"phone", QT_TRANSLATE_NOOP("ItemFields", "Phone"), F::Phone},
    {"addressLine1", QT_TRANSLATE_NOOP("ItemFields", "Address line 1")},
    {"city", QT_TRANSLATE_NOOP("ItemFields", "City")},
    {"zipCode", QT_TRANSLATE_NOOP("ItemFields", "Postal code"), F::Line, F::Beside},
    {"country", QT_TRANSLATE_NOOP("ItemFields", "Country"), F::Country, F::Beside},
    {"company", QT_TRANSLATE_NOOP("ItemFields", "Company"), F::Line, F::Folded},
    {"jobTitle", QT_TRANSLATE_NOOP("ItemFields", "Job title"), F::Line, F::Folded | F::Beside},
    {"website", QT_TRANSLATE_NOOP("ItemFields", "Website"), F::Link, F::Folded, F::Url},
    {"state", QT_TRANSLATE_NOOP("ItemFields", "State"), F::Line, F::Folded},
    {"addressLine2", QT_TRANSLATE_NOOP("ItemFields", "Address line 2"), F::Line, F::Folded},
    {"phoneCell", QT_TRANSLATE_NOOP("ItemFields", "Mobile phone"), F::Phone, F::Folded},
    {"phoneBusiness", QT_TRANSLATE_NOOP("ItemFields", "Business phone"), F::Phone, F::Folded},
    {"skype", QT_TRANSLATE_NOOP("ItemFields", "Skype"), F::Line, F::Folded},
    foldedNote};

const Fields passportFields = {
    {"number", QT_TRANSLATE_NOOP("ItemFields", "Passport number")},
    {"passportType", QT_TRANSLATE_NOOP("ItemFields", "Passport type"), F::Line, F::Beside},
    {"fullName", QT_TRANSLATE_NOOP("ItemFields", "Full name")},
    {"birthDate", QT_TRANSLATE_NOOP("ItemFields", "Birth date"), F::Date},
    {"birthPlace", QT_TRANSLATE_NOOP("ItemFields", "Birth place"), F::Line, F::Beside},
    {"nationality", QT_TRANSLATE_NOOP("ItemFields", "Nationality")},
    {"country", QT_TRANSLATE_NOOP("ItemFields", "Country"), F::Country, F::Beside},
    {"authority", QT_TRANSLATE_NOOP("ItemFields", "Authority")},
    {"issuedDate", QT_TRANSLATE_NOOP("ItemFields", "Issued"), F::Date},
    {"expireDate", QT_TRANSLATE_NOOP("ItemFields", "Expires"), F::Date, F::Beside | F::Expiry},
    noteField};

const Fields ssnFields = {{"name", QT_TRANSLATE_NOOP("ItemFields", "Name")},
                          {"number", QT_TRANSLATE_NOOP("ItemFields", "Number"), F::Secret},
                          {"note", QT_TRANSLATE_NOOP("ItemFields", "Note"), F::LongText}};

const Fields licenceFields = {
    {"number", QT_TRANSLATE_NOOP("ItemFields", "Licence number")},
    {"licenseClass", QT_TRANSLATE_NOOP("ItemFields", "Class"), F::Line, F::Beside},
    {"fullName", QT_TRANSLATE_NOOP("ItemFields", "Full name")},
    {"birthDate", QT_TRANSLATE_NOOP("ItemFields", "Birth date"), F::Date},
    {"gender", QT_TRANSLATE_NOOP("ItemFields", "Gender"), F::Gender, F::Beside},
    {"expireDate", QT_TRANSLATE_NOOP("ItemFields", "Expires"), F::Date, F::Expiry},
    {"height", QT_TRANSLATE_NOOP("ItemFields", "Height"), F::Number, F::Beside},
    {"adress", QT_TRANSLATE_NOOP("ItemFields", "Address"), F::Multiline},
    {"state", QT_TRANSLATE_NOOP("ItemFields", "State")},
    {"country", QT_TRANSLATE_NOOP("ItemFields", "Country"), F::Country, F::Beside},
    {"conditions", QT_TRANSLATE_NOOP("ItemFields", "Conditions"), F::Line, F::Folded},
    noteField};

const Fields noteFields = {{"text", QT_TRANSLATE_NOOP("ItemFields", "Text"), F::LongText},
                           foldedNote};

const Fields ftpFields = {{"server", QT_TRANSLATE_NOOP("ItemFields", "Server")},
                          {"username", QT_TRANSLATE_NOOP("ItemFields", "User name")},
                          {"password", QT_TRANSLATE_NOOP("ItemFields", "Password"), F::Password},
                          noteField};

const Fields softwareFields = {
    {"licenseKey", QT_TRANSLATE_NOOP("ItemFields", "Licence key"), F::Secret},
    {"version", QT_TRANSLATE_NOOP("ItemFields", "Version")},
    {"url", QT_TRANSLATE_NOOP("ItemFields", "Web site"), F::Link, F::None, F::Url},
    noteField};

const Fields attachmentFields = {{"filename", QT_TRANSLATE_NOOP("ItemFields", "File name")},
                                 noteField};

// In the order of PMListItem::Type.
const Fields *const allFields[] = {
    &loginFields,   &cardFields, &accountFields, &identityFields, &passportFields,  &ssnFields,
    &licenceFields, &noteFields, &ftpFields,     &softwareFields, &attachmentFields};

QString text(const char *source)
{
    return QCoreApplication::translate("ItemFields", source);
}

QString phoneText(const PMFieldTypes::Phone &phone)
{
    // A dialling code alone leads nowhere.
    if (phone.number.isEmpty())
        return {};
    return phone.code.isEmpty() ? phone.number
                                : QStringLiteral("+%1 %2").arg(phone.code, phone.number);
}

QString cardTypeText(int type)
{
    static const char *const names[] = {"Visa", "MasterCard", ""};
    return QLatin1String(names[qBound<int>(PMCreditCard::Visa, type, PMCreditCard::UndefinedCard)]);
}

} // namespace

const QVector<ItemField> &itemFields(PMListItem::Type type)
{
    static const Fields none;
    return type >= PMListItem::Login && type < PMListItem::UndefinedItem ? *allFields[type] : none;
}

const ItemField &itemTitleField()
{
    return titleField;
}

QString itemFieldLabel(const ItemField &field)
{
    return text(field.label);
}

QString itemFieldText(const PMListItem &item, const ItemField &field,
                      const GPMAppSettings &settings)
{
    const QVariant value = item.property(field.property);
    switch (field.form) {
    case ItemField::Date:
        return DateText::day(value.value<PMFieldTypes::Date>(), QLocale::system());
    case ItemField::Month:
        return DateText::monthName(value.value<PMFieldTypes::Date>(), QLocale::system());
    case ItemField::Phone:
        return phoneText(value.value<PMFieldTypes::Phone>());
    case ItemField::Gender:
        return genderText(value.toInt());
    case ItemField::CardNumber:
        return CardNumber::grouped(value.toString());
    case ItemField::Country:
        return CountryNames::shown(value.toString());
    case ItemField::CardType:
        return cardTypeText(value.toInt());
    case ItemField::FillType:
        return fillTypeText(value.toInt(), settings);
    case ItemField::Number:
        return value.toInt() == 0 ? QString() : QString::number(value.toInt());
    default:
        return value.toString();
    }
}

QString itemFieldCopyText(const PMListItem &item, const ItemField &field,
                          const GPMAppSettings &settings)
{
    // The groups are for the eye; many pages refuse them.
    if (field.form == ItemField::CardNumber)
        return CardNumber::digits(item.property(field.property).toString());
    return itemFieldText(item, field, settings);
}

QString fillTypeText(int fillType, const GPMAppSettings &settings)
{
    switch (static_cast<PMFieldTypes::LoginFillType>(fillType)) {
    case PMFieldTypes::LoginFillType::FillAndSubmit:
        return text(QT_TRANSLATE_NOOP("ItemFields", "Fill and submit"));
    case PMFieldTypes::LoginFillType::OnlyFill:
        return text(QT_TRANSLATE_NOOP("ItemFields", "Only fill"));
    case PMFieldTypes::LoginFillType::GlobalSettings:
        break;
    }
    return settings.loginMode() == GPMAppSettings::FillAndSubmit
               ? text(QT_TRANSLATE_NOOP("ItemFields", "Use application setting (fill and submit)"))
               : text(QT_TRANSLATE_NOOP("ItemFields", "Use application setting (only fill)"));
}

QString genderText(int gender)
{
    static const char *const names[] = {"", QT_TRANSLATE_NOOP("ItemFields", "Male"),
                                        QT_TRANSLATE_NOOP("ItemFields", "Female")};
    return gender >= 1 && gender <= 2 ? text(names[gender]) : QString();
}
