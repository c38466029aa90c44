#pragma once

#include "FieldReading.h"
#include "FormSurroundings.h"

#include <QVector>

/// The kinds of the fields of one form, in their order. A text alone often says little, so fields
/// are read with their neighbours: "Number" beside a security code is the card's. Vague kinds are
/// never returned. Holds nothing back: whether a field may be filled is decided elsewhere.
QVector<FieldKind> readForm(const QVector<FormField> &fields, const FormSurroundings &around);
