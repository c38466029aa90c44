#pragma once

#include "SafeFolder.h"
#include "WorkControl.h"

#include <QVector>

/// Notes in the record of a safe's synchronisation which bytes its items have, before they are
/// written anew under another password. What is left of them in the mirror, after a round that was
/// cut off or in a provider's conflict copy, is recognised by that: it does not open any more.
/// Does nothing for a safe without a record; one that cannot be written is logged, as the mirror
/// only takes longer to come to rest then.
void noteFormerBytes(FileLayer &files, const SafeFolder &safe, const QVector<ItemFileName> &names,
                     const WorkControl &control);
