#pragma once

#include <QString>

/// Rules for file names that somebody else may have chosen.

/// The name as it can be shown and used for a file on any system: no folders, no control or
/// invisible characters, none that turn the direction of writing, not too long. Never empty.
QString cleanFileName(const QString &name);

/// Whether opening a file of that name may run what is in it.
bool isRiskyFileName(const QString &name);
