#pragma once

#include "SafeDescription.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"

/// Whether a new safe with this password can be made in a folder; logged when not.
bool canHoldNewSafe(const SafeFolder &folder, const QString &password);

/// Writes the folders, the pass id and the description of a new safe into an existing folder.
/// False, with everything that it made removed, when one cannot be written.
bool writeNewSafe(const SafeEnvironment &environment, const SafeFolder &folder,
                  const SafeDescription &description, const QByteArray &password);
