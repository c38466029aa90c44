#pragma once

#include "FieldReading.h"
#include "FormReader.h"

/// Decides in a form which passwords are being chosen and which are asked for, and which field is
/// the user name of those that are asked for. A form of neither kind is left as it is.
/// @param kinds the kinds that the fields have by themselves; changed in place
void assignLoginRoles(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                      const FormSurroundings &around, QVector<FieldKind> &kinds);

/// Whether the form is there for a code that was sent to the user.
bool asksForCode(const FormSurroundings &around);

/// Whether the form is for an e-mail list and nothing else.
bool isNewsletter(const QVector<FormField> &fields, const QVector<FieldKind> &kinds,
                  const FormSurroundings &around);
