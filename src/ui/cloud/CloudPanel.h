#pragma once

#include "Clock.h"
#include "CloudFolders.h"
#include "CloudSync.h"
#include "dialogs/Question.h"
#include "settings/SettingRow.h"

#include <QHash>
#include <QWidget>

#include <functional>

class CloudSafeRow;
class MessageLabel;
class QLabel;
class QPushButton;
class QVBoxLayout;
class SelectBox;
class Theme;

/// Synchronising with the cloud folder, on its page of the settings: which folder, which safes, and
/// how it stands with each.
class CloudPanel : public QWidget
{
    Q_OBJECT

public:
    /// What it shows; all of it outlives the panel.
    struct Parts
    {
        CloudSync &sync;
        CloudFolders &folders;
        KnownSafes &safes;
        /// The folder of the safe that is unlocked; empty when none is.
        std::function<QString()> openSafe;
        Asker asker = {};                ///< the default one shows dialogs
        FolderChooser chooseFolder = {}; ///< the default one is the system's dialog
        Clock clock = systemTime;
    };

    CloudPanel(const Parts &parts, const Theme &theme, QWidget *parent);

Q_SIGNALS:
    void importRequested();
    void passwordRequested();

protected:
    bool event(QEvent *event) override;

private:
    void layOut();
    void follow();
    void showPlaces();
    void showSafes();
    void showStatus(const QString &safeFolder);
    void showAllStatus();
    void showFault(const QString &fault);
    void chooseOtherFolder();
    void onSwitched(const QString &safeFolder, const QString &name, bool on);
    void turnOff(const QString &safeFolder, const QString &name);

    Parts m_parts;
    const Theme &m_theme;
    QLabel *m_noFolder;
    SelectBox *m_place;
    QPushButton *m_other;
    MessageLabel *m_fault;
    QVBoxLayout *m_safes;
    QLabel *m_noSafe;
    QPushButton *m_import;
    QHash<QString, CloudSafeRow *> m_rows; ///< by folder of the safe
    QString m_wanted;                      ///< a folder that the user has named
};
