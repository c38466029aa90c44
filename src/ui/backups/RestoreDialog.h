#pragma once

#include "BackupOverview.h"
#include "Clock.h"
#include "widgets/FramedDialog.h"

#include <QFutureWatcher>

#include <functional>

class Backups;
class ElidedLabel;
class EmptyState;
class GPMAppSettings;
class MessageLabel;
class QListWidget;
class QPushButton;

/// Lets the user choose the backup that becomes a safe again, from the folder for backups or from
/// another one.
class RestoreDialog : public FramedDialog
{
    Q_OBJECT

public:
    /// Asks for a folder, starting in one; empty when the user chose none.
    using FolderChooser = std::function<QString(QWidget *parent, const QString &start)>;

    /// What it needs; all of it outlives the window.
    struct Parts
    {
        Backups &backups;
        const GPMAppSettings &settings;
        FolderChooser chooseFolder = {}; ///< the default one is the system's dialog
        Clock clock = systemTime;
    };

    RestoreDialog(const Parts &parts, const Theme &theme, QWidget *parent);

Q_SIGNALS:
    /// The window closes with it.
    void chosen(const QString &path);

private:
    void layOut();
    void follow();
    void read();
    void showList();
    void showEmpty();
    void showChoice();
    void chooseFolder();
    void choose();
    const BackupEntry *current() const;

    Parts m_parts;
    ElidedLabel *m_place;
    QPushButton *m_otherFolder;
    QListWidget *m_list;
    EmptyState *m_empty;
    MessageLabel *m_word;
    QPushButton *m_cancel;
    QPushButton *m_restore;
    QFutureWatcher<BackupOverview> m_reading;
    BackupOverview m_overview;
    QString m_folder; ///< that the user chose; empty for the one of the settings
};
