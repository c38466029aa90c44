#pragma once

#include "FieldReading.h"

/// What the type of a line of text says that it takes, Unknown for plain text.
FieldKind kindOfType(const QString &inputType);

/// Lets the type of a line of text decide where its texts do not, or where it takes nothing else.
void readType(FieldReading &reading, const QString &inputType);

/// Whether it is written in words, which no list holds and no field for numbers takes.
bool isWritten(FieldKind kind);

/// A text of several lines takes a whole address or nothing.
FieldKind kindInText(FieldKind kind);
