#pragma once

#include "FieldKind.h"
#include "FormField.h"

/// What the choices of a list are: days, months or years (vague), countries' dialling codes, kinds
/// of cards, or ways to address a man and a woman. Unknown when they say nothing.
FieldKind kindOfOptions(const QVector<FormField::Option> &options);

enum class Sex { Unknown, Male, Female };

/// What one choice says: "Herr", "Mrs", "male", "F".
Sex sexOfChoice(const QString &text);

/// Whether one chooses between a man and a woman there, as in "F, M, X" and not as in "S, M, L".
bool areSexes(const QStringList &choices);

/// The month (1 to 12) that a text names in one of the program's languages, 0 for none.
int monthOfName(const QString &text);
