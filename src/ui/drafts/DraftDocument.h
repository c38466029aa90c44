#pragma once

#include "DraftStore.h"
#include "editor/ItemDraft.h"

/// Between what is edited and what is kept of it.

/// What an edit would make of an item, every field as it stands. Has no key and no base yet.
KeptDraft keptDraft(const PMListItem &item, const ItemDraft &draft);

/// The item that was kept, as far as its fields could take what was typed.
std::unique_ptr<PMListItem> itemOfDraft(const KeptDraft &kept);

/// Puts what was kept into the draft of an editor.
void restoreDraft(ItemDraft &draft, const KeptDraft &kept);

/// Whether the item has all the values that were kept: there is nothing left to continue.
bool holdsDraft(const PMListItem &item, const KeptDraft &kept);
