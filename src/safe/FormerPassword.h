#pragma once

#include "SafeEnvironment.h"
#include "SafeFolder.h"

/// What a password that does not open a safe is to it.
enum class FormerPassword {
    No,          ///< simply a wrong one
    Former,      ///< the one of before the last change, which was done
    Interrupted, ///< the one of before a change that was interrupted; it opens every item
};

/// Asks the copy of the pass id that a change of password makes. That copy stays behind a change
/// that was done, too: one was interrupted when the old files are still there, and every item has
/// one that opens. On a worker: that may take as long as unlocking.
FormerPassword formerPassword(FileLayer &files, const SafeFolder &folder,
                              const QByteArray &password);
