#pragma once

#include "HotkeyRules.h"
#include "Setting.h"

#include <QWidget>

class QBoxLayout;
class MessageLabel;
class QLabel;
class Theme;

/// Asks for a folder, starting in one; empty when the user chose none.
using FolderChooser = std::function<QString(QWidget *parent, const QString &start)>;

/// One setting with its description and its editor. A change is applied and stored at once.
class SettingRow : public QWidget
{
    Q_OBJECT

public:
    /// What the editors need besides the setting.
    struct Help
    {
        const Theme &theme;
        FolderChooser chooseFolder;
        std::function<QVector<TakenKeys>(const char *id)> takenKeys; ///< by others than the setting
    };

    SettingRow(const Setting &setting, const Help &help, QWidget *parent);

    const Setting &setting() const { return m_setting; }
    bool matches(const QStringList &words) const;

    /// Shows the value that holds.
    void refresh();
    void setEditable(bool editable);
    void focusEditor();

Q_SIGNALS:
    /// A value was applied.
    void applied();

private:
    QWidget *makeEditor();
    QWidget *makeSwitch();
    QWidget *makeNumber();
    QWidget *makeChoice();
    QWidget *makeFolder();
    QWidget *makeHotkey();
    QWidget *makePanel();
    void layOut(QWidget *editor);
    void describe();
    void apply(const QVariant &value);
    void showFault(const QString &fault);

    Setting m_setting;
    Help m_help;
    QLabel *m_label;
    QLabel *m_explanation;
    MessageLabel *m_fault;
    QWidget *m_control = nullptr; ///< what takes the keyboard
    std::function<void(const QVariant &)> m_show;
};
