#pragma once

/// How a meeting of a safe with its mirror ended.
enum class SyncState {
    Done,
    Waiting,           ///< files in the mirror are not whole yet; the rest is done
    Busy,              ///< the safe's password is being changed, or it is being archived
    NewPasswordNeeded, ///< the password was changed on another computer
    MirrorMissing,     ///< the folder is not there, as on a drive that is not connected
    OtherSafe,         ///< the folder mirrors another safe
    MirrorNotWritten,  ///< the rest is done; the disk may be full or the folder read-only
    SafeNotWritten,
    Cancelled,
};
