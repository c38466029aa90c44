#pragma once

#include "CreateSafeRules.h"

#include <QWidget>

#include <array>

class GPMAppCore;
class MessageLabel;
class Palette;
class PasswordField;
class QLineEdit;
class Theme;

/// The fields of a new safe, each with its message below it.
class CreateSafeForm : public QWidget
{
    Q_OBJECT

public:
    enum Ground { Plain, Dark };

    CreateSafeForm(GPMAppCore &core, const Theme &theme, Ground ground, QWidget *parent);

    /// Starts anew with empty fields.
    void reset();
    /// Puts the keyboard into the first field.
    void takeFocus();
    void clearSecrets();

    /// Makes the safe in a folder that the user chose, or in a new one inside when there are files
    /// in it; in the standard place when it is empty.
    void setFolder(const QString &chosen);
    const QString &chosenFolder() const { return m_chosenFolder; }
    /// The safe's own folder; empty in the standard place.
    QString folder() const;

    bool canCreate() const;
    /// Makes the safe and empties the fields; otherwise says that it failed.
    bool create();

    /// The field after which the keyboard goes on.
    QWidget *lastField() const;

Q_SIGNALS:
    /// Something was entered.
    void changed();
    /// Return was pressed and the safe can be made.
    void submitted();

private:
    void makeFields(Ground ground);
    void layOut();
    CreateSafeRules::Input input() const;
    const Palette &colors() const;
    void onEdited(int field);
    void onReturn(int field);
    void showMessages();

    GPMAppCore &m_core;
    const Theme &m_theme;
    Ground m_ground;
    PasswordField *m_password;
    PasswordField *m_confirm;
    std::array<QLineEdit *, CreateSafeRules::FieldCount> m_fields;
    std::array<MessageLabel *, CreateSafeRules::FieldCount> m_messages;
    MessageLabel *m_failure;
    QString m_chosenFolder;
    int m_reached = -1; ///< the last field that the user edited
};
