#pragma once

#include "ItemFile.h"

#include <optional>

/// What a file in the content or attachment folder of a mirror is, by its name.
struct SyncFileName
{
    ItemFileName item;
    /// A cloud provider has set it beside the item's own file, as two computers wrote that.
    bool conflictCopy = false;

    /// Nothing for a file that is none of the safe's.
    static std::optional<SyncFileName> parse(const QString &fileName);
};

/// Whether a name is that of a provider's conflict copy of the file of the other name.
bool isConflictCopyOf(const QString &fileName, const QString &original);
