#pragma once

#include <QString>

class PMListItem;

/// The second line of an item in lists. It tells items apart by what names them: a user name, a
/// bank, an e-mail address, the end of a number. Passwords, codes, keys, texts and whole numbers
/// are never in it.
QString itemSummary(const PMListItem &item);
