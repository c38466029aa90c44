#include "SafeSaving.h"

#include "GPMSafe.h"

#include <QFutureWatcher>
#include <QtConcurrent>

SafeSaving::SafeSaving(GPMSafe &safe, SafeState &state)
    : m_safe(safe)
    , m_state(state)
{
}

SaveJob SafeSaving::makeJob()
{
    SaveJob job{m_state.environment, m_state.folder.root(),         m_state.password,
                m_state.mutex,       m_state.items.takeForSaving(), {},
                m_state.steps};
    if (!job.items.isEmpty())
        m_state.description.modified = m_state.environment.clock().toMSecsSinceEpoch();
    job.description = m_state.description.toJson();
    return job;
}

SaveJob::Result SafeSaving::saveNow()
{
    m_last = makeJob().run();
    m_state.items.markSaved(m_last.saved);
    if (!m_last.good())
        m_state.items.forgetQueued();
    return m_last;
}

void SafeSaving::saveLater()
{
    auto *watcher = new QFutureWatcher<SaveJob::Result>(&m_safe);
    QObject::connect(watcher, &QFutureWatcher<SaveJob::Result>::finished, &m_safe, [this, watcher] {
        watcher->deleteLater();
        take();
    });
    const auto future = QtConcurrent::run(&m_state.writer, [job = makeJob()] { return job.run(); });
    m_underWay.push_back(future);
    watcher->setFuture(future);
}

void SafeSaving::take()
{
    while (!m_underWay.empty() && m_underWay.front().isFinished()) {
        m_last = m_underWay.front().result();
        m_underWay.pop_front();
        m_state.items.markSaved(m_last.saved);
        if (!m_last.good())
            m_state.items.forgetQueued();
        // A lock tells of what it could not save when it is done.
        if (!m_safe.isUnlocked())
            continue;
        // Later, as who waits for the writer is in the middle of something.
        const auto tell = [this, told = m_last, session = m_state.session] {
            if (m_safe.isUnlocked() && session == m_state.session)
                Q_EMIT m_safe.saved(told.good(), told.failedPaths);
        };
        QMetaObject::invokeMethod(&m_safe, tell, Qt::QueuedConnection);
    }
}

void SafeSaving::keepUnsaved(DraftStore &drafts) const
{
    const QVector<SaveJob::Item> unsaved = m_state.items.changed();
    for (const SaveJob::Item &item : unsaved) {
        const bool trashed = item.document.publicFields.value(QStringLiteral("deleted")).toBool();
        if (!trashed)
            drafts.keepUnsaved(
                {DraftStore::newKey(), item.document, item.written.isNull(), item.written});
    }
}
