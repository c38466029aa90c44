#pragma once

#include "PMItemDocument.h"

/// Key of an item that names the one of which it is a former version; such a copy in the trash goes
/// when there are many.
extern const QLatin1String formerOfKey;

/// Makes of an item's document that of a copy of what it holds, which lies in the trash for itself.
void toTrashCopy(PMItemDocument &document, const QString &id, const QString &title);

/// Takes an item out of the trash: from now on it is one like every other.
void takeOutOfTrash(PMListItem &item);
