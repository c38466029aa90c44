#pragma once

#include "ArchiveTask.h"
#include "SafeState.h"

/// A task, to be started, that writes a safe with everything that its writer has in hand now into
/// one archive.
std::unique_ptr<ArchiveTask> makeExportTask(SafeState &state, const QString &archivePath);
