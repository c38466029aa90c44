#include "CloudDesk.h"

#include "CloudImportDialog.h"
#include "CloudPanel.h"
#include "CloudPasswordDialog.h"
#include "CloudTexts.h"
#include "GPMAppCore.h"
#include "dialogs/ProgressDialog.h"
#include "style/Theme.h"

#include <QApplication>
#include <QDir>

namespace {

void bringUp(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

CloudDesk::CloudDesk(GPMAppCore &core, const Theme &theme, FolderChooser chooseFolder)
    : m_core(core)
    , m_theme(theme)
    , m_chooseFolder(std::move(chooseFolder))
{
    const CloudSync &sync = core.cloud();
    connect(&sync, &CloudSync::passwordNeeded, this, &CloudDesk::askForPassword);
    connect(&sync, &CloudSync::troubled, this, &CloudDesk::tellTrouble);
    connect(&sync, &CloudSync::copyRemoved, this, [this](const QString &folder, bool good) {
        if (!good)
            Q_EMIT m_core.message(tr("The copy in the cloud folder is still there."),
                                  tr("Some of its files could not be removed. Remove the folder "
                                     "yourself if you do not need it:\n%1")
                                      .arg(QDir::toNativeSeparators(folder)));
    });
    connect(&core, &GPMAppCore::requestLock, this, &CloudDesk::closeForLock);
}

CloudDesk::~CloudDesk()
{
    setMain(nullptr);
}

void CloudDesk::setMain(QWidget *main)
{
    delete m_password;
    delete m_import;
    m_main = main;
}

QWidget *CloudDesk::makePanel(QWidget *parent)
{
    const auto openSafe = [this] {
        const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
        return safe && safe->isUnlocked() ? safe->folder() : QString();
    };
    auto *panel = new CloudPanel(
        {m_core.cloud(), m_core.cloudFolders(), m_core.knownSafes(), openSafe, {}, m_chooseFolder},
        m_theme, parent);
    connect(panel, &CloudPanel::importRequested, this, &CloudDesk::openImport);
    connect(panel, &CloudPanel::passwordRequested, this, &CloudDesk::askForPassword);
    return panel;
}

void CloudDesk::synchronize()
{
    if (m_core.cloud().needsPassword())
        askForPassword();
    else
        m_core.syncCurrentSafeSource();
}

void CloudDesk::askForPassword()
{
    if (!m_main || !m_core.cloud().needsPassword())
        return;
    if (!m_password) {
        m_password =
            new CloudPasswordDialog(m_core.cloud(), m_core.currentSafe()->name(), m_theme, m_main);
        m_password->setAttribute(Qt::WA_DeleteOnClose);
    }
    bringUp(*m_password);
}

/// The window that the user is at: behind the wizard nothing could be reached.
QWidget *CloudDesk::front() const
{
    QWidget *modal = QApplication::activeModalWidget();
    for (const QWidget *above = modal; above; above = above->parentWidget()) {
        if (above == m_main)
            return modal;
    }
    return m_main.data();
}

void CloudDesk::openImport()
{
    if (!m_import) {
        m_import = new CloudImportDialog(m_core.cloudFolders(), m_theme, front(), m_chooseFolder);
        m_import->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_import, &CloudImportDialog::chosen, this, &CloudDesk::bringOver);
    }
    bringUp(*m_import);
}

void CloudDesk::bringOver(const QString &mirrorFolder, const QString &name)
{
    auto *window = new ProgressDialog(tr("From the cloud folder"),
                                      tr("Bringing “%1” over…").arg(name), m_theme, front());
    window->setAttribute(Qt::WA_DeleteOnClose);
    ArchiveTask *task = m_core.cloudFolders().importSafe(mirrorFolder).release();
    // Should the window that it is above go, it goes on.
    task->setParent(this);
    const QPointer<ProgressDialog> shown(window);
    connect(window, &ProgressDialog::cancelRequested, task, &ArchiveTask::cancel);
    connect(task, &ArchiveTask::progress, window, &ProgressDialog::setProgress);
    connect(task, &ArchiveTask::finished, this, [this, task, shown, name] {
        task->deleteLater();
        const ArchiveResult result = task->result();
        const QString fault = CloudTexts::importFault(result.outcome);
        if (!shown && !fault.isEmpty())
            Q_EMIT m_core.message(tr("From the cloud folder"), fault);
        if (!shown)
            return;
        if (!fault.isEmpty())
            shown->tell(false, fault);
        else if (!result.good())
            shown->finish();
        else
            shown->tell(
                true,
                tr("“%1” is on this computer now, and is kept the same as on your other "
                   "computers. It opens with its own master password.")
                    .arg(name),
                {tr("Open it"), [this, folder = result.path] { Q_EMIT safeChosen(folder); }});
    });
    window->show();
    task->start();
}

void CloudDesk::tellTrouble(const CloudStatus &status)
{
    // A drive that is not connected is an everyday matter; the sidebar shows it.
    if (status.state == CloudStatus::State::FolderMissing)
        return;
    Q_EMIT m_core.message(tr("Can't synchronise with the cloud folder."),
                          CloudTexts::line(status, systemTime()) + QStringLiteral(".\n\n") +
                              CloudTexts::advice(status));
}

void CloudDesk::closeForLock()
{
    // Also one at work, which does not let itself be closed.
    if (m_password)
        m_password->accept();
}
