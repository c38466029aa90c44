#pragma once

#include "SafeDescription.h"

/// One description out of those of both sides: a name or hint that only one side has changed since
/// both met is taken, of two changes the later one.
/// @param met the description that both had; empty when that is not known
SafeDescription mergeDescriptions(const SafeDescription &local, const SafeDescription &mirror,
                                  const std::optional<SafeDescription> &met);
