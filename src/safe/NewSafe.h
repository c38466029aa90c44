#pragma once

#include "SafeDescription.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"

/// Writes the folders, the pass id and the description of a new safe into an existing folder.
/// False, with everything that it made removed, when one cannot be written.
bool writeNewSafe(const SafeEnvironment &environment, const SafeFolder &folder,
                  const SafeDescription &description, const QByteArray &password);
