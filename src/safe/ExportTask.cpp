#include "ExportTask.h"

#include "SafeExport.h"

#include <QtConcurrent>

#include <chrono>
#include <future>

std::unique_ptr<ArchiveTask> makeExportTask(SafeState &state, const QString &archivePath)
{
    const auto saved = std::make_shared<std::promise<void>>();
    QtConcurrent::run(&state.writer, [saved] { saved->set_value(); });
    const std::shared_future<void> allSaved = saved->get_future().share();
    const SafeEnvironment environment = state.environment;
    const SafeFolder safeFolder = state.folder;
    return std::make_unique<ArchiveTask>([=](WorkControl &control) {
        while (allSaved.wait_for(std::chrono::milliseconds(100)) != std::future_status::ready) {
            if (control.isCancelled())
                return ArchiveResult{ArchiveResult::Outcome::Cancelled};
        }
        return exportSafe(environment, safeFolder, archivePath, control);
    });
}
