#include "EveryWindow.h"

#include "SideWindows.h"
#include "browsers/InstallSteps.h"
#include "cloud/CloudPasswordDialog.h"
#include "lock/PagesStack.h"
#include "main/MainView.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>

Show settingsPage(int page)
{
    return [page](Stage &stage) {
        stage.press("settingsButton");
        QWidget *settings = stage.window("SettingsDialog");
        find<QListWidget>(*settings, "settingsPages")->setCurrentRow(page);
        return settings;
    };
}

namespace {

/// The settings of backups after one was made.
QWidget *backupSettings(Stage &stage)
{
    Backups &backups = stage.test.core.backups();
    bool done = false;
    const auto connection =
        QObject::connect(&backups, &Backups::finished, stage.main, [&done] { done = true; });
    backups.backUpNow();
    QWidget *settings = settingsPage(3)(stage);
    const auto *next = find<QLabel>(*settings, "backupHeadline");
    const QString before = next->text();
    if (!QTest::qWaitFor([&] { return done && next->text().contains(QLatin1Char(':')); }))
        return nullptr;
    QObject::disconnect(connection);
    return settings;
}

QWidget *changePassword(Stage &stage)
{
    Q_EMIT stage.main->findChild<MainView *>()->changePasswordRequested();
    return stage.window("changePasswordDialog");
}

/// The entries of a change, some of them wrong.
QWidget *changePasswordFaults(Stage &stage)
{
    QWidget *window = changePassword(stage);
    QTest::keyClicks(find<QLineEdit>(*window, "oldPassword"), "not it"_s);
    QTest::keyClicks(find<QLineEdit>(*window, "newPassword"), "walnut 7 harbour"_s);
    find<QAbstractButton>(*window, "changeButton")->click();
    return window;
}

/// What is said when the password is changed.
QWidget *passwordChanged(Stage &stage)
{
    const QLatin1String next("walnut 7 harbour");
    QWidget *window = changePassword(stage);
    const std::shared_ptr<GPMSafe> safe = stage.test.core.currentSafe();
    const QString former = safe->isPassword(next) ? next : testPassword;
    const QString latter = former == next ? testPassword : next;
    QTest::keyClicks(find<QLineEdit>(*window, "oldPassword"), former);
    QTest::keyClicks(find<QLineEdit>(*window, "newPassword"), latter);
    QTest::keyClicks(find<QLineEdit>(*window, "confirmPassword"), latter);
    find<QAbstractButton>(*window, "changeButton")->click();
    QWidget *progress = stage.window("progressDialog");
    const auto *bar = find<QProgressBar>(*progress, "progressBar");
    return QTest::qWaitFor([bar] { return !bar->isVisible(); }, 30000) ? progress : nullptr;
}

/// What is said of a safe whose change of password was interrupted.
QWidget *passwordChangeInterrupted(Stage &stage)
{
    GPMAppCore &core = stage.test.core;
    const std::shared_ptr<GPMSafe> safe = core.currentSafe();
    core.lockCurrentSafe();
    const QDir folder(safe->folder());
    const QString left[] = {folder.filePath("safe.passid.bak"_s),
                            folder.filePath("content/00000000-0000-0001-0000-000000001234"_s)};
    for (const QString &path : left) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write("of another password") < 0)
            return nullptr;
    }
    core.unlockCurrentSafe(testPassword);
    const bool told =
        QTest::qWaitFor([&stage] { return stage.window("progressDialog") != nullptr; }, 30000);
    // For those who come behind.
    for (const QString &path : left)
        QFile::remove(path);
    safe->lock();
    return safe->unlock(testPassword) && told ? stage.window("progressDialog") : nullptr;
}

/// What an earlier case restored would be backed up and listed, too.
void dropRestored(Stage &stage)
{
    GPMAppCore &core = stage.test.core;
    const QString kept = core.currentSafe()->folder();
    for (const KnownSafes::Entry &safe : core.knownSafes().entries()) {
        if (safe.folder != kept)
            QDir(safe.folder).removeRecursively();
    }
    core.settings().setRecentList({kept});
    QDir(core.backups().folder()).removeRecursively();
}

QWidget *restoreList(Stage &stage)
{
    dropRestored(stage);
    const QDir folder(stage.test.core.backups().folder());
    folder.mkpath("."_s);
    QFile damaged(folder.filePath("work_20260304_19b0a.gpm"_s));
    if (!damaged.open(QIODevice::WriteOnly) || damaged.write("PK\3\4 and no more") < 0)
        return nullptr;
    damaged.close();
    if (!backupSettings(stage))
        return nullptr;
    stage.window("SettingsDialog")->close();
    stage.main->findChild<PagesStack *>()->restoreRequested();
    QWidget *window = stage.window("restoreDialog");
    auto *list = find<QListWidget>(*window, "backupList");
    return QTest::qWaitFor([list] { return list->count() > 1; }) ? window : nullptr;
}

/// What is said when a backup is a safe again.
QWidget *restored(Stage &stage)
{
    QWidget *list = restoreList(stage);
    if (!list)
        return nullptr;
    find<QAbstractButton>(*list, "restoreButton")->click();
    QWidget *window = stage.window("progressDialog");
    const auto *way = find<QAbstractButton>(*window, "wayButton");
    return QTest::qWaitFor([way] { return way->isVisible(); }) ? window : nullptr;
}

QWidget *cloudImport(Stage &stage)
{
    QWidget *settings = settingsPage(4)(stage);
    find<QAbstractButton>(*settings, "cloudImportButton")->click();
    return stage.window("cloudImportDialog");
}

QWidget *cloudPassword(Stage &stage)
{
    auto *dialog = new CloudPasswordDialog(
        stage.test.core.cloud(), stage.test.core.currentSafe()->name(), stage.theme, stage.main);
    return stage.shownBeside(dialog);
}

/// The question whether an extension may connect.
QWidget *approval(Stage &stage)
{
    const QString origin = "moz-extension://0c4e5b2e-1f0c-4a3f-9a53-33d8b7a5d6c1"_s;
    OriginApprovals &approvals = stage.test.core.approvals();
    // As if no earlier case had asked.
    approvals.approve(origin);
    stage.test.core.linkSettings().setApprovedOrigins({});
    approvals.ask(origin);
    return QTest::qWaitFor([&stage] { return stage.window("questionDialog"); })
               ? stage.window("questionDialog")
               : nullptr;
}

QWidget *browserSettings(Stage &stage)
{
    QWidget *settings = settingsPage(2)(stage);
    stage.findBrowsers();
    return settings;
}

Show installSteps(const char *kind, const char *name)
{
    return [kind, name](Stage &stage) {
        BrowserInfo browser;
        browser.kind = QLatin1String(kind);
        browser.name = QLatin1String(name);
        InstallWays ways;
        ways.folder = [](bool) { return extensionFolder; };
        return stage.shownBeside(new InstallSteps(browser, ways, stage.theme, stage.main));
    };
}

QWidget *newVersion(Stage &stage)
{
    const UpdateNews news{"1.2.0"_s, QUrl("https://glaceron.example/download"_s), newVersionText};
    return stage.shownBeside(new NewVersionDialog(news, "1.1.32"_s, stage.theme, stage.main));
}

} // namespace

QVector<WindowCase> settingsWindows()
{
    return {{"settings-general", settingsPage(0)},
            {"settings-security", settingsPage(1)},
            {"settings-browser", browserSettings},
            {"settings-backup", backupSettings},
            {"restore", restoreList},
            {"restored", restored},
            {"change-password", changePassword},
            {"change-password-faults", changePasswordFaults},
            {"password-changed", passwordChanged},
            {"password-change-interrupted", passwordChangeInterrupted, Stage::Empty},
            {"settings-cloud", settingsPage(4), Stage::Shared},
            {"settings-hotkeys", settingsPage(5)},
            {"settings-appearance", settingsPage(6)},
            {"cloud-safe", mainWindow, Stage::Shared},
            {"cloud-import", cloudImport, Stage::Shared},
            {"cloud-password", cloudPassword, Stage::Shared},
            {"install-steps", installSteps("chromium", "Chromium")},
            {"install-steps-firefox", installSteps("firefox", "Firefox")},
            {"approval", approval},
            {"new-version", newVersion}};
}
