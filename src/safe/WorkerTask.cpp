#include "WorkerTask.h"

#include <QtConcurrent>

#include <utility>

WorkerTask::WorkerTask(Work work, QObject *parent)
    : QObject(parent)
    , m_work(std::move(work))
    , m_control([this](qint64 done, qint64 total) { Q_EMIT progress(done, total); })
{
    m_thread.setMaxThreadCount(1);
    connect(&m_watcher, &QFutureWatcher<void>::finished, this, &WorkerTask::finished);
}

WorkerTask::~WorkerTask()
{
    m_watcher.disconnect(this);
    m_control.cancel();
    m_thread.waitForDone();
}

void WorkerTask::start()
{
    m_watcher.setFuture(QtConcurrent::run(&m_thread, [this] { m_work(m_control); }));
}
