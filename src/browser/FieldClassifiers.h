#pragma once

#include "FieldKind.h"

#include <QVector>

class FormField;

/// What a page is filled for.
enum class FillAction { PlacePassword, Login, CreditCard, Identity };

/// The kind that the names of a field alone speak for: of the first classifier, in the fixed order
/// of the action, that takes the field. Unknown when none does.
FieldKind kindOfNames(const FormField &field, FillAction action);
