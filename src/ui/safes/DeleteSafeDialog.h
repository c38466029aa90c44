#pragma once

#include "SafeLines.h"
#include "widgets/FramedDialog.h"

#include <QFuture>
#include <QFutureWatcher>

#include <functional>

class MessageLabel;
class PasswordField;
class QPushButton;

/// Asks for the master password before a safe is deleted; accepted once that was the right one.
class DeleteSafeDialog : public FramedDialog
{
    Q_OBJECT

public:
    using Check = std::function<QFuture<bool>(const QString &password)>;

    DeleteSafeDialog(const SafeInfo &safe, const Check &check, const Theme &theme, QWidget *parent);

private:
    void check();
    void onChecked();

    Check m_check;
    PasswordField *m_password;
    MessageLabel *m_message;
    QPushButton *m_delete;
    QFutureWatcher<bool> m_checking;
};
