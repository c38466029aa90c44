#pragma once

#include "SystemHotkeys.h"

#include <QKeySequence>
#include <QString>

#include <optional>

/// The combination that a text such as "Ctrl+Alt+L" names. None when it names no single one, or one
/// that would be missed when typing: keys that write need Ctrl, Alt or Meta beside them.
std::optional<SystemHotkeys::Combination> hotkeyCombination(const QString &text);

/// The same for the program's own windows; empty where there is none.
QKeySequence hotkeySequence(const QString &text);
