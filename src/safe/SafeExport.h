#pragma once

#include "ArchiveResult.h"
#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "WorkControl.h"

/// Writes a whole safe, locked or not, into one archive. On any thread; a failure is logged and
/// leaves what was at the archive's path.
ArchiveResult exportSafe(const SafeEnvironment &environment, const SafeFolder &folder,
                         const QString &archivePath, WorkControl &control);
