#pragma once

#include "PasswordChange.h"
#include "SafeUnlock.h"

#include <QObject>
#include <QPointer>

#include <memory>

class ChangePasswordDialog;
class GPMAppCore;
class GPMSafe;
class ProgressDialog;
class QWidget;
class Theme;

/// Changes the master password of the open safe for the user: asks for it, shows how far the change
/// is and says how it has ended.
class PasswordChangeDesk : public QObject
{
    Q_OBJECT

public:
    PasswordChangeDesk(GPMAppCore &core, const Theme &theme, QObject *parent = nullptr);

    /// What the windows are shown above, and their owner.
    void setWindow(QWidget *window) { m_window = window; }

    void open();

private:
    void start(const QString &newPassword, const QString &hint);
    void showProgress(const std::shared_ptr<GPMSafe> &safe);
    void makeProgress(const QString &text);
    void tellEnd(PasswordChangeOutcome outcome, const GPMSafe &safe);
    void tellInterrupted(SafeUnlock::Outcome outcome);

    GPMAppCore &m_core;
    const Theme &m_theme;
    QPointer<QWidget> m_window;
    QPointer<ChangePasswordDialog> m_dialog;
    QPointer<ProgressDialog> m_progress;
    bool m_cancelled = false;
};
