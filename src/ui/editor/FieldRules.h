#pragma once

#include "main/ItemFields.h"

/// What the editor asks of the values of fields.
namespace FieldRules {

/// What is wrong with a value, in the words that stand below its row; empty when nothing is. An
/// empty value is wrong where one is required and nowhere else.
/// @param cardNumber the number of the card whose security code this may be
QString message(const ItemField &field, const QVariant &value, const QString &cardNumber = {});

/// Whether this is the address of a web site; "https://" may be left out. The empty text is one.
bool isUrl(const QString &text);

/// The address with its scheme. A text that is no address stays as it is.
QString completeUrl(const QString &text);

} // namespace FieldRules
