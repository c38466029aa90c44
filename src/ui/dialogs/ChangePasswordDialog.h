#pragma once

#include "ChangePasswordRules.h"
#include "widgets/FramedDialog.h"

#include <array>
#include <functional>

class CapsIndicator;
class MessageLabel;
class PasswordField;
class Platform;
class QGridLayout;
class QLineEdit;

/// Asks for the old master password of a safe, the new one and its hint. Forgets what was typed
/// when it closes.
class ChangePasswordDialog : public FramedDialog
{
    Q_OBJECT

public:
    struct Parts
    {
        std::function<bool(const QString &)> isPassword; ///< of the open safe; answers at once
        QString hint;                                    ///< the one that the safe has
        Platform &platform;
    };

    ChangePasswordDialog(const Parts &parts, const Theme &theme, QWidget *parent);

    void done(int result) override;

Q_SIGNALS:
    /// The entries keep every rule, and the old password is right. The window closes behind it.
    void confirmed(const QString &newPassword, const QString &hint);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeFields();
    QGridLayout *layOutFields();
    ChangePasswordRules::Input input() const;
    void onEdited(int field);
    void onReturn(int field);
    void confirm();
    void showMessages();

    Parts m_parts;
    const Theme &m_theme;
    PasswordField *m_old;
    PasswordField *m_new;
    PasswordField *m_confirm;
    std::array<QLineEdit *, ChangePasswordRules::FieldCount> m_fields;
    std::array<MessageLabel *, ChangePasswordRules::FieldCount> m_messages;
    CapsIndicator *m_caps;
    int m_reached = -1; ///< the last field that has a message
    bool m_oldRefused = false;
};
