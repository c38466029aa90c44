#include "EveryWindow.h"

#include "dialogs/ProgressDialog.h"
#include "lock/PagesStack.h"
#include "main/MainView.h"
#include "main/SafeMenu.h"
#include "movein/MoveInDialog.h"
#include "safes/ArchiveDesk.h"
#include "safes/DeleteSafeDialog.h"
#include "safes/SafesDialog.h"
#include "wizard/FirstRun.h"
#include "wizard/NewSafePage.h"
#include "wizard/SetupWizard.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QDir>

namespace {

QWidget *createSafePage(Stage &stage)
{
    stage.main->findChild<PagesStack *>()->showCreatePage();
    return stage.main;
}

/// A step of the wizard of the first start, as it is with a safe.
Show wizardStep(const char *id)
{
    return [id](Stage &stage) -> QWidget * {
        stage.findBrowsers();
        Q_EMIT stage.main->findChild<MainView *>()->setUpRequested();
        auto *wizard = qobject_cast<SetupWizard *>(stage.window("SetupWizard"));
        if (!wizard)
            return nullptr;
        wizard->goTo(QLatin1String(id));
        return wizard->step() == QLatin1String(id) ? wizard : nullptr;
    };
}

/// The step that exists as long as there is no safe.
QWidget *wizardSafe(Stage &stage)
{
    const WizardStep step{
        "safe", FirstRun::tr("Create a safe"),
        FirstRun::tr(
            "It keeps your passwords. Only you know its password, and it cannot be recovered."),
        [] { return true; },
        [&stage](QWidget *parent) {
            return new NewSafePage(stage.test.core, stage.theme, parent, {[] {}, [] {}});
        }};
    return stage.shownBeside(new SetupWizard({step}, stage.theme, stage.main));
}

/// The list of safes: the open one, one in the cloud folder, and one that has gone.
QWidget *safeList(Stage &stage)
{
    KnownSafes &known = stage.test.core.knownSafes();
    const QString work = stage.test.folder.filePath("work"_s);
    const QString family = "/media/ana/stick/family"_s;
    const QString personal = stage.test.core.currentSafe()->folder();
    if (known.listed(work).isEmpty()) {
        known.create("Work"_s, testPassword, "w"_s, work);
        known.facts().change(work, [](SafeFact &fact) {
            fact.itemCount = 61;
            fact.lastOpened = QDateTime::currentDateTimeUtc().addDays(-3);
            fact.mirrorFolder = "/cloud/work"_s;
            fact.lastSynchronised = QDateTime::currentDateTimeUtc().addDays(-1);
        });
        known.facts().change(family, [](SafeFact &fact) { fact.name = "Family"_s; });
    }
    stage.test.core.settings().setRecentList({personal, work, family});
    // What an earlier case restored is none of them.
    for (const KnownSafes::Entry &entry : known.entries()) {
        if (entry.folder != personal && entry.folder != work)
            QDir(entry.folder).removeRecursively();
    }
    Q_EMIT stage.main->findChild<SafeMenu *>()->safesRequested();
    auto *list = qobject_cast<SafesDialog *>(stage.window("safesDialog"));
    return QTest::qWaitFor([list] { return !list->isReading(); }) ? list : nullptr;
}

QWidget *deleteSafe(Stage &stage)
{
    SafeInfo safe;
    safe.name = stage.test.core.currentSafe()->name();
    safe.folder = safeFolder;
    return stage.shownBeside(new DeleteSafeDialog(safe, {}, stage.theme, stage.main));
}

QWidget *progress(Stage &stage)
{
    auto *dialog = new ProgressDialog(
        ArchiveDesk::tr("Export safe"),
        ArchiveDesk::tr("Exporting “%1”…").arg(stage.test.core.currentSafe()->name()), stage.theme,
        stage.main);
    dialog->setProgress(2, 3);
    // Else it would wait for the work to end, in front of the windows to come.
    QObject::connect(dialog, &ProgressDialog::cancelRequested, dialog, &ProgressDialog::finish);
    return stage.shownBeside(dialog);
}

MoveInDialog *moveIn(Stage &stage)
{
    Q_EMIT stage.main->findChild<MainView *>()->safeMenu().bringOverRequested();
    return qobject_cast<MoveInDialog *>(stage.window("moveInDialog"));
}

/// The window that brings passwords over, when a file was chosen and a control of the next page is
/// there.
Show moveInFile(const QByteArray &bytes, const char *control)
{
    return [bytes, control](Stage &stage) {
        MoveInDialog *dialog = moveIn(stage);
        QFile file(stage.test.folder.filePath("passwords.csv"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("Can't write a file");
        file.close();
        dialog->readFile(file.fileName());
        const auto *shown = find<QWidget>(*dialog, control);
        if (!QTest::qWaitFor([shown] { return shown->isVisible(); }))
            return static_cast<MoveInDialog *>(nullptr);
        return dialog;
    };
}

QWidget *moveInEnd(Stage &stage)
{
    QWidget *dialog = moveInFile(browserExport, "addButton")(stage);
    if (!dialog)
        return nullptr;
    QSignalSpy added(stage.test.core.currentSafe().get(), &GPMSafe::itemAdded);
    find<QAbstractButton>(*dialog, "addButton")->click();
    const auto *close = find<QWidget>(*dialog, "closeMoveInButton");
    if (!QTest::qWaitFor([close] { return close->isVisible(); }))
        return nullptr;
    // The safe is that of the other windows, too.
    QStringList ids;
    for (const QVariantList &arguments : added)
        ids << arguments.first().toString();
    stage.test.core.modelItemsPurged(ids);
    return dialog;
}

} // namespace

QVector<WindowCase> safeWindows()
{
    return {{"create-safe", createSafePage, Stage::Locked},
            {"wizard-language", wizardStep("language")},
            {"wizard-safe", wizardSafe, Stage::Locked},
            {"wizard-move-in", wizardStep("move-in")},
            {"wizard-extension", wizardStep("extension")},
            {"wizard-ready", wizardStep("ready")},
            {"move-in", moveIn},
            {"move-in-columns", moveInFile(unknownExport, "useColumnsButton")},
            {"move-in-preview", moveInFile(browserExport, "addButton")},
            {"move-in-end", moveInEnd},
            {"safes", safeList},
            {"safe-delete", deleteSafe},
            {"progress", progress}};
}
