#pragma once

#include "ItemFile.h"
#include "SyncState.h"

#include <QStringList>
#include <QVector>

/// What a meeting of a safe with its mirror brought.
struct SyncResult
{
    /// An item whose file in the safe is new.
    struct Item
    {
        ItemFileName name;
        PMItemDocument document;
        bool renamed = false; ///< it is the safe's own version, under another file name
    };

    SyncState state = SyncState::Done;
    QVector<Item> taken;
    QStringList removed;    ///< ids of items that are gone
    QStringList waiting;    ///< ids of items that stay as they are until a file is whole
    QByteArray otherPassId; ///< of the mirror, where it needs a password that the safe has not
    bool descriptionTaken = false;
    int received = 0; ///< items that came from the mirror
    int sent = 0;     ///< items written to the mirror
    int copies = 0;   ///< versions that lost and were put into the trash
};
