#pragma once

#include "FieldClassifiers.h"
#include "FormReader.h"

/// What each field of a form receives in an action, Unknown for nothing. What the page itself says
/// by "autocomplete" decides, then the names of the field, then all that a person reads around it;
/// a name gives way where the reader is sure of something else. Over all of them stands a veto:
/// what is not to be filled, what nobody sees, what cannot be typed into, and, for cards and
/// identities, what the user has typed already. A field of which only its names and the text near
/// it are known is decided by those alone.
QVector<FieldKind> analyseForm(const QVector<FormField> &fields, const FormSurroundings &around,
                               FillAction action);
