#pragma once

#include <string>

/// Waits until the content of a file, named in UTF-8, is on the disk itself. False when the file
/// cannot be opened or the disk reports an error.
bool forceFileToDisk(const std::string &path);
