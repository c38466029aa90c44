#pragma once

#include "FieldKind.h"
#include "FieldReading.h"

/// The one part of a date, of a birth or of a card, that a field's texts name; unknown when they
/// name none or several.
FieldKind datePartOf(const FieldReading &reading, bool isBirth);

/// Whether the text that tells of a date tells of this part of it.
bool saysPart(const FieldReading &reading, FieldKind part);
