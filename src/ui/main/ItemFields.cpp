#include "ItemFields.h"

#include "GPMAppSettings.h"
#include "PMCreditCard.h"
#include "PMFieldTypes.h"

#include <QCoreApplication>
#include <QLocale>
#include <QVariant>

namespace {

using Fields = QVector<ItemField>;

// The labels are a context of their own for translators.
#define LABEL(text) QT_TRANSLATE_NOOP("ItemFields", text)

const ItemField noteField = {"note", LABEL("Note"), ItemField::Multiline};

const Fields loginFields = {{"login", LABEL("User name")},
                            {"password", LABEL("Password"), ItemField::Secret},
                            {"url", LABEL("Web site"), ItemField::Link},
                            {"fillType", LABEL("When logging in"), ItemField::FillType},
                            noteField};

const Fields cardFields = {{"number", LABEL("Card number")},
                           {"cardholder", LABEL("Card holder")},
                           {"expire", LABEL("Expires"), ItemField::Month},
                           {"code", LABEL("Security code"), ItemField::Secret},
                           {"cardType", LABEL("Card type"), ItemField::CardType},
                           {"bank", LABEL("Bank")},
                           {"bankSite", LABEL("Bank web site"), ItemField::Link},
                           {"bankPhone", LABEL("Bank phone"), ItemField::Phone},
                           noteField};

const Fields accountFields = {{"bankName", LABEL("Bank")},
                              {"name", LABEL("Account holder")},
                              {"accountType", LABEL("Account type")},
                              {"number", LABEL("Account number")},
                              {"routing", LABEL("Routing number")},
                              {"iban", LABEL("IBAN")},
                              {"swift", LABEL("SWIFT")},
                              {"pin", LABEL("PIN"), ItemField::Secret},
                              {"phone", LABEL("Phone"), ItemField::Phone},
                              {"address", LABEL("Address"), ItemField::Multiline},
                              {"url", LABEL("Web site"), ItemField::Link},
                              noteField};

const Fields identityFields = {{"firstName", LABEL("First name")},
                               {"lastName", LABEL("Last name")},
                               {"birthDate", LABEL("Birth date"), ItemField::Date},
                               {"gender", LABEL("Gender"), ItemField::Gender},
                               {"email", LABEL("E-mail")},
                               {"phone", LABEL("Phone"), ItemField::Phone},
                               {"phoneCell", LABEL("Mobile phone"), ItemField::Phone},
                               {"phoneBusiness", LABEL("Business phone"), ItemField::Phone},
                               {"addressLine1", LABEL("Address line 1")},
                               {"addressLine2", LABEL("Address line 2")},
                               {"city", LABEL("City")},
                               {"zipCode", LABEL("Postal code")},
                               {"state", LABEL("State")},
                               {"country", LABEL("Country")},
                               {"company", LABEL("Company")},
                               {"jobTitle", LABEL("Job title")},
                               {"website", LABEL("Web site"), ItemField::Link},
                               {"skype", LABEL("Skype")},
                               noteField};

const Fields passportFields = {{"number", LABEL("Passport number")},
                               {"fullName", LABEL("Full name")},
                               {"nationality", LABEL("Nationality")},
                               {"passportType", LABEL("Passport type")},
                               {"birthDate", LABEL("Birth date"), ItemField::Date},
                               {"birthPlace", LABEL("Birth place")},
                               {"country", LABEL("Country")},
                               {"authority", LABEL("Authority")},
                               {"issuedDate", LABEL("Issued"), ItemField::Date},
                               {"expireDate", LABEL("Expires"), ItemField::Date},
                               noteField};

const Fields ssnFields = {
    {"name", LABEL("Name")}, {"number", LABEL("Number"), ItemField::Secret}, noteField};

const Fields licenceFields = {{"number", LABEL("Licence number")},
                              {"fullName", LABEL("Full name")},
                              {"birthDate", LABEL("Birth date"), ItemField::Date},
                              {"gender", LABEL("Gender"), ItemField::Gender},
                              {"height", LABEL("Height"), ItemField::Number},
                              {"adress", LABEL("Address"), ItemField::Multiline},
                              {"state", LABEL("State")},
                              {"country", LABEL("Country")},
                              {"licenseClass", LABEL("Class")},
                              {"conditions", LABEL("Conditions")},
                              {"expireDate", LABEL("Expires"), ItemField::Date},
                              noteField};

const Fields noteFields = {{"text", LABEL("Text"), ItemField::Multiline}, noteField};

const Fields ftpFields = {{"server", LABEL("Server")},
                          {"username", LABEL("User name")},
                          {"password", LABEL("Password"), ItemField::Secret},
                          noteField};

const Fields softwareFields = {{"version", LABEL("Version")},
                               {"licenseKey", LABEL("Licence key"), ItemField::Secret},
                               {"url", LABEL("Web site"), ItemField::Link},
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

QString dateText(const PMFieldTypes::Date &date, bool withDay)
{
    if (date.isEmpty())
        return {};
    const QLocale locale = QLocale::system();
    const QDate day(date.year, date.month, withDay ? date.day : 1);
    if (!day.isValid())
        return date.toText();
    if (withDay)
        return locale.toString(day, QLocale::LongFormat);
    //: a month and its year
    return text(LABEL("%1 %2"))
        .arg(locale.standaloneMonthName(date.month), QString::number(date.year));
}

QString phoneText(const PMFieldTypes::Phone &phone)
{
    if (phone.isEmpty())
        return {};
    return phone.code.isEmpty() ? phone.number
                                : QStringLiteral("+%1 %2").arg(phone.code, phone.number);
}

QString genderText(int gender)
{
    static const char *const names[] = {"", LABEL("Male"), LABEL("Female")};
    return gender >= 1 && gender <= 2 ? text(names[gender]) : QString();
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
    case ItemField::Month:
        return dateText(value.value<PMFieldTypes::Date>(), field.form == ItemField::Date);
    case ItemField::Phone:
        return phoneText(value.value<PMFieldTypes::Phone>());
    case ItemField::Gender:
        return genderText(value.toInt());
    case ItemField::CardType:
        return cardTypeText(value.toInt());
    case ItemField::FillType:
        return fillTypeText(value.toInt(), settings);
    case ItemField::Number:
        return value.toInt() == 0 ? QString() : QString::number(value.toInt());
    case ItemField::Line:
    case ItemField::Multiline:
    case ItemField::Secret:
    case ItemField::Link:
        break;
    }
    return value.toString();
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
