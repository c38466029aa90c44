#pragma once

#include "backups/RestoreDialog.h"
#include "browsers/PluginsPage.h"
#include "dialogs/PasswordChangeDesk.h"
#include "dialogs/PasswordGeneratorDialog.h"
#include "dialogs/RecentPasswords.h"
#include "settings/SettingsDialog.h"
#include "updates/UpdateDesk.h"

#include <QPointer>

class GPMAppCore;
class SecureWindow;

/// The windows beside the main one: at most one of each, above it while it is shown.
class SideWindows : public QObject
{
    Q_OBJECT

public:
    /// Everything outlives this.
    /// @param settings all that can be set
    SideWindows(GPMAppCore &core, UiSettings &uiSettings, const Theme &theme,
                std::function<QVector<Setting>()> settings);
    ~SideWindows() override;

    /// The main window, which owns these; another one takes the place of the former.
    void setMain(QWidget *main);

    /// Opens the generator for someone who takes the password as long as the owner lives.
    void openGeneratorFor(QObject *owner, const std::function<void(const QString &)> &place);

    /// The passwords that were made last.
    RecentPasswords &recentPasswords() { return m_recent; }

    /// Newer versions of the program.
    UpdateDesk &updates() { return m_updates; }

    bool hasSettingsOpen() const { return m_settings; }

    /// What the settings show of backups.
    QWidget *makeBackupRow(QWidget *parent);
    /// What leads from the settings to another master password.
    QWidget *makePasswordRow(QWidget *parent);
    /// What pages about the browsers need.
    PluginsPage::Parts pluginParts();
    /// What the settings show of browsers.
    QWidget *makeBrowserPanel(QWidget *parent);

public Q_SLOTS:
    /// Opens the generator for the page in the user's browser.
    void openGenerator();
    void openSettings();
    /// Lets the user change the master password of the open safe.
    void openChangePassword();
    /// Lets the user choose a backup.
    void openRestore();

Q_SIGNALS:
    /// A safe is to be made from the chosen backup.
    void restoreRequested(const QString &archive);

private:
    void showGenerator(const PasswordTarget &target);
    void install(const BrowserInfo &browser, QWidget *owner);
    void closeForLock();

    GPMAppCore &m_core;
    UiSettings &m_uiSettings;
    const Theme &m_theme;
    std::function<QVector<Setting>()> m_makeSettings;
    RecentPasswords m_recent;
    PasswordChangeDesk m_passwordChange;
    UpdateDesk m_updates;
    QPointer<QWidget> m_main;
    QPointer<PasswordGeneratorDialog> m_generator;
    QPointer<SettingsDialog> m_settings;
    QPointer<RestoreDialog> m_restore;
};
