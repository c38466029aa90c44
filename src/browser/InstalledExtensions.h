#pragma once

#include <QString>

/// Reads from the profiles of browsers whether the extension is installed there. Files that are
/// missing or cannot be read count as not installed.
namespace InstalledExtensions {

/// The version in the folder of an extension's installed versions; empty when it is none of them.
QString versionInFolder(const QString &folder);

/// The version in the user data of a browser of Chromium's kind, in any profile, from the store or
/// unpacked; empty when it is in none.
QString versionInChromium(const QString &userData);

/// The version in a profile of Firefox; empty when it is not installed there.
QString versionInFirefoxProfile(const QString &profile);

/// The same for all profiles that a folder with a "profiles.ini" names.
QString versionInFirefox(const QString &folder);

} // namespace InstalledExtensions
