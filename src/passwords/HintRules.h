#pragma once

#include <QString>

/// Whether a hint gives the password away to everyone who sees the lock page: it holds the
/// password, whatever the case and with whatever between its letters.
bool hintTellsPassword(const QString &hint, const QString &password);
