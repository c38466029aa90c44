#include "SyncMeeting.h"

#include <QtConcurrent>

#include <utility>

SyncMeeting::SyncMeeting(QThreadPool &writer, SyncRound round,
                         std::function<void(SyncResult)> taken)
    : m_control(std::make_shared<WorkControl>([this](qint64 done, qint64 total) {
        Q_EMIT progress(static_cast<int>(done), static_cast<int>(total));
    }))
    , m_taken(std::move(taken))
{
    connect(&m_watcher, &QFutureWatcher<SyncResult>::finished, this, &SyncMeeting::take);
    const auto control = m_control;
    m_watcher.setFuture(QtConcurrent::run(
        &writer, [round = std::move(round), control]() mutable { return round.run(*control); }));
}

SyncMeeting::~SyncMeeting()
{
    m_watcher.disconnect();
    m_control->cancel();
    // It still tells of its progress.
    m_watcher.waitForFinished();
}

void SyncMeeting::take()
{
    if (m_isTaken || !m_watcher.future().isFinished())
        return;
    m_isTaken = true;
    m_taken(m_watcher.future().result());
}
