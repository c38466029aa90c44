#pragma once

#include "FieldReading.h"
#include "FormField.h"

#include <QSet>
#include <QVector>

/// The names of the radio buttons of a form that ask for a person's gender.
QSet<QString> gendersOf(const QVector<FormField> &fields, const QVector<FieldReading> &readings);
