#pragma once

#include "ArchiveResult.h"
#include "WorkerTask.h"

#include <functional>
#include <memory>

/// An export or an import on a thread of its own. result() is valid once finished() is emitted.
class ArchiveTask : public WorkerTask
{
    Q_OBJECT

public:
    using Run = std::function<ArchiveResult(WorkControl &control)>;

    explicit ArchiveTask(const Run &run, QObject *parent = nullptr)
        : ArchiveTask(run, std::make_shared<ArchiveResult>(), parent)
    {
    }

    const ArchiveResult &result() const { return *m_result; }

private:
    ArchiveTask(const Run &run, const std::shared_ptr<ArchiveResult> &result, QObject *parent)
        : WorkerTask([run, result](WorkControl &control) { *result = run(control); }, parent)
        , m_result(result)
    {
    }

    std::shared_ptr<ArchiveResult> m_result;
};
