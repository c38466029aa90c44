#pragma once

#include "ItemStore.h"
#include "SafeDescription.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "SecretBytes.h"

#include <QMutex>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <utility>

/// What a safe holds and its parts work on. While a lock waits for what is being written it still
/// holds all of that, and shows none of it.
struct SafeState
{
    explicit SafeState(SafeEnvironment world)
        : environment(std::move(world))
    {
        writer.setMaxThreadCount(1);
    }

    bool isUnlocked() const { return password != nullptr; }

    SafeEnvironment environment;
    SafeFolder folder;
    SafeDescription description;
    std::shared_ptr<const SecretBytes> password; ///< null while the safe is locked
    int session = 0;                             ///< counts the locks
    ItemStore items;
    bool changeInterrupted = false; ///< of the password, as the safe was unlocked
    QStringList unreadableFiles;    ///< names of files in the content folder
    std::shared_ptr<QMutex> mutex = std::make_shared<QMutex>(); ///< held for each write
    /// Grows while the writer saves: how one who waits for it tells that it gets on.
    std::shared_ptr<std::atomic<int>> steps = std::make_shared<std::atomic<int>>(0);
    QThreadPool writer; ///< one thread, so that writes keep their order
};
