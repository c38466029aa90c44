#pragma once

#include <QString>

#include <functional>

/// Where a safe's folder is, as far as it can be told.
enum class SafePlace {
    Here,       ///< the folder is there, with a safe in it
    NoSafe,     ///< the folder is there, but no description of a safe can be read in it
    FolderGone, ///< the drive is there, the folder is not
    DriveGone,  ///< it was on a drive, or in a shared folder, that is not connected
};

/// Why there is no folder: a drive that can be taken out is known by where such drives are found.
/// @param isMounted whether something else than the system's own drive is found at a folder
SafePlace whyGone(const QString &folder,
                  const std::function<bool(const QString &)> &isMounted = {});
