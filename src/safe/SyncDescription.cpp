#include "SyncDescription.h"

#include <algorithm>

SafeDescription mergeDescriptions(const SafeDescription &local, const SafeDescription &mirror,
                                  const std::optional<SafeDescription> &met)
{
    const bool mirrorIsLater = mirror.modified > local.modified;
    SafeDescription merged = mirrorIsLater ? mirror : local;
    const auto choose = [&](QString SafeDescription::*field) {
        if (!met)
            return;
        if (local.*field == (*met).*field)
            merged.*field = mirror.*field;
        else if (mirror.*field == (*met).*field)
            merged.*field = local.*field;
    };
    choose(&SafeDescription::name);
    choose(&SafeDescription::hint);
    merged.passId = local.passId;
    merged.modified = std::max(local.modified, mirror.modified);
    return merged;
}
