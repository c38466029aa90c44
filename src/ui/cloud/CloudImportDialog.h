#pragma once

#include "CloudFolders.h"
#include "settings/SettingRow.h"
#include "widgets/FramedDialog.h"

class EmptyState;
class QListWidget;
class QPushButton;

/// Lets the user choose a safe of the cloud folder that this computer does not know, to bring it
/// over.
class CloudImportDialog : public FramedDialog
{
    Q_OBJECT

public:
    /// @param chooseFolder the default one is the system's dialog
    CloudImportDialog(CloudFolders &folders, const Theme &theme, QWidget *parent,
                      FolderChooser chooseFolder = {});

Q_SIGNALS:
    /// The window closes with it.
    void chosen(const QString &mirrorFolder, const QString &name);

private:
    void layOut();
    void showOffers();
    void lookElsewhere();
    void choose();

    CloudFolders &m_folders;
    FolderChooser m_chooseFolder;
    QListWidget *m_list;
    EmptyState *m_empty;
    QPushButton *m_other;
    QPushButton *m_cancel;
    QPushButton *m_take;
};
