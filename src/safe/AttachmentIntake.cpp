#include "AttachmentIntake.h"

#include <QFutureWatcher>
#include <QtConcurrent>

#include <utility>

AttachmentIntake::AttachmentIntake(QThreadPool &worker, TakeIn takeIn, QObject *parent)
    : QObject(parent)
    , m_worker(worker)
    , m_takeIn(std::move(takeIn))
{
}

void AttachmentIntake::add(std::unique_ptr<PMListItem> item, const QString &parentId,
                           const AttachmentJob &job)
{
    using Watcher = QFutureWatcher<AttachmentJob::Result>;
    auto *watcher = new Watcher(this);
    connect(watcher, &Watcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        handOn();
    });
    const auto future = QtConcurrent::run(&m_worker, [job] { return job.run(); });
    m_arrivals.push_back({std::move(item), parentId, future});
    watcher->setFuture(future);
}

void AttachmentIntake::handOn()
{
    while (!m_arrivals.empty() && m_arrivals.front().result.isFinished()) {
        Arrival arrival = std::move(m_arrivals.front());
        m_arrivals.pop_front();
        m_takeIn(std::move(arrival));
    }
}
