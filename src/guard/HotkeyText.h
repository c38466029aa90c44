#pragma once

#include "SystemHotkeys.h"

#include <QString>

#include <optional>

/// The combination that a text such as "Ctrl+Alt+L" names. None when it names no single one, or one
/// that would be missed when typing: keys that write need Ctrl, Alt or Meta beside them.
std::optional<SystemHotkeys::Combination> hotkeyCombination(const QString &text);
