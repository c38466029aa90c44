#pragma once

#include "CloudStatus.h"
#include "settings/SettingRow.h"

#include <QObject>
#include <QPointer>

class CloudImportDialog;
class CloudPasswordDialog;
class GPMAppCore;
class Theme;

/// Brings synchronising with the cloud folder to its windows: asks for a password that was changed
/// elsewhere, brings safes over, and tells of trouble.
class CloudDesk : public QObject
{
    Q_OBJECT

public:
    /// Everything outlives this.
    CloudDesk(GPMAppCore &core, const Theme &theme, FolderChooser chooseFolder = {});
    ~CloudDesk() override;

    /// The main window, which owns the others; another one takes the place of the former.
    void setMain(QWidget *main);

    /// What the settings show.
    QWidget *makePanel(QWidget *parent);

public Q_SLOTS:
    /// Meets the mirror of the open safe, or asks for what that needs first.
    void synchronize();
    void askForPassword();
    /// Lets the user choose a safe of the cloud folder and brings it over.
    void openImport();

Q_SIGNALS:
    /// The user wants to go to another safe.
    void safeChosen(const QString &folder);

private:
    void bringOver(const QString &mirrorFolder, const QString &name);
    QWidget *front() const;
    void tellTrouble(const CloudStatus &status);
    void closeForLock();

    GPMAppCore &m_core;
    const Theme &m_theme;
    FolderChooser m_chooseFolder;
    QPointer<QWidget> m_main;
    QPointer<CloudPasswordDialog> m_password;
    QPointer<CloudImportDialog> m_import;
};
