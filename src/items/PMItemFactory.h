#pragma once

#include "PMListItem.h"

#include <memory>

/// A new, empty item of the kind; none for UndefinedItem and numbers that name no kind. The item is
/// unchanged until a field is set.
std::unique_ptr<PMListItem> makeItem(PMListItem::Type type);
