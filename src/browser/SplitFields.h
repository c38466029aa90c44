#pragma once

#include "FieldReading.h"

#include <QVector>

/// Whether a person reads nothing at the field, so that it belongs to the one before it.
bool isSilent(const FormField &field, const FieldReading &reading);

/// Finds telephone numbers and dates of birth that are asked for in several short lines side by
/// side, of which the first has the words for all: "(212) 555-0123" in three.
/// @param kinds the kinds that the fields have by themselves; changed in place
void assignSplitFields(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                       QVector<FieldKind> &kinds);
