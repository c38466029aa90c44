#pragma once

#include "main/ItemFields.h"

#include <QLocale>
#include <QVariant>

/// The text that stands in an editor's line for a value, and the value of a text.
namespace FieldText {

QString fromValue(const ItemField &field, const QVariant &value, const QLocale &locale);

/// A text that cannot be read as the field's value comes back as it is: see isUnderstood().
QVariant toValue(const ItemField &field, const QString &text, const QLocale &locale);

/// False for what someone typed into a date or a number that is none: the item cannot keep it.
bool isUnderstood(const ItemField &field, const QVariant &value);

/// Whether the field holds nothing.
bool isEmpty(const ItemField &field, const QVariant &value);

} // namespace FieldText
