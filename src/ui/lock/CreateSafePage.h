#pragma once

#include "CreateSafeRules.h"

#include <QWidget>

#include <array>

class GPMAppCore;
class MessageLabel;
class PasswordField;
class QLabel;
class QLineEdit;
class QPushButton;
class Theme;

/// Makes a new safe.
class CreateSafePage : public QWidget
{
    Q_OBJECT

public:
    CreateSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent);

    /// Starts anew with empty fields.
    void start();
    /// Puts the keyboard into the first field.
    void takeFocus();
    void clearSecrets();

Q_SIGNALS:
    void backRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void reset();
    void makeFields(const Theme &theme);
    void layOut();
    void connectFields();
    CreateSafeRules::Input input() const;
    void onEdited(int field);
    void onReturn(int field);
    void create();
    void showMessages();

    GPMAppCore &m_core;
    const Theme &m_theme;
    QLabel *m_offer;
    PasswordField *m_password;
    PasswordField *m_confirm;
    std::array<QLineEdit *, CreateSafeRules::FieldCount> m_fields;
    std::array<MessageLabel *, CreateSafeRules::FieldCount> m_messages;
    MessageLabel *m_failure;
    QPushButton *m_back;
    QPushButton *m_create;
    int m_reached = -1; ///< the last field that the user edited
};
