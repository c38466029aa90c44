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
    SaveJob job{m_state.environment, m_state.folder.root(),   m_state.password,
                m_state.mutex,       m_state.items.changed(), {}};
    if (!job.items.isEmpty())
        m_state.description.modified = m_state.environment.clock().toMSecsSinceEpoch();
    job.description = m_state.description.toJson();
    return job;
}

SaveJob::Result SafeSaving::saveNow()
{
    SaveJob::Result result = makeJob().run();
    m_state.items.markSaved(result.saved);
    return result;
}

void SafeSaving::saveLater()
{
    auto *watcher = new QFutureWatcher<SaveJob::Result>(&m_safe);
    const int session = m_state.session;
    QObject::connect(watcher, &QFutureWatcher<SaveJob::Result>::finished, &m_safe,
                     [this, watcher, session] {
                         watcher->deleteLater();
                         const SaveJob::Result result = watcher->result();
                         // After a lock there may be other objects of the same items, with
                         // revisions of their own.
                         if (session == m_state.session)
                             m_state.items.markSaved(result.saved);
                         Q_EMIT m_safe.saved(result.good(), result.failedPaths);
                     });
    const SaveJob job = makeJob();
    watcher->setFuture(QtConcurrent::run(&m_state.writer, [job] { return job.run(); }));
}

void SafeSaving::keepUnsaved(DraftStore &drafts)
{
    const QVector<SaveJob::Item> unsaved = m_state.items.changed();
    for (const SaveJob::Item &item : unsaved) {
        const bool trashed = item.document.publicFields.value(QStringLiteral("deleted")).toBool();
        if (!trashed)
            drafts.keep({DraftStore::newKey(), item.document, item.written.isNull(), item.written});
    }
}
