#pragma once

#include "FieldReading.h"

#include <QVector>

/// Whether a person reads nothing at the field, so that it belongs to the one before it.
bool isSilent(const FormField &field, const FieldReading &reading);

/// Whether it takes what the field before it asks for: it is silent, and nothing else is known of
/// it.
bool isOpenField(int i, const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                 const QVector<FieldKind> &kinds);

/// Finds fields whose words all stand at the one before them: "City, State, Zip", a name in two.
void continueLists(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                   QVector<FieldKind> &kinds);

/// A code that is typed one figure a field is never filled, nor is a part of a password.
void leaveSingleFigures(const QVector<FormField> &fields, QVector<FieldKind> &kinds);

/// Finds telephone numbers and dates of birth that are asked for in several short lines side by
/// side, of which the first has the words for all: "(212) 555-0123" in three.
/// @param kinds the kinds that the fields have by themselves; changed in place
void assignSplitFields(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                       QVector<FieldKind> &kinds);
