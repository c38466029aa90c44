#pragma once

#include "WorkControl.h"

#include <QFutureWatcher>
#include <QObject>
#include <QThreadPool>

#include <functional>

/// One piece of work on a thread of its own, so that it takes none from those who unlock a safe.
/// Lives on the thread that made it.
class WorkerTask : public QObject
{
    Q_OBJECT

public:
    using Work = std::function<void(WorkControl &control)>;

    explicit WorkerTask(Work work, QObject *parent = nullptr);
    /// Cancels the work and waits until it has stopped; no signal is emitted then.
    ~WorkerTask() override;

    /// Once; finished() follows, unless the object goes before.
    void start();
    void cancel() { m_control.cancel(); }

Q_SIGNALS:
    void progress(qint64 done, qint64 total);
    void finished();

private:
    Work m_work;
    WorkControl m_control;
    QFutureWatcher<void> m_watcher;
    QThreadPool m_thread;
};
