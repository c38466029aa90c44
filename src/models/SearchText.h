#pragma once

#include <QString>

class PMListItem;

/// A text as a search compares it: without accents and without case.
QString foldForSearch(const QString &text);

/// What a search looks at in an item, folded: its public texts, the user name and the address.
/// Passwords, numbers and other secrets are not in it.
QString itemSearchText(const PMListItem &item);

/// The host of an item's address or server without a leading "www."; empty when it has none.
QString itemDomain(const PMListItem &item);
