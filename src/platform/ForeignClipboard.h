#pragma once

#include <optional>
#include <string>

/// The text that another program holds on the clipboard, in UTF-8. Nothing when there is none, and
/// where it can be seen in time, when the other program does not answer soon.
std::optional<std::string> foreignClipboardText(int timeoutMs);
