#include "ArchiveImport.h"

#include "ArchiveMessages.h"
#include "KnownSafes.h"
#include "dialogs/ProgressDialog.h"

ArchiveImport::ArchiveImport(KnownSafes &safes, const QString &archive, const QString &name,
                             const Theme &theme, QWidget *window)
    : QObject(window)
    , m_safes(safes)
    , m_task(safes.importArchive(archive))
    , m_window(new ProgressDialog(tr("Restore from a backup"), tr("Restoring “%1”…").arg(name),
                                  theme, window))
{
    m_window->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_task.get(), &ArchiveTask::progress, m_window.data(), &ProgressDialog::setProgress);
    connect(m_window.data(), &ProgressDialog::cancelRequested, m_task.get(),
            [this] { m_task->cancel(); });
    connect(m_task.get(), &ArchiveTask::finished, this, &ArchiveImport::tellEnd,
            Qt::QueuedConnection);
    connect(m_window.data(), &QObject::destroyed, this, &QObject::deleteLater);
}

void ArchiveImport::start()
{
    m_window->show();
    m_task->start();
}

void ArchiveImport::tellEnd()
{
    if (!m_window)
        return;
    const ArchiveResult result = m_task->result();
    if (result.outcome == ArchiveResult::Outcome::Cancelled) {
        m_window->finish();
        return;
    }
    if (!result.good()) {
        m_window->tell(false, importMessage(result.outcome));
        return;
    }
    QString name;
    const QVector<KnownSafes::Entry> entries = m_safes.entries();
    for (const KnownSafes::Entry &entry : entries) {
        if (entry.folder == result.path)
            name = entry.name;
    }
    m_window->tell(true,
                   tr("“%1” is now in the list of your safes. It opens with the master password "
                      "that it had when the backup was made.")
                       .arg(name),
                   {tr("Go to it"), [this, result] { Q_EMIT safeChosen(result.path); }});
}
