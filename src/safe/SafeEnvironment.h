#pragma once

#include "Clock.h"
#include "FileLayer.h"
#include "RandomSource.h"

#include <QString>

#include <memory>

/// What a safe takes from the world around it. The defaults are the real ones.
struct SafeEnvironment
{
    RandomSource random = systemRandom;
    Clock clock = systemTime;
    std::shared_ptr<FileLayer> files = std::make_shared<FileLayer>();
    int lockWaitMs = 10000; ///< how long to wait for the lock file of a safe
    QString draftsFolder;   ///< where edits that were not saved are kept; empty: nowhere
    int lookWaitMs = 40;    ///< how long the event loop waits for a folder before it goes on
};
