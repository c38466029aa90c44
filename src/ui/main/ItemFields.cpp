#include "ItemFields.h"

#include "GPMAppSettings.h"
#include "PMCreditCard.h"
#include "PMFieldTypes.h"
#include "editor/CardNumber.h"
#include "editor/DateText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QVariant>

namespace {

using Fields = QVector<ItemField>;

// The labels are a context of their own for translators.
#define LABEL(text) QT_TRANSLATE_NOOP("ItemFields", text)

using F = ItemField;

const F titleField = {"title", LABEL("Title"), F::Line, F::Required};
const F noteField = {"note", LABEL("Note"), F::Multiline};
const F foldedNote = {"note", LABEL("Note"), F::Multiline, F::Folded};

const Fields loginFields = {{"login", LABEL("User name")},
                            {"password", LABEL("Password"), F::Password},
                            {"url", LABEL("Web site"), F::Link, F::None, F::Url},
                            {"fillType", LABEL("When logging in"), F::FillType, F::NoCopy},
                            noteField};

const Fields cardFields = {
    {"number", LABEL("Card number"), F::CardNumber, F::None, F::CardNumberDigits},
    {"cardType", LABEL("Card type"), F::CardType, F::NoCopy | F::OnFace},
    {"cardholder", LABEL("Card holder"), F::Line, F::None, F::CardHolder},
    {"expire", LABEL("Expires"), F::Month, F::Expiry},
    {"code", LABEL("Security code"), F::SecurityCode, F::Beside, F::CardCode},
    {"bank", LABEL("Bank")},
    {"bankPhone", LABEL("Bank phone"), F::Phone},
    {"bankSite", LABEL("Bank web site"), F::Link, F::Folded, F::Url},
    noteField};

const Fields accountFields = {{"bankName", LABEL("Bank")},
                              {"accountType", LABEL("Account type"), F::Line, F::Beside},
                              {"name", LABEL("Account holder")},
                              {"number", LABEL("Account number")},
                              {"routing", LABEL("Routing number"), F::Line, F::Beside},
                              {"iban", LABEL("IBAN")},
                              {"swift", LABEL("SWIFT")},
                              {"pin", LABEL("PIN"), F::Secret, F::Beside},
                              {"phone", LABEL("Phone"), F::Phone},
                              {"url", LABEL("Web site"), F::Link, F::Folded, F::Url},
                              {"address", LABEL("Address"), F::Multiline, F::Folded},
                              noteField};

const Fields identityFields = {{"firstName", LABEL("First name")},
                               {"lastName", LABEL("Last name"), F::Line, F::Beside},
                               {"birthDate", LABEL("Birth date"), F::Date},
                               {"gender", LABEL("Gender"), F::Gender, F::Beside},
                               {"email", LABEL("E-mail"), F::Line, F::None, F::Email},
                               {"phone", LABEL("Phone"), F::Phone},
                               {"addressLine1", LABEL("Address line 1")},
                               {"city", LABEL("City")},
                               {"zipCode", LABEL("Postal code"), F::Line, F::Beside},
                               {"country", LABEL("Country"), F::Country, F::Beside},
                               {"company", LABEL("Company"), F::Line, F::Folded},
                               {"jobTitle", LABEL("Job title"), F::Line, F::Folded | F::Beside},
                               {"website", LABEL("Website"), F::Link, F::Folded, F::Url},
                               {"state", LABEL("State"), F::Line, F::Folded},
                               {"addressLine2", LABEL("Address line 2"), F::Line, F::Folded},
                               {"phoneCell", LABEL("Mobile phone"), F::Phone, F::Folded},
                               {"phoneBusiness", LABEL("Business phone"), F::Phone, F::Folded},
                               {"skype", LABEL("Skype"), F::Line, F::Folded},
                               foldedNote};

const Fields passportFields = {{"number", LABEL("Passport number")},
                               {"passportType", LABEL("Passport type"), F::Line, F::Beside},
                               {"fullName", LABEL("Full name")},
                               {"birthDate", LABEL("Birth date"), F::Date},
                               {"birthPlace", LABEL("Birth place"), F::Line, F::Beside},
                               {"nationality", LABEL("Nationality")},
                               {"country", LABEL("Country"), F::Country, F::Beside},
                               {"authority", LABEL("Authority")},
                               {"issuedDate", LABEL("Issued"), F::Date},
                               {"expireDate", LABEL("Expires"), F::Date, F::Beside | F::Expiry},
                               noteField};

const Fields ssnFields = {{"name", LABEL("Name")},
                          {"number", LABEL("Number"), F::Secret},
                          {"note", LABEL("Note"), F::LongText}};

const Fields licenceFields = {{"number", LABEL("Licence number")},
                              {"licenseClass", LABEL("Class"), F::Line, F::Beside},
                              {"fullName", LABEL("Full name")},
                              {"birthDate", LABEL("Birth date"), F::Date},
                              {"gender", LABEL("Gender"), F::Gender, F::Beside},
                              {"expireDate", LABEL("Expires"), F::Date, F::Expiry},
                              {"height", LABEL("Height"), F::Number, F::Beside},
                              {"adress", LABEL("Address"), F::Multiline},
                              {"state", LABEL("State")},
                              {"country", LABEL("Country"), F::Country, F::Beside},
                              {"conditions", LABEL("Conditions"), F::Line, F::Folded},
                              noteField};

const Fields noteFields = {{"text", LABEL("Text"), F::LongText}, foldedNote};

const Fields ftpFields = {{"server", LABEL("Server")},
                          {"username", LABEL("User name")},
                          {"password", LABEL("Password"), F::Password},
                          noteField};

const Fields softwareFields = {{"licenseKey", LABEL("Licence key"), F::Secret},
                               {"version", LABEL("Version")},
                               {"url", LABEL("Web site"), F::Link, F::None, F::Url},
                               noteField};

const Fields attachmentFields = {{"filename", LABEL("File name")}, noteField};

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
        return text(LABEL("Fill and submit"));
    case PMFieldTypes::LoginFillType::OnlyFill:
        return text(LABEL("Only fill"));
    case PMFieldTypes::LoginFillType::GlobalSettings:
        break;
    }
    return settings.loginMode() == GPMAppSettings::FillAndSubmit
               ? text(LABEL("Use application setting (fill and submit)"))
               : text(LABEL("Use application setting (only fill)"));
}

QString genderText(int gender)
{
    static const char *const names[] = {"", LABEL("Male"), LABEL("Female")};
    return gender >= 1 && gender <= 2 ? text(names[gender]) : QString();
}
