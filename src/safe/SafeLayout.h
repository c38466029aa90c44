#pragma once

/// Names of the files and folders of a safe; case-sensitive.
namespace SafeLayout {

constexpr char meta[] = "safe.meta";
constexpr char oldMeta[] = "safe.content"; ///< the description under its older name
constexpr char restore[] = "safe.restore"; ///< second copy of the description
constexpr char passId[] = "safe.passid";
constexpr char passIdBackup[] = "safe.passid.bak";
constexpr char deletedList[] = "safe.deleted";
constexpr char syncRecord[] = "safe.sync";
constexpr char mirrorDeletions[] = "safe.deletions"; ///< in a mirror, encrypted
constexpr char lockFile[] = ".sourcelock";
constexpr char openLock[] = ".openlock"; ///< of the program that has the safe open
constexpr char content[] = "content";
constexpr char attachment[] = "attachment";
constexpr char favicon[] = "favicon";

} // namespace SafeLayout
