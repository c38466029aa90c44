#pragma once

#include "PMItemDocument.h"

/// Makes of an item's document that of a copy of what it holds, which lies in the trash for itself.
void toTrashCopy(PMItemDocument &document, const QString &id, const QString &title);
