#include "ItemKinds.h"

#include "ExpiryText.h"
#include "ItemExpiry.h"

#include <QCoreApplication>

namespace {

struct Kind
{
    const char *name;
    const char *plural;
    const char *icon;
    const char *create = "";
};

// In the order of PMListItem::Type.
const Kind kinds[] = {
    {QT_TRANSLATE_NOOP("ItemKinds", "Login"), QT_TRANSLATE_NOOP("ItemKinds", "Logins"), "key",
     QT_TRANSLATE_NOOP("ItemKinds", "New login")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Credit card"), QT_TRANSLATE_NOOP("ItemKinds", "Credit cards"),
     "credit-card", QT_TRANSLATE_NOOP("ItemKinds", "New credit card")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Bank account"),
     QT_TRANSLATE_NOOP("ItemKinds", "Bank accounts"), "building-bank",
     QT_TRANSLATE_NOOP("ItemKinds", "New bank account")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Identity"), QT_TRANSLATE_NOOP("ItemKinds", "Identities"), "id",
     QT_TRANSLATE_NOOP("ItemKinds", "New identity")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Passport"), QT_TRANSLATE_NOOP("ItemKinds", "Passports"),
     "book", QT_TRANSLATE_NOOP("ItemKinds", "New passport")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Social security"),
     QT_TRANSLATE_NOOP("ItemKinds", "Social security"), "shield-lock",
     QT_TRANSLATE_NOOP("ItemKinds", "New social security number")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Driver licence"),
     QT_TRANSLATE_NOOP("ItemKinds", "Driver licences"), "steering-wheel",
     QT_TRANSLATE_NOOP("ItemKinds", "New driver licence")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Secure note"), QT_TRANSLATE_NOOP("ItemKinds", "Secure notes"),
     "note", QT_TRANSLATE_NOOP("ItemKinds", "New secure note")},
    {QT_TRANSLATE_NOOP("ItemKinds", "FTP account"), QT_TRANSLATE_NOOP("ItemKinds", "FTP accounts"),
     "server-2", QT_TRANSLATE_NOOP("ItemKinds", "New FTP account")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Software licence"),
     QT_TRANSLATE_NOOP("ItemKinds", "Software licences"), "license",
     QT_TRANSLATE_NOOP("ItemKinds", "New software licence")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Attachment"), QT_TRANSLATE_NOOP("ItemKinds", "Attachments"),
     "paperclip", QT_TRANSLATE_NOOP("ItemKinds", "New attachment")},
    {QT_TRANSLATE_NOOP("ItemKinds", "Item"), QT_TRANSLATE_NOOP("ItemKinds", "Items"), "layout-grid",
     QT_TRANSLATE_NOOP("ItemKinds", "New item")},
};

struct Secret
{
    const char *property;
    const char *copyText;
};

// In the order of PMListItem::Type.
const Secret secrets[] = {
    {"password", QT_TRANSLATE_NOOP("ItemKinds", "Copy password")},
    {"number", QT_TRANSLATE_NOOP("ItemKinds", "Copy card number")},
    {"number", QT_TRANSLATE_NOOP("ItemKinds", "Copy account number")},
    {"email", QT_TRANSLATE_NOOP("ItemKinds", "Copy email address")},
    {"number", QT_TRANSLATE_NOOP("ItemKinds", "Copy passport number")},
    {"number", QT_TRANSLATE_NOOP("ItemKinds", "Copy number")},
    {"number", QT_TRANSLATE_NOOP("ItemKinds", "Copy licence number")},
    {"text", QT_TRANSLATE_NOOP("ItemKinds", "Copy text")},
    {"password", QT_TRANSLATE_NOOP("ItemKinds", "Copy password")},
    {"licenseKey", QT_TRANSLATE_NOOP("ItemKinds", "Copy licence key")},
    {"", ""},
    {"", ""},
};

// In the order of ItemCategory::Kind; the kind of items has a table of its own.
const Kind categories[] = {
    {"", QT_TRANSLATE_NOOP("ItemKinds", "All items"), "layout-grid"},
    {"", QT_TRANSLATE_NOOP("ItemKinds", "Favourites"), "star"},
    {"", QT_TRANSLATE_NOOP("ItemKinds", "Most used"), "flame"},
    {"", QT_TRANSLATE_NOOP("ItemKinds", "Expiring"), "calendar-due"},
    {"", "", ""},
    {"", QT_TRANSLATE_NOOP("ItemKinds", "Trash"), "trash"},
};

const Kind &kindOf(PMListItem::Type type)
{
    return kinds[qBound<int>(PMListItem::Login, type, PMListItem::UndefinedItem)];
}

const Kind &kindOf(const ItemCategory &category)
{
    return category.kind == ItemCategory::OfType ? kindOf(category.type)
                                                 : categories[category.kind];
}

} // namespace

QString itemKindName(PMListItem::Type type)
{
    return QCoreApplication::translate("ItemKinds", kindOf(type).name);
}

QString itemKindIcon(PMListItem::Type type)
{
    return QLatin1String(kindOf(type).icon);
}

QString newItemText(PMListItem::Type type)
{
    return QCoreApplication::translate("ItemKinds", kindOf(type).create);
}

QString defaultActionText(PMListItem::Type type)
{
    switch (type) {
    case PMListItem::Login:
        return QCoreApplication::translate("ItemKinds", "Log in");
    case PMListItem::CreditCard:
    case PMListItem::Identity:
        return QCoreApplication::translate("ItemKinds", "Fill in");
    default:
        return {};
    }
}

const char *defaultActionIcon(PMListItem::Type type)
{
    return type == PMListItem::Login ? "login-2" : "world";
}

QString categoryName(const ItemCategory &category)
{
    return QCoreApplication::translate("ItemKinds", kindOf(category).plural);
}

QString categoryIcon(const ItemCategory &category)
{
    return QLatin1String(kindOf(category).icon);
}

QString itemCountText(int count)
{
    // The source language has no plural forms of its own without a translation file.
    if (count == 1)
        return QCoreApplication::translate("ItemKinds", "1 item");
    return QCoreApplication::translate("ItemKinds", "%n items", nullptr, count);
}

MainSecret mainSecret(PMListItem::Type type)
{
    const Secret &secret = secrets[qBound<int>(PMListItem::Login, type, PMListItem::UndefinedItem)];
    return {secret.property, *secret.copyText
                                 ? QCoreApplication::translate("ItemKinds", secret.copyText)
                                 : QString()};
}

const char *userNameField(PMListItem::Type type)
{
    if (type == PMListItem::Login)
        return "login";
    return type == PMListItem::FtpAccount ? "username" : "";
}

QString itemDescription(const PMListItem &item, const QDate &today)
{
    QStringList parts{item.title(), itemKindName(item.type()), item.secondaryText()};
    if (item.favorite())
        parts << QCoreApplication::translate("ItemPage", "Favourite");
    if (const std::optional<QDate> last = itemExpiry(item))
        parts << expiryText(*last, today);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}
