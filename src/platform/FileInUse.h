#pragma once

#include <string>

/// Waits a moment, at most half a second, while another program has a file open, named in UTF-8,
/// which keeps it from being replaced or removed. Returns at once where that is no hindrance.
/// False when the file is still open then.
bool waitWhileFileInUse(const std::string &path);
