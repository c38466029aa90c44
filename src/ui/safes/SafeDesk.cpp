#include "SafeDesk.h"

#include "ArchiveDesk.h"
#include "DeleteSafeDialog.h"
#include "GPMAppCore.h"
#include "attachments/RenameDialog.h"
#include "dialogs/ProgressDialog.h"

#include <QApplication>
#include <QDir>
#include <QHash>

#include <functional>

namespace {

bool isCurrent(GPMAppCore &core, const QString &folder)
{
    return core.currentSafe() && core.safeFacts().isSame(core.currentSafe()->folder(), folder);
}

} // namespace

SafeDesk::SafeDesk(GPMAppCore &core, const Theme &theme, QObject *parent)
    : QObject(parent)
    , m_core(core)
    , m_theme(theme)
    , m_archives(std::make_unique<ArchiveDesk>(core, theme))
{
}

SafeDesk::~SafeDesk() = default;

void SafeDesk::setWindow(const Window &window, const Ways &ways)
{
    delete m_list;
    m_window = window;
    m_ways = ways;
    m_archives->setWays({ways.choose, ways.showFolder, window.openSafe});
}

/// A window that blocks the main one, as the first steps do, would block what is not above it.
QWidget *SafeDesk::main() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : m_window.widget;
}

QWidget *SafeDesk::above() const
{
    return m_list && m_list->isVisible() ? m_list.data() : m_window.widget;
}

void SafeDesk::tell(const QString &title, const QString &text)
{
    m_ways.ask({title, text, {tr("OK")}});
}

void SafeDesk::openList()
{
    if (!m_list) {
        m_list = new SafesDialog(m_core, m_offers, m_theme, m_window.widget);
        m_list->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_list, &SafesDialog::commanded, this, &SafeDesk::run);
        connect(m_list, &SafesDialog::importRequested, this, &SafeDesk::importArchive);
        connect(m_list, &SafesDialog::openFolderRequested, this, &SafeDesk::openFolder);
        connect(m_list, &SafesDialog::createRequested, this, [this] {
            m_list->close();
            m_window.createSafe();
        });
    }
    m_list->show();
    m_list->raise();
    m_list->activateWindow();
}

void SafeDesk::run(SafeRow::Command command, SafeInfo safe)
{
    switch (command) {
    case SafeRow::Open:
        open(safe);
        break;
    case SafeRow::Rename:
        rename(safe);
        break;
    case SafeRow::Export:
        m_archives->exportSafe(safe.folder, safe.name, m_window.widget);
        break;
    case SafeRow::ShowFolder:
        m_ways.showFolder(safe.folder);
        break;
    case SafeRow::Locate:
        locate(safe);
        break;
    case SafeRow::RemoveFromList:
        removeFromList(safe);
        break;
    case SafeRow::Delete:
        askToDelete(safe);
        break;
    }
}

void SafeDesk::open(const SafeInfo &safe)
{
    if (m_list)
        m_list->close();
    if (!safe.isOpen)
        m_window.openSafe(safe.folder);
}

void SafeDesk::exportCurrent()
{
    const std::shared_ptr<GPMSafe> safe = m_core.currentSafe();
    if (safe)
        m_archives->exportSafe(safe->folder(), safe->name(), m_window.widget);
}

void SafeDesk::importArchive()
{
    m_archives->importArchive(main());
}

void SafeDesk::openFolder()
{
    const QString folder = m_ways.choose.folder(tr("Open the folder of a safe"));
    if (folder.isEmpty())
        return;
    m_core.knownSafes().add(folder,
                            [desk = QPointer<SafeDesk>(this), folder](KnownSafes::Found found) {
                                if (desk)
                                    desk->onAdded(folder, found);
                            });
}

void SafeDesk::onAdded(const QString &folder, KnownSafes::Found found)
{
    if (found == KnownSafes::Found::Taken || found == KnownSafes::Found::KnownAlready) {
        if (m_list)
            m_list->close();
        m_window.openSafe(m_core.knownSafes().listed(folder));
        return;
    }
    tell(tr("No safe there"),
         tr("There is no safe in this folder. The folder of a safe holds a file “safe.meta”:\n%1")
             .arg(QDir::toNativeSeparators(folder)));
}

void SafeDesk::rename(const SafeInfo &safe)
{
    auto *dialog = new RenameDialog(safe.name, m_theme, above(), tr("Name of the safe"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog, safe] { giveName(safe.folder, dialog->name().simplified()); });
    dialog->open();
}

void SafeDesk::giveName(const QString &folder, const QString &name)
{
    const std::shared_ptr<GPMSafe> current = m_core.heldSafe(folder);
    if (current && current->isChangingPassword()) {
        tell(tr("Can't rename."), tr("The safe keeps its name while its password is being "
                                     "changed. Try again when that is done."));
        return;
    }
    m_core.knownSafes().rename(folder, name, current,
                               [desk = QPointer<SafeDesk>(this), folder](bool done) {
                                   if (desk && !done)
                                       desk->tellNotRenamed(folder);
                               });
}

void SafeDesk::tellNotRenamed(const QString &folder)
{
    tell(tr("Can't rename."), tr("The safe keeps its name. Check the free space and that you may "
                                 "write to its folder:\n%1")
                                  .arg(QDir::toNativeSeparators(folder)));
}

void SafeDesk::locate(const SafeInfo &safe)
{
    const QString folder = m_ways.choose.folder(tr("Where is “%1” now?").arg(safe.name));
    if (folder.isEmpty())
        return;
    m_core.knownSafes().locate(
        safe.folder, folder,
        [desk = QPointer<SafeDesk>(this), name = safe.name, folder](KnownSafes::Found found) {
            if (desk)
                desk->onLocated(name, folder, found);
        });
}

void SafeDesk::onLocated(const QString &name, const QString &folder, KnownSafes::Found found)
{
    if (found == KnownSafes::Found::Taken)
        return;
    if (found == KnownSafes::Found::AnotherSafe)
        tell(
            tr("Another safe"),
            tr("This folder holds another safe than “%1”. Open it on its own with “Open the folder "
               "of a safe”, or choose another folder.")
                .arg(name));
    else
        tell(tr("No safe there"),
             tr("There is no safe in this folder:\n%1").arg(QDir::toNativeSeparators(folder)));
}

bool SafeDesk::closeIfCurrent(const QString &folder)
{
    if (!isCurrent(m_core, folder))
        return true;
    if (m_core.currentSafe()->isUnlocked() && !m_window.leaveSafe())
        return false;
    m_core.selectSafe({});
    return true;
}

void SafeDesk::removeFromList(const SafeInfo &safe)
{
    const int answer = m_ways.ask(
        {tr("Take “%1” off the list?").arg(safe.name),
         safe.isThere() ? tr("Its files stay where they are. “Open the folder of a safe” brings it "
                             "back:\n%1")
                              .arg(QDir::toNativeSeparators(safe.folder))
                        : tr("Its folder is not there now. If it comes back, “Open the folder of a "
                             "safe” finds it:\n%1")
                              .arg(QDir::toNativeSeparators(safe.folder)),
         {tr("Remove from list"), tr("Cancel")},
         1});
    if (answer == 0 && closeIfCurrent(safe.folder))
        m_core.knownSafes().remove(safe.folder);
}

void SafeDesk::askToDelete(const SafeInfo &safe)
{
    const auto check = [this, folder = safe.folder](const QString &password) {
        return m_core.knownSafes().checkPassword(folder, password);
    };
    auto *dialog = new DeleteSafeDialog(safe, check, m_theme, above());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, safe] { deleteSafe(safe); });
    dialog->open();
}

void SafeDesk::deleteSafe(const SafeInfo &safe)
{
    if (!closeIfCurrent(safe.folder))
        return;
    // The windows can be made anew meanwhile, in another language for one.
    const QPointer<ProgressDialog> progress = showDeleting(safe);
    m_core.knownSafes().beginDeletion(safe.folder);
    const std::shared_ptr<GPMSafe> held = m_core.heldSafe(safe.folder);
    if (held && held->isSettling())
        connect(held.get(), &GPMSafe::lockSettled, this,
                std::bind(&SafeDesk::removeFiles, this, safe, progress));
    else
        removeFiles(safe, progress);
}

void SafeDesk::removeFiles(const SafeInfo &safe, const QPointer<ProgressDialog> &progress)
{
    const auto result = std::make_shared<SafeRemoval::Result>();
    auto *task = new WorkerTask(
        [result, folder = safe.folder, place = m_core.knownSafes().safesFolder(),
         environment = m_core.knownSafes().environment(),
         hasNamesake = m_core.knownSafes().hasNamesake(safe.folder)](WorkControl &control) {
            const SafeRemoval removal(environment, hasNamesake);
            removal.clearUnfinished(place);
            *result = removal.run(folder, control);
        },
        this);
    connect(task, &WorkerTask::finished, this, [this, task, progress, result, safe] {
        task->deleteLater();
        m_core.knownSafes().endDeletion(safe.folder);
        tellDeleted(safe, *result, progress ? *progress : *showDeleting(safe));
    });
    task->start();
}

ProgressDialog *SafeDesk::showDeleting(const SafeInfo &safe)
{
    auto *progress = new ProgressDialog(tr("Delete safe"), tr("Deleting “%1”…").arg(safe.name),
                                        m_theme, m_window.widget);
    progress->setAttribute(Qt::WA_DeleteOnClose);
    progress->setCancellable(false);
    progress->show();
    return progress;
}

void SafeDesk::tellDeleted(const SafeInfo &safe, const SafeRemoval::Result &result,
                           ProgressDialog &progress)
{
    using Outcome = SafeRemoval::Outcome;
    static const QHash<int, const char *> faults = {
        {int(Outcome::NotFound),
         QT_TR_NOOP("Nothing was deleted: the safe is not in its folder any more.")},
        {int(Outcome::Busy),
         QT_TR_NOOP("Nothing was deleted: the safe is being archived, or its password is being "
                    "changed. Try again when that is done.")},
        {int(Outcome::InUse),
         QT_TR_NOOP("Nothing was deleted: another program has this safe open. Close it there and "
                    "try again.")},
        {int(Outcome::Failed),
         QT_TR_NOOP("Nothing was deleted: the safe is as it was. Check that you may write to its "
                    "folder and try again.")}};
    if (result.outcome != Outcome::Done) {
        progress.tell(false, tr(faults.value(int(result.outcome))));
        return;
    }
    m_core.knownSafes().forget(safe.folder);
    if (result.left.isEmpty()) {
        progress.finish();
        return;
    }
    const QString folder = QDir::toNativeSeparators(result.left);
    const ProgressDialog::Way show{tr("Show folder"),
                                   [this, left = result.left] { m_ways.showFolder(left); }};
    if (result.foreign.isEmpty())
        progress.tell(true,
                      tr("“%1” is gone, but some of its files could not be removed. They are "
                         "encrypted, and you can delete them:\n%2")
                          .arg(safe.name, folder),
                      show);
    else
        progress.tell(true,
                      tr("“%1” is gone. %n other files were in its folder and are still there:\n%2",
                         nullptr, result.foreign.size())
                          .arg(safe.name, folder),
                      show);
}
