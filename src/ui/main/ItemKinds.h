#pragma once

#include "ItemCategory.h"

/// The words and icons of the kinds of items and of the categories that show them.

/// "Login", "Credit card", …
QString itemKindName(PMListItem::Type type);
QString itemKindIcon(PMListItem::Type type);

/// "New login", "New credit card", …
QString newItemText(PMListItem::Type type);

/// A row of the list in words: title, kind, second line, and the marks that are painted on it.
QString itemDescription(const PMListItem &item, const QDate &today);

/// "All items", "Logins", …
QString categoryName(const ItemCategory &category);
QString categoryIcon(const ItemCategory &category);

/// "1 item", "12 items".
QString itemCountText(int count);

/// The field of a kind that is copied first; empty names where there is none.
struct MainSecret
{
    const char *property;
    QString copyText; ///< "Copy password", …
};
MainSecret mainSecret(PMListItem::Type type);

/// What using an item does, "Log in" or "Fill in"; empty for kinds that are only looked at.
QString defaultActionText(PMListItem::Type type);
const char *defaultActionIcon(PMListItem::Type type);

/// The property with the user name of a kind; empty for kinds without one.
const char *userNameField(PMListItem::Type type);
