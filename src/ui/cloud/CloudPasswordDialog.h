#pragma once

#include "CloudSync.h"
#include "widgets/FramedDialog.h"

class MessageLabel;
class PasswordField;
class QLabel;
class QProgressBar;
class QPushButton;

/// Asks for the password that the current safe was given on another computer, and follows how it is
/// taken over.
class CloudPasswordDialog : public FramedDialog
{
    Q_OBJECT

public:
    CloudPasswordDialog(CloudSync &sync, const QString &safeName, const Theme &theme,
                        QWidget *parent);
    ~CloudPasswordDialog() override;

    /// Nothing while the safe is being changed, which is not to be stopped halfway.
    void reject() override;

private:
    void layOut(const QString &safeName);
    void take();
    void onTaken(CloudSync::Taking result);
    void setBusy(bool busy);

    CloudSync &m_sync;
    PasswordField *m_password;
    MessageLabel *m_message;
    QProgressBar *m_bar;
    QPushButton *m_notNow;
    QPushButton *m_take;
    bool m_busy = false;
};
