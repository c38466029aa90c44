#pragma once

#include "FieldPlace.h"
#include "PMFieldTypes.h"

/// The number, or its part, as the field asks for it: with its dialling code, or without where the
/// code has a field of its own, or where pattern, length or placeholder leave no room for it; then
/// with the zero that is dialled before it within its country.
QString phoneText(const PMFieldTypes::Phone &phone, const FieldPlace &place);

/// The dialling code for a field of its own: the option that names it or its country,
/// else "+49".
QString dialCodeText(const PMFieldTypes::Phone &phone, const QString &country,
                     const FieldPlace &place);
