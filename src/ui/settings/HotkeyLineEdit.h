#pragma once

#include "HotkeyRules.h"
#include "widgets/TextField.h"

#include <functional>

/// Records a key combination that is pressed in it; Backspace and Delete clear it.
class HotkeyLineEdit : public TextField
{
    Q_OBJECT

public:
    /// @param taken asked at each key stroke for what the combination must not clash with
    HotkeyLineEdit(std::function<QVector<TakenKeys>()> taken, QWidget *parent);

    /// The combination as portable text; empty for none.
    QString hotkey() const { return m_hotkey; }
    void setHotkey(const QString &hotkey);

Q_SIGNALS:
    void hotkeyChanged(const QString &hotkey);
    /// A combination was pressed that cannot be a hotkey.
    void refused(const QString &fault);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    std::function<QVector<TakenKeys>()> m_taken;
    QString m_hotkey;
};
