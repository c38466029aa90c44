#include "ArchiveDesk.h"

#include "ArchiveMessages.h"
#include "FileNames.h"
#include "GPMAppCore.h"
#include "dialogs/ProgressDialog.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

ArchiveDesk::ArchiveDesk(GPMAppCore &core, const Theme &theme, QObject *parent)
    : QObject(parent)
    , m_core(core)
    , m_theme(theme)
{
}

QString ArchiveDesk::archiveName(const QString &safeName, const QDateTime &now)
{
    return QStringLiteral("%1_%2.gpm")
        .arg(cleanFileName(safeName),
             now.toLocalTime().toString(QStringLiteral("yyyy-MM-dd_HH-mm")));
}

ProgressDialog *ArchiveDesk::showProgress(const QString &title, const QString &text, QWidget *above)
{
    auto *progress = new ProgressDialog(title, text, m_theme, above);
    progress->setAttribute(Qt::WA_DeleteOnClose);
    progress->show();
    return progress;
}

void ArchiveDesk::exportSafe(const QString &folder, const QString &name, QWidget *above)
{
    const QPointer<QWidget> parent(above);
    const QString path = m_ways.choose.saveFile(
        tr("Export safe"), archiveName(name, QDateTime::currentDateTime()), tr("GPM file (*.gpm)"));
    if (path.isEmpty())
        return;
    const std::shared_ptr<GPMSafe> &current = m_core.currentSafe();
    const std::shared_ptr<GPMSafe> safe =
        current && current->folder() == folder ? current : m_core.knownSafes().openAsFound(folder);
    ProgressDialog *progress =
        showProgress(tr("Export safe"), tr("Exporting “%1”…").arg(name), parent);
    if (!safe) {
        progress->tell(false, exportMessage(ArchiveResult::Outcome::NotFound));
        return;
    }
    ArchiveTask *task = safe->exportArchive(path).release();
    // It goes on when the windows are made anew, in another language for one.
    task->setParent(this);
    connect(task, &ArchiveTask::finished, task, &QObject::deleteLater);
    connect(task, &ArchiveTask::progress, progress, &ProgressDialog::setProgress);
    connect(progress, &ProgressDialog::cancelRequested, task, &ArchiveTask::cancel);
    connect(task, &ArchiveTask::finished, progress,
            [this, task, name, progress] { tellExported(task->result(), name, *progress); });
    task->start();
}

void ArchiveDesk::tellExported(const ArchiveResult &result, const QString &name,
                               ProgressDialog &progress)
{
    if (result.outcome == ArchiveResult::Outcome::Cancelled) {
        progress.finish();
        return;
    }
    if (!result.good()) {
        progress.tell(false,
                      tr("“%1” was not exported. %2").arg(name, exportMessage(result.outcome)));
        return;
    }
    QString text = tr("“%1” is exported. Everything in the file is encrypted; it opens with the "
                      "master password of today:\n%2")
                       .arg(name, QDir::toNativeSeparators(result.path));
    if (!result.leftOut.isEmpty())
        text += QLatin1Char('\n') +
                tr("%n files could not be read and are not in it.", nullptr, result.leftOut.size());
    progress.tell(result.leftOut.isEmpty(), text,
                  {tr("Show folder"),
                   [this, folder = QFileInfo(result.path).path()] { m_ways.showFolder(folder); }});
}

void ArchiveDesk::importArchive(QWidget *above)
{
    const QPointer<QWidget> parent(above);
    const QString path =
        m_ways.choose.openFile(tr("Open GPM file on your computer"), tr("GPM file (*.gpm)"));
    if (!path.isEmpty())
        takeIn(path, tr("Import safe"), tr("Importing “%1”…"), parent);
}

void ArchiveDesk::restore(const QString &archivePath, QWidget *above)
{
    takeIn(archivePath, tr("Restore backup"), tr("Restoring “%1”…"), above);
}

void ArchiveDesk::takeIn(const QString &archivePath, const QString &title, const QString &doing,
                         QWidget *above)
{
    if (m_importing && m_importing->isRunning()) {
        m_importing->raise();
        return;
    }
    const QString fileName = QFileInfo(archivePath).fileName();
    ProgressDialog *progress = showProgress(title, doing.arg(fileName), above);
    m_importing = progress;
    connect(&m_core, &GPMAppCore::importProgress, progress, &ProgressDialog::setProgress);
    connect(progress, &ProgressDialog::cancelRequested, &m_core, &GPMAppCore::cancelImport);
    connect(&m_core, &GPMAppCore::importFinished, progress,
            [this, progress, fileName](const ArchiveResult &result) {
                m_core.disconnect(progress);
                tellImported(result, fileName, *progress);
            });
    m_core.importSafeArchive(archivePath);
}

void ArchiveDesk::tellImported(const ArchiveResult &result, const QString &fileName,
                               ProgressDialog &progress)
{
    if (result.outcome == ArchiveResult::Outcome::Cancelled) {
        progress.finish();
        return;
    }
    if (!result.good()) {
        progress.tell(false, tr("Import from \"%1\" failed!").arg(fileName) + QLatin1Char('\n') +
                                 importMessage(result.outcome));
        return;
    }
    const std::shared_ptr<GPMSafe> made = m_core.knownSafes().openAsFound(result.path);
    const QString text = tr("“%1” is now in the list of your safes. It opens with the master "
                            "password that it had when the file was made.")
                             .arg(made ? made->name() : fileName);
    const std::shared_ptr<GPMSafe> &current = m_core.currentSafe();
    if (current && current->isUnlocked()) {
        progress.tell(true, text,
                      {tr("Open it"), [this, folder = result.path] { m_ways.openSafe(folder); }});
    } else {
        m_ways.openSafe(result.path);
        progress.tell(true, text);
    }
    Q_EMIT imported(result.path);
}
