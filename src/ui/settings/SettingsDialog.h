#pragma once

#include "SettingRow.h"
#include "widgets/FramedDialog.h"

class QLineEdit;
class QListWidget;
class QScrollArea;
class UiSettings;

/// Everything that can be set, in pages, and found by a search over all of them.
class SettingsDialog : public FramedDialog
{
    Q_OBJECT

public:
    /// @param chooseFolder the default one is the system's dialog
    SettingsDialog(const QVector<Setting> &settings, UiSettings &uiSettings, const Theme &theme,
                   QWidget *parent, FolderChooser chooseFolder = {});
    ~SettingsDialog() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeSearch();
    void makePages();
    void makeRows(const QVector<Setting> &settings, const SettingRow::Help &help);
    void layOut();
    void showRows();
    void showPage();
    void updateEditable();
    QVector<TakenKeys> takenKeys(const char *id) const;
    const SettingRow *row(const char *id) const;

    UiSettings &m_uiSettings;
    const Theme &m_theme;
    QLineEdit *m_search = nullptr;
    QListWidget *m_pages = nullptr;
    QScrollArea *m_scroll = nullptr;
    QWidget *m_body = nullptr;
    QWidget *m_nothing = nullptr;
    QVector<QWidget *> m_headings; ///< one a page
    QVector<SettingRow *> m_rows;
    QVector<QWidget *> m_lines; ///< one below each row
};
