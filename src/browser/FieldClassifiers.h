#pragma once

#include "FieldKind.h"

#include <QVector>

class FormField;

/// What a page is filled for.
enum class FillAction { PlacePassword, Login, CreditCard, Identity };

/// The kind that the names of a field alone speak for: of the first classifier, in the fixed order
/// of the action, that takes the field. Unknown when none does.
FieldKind kindOfNames(const FormField &field, FillAction action);

/// The same of a field that says more of itself, all of which was in vain: without its class, which
/// speaks of looks, and without the words that any field's name may hold, such as "number".
FieldKind kindOfPlainNames(const FormField &field, FillAction action);
