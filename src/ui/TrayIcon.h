#pragma once

#include <QMenu>
#include <QSystemTrayIcon>

/// The program's icon in the system tray with its menu.
class TrayIcon : public QSystemTrayIcon
{
    Q_OBJECT

public:
    explicit TrayIcon(QObject *parent = nullptr);

    void setLocked(bool locked) { m_lock->setEnabled(!locked); }

    /// Shows the hotkey beside "Lock".
    void setLockHotkey(const QString &keys);
    /// The same beside "Quick Access".
    void setQuickHotkey(const QString &keys);

Q_SIGNALS:
    void openRequested();
    void quickAccessRequested();
    void generatorRequested();
    void settingsRequested();
    void helpRequested();
    void lockRequested();
    void exitRequested();

private:
    QMenu m_menu;
    QAction *m_lock;
    QAction *m_quick;
};
