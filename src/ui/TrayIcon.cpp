#include "TrayIcon.h"

#include "HotkeyText.h"
#include "style/SvgIcon.h"

TrayIcon::TrayIcon(QObject *parent)
    : QSystemTrayIcon(programIcon(), parent)
{
    setToolTip(QStringLiteral("Glaceron Password Manager"));
    QAction *open = m_menu.addAction(tr("Open Main Window"), this, &TrayIcon::openRequested);
    m_menu.setDefaultAction(open);
    m_quick = m_menu.addAction(tr("Quick Access"), this, &TrayIcon::quickAccessRequested);
    m_menu.addAction(tr("Password Generator"), this, &TrayIcon::generatorRequested);
    m_menu.addAction(tr("Settings"), this, &TrayIcon::settingsRequested);
    m_menu.addAction(tr("Help"), this, &TrayIcon::helpRequested);
    m_menu.addSeparator();
    m_lock = m_menu.addAction(tr("Lock"), this, &TrayIcon::lockRequested);
    m_menu.addSeparator();
    m_menu.addAction(tr("Exit"), this, &TrayIcon::exitRequested);
    setContextMenu(&m_menu);
    setLocked(true);
    connect(this, &QSystemTrayIcon::activated, this, [this](ActivationReason reason) {
        if (reason == Trigger || reason == DoubleClick)
            Q_EMIT openRequested();
    });
}

void TrayIcon::setQuickHotkey(const QString &keys)
{
    m_quick->setShortcut(hotkeySequence(keys));
}

void TrayIcon::setLockHotkey(const QString &keys)
{
    m_lock->setShortcut(hotkeySequence(keys));
}
