#pragma once

#include "FieldReading.h"

/// Leaves the parts of a form, told apart by their headings, that ask of somebody or something
/// else: the pet beside its owner, the tenant who follows, the place where it happened.
void leaveOtherSections(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                        QVector<FieldKind> &kinds);
